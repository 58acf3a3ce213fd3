#pragma once
// The human figure that stands in the drawing for scale: the figures of "persons.fig", their
// thumbnails on Form4, the choice of one, and its outline and place in the view.
//
// The file is read by lines: what stands ahead of a line with "start" is skipped, the next line is
// the figure's name, each further one a point ("12.5 60"), and a line with "end", or the end of the
// file, closes the figure. It is looked for in the working folder and then among the program's data.

#include "base/table.h"

inline constexpr int MostFigurePoints = 100;
/// The figures of the file are drawn for a person of so many inches.
inline constexpr double DrawnHeight = 67;

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

/// Draws every figure of the file onto its box of Form4. Figures beyond the nine boxes are read and
/// not drawn. HullMaxX and HullMaxY serve as scratch, here and in the click, until the next
/// recompute. Without the file nothing changes.
void DrawFigureThumbnails();

/// Selects a figure, scaled to the height in Form4.Text3, with its middle at half of its size; or
/// switches it off if it is the selected one. Where the file has no such figure there is none then.
void Form4_Picture2_Click(int index);

/// No figure is selected any more, and none is framed.
void DropFigure();

/// The height: a new one asks for a new click on a figure.
void Form4_Text3_Change();
void Form4_VScroll2_Change();
/// The weight.
void Form4_Text8_Change();

void Form4_Command5_Click();  ///< mirrors the figure left to right
void Form4_Command6_Click();  ///< turns it upside down
void Form4_Command7_Click();  ///< swaps its axes
