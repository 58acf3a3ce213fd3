#include "views/view.h"

#include <cstddef>

#include "controls/forms.h"

namespace {

struct FlatItem {
  View view;
  MenuItem& item;
};

/// In the order in which the ticks are asked.
const FlatItem FlatItems[] = {
    {View::Profile, Form1.Profile},
    {View::Sections, Form1.Sections},
    {View::Plan, Form1.Plan},
};

}  // namespace

View CheckedView() {
  for (const FlatItem& row : FlatItems) {
    if (row.item.Checked) {
      return row.view;
    }
  }
  return View::Spin;
}

void CheckView(View view) {
  for (const FlatItem& row : FlatItems) {
    row.item.Checked = row.view == view;
  }
}

Axes AxesOf(View view) {
  switch (view) {
    case View::Sections:
      return {1, 2};
    case View::Plan:
      return {3, 1};
    default:
      return {3, 2};
  }
}

OffsetTable& OffsetsOf(int coordinate) {
  static OffsetTable* const tables[] = {&OffX, &OffY, &OffZ};
  return *tables[static_cast<std::size_t>(coordinate - 1)];
}

ViewPoint HullPoint(Axes axes, int station, int chine) {
  return {HullPts(axes.across, station, chine), HullPts(axes.up, station, chine)};
}

ViewPoint OffsetNode(Axes axes, int chine, int bulkhead) {
  return {OffsetsOf(axes.across)(chine, bulkhead), OffsetsOf(axes.up)(chine, bulkhead)};
}
