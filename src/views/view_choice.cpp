#include "views/view_choice.h"

#include "controls/forms.h"
#include "views/view.h"
#include "views/zoom.h"

namespace {

void ShowView(View view) {
  CheckView(view);
  Form1.Text1[0].SetFocus();
  Form1.Picture2.Refresh();
}

}  // namespace

void Sections_Click() {
  ShowView(View::Sections);
}

void Profile_Click() {
  ShowView(View::Profile);
}

void Plan_Click() {
  ShowView(View::Plan);
}

void TrueView_Click() {
  const bool checked = !Form1.TrueView.Checked;
  Form1.TrueView.Checked = checked;
  Form1.StatusBar1.Panels[1] = checked ? "true view" : "false view";
  Form1.Picture2.Refresh();
}

void Picture1_Click(int index) {
  Form1.Refresh();
  ClearZoom();
  ShowView(FlatViews[index]);
}

void Picture3_Click() {
  ClearZoom();
  CheckView(View::Spin);
  Form1.Text1[0].SetFocus();
  Form1.Refresh();
}
