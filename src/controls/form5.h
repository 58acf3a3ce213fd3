#pragma once
// Form5, "Offsets": as much of it as the handlers so far speak to.

#include "controls/controls.h"

struct OffsetsWindow : Window {
  OffsetsWindow() : Window("Offsets") {}
};

extern OffsetsWindow Form5;
