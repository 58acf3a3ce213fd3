#include "panels/lettering.h"

#include <cmath>
#include <filesystem>
#include <utility>
#include <vector>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_case.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/pattern_file.h"

namespace {

namespace fs = std::filesystem;

/// One stroke of a character; points in eighths of a cell.
struct StrokeGlyph {
  std::string name;
  std::vector<PlotPoint> points;
};

using StrokeFont = std::vector<StrokeGlyph>;

StrokeFont ReadFont(std::string_view text) {
  StrokeFont font;
  TextReader in(text);
  std::string_view item;
  const auto number = [&] {
    item = {};
    in.ReadItem(item);
    return NumberOf(item);
  };
  while (in.ReadQuotedItem(item)) {
    StrokeGlyph glyph;
    glyph.name = LowerCase(item);
    const double count = number();
    // Points end with the file, so a count that is too large takes no more than the file holds.
    for (double j = 1; j <= count && !in.AtEnd(); ++j) {
      const double x = number();
      const double y = number();
      glyph.points.push_back({x, y});
    }
    if (!glyph.points.empty()) {
      font.push_back(std::move(glyph));
    }
  }
  return font;
}

/// The font at this path. It is kept as long as the file stays the same, because a run letters some
/// hundred texts.
const StrokeFont& FontAt(const fs::path& path) {
  static fs::path kept_path;
  static fs::file_time_type kept_time;
  static StrokeFont kept;
  std::error_code failed;
  const fs::file_time_type time = fs::last_write_time(path, failed);
  if (path != kept_path || time != kept_time || failed) {
    kept = ReadFont(ReadTextFile(path).value_or(""));
    kept_path = path;
    kept_time = time;
  }
  return kept;
}

/// Where a character's strokes go: its cell's left end, then turned and moved.
struct Placement {
  double size;
  double left;
  double angle;
  double x0;
  double y0;
};

PlotPoint Place(const PlotPoint& point, const Placement& at) {
  const double x = (point.x / 8) * at.size + at.left;
  const double y = (point.y / 8) * at.size;
  const double g = CoarsePi * at.angle / 180;
  const double turned_x = x * std::cos(g) - y * std::sin(g);
  const double turned_y = x * std::sin(g) + y * std::cos(g);
  return {turned_x + at.x0, turned_y + at.y0};
}

void PutStroke(std::string& out, const StrokeGlyph& glyph, const Placement& at) {
  const std::size_t count = glyph.points.size();
  for (std::size_t j = 0; j < count; ++j) {
    const PlotPoint placed = Place(glyph.points[j], at);
    if (j == 0) {
      PutLine(out, "1 penup");
    }
    PutMove(out, placed.x, placed.y);
    if (j == 0) {
      PutLine(out, "1 pendown");
    }
    if (j + 1 == count) {
      PutLine(out, "1 penup");
    }
  }
}

}  // namespace

void PlotText(std::string& out, std::string_view text, double size, double angle, double x0, double y0) {
  const fs::path path = FindShippedFile("pedit.fnt");
  if (path.empty()) {
    Form1.StatusBar1.Panels[1] = "Missing pedit.fnt, can't output characters";
    return;
  }
  const StrokeFont& font = FontAt(path);
  const std::string wanted = LowerCase(text);
  for (std::size_t p = 0; p < wanted.size(); ++p) {
    const Placement at{size, static_cast<double>(p) * size, angle, x0, y0};
    for (const StrokeGlyph& glyph : font) {
      if (glyph.name.size() == 1 && glyph.name[0] == wanted[p]) {
        PutStroke(out, glyph, at);
      }
    }
  }
}
