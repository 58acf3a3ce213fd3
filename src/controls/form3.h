#pragma once
// Form3, "Save and Create Patterns": the file name, the info texts, the frames and what to create.

#include <array>

#include "controls/controls.h"

struct SaveWindow : Window {
  SaveWindow() : Window("Save and Create Patterns") {}

  TextBox Text1{"default.tvh"};  ///< file name
  FileListBox File1;

  TextBox Text2;  ///< designer
  TextBox Text3;  ///< hull info
  TextBox Text4;  ///< contact
  TextBox Text5;  ///< date
  TextBox Text6;  ///< export path

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

  /// Shows the window and returns when it is hidden again.
  Event<> ShowModal;
};

extern SaveWindow Form3;
