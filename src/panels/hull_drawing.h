#pragma once
// The three-view wire-frame drawing of the hull as a DXF file beside the hull file.

#include <string>
#include <string_view>

/// The name of the drawing that belongs to a hull file, ahead of its ending: up to and including
/// the first dot of the file's own name (a dot in a folder's name doesn't count).
std::string HullDrawingName(std::string_view hull_file);

/// The drawing from HullPts (along the chines) and the offsets (across): body view, profile moved
/// clear along x by twice the largest half-breadth, plan moved clear by twice along x and three
/// times along y.
std::string HullDxf();

/// Writes the drawing of HullFileName, ending "dxf", and says so in panel 1, there in capitals.
void WriteHullDxf();
