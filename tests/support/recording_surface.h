#pragma once
// A surface that keeps its calls as text, one a line: "line 0,0 1,2 c9". It keeps the contract: an
// empty scale is refused, and a call with a coordinate that has no value is none.

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <sstream>
#include <string>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "views/draw_surface.h"

class RecordingSurface : public DrawSurface {
 public:
  void Cls() override {
    calls.clear();
    Note("cls");
  }
  void Scale(double x1, double y1, double x2, double y2) override {
    if (x1 != x2 && y1 != y2 && HaveValues({x1, y1, x2, y2})) {
      left_ = x1;
      width_ = x2 - x1;
      Note("scale " + Point(x1, y1) + " " + Point(x2, y2));
    }
  }
  void Line(double x1, double y1, double x2, double y2, int colour) override {
    NoteDrawing("line", {x1, y1, x2, y2}, colour);
  }
  void LineTo(double x2, double y2, int colour) override { NoteDrawing("to", {x2, y2}, colour); }
  void Box(double x1, double y1, double x2, double y2, int colour) override {
    NoteDrawing("box", {x1, y1, x2, y2}, colour);
  }
  void FilledBox(double x1, double y1, double x2, double y2, int colour) override {
    NoteDrawing("filled", {x1, y1, x2, y2}, colour);
  }
  void PSet(double x, double y, int colour) override { NoteDrawing("point", {x, y}, colour); }
  void Circle(double x, double y, double radius, int colour, double from, double to) override {
    const bool whole = from == 0 && to == FullTurn;
    if (HaveValues({x, y, radius})) {
      Note("circle " + Point(x, y) + " r" + FixedText(radius, decimals) + Colour(colour) +
           (whole ? "" : " arc"));
    }
  }
  void Print(std::string_view text, int colour) override {
    Note("print " + std::string(text) + Colour(colour));
  }
  void DrawWidth(int pixels) override { Note("width " + std::to_string(pixels)); }
  void DrawMode(Mode mode) override { Note("mode " + std::to_string(static_cast<int>(mode))); }
  double TextWidth(std::string_view text) const override {
    return letter * static_cast<double>(text.size()) * std::abs(width_) / width;
  }
  double Width() const override { return width; }
  double Height() const override { return height; }
  double ScaleLeft() const override { return left_; }
  double ScaleWidth() const override { return width_; }

  bool Has(const std::string& call) const { return calls.find(call + "\n") != std::string::npos; }
  /// How many calls start so and end so.
  int Count(const std::string& start, const std::string& end) const {
    int count = 0;
    std::istringstream lines(calls);
    for (std::string call; std::getline(lines, call);) {
      count += call.starts_with(start) && call.ends_with(end) ? 1 : 0;
    }
    return count;
  }

  /// Since the last Cls.
  std::string calls;
  /// Where all calls go as well, behind the surface's name, so that several surfaces share one order.
  std::string* journal = nullptr;
  std::string name;
  int decimals = 1;
  double width = 200;
  double height = 100;
  double letter = 0;  ///< width of any letter, in the units of `width`

 private:
  static bool HaveValues(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double value) { return HasValue(value); });
  }
  void NoteDrawing(const std::string& what, std::initializer_list<double> values, int colour) {
    std::string call = what;
    bool across = true;
    for (const double value : values) {
      call += (across ? " " : ",") + FixedText(value, decimals);
      across = !across;
    }
    if (HaveValues(values)) {
      Note(call + Colour(colour));
    }
  }
  void Note(const std::string& call) {
    calls += call + "\n";
    if (journal != nullptr) {
      *journal += name + " " + call + "\n";
    }
  }
  std::string Point(double x, double y) const {
    return FixedText(x, decimals) + "," + FixedText(y, decimals);
  }
  static std::string Colour(int colour) { return " c" + std::to_string(colour); }

  double left_ = 0;
  double width_ = 0;
};
