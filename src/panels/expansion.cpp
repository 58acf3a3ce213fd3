#include "panels/expansion.h"

#include <algorithm>
#include <cmath>

#include "base/clock.h"
#include "base/files.h"
#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/edge_spline.h"
#include "panels/lettering.h"
#include "panels/part_list.h"

namespace {

/// A quarter turn as the placement of a triangle takes it. The quadrant of the chaining takes the
/// finer PiVal instead; the small bend that this leaves in a panel is wanted.
constexpr double QuarterTurn = CoarsePi / 2;

/// What one triangle hands to the next: a failed statement leaves it as it was. The same variable
/// serves as the corner's angle in the placement and as the turn in the chaining.
struct CarriedOver {
  double angle = 0;
  double inradius = 0;
};

std::size_t FindEnd(const TriangleEdges& edges) {
  std::size_t i = 0;
  while (i < edges.upper.size() && (edges.upper[i] != 0 || edges.lower[i] != 0)) {
    ++i;
  }
  return i;
}

/// The angle between the left side a and the long edge, with b the right side: the half angle
/// through the inradius.
void FindCorner(CarriedOver& carried, double a, double b, double edge) {
  const double s = 0.5 * (a + b + edge);
  Store(carried.inradius, std::sqrt((s - a) * (s - b) * (s - edge) / s));
  Store(carried.angle, 2 * std::atan(Quotient(carried.inradius, s - b)));
}

/// Each triangle by itself, its left side standing on the origin.
void PlaceTriangle(FlatPanel& panel, std::size_t i, const TriangleEdges& edges, CarriedOver& carried) {
  const double a = edges.cross[i];
  const double b = edges.cross[i + 1];
  panel.A[i] = {0, 0};
  panel.B[i] = {0, a};
  if (edges.upper[i] == 0) {
    const double c = edges.lower[i];
    FindCorner(carried, a, b, c);
    panel.C[i] = panel.B[i];
    panel.D[i] = {c * std::cos(QuarterTurn - carried.angle), c * std::sin(QuarterTurn - carried.angle)};
  } else {
    const double t = edges.upper[i];
    FindCorner(carried, a, b, t);
    panel.D[i] = panel.A[i];
    panel.C[i] = {t * std::cos(carried.angle - QuarterTurn), a + t * std::sin(carried.angle - QuarterTurn)};
  }
}

void Widen(FlatPanel& panel, const PlotPoint& p) {
  panel.max_x = std::max(panel.max_x, p.x);
  panel.max_y = std::max(panel.max_y, p.y);
  panel.min_x = std::min(panel.min_x, p.x);
  panel.min_y = std::min(panel.min_y, p.y);
}

/// Turns and moves triangle i so that its left side lies on the right side of the one before.
void ChainTriangle(FlatPanel& panel, std::size_t i, CarriedOver& carried) {
  const PlotPoint corner = panel.D[i - 1];
  const double dx = panel.C[i - 1].x - corner.x;
  const double dy = panel.C[i - 1].y - corner.y;
  Store(carried.angle, -std::atan(Quotient(dx, dy)));
  if (dy < 0) {
    carried.angle = carried.angle - PiVal;
  }
  const double cosine = std::cos(carried.angle);
  const double sine = std::sin(carried.angle);
  for (PlotPoint* p : {&panel.A[i], &panel.B[i], &panel.C[i], &panel.D[i]}) {
    const double x = p->x * cosine - p->y * sine + corner.x;
    const double y = p->x * sine + p->y * cosine + corner.y;
    *p = {x, y};
    Widen(panel, *p);
  }
}

void DrawPreview(const FlatPanel& panel, double divisor) {
  DrawSurface& picture = *Form1.Picture2;
  const double q = Quotient(picture.Height(), picture.Width());
  const double margin = 10 * divisor;
  const double width = panel.max_x - panel.min_x;
  const double height = panel.max_y - panel.min_y;
  picture.Cls();
  if (height / width > q) {
    picture.Scale(panel.min_x - margin, panel.max_y + margin, panel.min_x + height / q + margin,
                  panel.min_y - margin);
  } else {
    // The upper edge leaves min_y out: that is how this preview is framed.
    picture.Scale(panel.min_x - margin, width * q + margin, panel.max_x + margin, panel.min_y - margin);
  }
  const auto line = [&](const PlotPoint& p, const PlotPoint& to) {
    picture.Line(p.x, p.y, to.x, to.y, Green);
  };
  for (std::size_t i = 0; i < panel.end; ++i) {
    line(panel.A[i], panel.B[i]);
    line(panel.B[i], panel.C[i]);
    line(panel.C[i], panel.D[i]);
    line(panel.D[i], panel.A[i]);
  }
  Form1.Picture2.ShowNow();
}

void PutHead(std::string& out) {
  PutLine(out, "start_plot");
  PutLine(out, "/* Hull Xscale: " + PlainText(PlotXScale) + " Yscale: " + PlainText(PlotYScale) + " " +
                   DateText() + " */");
}

void PutTicks(std::string& out, const FlatPanel& panel) {
  for (std::size_t i = 0; i < panel.end; i += 2) {
    PutMove(out, panel.A[i].x, panel.A[i].y);
    PutLine(out, "1 pendown");
    PutMove(out, panel.B[i].x, panel.B[i].y);
    PutLine(out, "1 penup");
  }
}

/// Names the two ends, the inner bulkheads (at triangles 6, 12 and 18), and top and bottom.
void PutLettering(std::string& out, const FlatPanel& panel) {
  const auto put = [&out](const char* text, double x, double y) { PlotText(out, text, 0.25, 0, x, y); };
  const auto put_at_rung = [&](const char* text, std::size_t i) {
    put(text, (panel.A[i].x + panel.B[i].x) / 2 + 0.25, (panel.A[i].y + panel.B[i].y) / 2);
  };
  put_at_rung("F", 0);
  put_at_rung("BH1", 6);
  put_at_rung("BH2", 12);
  put("T", panel.B[12].x + 0.25, panel.B[12].y - 0.5);
  put("B", panel.A[12].x + 0.25, panel.A[12].y + 0.25);
  put_at_rung("BH3", 18);
  put("A", (panel.C[23].x + panel.D[23].x) / 2 - 0.5, (panel.C[23].y + panel.D[23].y) / 2);
}

/// The pen stays down from the first rung along the upper edge, down the last rung and back along
/// the lower edge, so the outline is closed.
void PutOutline(std::string& out, const FlatPanel& panel) {
  PutMove(out, panel.A[0].x, panel.A[0].y);
  PutLine(out, "0 pendown");
  EdgeKnots upper;
  for (std::size_t i = 0; i < panel.end; ++i) {
    upper.AddUnlessSame(panel.B[i]);
    upper.AddUnlessSame(panel.C[i]);
  }
  PutSplineEdge(out, upper);
  EdgeKnots lower;
  for (std::size_t i = panel.end; i-- > 0;) {
    lower.AddUnlessSame(panel.D[i]);
    lower.AddUnlessSame(panel.A[i]);
  }
  PutSplineEdge(out, lower);
  PutLine(out, "1 penup");
}

}  // namespace

