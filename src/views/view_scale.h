#pragma once
// The scales of the surfaces: which part of the hull's space each of them shows. They follow from
// HullMaxX, HullMaxY, HullMaxZ, ViewMargin and the surface's shape. Where a division fails (a surface
// without a size, a hull without a length) the surface keeps the scale it has.

#include "views/view.h"

/// A thumbnail: always one scale on both axes, whatever TrueView and the zoom say.
void ScaleThumbnail(View view);

/// Picture2: the zoom rectangle if one is in force, else the hull, at one scale on both axes while
/// TrueView is checked. The spin view always keeps one scale.
void ScaleMainView(View view);
