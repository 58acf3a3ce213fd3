#include "program/start_up.h"

#include "base/files.h"
#include "base/platform.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "hull/rig.h"
#include "hydro/heel.h"
#include "hydro/hydrostatics.h"
#include "hydro/waterline_search.h"
#include "program/handlers.h"
#include "views/repaint.h"

void BindProgram() {
  SurviveFileSizeLimit();
  ResetForms();
  ResetDialogs();
  SetDataFolder(ShippedDataFolder());
  BindHandlers();
}

void SetStartState() {
  SetDefaultHull();
  ResetFigures();
  ResetRig();
  SetDefaultHydrostatics();
  ResetHeel();
  ResetPitchWarning();
  ResetViews();
  PlotXScale = PlotYScale = 500;
  Form1.Text3.Text = "4";
}

void StartProgram() {
  BindProgram();
  SetStartState();
  ReadPlotScale();
  Form1.Refresh();
}
