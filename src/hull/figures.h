#pragma once
// The human figure that stands in the drawing for scale: its outline and its place in the view.

#include "base/table.h"

inline constexpr int MostFigurePoints = 100;

using FigureTable = Table<MostFigurePoints + 1>;

/// Outline of the selected figure, points 1 to 100, inches, around its middle. Written by the open
/// dialog's click on a figure and by its turning buttons.
extern FigureTable FigureX;
extern FigureTable FigureY;

/// Points that the file gives the figure; those beyond 100 are counted but not kept.
extern int FigureCount;
extern int FigureIndex;  ///< the selected figure from 0, -1 for none

/// Where the middle of the figure stands, in the coordinates of the view.
extern double FigureOffsetX;
extern double FigureOffsetY;

extern double FigureWeight;  ///< pounds; kept and used nowhere

/// No figure, and all tables empty.
void ResetFigures();
