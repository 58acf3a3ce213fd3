#include "hull/chine_spline.h"

#include "base/number_text.h"
#include "controls/forms.h"
#include "hull/chine_count.h"
#include "hull/hull_model.h"
#include "support/program_test.h"

namespace {

using ChineSpline = ProgramTest;

TEST_F(ChineSpline, SamplesThirdsOfTheSpansAndATenth) {
  EXPECT_DOUBLE_EQ(HullPts(3, 2, 1), 10.3);
  EXPECT_DOUBLE_EQ(HullPts(3, 3, 1), 19.3);
  for (int k = 0; k < Bulkheads; ++k) {
    EXPECT_EQ(HullPts(3, 3 * k + 1, 1), OffZ(1, k));
    EXPECT_DOUBLE_EQ(HullPts(1, 3 * k + 1, 1), OffX(1, k));
  }
}

/// Values 0, 1, 0, 1, 0 over equal spans w = 12 give by hand, with S4 = S2 from the symmetry:
/// 4 w S2 + w S3 = -1 and 2 w S2 + 4 w S3 = 1, so S2 = -5 / 168.
TEST_F(ChineSpline, IsTheNaturalSplineThroughTheKnots) {
  SetChine(1, {1, 1, 1, 1, 1}, {0, 1, 0, 1, 0}, {0, 12, 24, 36, 48});
  SplineChineY(1);
  const double S2 = -5.0 / 168;
  const double w = 12;
  const double z = w / 3 + 0.1;
  const double by_hand = S2 / (6 * w) * z * z * z + (1 / w - S2 * w / 6) * z;
  EXPECT_NEAR(HullPts(2, 2, 1), by_hand, 1e-12);
}

TEST_F(ChineSpline, AStraightChineStaysStraight) {
  SetBoxBarge(20, 10, 80);
  SetChine(1, {4, 8, 12, 16, 20}, {0, 1, 2, 3, 4}, {0, 20, 40, 60, 80});
  RecomputeHull();
  for (int s = 1; s <= Stations; ++s) {
    EXPECT_NEAR(HullPts(1, s, 1), 4 + HullPts(3, s, 1) / 5, 1e-12);
    EXPECT_NEAR(HullPts(2, s, 1), HullPts(3, s, 1) / 20, 1e-12);
  }
}

/// Samples of the second span for its length: 3 from 0.6, 2 from 0.15, 1 from 0, none below 0.
TEST_F(ChineSpline, ShortSpansGiveFewerSamples) {
  const std::pair<double, int> cases[] = {{0.7, 13}, {0.5, 12}, {0.16, 12}, {0.1, 11}, {0.0, 11}, {-0.2, 10}};
  for (const auto& [span, last_station] : cases) {
    HullPts.Erase();
    SetChine(1, {1, 2, 3, 4, 5}, {0, 0, 0, 0, 0}, {0, 20, 20 + span, 60, 80});
    SplineChineY(1);
    EXPECT_EQ(HullPts(3, last_station, 1), 80) << span;
    for (int s = last_station + 1; s <= Stations; ++s) {
      EXPECT_EQ(HullPts(3, s, 1), 0) << span;
    }
  }
}

TEST_F(ChineSpline, OddSpansEnd) {
  SetChine(1, {1, 2, 3, 4, 5}, {0, 0, 0, 0, 0}, {0, 1e9, 1, 1e300, 1e300});
  SplineChineY(1);
  SplineChineX(1);
  SetChine(2, {1, 1, 1, 1, 1}, {1, 2, 3, 4, 5}, {0, 0, 0, 0, 0});
  SplineChineY(2);
  EXPECT_EQ(HullPts(2, 1, 2), 1) << "with equal Z every coefficient but d is skipped";
}

TEST_F(ChineSpline, TheTransomNeverCountsTowardTheBeam) {
  SetBoxBarge(10, 10, 80);
  SetChine(2, {2, 4, 6, 8, 30}, {10, 10, 10, 10, 10}, {0, 20, 40, 60, 80});
  RecomputeHull();
  EXPECT_EQ(HullMaxX, 30);
  EXPECT_LT(MaxHalfBeam, 30);
  EXPECT_EQ(*Form1.StatusBar1.Panels[2], "MBm:" + FixedText(2 * MaxHalfBeam, 2));
}

TEST_F(ChineSpline, OffsetsAreCleanedAtEveryRepaint) {
  OffX(2, 0) = -4;
  OffY(3, 2) = -1;
  OffX(2, 3) = 90;
  Form1.Refresh();
  EXPECT_EQ(OffX(2, 0), 0.01);
  EXPECT_EQ(OffY(3, 2), 0);
  EXPECT_EQ(HullMaxX, 90);
  EXPECT_EQ(ViewMargin, static_cast<float>(90.0 / 25));
}

TEST_F(ChineSpline, WithoutAutoSplineTheHullPointsRule) {
  Form1.AutoSpline.Checked = false;
  CurChine = 2;
  HullPts(2, 4, 3) = 19;
  HullPts(3, 7, 2) = 61;
  HullPts(3, 13, 1) = 150;
  Form1.Refresh();
  EXPECT_EQ(OffY(3, 1), 19);
  for (int c = 1; c <= NumChines; ++c) {
    EXPECT_EQ(OffZ(c, 2), 61) << "inner bulkheads follow the selected chine";
    EXPECT_EQ(HullPts(3, 7, c), 61);
  }
  EXPECT_EQ(OffZ(1, 4), 150);
  EXPECT_EQ(OffZ(2, 4), 140);
  EXPECT_EQ(*Form1.StatusBar1.Panels[2], "MBm:0.00");
  // Nothing selected, or a chine that only the hull before had: the inner Z stay.
  for (const int chine : {-1, NumChines + 2}) {
    CurChine = chine;
    HullPts(3, 7, 2) = 70;
    Form1.Refresh();
    EXPECT_EQ(OffZ(2, 2), 61);
    EXPECT_EQ(HullPts(3, 7, 2), 61);
  }
}

TEST_F(ChineSpline, PitchTurnsTheHullAndBack) {
  SetBoxBarge(20, 10, 80);
  Form1.Refresh();
  PitchAngle = 5;
  ApplyPitch();
  EXPECT_NEAR(HullPts(2, 13, 1), 0, 1e-12) << "the lowest point";
  EXPECT_NEAR(HullPts(3, 1, 1), 0, 1e-12) << "the foremost one";
  const double t = 5 * 3.1415 / 180;
  EXPECT_NEAR(OffZ(1, 4) - OffZ(1, 0), 80 * std::cos(t), 1e-9);
  EXPECT_EQ(PitchApplied, 5);
  PitchAngle = 0;
  ApplyPitch();
  EXPECT_EQ(PitchApplied, 0);
  EXPECT_NEAR(OffZ(1, 4) - OffZ(1, 0), 80, 1e-9);
  EXPECT_NEAR(OffY(2, 2) - OffY(1, 2), 10, 1e-9);
}

TEST_F(ChineSpline, APitchThatCanNotBeWorkedOutChangesNothing) {
  OffZ(1, 4) = 1.5e308;
  OffY(1, 4) = 1.5e308;
  PitchAngle = -45;
  ApplyPitch();
  EXPECT_EQ(OffZ(1, 3), 96);
  EXPECT_EQ(PitchApplied, 0);
}

TEST_F(ChineSpline, RaisingTheCountBringsOrExtrapolatesChines) {
  Form1.Text3.Text = "6";
  EXPECT_EQ(OffX(6, 1), 27) << "the built-in chine, not an extrapolated one";
  Form1.Text3.Text = "7";
  EXPECT_EQ(OffX(7, 1), 29);
  OffX(7, 1) = 33;
  Form1.VScroll1.SetValue(5);
  EXPECT_EQ(NumChines, 5);
  EXPECT_EQ(*Form1.Text3.Text, "5");
  Form1.Text3.Text = "7";
  EXPECT_EQ(OffX(7, 1), 33) << "kept while it was out of use";
  Form1.Text3.Text = "1";
  EXPECT_EQ(*Form1.Text3.Text, "2");
  Form1.Text3.Text = "45";
  EXPECT_EQ(*Form1.Text3.Text, "30");
}

TEST_F(ChineSpline, ScrollBarsClampAndRefuse) {
  ScrollBar bar(1, 500, 1);
  int changes = 0;
  bar.Change = [&changes] { ++changes; };
  bar.SetValue(501);
  bar.SetValue(1);
  EXPECT_EQ(changes, 0);
  bar.SetValue(300);
  bar.SetMin(400);
  EXPECT_EQ(bar.Value(), 300) << "the minimum never moves the value";
  bar.SetMax(200);
  EXPECT_EQ(bar.Value(), 300) << "between reversed ends";
  bar.SetMin(10);
  bar.SetMax(5);
  EXPECT_EQ(bar.Value(), 10);
  EXPECT_EQ(changes, 2);
}

}  // namespace
