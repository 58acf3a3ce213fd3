#pragma once
// The hull as a VRML 1.0 file: a coloured solid in metres, one list of points for both halves and nine
// sets of triangles over it. Its axes are length, height, breadth.
//
// The point of chine c (1..N) and station s (1..13) has the number (c - 1) * 13 + (s - 1), counted
// from 0; that of the other half, with -X, is 13 N higher.

#include <string>
#include <string_view>

/// The file's text, from HullPts and HullMaxY.
std::string VrmlText();

/// The file that belongs to a hull file: up to and including the first dot of the whole path, which
/// may stand in a folder's name, and "wrl"; "wrl" alone for a name without a dot.
std::string VrmlName(std::string_view hull_file);

/// The button "VRML": repaints, writes the file of HullFileName and copies it to "default.wrl" in the
/// working folder. Nothing is told.
void Command2_Click();
