#include "panels/save_and_create.h"

#include "base/files.h"
#include "controls/forms.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "panels/dxf_export.h"
#include "panels/expansion.h"
#include "panels/flat_parts.h"
#include "panels/hand_plot.h"
#include "panels/hpgl_export.h"
#include "panels/hull_drawing.h"
#include "panels/leveling.h"
#include "panels/triangulation.h"

namespace {

void DeleteOldOutput() {
  DeleteFiles("chine", ".tri");
  dummy21_Click();
}

/// The order is binding: leveling rewrites what the expansion wrote, and the table and both exports
/// see leveled panels.
void CreatePatterns() {
  Form3.Visible = false;
  Form2.Unload();
  if (NumChines < 3) {  // the second sole needs a third chine
    Form3.Check8.Value = false;
  }
  DeleteOldOutput();
  Form1.StatusBar1.Panels[1] = "Setting up solutions...";
  WriteTriFiles();
  WriteFlatParts();
  WriteHullDxf();
  ExpandPanels();
  LevelPatterns();
  WriteHandPlot();
  if (Form3.Check3.Value) {
    ExportHpgl();
  }
  if (Form3.Check4.Value) {
    ExportDxf();
  }
}

}  // namespace

void dummy21_Click() {
  DeleteFiles("", ".uc");
  DeleteFile("handplot.txt");
}

void SaveAndCreate() {
  // The stages read what stages before wrote, and some files are written twice. Each goes to the
  // disk once, at the end.
  const bool by_ourselves = HoldBackChanges();
  if (Form3.Check1.Value) {
    CreatePatterns();
  }
  WriteHullFile(HullFileName);
  CopyTextFile(HullFileName, "default.tvh", Worth::Keeping);
  if (by_ourselves) {
    WriteChanges();
  }
  Form1.StatusBar1.Panels[1] = "Working on..." + HullFileName;
  Form1.Refresh();
  Form3.File1.Refresh();
}
