#include "nest/nest_editing.h"

#include <cmath>
#include <string>

#include "base/number_text.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "nest/nest_model.h"
#include "nest/nest_view.h"

namespace {

constexpr double BeyondReach = 1000;  ///< where a search for the nearest begins

const NestInstance& Selected() {
  return NestInstances[static_cast<std::size_t>(NestCopySelected)];
}

double Distance(NestPoint a, NestPoint b) {
  const double dx = a.x - b.x;
  const double dy = a.y - b.y;
  return std::sqrt(dx * dx + dy * dy);
}

void DragTo(NestPoint pointer) {
  Selected().pos_x(NestCurrent) = pointer.x;
  Selected().pos_y(NestCurrent) = pointer.y;
  Form2.Picture1.Refresh();
}

struct SnapPoint {
  int p = 0;  ///< 0 if nothing is in reach
  NestPoint at{0, 0};
};

SnapPoint NearestPoint(NestPoint pointer) {
  SnapPoint nearest;
  double shortest = BeyondReach;
  const auto try_point = [&](const NestInstance& instance, int p, int k) {
    const NestPoint at = instance.OnSheets(p, k);
    const double d = Distance(at, pointer);
    if (instance.Shown(p) && d < shortest) {
      shortest = d;
      nearest = {p, at};
    }
  };
  for (int p = 1; p <= NestPartCount; ++p) {
    for (int k = 1; k <= StoredPoints(p); ++k) {
      try_point(NestInstances[0], p, k);
      try_point(NestInstances[1], p, k);
    }
  }
  return nearest;
}

void ReadOut(NestPoint pointer) {
  const SnapPoint snap = NearestPoint(pointer);
  if (snap.p == 0) {
    return;
  }
  const auto [x, y] = snap.at;
  if (x != NestSnapX || y != NestSnapY) {
    Form2.Picture1.Refresh();
    DrawSnapCross(x, y);
  }
  Form2.Caption = NestName(snap.p) + ": " + FixedText(x, 2) + "'' " + FixedText(y, 2) + "'' (" +
                  InchesAndEighths(x, x) + "'' " + InchesAndEighths(y, y) + "'')";
  if (!NestSnapDrawn) {
    DrawSnapDistances(x, y);
    NestSnapDrawn = true;
  }
  NestSnapX = x;
  NestSnapY = y;
}

/// How far an outline lies beyond the row of sheets. The last point isn't looked at: an outline ends
/// where it began.
NestPoint Overshoot(const NestInstance& instance, int p) {
  NestPoint over{0, 0};
  for (int k = 1; k <= StoredPoints(p) && k < NestPointCount(p); ++k) {
    const auto [x, y] = instance.OnSheets(p, k);
    if (x < 0 && x < over.x) {
      over.x = x;
    }
    if (y < 0 && y < over.y) {
      over.y = y;
    }
    if (x > SheetRowLength && x - SheetRowLength > over.x) {
      over.x = x - SheetRowLength;
    }
    if (y > SheetHeight && y - SheetHeight > over.y) {
      over.y = y - SheetHeight;
    }
  }
  return over;
}

/// A center near the lower or upper edge is meant to lie on it; only elsewhere the outline comes back.
void Tidy(const NestInstance& instance, int p) {
  const NestPoint over = Overshoot(instance, p);
  const double y = instance.pos_y(p);
  instance.pos_x(p) -= over.x;
  if (y > 0.5 && y < SheetHeight - 0.5) {
    instance.pos_y(p) -= over.y;
  } else if (y < 0.5) {
    instance.pos_y(p) = 0;
  } else if (std::abs(y - SheetHeight) <= SheetHeight * 0.1) {
    instance.pos_y(p) = SheetHeight;
  }
}

}  // namespace

void Form2_List1_Click() {
  const int p = Form2.List1.ListIndex() + 1;
  if (NestShown(p) == 1) {
    NestShown(p) = 0;
    NestCopyShown(p) = 0;
  } else {
    NestShown(p) = 1;
    NestCurrent = p;
    NestCopySelected = 0;
  }
  Form2.Picture1.Refresh();
}

