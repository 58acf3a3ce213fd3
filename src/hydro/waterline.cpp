#include "hydro/waterline.h"

#include "base/number_text.h"
#include "controls/forms.h"
#include "hydro/hull_points.h"
#include "hydro/hydrostatics.h"
#include "hydro/water_planes.h"

namespace {

void DrawWaterlineOnViews() {
  DrawSurface& section = *Form1.Picture1[0];
  DrawSurface& profile = *Form1.Picture1[1];
  profile.Line(profile.ScaleLeft(), WaterlineY, profile.ScaleWidth(), WaterlineY, LightBlue);
  // The right end is the profile's on purpose; the line is clipped at the section's edge.
  section.Line(section.ScaleLeft(), WaterlineY, profile.ScaleWidth(), WaterlineY, LightBlue);
  DrawSurface& main = *Form1.Picture2;
  main.Line(main.ScaleLeft(), WaterlineY, main.ScaleLeft() + main.ScaleWidth(), WaterlineY, LightBlue);
}

/// A click on one of the pair: the water that its own check mark doesn't show becomes the water.
void ChooseWater(bool fresh) {
  Form1.Freshwater.Checked = fresh;
  Form1.Seawater.Checked = !fresh;
  WaterDensity = fresh ? FreshwaterDensity : SeawaterDensity;
  ComputeHydrostatics();
}

void DrawContour(double p) {
  for (int i = 1; i <= Stations; ++i) {
    const PlanePoint cut = CutStation(i, p);
    if (cut.found && i == 1) {
      Form1.Picture2->PSet(cut.z, cut.b, LightBlue);
    } else if (cut.found) {
      Form1.Picture2->LineTo(cut.z, cut.b, LightCyan);
    }
  }
}

}  // namespace

void HScroll1_Change() {
  WaterlineY = Form1.HScroll1.Value() * 0.1;
  ComputeHydrostatics();
  Form1.Refresh();
  DrawWaterlineOnViews();
}

void ShowWaterlineBar(int least) {
  Form1.EnterWaterline.Checked = true;
  Form1.HScroll1.Visible = true;
  Form1.HScroll1.SetMin(least);
  ResetWaterlineRange();
}

void OfferHeelAndPlan() {
  if (!Form1.Sections.Checked && !Form1.Profile.Checked && !Form1.Plan.Checked) {
    Form1.Plan.Checked = true;
  }
  Form1.EnterHeel.Enabled = true;
}

void ResetWaterlineRange() {
  if (const auto max = ToWhole(HullMaxY * 10)) {
    Form1.HScroll1.SetMax(*max);
  }
}

void SetWaterlineBar(double inches) {
  if (const auto tenths = ToWhole(inches * 10)) {
    Form1.HScroll1.SetValue(*tenths);
  }
}

void EnterWaterline_Click() {
  if (Form1.EnterWaterline.Checked) {
    Form1.EnterWaterline.Checked = false;
    Form1.HScroll1.Visible = false;
    Form1.EnterHeel.Enabled = false;
  } else {
    ShowWaterlineBar(10);
    OfferHeelAndPlan();
  }
}

void Freshwater_Click() {
  ChooseWater(!Form1.Freshwater.Checked);
}

void Seawater_Click() {
  ChooseWater(Form1.Seawater.Checked);
}

void Contours_Click() {
  if (!Form1.EnterWaterline.Checked) {
    ShowWaterlineBar(10);
    if (WaterlineY == 0) {
      if (const auto tenths = ToWhole(Form1.HScroll1.Max() * 0.4)) {
        Form1.HScroll1.SetValue(*tenths);
      }
    }
  }
  Form1.Sections.Checked = false;
  Form1.Profile.Checked = false;
  Form1.Plan.Checked = true;
  Form1.Picture2.Refresh();
  ForEachPlane(WaterlineY, DrawContour);
}
