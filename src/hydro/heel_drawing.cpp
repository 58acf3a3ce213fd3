#include "hydro/heel_drawing.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "hydro/hull_points.h"
#include "hydro/hydrostatics.h"

namespace {

enum class View { Plan, Sections, Profile };

View CurrentView() {
  if (Form1.Plan.Checked) {
    return View::Plan;
  }
  return Form1.Sections.Checked ? View::Sections : View::Profile;
}

DrawSurface& Picture() {
  return *Form1.Picture2;
}

struct PicturePoint {
  double x;
  double y;
};

/// Where a node of one side is drawn in the current view.
PicturePoint OnPicture(int i, int c, double side) {
  switch (CurrentView()) {
    case View::Plan:
      return {Z(i, c), side * X(i, c)};
    case View::Sections:
      return {side * X(i, c), Y(i, c)};
    default:
      return {Z(i, c), Y(i, c)};
  }
}

void DrawSegment(PicturePoint from, PicturePoint to, int colour) {
  Picture().Line(from.x, from.y, to.x, to.y, colour);
}

void DrawChine(int c, double side, int colour) {
  for (int i = 1; i < Stations; ++i) {
    DrawSegment(OnPicture(i, c, side), OnPicture(i + 1, c, side), colour);
  }
}

void DrawStation(int i, double side) {
  for (int c = 1; c < NumChines; ++c) {
    DrawSegment(OnPicture(i, c, side), OnPicture(i, c + 1, side), LightGrey);
  }
}

void DrawNodes(double side) {
  for (int c = 1; c <= NumChines; ++c) {
    for (int i = 1; i <= Stations; ++i) {
      const PicturePoint node = OnPicture(i, c, side);
      Picture().PSet(node.x, node.y, LightRed);
    }
  }
}

/// The half-breadth of the waterline at one station: the first segment of chines that reaches it.
/// The small number guards the division; the water planes take a smaller one.
PicturePoint OutlinePoint(int i) {
  for (int c = 1; c <= NumChines - 1; ++c) {
    if (!(Y(i, c + 1) < WaterlineY)) {
      const double rise = (Y(i, c + 1) - Y(i, c)) + 1e-07;
      return {Z(i, c), ((WaterlineY - Y(i, c)) * (X(i, c + 1) - X(i, c))) / rise + X(i, c)};
    }
  }
  return {NoValue, NoValue};
}

/// A circle with a cross through it.
void DrawPlanMark(double x, double z, int colour) {
  const double r = HullMaxZ / 75;
  Picture().Circle(z, x, r, colour);
  Picture().Line(z - r, x, z + r, x, colour);
  Picture().Line(z, x - r, z, x + r, colour);
}

void PrintAt(double x, double y, const std::string& text, int colour) {
  Picture().PSet(x, y, colour);
  Picture().Print(text, colour);
}

/// A balloon: the circle at the center of buoyancy, carried by two lines and a plumb line.
void DrawBuoyancyMark(double s) {
  const double x = BuoyancyCenterX;
  const double y = BuoyancyCenterY;
  Picture().Circle(x, y, s / 35, LightBlue);
  Picture().Line(x, y, x - s / 35, y - s / 17, LightBlue);
  Picture().Line(x, y, x + s / 35, y - s / 17, LightBlue);
  Picture().Line(x, y, x, -s / 35 - GravityCenterY, LightBlue);
  PrintAt(x + s / 35, y - s / 17, "cb", LightBlue);
}

void DrawGravityMark(double s) {
  const double x = GravityCenterX;
  const double y = GravityCenterY;
  Picture().Circle(x, y, s / 35, Magenta);
  Picture().Line(x + s / 35, -s / 35, x, -s / 11, Magenta);
  Picture().Line(x - s / 35, -s / 35, x, -s / 11, Magenta);
  Picture().Line(x, y, x, -s / 11, Magenta);
  PrintAt(x, y, "cg", Magenta);
}

/// The arm between the two centers, at height 0.
void DrawMomentArm(double s) {
  Picture().Line(GravityCenterX - s / 35, 0, BuoyancyCenterX + s / 35, 0, LightBlue);
  const double arm = BuoyancyCenterX - GravityCenterX;
  PrintAt((GravityCenterX + BuoyancyCenterX) / 2, 0, FixedText(arm, 1) + "\"", LightBlue);
}

/// A quarter circle around the center of gravity with an arrow at its top.
void DrawRightingArrow(double s, double righting_moment) {
  constexpr double quarter_turn = 1.5707499981;
  const double x = BuoyancyCenterX - GravityCenterX;
  const double y = BuoyancyCenterY - GravityCenterY;
  const double R = std::sqrt(x * x + y * y);
  Picture().Circle(GravityCenterX, GravityCenterY, R, Magenta, 0, quarter_turn);
  const PicturePoint tip{GravityCenterX - s / 17, GravityCenterY + R};
  DrawSegment({GravityCenterX, tip.y + s / 35}, tip, Magenta);
  DrawSegment({GravityCenterX, tip.y - s / 35}, tip, Magenta);
  PrintAt(GravityCenterX + R, GravityCenterY, FixedText(righting_moment, 0) + " ft-lbs", Magenta);
}

}  // namespace

