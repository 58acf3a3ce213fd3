#pragma once
// Form1, the main window "Tarve Designer 1.91".

#include <array>

#include "controls/controls.h"

struct MainWindow : Window {
  MainWindow() : Window("Tarve Designer 1.91") {}

  MenuItem dummy2;   ///< open
  MenuItem Dummy4;   ///< save, create
  MenuItem dummy21;  ///< clear old patterns
  MenuItem dummy6;   ///< exit
  MenuItem dummy8;   ///< offsets table
  MenuItem AutoSpline;
  MenuItem LockBulkheads;
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
  /// Checked: the flat views keep one scale on both axes.
  MenuItem TrueView;
  MenuItem dummy15;  ///< nesting

  /// Z of bulkheads 0 to 4, as the user typed it. The keyboard is parked in the first one, which has
  /// no label, after every change of the view.
  std::array<TextBox, 5> Text1{TextBox("0"), TextBox("28''"), TextBox("58''"), TextBox("96''"),
                               TextBox("140''")};
  Label Label1{"Bkhd 1"};
  Label Label2{"Bkhd 2"};
  Label Label3{"Bkhd 3"};
  Label Label4{"Transm (4)"};

  /// The number of chines, and the spinner beside it: its range is reversed, so that up adds one.
  Label Label5{"Chn"};
  TextBox Text3;
  ScrollBar VScroll1{30, 2, 4};

  /// The waterline in tenths of an inch.
  ScrollBar HScroll1{1, 500, 1};
  /// The results, hidden until there are some.
  ComboBox Combo1{"Results"};
  StatusBar StatusBar1;

  CommandButton Command1{"X"};  ///< spin
  CommandButton Command5{"Y"};
  CommandButton Command6{"Z"};
  CommandButton Command2{"VRML"};

  /// The thumbnails of section, profile and plan; the main drawing surface; the true view's fixed
  /// picture, on which nothing is drawn.
  std::array<PictureBox, 3> Picture1;
  PictureBox Picture2;
  PictureBox Picture3;

  /// The clock's tick, every 30 seconds.
  static constexpr int TimerInterval = 30000;  ///< milliseconds
  Event<> Timer1;

  /// Says that the hull changed: fires the paint handler of the form at once.
  Event<> Refresh;
};

extern MainWindow Form1;
