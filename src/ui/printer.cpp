#include "ui/printer.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include "ui/print_surface.h"

void PrintWithDialog(const PrintJob& job, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName("Tarve Designer");
  printer.setPageOrientation(job.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() == QDialog::Accepted) {
    PrintOn(printer, job);
  }
}

bool PrintOn(QPrinter& printer, const PrintJob& job) {
  constexpr double points_per_inch = 72;
  QPainter painter;
  if (job.pages <= 0 || !painter.begin(&printer)) {
    return false;
  }
  for (int page = 1; page <= job.pages; ++page) {
    if (page > 1 && !printer.newPage()) {
      return false;
    }
    const QSizeF size = printer.pageRect(QPrinter::DevicePixel).size();
    PrintSurface surface(painter, size, printer.resolution() / points_per_inch);
    job.paint(page, surface);
  }
  return painter.end();
}
