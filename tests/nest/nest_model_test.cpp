
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "support/nest_test.h"

namespace {

using NestModel = NestTest;
using Text = std::vector<std::string>;

void ExpectPoint(const NestInstance& instance, int p, int k, double x, double y) {
  EXPECT_DOUBLE_EQ(instance.x(p, k), x) << p << ", " << k;
  EXPECT_DOUBLE_EQ(instance.y(p, k), y) << p << ", " << k;
}

TEST_F(NestModel, PartsAreCenteredAndStackedInTheFirstCorner) {
  OpenTwoParts();
  EXPECT_EQ(*Form2.Caption, "for boat.tvh        12:00:00") << "eight characters before the dot";
  EXPECT_TRUE(Form2.Visible);
  EXPECT_EQ(Form2.List1.Rows(), (Text{"board.uc", "sail.uc"}));
  EXPECT_EQ(NestPointCount(1), 4);
  for (const NestInstance& instance : NestInstances) {
    ExpectPoint(instance, 1, 1, -5, -2);
    ExpectPoint(instance, 1, 3, 5, 2);
    ExpectPoint(instance, 2, 3, -3, 3);
  }
  EXPECT_EQ(NestPosX(1), 5);
  EXPECT_EQ(NestWidth(2), 6);
  EXPECT_EQ(NestCopyPosX(1), 0);
  EXPECT_EQ(HullMaxX, 6) << "borrowed until the next repaint";
  Form1.Refresh();
  EXPECT_EQ(HullMaxX, 37);
}

TEST_F(NestModel, ThePartAtTheEndOfTheFileStaysOpen) {
  Open({"one.uc", "2.00          4.00"});
  ExpectPoint(NestInstances[0], 1, 1, 2, 4);
  EXPECT_EQ(NestWidth(1), 0);
  EXPECT_EQ(NestPosX(1), 0);
}

TEST_F(NestModel, AnEmptyLineEndsTheReadingAndNamesEndAtABlank) {
  Open({"skipped", " UC  upper", "1.0 2.0", "keel.uc", "1.0 2.0", "", "late.uc", "1.00 1.00"});
  EXPECT_EQ(Form2.List1.Rows(), (Text{"", "keel.uc"}));
}

TEST_F(NestModel, ALineTellsAsManyCharactersOfYAsXHas) {
  Open({"a.uc", "1.5      -12.37", "12.375        7.25  8", "noblank", " 4.00", "1.00", "5.00 6.00"});
  const NestInstance& part = NestInstances[0];
  ExpectPoint(part, 1, 1, 1.5, -12);
  ExpectPoint(part, 1, 2, 12.375, 7.25);
  ExpectPoint(part, 1, 3, 12.375, 7.25);
  ExpectPoint(part, 1, 5, 0, 0);
  ExpectPoint(part, 1, 6, 5, 6);
}

TEST_F(NestModel, WhatTheTablesCannotHoldIsReadPast) {
  Text lines;
  for (int p = 1; p <= 31; ++p) {
    lines.push_back("part" + std::to_string(p) + ".uc ____");
    for (int k = 1; k <= (p == 1 ? 52 : 1); ++k) {
      lines.push_back(std::to_string(1000 + k) + " 0000");
    }
  }
  lines.emplace_back();
  Open(lines);
  EXPECT_EQ(NestPartCount, 30);
  EXPECT_EQ(NestPointCount(1), 52);
  EXPECT_EQ(NestWidth(1), 51) << "the points beyond 50 widen the extents";
  ExpectPoint(NestInstances[1], 1, 50, 23.5, 0);
  EXPECT_EQ(NestPosX(30), 0) << "one point has no width";
  Click(0);
  EXPECT_EQ(surface.Count("line", " c0"), 50) << "closed from the last point held";
}

TEST_F(NestModel, FilesWithoutPartsGiveAnEmptyList) {
  Form1.dummy15.Click();
  EXPECT_EQ(*Form2.Caption, "No handplot.txt");
  for (const char* text : {"", "duck.uc", "no dot here\r\nX in.\r\n1 1\r\n", "\r\n\r\n\xff\xfe"}) {
    Form2.Unload();
    Write("handplot.txt", text);
    Form1.dummy15.Click();
    EXPECT_EQ(*Form2.Caption, "Pattern Nesting") << text;
    EXPECT_EQ(Form2.List1.Rows().size(), 0U) << text;
  }
}

TEST_F(NestModel, TheWindowKeepsItsPartsUntilItIsUnloaded) {
  OpenTwoParts();
  Click(0);
  NestPosX(1) = 50;
  Form2.Text2.Text = std::string("120");
  Form2.Visible = false;
  Form1.dummy15.Click();
  EXPECT_TRUE(Form2.Visible);
  EXPECT_EQ(NestPosX(1), 50) << "shown again, not loaded again";
  EXPECT_EQ(SheetRowLength, 360);

  Form3.Command1.Click();  // new patterns, so that the old parts are worth nothing
  EXPECT_FALSE(Form2.Visible);
  EXPECT_EQ(NestPartCount, 0);
  Form1.dummy15.Click();
  EXPECT_EQ(Form2.List1.Rows().front(), "transom.uc");
  EXPECT_EQ(SheetRowLength, 288);
}

TEST_F(NestModel, TheMarkGoesWithTheHull) {
  const auto mark_in_file = [] {
    const Text lines = Lines(HullText());
    return lines[lines.size() - 5];
  };
  Form1.dummy15.Click();
  EXPECT_EQ(NestMark, "") << "opening the window changes nothing";
  Form2.Check1.Value = true;
  EXPECT_EQ(mark_in_file(), " 1 ");
  Form2.Unload();
  EXPECT_EQ(NestMark, " 1 ");
  Form1.dummy15.Click();
  EXPECT_TRUE(Form2.Check1.Value);

  const std::pair<const char*, bool> texts[] = {{"0", false}, {"1", true}, {"-1", true}, {"word", false}};
  for (const auto& [text, ticked] : texts) {
    NestMark = text;
    Form1.dummy15.Click();
    EXPECT_EQ(*Form2.Check1.Value, ticked) << text;
    EXPECT_EQ(mark_in_file(), text);
  }
}

}  // namespace
