#include "base/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "base/print_zones.h"
#include "base/skipped_statement.h"
#include "base/table.h"
#include "base/text_lines.h"

namespace {

TEST(NumberText, LeadingNumericPart) {
  const std::pair<const char*, double> cases[] = {
      {"", 0},           {"word", 0},       {"-", 0},           {".", 0},          {"  12.5 in", 12.5},
      {"-3.", -3},       {"+.5", 0.5},      {"1E2", 100},       {"1d-2", 0.01},    {"2E", 2},
      {"2E+", 2},        {"5-4", 5},        {"&H10", 0},        {"0x10", 0},       {"1 2", 1},
      {"140''", 140},    {"nan", 0},        {"inf", 0},         {"1,5", 1},        {"1E-400", 0},
      {"0.0E999999", 0}, {"-1E-999999", 0}, {"000001.50", 1.5}, {"1e+05x", 100000}};
  for (const auto& [text, number] : cases) {
    EXPECT_EQ(NumberOf(text), number) << text;
  }

  EXPECT_TRUE(std::isnan(NumberOf("1E309")));
  EXPECT_TRUE(std::isnan(NumberOf("-1E99999999999999999999")));
  EXPECT_TRUE(std::isnan(NumberOf(std::string(400, '9'))));
  EXPECT_EQ(NumberOf("0." + std::string(400, '0') + "1E401"), 1);
}

TEST(NumberText, PrintForms) {
  const std::pair<double, const char*> cases[] = {{0, "0"},
                                                  {-0.0, "0"},
                                                  {-3.5, "-3.5"},
                                                  {1.0 / 3, "0.333333333333333"},
                                                  {0.1 + 0.2, "0.3"},
                                                  {0.0001, "0.0001"},
                                                  {0.00001, "1E-05"},
                                                  {100000000000000, "100000000000000"},
                                                  {1e15, "1E+15"},
                                                  {999999999999999.9, "1E+15"},
                                                  {-1.5e-300, "-1.5E-300"},
                                                  {12345678.90625, "12345678.90625"}};
  for (const auto& [value, plain] : cases) {
    EXPECT_EQ(PlainText(value), plain);
  }
  EXPECT_EQ(PrintText(12.5), " 12.5 ");
  EXPECT_EQ(PrintText(-12.5), "-12.5 ");
  EXPECT_EQ(SignedText(500.0), " 500");

  EXPECT_EQ(SignedText(9999999.0F), " 9999999");
  EXPECT_EQ(SignedText(12345678.0F), " 1.234568E+07");
  EXPECT_EQ(SignedText(-50.0F), "-50");
  EXPECT_EQ(SignedText(0.1F), " 0.1");
}

TEST(NumberText, MasksRoundHalfAwayFromZeroAfterFifteenDigits) {
  const std::tuple<double, int, const char*> cases[] = {
      {2.5, 0, "3"},      {-2.5, 0, "-3"},      {0.49999, 0, "0"},  {0.045, 2, "0.05"},
      {1.005, 2, "1.01"}, {-0.001, 2, "-0.00"}, {-0.04, 1, "-0.0"}, {-0.0, 1, "0.0"},
      {-0.4, 0, "-0"},    {99.95, 1, "100.0"},  {0.95, 1, "1.0"},   {1234567.891, 2, "1234567.89"}};
  for (const auto& [value, decimals, text] : cases) {
    EXPECT_EQ(FixedText(value, decimals), text) << value;
  }
}

TEST(NumberText, MasksWithoutTrailingZerosKeepTheirPoint) {
  const std::pair<double, const char*> cases[] = {{28, "28."},      {0, "0."},       {0.5, "0.5"},
                                                  {20.75, "20.75"}, {0.005, "0.01"}, {100, "100."},
                                                  {-0.001, "-0."},  {-3.10, "-3.1"}};
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(FixedTextAtMost(value, 2), text);
  }
  EXPECT_EQ(FixedTextAtMost(NoValue, 2), "");
}

/// The short ways against the C library, on coordinates, on neighbours of halves and on any value.
TEST(NumberText, ShortWaysAgreeWithTheLibrary) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> any(-9999, 9999);
  for (int i = 0; i < 200000; ++i) {
    const double coordinate = std::floor(any(random) * 500) / 500;
    const double near_half = std::floor(any(random)) / 8 + (i % 3 - 1) * 1e-12;
    for (const double value : {coordinate, near_half, any(random) / 100}) {
      std::array<char, 40> text{};
      std::snprintf(text.data(), text.size(), "%.15g", value);
      if (std::abs(value) >= 1e-4) {
        ASSERT_EQ(PlainText(value), text.data());
      }
      const double fifteen = std::strtod(text.data(), nullptr);
      std::snprintf(text.data(), text.size(), "%.2f", std::nextafter(fifteen, fifteen * 2));
      ASSERT_EQ(FixedText(value, 2), value == 0 ? "0.00" : text.data()) << value;
    }
  }
}

TEST(NumberText, WholeNumbersNeverGetAnExponent) {
  std::string out;
  for (const double value : {-0.0, -1.0, 1234567890123456.0, 1e19}) {
    AppendWhole(out, value);
    out += ' ';
  }
  EXPECT_EQ(out, "0 -1 1234567890123456 10000000000000000000 ");
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-3.5), -4);
}

TEST(NumberText, PrintZonesStartEveryFourteenColumns) {
  std::string out;
  PutZones(out, {"12.37", "fourteen chars", "x", "longer than a zone", "y"});
  EXPECT_EQ(out, "12.37         fourteen charsx             longer than a zone          y\r\n");
}

TEST(SkippedStatement, KeepsTheTarget) {
  double target = 7;
  Store(target, 1.0 / 0.0);
  Store(target, std::sqrt(-1.0));
  Store(target, Quotient(0, 0));
  EXPECT_EQ(target, 7);
  EXPECT_TRUE(std::isnan(Quotient(1, 0)));
  float single = 3;
  Store(single, 1e300);
  EXPECT_EQ(single, 3);
  Store(single, 0.1);
  EXPECT_EQ(single, 0.1F);
}

TEST(SkippedStatement, HoldsAtTheBordersOfTables) {
  Table<3, 2> table;
  table(2, 1) = 5;
  table(3, 0) = 9;
  table(-1, 1) = 9;
  table(0, 2) = 9;  // would be cell (1, 0) if the rows ran on
  table(2, 1) = std::numeric_limits<double>::infinity();
  EXPECT_EQ(table(2, 1), 5);
  EXPECT_EQ(table(1, 0), 0);
  EXPECT_TRUE(std::isnan(table(0, 2)));
  table(0, 0) = table(2, 1) + table(5, 5);
  EXPECT_EQ(table(0, 0), 0);
}

TEST(TextReader, AllLineEndsAndItems) {
  TextReader in("one\rtwo\n\r\n  a , b\r\n\"x,y\",9");
  std::string_view line;
  EXPECT_TRUE(in.ReadLine(line) && line == "one");
  EXPECT_TRUE(in.ReadLine(line) && line == "two");
  EXPECT_TRUE(in.ReadLine(line) && line.empty());
  EXPECT_TRUE(in.ReadItem(line) && line == "a ");
  EXPECT_TRUE(in.ReadItem(line) && line == "b");
  EXPECT_TRUE(in.ReadQuotedItem(line) && line == "x,y");
  EXPECT_TRUE(in.ReadQuotedItem(line) && line == "9");
  EXPECT_FALSE(in.ReadItem(line));
  EXPECT_EQ(line, "9") << "at the end an item keeps what it held";
}

}  // namespace
