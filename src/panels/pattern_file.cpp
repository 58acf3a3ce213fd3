#include "panels/pattern_file.h"

#include <cstdint>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "base/text_lines.h"
#include "hull/plot_scale.h"

namespace {

void PutEdge(std::string& out, double length, bool padding) {
  if (padding) {
    PutLine(out, " 0");
  } else {
    AppendPrintText(out, length);
    out += LineEnd;
  }
}

/// The short way for what writers put: a whole number of up to 15 digits with one blank behind it.
bool ReadWholeField(std::string_view line, std::size_t& at, double& value) {
  const bool negative = at < line.size() && line[at] == '-';
  const std::size_t first = at + (negative ? 1 : 0);
  std::size_t end = first;
  std::int64_t whole = 0;
  while (end < line.size() && end - first < 15 && line[end] >= '0' && line[end] <= '9') {
    whole = whole * 10 + (line[end++] - '0');
  }
  if (end == first || end >= line.size() || line[end] != ' ') {
    return false;
  }
  at = end + 1;
  value = negative ? -static_cast<double>(whole) : static_cast<double>(whole);
  return true;
}

}  // namespace

MoveFields SplitMove(std::string_view line) {
  MoveFields fields;
  const std::size_t first = line.find(' ');
  if (first == std::string_view::npos) {
    return fields;
  }
  fields.x = line.substr(0, first);
  const std::size_t second = line.find(' ', first + 1);
  if (second != std::string_view::npos) {
    fields.y = line.substr(first + 1, second - first - 1);
    fields.rest = line.substr(second);
  }
  return fields;
}

PlotPoint ReadMove(std::string_view line) {
  double whole_x = 0;
  double whole_y = 0;
  std::size_t at = 0;
  if (ReadWholeField(line, at, whole_x) && ReadWholeField(line, at, whole_y)) {
    return {whole_x / PlotXScale, whole_y / PlotYScale};
  }
  const MoveFields fields = SplitMove(line);
  return {NumberOf(fields.x) / PlotXScale, NumberOf(fields.y) / PlotYScale};
}

std::string TriangleText(const TriangleEdges& edges) {
  std::string out;
  PutLine(out, " 1");
  for (std::size_t i = 0; i < edges.upper.size(); ++i) {
    PutEdge(out, edges.upper[i], i % 2 == 0);
  }
  for (std::size_t i = 0; i < edges.cross.size(); ++i) {
    PutEdge(out, edges.cross[i], i == 25);
  }
  for (std::size_t i = 0; i < edges.lower.size(); ++i) {
    PutEdge(out, edges.lower[i], i % 2 == 1 || i == 24);
  }
  return out;
}

TriangleEdges ReadTriangles(std::string_view text) {
  TriangleEdges edges;
  TextReader in(text);
  const auto read = [&in](double& target) {
    std::string_view item;
    if (in.ReadItem(item)) {
      Store(target, NumberOf(item));
    }
  };
  read(edges.divisor);
  for (double& length : edges.upper) {
    read(length);
  }
  for (double& length : edges.cross) {
    read(length);
  }
  for (double& length : edges.lower) {
    read(length);
  }
  return edges;
}
