#pragma once
// Form5, "Offsets": all offsets as a grid, and the box in which one of them is typed.

#include "controls/grid.h"

struct OffsetsWindow : Window {
  OffsetsWindow() : Window("Offsets") {}

  /// Section, chine, X, Y, Z; row 0 holds the headings.
  Grid Grid1{5};
  FloatingTextBox Text1;
};

extern OffsetsWindow Form5;
