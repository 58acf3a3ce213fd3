#pragma once
// What the hydrostatics found, drawn on the flat views: the waterline, the centers, the waterplane.

#include "views/view.h"

/// Draws the results of the last pass on Picture2 as the flat view shows them; the plan's waterplane
/// goes to its thumbnail too. Nothing while WaterlineY is 0, whatever was computed before.
void DrawWaterlineMarks(View view);

/// The outline of the hull at WaterlineY, a point a station, on Picture1(2) and Picture2 in plan
/// coordinates. A station that lies under water as a whole is bridged.
void WaterplaneContour();
