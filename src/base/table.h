#pragma once
// A table of numbers that keeps the rule of the skipped statement at its borders: reading outside
// yields "no value", writing outside or writing "no value" changes nothing.

#include <array>
#include <cstddef>

#include "base/skipped_statement.h"

/// One place of a table, or no place at all for an index outside.
class Cell {
 public:
  explicit Cell(double* place) : place_(place) {}
  Cell(const Cell&) = default;

  operator double() const { return place_ == nullptr ? NoValue : *place_; }

  Cell& operator=(double value) {
    if (place_ != nullptr) {
      Store(*place_, value);
    }
    return *this;
  }
  Cell& operator=(const Cell& other) { return *this = static_cast<double>(other); }
  Cell& operator+=(double value) { return *this = *this + value; }
  Cell& operator-=(double value) { return *this = *this - value; }
  Cell& operator*=(double value) { return *this = *this * value; }

 private:
  double* place_;
};

/// A table of the given sizes, each index counted from 0; every cell starts at 0.
/// Table<31, 5> OffX; OffX(2, 4) = OffX(2, 3) + 1;
template <int... Sizes>
class Table {
 public:
  template <class... Index>
  Cell operator()(Index... index) {
    const int place = Place(index...);
    return Cell(place < 0 ? nullptr : &cells_[static_cast<std::size_t>(place)]);
  }
  template <class... Index>
  double operator()(Index... index) const {
    const int place = Place(index...);
    return place < 0 ? NoValue : cells_[static_cast<std::size_t>(place)];
  }

  /// Sets every cell back to 0.
  void Erase() { cells_.fill(0); }

 private:
  template <class... Index>
  static int Place(Index... index) {
    static_assert(sizeof...(Index) == sizeof...(Sizes), "one index for each dimension");
    int place = 0;
    const bool inside = (Step(place, index, Sizes) && ...);
    return inside ? place : -1;
  }
  static bool Step(int& place, int index, int size) {
    const bool inside = index >= 0 && index < size;
    place = inside ? place * size + index : -1;
    return inside;
  }

  std::array<double, static_cast<std::size_t>((Sizes * ...))> cells_{};
};
