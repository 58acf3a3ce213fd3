#pragma once
// A grid of texts with one current cell, and the text box that floats over that cell.
// Lengths are twips, 1440 to an inch of the screen.

#include <string>
#include <vector>

#include "controls/controls.h"

/// Where a cell or a control is on its window.
struct CellBox {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
  bool operator==(const CellBox&) const = default;
};

/// Rows and columns count from 0. A cell that isn't there reads as an empty text and can neither be
/// written nor become the current one.
class Grid {
 public:
  explicit Grid(int columns) : widths_(static_cast<std::size_t>(columns)) {}

  /// The user chose a cell, which is the current one now.
  Event<> Click;
  /// The face's slot: put texts, widths and the current cell on the screen.
  Event<> Show;
  /// The face's slot: corrects the place of the current cell on the window, which only a face that
  /// scrolls can know.
  Event<CellBox&> PlaceCell;

  /// The grid's own place; a face sets it before the window is loaded.
  CellBox Box{0, 0, 6000, 4800};
  static constexpr double RowHeight = 240;

  int Rows() const { return static_cast<int>(cells_.size()); }
  int Cols() const { return static_cast<int>(widths_.size()); }
  /// Sets the number of rows and empties all cells.
  void SetRows(int rows);

  const std::string& Text(int row, int column) const;
  void SetText(int row, int column, std::string text);

  double ColWidth(int column) const { return widths_[static_cast<std::size_t>(column)]; }
  void SetColWidth(int column, double width);

  int Row() const { return row_; }
  int Col() const { return column_; }
  void Select(int row, int column);

  /// The place of the current cell on the window.
  CellBox CurrentCell() const;

 private:
  bool Has(int row, int column) const { return row >= 0 && row < Rows() && column >= 0 && column < Cols(); }

  std::vector<std::vector<std::string>> cells_;
  std::vector<double> widths_;
  int row_ = 0;
  int column_ = 0;
};

/// What the user holds down at a moment.
struct HeldKeys {
  bool LeftButton = false;
  bool Tab = false;
  bool Shift = false;
};

/// A text box that floats over a cell.
struct FloatingTextBox : TextBox {
  Property<bool> Visible;
  Property<CellBox> Box;
  /// The keyboard goes elsewhere.
  Event<HeldKeys> LostFocus;
  /// The face's slots.
  Event<> BringToFront;
  Event<> SelectAll;
};
