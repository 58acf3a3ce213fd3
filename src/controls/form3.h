#pragma once
// Form3, "Save and Create Patterns": the file name, the info texts, the frames and what to create.

#include <array>

#include "controls/controls.h"
#include "controls/file_lists.h"

struct SaveWindow : Window {
  SaveWindow() : Window("Save and Create Patterns") {}

  Label Label1{"File Name:"};
  TextBox Text1{"default.tvh"};
  FileListBox File1{"*.tvh"};
  Label Label2{"Directories:"};
  Label Label3;  ///< the open folder
  DirListBox Dir1;
  Label Label4{"Drives:"};
  DriveListBox Drive1;

  Label Frame1{"Information"};  ///< around the four info texts
  Label Label16{"Designer"};
  TextBox Text2;
  Label Label17{"Hull Info"};
  TextBox Text3;
  Label Label18{"email/URL"};
  TextBox Text4;
  CommandButton Command3{"Now"};
  TextBox Text5;  ///< date

  Label Label5{"Export Path:"};
  TextBox Text6;

  Label Label6{"Frames at:"};
  Label Label15{"Z Position:"};
  Label Label7{"1."};
  Label Label8{"2."};
  Label Label9{"3."};
  Label Label10{"4."};
  Label Label11{"5."};
  Label Label12{"6."};
  Label Label13{"7."};
  Label Label14{"8."};
  std::array<TextBox, 8> FrameText;

  CheckBox Check1{"Expansions", true};
  CheckBox Check2{"2x4 Spar"};
  CheckBox Check3{"HPGL"};
  CheckBox Check4{"DXF"};
  CheckBox Check5{"Text"};
  CheckBox Check6{"Half Frames"};
  CheckBox Check7{"Stem (BH 0)"};
  CheckBox Check8{"Soles"};
  CheckBox Check9{"Deck"};
  CheckBox Check10{"Keel"};

  CommandButton Command1{"Save"};
  CommandButton Command2{"Cancel"};

  /// The keyboard comes to the window.
  Event<> GotFocus;
  /// The face's slot: keeps the user in this window and returns when it is no longer visible.
  Event<> ShowModal;
};

extern SaveWindow Form3;
