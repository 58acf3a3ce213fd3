#include "program/menus.h"

#include "controls/forms.h"
#include "hull/bulkhead_boxes.h"
#include "hull/offsets_table.h"
#include "hull/rescaling.h"
#include "hydro/heel.h"
#include "hydro/open_command.h"
#include "hydro/waterline.h"
#include "hydro/waterline_search.h"
#include "nest/nest_model.h"
#include "panels/save_and_create.h"
#include "panels/save_dialog.h"
#include "program/session.h"
#include "views/view_choice.h"

const std::vector<MenuRow>& Form1Menus() {
  using enum MenuRow::Start;
  static const std::vector<MenuRow> rows = {
      {0, "&File"},
      {1, "&Open", &Form1.dummy2, dummy2_Click},
      {1, "-"},
      {1, "&Save, Create", &Form1.Dummy4, Dummy4_Click},
      {1, "-"},
      {1, "&Clear old patterns", &Form1.dummy21, dummy21_Click},
      {1, "-"},
      {1, "&Exit", &Form1.dummy6, dummy6_Click},
      {0, "&Data"},
      {1, "&Offsets Table", &Form1.dummy8, dummy8_Click},
      {1, "-"},
      {1, "&Auto-Spline chines", &Form1.AutoSpline, AutoSpline_Click, Checked},
      {1, "&Lock Bulkheads in 'Z'", &Form1.LockBulkheads, LockBulkheads_Click, Unchecked},
      {0, "&Calculations"},
      {1, "&Displacement", &Form1.displacement, displacement_Click},
      {1, "&Waterline", &Form1.EnterWaterline, EnterWaterline_Click, Unchecked},
      {1, "&Contours", &Form1.Contours, Contours_Click},
      {1, "&Pitch", &Form1.EnterPitch, EnterPitch_Click},
      {1, "&Heel", &Form1.EnterHeel, EnterHeel_Click, Disabled},
      {1, "-"},
      {1, "&Water"},
      {2, "&Freshwater (20 C.)", &Form1.Freshwater, Freshwater_Click, Checked},
      {2, "&Seawater", &Form1.Seawater, Seawater_Click, Unchecked},
      {1, "-"},
      {1, "&Rescale"},
      {2, "Length &Overall (change all)", &Form1.dummy12, dummy12_Click},
      {2, "-"},
      {2, "Maximum &Beam Only", &Form1.dummy18, dummy18_Click},
      {2, "Maximum &Height Only", &Form1.dummy19, dummy19_Click},
      {2, "Maximum &Length Only", &Form1.dummy88, dummy88_Click},
      {0, "&View"},
      {1, "&Sections", &Form1.Sections, Sections_Click, Unchecked},
      {1, "&Profile", &Form1.Profile, Profile_Click, Unchecked},
      {1, "P&lan", &Form1.Plan, Plan_Click, Unchecked},
      {1, "-"},
      {1, "&True View", &Form1.TrueView, TrueView_Click, Checked},
      {0, "&Patterns"},
      {1, "&Nesting", &Form1.dummy15, dummy15_Click},
  };
  return rows;
}

void BindMenus() {
  for (const MenuRow& row : Form1Menus()) {
    if (row.item != nullptr) {
      row.item->Click = row.handler;
      row.item->Checked = row.start == MenuRow::Checked;
      row.item->Enabled = row.start != MenuRow::Disabled;
    }
  }
}
