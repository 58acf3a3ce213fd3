#include "hull/plot_scale.h"

#include <cmath>
#include <string_view>

#include "base/clock.h"
#include "base/files.h"
#include "base/number_text.h"
#include "base/platform.h"
#include "base/skipped_statement.h"
#include "base/text_lines.h"

double PlotXScale = 500;
double PlotYScale = 500;

namespace {

constexpr double UsualScale = 500;

std::filesystem::path FindCalibration() {
  const std::filesystem::path shared = SharedCalibrationFile();
  std::error_code failed;
  if (!shared.empty() && std::filesystem::exists(shared, failed)) {
    return shared;
  }
  const std::filesystem::path found = FindFile("qv32.dat");
  return found.empty() ? FindFile("qvector.dat") : found;
}

void ReadCalibration(const std::string& text) {
  TextReader in(text);
  for (double* scale : {&PlotXScale, &PlotYScale}) {
    std::string_view item;
    if (in.ReadBlankItem(item)) {
      Store(*scale, NumberOf(item));
    }
  }
}

double PlotUnits(double inches, double scale) {
  return std::floor(inches * scale);
}

}  // namespace

void ReadPlotScale() {
  const std::filesystem::path path = FindCalibration();
  if (!path.empty()) {
    ReadCalibration(ReadTextFile(path).value_or(""));
  }
  for (double* scale : {&PlotXScale, &PlotYScale}) {
    *scale = *scale == 0 ? UsualScale : std::abs(*scale);
  }
}

void PutMove(std::string& out, double x, double y) {
  const double plot_x = PlotUnits(x, PlotXScale);
  const double plot_y = PlotUnits(y, PlotYScale);
  if (HasValue(plot_x) && HasValue(plot_y)) {
    AppendWhole(out, plot_x);
    out += ' ';
    AppendWhole(out, plot_y);
    PutLine(out, " acut");
  }
}

void PutFlatHead(std::string& out) {
  PutLine(out, "start_plot");
  PutLine(out, "/* TARVE: " + DateText() + " Xscale:" + SignedText(PlotXScale) +
                   " Yscale:" + SignedText(PlotYScale) + " */");
}
