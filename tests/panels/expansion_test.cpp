#include "panels/expansion.h"

#include <cmath>

#include "base/files.h"
#include "base/number_text.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/edge_spline.h"
#include "panels/lettering.h"
#include "panels/leveling.h"
#include "panels/triangulation.h"
#include "support/program_test.h"
#include "support/recording_surface.h"

namespace {

using Expansion = ProgramTest;

/// A panel of rectangles, 20 long and 10 wide each.
TriangleEdges Rectangles(std::size_t count) {
  TriangleEdges edges;
  edges.divisor = 1;
  for (std::size_t i = 0; i < 2 * count; ++i) {
    edges.cross[i] = i % 2 == 0 ? 10 : std::sqrt(500.0);
    (i % 2 == 0 ? edges.lower : edges.upper)[i] = 20;
  }
  edges.cross[2 * count] = 10;
  return edges;
}

void ExpectPoint(const PlotPoint& point, double x, double y) {
  EXPECT_NEAR(point.x, x, 1e-13);
  EXPECT_NEAR(point.y, y, 1e-13);
}

TEST_F(Expansion, ARectangleIsBentByTheCoarsePi) {
  const FlatPanel panel = Unfold(Rectangles(1));
  EXPECT_EQ(panel.end, 2U);
  ExpectPoint(panel.D[0], 19.99999997853828, -0.0009265358976);
  ExpectPoint(panel.C[1], 20.00037060319882, 9.999999993132503);
}

TEST_F(Expansion, SidesKeepTheirLengthsAlongTheChain) {
  const FlatPanel panel = Unfold(Rectangles(12));
  ASSERT_EQ(panel.end, 24U);
  for (std::size_t i = 1; i < panel.end; ++i) {
    EXPECT_NEAR(std::hypot(panel.A[i].x - panel.D[i - 1].x, panel.A[i].y - panel.D[i - 1].y), 0, 1e-12);
    EXPECT_NEAR(std::hypot(panel.B[i].x - panel.C[i - 1].x, panel.B[i].y - panel.C[i - 1].y), 0, 1e-3)
        << "the coarse pi leaves no more than this";
  }

  TriangleEdges edges = Rectangles(12);
  edges.lower[10] = 0;
  EXPECT_EQ(Unfold(edges).end, 10U);
}

TEST_F(Expansion, FailedStatementsKeepTheAngleOfTheTriangleBefore) {
  // The second triangle doesn't close: its inradius would be the root of a negative number, so the
  // one before stays and its angle is worked out from that.
  TriangleEdges open = Rectangles(1);
  open.cross[2] = 50;
  const double a = std::sqrt(500.0);
  const double first_s = 0.5 * (10 + a + 20);
  const double first_r = std::sqrt((first_s - 10) * (first_s - a) * (first_s - 20) / first_s);
  const double s = 0.5 * (a + 50 + 20);
  const double T = 2 * std::atan(first_r / (s - 50));
  const FlatPanel panel = Unfold(open);
  const double H = 3.1415 / 2;
  const double along = std::hypot(panel.C[1].x - panel.B[1].x, panel.C[1].y - panel.B[1].y);
  EXPECT_NEAR(along, 20, 1e-12);
  const PlotPoint local{20 * std::cos(T - H), a + 20 * std::sin(T - H)};
  EXPECT_NEAR(std::hypot(panel.C[1].x - panel.A[1].x, panel.C[1].y - panel.A[1].y),
              std::hypot(local.x, local.y), 1e-9);

  // A right side that lies level has no slope: the turn is the angle that the last placement left,
  // 60 degrees here, and nothing is taken off. The first triangle doesn't close, so its angle is 0.
  TriangleEdges level = Rectangles(1);
  level.cross = {20 * std::sin(H), 100, 100};
  level.upper[1] = 100;
  const FlatPanel flat = Unfold(level);
  EXPECT_EQ(flat.C[0].y, flat.D[0].y);
  EXPECT_NEAR(flat.B[1].x - flat.D[0].x, -100 * std::sqrt(0.75), 1e-9);
  EXPECT_NEAR(flat.B[1].y - flat.D[0].y, 50, 1e-9);
}

TEST_F(Expansion, TriangleFilesHoldTheTrueLengths) {
  SetBoxBarge(20, 10, 80);
  Form1.Refresh();
  const TriangleEdges side = OpenPanel(1);
  const double first = HullPts(3, 2, 1);
  EXPECT_DOUBLE_EQ(side.lower[0], first);
  EXPECT_DOUBLE_EQ(side.cross[0], 10);
  EXPECT_DOUBLE_EQ(side.cross[1], std::hypot(10, first));
  const TriangleEdges bottom = MirroredPanel(1);
  EXPECT_DOUBLE_EQ(bottom.cross[24], 40);
  EXPECT_DOUBLE_EQ(bottom.cross[1], std::hypot(40, first));

  const auto lines = Lines(TriangleText(side));
  ASSERT_EQ(lines.size(), 77U);
  EXPECT_EQ(lines[0], " 1");
  EXPECT_EQ(lines[26], " 10 ");
  EXPECT_EQ(lines[51], " 0");
  EXPECT_DOUBLE_EQ(ReadTriangles(TriangleText(side)).upper[23], side.upper[23]);

  OffY(2, 0) = 0;
  Form1.Refresh();
  EXPECT_EQ(Lines(TriangleText(OpenPanel(1)))[26], " 0 ");
}

TEST_F(Expansion, APatternHasItsLinesInOrder) {
  const auto lines = Lines(PanelPattern(Unfold(Rectangles(1))));
  const std::vector<std::string> start = {"start_plot",      "/* Hull Xscale: 500 Yscale: 500 11-16-2026 */",
                                          "0 0 acut",        "1 pendown",
                                          "0 5000 acut",     "1 penup",
                                          "0 0 acut",        "0 pendown",
                                          "/* hand plot */", "0 5000 acut",
                                          "0 5000 acut"};
  ASSERT_GT(lines.size(), start.size());
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 11), start);
  EXPECT_EQ(lines.back(), "1 penup");
  EXPECT_EQ(lines.size(), 8U + 2 * (2 + 11 + 2) + 1);
}

