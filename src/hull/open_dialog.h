#pragma once
// The window "Open": choosing a hull file, and the boxes of rig and ballast. Its figures are in
// figures.h; the menu item that shows it is in hydro/open_command.h.

#include <array>

#include "controls/controls.h"

/// The window is made: places and shows it, with the folder, the texts of the hull and the figures.
void Form4_Load();

/// The window stays until the program ends: refuses.
void Form4_QueryUnload(bool& refuse);

/// Opens the chosen file at once: sets HullFileName and reads the file, which is rewritten with
/// points for commas. Nothing without a chosen file, or if it is there no more.
void Form4_File1_Click();
void Form4_Dir1_Change();
void Form4_Drive1_Change();

/// Done: hides the window and repaints the hull.
void Form4_Command1_Click();

/// A box whose number goes to a shared variable as the user types. A number that is too large leaves
/// the variable as it was.
struct NumberBox {
  TextBox* box;
  double* number;
};
std::array<NumberBox, 7> RigNumbers();
std::array<NumberBox, 3> BallastNumbers();

/// The change of such a box. A rig box repaints the main view, too.
void RigBox_Change(const NumberBox& changed);
void BallastBox_Change(const NumberBox& changed);
