#pragma once
// A drawing surface on the screen. It paints at once into a buffer of the screen's own resolution,
// and the widget shows the buffer; so a picture stays until its paint handler clears it.

#include <QImage>
#include <QPainter>
#include <QWidget>
#include <functional>
#include <vector>

#include "controls/controls.h"
#include "views/draw_surface.h"

class PictureSurface : public QWidget, public DrawSurface {
 public:
  /// Shows `picture` and passes the mouse over it on. It draws here from the moment when the surface
  /// has its size: what a program draws before its windows show would be lost work.
  PictureSurface(PictureBox& picture, QWidget* parent);

  void Cls() override;
  void Scale(double x1, double y1, double x2, double y2) override;
  void Line(double x1, double y1, double x2, double y2, int colour) override;
  void LineTo(double x2, double y2, int colour) override;
  void Box(double x1, double y1, double x2, double y2, int colour) override;
  void FilledBox(double x1, double y1, double x2, double y2, int colour) override;
  void PSet(double x, double y, int colour) override;
  void Circle(double x, double y, double radius, int colour, double from, double to) override;
  void Print(std::string_view text, int colour) override;
  void DrawWidth(int pixels) override;
  void DrawMode(Mode mode) override;
  void Smooth(bool on) override;
  double TextWidth(std::string_view text) const override;
  double Width() const override { return width(); }
  double Height() const override { return height(); }
  double ScaleLeft() const override { return left_; }
  double ScaleWidth() const override { return right_ - left_; }

  /// Draws what waits together and gives the buffer free for showing, as a showing does by itself.
  void Finish();

  /// Called after the buffer was made anew in another size, with the old picture stretched into it.
  std::function<void()> Resized;
  /// The pointer counts as inside while a button holds it, wherever it is.
  bool HoldsPointer = false;
  /// This size for good, and a buffer of it at once, before anything shows.
  void FixSize(QSize size);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  /// A picture that takes the keyboard is clicked by Enter and the space bar.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// False if the one that is there still fits.
  bool MakeBuffer();
  QPainter& Painter(int colour);
  void DrawLines();
  QPointF Pixel(double x, double y) const;
  void Pass(const Event<int, double, double>& to, int button, QPointF at) const;

  PictureBox& picture_;
  QImage buffer_;
  QPainter painter_;
  std::vector<QLineF> lines_;       ///< of one pen, waiting to be drawn together
  static constexpr int NoPen = -2;  ///< unlike any colour
  int pen_colour_ = NoPen;
  bool new_modes_ = true;  ///< the painter doesn't have width, mode or smoothing yet
  int pen_width_ = 1;
  Mode mode_ = Mode::Copy;
  bool smooth_ = false;
  bool after_double_click_ = false;
  double left_ = 0, right_ = 1, top_ = 1, bottom_ = 0;
  QPointF current_;  ///< in pixels
};
