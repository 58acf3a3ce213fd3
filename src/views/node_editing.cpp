#include "views/node_editing.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "base/number_text.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hydro/hydrostatics.h"
#include "views/view.h"
#include "views/zoom.h"

namespace {

constexpr int NoButton = 0;
constexpr int LeftButton = 1;
constexpr int RightButton = 2;

constexpr double PickRadius = 1000;
constexpr double SnapRadius = 0.25;

/// What a stem half-width of 0 or less becomes here. RecomputeHull has a floor of its own.
constexpr double DraggedStemFloor = 0.1;

bool EditsOffsets() {
  return Form1.AutoSpline.Checked;
}

void PickNode(Axes axes, double x, double y) {
  CurChine = CurStation = -1;
  double best = PickRadius;
  const int first = EditsOffsets() ? 0 : 1;
  const int last = EditsOffsets() ? Bulkheads - 1 : Stations;
  for (int c = 1; c <= NumChines; ++c) {
    for (int k = first; k <= last; ++k) {
      const ViewPoint node = EditsOffsets() ? OffsetNode(axes, c, k) : HullPoint(axes, k, c);
      const double du = node.u - x;
      const double dv = node.v - y;
      const double d = std::sqrt(du * du + dv * dv);
      if (d < best) {
        CurChine = c;
        CurStation = k;
        best = d;
      }
    }
  }
}

/// One coordinate of the current node in the table that the mode edits. Station 0 is no node: it stays
/// empty.
Cell CurrentNode(int coordinate) {
  if (EditsOffsets()) {
    return OffsetsOf(coordinate)(CurChine, CurStation);
  }
  return HullPts(coordinate, CurStation == 0 ? -1 : CurStation, CurChine);
}

char Letter(int coordinate) {
  return "xyz"[coordinate - 1];
}

/// The panel that shows a coordinate: X in 5, Y in 4, Z in 3.
Property<std::string>& PanelOf(int coordinate) {
  return Form1.StatusBar1.Panels[static_cast<std::size_t>(6 - coordinate)];
}

/// The texts of the offsets that this step of a drag has written, by coordinate; empty for what was not
/// written or was put to a floor since. Only these show in the panels.
using WrittenTexts = std::array<std::string, 4>;

/// Writes a coordinate of the current node as the text of two decimals gives it.
void WriteNode(int coordinate, double value, WrittenTexts& written) {
  const std::string text = FixedText(value, 2);
  if (text.empty() || !HasValue(CurrentNode(coordinate))) {
    return;
  }
  CurrentNode(coordinate) = NumberOf(text);
  if (EditsOffsets()) {
    written[static_cast<std::size_t>(coordinate)] = text;
  }
}

/// An interior bulkhead moves along the hull as a whole, and its box follows.
void MoveBulkhead(double z) {
  Form1.Text1[static_cast<std::size_t>(CurStation)].Text = FixedText(z, 2);
  for (int c = 1; c <= NumChines; ++c) {
    OffZ(c, CurStation) = z;
  }
}

void DragAcross(int coordinate, double value, WrittenTexts& written) {
  const bool along_hull = coordinate == 3 && EditsOffsets();
  if (along_hull && Form1.LockBulkheads.Checked) {
    return;
  }
  if (along_hull && CurStation >= 1 && CurStation <= 3) {
    MoveBulkhead(value);
  } else {
    WriteNode(coordinate, value, written);
  }
}

/// On the offsets whatever the mode; the stem of the current chine is looked at whichever bulkhead is
/// dragged. What becomes a floor is a plain number from then on and shows in no panel.
void HoldAtFloors(WrittenTexts& written) {
  for (int coordinate = 1; coordinate <= 3; ++coordinate) {
    const Cell value = OffsetsOf(coordinate)(CurChine, CurStation);
    if (value < 0) {
      OffsetsOf(coordinate)(CurChine, CurStation) = 0;
      written[static_cast<std::size_t>(coordinate)].clear();
    }
  }
  if (OffX(CurChine, 0) <= 0) {
    OffX(CurChine, 0) = DraggedStemFloor;
    if (CurStation == 0) {
      written[1].clear();
    }
  }
}

void ShowWritten(const WrittenTexts& written) {
  for (int coordinate = 1; coordinate <= 3; ++coordinate) {
    const std::string& text = written[static_cast<std::size_t>(coordinate)];
    if (!text.empty()) {
      PanelOf(coordinate) = text + Letter(coordinate);
    }
  }
}

void DragNode(double x, double y) {
  WrittenTexts written;
  const View view = CheckedView();
  if (view != View::Spin) {
    if (!EditsOffsets()) {
      RestoreUprightHull();
    }
    const Axes axes = AxesOf(view);
    DragAcross(axes.across, x, written);
    WriteNode(axes.up, y, written);
  }
  HoldAtFloors(written);
  ShowWritten(written);
  Form1.Refresh();
}

void ShowPointer(double x, double y) {
  const View view = CheckedView();
  if (view == View::Spin) {
    return;
  }
  const Axes axes = AxesOf(view);
  for (int coordinate = 1; coordinate <= 3; ++coordinate) {
    const std::string across = coordinate == axes.across ? FixedText(x, 2) : "";
    const std::string up = coordinate == axes.up ? FixedText(y, 2) : "";
    PanelOf(coordinate) = across + up + Letter(coordinate);
  }
}

void DragFigure(double x, double y) {
  FigureOffsetX = x;
  FigureOffsetY = y;
  Form1.Picture2.Refresh();
}

/// No value without a current node.
double DistanceToCurrent(int c, int b) {
  const double dx = OffX(c, b) - OffX(CurChine, CurStation);
  const double dy = OffY(c, b) - OffY(CurChine, CurStation);
  const double dz = OffZ(c, b) - OffZ(CurChine, CurStation);
  return std::sqrt(dx * dx + dy * dy + dz * dz);
}

void SnapToNeighbour() {
  for (int c = 1; c <= NumChines; ++c) {
    for (int b = 0; b < Bulkheads; ++b) {
      const bool itself = c == CurChine && b == CurStation;
      if (!itself && DistanceToCurrent(c, b) < SnapRadius) {
        for (int coordinate = 1; coordinate <= 3; ++coordinate) {
          OffsetTable& offsets = OffsetsOf(coordinate);
          offsets(CurChine, CurStation) = offsets(c, b);
        }
        return;
      }
    }
  }
}

/// After an edit the results, and the center of gravity of a heel, hold no longer.
void EndWaterlineMode() {
  Form1.EnterWaterline.Checked = false;
  Form1.HScroll1.Visible = false;
  Form1.EnterHeel.Enabled = false;
  Form1.Combo1.Visible = false;
  GravityCenterX = GravityCenterY = GravityCenterZ = 0;
}

/// False when the user gives no answer, or there is no node to ask for.
bool AskCoordinate(int coordinate) {
  static constexpr const char* extents[] = {"Width", "Height", "Length"};
  if (!EditsOffsets()) {
    RestoreUprightHull();
  }
  const double value = CurrentNode(coordinate);
  if (!HasValue(value)) {
    return false;
  }
  const std::string prompt = std::string("Enter a new ") + "XYZ"[coordinate - 1] + " value:";
  const std::string title =
      std::string(EditsOffsets() ? "New Bulkhead " : "New Spline ") + extents[coordinate - 1];
  const std::string answer = InputBox(prompt, title, FixedText(value, 2));
  if (answer.empty()) {
    return false;
  }
  CurrentNode(coordinate) = NumberOf(answer);
  Form1.Refresh();
  return true;
}

}  // namespace

void Picture2_MouseDown(int button, double x, double y) {
  if (button == RightButton) {
    StartZoom(x, y);
  }
  if (const View view = CheckedView(); view != View::Spin) {
    PickNode(AxesOf(view), x, y);
  }
}

void Picture2_MouseMove(int button, double x, double y) {
  if (FigureIndex > -1 && button != NoButton) {
    DragFigure(x, y);
  } else if (button == RightButton) {
    DragZoom(y);
  } else if (button == LeftButton) {
    DragNode(x, y);
  } else {
    ShowPointer(x, y);
  }
}

void Picture2_MouseUp(int button, double, double) {
  if (button == RightButton) {
    OrderZoom();
  } else {
    SnapToNeighbour();
  }
  EndWaterlineMode();
  Form1.Refresh();
}

void Picture2_DblClick() {
  if (CheckedView() == View::Spin) {
    return;
  }
  for (int coordinate = 1; coordinate <= 3; ++coordinate) {
    if (!AskCoordinate(coordinate)) {
      return;
    }
  }
}
