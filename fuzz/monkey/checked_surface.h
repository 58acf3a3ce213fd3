#pragma once
// A surface that draws nothing and sees to the contract of drawing: colours of the palette, pens of some
// width, angles with a value, and whoever changes pen, mode or smoothing sets it back.

#include <cmath>
#include <string>

#include "monkey/diary.h"
#include "views/draw_surface.h"

class CheckedSurface : public DrawSurface {
 public:
  explicit CheckedSurface(std::string name, double wide = 900, double high = 600)
      : width(wide), height(high), name_(std::move(name)) {}

  void Cls() override { Expect(may_be_drawn_on, "is cleared"); }
  void Scale(double x1, double y1, double x2, double y2) override {
    Expect(may_be_drawn_on, "is scaled");
    if (x1 != x2 && y1 != y2 && std::isfinite(x1) && std::isfinite(x2) && std::isfinite(y1) &&
        std::isfinite(y2)) {
      left = x1;
      right = x2;
      top = y1;
      bottom = y2;
    }
  }
  void Line(double, double, double, double, int colour) override { Draw(colour); }
  void LineTo(double, double, int colour) override { Draw(colour); }
  void Box(double, double, double, double, int colour) override { Draw(colour); }
  void FilledBox(double, double, double, double, int colour) override { Draw(colour); }
  void PSet(double, double, int colour) override { Draw(colour); }
  void Circle(double, double, double, int colour, double from, double to) override {
    Draw(colour);
    Expect(std::isfinite(from) && std::isfinite(to), "an arc without angles");
  }
  void Print(std::string_view, int colour) override { Draw(colour); }
  void DrawWidth(int pixels) override {
    Expect(pixels >= 1 && pixels <= 10, "a pen of width " + std::to_string(pixels));
    pen_ = pixels;
  }
  void DrawMode(Mode mode) override {
    Expect(mode == Mode::Copy || mode == Mode::ExclusiveOr, "an unknown mode");
    mode_ = mode;
  }
  void Smooth(bool on) override { smooth_ = on; }
  double TextWidth(std::string_view text) const override {
    return static_cast<double>(text.size()) * 8 * std::abs(right - left) / (width > 1 ? width : 1);
  }
  double Width() const override { return width; }
  double Height() const override { return height; }
  double ScaleLeft() const override { return left; }
  double ScaleWidth() const override { return right - left; }

  /// After every act.
  void ExpectAtRest() const {
    Expect(pen_ == 1, "the pen was not set back");
    Expect(mode_ == Mode::Copy, "the mode was not set back");
    Expect(!smooth_, "the smoothing was not set back");
  }

  bool may_be_drawn_on = true;
  double width;
  double height;
  double left = 0;
  double right = 1;
  double top = 1;
  double bottom = 0;

 private:
  void Draw(int colour) const {
    Expect(may_be_drawn_on, "is drawn on");
    Expect(colour >= Foreground && colour <= 15, "colour " + std::to_string(colour));
  }
  void Expect(bool holds, const std::string& what) const {
    if (!holds) {
      NoteFault(name_ + ": " + what);
    }
  }

  std::string name_;
  int pen_ = 1;
  Mode mode_ = Mode::Copy;
  bool smooth_ = false;
};
