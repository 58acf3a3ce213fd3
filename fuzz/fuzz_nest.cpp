// Any bytes as a hand plotting table: it is read, laid out, turned, tidied, painted and written. Tables and
// list agree, an outline of sane size comes back onto the sheets, and what is written is places.

#include <algorithm>
#include <cmath>

#include "fuzz_sheets.h"
#include "nest/nest_editing.h"

namespace {

void ExpectTables() {
  Expect(NestPartCount <= MostNestParts);
  Expect(Form2.List1.Rows().size() == static_cast<std::size_t>(NestPartCount));
  for (int p = 1; p <= NestPartCount; ++p) {
    for (int k = 1; k <= StoredPoints(p); ++k) {
      Expect(HasValue(NestX(p, k)) && HasValue(NestY(p, k)));
      Expect(NestX(p, k) == NestCopyX(p, k) && NestY(p, k) == NestCopyY(p, k));
    }
  }
}

/// How far an outline spreads along X, its last point left out as a drop does.
struct Spread {
  double from;
  double to;
};

Spread SpreadOf(const NestInstance& instance, int p) {
  Spread spread{1e300, -1e300};
  for (int k = 1; k <= StoredPoints(p) && k < NestPointCount(p); ++k) {
    spread.from = std::min(spread.from, instance.OnSheets(p, k).x);
    spread.to = std::max(spread.to, instance.OnSheets(p, k).x);
  }
  return spread;
}

/// Beyond a mile or so of inches rounding takes more than a hair.
bool IsSane(const NestInstance& instance, int p) {
  constexpr double sane = 1e5;
  return NestWidth(p) < sane && NestHeight(p) < sane && std::abs(instance.pos_x(p)) < sane;
}

/// What is short enough for the row lies on it along X after a drop.
void ExpectOnSheets() {
  constexpr double hair = 1e-6;
  for (int p = 1; p <= NestPartCount; ++p) {
    for (const NestInstance& instance : NestInstances) {
      const auto [from, to] = SpreadOf(instance, p);
      if (instance.Shown(p) && IsSane(instance, p) && to - from > 0 && to - from < SheetRowLength) {
        Expect(from > -hair && to < SheetRowLength + hair);
      }
    }
  }
}

void LayOutAll() {
  for (int row = 0; row < NestPartCount; ++row) {
    Form2.List1.SetListIndex(row);
    Expect(NestCurrent == row + 1 && NestShown(row + 1) == 1);
    Form2.Command3.Click();
    Form2.Command5.Click();
    NestCopySelected = 1;
    Form2.Command1.Click();
    Form2.Command4.Click();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  WriteTextFile("handplot.txt", TextOf(data, size));
  Form1.dummy15.Click();
  ExpectTables();
  LayOutAll();
  Form2.Check2.Value = true;
  Form2.Picture1.MouseUp(1, 0, 0);
  ExpectOnSheets();
  Form2.Picture1.MouseMove(0, 10, 10);
  ExpectNestTable(NestTableText());
  ExpectPages();
  return 0;
}
