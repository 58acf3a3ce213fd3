#include "panels/flat_parts.h"

#include "controls/forms.h"
#include "hull/hull_model.h"
#include "support/program_test.h"

namespace {

using FlatParts = ProgramTest;

using Text = std::vector<std::string>;

/// The lines of a part between its head and its end.
std::vector<std::string> Body(const std::string& text) {
  const auto lines = Lines(text);
  EXPECT_EQ(lines[0], "start_plot");
  EXPECT_EQ(lines[1], "/* TARVE: 11-16-2026 Xscale: 500 Yscale: 500 */");
  EXPECT_EQ(lines.back(), "end_plot");
  return {lines.begin() + 2, lines.end() - 1};
}

/// Lines as one text, for short.
std::string InARow(const Text& lines) {
  std::string row;
  for (const std::string& line : lines) {
    row += (row.empty() ? "" : "; ") + line;
  }
  return row;
}

TEST_F(FlatParts, ABulkheadWorkedOutByHand) {
  NumChines = 3;
  SetChine(1, {0, 0, 0, 0, 0}, {0, 2, 0, 0, 0}, {0, 20, 40, 60, 80});
  SetChine(2, {1, 10, 1, 1, 1}, {0, 5, 0, 0, 0}, {0, 20, 40, 60, 80});
  SetChine(3, {1, 14.5, 1, 1, 1}, {0, 12, 0, 0, 0}, {0, 20, 40, 60, 80});
  WriteFlatParts();
  const std::string whole =
      "/* hand plot all points */; 0 penup; 0 1000 acut; 0 pendown; 5000 2500 acut; "
      "7250 6000 acut; 0 6000 acut; -7250 6000 acut; -5000 2500 acut; 0 1000 acut; "
      "0 1000 acut; 0 1000 acut; 0 penup";
  EXPECT_EQ(InARow(Body(Read("bhead1.uc"))), whole);

  Form3.Check6.Value = true;
  Form3.Check2.Value = true;  // the mean height is (2 + 5 + 12) / 9, 2.111 inches
  WriteFlatParts();
  const std::string half =
      "/* hand plot all points */; 0 penup; 0 1000 acut; 0 pendown; 5000 2500 acut; "
      "7250 6000 acut; 0 6000 acut; 0 1000 acut; 0 1000 acut; 0 penup; -375 180 acut; "
      "0 pendown; -375 1930 acut; 375 1930 acut; 375 180 acut; -375 180 acut; 0 penup";
  EXPECT_EQ(InARow(Body(Read("bhead1.uc"))), half);
}

TEST_F(FlatParts, CoordinatesAreFlooredTowardMinusInfinity) {
  NumChines = 2;
  SetChine(1, {1, 0.0004, 1, 1, 1}, {0, 0.001, 0, 0, 0}, {0, 20, 40, 60, 80});
  SetChine(2, {1, 1, 1, 1, 1}, {1, 1, 1, 1, 1}, {0, 20, 40, 60, 80});
  WriteFlatParts();
  const auto body = Body(Read("bhead1.uc"));
  EXPECT_EQ(body[2], "0 0 acut");
  EXPECT_EQ(body[7], "-1 0 acut");
}

/// Frames of a barge whose half-width grows by 1 inch in 10: at Z it is 2 + Z / 10.
TEST_F(FlatParts, FramesAreCutFromTheInterpolatedHull) {
  SetBoxBarge(2, 10, 80);
  SetChine(1, {2, 4, 6, 8, 10}, {0, 0, 0, 0, 0}, {0, 20, 40, 60, 80});
  SetChine(2, {2, 4, 6, 8, 10}, {10, 10, 10, 10, 10}, {0, 20, 40, 60, 80});
  Form1.Refresh();
  Form3.FrameText[0].Text = "30";
  Form3.FrameText[2].Text = "-500";  // the box tells the magnitude, the clamp reads the box
  Form3.FrameText[4].Text = "9999";
  WriteFlatParts();
  const std::string expected =
      "0 penup; /* hand plot all points */; 2500 0 acut; 0 pendown; 2500 5000 acut; "
      "0 5000 acut; -2500 5000 acut; -2500 0 acut; 0 0 acut; 2500 0 acut; 0 penup";
  EXPECT_EQ(InARow(Body(Read("frame1.uc"))), expected);
  EXPECT_FALSE(Exists("frame2.uc"));
  EXPECT_EQ(*Form3.FrameText[4].Text, "80");
  EXPECT_EQ(FrameInches(4), 80);
  EXPECT_EQ(FrameInches(2), 500);
  EXPECT_EQ(Body(Read("frame5.uc"))[2], "5000 0 acut");
  EXPECT_EQ(Body(Read("frame3.uc"))[2], "2500 0 acut") << "no interval: the point asked for before";
}

TEST_F(FlatParts, AFrameAtTheRakedStemKeepsThePointsBefore) {
  SetBoxBarge(5, 10, 80);
  OffZ(1, 0) = 6;  // the keel starts 6 inches aft
  Form1.Refresh();
  Form3.FrameText[0].Text = "1";
  WriteFlatParts();
  EXPECT_EQ(*Form3.FrameText[0].Text, "6");
  const auto body = Body(Read("frame1.uc"));
  EXPECT_EQ(body[2], "0 0 acut") << "nothing was found before";
  EXPECT_EQ(body[4], "2500 5000 acut");
  EXPECT_EQ(body[7], "-2500 5000 acut") << "the mirror of the keel repeats the sheer";
}

TEST_F(FlatParts, TransomAndStemAreDevelopedInTheirOwnPlane) {
  NumChines = 4;
  const std::vector<double> z = {0, 20, 40, 60, 80};
  SetChine(1, {1, 3, 3, 3, 0}, {10, 0, 0, 0, 0}, {9, 20, 40, 60, 80});
  SetChine(2, {1, 3, 3, 3, 12}, {14, 0, 0, 0, 4}, {6, 20, 40, 60, 83});  // up 4, aft 3: V by 5
  SetChine(3, {1, 3, 3, 3, 14}, {11, 0, 0, 0, 4}, {2, 20, 40, 60, 84});  // same height: V stays
  SetChine(4, {1, 3, 3, 3, 2}, {11, 0, 0, 0, 1}, {2, 20, 40, 60, 80});   // down 3, 4 back: V falls by 5
  Form3.Check7.Value = true;
  WriteFlatParts();
  const auto transom = Body(Read("transom.uc"));
  const std::string expected =
      "0 0 acut; 0 pendown; 6000 2500 acut; 7000 2500 acut; 1000 0 acut; 0 0 acut; "
      "-1000 0 acut; -7000 2500 acut; -6000 2500 acut; 0 0 acut; 0 0 acut; 0 0 acut; 0 penup";
  EXPECT_EQ(InARow(Text(transom.begin() + 2, transom.end())), expected);
  Form3.Check6.Value = true;  // half frames don't touch the stem
  WriteFlatParts();
  const auto stem = Body(Read("stem.uc"));
  const std::string up =
      "500 0 acut; 0 pendown; 500 2500 acut; 500 5000 acut; 500 5000 acut; -500 5000 acut; "
      "-500 5000 acut; -500 2500 acut; -500 0 acut; 500 0 acut; 0 penup";
  EXPECT_EQ(InARow(Text(stem.begin() + 2, stem.end())), up);
}

TEST_F(FlatParts, ATransomHasRoomForTenChines) {
  NumChines = 12;
  for (int c = 1; c <= 12; ++c) {
    const double n = c;
    SetChine(c, {n, n, n, n, n}, {n, n, n, n, n}, {0, 20, 40, 60, 80});
  }
  WriteFlatParts();
  const auto body = Body(Read("transom.uc"));
  EXPECT_EQ(body.size(), 2U + 1 + 1 + 9 + 10 + 1 + 1 + 1) << "no centre point at the top";
  EXPECT_EQ(body[12], "5000 4500 acut");
  EXPECT_EQ(body[13], "-5000 4500 acut");
}

TEST_F(FlatParts, TheSheetIsMarkedNotCut) {
  Write("temp.uc", "");
  WriteFlatParts();
  EXPECT_EQ(Body(Read("4x8.uc")), (Text{"1 penup", "0 0 acut", "1 pendown", "48000 0 acut",
                                        "48000 24000 acut", "0 24000 acut", "0 0 acut", "1 penup"}));
  EXPECT_FALSE(Exists("temp.uc"));
}

}  // namespace
