#include "panels/hand_plot.h"

#include <algorithm>
#include <cmath>

#include "base/clock.h"
#include "base/files.h"
#include "base/number_text.h"
#include "base/print_zones.h"
#include "base/skipped_statement.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/part_list.h"
#include "panels/pattern_file.h"

namespace {

constexpr std::string_view TitleStart = "Hand plotting file for ";

/// Millimetres of the rounded inches, not of the raw value.
std::string InMillimetres(std::string_view inches) {
  return FixedText(NumberOf(inches) * 25.4, 1);
}

void PutRow(std::string& out, const PlotPoint& p) {
  if (!HasValue(p.x) || !HasValue(p.y)) {
    return;
  }
  const std::string x = FixedText(p.x, 2);
  const std::string y = FixedText(p.y, 2);
  PutZones(out, {x, y, InEighths(x), InEighths(y), InMillimetres(x), InMillimetres(y)});
}

void AddToHandPlot(std::string& out, const std::string& name) {
  Form1.StatusBar1.Panels[1] = "Adding " + name + " to HANDPLOT.TXT...";
  constexpr std::string_view rule = "__________";
  PutZones(out, {name, rule, rule, rule, rule, rule});
  out += HandPlotRows(ReadOrEmpty(name));
}

/// Takes a text such as the pattern, where "0" stands for any digit, and the blanks around it off the end.
void DropEnd(std::string_view& text, std::string_view pattern) {
  const auto trim = [&text] { text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1)); };
  trim();
  const std::string_view end = text.substr(text.size() - std::min(text.size(), pattern.size()));
  const bool fits = std::equal(end.begin(), end.end(), pattern.begin(), pattern.end(),
                               [](char c, char p) { return p == '0' ? c >= '0' && c <= '9' : c == p; });
  if (fits) {
    text.remove_suffix(pattern.size());
    trim();
  }
}

}  // namespace

std::string InEighths(std::string_view inches) {
  const std::size_t point = std::min(inches.find('.'), inches.size());
  const double eighths = RoundHalfEven(std::abs(NumberOf(inches.substr(point)) / 0.125));
  return std::string(inches.substr(0, point)) + "-" + PlainText(eighths) + "/8";
}

std::string HandPlotRows(std::string_view pattern) {
  bool take_next = false;
  bool take_all = false;
  std::string out;
  TextReader in(pattern);
  std::string_view line;
  while (in.ReadLine(line)) {
    take_next = take_next || Contains(line, "hand plot");
    take_all = take_all || Contains(line, "hand plot all");
    if (take_next && Contains(line, "acut")) {
      PutRow(out, ReadMove(line));
      take_next = take_all;
    }
  }
  return out;
}

void WriteHandPlot() {
  ReadPlotScale();
  std::string out;
  const std::string title = std::string(TitleStart) + HullFileName;
  PutZones(out, {title, TimeText(), DateText()});
  PutZones(out, {"X in.", "Y in.", "X in-eights", "Y in-eights", "X mm", "Y mm"});
  for (const std::string& name : HandPlottedParts()) {
    AddToHandPlot(out, name + ".uc");
  }
  Form1.StatusBar1.Panels[1] = "Done...";
  WriteTextFile("handplot.txt", out);
}

std::string HullOfHandPlot(std::string_view table) {
  std::string_view title;
  TextReader(table).ReadLine(title);
  if (!title.starts_with(TitleStart)) {
    return {};
  }
  title.remove_prefix(TitleStart.size());
  DropEnd(title, "00-00-0000");
  DropEnd(title, "00:00:00");
  return std::string(title);
}
