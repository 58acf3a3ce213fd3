#include "views/spin_view.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "views/view.h"

PointTable ViewPtsA;
PointTable ViewPtsB;
double SpinStep;

namespace {

/// How far the eye is from the origin, whatever the hull's size.
constexpr double EyeDistance = 5000;

/// A turn of two coordinates, each from 1 to 3.
struct Turn {
  Turn(double angle, int first, int second)
      : cosine(std::cos(angle)), sine(std::sin(angle)), p(first), q(second) {}

  void Apply(PointTable& table, int i, int c) const {
    const double old_p = table(p, i, c);
    const double old_q = table(q, i, c);
    table(p, i, c) = cosine * old_p + sine * old_q;
    table(q, i, c) = cosine * old_q - sine * old_p;
  }

  double cosine;
  double sine;
  int p;
  int q;
};

template <class Take>
void ForEachPoint(Take take) {
  for (int c = 1; c <= NumChines; ++c) {
    for (int i = 1; i <= Stations; ++i) {
      take(i, c);
    }
  }
}

void CopyPoint(int i, int c) {
  for (int coordinate = 1; coordinate <= 3; ++coordinate) {
    ViewPtsA(coordinate, i, c) = HullPts(coordinate, i, c);
    ViewPtsB(coordinate, i, c) = HullPts(coordinate, i, c);
  }
  ViewPtsB(1, i, c) = -HullPts(1, i, c);
}

void SpinOnce(int p, int q) {
  CheckView(View::Spin);
  const Turn turn(SpinStep, p, q);
  ForEachPoint([&turn](int i, int c) {
    turn.Apply(ViewPtsA, i, c);
    turn.Apply(ViewPtsB, i, c);
  });
  Form1.Text1[0].SetFocus();
  Form1.Picture2.Refresh();
}

struct PicturePoint {
  double x;
  double y;
};

/// One side as the eye sees it, indexed (station 0..13, chine 1..30).
using Side = std::array<std::array<PicturePoint, MostChines + 1>, Stations + 1>;

PicturePoint SpinProjection(const PointTable& table, int i, int c) {
  const double z = table(3, i, c);
  return {Quotient(table(1, i, c) * EyeDistance, EyeDistance + z),
          Quotient(table(2, i, c) * EyeDistance, EyeDistance + z)};
}

Side Projected(const PointTable& table) {
  Side side{};
  for (int i = 0; i <= Stations; ++i) {
    for (int c = 1; c <= NumChines; ++c) {
      side[static_cast<std::size_t>(i)][static_cast<std::size_t>(c)] = SpinProjection(table, i, c);
    }
  }
  return side;
}

PicturePoint At(const Side& side, int i, int c) {
  return side[static_cast<std::size_t>(i)][static_cast<std::size_t>(c)];
}

void LowerTo(PicturePoint& corner, const Side& side) {
  ForEachPoint([&](int i, int c) {
    const PicturePoint point = At(side, i, c);
    corner.x = point.x < corner.x ? point.x : corner.x;
    corner.y = point.y < corner.y ? point.y : corner.y;
  });
}

void Move(Side& side, PicturePoint corner) {
  for (auto& station : side) {
    for (PicturePoint& point : station) {
      point.x -= corner.x;
      point.y -= corner.y;
    }
  }
}

/// The line through the points from point_of(1) to point_of(count).
template <class PointOf>
void DrawPolyline(int count, int colour, PointOf point_of) {
  DrawSurface& picture = *Form1.Picture2;
  const PicturePoint first = point_of(1);
  picture.PSet(first.x, first.y, DrawSurface::Foreground);
  for (int n = 2; n <= count; ++n) {
    const PicturePoint next = point_of(n);
    picture.LineTo(next.x, next.y, colour);
  }
}

void DrawChine(const Side& side, int c) {
  DrawPolyline(Stations, DrawSurface::Foreground, [&](int i) { return At(side, i, c); });
}

void DrawSection(const Side& side, int i) {
  DrawPolyline(NumChines, Blue, [&](int c) { return At(side, i, c); });
}

/// From one side to the other.
void DrawAcross(const Side& a, const Side& b, int i, int c, int colour) {
  const PicturePoint from = At(a, i, c);
  const PicturePoint to = At(b, i, c);
  Form1.Picture2->Line(from.x, from.y, to.x, to.y, colour);
}

}  // namespace

void ResetSpin() {
  SpinStep = PiVal / 40;
  ViewPtsA.Erase();
  ViewPtsB.Erase();
}

void RebuildViewPoints() {
  const Turn tilt(PiVal / 10, 2, 3);
  const Turn turn(-PiVal / 10, 1, 3);
  ForEachPoint([&](int i, int c) {
    CopyPoint(i, c);
    for (PointTable* table : {&ViewPtsA, &ViewPtsB}) {
      tilt.Apply(*table, i, c);
      turn.Apply(*table, i, c);
    }
  });
}

void DrawSpinView() {
  Side a = Projected(ViewPtsA);
  Side b = Projected(ViewPtsB);
  PicturePoint corner{500, 500};  // a picture wholly beyond stays where it is
  for (const Side* side : {&a, &b}) {
    LowerTo(corner, *side);
  }
  for (Side* side : {&a, &b}) {
    Move(*side, corner);
  }
  Form1.Picture2->Smooth(true);
  for (int c = 1; c <= NumChines; ++c) {
    DrawChine(a, c);
    DrawChine(b, c);
  }
  for (int i = 1; i <= Stations; ++i) {
    DrawSection(a, i);
    DrawSection(b, i);
    DrawAcross(a, b, i, 1, Blue);
    if ((i - 1) % 3 == 0) {
      DrawAcross(a, b, i, NumChines, LightGrey);
    }
  }
  for (int c = 2; c < NumChines; ++c) {
    DrawAcross(a, b, Stations, c, LightGrey);
    // Station 0 holds zeros: a dot where rungs of the stem would be. It is kept as designed.
    DrawAcross(a, b, 0, c, LightGrey);
  }
  Form1.Picture2->Smooth(false);
}

void Command1_Click() {
  SpinOnce(1, 2);
}

void Command5_Click() {
  SpinOnce(1, 3);
}

void Command6_Click() {
  SpinOnce(2, 3);
}

void Form_KeyDown(int& key) {
  struct Row {
    int key;
    double sign;
    void (*step)();
  };
  constexpr Row rows[] = {
      {LeftKey, 1, Command5_Click},
      {RightKey, -1, Command5_Click},
      {UpKey, -1, Command6_Click},
      {DownKey, 1, Command6_Click},
  };
  for (const Row& row : rows) {
    if (row.key == key) {
      SpinStep = row.sign * std::abs(SpinStep);
      row.step();
      key = NoKey;
      return;
    }
  }
}
