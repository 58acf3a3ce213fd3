#include "panels/triangulation.h"

#include <cmath>
#include <string>

#include "base/files.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

struct Point {
  double x;
  double y;
  double z;
};

Point At(int station, int chine) {
  return {HullPts(1, station, chine), HullPts(2, station, chine), HullPts(3, station, chine)};
}

Point Mirrored(const Point& p) {
  return {-p.x, p.y, p.z};
}

double Distance(const Point& p, const Point& q) {
  const double x = p.x - q.x;
  const double y = p.y - q.y;
  const double z = p.z - q.z;
  return std::sqrt(x * x + y * y + z * z);
}

/// Lengths of the panel between two edges, each told by a function from the station to its point.
/// The diagonal always runs from the lower edge at the next station to the upper edge at this one.
template <class Lower, class Upper>
TriangleEdges Panel(Lower lower, Upper upper) {
  TriangleEdges edges;
  edges.divisor = 1;
  for (int k = 1; k <= Stations; ++k) {
    const auto first = static_cast<std::size_t>(2 * k - 2);
    Store(edges.cross[first], Distance(lower(k), upper(k)));
    if (k < Stations) {
      Store(edges.cross[first + 1], Distance(lower(k + 1), upper(k)));
      Store(edges.lower[first], Distance(lower(k), lower(k + 1)));
      Store(edges.upper[first + 1], Distance(upper(k), upper(k + 1)));
    }
  }
  return edges;
}

void WritePanel(const std::string& name, const TriangleEdges& edges) {
  WriteTextFile(name + ".tri", TriangleText(edges));
}

}  // namespace

TriangleEdges OpenPanel(int chine) {
  return Panel([chine](int k) { return At(k, chine); }, [chine](int k) { return At(k, chine + 1); });
}

TriangleEdges MirroredPanel(int chine) {
  return Panel([chine](int k) { return Mirrored(At(k, chine)); }, [chine](int k) { return At(k, chine); });
}

void WriteTriFiles() {
  for (int c = 1; c < NumChines; ++c) {
    WritePanel("chine" + std::to_string(c), OpenPanel(c));
  }
  if (Form3.Check10.Value) {
    WritePanel("keel", MirroredPanel(1));
  }
  if (Form3.Check9.Value) {
    WritePanel("deck", MirroredPanel(NumChines));
  }
  if (Form3.Check8.Value) {
    WritePanel("sole1", MirroredPanel(2));
    WritePanel("sole2", MirroredPanel(3));
  }
}
