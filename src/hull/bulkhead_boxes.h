#pragma once
// The two switches of editing, and the boxes Text1 that hold the places of the bulkheads.

/// The menu items toggle their ticks and repaint the form. AutoSpline: the offsets rule and the hull
/// points follow, or the other way round. LockBulkheads: dragging changes no Z.
void AutoSpline_Click();
void LockBulkheads_Click();

/// A key in the box of a bulkhead, 0 to 4: any key ticks AutoSpline, Enter gives the Z of the box to
/// all chines at that bulkhead and repaints the form.
void Text1_KeyPress(int index, int key);
