#include "views/flat_views.h"

#include <cstddef>

#include "base/number_text.h"
#include "controls/forms.h"
#include "views/view_scale.h"

namespace {

enum class Dots { None, AtPoints };

void DrawChine(DrawSurface& surface, Axes axes, int c, Dots dots) {
  ViewPoint here = HullPoint(axes, 1, c);
  for (int i = 1; i < Stations; ++i) {
    const ViewPoint next = HullPoint(axes, i + 1, c);
    surface.Line(here.u, here.v, next.u, next.v, LightGrey);
    if (dots == Dots::AtPoints) {
      surface.PSet(here.u, here.v, LightRed);
    }
    here = next;
  }
}

void DrawChines(DrawSurface& surface, Axes axes, Dots dots) {
  for (int c = 1; c <= NumChines; ++c) {
    DrawChine(surface, axes, c, dots);
  }
}

void DrawBulkheadSegment(DrawSurface& surface, Axes axes, int c, int b, int colour) {
  const ViewPoint from = OffsetNode(axes, c, b);
  const ViewPoint to = OffsetNode(axes, c + 1, b);
  surface.Line(from.u, from.v, to.u, to.v, colour);
}

void DrawBulkhead(DrawSurface& surface, Axes axes, int b) {
  for (int c = 1; c < NumChines; ++c) {
    DrawBulkheadSegment(surface, axes, c, b, Blue);
  }
}

void PrintBulkheadNumber(DrawSurface& surface, Axes axes, int b) {
  const ViewPoint top = OffsetNode(axes, NumChines, b);
  surface.PSet(top.u, top.v, LightRed);
  surface.Print(PrintText(b));
}

/// The centre line of the sections and the base line of the plan, of a length that no hull changes.
void DrawFixedLine(DrawSurface& surface, View view) {
  if (view == View::Sections) {
    surface.Line(0, 0, 0, 200, LightGrey);
  } else if (view == View::Plan) {
    surface.Line(0, 0, 300, 0, LightGrey);
  }
}

void NodeMarker(ViewPoint node, int colour) {
  const double h = ViewMargin * 0.25;
  Form1.Picture2->Box(node.u + h, node.v + h, node.u - h, node.v - h, colour);
}

/// The bulkhead of the current node in red with all its nodes boxed, or the current hull point.
void DrawHighlight(Axes axes) {
  if (!Form1.AutoSpline.Checked) {
    NodeMarker(HullPoint(axes, CurStation, CurChine), DarkGrey);
    return;
  }
  for (int c = 1; c < NumChines; ++c) {
    DrawBulkheadSegment(*Form1.Picture2, axes, c, CurStation, LightRed);
    NodeMarker(OffsetNode(axes, c, CurStation), DarkGrey);
  }
  NodeMarker(OffsetNode(axes, NumChines, CurStation), DarkGrey);
}

}  // namespace

void DrawThumbnail(View view) {
  DrawSurface& surface = *Form1.Picture1[static_cast<std::size_t>(view)];
  const Axes axes = AxesOf(view);
  surface.Cls();
  ScaleThumbnail(view);
  DrawChines(surface, axes, Dots::None);
  for (int b = 0; b < Bulkheads; ++b) {
    DrawBulkhead(surface, axes, b);
  }
  DrawFixedLine(surface, view);
}

void DrawFlatView(View view) {
  DrawSurface& surface = *Form1.Picture2;
  const Axes axes = AxesOf(view);
  DrawChines(surface, axes, Dots::AtPoints);
  for (int b = 0; b < Bulkheads; ++b) {
    DrawBulkhead(surface, axes, b);
    if (view == View::Sections) {
      PrintBulkheadNumber(surface, axes, b);
    }
  }
  DrawHighlight(axes);
  // The offsets in both modes: without AutoSpline the current station is taken for a bulkhead here,
  // and that is wanted.
  NodeMarker(OffsetNode(axes, CurChine, CurStation), LightRed);
  DrawFixedLine(surface, view);
}
