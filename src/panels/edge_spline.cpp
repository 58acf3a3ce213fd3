#include "panels/edge_spline.h"

#include "base/number_text.h"
#include "base/text_lines.h"
#include "hull/plot_scale.h"

namespace {

/// The parameter's step from one knot to the next.
constexpr double h = 10;

using KnotTable = Table<EdgeKnots::Most + 1>;

/// Coefficients of one coordinate over the intervals, from 1.
struct Curve {
  KnotTable a;
  KnotTable b;
  KnotTable c;
  KnotTable d;

  double At(int interval, double u) const {
    return a(interval) * (u * u * u) + b(interval) * (u * u) + c(interval) * u + d(interval);
  }
};

/// Second derivatives at the knots; both ends are natural.
KnotTable SecondDerivatives(const KnotTable& v, int n) {
  KnotTable diagonal;
  KnotTable right;
  for (int j = 1; j <= n - 2; ++j) {
    diagonal(j) = 2 * (h + h);
    right(j) = 6 * (v(j + 2) - v(j + 1)) / h - 6 * (v(j + 1) - v(j)) / h;
  }
  for (int j = 2; j <= n - 2; ++j) {
    const double factor = h / diagonal(j - 1);
    diagonal(j) = diagonal(j) - factor * h;
    right(j) = right(j) - factor * right(j - 1);
  }
  right(n - 2) = right(n - 2) / diagonal(n - 2);
  for (int j = n - 3; j >= 1; --j) {
    right(j) = (right(j) - h * right(j + 1)) / diagonal(j);
  }
  KnotTable M;
  for (int j = 1; j <= n - 2; ++j) {
    M(j + 1) = right(j);
  }
  return M;
}

Curve SolveCurve(const KnotTable& v, int n) {
  const KnotTable M = SecondDerivatives(v, n);
  Curve curve;
  for (int j = 1; j <= n - 1; ++j) {
    curve.a(j) = (M(j + 1) - M(j)) / (6 * h);
    curve.b(j) = M(j) / 2;
    curve.c(j) = (v(j + 1) - v(j)) / h - (2 * M(j) * h + M(j + 1) * h) / 6;
    curve.d(j) = v(j);
  }
  return curve;
}

void PutMarkedKnot(std::string& out, const EdgeKnots& knots, int j) {
  PutLine(out, HandPlotMark);
  PutMove(out, knots.x(j), knots.y(j));
}

}  // namespace

void EdgeKnots::AddUnlessSame(const PlotPoint& candidate) {
  if (FixedText(candidate.x, 1) != FixedText(x(count), 1) ||
      FixedText(candidate.y, 1) != FixedText(y(count), 1)) {
    ++count;
    x(count) = candidate.x;
    y(count) = candidate.y;
  }
}

void PutSplineEdge(std::string& out, const EdgeKnots& knots) {
  const Curve x = SolveCurve(knots.x, knots.count);
  const Curve y = SolveCurve(knots.y, knots.count);
  PutMarkedKnot(out, knots, 1);
  for (int j = 1; j <= knots.count - 1; ++j) {
    for (double u = 0; u <= h; u += h / 10) {
      PutMove(out, x.At(j, u), y.At(j, u));
    }
    PutMarkedKnot(out, knots, j + 1);
  }
}
