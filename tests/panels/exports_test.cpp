
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/dxf_export.h"
#include "panels/hand_plot.h"
#include "panels/hpgl_export.h"
#include "panels/hull_drawing.h"
#include "panels/pattern_file.h"
#include "support/program_test.h"

namespace {

using Exports = ProgramTest;
using Text = std::vector<std::string>;

Text Between(const Text& lines, std::size_t head, std::size_t tail) {
  return {lines.begin() + static_cast<long>(head), lines.end() - static_cast<long>(tail)};
}

Text DxfBody(const std::string& pattern, DxfPen& pen) {
  const Text lines = Lines(DxfOfPattern(pattern, pen));
  EXPECT_EQ(Text(lines.begin(), lines.begin() + 4), (Text{"  0", "SECTION", "  2", "ENTITIES"}));
  EXPECT_EQ(Text(lines.end() - 4, lines.end()), (Text{"  0", "ENDSEC", "  0", "EOF"}));
  return Between(lines, 4, 4);
}

TEST_F(Exports, DxfDrawsALineForEachMoveWithThePenDown) {
  DxfPen pen;
  const Text body = DxfBody(Joined({"start_plot", "12500 0 acut", "0 pendown", "12500 -500 acut", "1 penup",
                                    "0 0 acut", "pendown", "250 125 aline"}),
                            pen);
  EXPECT_EQ(body,
            (Text{"  0", "LINE", "  8", "0", " 10", " 25 ", " 20", " 0 ", " 11", " 25 ",  " 21", "-1 ",
                  "  0", "LINE", "  8", "0", " 10", " 0 ",  " 20", " 0 ", " 11", " 0.5 ", " 21", " 0.25 "}));
  EXPECT_TRUE(pen.down) << "carried over to the next file";
  EXPECT_EQ(DxfBody("500 0 acut\r\n", pen).size(), 12U);
}

TEST_F(Exports, DxfTurnsSplineRunsIntoPolylinesWhateverThePen) {
  DxfPen pen;
  const Text body = DxfBody(Joined({"1000 0 acut", "start_spline", "500 500 spline_pt", "1000 500 spline_pt",
                                    "end_spline", "0 pendown", "0 0 acut"}),
                            pen);
  EXPECT_EQ(Between(body, 0, 12),
            (Text{"  0", "POLYLINE", "  8", "0",   " 66", "     1", " 10", "0.0",   " 20", "0.0",
                  "  0", "VERTEX",   "  8", "0",   " 10", " 1 ",    " 20", " 1 ",   "  0", "VERTEX",
                  "  8", "0",        " 10", " 2 ", " 20", " 1 ",    "  0", "SEQEND"}));
  EXPECT_EQ(body[body.size() - 7], " 2 ") << "the next line starts where the run ended";
}

TEST_F(Exports, HpglChoosesPensAheadOfCoordinatesOnly) {
  const std::string pattern =
      Joined({"0 penup", "500 1000 acut", "0 pendown", "-25 60 acut", "1 penup", "1 pendown", "500 500 acut",
              "0 penup", "1 pendown", "1 1 aline", "pendown", "0 0 acut", "penup", "0 0 acut"});
  EXPECT_EQ(Lines(HpglOfPattern(pattern)), (Text{"SP 1;", "PU  1016,  2032;", "PD -51,  121;", "SP 1;",
                                                 "PD  1016,  1016;", "PD 0,  0;", "PU 0,  0;"}));
  EXPECT_EQ(HpglOfPattern("0 pendown\r\n"), "SP 1;\r\n");

  EXPECT_EQ(HpglOfPattern("6075000 0 acut\r\n"), "SP 1;\r\nPU  1.23444E+07,  0;\r\n");
}

TEST_F(Exports, EighthsAreNeitherReducedNorCarried) {
  const std::pair<const char*, const char*> cases[] = {
      {"12.37", "12-3/8"}, {"12.99", "12-8/8"}, {"-0.25", "-0-2/8"}, {"-3.50", "-3-4/8"},
      {"0.06", "0-0/8"},   {"5.00", "5-0/8"},   {"-0.00", "-0-0/8"}};
  for (const auto& [inches, eighths] : cases) {
    EXPECT_EQ(InEighths(inches), eighths);
  }
}

TEST_F(Exports, HandPlotTakesMarkedPointsOnly) {
  const std::string panel =
      Joined({"0 0 acut", "/* hand plot */", "0 pendown", "6185 -1750 acut", "1 1 acut"});
  EXPECT_EQ(HandPlotRows(panel),
            "12.37         -3.50         12-3/8        -3-4/8        314.2         -88.9\r\n");
  const std::string flat =
      Joined({"9 9 acut", "/* hand plot all points */", "0 0 acut", "0 0 acut", "5 5 aline"});
  EXPECT_EQ(Lines(HandPlotRows(flat)).size(), 2U);
}

TEST_F(Exports, HandPlotTableHasTitleHeadsAndBanners) {
  NumChines = 2;
  HullFileName = "a_rather_long_name.tvh";
  WriteHandPlot();
  const Text lines = Lines(Read("handplot.txt"));
  EXPECT_EQ(lines[0], "Hand plotting file for a_rather_long_name.tvh           12:34:56      11-16-2026");
  EXPECT_EQ(lines[1], "X in.         Y in.         X in-eights   Y in-eights   X mm          Y mm");
  EXPECT_EQ(lines[2], "transom.uc    __________    __________    __________    __________    __________");
  EXPECT_EQ(lines.size(), 2U + 5) << "transom, three bulkheads and one panel, all without a file";
}

TEST_F(Exports, FieldsAreTakenByPosition) {
  EXPECT_EQ(ReadMove("1000 -500 acut").y, -1);
  EXPECT_EQ(ReadMove("1000 500").y, 0) << "no second blank";
  EXPECT_EQ(ReadMove("acut").x, 0);
  EXPECT_EQ(SplitMove("1 2 spline_pt here").rest, " spline_pt here");
}

/// The hull drawing of a box: 6 polylines a chine or bulkhead kind and view.
TEST_F(Exports, TheHullDrawingHasThreeViews) {
  SetBoxBarge(20, 10, 80);
  Form1.Refresh();
  const Text lines = Lines(HullDxf());
  const auto count = [&lines](const char* what) { return std::count(lines.begin(), lines.end(), what); };
  EXPECT_EQ(count("POLYLINE"), 3 * (5 + 2));
  EXPECT_EQ(count("VERTEX"), 3 * (5 * 4 + 2 * 27));
  const Text head = {"  0", "POLYLINE", "  8", "0",    " 66", "     1", " 10", "0.0",
                     " 20", "0.0",      " 30", "0.0",  "  0", "VERTEX", "  8", "0",
                     " 10", "-20 ",     " 20", " 10 ", " 30", " 0 "};
  EXPECT_EQ(Text(lines.begin() + 4, lines.begin() + 26), head);
  // Profile and plan are moved by twice and three times the largest half-breadth.
  const std::size_t body_view = 4 + 5 * (12 + 4 * 10 + 2) + 2 * (12 + 27 * 10 + 2);
  EXPECT_EQ(lines[body_view + 17], " 40 ");
  const std::size_t profile = body_view + body_view - 4;
  EXPECT_EQ(lines[profile + 19], " 40 ");
}

TEST_F(Exports, TheHullDrawingIsNamedAfterTheFileNotTheFolder) {
  EXPECT_EQ(HullDrawingName("boat.tvh"), "boat.");
  EXPECT_EQ(HullDrawingName("my.boats/a.b.tvh"), "my.boats/a.");
  EXPECT_EQ(HullDrawingName("boat"), "boat.");
}

}  // namespace
