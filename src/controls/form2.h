#pragma once
// Form2, "Pattern Nesting": as much of it as the handlers so far speak to.

#include "base/event.h"

struct NestingWindow {
  /// Closes the window and forgets its parts.
  Event<> Unload;
};

extern NestingWindow Form2;
