#include "panels/flat_parts.h"

#include <cmath>
#include <string>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "panels/lettering.h"
#include "panels/pattern_file.h"

namespace {

constexpr double LetterSize = 0.375;

/// How a contour is closed.
struct Closing {
  bool on_centre_line;
  bool one_side_only;
};

void PutCentrePoint(std::string& out, double y) {
  PutMove(out, 0, y);
}

void PutMirror(std::string& out, const PlotPoint& p) {
  PutMove(out, -p.x, p.y);
}

/// Up one side, down the other, and back to the first point. `point(c)` tells the points from the
/// lowest chine to the top and is asked anew for each line; a point without a value is not drawn.
template <class PointOf>
void PutContour(std::string& out, PointOf point, Closing closing) {
  const auto put = [&](int c) {
    const PlotPoint p = point(c);
    PutMove(out, p.x, p.y);
  };
  put(1);
  PutLine(out, "0 pendown");
  for (int c = 2; c <= NumChines; ++c) {
    put(c);
  }
  if (closing.on_centre_line) {
    PutCentrePoint(out, point(NumChines).y);
  }
  if (!closing.one_side_only) {
    for (int c = NumChines; c >= 1; --c) {
      PutMirror(out, point(c));
    }
  }
  if (closing.on_centre_line) {
    PutCentrePoint(out, point(1).y);
  }
  put(1);
  PutLine(out, "0 penup");
}

/// A hole for a plank of 1.5 by 3.5 inches, on the centre line at the mean height of the hull.
void PutSparCutOut(std::string& out, double height) {
  constexpr double half_width = 0.75;
  const double low = height - 1.75;
  const double high = height + 1.75;
  PutMove(out, -half_width, low);
  PutLine(out, "0 pendown");
  PutMove(out, -half_width, high);
  PutMove(out, half_width, high);
  PutMove(out, half_width, low);
  PutMove(out, -half_width, low);
  PutLine(out, "0 penup");
}

double SparHeight() {
  double sum = 0;
  for (int c = 1; c <= NumChines; ++c) {
    for (int k = 1; k <= 3; ++k) {
      sum += OffY(c, k);
    }
  }
  return sum / (3 * NumChines);
}

void PutLettering(std::string& out, const std::string& text, double x, double y) {
  if (Form3.Check5.Value) {
    PlotText(out, text, LetterSize, 0, x, y);
  }
}

void WriteBulkhead(int b, double spar_height) {
  const auto point = [b](int c) { return PlotPoint{OffX(c, b), OffY(c, b)}; };
  std::string out;
  PutFlatHead(out);
  PutLettering(out, "BH" + std::to_string(b), 0.25, OffY(1, b) + 0.25);
  PutLine(out, HandPlotAllMark);
  PutLine(out, "0 penup");
  PutContour(out, point, {true, Form3.Check6.Value});
  if (Form3.Check2.Value) {
    PutSparCutOut(out, spar_height);
  }
  PutLine(out, "end_plot");
  WriteTextFile("bhead" + std::to_string(b) + ".uc", out);
}

/// Where a frame cuts the chines. A chine that the frame misses gives the point asked for before.
class FrameSection {
 public:
  PlotPoint PointOf(double frame_z, int c) {
    int k = 1;
    while (k <= 12 && !(frame_z > HullPts(3, k, c) && frame_z <= HullPts(3, k + 1, c))) {
      ++k;
    }
    if (k <= 12) {
      const double f = (frame_z - HullPts(3, k, c)) / (HullPts(3, k + 1, c) - HullPts(3, k, c));
      Store(last_.x, HullPts(1, k, c) + (HullPts(1, k + 1, c) - HullPts(1, k, c)) * f);
      Store(last_.y, HullPts(2, k, c) + (HullPts(2, k + 1, c) - HullPts(2, k, c)) * f);
    }
    return last_;
  }

