#include "nest/nest_pages.h"

#include <algorithm>
#include <string>

#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
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

/// What a page shows, in the coordinates of its scale, which is the same on both axes.
struct PageExtent {
  double left;
  double right;
  double bottom;
  double line;  ///< from one line of text to the next: half as much again as a broad letter
};

PageExtent ExtentOf(const DrawSurface& page) {
  const double up = page.ScaleWidth() * page.Height() / page.Width();
  return {page.ScaleLeft(), page.ScaleLeft() + page.ScaleWidth(), SheetHeight / 2 - up / 2,
          1.5 * page.TextWidth("M")};
}

/// A text with its upper left corner at a place, or as near to it as the page has room for all of it. The
/// place is marked in white, the paper's colour: what is drawn later covers it.
void PrintOnPage(DrawSurface& page, double x, double y, const std::string& text) {
  const PageExtent extent = ExtentOf(page);
  page.PSet(std::max(extent.left, std::min(x, extent.right - page.TextWidth(text))),
            std::max(y, extent.bottom + extent.line), White);
  page.Print(text, Black);
}

/// The name stands in the middle of the part. One whose middle lies on the next page isn't pulled onto
/// this one: it would name the wrong place.
void PrintName(DrawSurface& page, NestPoint center, const std::string& name) {
  const PageExtent extent = ExtentOf(page);
  const double x = center.x - page.TextWidth(name) / 2;
  if (center.x >= extent.left && center.x <= extent.right) {
    PrintOnPage(page, x, center.y, name);
  } else {
    page.PSet(x, center.y, White);
    page.Print(name, Black);
  }
}

template <class Take>
void ForEachShown(Take take) {
  for (int p = 1; p <= NestPartCount; ++p) {
    for (const NestInstance& instance : NestInstances) {
      if (instance.Shown(p)) {
        take(instance, p);
      }
    }
  }
}

void PrintNames(DrawSurface& page, double s, double shift) {
  ForEachShown([&](const NestInstance& instance, int p) {
    const NestPoint center = instance.Center(p);
    if (IsNearSheet(center.x, s)) {
      PrintName(page, {center.x - shift, center.y}, instance.prefix + NestName(p));
    }
  });
}

void PaintOutlines(DrawSurface& page, double s, double shift) {
  ForEachShown([&](const NestInstance& instance, int p) {
    ForEachSegment(instance, p, [&](NestPoint from, NestPoint to) {
      if (IsNearSheet(from.x, s)) {
        page.Line(from.x - shift, from.y, to.x - shift, to.y, Black);
      }
    });
  });
}

/// Below the frame; where a sheet as high as the page leaves no room there, in the corner of the page.
void PrintSheetName(DrawSurface& page, int number, double left) {
  const PageExtent extent = ExtentOf(page);
  const double gap = extent.line / 4;
  const bool fits_below = -gap - extent.line >= extent.bottom;
  PrintOnPage(
      page, fits_below ? left : extent.left, -gap,
      "Sheet " + std::to_string(number) + "   " + HullFileName.substr(HullFileName.find_last_of("/\\") + 1));
}

/// One page, everything moved to the left by `shift`. Texts come first: no mark of one spoils a line.
void PaintPage(DrawSurface& page, int number, double shift, int frame_colour) {
  const double s = (number - 1) * SheetLength;
  const double left = s - shift;
  PrintSheetName(page, number, left);
  PrintNames(page, s, shift);
  page.DrawWidth(2);
  page.Box(left, SheetHeight, left + SheetLength, 0, frame_colour);
  page.DrawWidth(1);
  PaintOutlines(page, s, shift);
}

void PaintPrintPage(int number, DrawSurface& page) {
  ScalePage(page, (number - 0.5) * SheetLength, AcrossForPrint(page));
  PaintPage(page, number, 0, Black);
}

/// Everything is drawn relative to its sheet.
void PaintPrnPage(int number, DrawSurface& page) {
  ScalePage(page, SheetLength / 2, AcrossForPrn(page));
  PaintPage(page, number, (number - 1) * SheetLength, Blue);
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