FlatPanel Unfold(const TriangleEdges& edges) {
  FlatPanel panel;
  panel.end = FindEnd(edges);
  CarriedOver carried;
  for (std::size_t i = 0; i < panel.end; ++i) {
    PlaceTriangle(panel, i, edges, carried);
  }
  for (std::size_t i = 1; i < panel.end; ++i) {
    ChainTriangle(panel, i, carried);
  }
  return panel;
}

std::string PanelPattern(const FlatPanel& panel) {
  std::string out;
  PutHead(out);
  PutTicks(out, panel);
  if (Form3.Check5.Value) {
    PutLettering(out, panel);
  }
  PutOutline(out, panel);
  return out;
}

void ExpandOnePanel(const std::string& name) {
  Form1.StatusBar1.Panels[1] = "Expanding..." + name + "angulation";
  const TriangleEdges edges = ReadTriangles(ReadOrEmpty(name));
  const FlatPanel panel = Unfold(edges);
  DrawPreview(panel, edges.divisor);
  ReadPlotScale();
  Store(PlotXScale, PlotXScale / edges.divisor);
  Store(PlotYScale, PlotYScale / edges.divisor);
  WriteTextFile(name.substr(0, name.find('.') + 1) + "uc", PanelPattern(panel));
}

void ExpandPanels() {
  for (const std::string& name : DevelopedPanels()) {
    ExpandOnePanel(name + ".tri");
  }
  Form1.StatusBar1.Panels[1] = "Done...";
}
