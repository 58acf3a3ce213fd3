#include "ui/pdf_pages.h"

#include <QBuffer>
#include <QByteArray>
#include <QGuiApplication>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <array>
#include <iostream>
#include <memory>

#include "base/clock.h"
#include "ui/print_surface.h"

namespace {

constexpr int UnitsPerInch = 1200;
constexpr double PointsPerInch = 72;

/// The toolkit's remarks about its surroundings (no folder for sockets, no display) mean nothing here.
void DropRemark(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) {
    std::cerr << message.toStdString() << '\n';
  }
}

/// Fonts need an application. One without a window, whatever display the surroundings name: that one may
/// not be there.
std::unique_ptr<QGuiApplication> StartToolkit() {
  static std::array<char, 6> name = {"tarve"};
  static std::array<char, 10> platform = {"-platform"};
  static std::array<char, 10> offscreen = {"offscreen"};
  static std::array<char*, 4> arguments = {name.data(), platform.data(), offscreen.data(), nullptr};
  static int count = 3;
  qInstallMessageHandler(DropRemark);
  return QGuiApplication::instance() == nullptr ? std::make_unique<QGuiApplication>(count, arguments.data())
                                                : nullptr;
}

void SetPaper(QPdfWriter& writer, bool landscape) {
  constexpr double margin = 10;  // what most printers leave blank
  writer.setResolution(UnitsPerInch);
  writer.setCreator(QStringLiteral("Tarve Designer"));
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter),
                                   landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                   QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter));
}

bool PaintPages(QPdfWriter& writer, const PrintJob& job) {
  QPainter painter;
  if (!painter.begin(&writer)) {
    return false;
  }
  for (int page = 1; page <= job.pages; ++page) {
    if (page > 1 && !writer.newPage()) {
      return false;
    }
    PrintSurface surface(painter, QSizeF(writer.width(), writer.height()), UnitsPerInch / PointsPerInch);
    job.paint(page, surface);
  }
  return painter.end();
}

/// Month, day and year, and the time, as PDF writes them: year first, without signs between.
std::string PdfTime(const std::string& date, const std::string& time) {
  return date.substr(6) + date.substr(0, 2) + date.substr(3, 2) + time.substr(0, 2) + time.substr(3, 2) +
         time.substr(6);
}

/// The writer dates a file by the system's clock and can't be told otherwise. Its text gives way to one of
/// the same length by the program's clock, so that the places the file tells of itself stay true.
void DateByOwnClock(std::string& pdf) {
  const std::string_view mark = "/CreationDate (D:";
  const std::size_t at = pdf.rfind(mark);
  const std::size_t end = at == std::string::npos ? at : pdf.find(')', at);
  const std::string date = PdfTime(DateText(), TimeText()) + ")";
  if (end != std::string::npos && end + 1 - at >= mark.size() + date.size()) {
    const std::size_t start = at + mark.size();
    pdf.replace(start, end + 1 - start, date + std::string(end + 1 - start - date.size(), ' '));
  }
}

}  // namespace

std::string PdfOfPages(const PrintJob& job) {
  const std::unique_ptr<QGuiApplication> toolkit = StartToolkit();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  bool done = false;
  {
    QPdfWriter writer(&buffer);
    SetPaper(writer, job.landscape);
    done = job.pages > 0 && PaintPages(writer, job);
  }
  std::string pdf = done ? bytes.toStdString() : std::string();
  DateByOwnClock(pdf);
  return pdf;
}
