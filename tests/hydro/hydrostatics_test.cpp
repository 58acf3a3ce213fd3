#include "hydro/hydrostatics.h"

#include <array>
#include <cmath>

#include "base/number_text.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/chine_spline.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "hydro/heel.h"
#include "hydro/hull_points.h"
#include "hydro/results.h"
#include "hydro/water_planes.h"
#include "hydro/waterline.h"
#include "support/program_test.h"
#include "support/recording_surface.h"

namespace {

/// Hulls of length 100 and depth 20 whose answers are worked out by hand. Bulkheads stand every 25
/// inches, so the stations are at 0, 8.43.., 16.87, 25 and so on, 651.2 in sum.
class Hydrostatics : public ProgramTest {
 protected:
  /// Sections with sides from `bottom` to `top` half-width.
  static void SetPrism(double bottom, double top) {
    SetBoxBarge(bottom, 20, 100);
    for (int k = 0; k < Bulkheads; ++k) {
      OffX(2, k) = top;
    }
    Form1.Refresh();
  }

  /// A box with a chine along the middle of its flat bottom, which a heel needs: the pass takes the
  /// bottom between the centerline and chine 1 for level.
  static void SetKeeledBox() {
    SetBoxBarge(20, 20, 100);
    NumChines = 3;
    SetChine(3, {20, 20, 20, 20, 20}, {20, 20, 20, 20, 20}, {0, 25, 50, 75, 100});
    SetChine(2, {20, 20, 20, 20, 20}, {0, 0, 0, 0, 0}, {0, 25, 50, 75, 100});
    SetChine(1, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0, 25, 50, 75, 100});
    Form1.Refresh();
  }

  static void Float(double inches) {
    if (!Form1.EnterWaterline.Checked) {
      Form1.EnterWaterline.Click();
    }
    SetWaterlineBar(inches);
  }

  static void AnswerWith(const std::string& text) {
    InputBox = [text](const std::string&, const std::string&, const std::string&) { return text; };
  }

  static void Enter(MenuItem& command, const std::string& text) {
    AnswerWith(text);
    command.Click();
  }
  static void HeelTo(const std::string& angle) { Enter(Form1.EnterHeel, angle); }
};

/// A box 40 wide, 8 inches deep in the water.
class FloatingBox : public Hydrostatics {
 protected:
  void SetUp() override {
    Hydrostatics::SetUp();
    SetPrism(20, 20);
    Float(8);
  }
};

TEST_F(FloatingBox, ABoxBargeByHand) {
  EXPECT_NEAR(DisplacedVolume, 40 * 8 * 100, 1e-9);
  EXPECT_EQ(DisplacementLbs, static_cast<float>(8.3305 * 32000 / 231));
  EXPECT_EQ(WaterlineLength, 100);
  EXPECT_NEAR(LateralArea, 800, 1e-9);
  EXPECT_NEAR(LateralCenterY, 4, 1e-9);
  EXPECT_NEAR(LateralCenterZ, 50, 1e-9);
  EXPECT_NEAR(PrismaticCoeff, 1, 1e-12);
  EXPECT_EQ(ButtockAngle, 0);
  EXPECT_NEAR(DisplacementSpeedKt, 1.34 * std::sqrt(100.0 / 12), 1e-12);
  EXPECT_NEAR(DLRatio, double{DisplacementLbs} / 2240 / std::pow(1.0 / 12, 3), 1e-9);
  EXPECT_NEAR(SLRatioLimit, 8.26 / std::pow(DLRatio, 0.311), 1e-12);
  // Twelve slices at their middles over thirteen equal sections: (651.2 - 100 / 2) / 13.
  EXPECT_NEAR(BuoyancyCenterZ, 601.2 / 13, 1e-9);
  // Nine equal planes at 1, 1.8, ... 7.4.
  EXPECT_NEAR(BuoyancyCenterY, 4.2, 1e-9);
  // The fan has no triangle at the bow: 1000 at 40 / 3 and 500 at 20 / 3.
  EXPECT_NEAR(BuoyancyCenterX, (1000 * 40.0 / 3 + 500 * 20.0 / 3) / 1500, 1e-9);
}

