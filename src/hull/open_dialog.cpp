#include "hull/open_dialog.h"

#include "base/files.h"
#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "hull/rig.h"

void Form4_Load() {
  Form4.Loaded = true;
  Form4.Move(Place::BottomRight);
  Form4.Label3.Caption = Form4.Dir1.Path;
  Form4.Label4.Caption = HullDesigner;
  Form4.Label11.Caption = HullInfo;
  Form4.Visible = true;  // the figures can be drawn only onto boxes that show
  DrawFigureThumbnails();
  FigureIndex = -1;
}

void Form4_QueryUnload(bool& refuse) {
  refuse = true;
}

void Form4_File1_Click() {
  // A file that went away since the list was read is no choice: opening it would empty the hull.
  if (Form4.File1.FileName->empty() || FindFile(ChosenPath(Form4.Dir1, Form4.File1)).empty()) {
    return;
  }
  HullFileName = ChosenPath(Form4.Dir1, Form4.File1);
  Form4.Text1.Text = HullFileName;
  DropFigure();
  NormalizeHullFile(HullFileName);
  LoadHullFile(HullFileName, HullReader::FileList);
}

void Form4_Dir1_Change() {
  Form4.File1.Path = Form4.Dir1.Path;
  Form4.Label3.Caption = Form4.Dir1.Path;
}

void Form4_Drive1_Change() {
  Form4.Dir1.Path = Form4.Drive1.Drive;
}

void Form4_Command1_Click() {
  Form1.Move(Place::Centre);
  Form1.StatusBar1.Panels[1] = "Working on..." + HullFileName;
  Form1.Refresh();
  Form4.File1.Refresh();
  Form4.Visible = false;
}

std::array<NumberBox, 7> RigNumbers() {
  return {{{&Form4.Text2, &RigMastLength},
           {&Form4.Text4, &RigBoomHeight},
           {&Form4.Text10, &RigStepZ},
           {&Form4.Text5, &RigLuffLength},
           {&Form4.Text9, &RigFootLength},
           {&Form4.Text6, &RigHeadLength},
           {&Form4.Text7, &RigHeadAngle}}};
}

std::array<NumberBox, 3> BallastNumbers() {
  return {
      {{&Form4.Text11, &BallastWeight}, {&Form4.Text12, &BallastStation}, {&Form4.Text13, &BallastHeight}}};
}

void RigBox_Change(const NumberBox& changed) {
  BallastBox_Change(changed);
  Form1.Picture2.Refresh();
}

void BallastBox_Change(const NumberBox& changed) {
  Store(*changed.number, NumberOf(*changed.box->Text));
}
