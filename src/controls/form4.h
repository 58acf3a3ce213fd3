#pragma once
// Form4, "Open": the rig and ballast boxes that the hull file keeps.

#include "controls/controls.h"

struct OpenWindow : Window {
  OpenWindow() : Window("Open") {}

  Label Label4;   ///< designer of the open hull
  Label Label11;  ///< its info text

  TextBox Text2;   ///< mast length
  TextBox Text4;   ///< boom height
  TextBox Text10;  ///< step position
  TextBox Text5;   ///< luff length
  TextBox Text6;   ///< head length
  TextBox Text7;   ///< head angle
  TextBox Text9;   ///< foot length

  OptionButton Option1{"Deck Step", {&Option2}};
  OptionButton Option2{"Keel Step", {&Option1}};
  CheckBox Rig{"OK"};  ///< shows the rig

  TextBox Text11;  ///< ballast weight
  TextBox Text12;  ///< ballast station
  TextBox Text13;  ///< ballast height
};

extern OpenWindow Form4;