TEST_F(Hydrostatics, PrismsWithSlopedSides) {
  SetPrism(10, 20);
  Float(5);
  EXPECT_NEAR(DisplacedVolume, (10 + 12.5) * 5 * 100, 1e-6);
  EXPECT_NEAR(CutStation(7, 5).b, 12.5, 1e-6);
}

TEST_F(FloatingBox, TheWaterplaneIsOnePattern) {
  const auto lines = Lines(Read("watrplne.uc"));
  ASSERT_EQ(lines.size(), 2U + 1 + 1 + 12 + 13 + 2);
  EXPECT_EQ(lines[1], "/* TARVE: 11-16-2026 Xscale: 500 Yscale: 500 */");
  EXPECT_EQ(lines[2], "0 10000 acut");
  EXPECT_EQ(lines[4], "4216 10000 acut");
  EXPECT_EQ(lines[16], "50000 -10000 acut");
  EXPECT_EQ(lines[28], "0 -10000 acut");
}

TEST_F(FloatingBox, FailedStatementsKeepOldResults) {
  const double center = BuoyancyCenterY;
  const double limit = SLRatioLimit;
  WaterlineY = 0.5;  // no plane of one inch or more
  ComputeHydrostatics();
  EXPECT_EQ(BuoyancyCenterY, center);
  EXPECT_NEAR(DisplacedVolume, 40 * 0.5 * 100, 1e-9);
  WaterlineY = -1;  // all above the water
  ComputeHydrostatics();
  EXPECT_EQ(DisplacedVolume, 0);
  EXPECT_NE(SLRatioLimit, limit);
  const double stale = SLRatioLimit;
  ComputeHydrostatics();
  EXPECT_EQ(SLRatioLimit, stale) << "0 to a power divides by zero";
  EXPECT_NEAR(BuoyancyCenterZ, 601.2 / 13, 1e-9);
}

TEST_F(Hydrostatics, TheWaterlineExactlyOnAChineCrossesInTheSectionsOnly) {
  SetBoxBarge(10, 10, 100);
  NumChines = 3;
  SetChine(3, {20, 20, 20, 20, 20}, {20, 20, 20, 20, 20}, {0, 25, 50, 75, 100});
  Form1.Refresh();
  Float(10);
  EXPECT_NEAR(DisplacedVolume, 20 * 10 * 100, 1e-9);
  // Stem and transom don't see a point at the water: to the keel's 500 comes only the triangle from
  // the stem's foot to the running point, which the sections left at the head of the transom.
  EXPECT_NEAR(LateralArea, 500 + 250, 1e-9);
  EXPECT_EQ(WaterlineLength, 100);
}

TEST_F(Hydrostatics, AKeelThatLeavesTheWaterEndsTheWaterline) {
  SetBoxBarge(10, 20, 100);
  SetChine(1, {10, 10, 10, 10, 10}, {10, 5, 0, 5, 10}, {0, 25, 50, 75, 100});
  Form1.Refresh();
  Float(4);
  EXPECT_NEAR(WaterlineForeZ, 29.5, 4.5);
  EXPECT_NEAR(WaterlineAftZ, 70.5, 4.5);
  EXPECT_NEAR(WaterlineLength, WaterlineAftZ - WaterlineForeZ, 1e-4);
}

TEST_F(Hydrostatics, ADrownedSheerLowersTheRangeWithinThePass) {
  SetBoxBarge(20, 20, 100);
  SetChine(2, {20, 20, 20, 20, 20}, {20, 14, 10, 14, 20}, {0, 25, 50, 75, 100});
  Form1.Refresh();
  int passes = 0;
  Form1.StatusBar1.Panels[1].Show = [&passes] { ++passes; };
  Float(15);
  EXPECT_NEAR(WaterlineY, 9.9, 1e-12);
  EXPECT_GT(passes, 1) << "inner passes ran to their end first";
  EXPECT_NEAR(DisplacedVolume, 40 * 9.9 * 100, 1e-6) << "results are those of the last waterline";
}

