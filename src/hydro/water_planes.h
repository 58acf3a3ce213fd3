#pragma once
// Horizontal cuts through one half of the hull: ten of them give the transverse and the vertical
// center of buoyancy, and the contours of the plan view.

/// The half-breadth of one station at the height p, and the Z of the lower chine of the segment it
/// was found on (not interpolated, unlike the waterline of the sections). `chine` is that chine, or
/// NumChines, with no point, for a station that lies under p as a whole.
struct PlanePoint {
  bool found = false;
  int chine = 0;
  double b = 0;
  double z = 0;
};
PlanePoint CutStation(int station, double p);

/// Sums over the planes from 1 inch up to W in steps of W / 10.
struct WaterPlaneSums {
  double Area = 0;         ///< of both halves
  double DepthMoment = 0;  ///< area times depth under W
  double MomentX = 0;      ///< of one half
};
WaterPlaneSums SumWaterPlanes(double W);

/// Calls take(p) for each plane, lowest first. Below 1 inch there is none.
template <class Take>
void ForEachPlane(double W, Take take) {
  const double step = W / 10;
  for (double p = 1; p <= W; p += step) {
    take(p);
  }
}