TEST_F(Expansion, AMissingTriangleFileLeavesAnEmptyPattern) {
  ExpandOnePanel("chine9.tri");
  EXPECT_EQ(Lines(Read("chine9.uc")).size(), 2U + 2 + 4 + 1);
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "Expanding...chine9.triangulation");
}

TEST_F(Expansion, KnotsWithinATenthOfAnInchAreDropped) {
  EdgeKnots knots;
  knots.AddUnlessSame({0.04, -0.0});
  EXPECT_EQ(knots.count, 0) << "the same as knot 0";
  knots.AddUnlessSame({-0.04, 0.0});
  EXPECT_EQ(knots.count, 1) << "-0.0 and 0.0 are different texts";
  knots.AddUnlessSame({-0.049, 0.06});
  EXPECT_EQ(knots.count, 2);
}

TEST_F(Expansion, AnEdgeSplinePassesItsKnotsAndKeepsStraightLines) {
  EdgeKnots knots;
  for (const double x : {10.0, 20.0, 30.0, 40.0}) {
    knots.AddUnlessSame({x, 2 * x});
  }
  std::string out;
  PutSplineEdge(out, knots);
  const auto lines = Lines(out);
  ASSERT_EQ(lines.size(), 2U + 3 * 13);
  EXPECT_EQ(lines[1], "5000 10000 acut");
  EXPECT_EQ(lines[2], "5000 10000 acut");
  EXPECT_EQ(lines[12], "10000 20000 acut");
  for (std::size_t i = 2; i < 13; ++i) {  // u runs by tenths of the interval
    EXPECT_NEAR(ReadMove(lines[i]).x, 10 + static_cast<double>(i - 2), 0.0021);
  }
}

TEST_F(Expansion, LevelingLaysThePanelAlongX) {
  const std::string tilted = Joined({"start_plot", "/* hand plot */", "0 0 acut", "1 pendown", "300 400 acut",
                                     "600 800 aline", "900 1200 spline_pt"});
  EXPECT_NEAR(FittedSlope(tilted), 4.0 / 3, 1e-12);
  EXPECT_EQ(Lines(LeveledPattern(tilted, 4.0 / 3)),
            (std::vector<std::string>{"start_plot", "/* hand plot */", "0 0 acut", "1 pendown", "500 0 acut",
                                      "1000 0 aline", "1500 0 spline_pt"}));
  EXPECT_TRUE(std::isnan(FittedSlope(Joined({"5 1 acut", "5 9 acut"}))));
  EXPECT_EQ(LeveledPattern("-1 0 acut\r\n", 1e-9), "-1 0 acut\r\n");

  NumChines = 4;
  Write("chine1.uc", Joined({"0 0 acut", "500 500 acut"}));
  Write("chine2.uc", Joined({"500 0 acut", "500 0 acut"}));
  Write("chine3.uc", "");
  LevelPatterns();
  EXPECT_EQ(Read("chine2.uc"), "354 -354 acut\r\n354 -354 acut\r\n");
  EXPECT_EQ(Read("chine1.uc"), "0 0 acut\r\n707 0 acut\r\n");
  EXPECT_EQ(Read("temp"), "");
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "Done...");
}

TEST_F(Expansion, LetteringGoesByTheStrokeFont) {
  Write("pedit.fnt", "\"A\",2,0,0,8,8\r\n\"b\"\n1\n4\n4\n\"A\",2,8,0,0,4\r\nQ,99,1,1");
  std::string out;
  PlotText(out, "ba", 0.5, 0, 1, 2);
  EXPECT_EQ(Lines(out),
            (std::vector<std::string>{"1 penup", "625 1125 acut", "1 pendown", "1 penup", "1 penup",
                                      "750 1000 acut", "1 pendown", "1000 1250 acut", "1 penup", "1 penup",
                                      "1000 1000 acut", "1 pendown", "750 1125 acut", "1 penup"}));
  SetDataFolder(folder / "nowhere");
  DeleteFile("pedit.fnt");
  PlotText(out, "x", 0.5, 0, 0, 0);
  EXPECT_EQ(*Form1.StatusBar1.Panels[1], "Missing pedit.fnt, can't output characters");
}

TEST_F(Expansion, ThePreviewFramesThePanel) {
  RecordingSurface surface;
  Form1.Picture2 = &surface;
  Write("chine1.tri", TriangleText(Rectangles(12)));
  ExpandOnePanel("chine1.tri");
  const FlatPanel panel = Unfold(Rectangles(12));
  EXPECT_EQ(surface.Count("line ", " c2"), 24 * 4);
  EXPECT_TRUE(surface.calls.starts_with("cls\nscale " + FixedText(panel.min_x - 10, 1) + "," +
                                        FixedText((panel.max_x - panel.min_x) * 0.5 + 10, 1) + " "));
}

}  // namespace