TEST_F(FloatingBox, RowsAndSummaryShowTheState) {
  const auto& rows = Form1.Combo1.Rows();
  ASSERT_EQ(rows.size(), 15U);
  EXPECT_EQ(rows[0], "Waterline heighth: 8.0 in.\"");
  EXPECT_EQ(rows[1], "Displacement: 1154 lbs");
  EXPECT_EQ(rows[2], "Displaced volume: 18.52 ft3");
  EXPECT_EQ(rows[7], "Lateral Area: 5.56 ft2\"");
  EXPECT_EQ(rows[8], "Length of Waterline: 100\"");
  EXPECT_EQ(rows[10], "Buttock angle: 0.0 deg.");
  EXPECT_EQ(rows[14], "D/L limited speed: " + FixedText(SLRatioLimit * std::sqrt(100.0 / 12), 2) + " kt.");
  EXPECT_EQ(*Form1.StatusBar1.Panels[1],
            "WL:8.0\"  Displ:1154 lbs @18.52 ft3  CB:46.2\"  LWL:100\"  D/L:890  HS:3.9 kt");
  EXPECT_EQ(*Form1.Combo1.Text, "Results");
  Form1.Combo1.SetListIndex(8);
  SetPrism(10, 20);
  Float(9);
  EXPECT_EQ(*Form1.Combo1.Text, Form1.Combo1.Rows()[8]) << "the chosen row stays in view";
  WaterlineLength = -12;
  ShowResults();
  EXPECT_EQ(Form1.Combo1.Rows().size(), 14U) << "a number without a value gives no row";
}

TEST_F(FloatingBox, WaterTogglesByTheClickedItemsOwnMark) {
  Form1.Seawater.Click();
  EXPECT_EQ(WaterDensity, 8.5556);
  EXPECT_EQ(DisplacementLbs, static_cast<float>(8.5556 * DisplacedVolume / 231));
  Form1.Seawater.Click();
  EXPECT_EQ(WaterDensity, 8.3305);
  EXPECT_TRUE(Form1.Freshwater.Checked && !Form1.Seawater.Checked);
  Form1.Freshwater.Click();
  EXPECT_TRUE(!Form1.Freshwater.Checked && Form1.Seawater.Checked);
}

TEST_F(Hydrostatics, TheSearchFindsTheBoxesWaterline) {
  SetPrism(20, 20);
  Enter(Form1.displacement, "1000");
  const double wanted = 1000 * 231 / 8.3305 / 4000;  // 6.93 inches
  EXPECT_NEAR(WaterlineY, wanted, 0.05);
  EXPECT_TRUE(TargetReached);
  EXPECT_TRUE(Form1.EnterWaterline.Checked && Form1.EnterHeel.Enabled && Form1.Plan.Checked);
  EXPECT_EQ(Form1.HScroll1.Min(), 0);
  Enter(Form1.displacement, "1E300");
  EXPECT_FALSE(TargetReached);
  EXPECT_NEAR(WaterlineY, 20, 1e-9) << "the last inch that was computed";
}

TEST_F(FloatingBox, SearchesEndWhateverIsEntered) {
  const auto search = [](const char* answer) {
    for (MenuItem* command : {&Form1.displacement, &Form1.EnterPitch, &Form1.EnterHeel}) {
      Enter(*command, answer);
    }
    EXPECT_TRUE(std::isfinite(WaterlineY)) << answer;
  };
  for (const char* answer : {"", "word", "nan", "-500", "1E-300", "1E400", "99999999999"}) {
    search(answer);
  }
  SetBoxBarge(0, 0, 0);
  Form1.Refresh();
  search("30");
}

TEST_F(FloatingBox, ACancelledTargetHidesTheResults) {
  Enter(Form1.displacement, "");
  EXPECT_FALSE(Form1.Combo1.Visible);
  EXPECT_EQ(WaterlineY, 0);
}

