#include "nest/nest_pages.h"

#include <algorithm>

#include "controls/dialogs.h"
#include "controls/forms.h"
#include "nest/nest_model.h"
#include "nest/nest_segments.h"

namespace {

constexpr const char* Warning =
    "Tarve does NOT print well on ALL printers, so there's NO GUARANTEE you'll get good results.\n\n"
    "If you have a good CAD program, Tarve recommends you export/import DXF and print from there.\n\n"
    "Press ''OK'' to continue to Print...\n\n";

/// A scale that is `across` wide, equal on both axes, with the middle of the sheet at `middle` in the
/// middle of the page.
void ScalePage(DrawSurface& page, double middle, double across) {
  const double up = across * page.Height() / page.Width();
  const double left = middle - across / 2;
  const double bottom = SheetHeight / 2 - up / 2;
  page.Scale(left, bottom + up, left + across, bottom);
}

/// The length decides; a sheet too tall for this page is held between margins of the same size.
double AcrossForPrint(const DrawSurface& page) {
  constexpr double between_margins = 1 - 2 * 0.05;
  return std::max(SheetLength, SheetHeight * page.Width() / page.Height()) / between_margins;
}

double AcrossForPrn(const DrawSurface& page) {
  const bool by_length = page.Height() / page.Width() > SheetHeight / SheetLength;
  return by_length ? SheetLength : SheetHeight * page.Width() / page.Height();
}

/// A part over a seam shows on both pages. `s` is the left edge of the sheet.
bool IsNearSheet(double x, double s) {
  return x > s - 0.5 * SheetLength && x < s + 1.5 * SheetLength;
}

void PaintInstance(DrawSurface& page, const NestInstance& instance, int p, double s, double shift) {
  ForEachSegment(instance, p, [&](NestPoint from, NestPoint to) {
    if (IsNearSheet(from.x, s)) {
      page.Line(from.x - shift, from.y, to.x - shift, to.y, Black);
    }
  });
  const NestPoint center = instance.Center(p);
  if (IsNearSheet(center.x, s)) {
    page.PSet(center.x - shift, center.y, Black);
    page.Print(instance.prefix + NestName(p), Black);
  }
}

void PaintParts(DrawSurface& page, double s, double shift) {
  for (int p = 1; p <= NestPartCount; ++p) {
    for (const NestInstance& instance : NestInstances) {
      if (instance.Shown(p)) {
        PaintInstance(page, instance, p, s, shift);
      }
    }
  }
}

void PaintPrintPage(int number, DrawSurface& page) {
  const double s = (number - 1) * SheetLength;
  ScalePage(page, s + SheetLength / 2, AcrossForPrint(page));
  page.Box(s, SheetHeight, s + SheetLength, 0, Black);
  PaintParts(page, s, 0);
}

/// Everything is drawn relative to its sheet.
void PaintPrnPage(int number, DrawSurface& page) {
  const double s = (number - 1) * SheetLength;
  ScalePage(page, SheetLength / 2, AcrossForPrn(page));
  page.Box(0, SheetHeight, SheetLength, 0, Blue);
  PaintParts(page, s, s);
}

void PrintPages(NestFit fit) {
  const PrintJob job = NestPages(fit);
  if (job.pages > 0) {
    Form2.Print(job);
  }
}

}  // namespace

PrintJob NestPages(NestFit fit) {
  if (!(SheetHeight > 0 && SheetLength > 0)) {
    return {};
  }
  return {SheetCount(), SheetLength > SheetHeight, fit == NestFit::Print ? PaintPrintPage : PaintPrnPage};
}

void Form2_Command9_Click() {
  PrintPages(NestFit::Prn);
}

void Form2_Command10_Click() {
  constexpr int warning_with_cancel = 48 + 1;
  if (MsgBox(Warning, warning_with_cancel, "Beta Print: Beware") != Answer::Cancel) {
    PrintPages(NestFit::Print);
  }
}
