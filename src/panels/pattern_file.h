#pragma once
// The pattern file: one flat part as a list of pen-plot lines. Readers go by the words that a line
// contains, not by a grammar, and ignore what they don't know.
//
//   start_plot, end_plot          first line; last line of a flat part (panels have none)
//   /* ... */                     comment; "hand plot" and "hand plot all" mark points to measure
//   0 penup, 0 pendown            the cutting pen
//   1 penup, 1 pendown            the marking pen
//   X Y acut                      move in plot units with the pen as it stands; aline is the same
//   start_spline, X Y spline_pt, end_spline   a run of points that nothing here writes
//
// The triangle file: 77 lines, one number each; the lengths that one panel is developed from.

#include <array>
#include <string>
#include <string_view>

/// A point in inches.
struct PlotPoint {
  double x = 0;
  double y = 0;
};

/// The two coordinates of a line as the texts before its first and its second blank, and the rest
/// from the second blank on. What has no blank behind it is empty.
struct MoveFields {
  std::string_view x;
  std::string_view y;
  std::string_view rest;
};
MoveFields SplitMove(std::string_view line);

/// The point of a coordinate line in inches, by the plot scale in force.
PlotPoint ReadMove(std::string_view line);

inline bool Contains(std::string_view line, std::string_view word) {
  return line.find(word) != std::string_view::npos;
}

/// What joins a hand plot marker to the moves behind it: the next one, or all to the end.
inline constexpr std::string_view HandPlotMark = "/* hand plot */";
inline constexpr std::string_view HandPlotAllMark = "/* hand plot all points */";

/// The edge lengths of a panel in inches. Triangle i has the sides cross[i], cross[i + 1] and, for
/// even i, lower[i], for odd i, upper[i]. A triangle with neither ends the panel.
struct TriangleEdges {
  double divisor = 0;  ///< both plot scales are divided by it
  std::array<double, 25> upper{};
  std::array<double, 26> cross{};
  std::array<double, 25> lower{};
};

/// The text of a triangle file. Entries that pad a group are the line " 0".
std::string TriangleText(const TriangleEdges& edges);
/// Reads one back; what is missing stays 0.
TriangleEdges ReadTriangles(std::string_view text);
