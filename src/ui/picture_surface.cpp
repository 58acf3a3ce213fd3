#include "ui/picture_surface.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "ui/palette.h"

namespace {

/// Far outside of any screen, and small enough for the painter's own arithmetic.
constexpr double FarAway = 30000;

bool Drawable(QPointF p) {
  return std::isfinite(p.x()) && std::isfinite(p.y());
}

/// The same line, cut to what can be near the screen: the painter loses exactness far away.
bool CutToReach(QLineF& line) {
  double from = 0;
  double to = 1;
  const auto cut = [&](double start, double step) {
    if (step == 0) {
      return std::abs(start) <= FarAway;
    }
    const double a = (-FarAway - start) / step;
    const double b = (FarAway - start) / step;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
    return from <= to;
  };
  const QPointF start = line.p1();
  const QPointF way = line.p2() - line.p1();
  if (!cut(start.x(), way.x()) || !cut(start.y(), way.y())) {
    return false;
  }
  line = QLineF(start + from * way, start + to * way);
  return true;
}

int ButtonNumber(Qt::MouseButton button) {
  return button == Qt::LeftButton ? 1 : button == Qt::RightButton ? 2 : 4;
}

int ButtonsDown(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0) +
         (buttons & Qt::MiddleButton ? 4 : 0);
}

}  // namespace

PictureSurface::PictureSurface(PictureBox& picture, QWidget* parent) : QWidget(parent), picture_(picture) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
  picture.ShowNow = [this] { repaint(); };
}

bool PictureSurface::MakeBuffer() {
  Finish();
  const double ratio = devicePixelRatioF();
  const QSize pixels(std::max(1, static_cast<int>(std::ceil(width() * ratio))),
                     std::max(1, static_cast<int>(std::ceil(height() * ratio))));
  if (buffer_.size() == pixels && buffer_.devicePixelRatio() == ratio) {
    return false;
  }
  QImage buffer(pixels, QImage::Format_RGB32);
  buffer.setDevicePixelRatio(ratio);
  buffer.fill(Qt::white);
  if (!buffer_.isNull()) {  // stays to be seen until somebody draws it anew
    QPainter(&buffer).drawImage(QRectF(rect()), buffer_);
  }
  buffer_ = buffer;
  picture_ = this;
  return true;
}

void PictureSurface::FixSize(QSize size) {
  setFixedSize(size);
  resize(size);
  MakeBuffer();
}

QPointF PictureSurface::Pixel(double x, double y) const {
  return {(x - left_) / (right_ - left_) * width(), (y - top_) / (bottom_ - top_) * height()};
}

/// The painter with the pen of this colour; opened when the first call after a showing needs it.
QPainter& PictureSurface::Painter(int colour) {
  if (!painter_.isActive()) {
    painter_.begin(&buffer_);
    painter_.setFont(font());
    new_modes_ = true;
    update();
  }
  if (new_modes_) {
    const bool copy = mode_ == Mode::Copy;
    painter_.setRenderHint(QPainter::Antialiasing, smooth_ && copy);
    painter_.setCompositionMode(copy ? QPainter::CompositionMode_SourceOver
                                     : QPainter::RasterOp_SourceXorDestination);
    new_modes_ = false;
    pen_colour_ = NoPen;
  }
  if (colour != pen_colour_) {
    DrawLines();
    pen_colour_ = colour;
    // Whole pixels of the screen, also where it has one and a half of them to a unit.
    const double pixels = std::max(1.0, std::round(pen_width_ * buffer_.devicePixelRatio()));
    QPen pen(PaletteColour(colour), pixels);
    pen.setCosmetic(true);
    if (pen_width_ > 1) {
      pen.setCapStyle(Qt::FlatCap);  // a thick line ends where it ends
    }
    painter_.setPen(pen);
  }
  return painter_;
}

void PictureSurface::DrawLines() {
  if (!lines_.empty()) {
    painter_.drawLines(lines_.data(), static_cast<int>(lines_.size()));
    lines_.clear();
  }
}

void PictureSurface::Finish() {
  if (painter_.isActive()) {
    DrawLines();
    painter_.end();
  }
}

void PictureSurface::Cls() {
  lines_.clear();
  Finish();
  buffer_.fill(Qt::white);
  current_ = {};
  update();
}

void PictureSurface::Scale(double x1, double y1, double x2, double y2) {
  const bool usable = std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2);
  if (usable && x1 != x2 && y1 != y2) {
    left_ = x1;
    top_ = y1;
    right_ = x2;
    bottom_ = y2;
  }
}

void PictureSurface::Line(double x1, double y1, double x2, double y2, int colour) {
  QLineF line(Pixel(x1, y1), Pixel(x2, y2));
  if (!Drawable(line.p1()) || !Drawable(line.p2())) {
    return;
  }
  current_ = line.p2();
  if (CutToReach(line)) {
    Painter(colour);
    lines_.push_back(line);
  }
}

void PictureSurface::LineTo(double x2, double y2, int colour) {
  QLineF line(current_, Pixel(x2, y2));
  if (!Drawable(line.p2())) {
    return;
  }
  current_ = line.p2();
  if (CutToReach(line)) {
    Painter(colour);
    lines_.push_back(line);
  }
}

