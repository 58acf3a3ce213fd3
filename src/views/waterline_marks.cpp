#include "views/waterline_marks.h"

#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "hydro/hull_points.h"
#include "hydro/hydrostatics.h"

namespace {

/// A circle with a cross through it.
void DrawCenter(double u, double v, double r, int colour) {
  DrawSurface& picture = *Form1.Picture2;
  picture.Circle(u, v, r, colour);
  picture.Line(u, v + r, u, v - r, colour);
  picture.Line(u - r, v, u + r, v, colour);
}

void PrintAt(double u, double v, const char* text) {
  Form1.Picture2->PSet(u, v, DrawSurface::Foreground);
  Form1.Picture2->Print(text);
}

void DrawWaterlineAcross() {
  DrawSurface& picture = *Form1.Picture2;
  picture.Line(picture.ScaleLeft(), WaterlineY, picture.ScaleWidth(), WaterlineY, LightBlue);
}

void DrawProfileMarks() {
  const double r = HullMaxZ / 75;
  DrawCenter(BuoyancyCenterZ, BuoyancyCenterY, r, LightBlue);
  PrintAt(BuoyancyCenterZ, BuoyancyCenterY, "cb");
  DrawCenter(LateralCenterZ, LateralCenterY, r, LightMagenta);
  PrintAt(LateralCenterZ, LateralCenterY, "cla");
  DrawWaterlineAcross();
  Form1.Picture2->DrawWidth(2);
  Form1.Picture2->Line(WaterlineForeZ, WaterlineY, WaterlineAftZ, WaterlineY, LightBlue);
  Form1.Picture2->DrawWidth(1);
}

/// The radius follows the height here and the length elsewhere; the difference is wanted.
void DrawSectionMarks() {
  DrawWaterlineAcross();
  DrawCenter(0, BuoyancyCenterY, HullMaxY / 35, LightBlue);
  PrintAt(0, BuoyancyCenterY, "cb");
}

struct ContourPoint {
  double x;
  double z;
};

/// Moves the point to where the waterline crosses the segment from chine c to the next. Where a
/// division fails it keeps what the chine before gave it.
void CrossSegment(ContourPoint& p, int i, int c) {
  const double t = Quotient(WaterlineY - Y(i, c), Y(i, c + 1) - Y(i, c));
  const double dx = X(i, c + 1) - X(i, c);
  const double dz = Z(i, c + 1) - Z(i, c);
  if (dx != 0) {
    Store(p.x, X(i, c) + dx * t);
    Store(p.z, Z(i, c) + dz * t);
  } else {
    p.x = X(i, c);
    if (dz != 0) {
      Store(p.z, Z(i, c) + dz * t);
    }
  }
}

/// False for a station that is under water as a whole. The chine past the last one is asked like any
/// other: a hull that had more chines once still has its points there.
bool CutContour(ContourPoint& p, int i) {
  p = {X(i, 1), Z(i, 1)};
  for (int c = 1; c <= NumChines; ++c) {
    if (Y(i, c + 1) >= WaterlineY) {
      CrossSegment(p, i, c);
      return true;
    }
    p = {X(i, c + 1), Z(i, c + 1)};
  }
  return false;
}

}  // namespace

void WaterplaneContour() {
  DrawSurface* const surfaces[] = {&*Form1.Picture1[2], &*Form1.Picture2};
  for (int i = 1; i <= Stations; ++i) {
    ContourPoint p{};
    if (!CutContour(p, i)) {
      continue;
    }
    for (DrawSurface* surface : surfaces) {
      if (i == 1) {
        surface->PSet(p.z, p.x, LightBlue);
      } else {
        surface->LineTo(p.z, p.x, LightBlue);
      }
    }
  }
}

void DrawWaterlineMarks(View view) {
  if (WaterlineY == 0) {
    return;
  }
  if (view == View::Profile) {
    DrawProfileMarks();
  } else if (view == View::Sections) {
    DrawSectionMarks();
  } else if (view == View::Plan) {
    DrawCenter(BuoyancyCenterZ, 0, HullMaxZ / 75, LightBlue);
    WaterplaneContour();
  }
}