TEST_F(FloatingBox, PitchWarnsOnceAndKeepsTheWeightAfloat) {
  const double weight = DisplacementLbs;
  int warnings = 0;
  MsgBox = [&warnings](const std::string&, int style, const std::string& title) {
    EXPECT_EQ(style, 65);
    EXPECT_EQ(title, "Warning");
    ++warnings;
    return warnings == 1 ? Answer::Cancel : Answer::Ok;
  };
  Enter(Form1.EnterPitch, "4");
  EXPECT_EQ(PitchApplied, 0) << "cancelled by the warning";
  Form1.EnterPitch.Click();
  EXPECT_EQ(PitchApplied, 4);
  EXPECT_EQ(warnings, 1);
  EXPECT_NEAR(DisplacementLbs, weight, 30) << "a tenth of an inch either way";
  Enter(Form1.EnterPitch, "");
  EXPECT_EQ(PitchApplied, 0) << "an empty answer levels the hull";
  EXPECT_NEAR(DisplacementLbs, weight, 30);
}

/// The arm of a wall-sided hull: sin (GM + BM tan^2 / 2). The pass places the centers by its own
/// planes, and the search stops within 15 of 1154 pounds, so the arm may stray by some percent.
TEST_F(Hydrostatics, ABoxHeelsLikeAWallSidedHull) {
  SetKeeledBox();
  Float(8);
  for (const double degrees : {5.0, 10.0}) {
    Float(7);
    Float(8);
    HeelTo(PlainText(degrees));
    ASSERT_EQ(Heel.Outcome, HeelOutcome::Solved);
    const double angle = degrees * std::acos(-1) / 180;
    const double BM = 40.0 * 40 / (12 * 8);
    const double GM = 4 + BM - 10;
    const double arm = std::sin(angle) * (GM + BM * std::tan(angle) * std::tan(angle) / 2);
    EXPECT_NEAR(Heel.MomentArm, arm, 0.1 * arm + 0.1) << degrees;
    EXPECT_NEAR(Heel.TotalLbs, TargetDisplacement, 15);
    EXPECT_EQ(DisplacementLbs, static_cast<float>(TargetDisplacement));
    Form1.Refresh();
  }
}

TEST_F(Hydrostatics, BothSidesHeelAlike) {
  SetPrism(15, 20);
  Float(8);
  HeelTo("12");
  const HeelState right = Heel;
  Form1.Refresh();
  Float(7);
  Float(8);
  HeelTo("-12");
  EXPECT_EQ(Heel.Outcome, HeelOutcome::Solved);
  EXPECT_NEAR(Heel.MomentArm, -right.MomentArm, 1e-9);
}

TEST_F(FloatingBox, ASolvedHeelLeavesTheHullTurnedUntilTheNextRepaint) {
  HeelTo("10");
  EXPECT_NE(X(7, 1), 20);
  EXPECT_EQ(*Form1.StatusBar1.Panels[1],
            "Heeled WL at:10.0 degrees, displ:" + FixedText(Heel.TotalLbs, 0) + "lbs. Click \"TD\" logo.");
  EXPECT_EQ(*Form1.Combo1.Text, "Results, Heeled 10.0 degrees");
  ASSERT_EQ(Form1.Combo1.Rows().size(), 15U);
  EXPECT_EQ(Form1.Combo1.Rows()[0], "Heel angle: 10.0 degrees");
  EXPECT_EQ(Form1.Combo1.Rows()[13], "  Ballast: 0.0 lbs.\"");
  EXPECT_EQ(Form1.Combo1.Rows()[6], "Displaced volume: " + FixedText(Heel.TotalLbs / 62.4, 2) + " ft3");
  Form1.Refresh();
  EXPECT_EQ(X(7, 1), 20);
}

TEST_F(Hydrostatics, AHeelNeverCostsAHullEditedByHand) {
  SetPrism(20, 20);
  Form1.AutoSpline.Checked = false;
  HullPts(1, 5, 2) = 21;
  Form1.Refresh();
  const PointTable before = HullPts;
  const std::string saved = HullText();
  Float(8);
  HeelTo("10");
  EXPECT_NE(X(5, 2), 21);
  EXPECT_EQ(HullText(), saved) << "a save meanwhile keeps the upright hull";
  Form1.Refresh();
  EXPECT_EQ(X(5, 2), before(1, 5, 2));
  EXPECT_EQ(Y(9, 2), before(2, 9, 2));
}