void StartHeelDrawing() {
  DrawSurface& picture = Picture();
  picture.Cls();
  const double M = ViewMargin;
  const double a = Quotient(picture.Height(), picture.Width());
  const double reach = std::hypot(HullMaxX, HullMaxY) + M;  // of any node at any heel
  const double lowest = -reach;
  const double length = HullMaxZ + 2 * M;
  if (CurrentView() == View::Sections) {
    const double width = std::max(2 * reach, (reach - lowest) / a);
    picture.Scale(-width / 2, lowest + width * a, width / 2, lowest);
  } else {
    const bool plan = CurrentView() == View::Plan;
    const double bottom = plan ? -reach : lowest;
    const double height = std::max(length * a, reach - bottom);
    picture.Scale(-M, plan ? height / 2 : bottom + height, -M + height / a, plan ? -height / 2 : bottom);
  }
}

void DrawHeeledSide(double side) {
  for (int c = 1; c <= NumChines; ++c) {
    DrawChine(c, side, LightGrey);
  }
  for (int i = 1; i <= Stations; ++i) {
    DrawStation(i, side);
  }
  DrawNodes(side);
  if (CurrentView() == View::Profile) {
    DrawChine(NumChines, side, Blue);
  }
}

void DrawHeeledWaterline() {
  if (CurrentView() == View::Profile) {
    Picture().DrawWidth(2);
    Picture().Line(WaterlineForeZ, WaterlineY, WaterlineAftZ, WaterlineY, LightBlue);
    Picture().DrawWidth(1);
  }
}

void DrawHeeledOutline(double side) {
  if (CurrentView() != View::Plan) {
    return;
  }
  PicturePoint before{NoValue, NoValue};
  for (int i = 1; i <= Stations; ++i) {
    const PicturePoint here = OutlinePoint(i);
    if (HasValue(before.x) && HasValue(here.x)) {
      Picture().Line(before.x, side * before.y, here.x, side * here.y, LightBlue);
    }
    before = here;
  }
}

void DrawCenters(double righting_moment) {
  const double s = HullMaxY;
  switch (CurrentView()) {
    case View::Plan:
      DrawPlanMark(BuoyancyCenterX, BuoyancyCenterZ, LightBlue);
      DrawPlanMark(GravityCenterX, GravityCenterZ, Magenta);
      break;
    case View::Sections:
      DrawBuoyancyMark(s);
      DrawGravityMark(s);
      DrawMomentArm(s);
      DrawRightingArrow(s, righting_moment);
      break;
    case View::Profile:
      Picture().Line(-ViewMargin, WaterlineY, Picture().ScaleWidth() + ViewMargin, WaterlineY, LightBlue);
      break;
  }
}
