#pragma once
// A surface that keeps its calls as text, one a line: "line 0,0 1,2 c9".

#include <string>

#include "base/number_text.h"
#include "views/draw_surface.h"

class RecordingSurface : public DrawSurface {
 public:
  void Cls() override { calls = "cls\n"; }
  void Scale(double x1, double y1, double x2, double y2) override {
    left_ = x1;
    width_ = x2 - x1;
    Note("scale " + Point(x1, y1) + " " + Point(x2, y2));
  }
  void Line(double x1, double y1, double x2, double y2, int colour) override {
    Note("line " + Point(x1, y1) + " " + Point(x2, y2) + Colour(colour));
  }
  void LineTo(double x2, double y2, int colour) override { Note("to " + Point(x2, y2) + Colour(colour)); }
  void Box(double x1, double y1, double x2, double y2, int colour) override {
    Note("box " + Point(x1, y1) + " " + Point(x2, y2) + Colour(colour));
  }
  void FilledBox(double x1, double y1, double x2, double y2, int colour) override {
    Note("filled " + Point(x1, y1) + " " + Point(x2, y2) + Colour(colour));
  }
  void PSet(double x, double y, int colour) override { Note("point " + Point(x, y) + Colour(colour)); }
  void Circle(double x, double y, double radius, int colour, double from, double to) override {
    const bool whole = from == 0 && to == FullTurn;
    Note("circle " + Point(x, y) + " r" + FixedText(radius, 1) + Colour(colour) + (whole ? "" : " arc"));
  }
  void Print(std::string_view text, int colour) override {
    Note("print " + std::string(text) + Colour(colour));
  }
  void DrawWidth(int pixels) override { Note("width " + std::to_string(pixels)); }
  double Width() const override { return 200; }
  double Height() const override { return 100; }
  double ScaleLeft() const override { return left_; }
  double ScaleWidth() const override { return width_; }

  bool Has(const std::string& call) const { return calls.find(call + "\n") != std::string::npos; }
  /// How many calls start so and end so.
  int Count(const std::string& start, const std::string& end) const {
    int count = 0;
    std::size_t at = 0;
    while (at < calls.size()) {
      const std::size_t line_end = calls.find('\n', at);
      const std::string call = calls.substr(at, line_end - at);
      count += call.starts_with(start) && call.ends_with(end) ? 1 : 0;
      at = line_end + 1;
    }
    return count;
  }

  std::string calls;

 private:
  void Note(const std::string& call) { calls += call + "\n"; }
  static std::string Point(double x, double y) { return FixedText(x, 1) + "," + FixedText(y, 1); }
  static std::string Colour(int colour) { return " c" + std::to_string(colour); }

  double left_ = 0;
  double width_ = 0;
};