TEST_F(Hydrostatics, AHeelThatCanNotFloatFails) {
  SetPrism(20, 20);
  Float(19);
  DisplacementLbs = 9e6F;
  HeelTo("30");
  EXPECT_EQ(Heel.Outcome, HeelOutcome::Failed);
  EXPECT_TRUE(Heel.BelowTargetSeen);
  EXPECT_GT(WaterlineY, 2000) << "a hundred times the height of the hull";
  EXPECT_EQ(Form1.StatusBar1.Panels[1]->substr(0, 21), "Sunk or failed at WL:");
  EXPECT_EQ(X(7, 1), 20) << "a failure repaints";
  DisplacementLbs = 100;
  HeelTo("0");
  EXPECT_EQ(Heel.Outcome, HeelOutcome::Failed) << "0 degrees changes nothing";
}

TEST_F(FloatingBox, AnAngleBeyondAllNumbersMovesNoCenter) {
  HeelTo("10");
  const double x = GravityCenterX;
  HeelTo("-1e308");  // the angle is a number; in radians, on the way, it is none
  EXPECT_EQ(GravityCenterX, x);
  EXPECT_NEAR(GravityCenterY, 10, 0.5) << "the center of the upright hull";
}

TEST_F(Hydrostatics, TheLatchFailsASearchThatIsHeavyAgain) {
  Float(14.5);  // the built-in hull: too light in the first turn, one step up and it is too heavy
  HeelTo("21");
  EXPECT_EQ(Heel.Outcome, HeelOutcome::Failed);
  EXPECT_TRUE(Heel.BelowTargetSeen);
  EXPECT_GT(Heel.TotalLbs, TargetDisplacement + 15);
  EXPECT_EQ(Heel.Turns, 2);
}

TEST_F(Hydrostatics, AWaterlineThatSinksToNothingFails) {
  Float(2);  // the built-in hull: its low side carries more than it weighs at any waterline
  HeelTo("20");
  EXPECT_EQ(Heel.Outcome, HeelOutcome::Failed);
  EXPECT_FALSE(Heel.BelowTargetSeen);
  EXPECT_LT(WaterlineY, 0.000001);
}

TEST_F(Hydrostatics, PitchAndTicksFindTheHullUprightAfterAHeel) {
  SetKeeledBox();
  Float(8);
  HeelTo("10");
  Form1.AutoSpline.Checked = false;
  Form1.Refresh();
  EXPECT_NEAR(OffX(3, 2), 20, 1e-9) << "the points read back are the upright ones";
  HeelTo("10");
  PitchAngle = 5;
  ApplyPitch();
  EXPECT_NEAR(Y(1, 1) - Y(13, 1), 100 * std::sin(5 * 3.1415 / 180), 1e-9);
  PitchAngle = 0;
  ApplyPitch();
  EXPECT_NEAR(Y(1, 1), 0, 1e-9);
}

TEST_F(Hydrostatics, ASearchStartsAtTheBottomWhateverTheRangeDid) {
  SetPrism(20, 20);
  Float(14);
  Enter(Form1.dummy19, "10");  // half as high: the bar is clamped when the command opens it
  Enter(Form1.displacement, "500");
  EXPECT_TRUE(TargetReached);
  EXPECT_NEAR(WaterlineY, 500 * 231 / 8.3305 / 4000, 0.05);
}

TEST_F(Hydrostatics, TheWaterlineIsDrawnOnAllViewsAfterTheRepaint) {
  SetPrism(20, 20);
  std::array<RecordingSurface, 3> views;
  for (RecordingSurface& view : views) {
    view.Scale(-5, 30, 95, -5);
  }
  Form1.Picture1[0] = &views[0];
  Form1.Picture1[1] = &views[1];
  Form1.Picture2 = &views[2];
  Form1.Refresh = [&] {
    RecomputeHull();
    for (RecordingSurface& view : views) {
      view.Cls();
    }
  };
  Float(8);
  EXPECT_EQ(views[0].calls, "cls\nline -5.0,8.0 100.0,8.0 c9\n");
  EXPECT_EQ(views[1].calls, views[0].calls);
  EXPECT_EQ(views[2].calls, "cls\nline -5.0,8.0 95.0,8.0 c9\n");
  views[2].Cls();
  ComputeHydrostatics();
  EXPECT_TRUE(views[2].calls.starts_with("cls\npoint 0.0,20.0 c-1\nto 8.4,20.0 c6\n"));
  views[2].Cls();
  Form1.Picture2.Refresh = nullptr;  // the plan under the contours
  Form1.Contours.Click();
  EXPECT_EQ(views[2].Count("point 0.0,20.0", " c9"), 9);
  EXPECT_EQ(views[2].Count("to ", ",20.0 c11"), 9 * 12);
}

