#pragma once
// Form3, "Save and Create Patterns": the file name, the info texts, the frames and what to create.

#include <array>

#include "controls/controls.h"

struct SaveWindow {
  TextBox Text1{"default.tvh"};  ///< file name
  FileListBox File1;

  TextBox Text2;  ///< designer
  TextBox Text3;  ///< hull info
  TextBox Text4;  ///< contact
  TextBox Text5;  ///< date
  TextBox Text6;  ///< export path

  std::array<TextBox, 8> FrameText;

  CheckBox Check1{true};  ///< expansions
  CheckBox Check2;        ///< 2x4 spar
  CheckBox Check3;        ///< HPGL
  CheckBox Check4;        ///< DXF
  CheckBox Check5;        ///< text
  CheckBox Check6;        ///< half frames
  CheckBox Check7;        ///< stem
  CheckBox Check8;        ///< soles
  CheckBox Check9;        ///< deck
  CheckBox Check10;       ///< keel

  CommandButton Command1;  ///< save

  Property<bool> Visible;
  /// Shows the window and returns when it is hidden again.
  Event<> ShowModal;
};

extern SaveWindow Form3;
