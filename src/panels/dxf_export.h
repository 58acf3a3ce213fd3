#pragma once
// Pattern files as two-dimensional DXF drawings in inches: one LINE for each move with the pen down,
// a POLYLINE for each run of spline points, all on layer "0".

#include <string>
#include <string_view>

/// The state that one exported file hands to the next.
struct DxfPen {
  bool down = false;
};

/// The drawing of a pattern, in the plot scale in force. `pen` goes in and comes out.
std::string DxfOfPattern(std::string_view pattern, DxfPen& pen);

/// Exports all parts of the run into ExportPath, and deletes old "chine*.dxf" of the working folder.
void ExportDxf();
