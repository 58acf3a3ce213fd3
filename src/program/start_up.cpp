#include "program/start_up.h"

#include "base/files.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "hull/rig.h"
#include "hydro/heel.h"
#include "hydro/hydrostatics.h"
#include "hydro/waterline_search.h"
#include "nest/nest_model.h"
#include "program/handlers.h"

void StartProgram() {
  ResetForms();
  ResetDialogs();
  BindHandlers();
  SetDataFolder(ShippedDataFolder());
  SetDefaultHull();
  ResetFigures();
  ResetRig();
  SetDefaultHydrostatics();
  ResetHeel();
  ResetPitchWarning();
  Form2_Unload();
  Form1.AutoSpline.Checked = true;
  Form1.Freshwater.Checked = true;
  Form1.EnterHeel.Enabled = false;
  Form1.Text3.Text = "4";
  PlotXScale = PlotYScale = 500;
  ReadPlotScale();
  Form1.Refresh();
}
