#include "nest/nest_view.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "controls/forms.h"
#include "nest/nest_model.h"
#include "nest/nest_segments.h"

namespace {

DrawSurface& Picture() {
  return *Form2.Picture1;
}

void PrintAt(double x, double y, std::string_view text, int colour) {
  Picture().PSet(x, y, colour);
  Picture().Print(text, colour);
}

/// The row lies at its margin on the left, so that the wide view begins with sheet 1, and in the middle
/// of what height there is to spare. Where the fit leaves less than two margins, both sides share it.
void ScaleInProportion() {
  constexpr double margin = 1.5;
  const double shape = Picture().Width() / Picture().Height();
  const bool by_width = shape < SheetRowLength / SheetHeight;
  const double across = by_width ? SheetRowLength + 2 * margin : (SheetHeight + 2 * margin) * shape;
  const double up = by_width ? across / shape : SheetHeight + 2 * margin;
  const double left = std::min(margin, (across - SheetRowLength) / 2);
  const double below = (up - SheetHeight) / 2;
  Picture().Scale(-left, up - below, across - left, -below);
}

void ScalePicture() {
  constexpr double margin = 1.5;
  if (*Form2.Command7.Caption == "False View") {
    Picture().Scale(-margin, SheetHeight + margin, SheetRowLength + margin, -margin);
  } else {
    ScaleInProportion();
  }
}

void DrawSheets() {
  for (int i = 0; i < SheetCount(); ++i) {
    const double s = i * SheetLength;
    Picture().Box(s, SheetHeight, s + SheetLength, 0, LightGrey);
    PrintAt(s, SheetHeight, PrintText(1 + s / SheetLength), LightGrey);
  }
}

void DrawInstance(const NestInstance& instance, int p) {
  const NestPoint start = instance.OnSheets(p, 1);
  const NestPoint center = instance.Center(p);
  Picture().Circle(start.x, start.y, SheetHeight / 100, Magenta);
  ForEachSegment(instance, p,
                 [](NestPoint from, NestPoint to) { Picture().Line(from.x, from.y, to.x, to.y, Black); });
  Picture().Box(center.x - 1, center.y - 1, center.x + 1, center.y + 1, LightMagenta);
  if (Form2.Check2.Value) {
    constexpr double beside_handle = 1.2;
    PrintAt(center.x + beside_handle, center.y, instance.prefix + NestName(p), Black);
  }
}

void DrawParts() {
  for (int p = 1; p <= NestPartCount; ++p) {
    for (const NestInstance& instance : NestInstances) {
      if (instance.Shown(p)) {
        DrawInstance(instance, p);
      }
    }
  }
}

void DrawSelection() {
  if (NestCurrent > 0) {
    const NestPoint center = NestInstances[static_cast<std::size_t>(NestCopySelected)].Center(NestCurrent);
    Picture().FilledBox(center.x - 1, center.y - 1, center.x + 1, center.y + 1, LightGreen);
  }
}

}  // namespace

void Form2_Picture1_Paint() {
  ReadSheets();
  Picture().Cls();
  NestSnapDrawn = false;
  if (!(SheetHeight > 0 && SheetLength > 0)) {
    return;
  }
  ScalePicture();
  DrawSheets();
  DrawParts();
  DrawSelection();
}

void DrawSnapCross(double x, double y) {
  Picture().Line(x + 0.5, y, x + 2, y, LightMagenta);
  Picture().Line(x - 0.5, y, x - 2, y, LightMagenta);
  Picture().Line(x, y + 0.5, x, y + 2, LightRed);
  Picture().Line(x, y - 0.5, x, y - 2, LightRed);
}

void DrawSnapDistances(double x, double y) {
  const int n = SheetAt(x);
  if (n == 0) {
    return;
  }
  const double o = (n - 1) * SheetLength;
  const std::string across = InchesAndEighths(x - o, x) + "''";
  Picture().Line(o, y + 1, x, y + 1, LightRed);
  PrintAt((o + x) / 2 - Picture().TextWidth(across) / 2, y + 1, across, LightRed);
  Picture().Line(x + 1, 0, x + 1, y, LightRed);
  constexpr double beside = 0.5;  // clear of the line
  PrintAt(x + 1 + beside, y / 2, InchesAndEighths(y, y) + "''", LightRed);
}
