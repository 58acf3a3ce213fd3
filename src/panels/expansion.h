#pragma once
// Lays each panel flat: the triangles of its triangle file one after the other on the plane, a
// preview of them, and the outline as a pattern file. Nothing here looks at the hull.

#include <array>
#include <string>
#include <string_view>

#include "panels/pattern_file.h"

/// The panel's triangles on the plane, in inches. Triangle i lies between its left side A-B and its
/// right side D-C; A and D are on the lower edge, B and C on the upper one.
struct FlatPanel {
  std::array<PlotPoint, 25> A{};
  std::array<PlotPoint, 25> B{};
  std::array<PlotPoint, 25> C{};
  std::array<PlotPoint, 25> D{};
  std::size_t end = 0;  ///< the first triangle behind the panel

  /// Extents of all triangles but the first.
  double min_x = 500000;
  double max_x = -500000;
  double min_y = 500000;
  double max_y = -500000;
};

/// Unfolds the triangles. A side that can't be worked out (a triangle that doesn't close, a zero
/// edge) keeps the angle of the triangle before, in the stated order of the variables.
FlatPanel Unfold(const TriangleEdges& edges);

/// The pattern of a panel, lettered if Form3's Check5 is on, in the plot scale in force.
std::string PanelPattern(const FlatPanel& panel);

/// Develops one triangle file, "chine1.tri", into its pattern file, "chine1.uc".
void ExpandOnePanel(const std::string& name);

/// Develops all panels of the run.
void ExpandPanels();
