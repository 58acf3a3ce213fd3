#pragma once
// A page as a drawing surface, over the painter of any paged device: a PDF file or a printer.

#include <QPainter>
#include <QPointF>
#include <QSizeF>
#include <string_view>

#include "views/draw_surface.h"

/// Draws in the page's own units by the scale that was set last. Lines have a width of half a point, so
/// that they stay crisp at any resolution; texts are in 9 points. Paper can't be cleared or inverted:
/// Cls and DrawMode do nothing.
class PrintSurface : public DrawSurface {
 public:
  /// The painter is at work on a page of this size, in its device's units, so many to a point (1/72 inch).
  PrintSurface(QPainter& painter, QSizeF page, double units_per_point);

  void Scale(double x1, double y1, double x2, double y2) override;
  void Line(double x1, double y1, double x2, double y2, int colour) override;
  void LineTo(double x2, double y2, int colour) override;
  void Box(double x1, double y1, double x2, double y2, int colour) override;
  void FilledBox(double x1, double y1, double x2, double y2, int colour) override;
  void PSet(double x, double y, int colour) override;
  void Circle(double x, double y, double radius, int colour, double from, double to) override;
  void Print(std::string_view text, int colour) override;
  void DrawWidth(int pixels) override { width_ = pixels; }
  double TextWidth(std::string_view text) const override;
  double Width() const override { return page_.width(); }
  double Height() const override { return page_.height(); }
  double ScaleLeft() const override { return left_; }
  double ScaleWidth() const override { return right_ - left_; }

 private:
  QPointF OnPage(double x, double y) const;
  void TakePen(int colour);

  QPainter& painter_;
  QSizeF page_;
  double point_;  // in device units
  int width_ = 1;
  double left_ = 0;
  double top_ = 0;
  double right_;
  double bottom_;
  QPointF current_;  // on the page
};
