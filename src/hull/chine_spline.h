#pragma once
// From the offsets to the hull points, and back while AutoSpline is not checked; and the hull's
// pitch, which turns both. This stands at the head of every repaint of Form1.

/// Cleans the offsets (no stem X of 0 or less, nothing negative), sets HullMaxX, HullMaxY, HullMaxZ,
/// ViewMargin and MaxHalfBeam, and rebuilds HullPts from the offsets (AutoSpline checked) or the
/// offsets from HullPts (not checked; MaxHalfBeam is 0 then). Shows the full beam in panel 2.
void RecomputeHull();

/// One chine: a natural cubic spline of Y over Z through its five bulkheads, sampled at the stations
/// into HullPts coordinates 3 and 2. A sample past station 13 is dropped; with fewer than 13 the
/// last stations keep what they held.
void SplineChineY(int chine);

/// The same of X over Z, into coordinate 1, raising MaxHalfBeam. The transom's own width, the last
/// point, does not count toward it.
void SplineChineX(int chine);

/// Turns offsets and hull points by PitchAngle - PitchApplied degrees about the X axis, moves the
/// lowest and the foremost hull point back to 0, and refreshes Form1. The shape is kept, the
/// offsets are not restored exactly by turning back.
void ApplyPitch();
