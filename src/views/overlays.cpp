#include "views/overlays.h"

#include <algorithm>
#include <cmath>

#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/rig.h"
#include "hydro/hull_points.h"

namespace {

void FindRigStep(int chine) {
  for (int i = 1; i < Stations; ++i) {
    const double start = Z(i, chine);
    const double end = Z(i + 1, chine);
    if (RigStepZ > start && RigStepZ <= end) {
      const double rise = Y(i + 1, chine) - Y(i, chine);
      Store(RigStepY, Y(i, chine) + rise * ((RigStepZ - start) / (end - start)));
      return;
    }
  }
}

/// The outer end of the head.
struct Peak {
  double z;
  double y;
};

Peak RigPeak() {
  const double a = RigHeadAngle * CoarsePi / 180;
  return {RigStepZ + std::cos(a) * RigHeadLength,
          RigStepY + RigBoomHeight + RigLuffLength + std::sin(a) * RigHeadLength};
}

}  // namespace

void DrawFigure() {
  if (FigureIndex < 0) {
    return;
  }
  for (int i = 1; i < std::min(FigureCount, MostFigurePoints); ++i) {
    Form1.Picture2->Line(FigureX(i) + FigureOffsetX, FigureY(i) + FigureOffsetY,
                         FigureX(i + 1) + FigureOffsetX, FigureY(i + 1) + FigureOffsetY, LightRed);
  }
}

void PlaceRigStep() {
  FindRigStep(Form4.Option1.Value ? NumChines : 1);
  for (const double top : {RigPeak().y, RigStepY + RigMastLength}) {
    if (top > HullMaxY) {
      Store(HullMaxY, top);
    }
  }
}

void DrawRig() {
  DrawSurface& picture = *Form1.Picture2;
  const double boom = RigStepY + RigBoomHeight;
  const Peak peak = RigPeak();
  picture.Line(RigStepZ, RigStepY, RigStepZ, RigStepY + RigMastLength, LightMagenta);
  picture.Line(RigStepZ, boom, RigStepZ + RigFootLength, boom, LightMagenta);
  picture.Line(RigStepZ, boom + RigLuffLength, peak.z, peak.y, LightMagenta);
  picture.LineTo(RigStepZ + RigFootLength, boom, LightMagenta);
}
