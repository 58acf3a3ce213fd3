#pragma once
// The number of chines, as its box and its spinner set it.

/// VScroll1's change: copies its value into Text3.
void VScroll1_Change();

/// Text3's change: holds the text to 2..30, gives a new chine without data a course extrapolated
/// from the last two, sets NumChines and repaints. Only the last of several new chines is filled.
void Text3_Change();
