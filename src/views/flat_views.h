#pragma once
// The flat pictures of one half of the hull: the thumbnails, and sections, profile and plan on the
// main surface. What differs between them is data: the two coordinates, the fixed line, the numbers.

#include "views/view.h"

/// Clears, scales and paints the thumbnail of a flat view.
void DrawThumbnail(View view);

/// The hull on Picture2, which is scaled already: chines with their points, bulkheads, the boxes of
/// the highlighted nodes and of the current one.
void DrawFlatView(View view);
