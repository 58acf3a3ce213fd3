#pragma once
// The plot scale, and the lines that every writer of a pattern needs: coordinates and the head.

#include <string>

/// Plot units per inch. Left divided by the divisor of the last panel until the next ReadPlotScale.
extern double PlotXScale;
extern double PlotYScale;

/// Reads the scales from the first calibration file that exists: the shared one of the user, then
/// "qv32.dat", then "qvector.dat" in the working folder. What it doesn't hold stays as it was. Then
/// a scale of 0 becomes 500, and a negative one counts by its magnitude.
void ReadPlotScale();

/// Appends the coordinate line of a point in inches, floor(inches x scale) toward minus infinity:
/// "1204 -87 acut". A point that has no value gives no line.
void PutMove(std::string& out, double x, double y);

/// Appends "start_plot" and the head comment of flat parts and the waterplane.
void PutFlatHead(std::string& out);
