#include "ui/print_surface.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPen>
#include <QString>
#include <cmath>
#include <numbers>

#include "ui/palette.h"

namespace {

/// Coordinates far outside of the page would overflow the device's own numbers.
constexpr double FarOutside = 1e8;

bool IsDrawable(QPointF at) {
  return std::abs(at.x()) < FarOutside && std::abs(at.y()) < FarOutside;
}

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

PrintSurface::PrintSurface(QPainter& painter, QSizeF page, double units_per_point)
    : painter_(painter), page_(page), point_(units_per_point), right_(page.width()), bottom_(page.height()) {
  QFont font(QStringLiteral("Sans Serif"));
  font.setPointSizeF(9);
  painter_.setFont(font);
}

QPointF PrintSurface::OnPage(double x, double y) const {
  return {(x - left_) / (right_ - left_) * page_.width(), (y - top_) / (bottom_ - top_) * page_.height()};
}

void PrintSurface::TakePen(int colour) {
  painter_.setPen(
      QPen(PaletteColour(colour), 0.5 * width_ * point_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_.setBrush(Qt::NoBrush);
}

void PrintSurface::Scale(double x1, double y1, double x2, double y2) {
  const bool is_empty = x1 == x2 || y1 == y2;
  if (is_empty || !std::isfinite(x1 + y1 + x2 + y2)) {
    return;
  }
  left_ = x1;
  top_ = y1;
  right_ = x2;
  bottom_ = y2;
}

void PrintSurface::Line(double x1, double y1, double x2, double y2, int colour) {
  const QPointF from = OnPage(x1, y1);
  const QPointF to = OnPage(x2, y2);
  if (IsDrawable(from) && IsDrawable(to)) {
    TakePen(colour);
    painter_.drawLine(from, to);
    current_ = to;
  }
}

void PrintSurface::LineTo(double x2, double y2, int colour) {
  const QPointF to = OnPage(x2, y2);
  if (IsDrawable(to)) {
    TakePen(colour);
    painter_.drawLine(current_, to);
    current_ = to;
  }
}

void PrintSurface::Box(double x1, double y1, double x2, double y2, int colour) {
  const QRectF box(OnPage(x1, y1), OnPage(x2, y2));
  if (IsDrawable(box.topLeft()) && IsDrawable(box.bottomRight())) {
    TakePen(colour);
    painter_.drawRect(box.normalized());
    current_ = box.bottomRight();
  }
}

void PrintSurface::FilledBox(double x1, double y1, double x2, double y2, int colour) {
  const QRectF box(OnPage(x1, y1), OnPage(x2, y2));
  if (IsDrawable(box.topLeft()) && IsDrawable(box.bottomRight())) {
    painter_.fillRect(box.normalized(), PaletteColour(colour));
    current_ = box.bottomRight();
  }
}

void PrintSurface::PSet(double x, double y, int colour) {
  const QPointF at = OnPage(x, y);
  if (IsDrawable(at)) {
    TakePen(colour);
    painter_.drawPoint(at);
    current_ = at;
  }
}

void PrintSurface::Circle(double x, double y, double radius, int colour, double from, double to) {
  const QPointF center = OnPage(x, y);
  const double r = std::abs(radius / (right_ - left_)) * page_.width();
  if (!IsDrawable(center) || !(r < FarOutside)) {
    return;
  }
  constexpr double sixteenths = 180 * 16 / std::numbers::pi;  // the painter's angles, in a radian
  TakePen(colour);
  painter_.drawArc(QRectF(center.x() - r, center.y() - r, 2 * r, 2 * r),
                   static_cast<int>(std::lround(from * sixteenths)),
                   static_cast<int>(std::lround((to - from) * sixteenths)));
  current_ = center;
}

void PrintSurface::Print(std::string_view text, int colour) {
  const QFontMetricsF metrics(painter_.font(), painter_.device());
  TakePen(colour);
  painter_.drawText(current_ + QPointF(0, metrics.ascent()), ToQString(text));
}

double PrintSurface::TextWidth(std::string_view text) const {
  const QFontMetricsF metrics(painter_.font(), painter_.device());
  return metrics.horizontalAdvance(ToQString(text)) / page_.width() * std::abs(right_ - left_);
}
