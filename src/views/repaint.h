#pragma once
// The repaint chain. Form1.Refresh says that the hull changed and runs Form_Paint; Picture2.Refresh
// alone repaints the main view of the hull as it is.

/// The state of the views as at the start of the program: no zoom, the first spin step, no turned
/// points.
void ResetViews();

/// Recomputes the hull, rebuilds the turned copies in their start position, paints the three
/// thumbnails, then refreshes Picture2.
void Form_Paint();

/// Paints the view that the ticks choose; a rig that shows makes it the profile, and raises HullMaxY
/// until the next recompute. The figure and the rig come last.
void Picture2_Paint();
