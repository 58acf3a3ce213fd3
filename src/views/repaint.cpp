#include "views/repaint.h"

#include "controls/forms.h"
#include "hull/chine_spline.h"
#include "views/flat_views.h"
#include "views/overlays.h"
#include "views/spin_view.h"
#include "views/view.h"
#include "views/view_scale.h"
#include "views/waterline_marks.h"
#include "views/zoom.h"

namespace {

void PaintView(View view) {
  ScaleMainView(view);
  if (view == View::Spin) {
    DrawSpinView();
  } else {
    DrawFlatView(view);
    DrawWaterlineMarks(view);
  }
  DrawFigure();
}

}  // namespace

void ResetViews() {
  ClearZoom();
  ResetSpin();
}

void Form_Paint() {
  RecomputeHull();
  RebuildViewPoints();
  for (const View view : FlatViews) {
    DrawThumbnail(view);
  }
  Form1.Picture2.Refresh();
}

void Picture2_Paint() {
  Form1.Picture2->Cls();
  if (Form4.Rig.Value) {
    PlaceRigStep();
    PaintView(View::Profile);
    DrawRig();
  } else {
    PaintView(CheckedView());
  }
}
