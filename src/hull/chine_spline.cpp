#include "hull/chine_spline.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "base/table.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

/// What a stem half-width of 0 or less becomes here. The mouse editor has another floor of its own.
constexpr double StemFloor = 0.01;

/// A natural cubic spline through five knots, with the work tables of one run. All start at 0, so
/// that a skipped statement leaves what this run gave its target.
struct Spline {
  Table<6> z;           ///< knot abscissae, 1..5
  Table<6> f;           ///< knot values, 1..5
  Table<4, 5> A;        ///< tridiagonal system, rows 1..3; column 4 is the right side
  Table<6> S;           ///< second derivatives, 1..5
  Table<5> a, b, c, d;  ///< coefficients of the spans, 1..4
};

void SetUpSystem(Spline& s) {
  double h = 0;
  double d = 0;
  double h2 = 0;
  double d2 = 0;
  Store(h, s.z(2) - s.z(1));
  Store(d, ((s.f(2) - s.f(1)) / h) * 6);
  for (int i = 1; i <= 3; ++i) {
    Store(h2, s.z(i + 2) - s.z(i + 1));
    Store(d2, ((s.f(i + 2) - s.f(i + 1)) / h2) * 6);
    s.A(i, 1) = h;
    s.A(i, 2) = 2 * (h + h2);
    s.A(i, 3) = h2;
    s.A(i, 4) = d2 - d;
    h = h2;
    d = d2;
  }
}

void SolveSystem(Spline& s) {
  auto& A = s.A;
  for (int i = 2; i <= 3; ++i) {
    A(i, 2) = A(i, 2) - (A(i, 1) / A(i - 1, 2)) * A(i - 1, 3);
    A(i, 4) = A(i, 4) - (A(i, 1) / A(i - 1, 2)) * A(i - 1, 4);
  }
  A(3, 4) = A(3, 4) / A(3, 2);
  for (int j = 2; j >= 1; --j) {
    A(j, 4) = (A(j, 4) - A(j, 3) * A(j + 1, 4)) / A(j, 2);
  }
  for (int i = 1; i <= 3; ++i) {
    s.S(i + 1) = A(i, 4);
  }
  s.S(1) = 0;
  s.S(5) = 0;
}

void SetCoefficients(Spline& s) {
  for (int i = 1; i <= 4; ++i) {
    const double w = s.z(i + 1) - s.z(i);
    s.a(i) = (s.S(i + 1) - s.S(i)) / (6 * w);
    s.b(i) = s.S(i) / 2;
    s.c(i) = (s.f(i + 1) - s.f(i)) / w - (2 * s.S(i) * w + s.S(i + 1) * w) / 6;
    s.d(i) = s.f(i);
  }
}

/// Calls take(n, z, v) for every sample. Each span is walked in steps of a third of it and 0.1; the
/// 0.1 keeps the third step from landing on the next bulkhead. A sample past the last station would
/// count nowhere, so the walk ends there: where bulkheads lie close together, or so far away that a
/// step is lost in the digits of Z, it would never end, or only long after. Returns the last n.
template <class Take>
int SampleSpans(const Spline& s, Take take) {
  int n = 0;
  double v = 0;
  for (int i = 1; i <= 4; ++i) {
    const double start = s.z(i);
    const double limit = s.z(i + 1);
    const double step = (limit - start) / 3 + 0.1;
    for (double z = start; (step >= 0 ? z <= limit : z >= limit) && n < Stations; z += step) {
      const double t = z - start;
      Store(v, s.a(i) * (t * t * t) + s.b(i) * (t * t) + s.c(i) * t + s.d(i));
      take(++n, z, v);
    }
  }
  return n;
}

/// The spline of one chine; the steps run in this order.
Spline SolveChine(int chine, const OffsetTable& values) {
  Spline s;
  for (int i = 1; i <= Bulkheads; ++i) {
    s.z(i) = OffZ(chine, i - 1);
    s.f(i) = values(chine, i - 1);
  }
  SetUpSystem(s);
  SolveSystem(s);
  SetCoefficients(s);
  return s;
}

void CleanOffset(int c, int k) {
  if (OffX(c, 0) <= 0) {
    OffX(c, 0) = StemFloor;
  }
  for (OffsetTable* table : {&OffX, &OffY, &OffZ}) {
    if ((*table)(c, k) < 0) {
      (*table)(c, k) = 0;
    }
  }
}

void CleanOffsets() {
  HullMaxX = HullMaxY = HullMaxZ = -5000;
  for (int k = 0; k < Bulkheads; ++k) {
    for (int c = 1; c <= NumChines; ++c) {
      CleanOffset(c, k);
      HullMaxX = std::max<double>(HullMaxX, OffX(c, k));
      HullMaxY = std::max<double>(HullMaxY, OffY(c, k));
      HullMaxZ = std::max<double>(HullMaxZ, OffZ(c, k));
    }
  }
}

