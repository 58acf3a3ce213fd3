#include "panels/hull_drawing.h"

#include <algorithm>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "panels/dxf_text.h"

namespace {

struct Vertex {
  double x;
  double y;
  double z;
};

/// One view: where a point of the hull goes, with its X already signed for its side.
using View = Vertex (*)(const Vertex& hull, double M);

Vertex BodyView(const Vertex& hull, double /*M*/) {
  return hull;
}

Vertex ProfileView(const Vertex& hull, double M) {
  return {hull.z + 2 * M, hull.y, hull.x};
}

Vertex PlanView(const Vertex& hull, double M) {
  return {hull.z + 2 * M, hull.x + 3 * M, hull.y};
}

double LargestHalfBreadth() {
  double largest = 0;
  for (int c = 1; c <= NumChines; ++c) {
    for (int k = 1; k <= Stations; ++k) {
      largest = std::max<double>(largest, HullPts(1, k, c));
    }
  }
  return largest;
}

/// Port and starboard side of the hull.
constexpr double Port = -1;
constexpr double Starboard = 1;

/// Appends polylines of one view.
class ViewWriter {
 public:
  ViewWriter(std::string& out, View view, double M) : out_(out), view_(view), M_(M) {}

  void PutBulkheads() {
    for (int b = 0; b < Bulkheads; ++b) {
      Start();
      for (int c = NumChines; c >= 1; --c) {
        PutOffset(Port, c, b);
      }
      for (int c = 1; c <= NumChines; ++c) {
        PutOffset(Starboard, c, b);
      }
      out_ += DxfPolylineEnd;
    }
  }

  void PutChines() {
    for (int c = 1; c <= NumChines; ++c) {
      Start();
      for (int k = 1; k <= Stations; ++k) {
        PutHullPoint(Port, k, c);
      }
      for (int k = Stations; k >= 1; --k) {
        PutHullPoint(Starboard, k, c);
      }
      PutHullPoint(Port, 1, c);
      out_ += DxfPolylineEnd;
    }
  }

 private:
  void Start() {
    out_ += DxfPolyline;
    out_ += " 30\r\n0.0\r\n";
  }
  void PutOffset(double side, int c, int b) { PutVertex({side * OffX(c, b), OffY(c, b), OffZ(c, b)}); }
  void PutHullPoint(double side, int k, int c) {
    PutVertex({side * HullPts(1, k, c), HullPts(2, k, c), HullPts(3, k, c)});
  }
  void PutVertex(const Vertex& hull) {
    const Vertex at = view_(hull, M_);
    if (!HasValue(at.x) || !HasValue(at.y) || !HasValue(at.z)) {
      return;
    }
    out_ += DxfVertex;
    PutGroup(" 10\r\n", at.x);
    PutGroup(" 20\r\n", at.y);
    PutGroup(" 30\r\n", at.z);
  }
  void PutGroup(std::string_view code, double value) {
    out_ += code;
    AppendPrintText(out_, value);
    out_ += LineEnd;
  }

  std::string& out_;
  View view_;
  double M_;
};

}  // namespace

std::string HullDrawingName(std::string_view hull_file) {
  const std::size_t folder = hull_file.find_last_of("/\\");
  const std::size_t own_name = folder == std::string_view::npos ? 0 : folder + 1;
  const std::size_t dot = hull_file.find('.', own_name);
  return std::string(hull_file.substr(0, dot)) + ".";
}

std::string HullDxf() {
  const double M = LargestHalfBreadth();
  std::string out(DxfFileHead);
  for (const View view : {BodyView, ProfileView, PlanView}) {
    ViewWriter writer(out, view, M);
    writer.PutBulkheads();
    writer.PutChines();
  }
  out += DxfFileTail;
  return out;
}

void WriteHullDxf() {
  const std::string name = HullDrawingName(HullFileName);
  Form1.StatusBar1.Panels[1] = "Saving hull drawing " + name + "DXF...";
  WriteTextFile(name + "dxf", HullDxf());
}