void PictureSurface::Box(double x1, double y1, double x2, double y2, int colour) {
  const QRectF box = QRectF(Pixel(x1, y1), Pixel(x2, y2)).normalized();
  if (!Drawable(box.topLeft()) || !Drawable(box.bottomRight())) {
    return;
  }
  const double reach = FarAway;
  Painter(colour);
  DrawLines();
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(box.intersected(QRectF(-reach, -reach, 2 * reach, 2 * reach)));
  current_ = Pixel(x2, y2);
}

void PictureSurface::FilledBox(double x1, double y1, double x2, double y2, int colour) {
  const QRectF box = QRectF(Pixel(x1, y1), Pixel(x2, y2)).normalized();
  if (!Drawable(box.topLeft()) || !Drawable(box.bottomRight())) {
    return;
  }
  Painter(colour);
  DrawLines();
  painter_.setBrush(PaletteColour(colour));
  painter_.drawRect(box);
  current_ = Pixel(x2, y2);
}

void PictureSurface::PSet(double x, double y, int colour) {
  const QPointF point = Pixel(x, y);
  if (!Drawable(point)) {
    return;
  }
  current_ = point;
  if (std::abs(point.x()) < FarAway && std::abs(point.y()) < FarAway) {
    Painter(colour);
    DrawLines();
    painter_.drawPoint(point);
  }
}

void PictureSurface::Circle(double x, double y, double radius, int colour, double from, double to) {
  const QPointF centre = Pixel(x, y);
  const double r = std::abs(radius / (right_ - left_) * width());
  if (!Drawable(centre) || !std::isfinite(r) || r > FarAway) {
    return;
  }
  Painter(colour);
  DrawLines();
  painter_.setBrush(Qt::NoBrush);
  painter_.setRenderHint(QPainter::Antialiasing, mode_ == Mode::Copy);
  const QRectF box(centre.x() - r, centre.y() - r, 2 * r, 2 * r);
  constexpr double sixteenths = 16 * 180 / std::numbers::pi;
  painter_.drawArc(box, static_cast<int>(std::lround(from * sixteenths)),
                   static_cast<int>(std::lround((to - from) * sixteenths)));
  painter_.setRenderHint(QPainter::Antialiasing, smooth_ && mode_ == Mode::Copy);
  current_ = centre;
}

void PictureSurface::Print(std::string_view text, int colour) {
  if (std::abs(current_.x()) > FarAway || std::abs(current_.y()) > FarAway) {
    return;
  }
  Painter(colour);
  DrawLines();
  const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  const QFontMetricsF metrics(painter_.font());
  painter_.drawText(current_ + QPointF(0, metrics.ascent()), shown);
  current_.rx() += metrics.horizontalAdvance(shown);
}

void PictureSurface::DrawWidth(int pixels) {
  DrawLines();
  pen_width_ = pixels;
  new_modes_ = true;
}

void PictureSurface::DrawMode(Mode mode) {
  DrawLines();
  mode_ = mode;
  new_modes_ = true;
}

void PictureSurface::Smooth(bool on) {
  DrawLines();
  smooth_ = on;
  new_modes_ = true;
}

double PictureSurface::TextWidth(std::string_view text) const {
  const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return QFontMetricsF(font()).horizontalAdvance(shown) * std::abs(right_ - left_) / std::max(1, width());
}

void PictureSurface::paintEvent(QPaintEvent* event) {
  Finish();
  if (buffer_.devicePixelRatio() != devicePixelRatioF()) {  // the window came to another screen
    QTimer::singleShot(0, this, [this] { resizeEvent(nullptr); });
  }
  QPainter screen(this);
  screen.setClipRect(event->rect());
  screen.drawImage(0, 0, buffer_);
  if (hasFocus()) {
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &screen, this);
  }
}

void PictureSurface::resizeEvent(QResizeEvent*) {
  if (MakeBuffer() && Resized) {
    Resized();
  }
}

void PictureSurface::Pass(const Event<int, double, double>& to, int button, QPointF at) const {
  if (HoldsPointer) {
    at = QPointF(std::clamp(at.x(), 0.0, width() - 1.0), std::clamp(at.y(), 0.0, height() - 1.0));
  }
  const double x = left_ + at.x() / width() * (right_ - left_);
  const double y = top_ + at.y() / height() * (bottom_ - top_);
  if (std::isfinite(x) && std::isfinite(y)) {  // a scale may be too wide to be counted across
    to(button, x, y);
  }
}

void PictureSurface::mousePressEvent(QMouseEvent* event) {
  Pass(picture_.MouseDown, ButtonNumber(event->button()), event->position());
}

void PictureSurface::mouseMoveEvent(QMouseEvent* event) {
  Pass(picture_.MouseMove, ButtonsDown(event->buttons()), event->position());
}

void PictureSurface::mouseReleaseEvent(QMouseEvent* event) {
  Pass(picture_.MouseUp, ButtonNumber(event->button()), event->position());
  if (event->button() == Qt::LeftButton && !std::exchange(after_double_click_, false) &&
      rect().contains(event->pos())) {
    picture_.Click();
  }
}

/// Two presses of another button are just that. The release that follows a double click is no click.
void PictureSurface::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    mousePressEvent(event);
    return;
  }
  after_double_click_ = true;
  picture_.DblClick();
}

void PictureSurface::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
    picture_.Click();
  } else {
    QWidget::keyPressEvent(event);
  }
}
