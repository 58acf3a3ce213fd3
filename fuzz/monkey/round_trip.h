#pragma once
// Whether a hull survives: the tables as they were written, against those of a program that has read
// the file at its start.
//
// What may differ, by the rules of the file: numbers have 15 digits; all commas come back as points; a
// rig box keeps only its leading number, and the choice of the step is lost; a frame comes back as a
// number. With AutoSpline off the offsets follow from the hull points, and the interior bulkheads take
// their Z from chine 1, which is the selected one after a start. With AutoSpline on the hull points
// follow from the rounded offsets, so they are compared only by writing the file once more.

#include <array>
#include <string>

#include "hull/hull_model.h"

/// All that a hull file holds.
struct HullState {
  int chines;
  bool auto_spline;
  OffsetTable x;
  OffsetTable y;
  OffsetTable z;
  PointTable points;
  std::array<std::string, FrameCount> frames;  ///< as the file has them
  std::array<std::string, 7> rig;
  std::array<std::string, 5> texts;
  std::array<double, 4> ballast;
};

/// The state now, which must be that right after a repaint of Form1.
HullState TakeHullState();

/// Notes a fault where the program, just started, doesn't hold what was written.
void CompareWithNow(const HullState& written);