/// Takes the Z of an interior bulkhead from the selected chine and brings all chines to it. A selected
/// chine that the hull doesn't have (the hull before had more) has no Z: the chine's own stands, or the
/// next save would cost the user the hull.
void ReadBackInnerZ(int c, int k, int station) {
  const bool of_this_hull = CurChine >= 1 && CurChine <= NumChines;
  OffZ(c, k) = of_this_hull ? static_cast<double>(HullPts(3, station, CurChine)) : NoValue;
  for (int j = 1; j <= NumChines; ++j) {
    HullPts(3, station, j) = OffZ(c, k);
  }
}

void ReadBackOffsets() {
  for (int c = 1; c <= NumChines; ++c) {
    for (int k = 0; k < Bulkheads; ++k) {
      const int station = 3 * k + 1;
      OffX(c, k) = HullPts(1, station, c);
      OffY(c, k) = HullPts(2, station, c);
      if (k == 0 || k == 4) {
        OffZ(c, k) = HullPts(3, station, c);
      } else {
        ReadBackInnerZ(c, k, station);
      }
    }
  }
}

struct Turn {
  double cosine;
  double sine;
};

double TurnedZ(const Turn& turn, double z, double y) {
  return z * turn.cosine - y * turn.sine;
}

double TurnedY(const Turn& turn, double z, double y) {
  return z * turn.sine + y * turn.cosine;
}

void TurnPoint(const Turn& turn, Cell z, Cell y) {
  const double turned_z = TurnedZ(turn, z, y);
  y = TurnedY(turn, z, y);
  z = turned_z;
}

template <class OfBulkhead, class OfStation>
void ForEachNode(OfBulkhead of_bulkhead, OfStation of_station) {
  for (int k = 0; k < Bulkheads; ++k) {
    for (int c = 1; c <= NumChines; ++c) {
      of_bulkhead(OffZ(c, k), OffY(c, k));
    }
  }
  for (int c = 1; c <= NumChines; ++c) {
    for (int s = 1; s <= Stations; ++s) {
      of_station(HullPts(3, s, c), HullPts(2, s, c));
    }
  }
}

bool CanTurn(const Turn& turn) {
  bool can = true;
  const auto look = [&](double z, double y) {
    can = can && HasValue(TurnedZ(turn, z, y)) && HasValue(TurnedY(turn, z, y));
  };
  ForEachNode(look, look);
  return can;
}

}  // namespace

void SplineChineY(int chine) {
  const Spline s = SolveChine(chine, OffY);
  const int samples = SampleSpans(s, [chine](int n, double z, double v) {
    HullPts(3, n, chine) = z;
    HullPts(2, n, chine) = v;
  });
  HullPts(3, samples + 1, chine) = s.z(5);
  HullPts(2, samples + 1, chine) = s.f(5);
}

void SplineChineX(int chine) {
  const Spline s = SolveChine(chine, OffX);
  const int samples = SampleSpans(s, [chine](int n, double, double v) {
    HullPts(1, n, chine) = v;
    if (v > MaxHalfBeam) {
      MaxHalfBeam = v;
    }
  });
  HullPts(1, samples + 1, chine) = s.f(5);
}

void RecomputeHull() {
  if (!Form1.AutoSpline.Checked) {
    RestoreUprightHull();
  }
  UprightPts.reset();
  CleanOffsets();
  Store(ViewMargin, HullMaxX / 25);
  MaxHalfBeam = 0;
  if (Form1.AutoSpline.Checked) {
    for (int c = 1; c <= NumChines; ++c) {
      SplineChineY(c);
      SplineChineX(c);
    }
  } else {
    ReadBackOffsets();
  }
  Form1.StatusBar1.Panels[2] = "MBm:" + FixedText(2 * MaxHalfBeam, 2);
}

void ApplyPitch() {
  RestoreUprightHull();
  const double p = PitchAngle - PitchApplied;
  const double t = -p * CoarsePi / 180;
  const Turn turn{std::cos(t), std::sin(t)};
  if (p == 0 || !CanTurn(turn)) {
    Form1.Refresh();
    return;
  }
  double min_z = 5000;
  double min_y = 5000;
  const auto turn_point = [&turn](Cell z, Cell y) { TurnPoint(turn, z, y); };
  ForEachNode(turn_point, [&](Cell z, Cell y) {
    turn_point(z, y);
    min_z = std::min<double>(min_z, z);
    min_y = std::min<double>(min_y, y);
  });
  const auto move_back = [&](Cell z, Cell y) {
    z -= min_z;
    y -= min_y;
  };
  ForEachNode(move_back, move_back);
  Form1.Refresh();
  PitchApplied = PitchAngle;
}