void Form2_Command1_Click() {
  for (int k = 1; k <= StoredPoints(NestCurrent); ++k) {
    Selected().y(NestCurrent, k) *= -1;
  }
  Form2.Picture1.Refresh();
}

void RotateSelected(double degrees) {
  const double t = degrees * CoarsePi / 180;
  const int p = NestCurrent;
  for (int k = 1; k <= StoredPoints(p); ++k) {
    const double x = Selected().x(p, k);
    const double y = Selected().y(p, k);
    Selected().x(p, k) = x * std::cos(t) - y * std::sin(t);
    Selected().y(p, k) = x * std::sin(t) + y * std::cos(t);
  }
  Form2.Picture1.Refresh();
}

void Form2_Command2_Click() {
  RotateSelected(180);
}

void Form2_Command3_Click() {
  RotateSelected(90);
}

void Form2_Command4_Click() {
  RotateSelected(0.25);
}

void Form2_Command6_Click() {
  RotateSelected(-0.25);
}

void Form2_Command5_Click() {
  const int p = NestCurrent;
  if (NestCopyShown(p) == NestShown(p)) {
    NestCopyShown(p) = 0;
  } else {
    NestCopyShown(p) = NestShown(p);
    NestCopyPosX(p) = NestPosX(p) + 3;
    NestCopyPosY(p) = NestPosY(p) + 3;
  }
  Form2.Picture1.Refresh();
}

void Form2_Command7_Click() {
  const std::string view = Form2.Command7.Caption;
  Form2.Command7.Caption = std::string(view == "Wide View"   ? "Full View"
                                       : view == "Full View" ? "False View"
                                                             : "Wide View");
  if (*Form2.Command7.Caption == "Wide View") {
    Form2.Picture1.Width = SlidingPicture::WidestView;
  }
  Form2_Resize();
  Form2_Sheets_Change();
}

void Form2_Resize() {
  constexpr int border = 240;
  if (*Form2.Command7.Caption != "Wide View") {
    Form2.Picture1.Width = Form2.Width - border;
  }
}

void Form2_Sheets_Change() {
  Form2.Picture1.Left = SlidingPicture::LeftAtRest;
  Form2.Picture1.Refresh();
}

void Form2_Image3_Click() {
  if (Form2.Picture1.Left > SlidingPicture::LeftAtRest) {
    Form2.Beep();
  } else {
    Form2.Picture1.Left = Form2.Picture1.Left + 3000;
  }
}

void Form2_Image4_Click() {
  if (Form2.Picture1.Left + SlidingPicture::WidestView < Form2.Width) {
    Form2.Beep();
  } else {
    Form2.Picture1.Left = Form2.Picture1.Left - 3000;
  }
}

void Form2_KeyDown(int& key) {
  if (key == LeftKey) {
    Form2_Image4_Click();
    key = NoKey;
  } else if (key == RightKey) {
    Form2_Image3_Click();
    key = NoKey;
  }
}

void Form2_Picture1_MouseDown(int /*button*/, double x, double y) {
  constexpr double handle_reach = 12;
  double shortest = BeyondReach;
  for (int p = 1; p <= NestPartCount; ++p) {
    for (const int copy : {0, 1}) {
      const double d = Distance(NestInstances[static_cast<std::size_t>(copy)].Center(p), {x, y});
      if (d < shortest) {
        shortest = d;
        if (d < handle_reach) {
          NestCurrent = p;
          NestCopySelected = copy;
        }
      }
    }
  }
}

void Form2_Picture1_MouseMove(int button, double x, double y) {
  if (button != 0) {
    DragTo({x, y});
  } else {
    ReadOut({x, y});
  }
}

void Form2_Picture1_MouseUp(int /*button*/, double /*x*/, double /*y*/) {
  for (int p = 1; p <= NestPartCount; ++p) {
    Tidy(NestInstances[0], p);
    if (NestInstances[1].Shown(p)) {
      Tidy(NestInstances[1], p);
    }
  }
  Form2.Picture1.Refresh();
}
