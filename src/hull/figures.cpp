#include "hull/figures.h"

FigureTable FigureX;
FigureTable FigureY;
int FigureCount;
int FigureIndex;
double FigureOffsetX;
double FigureOffsetY;
double FigureWeight;

void ResetFigures() {
  FigureX = {};
  FigureY = {};
  FigureCount = 0;
  FigureIndex = -1;
  FigureOffsetX = FigureOffsetY = 0;
  FigureWeight = 0;
}
