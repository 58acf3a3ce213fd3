
#include <cmath>

#include "hull/hull_model.h"
#include "support/nest_test.h"

namespace {

using NestEditing = NestTest;

void ExpectAt(const NestInstance& instance, int p, double x, double y) {
  EXPECT_DOUBLE_EQ(instance.pos_x(p), x);
  EXPECT_DOUBLE_EQ(instance.pos_y(p), y);
}

/// Where a drop leaves the board, whose half sizes are 5 and 2.
NestPoint Drop(double x, double y) {
  NestPosX(1) = x;
  NestPosY(1) = y;
  Form2.Picture1.MouseUp(1, 0, 0);
  return {NestPosX(1), NestPosY(1)};
}

void ExpectDrop(double x, double y, double to_x, double to_y) {
  const NestPoint at = Drop(x, y);
  EXPECT_DOUBLE_EQ(at.x, to_x) << x << ", " << y;
  EXPECT_DOUBLE_EQ(at.y, to_y) << x << ", " << y;
}

TEST_F(NestEditing, TheListShowsAndHidesAPartWithItsCopy) {
  OpenTwoParts();
  Form2.Command5.Click();
  EXPECT_EQ(NestCurrent, 0) << "no part is current yet, and no button minds";
  NestCopySelected = 1;
  Click(1);
  EXPECT_EQ(NestCurrent * 10 + NestCopySelected, 20) << "the part itself, not its copy";
  EXPECT_EQ(surface.Count("line", " c0"), 3);
  Form2.Command5.Click();
  EXPECT_EQ(NestCopyShown(2), 1);
  ExpectAt(NestInstances[1], 2, 6, 6);
  EXPECT_EQ(surface.Count("line", " c0"), 6);
  Form2.Command5.Click();
  EXPECT_EQ(NestCopyShown(2), 0);
  Form2.Command5.Click();
  Click(1);
  EXPECT_EQ(NestShown(2) + NestCopyShown(2), 0);
  Form2.Command5.Click();
  EXPECT_EQ(NestCopyShown(2), 0) << "no copy of a hidden part";
}

TEST_F(NestEditing, TurnsWithTheCoarsePiAndKeepsTheDrift) {
  OpenTwoParts();
  Click(0);
  Form2.Command3.Click();
  // A quarter turn falls short by 0.00004632679 radians, so -5 along x leaves that part of it.
  EXPECT_NEAR(NestX(1, 1), 2 - 5 * 4.632679e-5, 1e-7);
  EXPECT_NEAR(NestY(1, 1), -5 - 2 * 4.632679e-5, 1e-7);
  EXPECT_EQ(NestCopyX(1, 1), -5) << "the copy has turns of its own";
  Form2.Command1.Click();
  EXPECT_NEAR(NestY(1, 1), 5, 1e-3);

  Click(1);
  for (int i = 0; i < 360; ++i) {
    Form2.Command4.Click();
  }
  EXPECT_NEAR(std::atan2(NestY(2, 2), NestX(2, 2)) - std::atan2(-3, 3), 3.1415 / 2, 1e-12);
  for (int i = 0; i < 360; ++i) {
    Form2.Command6.Click();
  }
  EXPECT_NEAR(NestX(2, 2), 3, 1e-12);
  Form2.Command2.Click();
  EXPECT_NEAR(NestX(2, 2), -3 + 3 * 9.265359e-5, 1e-7);
}

TEST_F(NestEditing, TheNearestHandleWithinTwelveInchesIsPicked) {
  OpenTwoParts();
  NestPosX(1) = 20;
  NestPosX(2) = 30;
  NestPosY(1) = NestPosY(2) = 24;
  NestCopyPosX(1) = NestCopyPosX(2) = 60;
  NestCopyPosY(1) = NestCopyPosY(2) = 24;
  const auto pick = [](double x, double y) {
    Form2.Picture1.MouseDown(1, x, y);
    return NestCurrent * 10 + NestCopySelected;
  };
  EXPECT_EQ(pick(27, 24), 20);
  EXPECT_EQ(pick(25, 24), 10) << "on a tie the first found stays";
  EXPECT_EQ(pick(60, 30), 11) << "copies have handles, shown or not";
  EXPECT_EQ(pick(20, 36), 11) << "12 inches are too far, and the selection stays";
  EXPECT_EQ(pick(20, 35.9), 10);
  Drag(60, 24, 100, 20);
  ExpectAt(NestInstances[1], 1, 100, 20);
  Form2.Command1.Click();
  EXPECT_EQ(NestCopyY(1, 1), 2);
  EXPECT_EQ(NestY(1, 1), -2);
}

TEST_F(NestEditing, ADropComesBackOntoTheSheetsOrSnapsToAnEdge) {
  OpenTwoParts();
  ExpectDrop(2, 24, 5, 24);
  ExpectDrop(287, 24, 283, 24);
  ExpectDrop(50, 1, 50, 2);
  ExpectDrop(50, 47, 50, 46);
  ExpectDrop(2, 1, 5, 2);
  ExpectDrop(50, 0.4, 50, 0);
  ExpectDrop(50, 0.5, 50, 0.5);
  ExpectDrop(50, 47.5, 50, 48);
  ExpectDrop(50, 52.7, 50, 48);
  ExpectDrop(50, 53, 50, 53);
  ExpectDrop(290, 48, 283, 48);
}

TEST_F(NestEditing, OnlyShownCopiesAreTidiedAndTheLastPointDoesNotCount) {
  OpenTwoParts();
  Drop(50, 24);
  NestCopyPosX(1) = -20;
  NestCopyPosY(1) = 24;
  ExpectDrop(50, 24, 50, 24);
  ExpectAt(NestInstances[1], 1, -20, 24);
  NestShown(1) = NestCopyShown(1) = 1;
  ExpectDrop(50, 24, 50, 24);
  ExpectAt(NestInstances[1], 1, 5, 24);
  NestPosX(2) = 50;
  NestPosY(2) = 47;
  Form2.Picture1.MouseUp(1, 0, 0);
  EXPECT_EQ(NestPosY(2), 47) << "the point above the sheet is the last one";
}

TEST_F(NestEditing, ThePointerReadsTheNearestPointOut) {
  OpenTwoParts();
  Click(0);
  NestPosX(1) = 100.3;
  NestPosY(1) = 10.93;
  Form2.Picture1.MouseMove(0, 97, 8);
  EXPECT_EQ(*Form2.Caption, "board.uc: 95.30'' 8.93'' (95-2'' 8-7'')");
  EXPECT_TRUE(surface.Has("line 95.8,8.9 97.3,8.9 c13"));
  EXPECT_TRUE(surface.Has("line 0.0,9.9 95.3,9.9 c12"));
  EXPECT_TRUE(surface.Has("line 96.3,0.0 96.3,8.9 c12"));
  EXPECT_TRUE(surface.Has("point 96.8,4.5 c12\nprint 8-7'' c12"));

  surface.Cls();
  Form2.Picture1.MouseMove(0, 97, 8.1);
  EXPECT_EQ(surface.calls, "cls\n") << "the same point stands on the picture already";
  Form2.Picture1.Refresh();
  Form2.Picture1.MouseMove(0, 97, 8.2);
  EXPECT_TRUE(surface.Has("print 8-7'' c12")) << "a paint has taken it off";
  EXPECT_EQ(surface.Count("line", " c13"), 0) << "the cross marks a new point only";

  Form2.Command5.Click();
  NestCopyPosX(1) = 110;
  NestCopyPosY(1) = 20.99;
  Form2.Picture1.MouseMove(0, 106, 19);
  EXPECT_EQ(*Form2.Caption, "board.uc: 105.00'' 18.99'' (105-0'' 18-8'')");
  EXPECT_TRUE(surface.Has("print 9-0'' c12")) << "from the edge of its own sheet";
}

TEST_F(NestEditing, NothingIsReadOutWithNothingInReach) {
  OpenTwoParts();
  Form2.Picture1.MouseMove(0, 1, 1);
  EXPECT_EQ(*Form2.Caption, "for boat.tvh        12:00:00");
  Click(0);
  Form2.Picture1.MouseMove(0, 2000, 1);
  EXPECT_EQ(*Form2.Caption, "for boat.tvh        12:00:00");
  NestPosX(1) = 500;
  Form2.Picture1.MouseMove(0, 500, 1);
  EXPECT_EQ(surface.Count("line", " c13"), 2) << "beyond sheet 5 the cross stands alone";
  EXPECT_EQ(surface.Count("line", " c12"), 2);
}

TEST_F(NestEditing, ThePictureShowsTheRowInThreeViews) {
  OpenTwoParts();
  Form2.Text1.Text = std::string("100");
  Form2.Check2.Value = true;
  Click(0);
  Form2.Command5.Click();
  EXPECT_TRUE(surface.Has("scale -1.5,122.8 289.5,-22.8"));
  EXPECT_TRUE(surface.Has("box 192.0,100.0 288.0,0.0 c7"));
  EXPECT_TRUE(surface.Has("point 192.0,100.0 c7\nprint  3  c7"));
  EXPECT_TRUE(surface.Has("circle 0.0,0.0 r1.0 c5"));
  EXPECT_TRUE(surface.Has("box 4.0,1.0 6.0,3.0 c13\npoint 6.2,2.0 c0\nprint board.uc c0"));
  EXPECT_TRUE(surface.Has("print Copy of board.uc c0"));
  EXPECT_TRUE(surface.Has("filled 4.0,1.0 6.0,3.0 c10"));

  Form2.Picture1.Left = 3120;
  Form2.Command7.Click();
  EXPECT_EQ(*Form2.Command7.Caption, "Full View");
  EXPECT_EQ(*Form2.Picture1.Left, 120);
  Form2.Width = 10000;
  EXPECT_EQ(*Form2.Picture1.Width, 9760) << "it follows the window";
  Form2.Command7.Click();
  EXPECT_EQ(*Form2.Command7.Caption, "False View");
  EXPECT_TRUE(surface.Has("scale -1.5,101.5 289.5,-1.5"));
  Form2.Command7.Click();
  EXPECT_EQ(*Form2.Command7.Caption, "Wide View");
  Form2.Width = 12000;
  EXPECT_EQ(*Form2.Picture1.Width, 32767);

  Form2.Text1.Text = std::string("-200");
  EXPECT_TRUE(surface.Has("scale -1.5,201.5 404.5,-1.5")) << "fitted to the height now";
  Form2.Option3.Value = true;
  EXPECT_EQ(SheetRowLength, 480);
  EXPECT_TRUE(surface.Has("box 384.0,200.0 480.0,0.0 c7")) << "lengths count without their sign";
  Form2.Text1.Text = std::string("sheet");
  EXPECT_EQ(surface.calls, "cls\n");
}

TEST_F(NestEditing, ThePictureSlidesUpToItsEnds) {
  OpenTwoParts();
  int beeps = 0;
  Form2.Beep = [&beeps] { ++beeps; };
  const auto press = [](int key) {
    Form2.KeyDown(key);
    return key;
  };
  EXPECT_EQ(press(RightKey), NoKey);
  EXPECT_EQ(*Form2.Picture1.Left, 3120) << "120 itself is not above 120";
  press(RightKey);
  EXPECT_EQ(press(UpKey), UpKey);
  for (int i = 0; i < 9; ++i) {
    press(LeftKey);
  }
  EXPECT_EQ(*Form2.Picture1.Left, -20880) << "where less than the window is left of the picture";
  EXPECT_EQ(beeps, 2);
  Form2.Option2.Value = true;
  EXPECT_EQ(*Form2.Picture1.Left, 120);
}

}  // namespace
