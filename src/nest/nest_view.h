#pragma once
// The picture of the sheet row on Picture1 of Form2.

/// Reads the sheets anew and paints them with all shown parts. Sheets without a height or length leave
/// the picture empty.
void Form2_Picture1_Paint();

/// Paints the cross of the snap read-out and the distances to the sheet's edges over the picture.
void DrawSnapCross(double x, double y);
void DrawSnapDistances(double x, double y);
