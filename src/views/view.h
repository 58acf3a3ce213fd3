#pragma once
// The four views of the hull, and what tells the three flat ones apart: the coordinate that goes
// across and the one that goes up. The axes keep one meaning everywhere: X off the centre plane, Y up
// from the base, Z aft of the stem.

#include "hull/hull_model.h"

/// The first three in the order of the thumbnails Picture1(0) to Picture1(2).
enum class View { Sections, Profile, Plan, Spin };
inline constexpr View FlatViews[] = {View::Sections, View::Profile, View::Plan};

/// The view that the menu's ticks tell, which are its only record. The mouse follows it also while a
/// rig makes the picture a profile.
View CheckedView();
/// Ticks the item of the view and clears the other two; all three are cleared for the spin view.
void CheckView(View view);

/// The coordinates that a flat view shows, 1 for X, 2 for Y, 3 for Z.
struct Axes {
  int across;
  int up;
};
Axes AxesOf(View view);

/// The offsets of one coordinate, 1 to 3.
OffsetTable& OffsetsOf(int coordinate);

/// A place in a view; no value for an index outside of the tables.
struct ViewPoint {
  double u;
  double v;
};
ViewPoint HullPoint(Axes axes, int station, int chine);
ViewPoint OffsetNode(Axes axes, int chine, int bulkhead);
