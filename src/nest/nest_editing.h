#pragma once
// Nesting by hand: the list, the buttons, the mouse over the sheet row, and sliding the picture. What
// is turned, flipped or dragged is the selected instance: of part NestCurrent, the part itself or its
// copy by NestCopySelected.

/// Shows the chosen part and makes it, not its copy, the selected instance; or hides it together with its
/// copy.
void Form2_List1_Click();

/// Mirrors the selected instance about its center line: Y changes its sign.
void Form2_Command1_Click();
/// Turns by a half, a quarter, and a quarter of a degree either way.
void Form2_Command2_Click();
void Form2_Command3_Click();
void Form2_Command4_Click();
void Form2_Command6_Click();
/// Turns the selected instance anticlockwise about its center, in place. The half turn is the coarse pi, so
/// 90 degrees fall short by a hair, and rounding stays in the outline.
void RotateSelected(double degrees);

/// Shows the copy of the current part, 3 inches to the right of it and above, or hides it.
void Form2_Command5_Click();
/// On to the next of wide, full and false view.
void Form2_Command7_Click();
/// The window has another width: a view that fits it takes it over.
void Form2_Resize();
/// A change of the sheets: the picture goes back to its place and is painted anew.
void Form2_Sheets_Change();

/// Slide the picture; at the end of the way they beep instead.
void Form2_Image3_Click();
void Form2_Image4_Click();
/// The left and right keys slide the picture too, and are used up.
void Form2_KeyDown(int& key);

/// Selects the instance whose center is nearest, shown or not, within 12 inches; else nothing changes.
void Form2_Picture1_MouseDown(int button, double x, double y);
/// With a button down the selected instance follows by its center; without, the nearest point of what
/// is shown is read out in the caption and on the picture.
void Form2_Picture1_MouseMove(int button, double x, double y);
/// Brings everything that lies beyond the row of sheets back to it, and centers near an edge onto it.
void Form2_Picture1_MouseUp(int button, double x, double y);
