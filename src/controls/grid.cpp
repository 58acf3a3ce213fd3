#include "controls/grid.h"

#include <utility>

void Grid::SetRows(int rows) {
  cells_.assign(static_cast<std::size_t>(rows), std::vector<std::string>(widths_.size()));
  Show();
}

const std::string& Grid::Text(int row, int column) const {
  static const std::string none;
  return Has(row, column) ? cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] : none;
}

void Grid::SetText(int row, int column, std::string text) {
  if (Has(row, column)) {
    cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = std::move(text);
    Show();
  }
}

void Grid::SetColWidth(int column, double width) {
  widths_[static_cast<std::size_t>(column)] = width;
  Show();
}

void Grid::Select(int row, int column) {
  if (Has(row, column)) {
    row_ = row;
    column_ = column;
    Show();
  }
}

CellBox Grid::CurrentCell() const {
  CellBox cell{Box.Left, Box.Top + row_ * RowHeight, ColWidth(column_), RowHeight};
  for (int column = 0; column < column_; ++column) {
    cell.Left += ColWidth(column);
  }
  PlaceCell(cell);
  return cell;
}
