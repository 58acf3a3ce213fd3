#include "hydro/open_command.h"

#include "controls/forms.h"
#include "hull/chine_spline.h"
#include "hull/hull_model.h"
#include "hydro/hydrostatics.h"

namespace {

void ForgetResults() {
  DisplacedVolume = 0;
  WaterlineLength = 0;
  WaterlineY = 0;
  WaterlineForeZ = WaterlineAftZ = 0;
  GravityCenterX = GravityCenterY = GravityCenterZ = 0;
}

void HideResults() {
  Form1.EnterWaterline.Checked = false;
  Form1.HScroll1.Visible = false;
  Form1.Combo1.SetRows({});
  Form1.Combo1.Text = "Results";
  Form1.Combo1.Visible = false;
}

}  // namespace

void dummy2_Click() {
  Form1.Move(Place::TopLeft);
  ForgetResults();
  PitchAngle = 0;
  ApplyPitch();
  HideResults();
  Form4.Open();
  Form4.File1.Refresh();
}
