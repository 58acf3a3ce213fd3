#pragma once
// Form2, "Pattern Nesting": as much of it as the handlers so far speak to.

#include "controls/controls.h"

struct NestingWindow : Window {
  NestingWindow() : Window("Pattern Nesting") {}
};

extern NestingWindow Form2;
