#pragma once
// The heeled hull in the current view of Picture2: the plan if Plan is checked, else the sections if
// Sections is checked, else the profile.

/// The side whose points HullPts holds now. The high side is held as its mirror image, so its X is
/// drawn negated.
inline constexpr double LowSide = 1;
inline constexpr double HighSide = -1;

/// Clears Picture2 and frames the hull at any heel, at one scale for both axes.
void StartHeelDrawing();

/// Chines, stations and nodes of one side.
void DrawHeeledSide(double side);

/// In the profile, the waterline between its two ends.
void DrawHeeledWaterline();

/// In the plan, the waterline's outline on one side.
void DrawHeeledOutline(double side);

/// The marks of both centers; in the sections also the moment arm and the righting moment, in foot
/// pounds.
void DrawCenters(double righting_moment);
