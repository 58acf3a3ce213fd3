#pragma once
// Form2, "Pattern Nesting": the row of sheets on which the parts are placed by hand.

#include <string>

#include "controls/controls.h"
#include "controls/print_job.h"

struct ClickableImage {
  Event<> Click;
};

/// The picture of the sheet row, which a user slides along in the window. Twips.
struct SlidingPicture : PictureBox {
  static constexpr int LeftAtRest = 120;
  static constexpr int WidestView = 32767;

  using PictureBox::operator=;
  Property<int> Left{LeftAtRest};
  Property<int> Width{WidestView};
};

struct NestingWindow : Window {
  NestingWindow() : Window("Pattern Nesting") {}

  /// The window has another width.
  Event<> Resize;
  /// Width of the window in twips; the face keeps it true.
  Property<int> Width{Resize, 12000};

  ListBox List1;  ///< the parts in the order of the file
  CommandButton Command1{"Flip"};
  CommandButton Command2{"180"};
  CommandButton Command3{"90"};
  CommandButton Command4{"CCW"};
  CommandButton Command5{"Copy"};
  CommandButton Command6{"CW"};
  /// Its caption is the view that is on: "Wide View", "Full View" or "False View".
  CommandButton Command7{"Wide View"};
  CommandButton Command8{"Save"};
  CommandButton Command9{"Prn?"};
  CommandButton Command10{"Print"};

  OptionButton Option1{"3 sheets", {&Option2, &Option3}};
  OptionButton Option2{"4 sheets", {&Option1, &Option3}};
  OptionButton Option3{"5 sheets", {&Option1, &Option2}};
  TextBox Text1{"48"};  ///< height of a sheet, inches
  TextBox Text2{"96"};  ///< length of a sheet, inches

  CheckBox Check1{"-->"};  ///< a mark that the hull file keeps
  CheckBox Check2{"Aa"};   ///< shows the names of the parts

  SlidingPicture Picture1;
  ClickableImage Image3;  ///< slides the picture to the right
  ClickableImage Image4;  ///< slides it to the left

  /// The face's slot: a short sound, at an end of the slide.
  Event<> Beep;
  /// The face's slot: opens a text file in the desktop's viewer and goes on; failure is silent.
  Event<const std::string&> StartViewer;
  /// The face's slot: lets the user choose a printer and prints on it, unless that is cancelled.
  Event<const PrintJob&> Print;
};

extern NestingWindow Form2;
