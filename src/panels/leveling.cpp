#include "panels/leveling.h"

#include <cmath>
#include <optional>

#include "base/files.h"
#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/plot_scale.h"
#include "panels/part_list.h"
#include "panels/pattern_file.h"

namespace {

bool IsCoordinateLine(std::string_view line) {
  return Contains(line, "acut") || Contains(line, "aline") || Contains(line, "spline_pt");
}

void PutTurned(std::string& out, std::string_view line, double cosine, double sine) {
  const PlotPoint p = ReadMove(line);
  const double x = (p.x * cosine - p.y * sine) * PlotXScale;
  const double y = (p.x * sine + p.y * cosine) * PlotYScale;
  if (HasValue(x) && HasValue(y)) {
    AppendFixedText(out, x, 0);
    out += ' ';
    AppendFixedText(out, y, 0);
    PutLine(out, SplitMove(line).rest);
  }
}

void LevelOnePattern(const std::string& name, double& slope) {
  Form1.StatusBar1.Panels[1] = "Leveling..." + name;
  const std::optional<std::string> pattern = ReadTextFile(FindFile(name));
  if (!pattern) {
    return;
  }
  Store(slope, FittedSlope(*pattern));
  const std::string leveled = LeveledPattern(*pattern, slope);
  WriteTextFile("temp", leveled);
  WriteTextFile(name, leveled);
}

}  // namespace

double FittedSlope(std::string_view pattern) {
  double n = 0;
  double Sx = 0;
  double Sy = 0;
  double Sxy = 0;
  double Sxx = 0;
  TextReader in(pattern);
  std::string_view line;
  while (in.ReadLine(line)) {
    if (IsCoordinateLine(line)) {
      const PlotPoint p = ReadMove(line);
      Store(Sx, Sx + p.x);
      Store(Sy, Sy + p.y);
      Store(Sxy, Sxy + p.x * p.y);
      Store(Sxx, Sxx + p.x * p.x);
      n += 1;
    }
  }
  return Quotient(n * Sxy - Sy * Sx, n * Sxx - Sx * Sx);
}

std::string LeveledPattern(std::string_view pattern, double slope) {
  const double angle = -std::atan(slope);
  const double cosine = std::cos(angle);
  const double sine = std::sin(angle);
  std::string out;
  out.reserve(pattern.size() + pattern.size() / 8);
  TextReader in(pattern);
  std::string_view line;
  while (in.ReadLine(line)) {
    if (IsCoordinateLine(line)) {
      PutTurned(out, line, cosine, sine);
    } else {
      PutLine(out, line);
    }
  }
  return out;
}

void LevelPatterns() {
  ReadPlotScale();
  double slope = 0;
  for (const std::string& name : DevelopedPanels()) {
    LevelOnePattern(name + ".uc", slope);
  }
  Form1.StatusBar1.Panels[1] = "Done...";
}
