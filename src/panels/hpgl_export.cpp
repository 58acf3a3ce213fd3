#include "panels/hpgl_export.h"

#include <cmath>

#include "base/files.h"
#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/part_list.h"
#include "panels/pattern_file.h"

namespace {

constexpr float UnitsPerInch = 1016.0F;

/// What one pen line of a pattern sets: the word ahead of the next coordinates, and the pen. The
/// first that a line contains counts; the last two have no pen number and no blank.
struct PenLine {
  std::string_view words;
  std::string_view command;
  int pen;
};

constexpr PenLine PenLines[] = {
    {"0 penup", "PU ", 0},   {"0 pendown", "PD ", 0}, {"1 penup", "PU ", 1},
    {"1 pendown", "PD ", 1}, {"pendown", "PD", 1},    {"penup", "PU", 1},
};

float PlotterUnits(double value, double scale) {
  return static_cast<float>(std::floor((value * static_cast<double>(UnitsPerInch)) / scale));
}

struct Plotter {
  std::string_view command = "PU ";
  int pen = 0;
  int last_pen = 0;
  float x = 0;
  float y = 0;

  void SetPen(std::string_view line) {
    if (!Contains(line, "pen")) {
      return;
    }
    for (const PenLine& candidate : PenLines) {
      if (Contains(line, candidate.words)) {
        command = candidate.command;
        pen = candidate.pen;
        return;
      }
    }
  }

  void PutCoordinate(std::string& out, std::string_view line) {
    const MoveFields fields = SplitMove(line);
    Store(x, PlotterUnits(NumberOf(fields.x), PlotXScale));
    Store(y, PlotterUnits(NumberOf(fields.y), PlotYScale));
    if (pen != last_pen) {
      PutLine(out, pen == 1 ? "SP 1;" : "SP 3;");
      last_pen = pen;
    }
    out += command;
    out += SignedText(x);
    out += ", ";
    out += SignedText(y);
    PutLine(out, ";");
  }
};

}  // namespace

std::string HpglOfPattern(std::string_view pattern) {
  std::string out;
  PutLine(out, "SP 1;");
  Plotter plotter;
  TextReader in(pattern);
  std::string_view line;
  while (in.ReadLine(line)) {
    plotter.SetPen(line);
    if (Contains(line, "acut")) {
      plotter.PutCoordinate(out, line);
    }
  }
  return out;
}

void ExportHpgl() {
  DeleteFiles("chine", ".plt");
  ReadPlotScale();
  for (const std::string& name : ExportedParts()) {
    const std::string output = ExportPath + name + ".plt";
    Form1.StatusBar1.Panels[1] = "Exporting to HPGL..." + output;
    WriteTextFile(output, HpglOfPattern(ReadOrEmpty(name + ".uc")));
  }
  Form1.StatusBar1.Panels[1] = "Done...";
}
