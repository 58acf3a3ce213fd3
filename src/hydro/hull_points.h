#pragma once
// The hull points as the hydrostatics write them: X(i, c), Y(i, c), Z(i, c) for station i from 1 to
// 13, stem to transom, and chine c from 1, the keel, to NumChines, the sheer. Station 0 is 0.

#include "hull/hull_model.h"

inline double X(int i, int c) {
  return HullPts(1, i, c);
}

inline double Y(int i, int c) {
  return HullPts(2, i, c);
}

inline double Z(int i, int c) {
  return HullPts(3, i, c);
}

/// Z at which the line from one point to another crosses the height W.
inline double CrossingZ(int i, int c, int to_i, int to_c, double W) {
  return ((W - Y(i, c)) * (Z(to_i, to_c) - Z(i, c))) / (Y(to_i, to_c) - Y(i, c)) + Z(i, c);
}
