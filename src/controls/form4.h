#pragma once
// Form4, "Open": the hull file, the figure for scale, the rig and the ballast.

#include <array>

#include "controls/controls.h"
#include "controls/file_lists.h"

/// A rectangle around one of the figure boxes, its left and top 60 twips (4 pixels) outside of it.
struct FigureFrame {
  static constexpr int Margin = 60;  ///< twips
  Property<int> Index;               ///< the box that it is around
  Property<bool> Visible;
};

struct OpenWindow : Window {
  OpenWindow() : Window("Open") {}

  TextBox Text1{"default.tvh"};  ///< the open file
  FileListBox File1{"*.tvh"};
  Label Label3;  ///< the open folder
  DirListBox Dir1;
  DriveListBox Drive1;
  Label Label4;   ///< designer of the open hull
  Label Label11;  ///< its info text
  CommandButton Command1{"Done"};

  /// A figure each, in the order of their file.
  std::array<PictureBox, 9> Picture2;
  FigureFrame Shape2;
  TextBox Text3{"67\""};           ///< the person's height
  ScrollBar VScroll2{78, 48, 67};  ///< the same as a spinner
  TextBox Text8{"165 #"};          ///< weight
  CommandButton Command5{"Flip V"};
  CommandButton Command6{"Flip H"};
  CommandButton Command7{"90"};

  Label MastLabel{"Mast Length"};
  TextBox Text2;
  Label BoomLabel{"Boom Height"};
  TextBox Text4;
  Label StepLabel{"Step Position"};
  TextBox Text10;
  Label LuffLabel{"Luff Length"};
  TextBox Text5;
  Label FootLabel{"Foot Length"};
  TextBox Text9;
  Label HeadLabel{"Head Length"};
  TextBox Text6;
  Label AngleLabel{"Head Angle"};
  TextBox Text7;
  OptionButton Option1{"Deck Step", {&Option2}};
  OptionButton Option2{"Keel Step", {&Option1}};
  CheckBox Rig{"OK"};  ///< shows the rig

  Label WeightLabel{"Ballast 1, Weight"};
  TextBox Text11;
  Label StationLabel{"Station, X"};
  TextBox Text12;
  Label HeightLabel{"Height, Y"};
  TextBox Text13;
};

extern OpenWindow Form4;
