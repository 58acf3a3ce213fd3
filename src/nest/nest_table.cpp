#include "nest/nest_table.h"

#include <cmath>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "base/files.h"
#include "base/number_text.h"
#include "base/platform.h"
#include "base/print_zones.h"
#include "base/text_lines.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "nest/nest_model.h"

namespace {

/// A point on sheet n, whose left edge is o.
using RowText = std::string (*)(NestPoint at, int n, double o);

struct TableForm {
  std::string_view behind_name;
  RowText row;
};

/// The eighths are those of the place on the row of sheets, not on the sheet: they differ for sheets
/// whose length isn't whole inches.
std::string InchRow(NestPoint at, int n, double o) {
  const char* const by = n == 1 ? "x" : " by ";
  return InchesAndEighths(at.x - o, at.x) + "\"" + by + InchesAndEighths(at.y, at.y) + "\"";
}

std::string MetricRow(NestPoint at, int /*n*/, double o) {
  return PlainText(RoundHalfEven((at.x - o) * 25.4)) + " x " + PlainText(RoundHalfEven(at.y * 25.4)) + " mm";
}

void PutPoint(std::string& out, NestPoint at, RowText row) {
  const int n = SheetAt(at.x);
  if (n == 0 || !HasValue(at.y)) {
    return;
  }
  constexpr std::size_t zone = 14;
  const std::string empty_zones(zone * static_cast<std::size_t>(n - 1), ' ');
  PutZones(out, {empty_zones, row(at, n, (n - 1) * SheetLength)});
}

void PutInstance(std::string& out, const NestInstance& instance, int p, int points, const TableForm& form) {
  PutLine(out, instance.prefix + NestName(p) + std::string(form.behind_name));
  PutLine(out, std::string(63, '-'));
  for (int k = 1; k <= points; ++k) {
    PutPoint(out, instance.OnSheets(p, k), form.row);
  }
  PutLine(out, "");
}

void PutParts(std::string& out, const TableForm& form) {
  for (int p = 1; p <= NestPartCount; ++p) {
    const int points = StoredPoints(p);
    if (NestInstances[0].Shown(p)) {
      PutInstance(out, NestInstances[0], p, points, form);
    }
    if (NestInstances[1].Shown(p)) {
      // A copy lacks the last of all points, which may be one beyond the tables.
      PutInstance(out, NestInstances[1], p, points < NestPointCount(p) ? points : points - 1, form);
    }
  }
}

void PutHead(std::string& out) {
  PutZones(out, {"Sheet 1", "Sheet 2", "Sheet 3", "Sheet 4", "Sheet 5"});
  PutLine(out, "");
}

}  // namespace

std::string NestTableText() {
  std::string out;
  PutZones(out, {"Nested hand plotting file for " + HullFileName, " / ", TimeText(), " / ", DateText()});
  PutLine(out, "");
  PutHead(out);
  PutParts(out, {"  (extend lines to panel edges)", InchRow});
  PutLine(out, "");
  PutLine(out, "");
  PutHead(out);
  PutParts(out, {"", MetricRow});
  return out;
}

void Form2_Command8_Click() {
  Form2.Busy = true;
  const std::string name = WithOwnSeparators(InputBox("File name:", "Hand Plotting", "nest.txt"));
  if (!name.empty()) {
    WriteTextFile(name, NestTableText());
  }
  Form2.Busy = false;
  Form2.StartViewer(name);
}
