#include "program/session.h"

#include <string>

#include "base/files.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/chine_spline.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "hull/open_dialog.h"
#include "hull/plot_scale.h"
#include "program/start_up.h"

namespace {

constexpr const char* DefaultHull = "default.tvh";

constexpr const char* AboutText =
    "Tarve Designer\n"
    "Hard-chine hulls for sheet plywood,\n"
    "from the first line to the full-size pattern.\n"
    "\n"
    "User Manual:  Tarve.PDF\n"
    "\n"
    "Questions, faults and boats: see the README.\n"
    "The program comes as it is, without any warranty:\n"
    "measure your patterns before you cut plywood.\n";

void OpenLastHull() {
  if (FindFile(HullFileName).empty()) {
    return;
  }
  NormalizeHullFile(HullFileName);
  LoadHullFile(HullFileName, HullReader::StartUp);
  Form1.VScroll1.SetValue(NumChines);
  Form1.StatusBar1.Panels[1] = "Working on..." + HullFileName;
}

}  // namespace

void Form_Load() {
  Form4_Load();
  Form4.Visible = false;
  Form1.Move(Place::Centre);
  SetStartState();
  OpenLastHull();
  ReadPlotScale();
  Form1.Visible = true;
  Form1.Refresh();
  MsgBox(AboutText, 0, "Tarve Ply Designer");
}

void Timer1_Timer() {
  const std::string told = Form1.StatusBar1.Panels[1];
  Form1.StatusBar1.Panels[1] = std::string("Autosaving...") + DefaultHull;
  WriteHullFile(DefaultHull);
  Form1.StatusBar1.Panels[1] = told;
}

void dummy6_Click() {
  bool refuse = false;
  Form1.QueryUnload(refuse);
  if (!refuse) {
    Form1.Unload();
  }
}

void Form_QueryUnload(bool& refuse) {
  PitchAngle = 0;
  ApplyPitch();
  constexpr int yes_no_cancel_with_question = 3 + 32;
  const Answer answer =
      MsgBox("Do you want to save to " + HullFileName + "?", yes_no_cancel_with_question, "");
  if (answer == Answer::Yes) {
    WriteHullFile(HullFileName);
  }
  refuse = answer == Answer::Cancel;
  if (!refuse) {
    Form2.Unload();
    Form3.Unload();
    Form5.Unload();
  }
}
