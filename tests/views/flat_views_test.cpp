#include "views/flat_views.h"

#include "hydro/hydrostatics.h"
#include "views/view.h"
#include "views/view_test.h"
#include "views/waterline_marks.h"

namespace {

class FlatViewsTest : public ViewTest {
 protected:
  void Show(View view) {
    CheckView(view);
    Form1.Picture2.Refresh();
  }
};

TEST_F(FlatViewsTest, SampleHullsInAllViews) {
  const std::tuple<const char*, View, const char*> rows[] = {
      {"pram.tvh", View::Sections, "line 10.0,8.3 14.0,11.5 c1"},
      {"pram.tvh", View::Profile, "line 5.5,8.3 4.0,11.5 c1"},
      {"pram.tvh", View::Plan, "line 5.5,10.0 4.0,14.0 c1"},
      {"dory.tvh", View::Sections, "line 0.6,4.5 0.6,12.0 c1"},
      {"dory.tvh", View::Profile, "line 25.0,4.5 17.7,12.0 c1"},
      {"dory.tvh", View::Plan, "line 25.0,0.6 17.7,0.6 c1"}};
  for (const auto& [hull, view, stem] : rows) {
    OpenSample(hull);
    Show(view);
    const bool sections = view == View::Sections;
    const int fixed_line = view == View::Profile ? 0 : 1;
    const int n = NumChines;
    for (const RecordingSurface* surface : {&thumbnails[static_cast<std::size_t>(view)], &picture}) {
      EXPECT_EQ(surface->Count("line ", " c7"), 12 * n + fixed_line);
      EXPECT_EQ(surface->Count("line ", " c1"), 5 * (n - 1));
      EXPECT_TRUE(surface->Has(stem)) << surface->calls;
      EXPECT_EQ(surface->Has("line 0.0,0.0 0.0,200.0 c7"), sections);
      EXPECT_EQ(surface->Has("line 0.0,0.0 300.0,0.0 c7"), view == View::Plan);
    }
    EXPECT_EQ(thumbnails[static_cast<std::size_t>(view)].Count("point", ""), 0);
    EXPECT_EQ(picture.Count("point ", " c12"), 12 * n + (sections ? 5 : 0));
    EXPECT_EQ(picture.Count("print", ""), sections ? 5 : 0);
    EXPECT_EQ(picture.Count("line ", " c12"), n - 1) << "the current bulkhead";
    EXPECT_EQ(picture.Count("box ", " c8"), n);
    EXPECT_EQ(picture.Count("box ", " c12"), 1);
  }
  OpenSample("pram.tvh");
  Show(View::Sections);
  EXPECT_TRUE(picture.Has("point 16.5,20.3 c12\nprint  0  c-1\nline 13.0,3.7 18.0,7.5 c1"));
}

TEST_F(FlatViewsTest, TheOrderOfTheCallsOfABox) {
  ShowBarge();
  CurChine = 2;
  CurStation = 3;
  picture.decimals = 2;
  Show(View::Profile);
  const auto calls = Lines(picture.calls);
  // cls, scale, 24 segments with their points, 5 bulkheads, the highlight.
  ASSERT_EQ(calls.size(), 2U + 48 + 5 + 4);
  EXPECT_EQ(calls[2], "line 0.00,0.00 8.43,0.00 c7");
  EXPECT_EQ(calls[48], "line 91.87,20.00 100.00,20.00 c7");
  EXPECT_EQ(calls[53], "line 75.00,0.00 75.00,20.00 c1");
  EXPECT_EQ(calls[55], "line 75.00,0.00 75.00,20.00 c12");
  EXPECT_EQ(calls[56], "box 75.25,0.25 74.75,-0.25 c8");
  EXPECT_EQ(calls[58], "box 75.25,20.25 74.75,19.75 c12");
}

TEST_F(FlatViewsTest, HullPointsAsNodes) {
  ShowBarge();
  Form1.AutoSpline.Checked = false;
  picture.decimals = 2;
  CurChine = 2;
  CurStation = 4;  // station 4 is at 25, bulkhead 4 at 100
  Show(View::Plan);
  EXPECT_EQ(picture.Count("line ", " c12"), 0);
  EXPECT_EQ(picture.Count("box ", ""), 2);
  EXPECT_TRUE(picture.Has("box 25.25,25.25 24.75,24.75 c8\nbox 100.25,25.25 99.75,24.75 c12"));
  CurStation = 7;
  Show(View::Plan);
  EXPECT_EQ(picture.Count("box ", ""), 1);
  EXPECT_TRUE(picture.Has("box 50.25,25.25 49.75,24.75 c8"));
  CurChine = CurStation = -1;
  for (const bool spline : {true, false}) {
    Form1.AutoSpline.Checked = spline;
    Show(View::Plan);
    EXPECT_EQ(picture.Count("box ", "") + picture.Count("line ", " c12"), 0);
    EXPECT_EQ(picture.Count("line ", " c7"), 25);
  }
}

TEST_F(FlatViewsTest, ResultsOfTheWaterline) {
  ShowBarge(35);
  BuoyancyCenterZ = 48;
  BuoyancyCenterY = 6;
  LateralCenterZ = 52;
  LateralCenterY = 5;
  WaterlineForeZ = 0;
  WaterlineAftZ = 100;
  Show(View::Profile);
  EXPECT_EQ(picture.Count("circle", ""), 0) << "no waterline";
  WaterlineY = 10;
  picture.decimals = 2;
  HullMaxZ = 75;  // the radius is 1
  Show(View::Profile);
  EXPECT_TRUE(
      picture.calls.ends_with("circle 48.00,6.00 r1.00 c9\n"
                              "line 48.00,7.00 48.00,5.00 c9\n"
                              "line 47.00,6.00 49.00,6.00 c9\n"
                              "point 48.00,6.00 c-1\n"
                              "print cb c-1\n"
                              "circle 52.00,5.00 r1.00 c13\n"
                              "line 52.00,6.00 52.00,4.00 c13\n"
                              "line 51.00,5.00 53.00,5.00 c13\n"
                              "point 52.00,5.00 c-1\n"
                              "print cla c-1\n"
                              "line -1.00,10.00 77.00,10.00 c9\n"
                              "width 2\n"
                              "line 0.00,10.00 100.00,10.00 c9\n"
                              "width 1\n"))
      << picture.calls;
  Show(View::Sections);
  EXPECT_TRUE(
      picture.Has("line 0.00,0.00 0.00,200.00 c7\n"
                  "line -1.00,10.00 73.00,10.00 c9\n"
                  "circle 0.00,6.00 r1.00 c9"))
      << picture.calls;
  Show(View::Plan);
  EXPECT_TRUE(
      picture.Has("line 0.00,0.00 300.00,0.00 c7\n"
                  "circle 48.00,0.00 r1.00 c9\n"
                  "line 48.00,1.00 48.00,-1.00 c9\n"
                  "line 47.00,0.00 49.00,0.00 c9\n"
                  "point 0.00,25.00 c9\n"
                  "to 8.43,25.00 c9"))
      << picture.calls;
}

/// A box with its sheer 20 up, under water as a whole where a test lowers the sheer.
class Contour : public ViewTest {
 protected:
  std::string Draw(double waterline) {
    WaterlineY = waterline;
    journal.clear();
    WaterplaneContour();
    return journal;
  }
  int Segments(double waterline) {
    const auto lines = Lines(Draw(waterline));
    return static_cast<int>(lines.size()) / 2 - 1;
  }
};

TEST_F(Contour, GoesToBothSurfacesThumbnailFirst) {
  ShowBarge();
  EXPECT_TRUE(
      Draw(10).starts_with("plan point 0.0,25.0 c9\nmain point 0.0,25.0 c9\n"
                           "plan to 8.4,25.0 c9\nmain to 8.4,25.0 c9\n"));
  EXPECT_EQ(Segments(10), 12);
  EXPECT_EQ(Segments(20), 12) << "a sheer at the waterline is cut";
  EXPECT_EQ(Draw(20.5), "");
}

TEST_F(Contour, BridgesStationsUnderWater) {
  ShowBarge();
  HullPts(2, 5, 2) = 8;
  EXPECT_EQ(Segments(10), 11);
  EXPECT_EQ(journal.find("to 33.4"), std::string::npos);
  for (int i = 2; i <= Stations; ++i) {
    HullPts(2, i, 2) = 8;
  }
  EXPECT_EQ(Draw(10), "plan point 0.0,25.0 c9\nmain point 0.0,25.0 c9\n");
}

TEST_F(Contour, CutsEachKindOfSegment) {
  ShowBarge();
  HullPts(1, 1, 2) = 35;  // flared, and raked by 4
  HullPts(3, 1, 2) = 4;
  HullPts(3, 7, 2) = 54;   // raked alone, from 50
  HullPts(2, 10, 1) = 20;  // level at the sheer: nothing to divide by
  HullPts(1, 10, 2) = 35;
  const std::string calls = Draw(5);
  EXPECT_TRUE(calls.starts_with("plan point 1.0,27.5 c9\n"));
  EXPECT_NE(calls.find("plan to 51.0,25.0 c9\n"), std::string::npos);
  EXPECT_NE(calls.find("plan to 75.0,25.0 c9\n"), std::string::npos);
}

TEST_F(Contour, AsksTheChinePastTheLast) {
  SetBoxBarge(25, 20, 100);
  NumChines = 3;
  SetChine(3, {45, 45, 45, 45, 45}, {40, 40, 40, 40, 40}, {0, 25, 50, 75, 100});
  Form1.Refresh();
  NumChines = 2;
  EXPECT_TRUE(Draw(30).starts_with("plan point 0.0,35.0 c9\n"));
}

}  // namespace
