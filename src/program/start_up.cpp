#include "program/start_up.h"

#include <string>

#include "base/files.h"
#include "base/platform.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/hull_model.h"
#include "hull/offsets_table.h"
#include "hull/plot_scale.h"
#include "hull/rig.h"
#include "hydro/heel.h"
#include "hydro/hydrostatics.h"
#include "hydro/waterline_search.h"
#include "nest/nest_model.h"
#include "program/handlers.h"
#include "views/repaint.h"

namespace {

/// The lists of files start in the working folder.
void ShowWorkingFolder() {
  const std::string root = WorkingFolder().root_path().string();
  Form3.Drive1.Drive = root;
  Form4.Drive1.Drive = root;
  Form3.Dir1.Path = WorkingFolder().string();
  Form4.Dir1.Path = WorkingFolder().string();
}

}  // namespace

void ResetProgram() {
  SurviveFileSizeLimit();
  ResetForms();
  ResetDialogs();
  SetDataFolder(ShippedDataFolder());
  BindHandlers();
  ResetFigures();
  ShowWorkingFolder();
}

void SetStartState() {
  SetDefaultHull();
  ResetRig();
  SetDefaultHydrostatics();
  ResetHeel();
  ResetPitchWarning();
  ResetViews();
  OffsetsNotesShown = false;
  Form2_Unload();
  PlotXScale = PlotYScale = 500;
  Form1.Text3.Text = "4";
}

void StartProgram() {
  ResetProgram();
  SetStartState();
  ReadPlotScale();
  Form1.Refresh();
}
