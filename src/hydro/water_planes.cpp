#include "hydro/water_planes.h"

#include "base/skipped_statement.h"
#include "hydro/hull_points.h"

namespace {

/// The fan of one plane around the point on the centerline at half the length, with the corner that
/// the triangle before left. The corner goes on from plane to plane.
struct Fan {
  double x2 = 0;
  double z2 = 0;
  double MomentX = 0;
  double PlaneArea = 0;

  /// The moment takes the single triangle and the area twice of it, so that the center is that of
  /// one half of the hull.
  void AddPlaneTriangle(double x3, double z3) {
    const double zA = HullMaxZ / 2;
    const double t = 0.5 * (((0 * z2 - x2 * zA) + (x2 * z3 - x3 * z2)) + (x3 * zA - 0 * z3));
    Store(MomentX, MomentX + t * (0 + x2 + x3) / 3);
    Store(PlaneArea, PlaneArea + 2 * t);
  }
};

void AddPlane(Fan& fan, double p) {
  fan.PlaneArea = 0;
  PlanePoint cut;
  for (int i = 1; i <= Stations; ++i) {
    cut = CutStation(i, p);
    if (cut.found) {
      if (i > 1) {
        fan.AddPlaneTriangle(cut.b, cut.z);
      }
      fan.x2 = cut.b;
      fan.z2 = cut.z;
    }
  }
  fan.AddPlaneTriangle(0, Z(Stations, cut.chine));
}

}  // namespace

PlanePoint CutStation(int station, double p) {
  const int i = station;
  double b = X(i, 1);
  for (int c = 1; c <= NumChines - 1; ++c) {
    if (Y(i, c + 1) < p) {
      b = X(i, c + 1);
      continue;
    }
    if (X(i, c) == X(i, c + 1)) {
      b = X(i, c + 1);
    } else if (!(Y(i, c) > p)) {
      // The small number guards the division; the heeled outline takes a larger one.
      Store(b, ((p - Y(i, c)) * (X(i, c + 1) - X(i, c))) / ((Y(i, c + 1) - Y(i, c)) + 1e-08) + X(i, c));
    }
    return {true, c, b, Z(i, c)};
  }
  return {false, NumChines, b, 0};
}

WaterPlaneSums SumWaterPlanes(double W) {
  WaterPlaneSums sums;
  Fan fan;
  ForEachPlane(W, [&](double p) {
    AddPlane(fan, p);
    Store(sums.DepthMoment, sums.DepthMoment + fan.PlaneArea * (W - p));
    Store(sums.Area, sums.Area + fan.PlaneArea);
  });
  sums.MomentX = fan.MomentX;
  return sums;
}
