#pragma once
// The commands that choose what Picture2 shows. Each view change parks the keyboard in Text1(0), where
// the arrow keys reach the spin view.

/// The menu: the one item is ticked, Picture2 repainted. A zoom stays in force, though it was drawn in
/// the coordinates of another view.
void Sections_Click();
void Profile_Click();
void Plan_Click();

/// The menu: one scale on both axes of the flat views, or each axis filling the surface.
void TrueView_Click();

/// A thumbnail: repaints the form in the old view first, then ends the zoom and shows the section (0),
/// the profile (1) or the plan (2).
void Picture1_Click(int index);

/// The true view's picture: ends the zoom, shows the spin view from its start position.
void Picture3_Click();
