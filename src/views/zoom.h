#pragma once
// The zoom rectangle of the main view, drawn with the right mouse button.

/// In the coordinates of the view in which it was drawn; it stays in force when the menu changes the
/// view. ZoomRight other than 0 is the one test for a zoom in force.
extern float ZoomLeft;
extern float ZoomRight;
extern float ZoomBottom;
extern float ZoomTop;

/// All four back to 0.
void ClearZoom();

/// An anchor, and a rectangle of no size there.
void StartZoom(double x, double y);
/// Draws the rectangle from the anchor to the height y in place of the one before. It grows to the
/// right and keeps the shape of Picture2, wherever the pointer is across.
void DragZoom(double y);
/// Swaps the ends that were drawn from top to bottom or from right to left.
void OrderZoom();
