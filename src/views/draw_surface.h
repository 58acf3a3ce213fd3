#pragma once
// The drawing contract between the core and a toolkit. This header stands below the rest of its
// folder: it includes nothing of the house, so that the controls can hold surfaces.

#include <string_view>

/// The colours that the program draws in, by their index in the classic palette of sixteen.
enum Palette {
  Black = 0,
  Blue = 1,
  Green = 2,
  Cyan = 3,
  Red = 4,
  Magenta = 5,
  Brown = 6,
  LightGrey = 7,
  DarkGrey = 8,
  LightBlue = 9,
  LightGreen = 10,
  LightCyan = 11,
  LightRed = 12,
  LightMagenta = 13,
  White = 15,
};

/// A picture that draws at once, in order, and keeps what was drawn. Coordinates are the surface's
/// own, set by Scale; colours are indices of the classic 16-colour palette. A call with a coordinate
/// that has no value draws nothing. Every operation does nothing here: this is also the surface of
/// a program without a display.
class DrawSurface {
 public:
  /// A colour argument that stands for the surface's foreground colour.
  static constexpr int Foreground = -1;
  /// A whole turn, in radians: the end of an arc that is a full circle.
  static constexpr double FullTurn = 6.283185307179586;

  virtual ~DrawSurface() = default;

  /// Clears to the background; the current point becomes the top left.
  virtual void Cls() {}
  /// x1 is the left edge, x2 the right, y1 the top, y2 the bottom. An empty range, and one
  /// with an end that has no value, is refused: the earlier scale stays.
  virtual void Scale(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/) {}
  /// One straight segment; its end becomes the current point.
  virtual void Line(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, int /*colour*/) {}
  /// A segment from the current point.
  virtual void LineTo(double /*x2*/, double /*y2*/, int /*colour*/) {}
  /// The outline of a rectangle with these corners.
  virtual void Box(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, int /*colour*/) {}
  virtual void FilledBox(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, int /*colour*/) {}
  /// One pixel, which becomes the current point.
  virtual void PSet(double /*x*/, double /*y*/, int /*colour*/) {}
  /// An outline whose radius is in units of the x axis; from one angle to another, anticlockwise,
  /// in radians.
  virtual void Circle(double /*x*/, double /*y*/, double /*radius*/, int /*colour*/, double /*from*/ = 0,
                      double /*to*/ = FullTurn) {}
  /// A text at the current point.
  virtual void Print(std::string_view /*text*/, int /*colour*/ = Foreground) {}
  /// Pen width in pixels; whoever changes it sets it back to 1.
  virtual void DrawWidth(int /*pixels*/) {}

  /// How a call meets what is there. Under exclusive-or the same call twice leaves the picture as it
  /// was; whoever changes the mode sets it back to plain copying.
  enum class Mode { ExclusiveOr = 7, Copy = 13 };
  virtual void DrawMode(Mode /*mode*/) {}

  /// Asks for smoothed lines, where the surface has them; never under exclusive-or. Whoever asks
  /// sets it back.
  virtual void Smooth(bool /*on*/) {}

  /// The extent of a printed text along the x axis, in units of the scale.
  virtual double TextWidth(std::string_view /*text*/) const { return 0; }
  /// Outer size in the form's units, used only as a ratio.
  virtual double Width() const { return 0; }
  virtual double Height() const { return 0; }
  /// x1 and x2 - x1 of the current scale.
  virtual double ScaleLeft() const { return 0; }
  virtual double ScaleWidth() const { return 0; }
};
