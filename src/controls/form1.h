#pragma once
// Form1, the main window "Tarve Designer 1.91": as much of it as the handlers so far speak to.

#include <array>

#include "controls/controls.h"
#include "views/draw_surface.h"

struct MainWindow {
  MenuItem AutoSpline;

  /// Z of bulkheads 0 to 4, as the user typed it.
  std::array<TextBox, 5> Text1;
  /// The number of chines, and the spinner beside it: its range is reversed, so that up adds one.
  TextBox Text3;
  ScrollBar VScroll1{30, 2, 4};

  StatusBar StatusBar1;

  /// The main drawing surface: a face puts its own in place of the empty one.
  DrawSurface* Picture2 = &no_picture;
  /// Fires the paint handler of Picture2 at once.
  Event<> RefreshPicture2;

  /// Says that the hull changed: fires the paint handler of the form at once.
  Event<> Refresh;

 private:
  DrawSurface no_picture;
};

extern MainWindow Form1;
