#pragma once
// The results as finished texts: one row a figure, in the list Combo1.

#include <string>
#include <vector>

/// One row: a label, a number by a mask of so many decimals and the unit behind it.
struct ResultRow {
  const char* label;
  double value;
  int decimals;
  const char* unit;
};

/// Replaces the rows of Combo1 and its edit line, and shows it. A row whose number has no value is
/// left out.
void FillResults(const std::string& title, const std::vector<ResultRow>& rows);

/// The upright results, from the shared hydrostatic state; the row that the user chose last is
/// chosen again.
void ShowResults();

/// Remembers the chosen row.
void Combo1_Click();
