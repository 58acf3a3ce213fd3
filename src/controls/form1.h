#pragma once
// Form1, the main window "Tarve Designer 1.91": as much of it as the handlers so far speak to.

#include <array>

#include "controls/controls.h"
#include "views/draw_surface.h"

struct MainWindow {
  MenuItem Dummy4;  ///< save, create
  MenuItem AutoSpline;
  MenuItem displacement;
  MenuItem EnterWaterline;
  MenuItem Contours;
  MenuItem EnterPitch;
  MenuItem EnterHeel;
  MenuItem Freshwater;
  MenuItem Seawater;
  MenuItem dummy12;  ///< rescale all axes
  MenuItem dummy18;  ///< rescale the beam
  MenuItem dummy19;  ///< rescale the height
  MenuItem dummy88;  ///< rescale the length
  /// The current view; none checked is the spin view.
  MenuItem Sections;
  MenuItem Profile;
  MenuItem Plan;

  /// Z of bulkheads 0 to 4, as the user typed it.
  std::array<TextBox, 5> Text1{TextBox("0"), TextBox("28''"), TextBox("58''"), TextBox("96''"),
                               TextBox("140''")};
  /// The number of chines, and the spinner beside it: its range is reversed, so that up adds one.
  TextBox Text3;
  ScrollBar VScroll1{30, 2, 4};

  /// The waterline in tenths of an inch.
  ScrollBar HScroll1{1, 500, 1};
  /// The results, hidden until there are some.
  ComboBox Combo1{"Results"};
  StatusBar StatusBar1;

  /// The thumbnails of section, profile and plan, and the main drawing surface: a face puts its own
  /// in place of the empty ones.
  std::array<DrawSurface*, 3> Picture1{&no_picture, &no_picture, &no_picture};
  DrawSurface* Picture2 = &no_picture;
  /// Fires the paint handler of Picture2 at once.
  Event<> RefreshPicture2;

  /// Says that the hull changed: fires the paint handler of the form at once.
  Event<> Refresh;

 private:
  DrawSurface no_picture;
};

extern MainWindow Form1;
