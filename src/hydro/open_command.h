#pragma once
// The menu item "Open". It stands on this floor because it forgets what was computed of the hull so
// far; all else of its window is in hull/open_dialog.h.

/// Makes room for the window at the top left, forgets the results and brings a pitched hull back,
/// turns the waterline off, and shows Form4 with its list of files read anew.
void dummy2_Click();
