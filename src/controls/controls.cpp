#include "controls/controls.h"

#include <utility>

void ScrollBar::SetMin(int min) {
  min_ = min;
  Show();
}

void ScrollBar::SetMax(int max) {
  max_ = max;
  Show();
  if (value_ > High()) {
    SetValue(High());
  } else if (min_ > max_ && value_ < Low()) {
    SetValue(Low());
  }
}

void ScrollBar::SetValue(int value) {
  if (value < Low() || value > High() || value == value_) {
    return;
  }
  value_ = value;
  Show();
  Change();
}

void ComboBox::SetRows(std::vector<std::string> rows) {
  rows_ = std::move(rows);
  list_index_ = -1;
  Show();
}

void ComboBox::SetListIndex(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) {
    return;
  }
  list_index_ = row;
  Text = rows_[static_cast<std::size_t>(row)];
  Click();
}

void ListBox::AddItem(std::string row) {
  rows_.push_back(std::move(row));
  Show();
}

void ListBox::Clear() {
  rows_.clear();
  list_index_ = -1;
  Show();
}

void ListBox::SetListIndex(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) {
    return;
  }
  list_index_ = row;
  Show();
  Click();
}
