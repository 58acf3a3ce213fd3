#pragma once
// The rig's numbers, in inches and degrees. The boxes of Form4 write them as they change; whether the
// rig shows, and on which chine it steps, is in the controls there.

extern double RigMastLength;
extern double RigBoomHeight;  ///< above the step
extern double RigStepZ;       ///< place of the mast, aft of the stem
extern double RigLuffLength;
extern double RigFootLength;
extern double RigHeadLength;
extern double RigHeadAngle;  ///< of the head above the horizontal, degrees

/// Height of the step on its chine. Written by the paint of the main view; where no span of stations
/// holds the step it keeps its value.
extern double RigStepY;

/// All numbers 0.
void ResetRig();
