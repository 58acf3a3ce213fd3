#include "views/zoom.h"

#include <cmath>
#include <utility>

#include "base/skipped_statement.h"
#include "controls/forms.h"

float ZoomLeft;
float ZoomRight;
float ZoomBottom;
float ZoomTop;

namespace {

/// Under exclusive-or this draws the rectangle and wipes it by turns.
void DrawZoomBox() {
  Form1.Picture2->Box(ZoomLeft, ZoomBottom, ZoomRight, ZoomTop, Cyan);
}

}  // namespace

void ClearZoom() {
  ZoomLeft = ZoomRight = ZoomBottom = ZoomTop = 0;
}

void StartZoom(double x, double y) {
  Store(ZoomLeft, x);
  Store(ZoomRight, x);
  Store(ZoomBottom, y);
  Store(ZoomTop, y);
}

void DragZoom(double y) {
  DrawSurface& picture = *Form1.Picture2;
  picture.DrawMode(DrawSurface::Mode::ExclusiveOr);
  DrawZoomBox();
  Store(ZoomTop, y);
  const double height = std::abs(double{ZoomTop} - double{ZoomBottom});
  Store(ZoomRight, height * Quotient(picture.Width(), picture.Height()) + ZoomLeft);
  DrawZoomBox();
  picture.PSet(ZoomLeft, ZoomBottom, DrawSurface::Foreground);
  picture.DrawMode(DrawSurface::Mode::Copy);
}

void OrderZoom() {
  if (ZoomTop < ZoomBottom) {
    std::swap(ZoomTop, ZoomBottom);
  }
  if (ZoomRight < ZoomLeft) {
    std::swap(ZoomRight, ZoomLeft);
  }
}
