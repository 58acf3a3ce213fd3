#pragma once
// The window "Offsets": all offsets in a grid. The floating box changes the cell that it is over, and
// with it the hull, at every keystroke. The grid is filled when the window is loaded and follows no
// change that is made elsewhere.

#include <string_view>

#include "controls/grid.h"

/// Whether the notes were shown in this run.
extern bool OffsetsNotesShown;

/// The menu item: shows the notes once in a run, then the window.
void dummy8_Click();

/// Fills the grid and selects the first X.
void Form5_Load();
/// The next use of the window loads it anew.
void Form5_Unload();

/// Opens the current cell: puts the box over it with its text. A text other than the box held before
/// counts as typed, so the cell and its offset take the value as it is shown.
void Form5_Grid1_Click();

/// Puts the number in the box into the cell and the cell's into the offset. Z of bulkheads 1 to 3
/// goes to chines 1 to 6, always these six. Headings and labels are fixed: they stay.
void Form5_Text1_Change();

/// Enter opens the cell below.
void Form5_Text1_KeyPress(int key);

/// With the Tab key down and the left button up: opens the next cell to the right, or the one to the
/// left with Shift, going on in the next row or the one before.
void Form5_Text1_LostFocus(const HeldKeys& held);

/// An entry in inches: a decimal number, or with a dash whole inches and eighths, to which a last
/// "+" adds a sixteenth and from which a last "-" takes one: "5-4+" is 5.5625.
double EnteredInches(std::string_view text);
