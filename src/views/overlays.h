#pragma once
// What stands on the hull's picture: the figure in every view, and the rig, which makes the picture a
// profile.

/// The outline of the selected figure on Picture2, in whatever the picture's axes are.
void DrawFigure();

/// Finds the height of the mast's step on the sheer (deck step) or the keel, and raises HullMaxY so
/// that the picture holds the whole rig; the next RecomputeHull brings it back. Where no span of
/// stations holds the step, RigStepY keeps its value.
void PlaceRigStep();

/// Mast, foot, head and leech on Picture2. The mast stands for the luff.
void DrawRig();