TEST_F(Hydrostatics, EachViewDrawsTheHeeledHull) {
  RecordingSurface picture;
  Form1.Picture2 = &picture;
  SetKeeledBox();
  for (MenuItem* view : {&Form1.Plan, &Form1.Sections, &Form1.Profile}) {
    Form1.Plan.Checked = Form1.Sections.Checked = Form1.Profile.Checked = false;
    view->Checked = true;
    Float(7);
    Float(8);
    HeelTo("5");
    ASSERT_EQ(Heel.Outcome, HeelOutcome::Solved);
    // Both sides: three chines of twelve segments, thirteen stations of two; a point a node.
    EXPECT_EQ(picture.Count("line ", " c7"), 2 * (3 * 12 + 13 * 2));
    EXPECT_EQ(picture.Count("point ", " c12"), 2 * 3 * 13);
    const bool profile = view == &Form1.Profile;
    const bool sections = view == &Form1.Sections;
    EXPECT_EQ(picture.Count("line ", " c1"), profile ? 2 * 12 : 0) << "the sheer again";
    EXPECT_EQ(picture.Count("width ", "2"), profile ? 1 : 0);
    EXPECT_EQ(picture.Count("circle ", ""), profile ? 0 : (sections ? 3 : 2));
    EXPECT_EQ(picture.Count("circle ", " c5 arc"), sections ? 1 : 0);
    EXPECT_EQ(picture.Has("print cb c9") && picture.Has("print cg c5"), sections);
    EXPECT_EQ(picture.Has("print " + FixedText(Heel.RightingMoment, 0) + " ft-lbs c5"), sections);
    EXPECT_EQ(picture.Count("line ", " c9"), sections ? 4 : (profile ? 2 : 2 * 12 + 2));
    Form1.Refresh();
  }
}

TEST_F(Hydrostatics, ContoursOfferAWaterlineAtFortyPercent) {
  SetPrism(20, 20);
  Form1.Sections.Checked = true;
  Form1.Contours.Click();
  EXPECT_NEAR(WaterlineY, 8, 1e-12);
  EXPECT_TRUE(Form1.Plan.Checked && !Form1.Sections.Checked);
  Form1.EnterWaterline.Click();
  EXPECT_FALSE(Form1.EnterWaterline.Checked || Form1.HScroll1.Visible || Form1.EnterHeel.Enabled);
}

TEST_F(Hydrostatics, RescalingReachesTheEnteredSize) {
  Enter(Form1.dummy12, "-200");
  EXPECT_NEAR(HullMaxZ, 200, 1e-9);
  EXPECT_NEAR(OffX(2, 1), 10.25 * 200 / 140, 1e-12);
  EXPECT_EQ(*Form1.Text1[1].Text, "40");
  Enter(Form1.dummy88, "word");
  EXPECT_NEAR(HullMaxZ, 200, 1e-9);
  std::string offered;
  InputBox = [&offered](const std::string&, const std::string&, const std::string& text) {
    offered = text;
    return std::string("2");
  };
  Form1.AutoSpline.Checked = false;
  Form1.Refresh();
  const double before = OffX(2, 1);
  Form1.Refresh = nullptr;  // the next repaint would take the offsets from the hull points again
  Form1.dummy18.Click();
  EXPECT_EQ(offered, "0.000");
  EXPECT_NEAR(OffX(2, 1), 2 * before, 1e-12) << "no beam to divide by: the entry is the factor";
}

}  // namespace
