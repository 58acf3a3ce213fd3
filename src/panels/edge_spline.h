#pragma once
// The curve through the points of a developed panel's long edge: a natural cubic spline of X and
// of Y over a parameter that grows by 10 from knot to knot, whatever the distance between them.

#include <string>

#include "base/table.h"
#include "panels/pattern_file.h"

/// The knots of one edge, used from 1. Knot 0 stays at (0, 0): the first candidate is held against it.
struct EdgeKnots {
  static constexpr int Most = 50;

  int count = 0;
  Table<Most + 1> x;
  Table<Most + 1> y;

  /// Adds the candidate as the next knot, unless it rounds to the same tenth of an inch as the last
  /// one in both coordinates. Texts are compared, so "-0.0" and "0.0" differ.
  void AddUnlessSame(const PlotPoint& candidate);
};

/// Appends the marked first knot and then for each interval eleven points of the curve, both ends
/// included, and the marked knot that ends it.
void PutSplineEdge(std::string& out, const EdgeKnots& knots);
