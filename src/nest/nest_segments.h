#pragma once
// The outline of an instance as segments, for the screen and for paper.

#include "nest/nest_model.h"

/// Gives each segment from point k to k + 1 on the sheet row, and the one that closes the outline. A
/// single point gives a segment without length.
template <class Take>
void ForEachSegment(const NestInstance& instance, int p, Take take) {
  const int points = StoredPoints(p);
  for (int k = 1; k <= points; ++k) {
    take(instance.OnSheets(p, k), instance.OnSheets(p, k < points ? k + 1 : 1));
  }
}
