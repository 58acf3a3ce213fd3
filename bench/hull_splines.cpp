// The hull's sixty splines (X and Y over Z of thirty chines, five knots, thirteen samples each)
// against GSL's natural cubic spline: made anew for each curve, as is usual, and kept.

#include <benchmark/benchmark.h>
#include <gsl/gsl_spline.h>

#include <array>
#include <vector>

#include "bench_hull.h"
#include "hull/chine_spline.h"

namespace {

struct Curve {
  std::array<double, Bulkheads> z;
  std::array<double, Bulkheads> v;
  std::array<double, Stations> at;  ///< where the hull samples this curve
  std::array<double, Stations> sampled;
};

Curve CurveOf(int chine, const OffsetTable& values) {
  Curve curve{};
  for (int k = 0; k < Bulkheads; ++k) {
    curve.z[static_cast<std::size_t>(k)] = OffZ(chine, k);
    curve.v[static_cast<std::size_t>(k)] = values(chine, k);
  }
  for (int s = 0; s < Stations; ++s) {
    curve.at[static_cast<std::size_t>(s)] = HullPts(3, s + 1, chine);
  }
  return curve;
}

std::vector<Curve> CurvesOfHull() {
  MakeThirtyChines();
  std::vector<Curve> curves;
  for (int c = 1; c <= NumChines; ++c) {
    curves.push_back(CurveOf(c, OffY));
    curves.push_back(CurveOf(c, OffX));
  }
  return curves;
}

class GslSpline {
 public:
  GslSpline() = default;
  GslSpline(const GslSpline&) = delete;
  ~GslSpline() {
    gsl_interp_accel_free(accel_);
    gsl_spline_free(spline_);
  }

  void Sample(Curve& curve) const {
    gsl_interp_accel_reset(accel_);
    gsl_spline_init(spline_, curve.z.data(), curve.v.data(), Bulkheads);
    for (std::size_t s = 0; s < curve.at.size(); ++s) {
      curve.sampled[s] = gsl_spline_eval(spline_, curve.at[s], accel_);
    }
  }

 private:
  gsl_spline* spline_ = gsl_spline_alloc(gsl_interp_cspline, Bulkheads);
  gsl_interp_accel* accel_ = gsl_interp_accel_alloc();
};

void HullSplines(benchmark::State& state) {
  MakeThirtyChines();
  for (auto _ : state) {
    RecomputeHull();
    benchmark::ClobberMemory();
  }
}
BENCHMARK(HullSplines);

void GslSplines(benchmark::State& state) {
  std::vector<Curve> curves = CurvesOfHull();
  for (auto _ : state) {
    for (Curve& curve : curves) {
      GslSpline().Sample(curve);
    }
  }
}
BENCHMARK(GslSplines);

void GslSplinesKept(benchmark::State& state) {
  std::vector<Curve> curves = CurvesOfHull();
  const GslSpline kept;
  for (auto _ : state) {
    for (Curve& curve : curves) {
      kept.Sample(curve);
    }
  }
}
BENCHMARK(GslSplinesKept);

}  // namespace
