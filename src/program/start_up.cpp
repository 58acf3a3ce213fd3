#include "program/start_up.h"

#include "base/files.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "program/handlers.h"

void StartProgram() {
  ResetForms();
  BindHandlers();
  SetDataFolder(ShippedDataFolder());
  SetDefaultHull();
  Form1.AutoSpline.Checked = true;
  Form1.Text3.Text = "4";
  PlotXScale = PlotYScale = 500;
  ReadPlotScale();
  Form1.Refresh();
}
