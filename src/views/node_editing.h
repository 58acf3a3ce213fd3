#pragma once
// Editing the hull with the mouse in the flat views of Picture2. The nodes are the offsets while
// AutoSpline is checked and the hull points while it is not; CurChine and CurStation tell the current
// one. Positions come in the view's own coordinates, button 1 is the left one, 2 the right one.
// With no current node, everything that would change it does nothing.

/// Picks the nearest node of the view within 1000 units, the first of equals by chine and then by
/// station; no node is -1 in both. The right button anchors the zoom rectangle as well.
void Picture2_MouseDown(int button, double x, double y);

/// Moves the figure (any button, while one shows), draws the zoom rectangle (right button), moves the
/// current node and repaints the form (left button), or shows the pointer in panels 3 to 5.
void Picture2_MouseMove(int button, double x, double y);

/// Ends the zoom rectangle (right button), or lets the current node snap to the first other node of
/// the offsets within SnapRadius. Either way the waterline mode ends, the results are hidden, and the
/// form is repainted.
void Picture2_MouseUp(int button, double x, double y);

/// Asks for X, Y and Z of the current node, one box after the other, each on the recomputed hull. An
/// empty answer ends it and keeps the answers before.
void Picture2_DblClick();
