#include "views/spin_view.h"

#include <cmath>

#include "hull/figures.h"
#include "hull/rig.h"
#include "views/overlays.h"
#include "views/view.h"
#include "views/view_test.h"
#include "views/zoom.h"

namespace {

class SpinView : public ViewTest {
 protected:
  void SetUp() override {
    ViewTest::SetUp();
    ShowBarge();
  }
  static void PressKey(int code) {
    int key = code;
    Form1.KeyDown(key);
    EXPECT_EQ(key, NoKey);
  }
  static void ClearPoints() {
    ViewPtsA.Erase();
    ViewPtsB.Erase();
  }
};

TEST_F(SpinView, ARepaintStartsFromTheTiltedHull) {
  const double c = std::cos(PiVal / 10);
  const double s = std::sin(PiVal / 10);
  // (25, 20, 0): the tilt makes it (25, 20c, -20s), the turn by the negative angle the rest.
  EXPECT_NEAR(ViewPtsA(1, 1, 2), c * 25 + s * 20 * s, 1e-12);
  EXPECT_NEAR(ViewPtsA(2, 1, 2), c * 20, 1e-12);
  EXPECT_NEAR(ViewPtsA(3, 1, 2), -c * 20 * s + s * 25, 1e-12);
  EXPECT_NEAR(ViewPtsB(1, 1, 2), -c * 25 + s * 20 * s, 1e-12);
  const double start = ViewPtsA(1, 9, 1);
  Form1.Command5.Click();
  const double turned = ViewPtsA(1, 9, 1);
  EXPECT_NE(turned, start);
  Form1.TrueView.Click();
  EXPECT_EQ(ViewPtsA(1, 9, 1), turned);
  Form1.Refresh();
  EXPECT_EQ(ViewPtsA(1, 9, 1), start);
}

TEST_F(SpinView, EachButtonTurnsItsTwoCoordinates) {
  struct Row {
    const CommandButton& button;
    int p;
    int q;
  };
  const double c = std::cos(PiVal / 40);
  const double s = std::sin(PiVal / 40);
  int parked = 0;
  Form1.Text1[0].SetFocus = [&] { ++parked; };
  for (const Row& row : {Row{Form1.Command1, 1, 2}, Row{Form1.Command5, 1, 3}, Row{Form1.Command6, 2, 3}}) {
    CheckView(View::Profile);
    for (PointTable* table : {&ViewPtsA, &ViewPtsB}) {
      (*table)(row.p, 4, 1) = 10;
      (*table)(row.q, 4, 1) = 1;
    }
    const double other = ViewPtsB(6 - row.p - row.q, 4, 1);
    row.button.Click();
    EXPECT_EQ(CheckedView(), View::Spin);
    for (PointTable* table : {&ViewPtsA, &ViewPtsB}) {
      EXPECT_NEAR((*table)(row.p, 4, 1), c * 10 + s, 1e-12);
      EXPECT_NEAR((*table)(row.q, 4, 1), c - s * 10, 1e-12);
    }
    EXPECT_EQ(ViewPtsB(6 - row.p - row.q, 4, 1), other);
  }
  EXPECT_EQ(parked, 3);
}

TEST_F(SpinView, ArrowKeysSetTheSignOfTheStep) {
  const double x = ViewPtsA(1, 5, 2);
  const double y = ViewPtsA(2, 5, 2);
  PressKey(LeftKey);
  EXPECT_EQ(SpinStep, PiVal / 40);
  EXPECT_GT(std::abs(ViewPtsA(1, 5, 2) - x), 0.1);
  PressKey(RightKey);
  EXPECT_EQ(SpinStep, -PiVal / 40);
  EXPECT_NEAR(ViewPtsA(1, 5, 2), x, 1e-9);
  Form1.Command1.Click();  // by the sign that the key has left
  EXPECT_NEAR(ViewPtsA(2, 5, 2), std::cos(SpinStep) * y - std::sin(SpinStep) * x, 1e-9);
  PressKey(DownKey);
  EXPECT_EQ(SpinStep, PiVal / 40);
  PressKey(UpKey);
  EXPECT_EQ(SpinStep, -PiVal / 40);
  int other = 'A';
  Form1.KeyDown(other);
  EXPECT_EQ(other, 'A');
}

TEST_F(SpinView, TheWireFrameOfBothSides) {
  OpenSample("dory.tvh");
  const int n = NumChines;
  EXPECT_EQ(picture.Count("point ", " c-1"), 2 * (n + 13));
  EXPECT_EQ(picture.Count("to ", " c-1"), 2 * n * 12);
  EXPECT_EQ(picture.Count("to ", " c1"), 2 * 13 * (n - 1));
  EXPECT_EQ(picture.Count("line ", " c1"), 13) << "across the keel";
  EXPECT_EQ(picture.Count("line ", " c7"), 5 + 2 * (n - 2)) << "deck beams, rungs";
  ShowBarge();
  EXPECT_EQ(picture.Count("line ", " c7"), 5) << "no rungs with two chines";
}

TEST_F(SpinView, PerspectiveFromTheLowCorner) {
  NumChines = 3;
  ClearPoints();
  ViewPtsA(1, 1, 1) = 100;
  ViewPtsA(3, 1, 1) = -2500;
  ViewPtsB(1, 2, 1) = -80;
  ViewPtsB(2, 2, 1) = -30;
  ViewPtsB(3, 2, 1) = 5000;
  Form1.Picture2.Refresh();
  EXPECT_TRUE(picture.Has("point 240.0,15.0 c-1\nto 40.0,15.0 c-1")) << "A of chine 1: 200, corner -40, -15";
  EXPECT_TRUE(picture.Has("point 40.0,15.0 c-1\nto 0.0,0.0 c-1"));
  EXPECT_EQ(picture.Count("line 40.0,15.0 40.0,15.0", " c7"), 5 + 2) << "beams, rungs of stations 13 and 0";
  ClearPoints();
  for (int i = 1; i <= Stations; ++i) {
    for (int c = 1; c <= 3; ++c) {
      ViewPtsA(1, i, c) = ViewPtsB(1, i, c) = 700;
    }
  }
  ViewPtsA(3, 3, 2) = -5000;  // the eye's own plane: nothing to draw there
  Form1.Picture2.Refresh();
  EXPECT_TRUE(picture.Has("point 200.0,0.0 c-1")) << "not pulled down from beyond 500";
  EXPECT_EQ(picture.Count("to ", " c-1"), 2 * 3 * 12 - 1);
}

TEST_F(SpinView, TheFigureStandsInEveryView) {
  FigureIndex = 2;
  FigureCount = 102;
  FigureX(1) = -5;
  FigureX(2) = 5;
  FigureY(2) = 8;
  FigureOffsetX = 30;
  FigureOffsetY = 10;
  for (const View view : {View::Sections, View::Profile, View::Plan, View::Spin}) {
    CheckView(view);
    CurChine = CurStation = -1;
    Form1.Picture2.Refresh();
    EXPECT_TRUE(picture.Has("line 25.0,10.0 35.0,18.0 c12\nline 35.0,18.0 30.0,10.0 c12"));
    EXPECT_EQ(picture.Count("line ", " c12"), 99) << "points beyond 100 are not kept";
  }
  FigureIndex = -1;
  Form1.Picture2.Refresh();
  EXPECT_EQ(picture.Count("line ", " c12"), 0);
}

TEST_F(SpinView, ARigMakesTheProfileAndFitsIn) {
  SetBoxBarge(25, 20, 100);
  OffY(1, 2) = 6;
  RigStepZ = 50;
  RigMastLength = 100;
  RigBoomHeight = 5;
  RigLuffLength = 80;
  RigFootLength = 40;
  RigHeadLength = 20;
  RigHeadAngle = 90 * PiVal / CoarsePi;
  Form4.Rig.Value = true;
  CheckView(View::Plan);
  Form4.Option1.Value = true;
  Form1.Refresh();
  EXPECT_EQ(RigStepY, 20);
  EXPECT_EQ(HullMaxY, 125) << "the peak is higher than the mast";
  EXPECT_TRUE(picture.calls.starts_with("cls\nscale -1.0,126.0 251.0,-1.0\n"));
  EXPECT_TRUE(
      picture.calls.ends_with("line 50.0,20.0 50.0,120.0 c13\n"
                              "line 50.0,25.0 90.0,25.0 c13\n"
                              "line 50.0,105.0 50.0,125.0 c13\n"
                              "to 90.0,25.0 c13\n"))
      << picture.calls;
  EXPECT_EQ(CheckedView(), View::Plan);
  Form4.Option1.Value = false;
  RigMastLength = 130;
  Form1.Refresh();
  EXPECT_EQ(RigStepY, 6) << "the keel at a bulkhead";
  EXPECT_EQ(HullMaxY, 136);
  for (const double outside : {0.0, 101.0}) {
    RigStepZ = outside;
    Form1.Refresh();
    EXPECT_EQ(RigStepY, 6);
  }
  RigBoomHeight = RigLuffLength = 1e308;
  Form1.Refresh();
  EXPECT_EQ(HullMaxY, 136) << "a peak beyond all numbers raises nothing";
  Form4.Rig.Value = false;
  Form1.Refresh();
  EXPECT_EQ(HullMaxY, 20);
  EXPECT_EQ(picture.Count("", " c13"), 0);
}

}  // namespace
