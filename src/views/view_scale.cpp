#include "views/view_scale.h"

#include <cstddef>

#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "views/zoom.h"

namespace {

/// The far ends of a scale; the near ones are the margin left of and below the origin.
struct Reach {
  double right;
  double top;
};

void ScaleTo(DrawSurface& surface, Reach reach) {
  const double M = ViewMargin;
  surface.Scale(-M, reach.top, reach.right, -M);
}

/// Height over width of a surface.
double Aspect(const DrawSurface& surface) {
  return Quotient(surface.Height(), surface.Width());
}

/// The whole height, and what room there is beside it.
Reach FitHeight(double a) {
  return {Quotient(HullMaxY + ViewMargin, a), HullMaxY + ViewMargin};
}

/// The whole length, and what room there is above it.
Reach FitLength(double a) {
  return {HullMaxZ + ViewMargin, (HullMaxZ + ViewMargin) * a};
}

/// The one view that takes the taller of two fits.
Reach FitProfile(double a) {
  const double steepness = Quotient(HullMaxY, HullMaxZ);
  if (!HasValue(steepness)) {
    return {NoValue, NoValue};
  }
  // The margin stands behind the quotient here and within it in the sections; both are wanted.
  return steepness > a ? Reach{Quotient(HullMaxY, a) + ViewMargin, HullMaxY + ViewMargin} : FitLength(a);
}

Reach TrueReach(View view, double a) {
  switch (view) {
    case View::Sections:
      return FitHeight(a);
    case View::Profile:
      return FitProfile(a);
    default:
      return FitLength(a);
  }
}

/// The hull fills the surface, so that the two axes differ in scale.
Reach FillingReach(View view) {
  const double largest[] = {HullMaxX, HullMaxY, HullMaxZ};
  const auto reach = [&](int coordinate) {
    return largest[static_cast<std::size_t>(coordinate - 1)] + ViewMargin;
  };
  const Axes axes = AxesOf(view);
  return {reach(axes.across), reach(axes.up)};
}

}  // namespace

void ScaleThumbnail(View view) {
  DrawSurface& surface = *Form1.Picture1[static_cast<std::size_t>(view)];
  const double a = Aspect(surface);
  ScaleTo(surface, view == View::Sections ? FitHeight(a) : FitLength(a));
}

void ScaleMainView(View view) {
  DrawSurface& surface = *Form1.Picture2;
  const bool zoomed = ZoomRight != 0;
  const bool spin = view == View::Spin;
  if (spin || !zoomed) {
    const bool true_scale = spin || Form1.TrueView.Checked;
    ScaleTo(surface, true_scale ? TrueReach(view, Aspect(surface)) : FillingReach(view));
  }
  if (zoomed) {
    surface.Scale(ZoomLeft, ZoomTop, ZoomRight, ZoomBottom);
  }
}