 private:
  PlotPoint last_;
};

void WriteFrame(int i, double spar_height, FrameSection& section) {
  const auto point = [&section, z = FrameInches(i)](int c) { return section.PointOf(z, c); };
  const std::string number = std::to_string(i + 1);
  std::string out;
  PutFlatHead(out);
  PutLine(out, "0 penup");
  if (Form3.Check5.Value) {
    PutLettering(out, "FRM" + number, 0.25, point(1).y + 0.25);
  }
  PutLine(out, HandPlotAllMark);
  PutContour(out, point, {true, Form3.Check6.Value});
  if (Form3.Check2.Value) {
    PutSparCutOut(out, spar_height);
  }
  PutLine(out, "end_plot");
  WriteTextFile("frame" + number + ".uc", out);
}

/// Sets a frame's box, and by its change event FrameZ, to a station's place.
void SetFrame(int i, double z) {
  Form3.FrameText[static_cast<std::size_t>(i)].Text = PlainText(z);
}

/// Brings each frame between the hull's ends. 0 means no frame and stays.
void ClampFrames() {
  for (int i = 0; i < FrameCount; ++i) {
    const auto value = [&] { return NumberOf(*Form3.FrameText[static_cast<std::size_t>(i)].Text); };
    for (int c = 1; c <= NumChines; ++c) {
      if (value() > HullPts(3, Stations, c)) {
        SetFrame(i, HullPts(3, Stations, c));
      }
    }
    for (int c = 1; c <= NumChines; ++c) {
      if (value() > 0 && value() < HullPts(3, 1, c)) {
        SetFrame(i, HullPts(3, 1, c));
      }
    }
  }
}

/// A raked transom or stem in its own plane: X as it is, V along the plane.
struct RakedContour {
  static constexpr int Room = 11;  // chines 1 to 10; what goes beyond fails
  Table<Room> X;
  Table<Room> V;
};

/// Develops bulkhead B. `direction(c)` tells which way V goes from chine c - 1 to chine c.
template <class Direction>
RakedContour Develop(int B, Direction direction) {
  RakedContour contour;
  contour.X(1) = OffX(1, B);
  contour.V(1) = 0;
  for (int c = 2; c <= NumChines; ++c) {
    contour.X(c) = OffX(c, B);
    const double x = OffX(c, B) - OffX(c - 1, B);
    const double y = OffY(c, B) - OffY(c - 1, B);
    const double z = OffZ(c, B) - OffZ(c - 1, B);
    const double L = std::sqrt(x * x + y * y + z * z);
    const double d = contour.X(c) - contour.X(c - 1);
    const double v = std::sqrt(L * L - d * d);
    contour.V(c) = contour.V(c - 1) + direction(c) * v;
  }
  return contour;
}

template <class Direction>
void WriteRaked(int B, const char* label, const char* file, bool is_stem, Direction direction) {
  const RakedContour contour = Develop(B, direction);
  const auto point = [&contour](int c) { return PlotPoint{contour.X(c), contour.V(c)}; };
  std::string out;
  PutFlatHead(out);
  PutLettering(out, label, -OffX(1, B) + 0.25, 0.25);
  PutLine(out, HandPlotAllMark);
  PutLine(out, "0 penup");
  // The stem has no points on the centre line, and both its sides whatever the box says.
  PutContour(out, point, {!is_stem, !is_stem && Form3.Check6.Value});
  PutLine(out, "end_plot");
  WriteTextFile(file, out);
}

void WriteTransom() {
  constexpr int B = 4;
  const auto toward_higher_chine = [](int c) {
    const double fall = OffY(c - 1, B) - OffY(c, B);
    return fall < 0 ? 1.0 : (fall > 0 ? -1.0 : 0.0);
  };
  WriteRaked(B, "trnsm", "transom.uc", false, toward_higher_chine);
}

void WriteStem() {
  const auto always_up = [](int) { return 1.0; };
  WriteRaked(0, "stem", "stem.uc", true, always_up);
}

void WriteSheet() {
  constexpr double length = 96;
  constexpr double width = 48;
  std::string out;
  PutFlatHead(out);
  PutLettering(out, "4x8", 0.25, 0.25);
  PutLine(out, "1 penup");
  PutMove(out, 0, 0);
  PutLine(out, "1 pendown");
  PutMove(out, length, 0);
  PutMove(out, length, width);
  PutMove(out, 0, width);
  PutMove(out, 0, 0);
  PutLine(out, "1 penup");
  PutLine(out, "end_plot");
  WriteTextFile("4x8.uc", out);
}

}  // namespace

void WriteFlatParts() {
  const double spar_height = SparHeight();
  for (int b = 1; b <= 3; ++b) {
    WriteBulkhead(b, spar_height);
  }
  DeleteFile("temp.uc");
  ClampFrames();
  FrameSection section;
  for (int i = 0; i < FrameCount; ++i) {
    if (FrameInches(i) > 0) {
      WriteFrame(i, spar_height, section);
    }
  }
  WriteTransom();
  if (Form3.Check7.Value) {
    WriteStem();
  }
  WriteSheet();
}
