#pragma once
// The spin view: a wire frame of both halves of the hull in perspective, turned by buttons and arrow
// keys.

#include "hull/hull_model.h"

/// Turned copies of HullPts, indexed like it: the +X half, and the other one with X negated. Rebuilt at
/// every repaint of Form1, turned in place by every step. Station 0 is never written and stays 0.
extern PointTable ViewPtsA;
extern PointTable ViewPtsB;

/// The turn of one step, radians. Its sign is state: the arrow keys set it, the buttons use it as they
/// find it.
extern double SpinStep;

/// The step and the tables as at the start of the program.
void ResetSpin();

/// Takes the hull points anew, in the start position: tilted and turned by 18 degrees.
void RebuildViewPoints();

/// The wire frame on Picture2, which is scaled already, with its low corner at the origin.
void DrawSpinView();

/// The buttons: one step each, in the plane of X and Y, of X and Z, of Y and Z, whatever their captions
/// say. They leave a flat view for this one.
void Command1_Click();
void Command5_Click();
void Command6_Click();

/// The arrow keys turn like Command5 (left, right) and Command6 (up, down), and are used up by it.
void Form_KeyDown(int& key);
