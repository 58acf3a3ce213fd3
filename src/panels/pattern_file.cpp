#include "panels/pattern_file.h"

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
