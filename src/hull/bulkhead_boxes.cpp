#include "hull/bulkhead_boxes.h"

#include <cstddef>

#include "base/number_text.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

void Toggle(MenuItem& item) {
  item.Checked = !item.Checked;
  Form1.Refresh();
}

}  // namespace

void AutoSpline_Click() {
  Toggle(Form1.AutoSpline);
}

void LockBulkheads_Click() {
  Toggle(Form1.LockBulkheads);
}

void Text1_KeyPress(int index, int key) {
  Form1.AutoSpline.Checked = true;
  if (key != EnterKey) {
    return;
  }
  const double z = NumberOf(*Form1.Text1[static_cast<std::size_t>(index)].Text);
  for (int c = 1; c <= NumChines; ++c) {
    OffZ(c, index) = z;
  }
  Form1.Refresh();
}
