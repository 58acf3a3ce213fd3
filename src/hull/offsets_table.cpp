#include "hull/offsets_table.h"

#include <string>

#include "base/number_text.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

bool OffsetsNotesShown = false;

namespace {

enum Column { SectionColumn, ChineColumn, XColumn, YColumn, ZColumn };

constexpr const char* Notes =
    "The offsets represent the intersections \n"
    "of chine lines and bulkheads in 3-d.\n"
    "\n"
    "X - width'', Y - height'', Z - length''\n"
    "\n"
    "Click on any offset to change it; units\n"
    "are in decimal inches.\n"
    "\n"
    "Eights: replace decimal with dash; for\n"
    "        example '5-4' equals '5 4/8' or '5.5'\n"
    "        Add '+' or '-' on the right hand to\n"
    "        add or subtract 1/16'' (.0625'')\n";

constexpr double Sixteenth = 0.0625;

/// The chines that share a change of Z, however many there are.
constexpr int ChinesWithOneZ = 6;

std::string ChineText(int chine) {
  const std::string number = PlainText(chine);
  if (chine == 1) {
    return number + " keel";
  }
  return chine == NumChines ? number + " sheer" : number;
}

void SetWidths() {
  Grid& grid = Form5.Grid1;
  const double width = grid.Box.Width;
  grid.SetColWidth(SectionColumn, width / 4);
  grid.SetColWidth(ChineColumn, width / 5.5);
  const double rest = width - grid.ColWidth(SectionColumn) - grid.ColWidth(ChineColumn) - 120;
  for (const int column : {XColumn, YColumn, ZColumn}) {
    grid.SetColWidth(column, rest / 3);
  }
}

void FillGrid() {
  constexpr const char* headings[] = {"Section", "Chine", "X''", "Y''", "Z''"};
  constexpr const char* sections[Bulkheads] = {"BH 0 stem", "BH 1", "BH 2", "BH 3", "BH 4 transom"};
  Grid& grid = Form5.Grid1;
  for (int column = 0; column < grid.Cols(); ++column) {
    grid.SetText(0, column, headings[column]);
  }
  for (int k = 0; k < Bulkheads; ++k) {
    grid.SetText(1 + k * NumChines, SectionColumn, sections[k]);
    for (int c = 1; c <= NumChines; ++c) {
      const int row = k * NumChines + c;
      grid.SetText(row, ChineColumn, ChineText(c));
      grid.SetText(row, XColumn, FixedTextAtMost(OffX(c, k), 2));
      grid.SetText(row, YColumn, FixedTextAtMost(OffY(c, k), 2));
      grid.SetText(row, ZColumn, FixedTextAtMost(OffZ(c, k), 2));
    }
  }
}

/// The bulkhead of a grid's row; -1 for the headings.
int BulkheadOf(int row) {
  return row < 1 ? -1 : (row - 1) / NumChines;
}

void StoreOffset(int column, int c, int k, double value) {
  if (column == XColumn) {
    OffX(c, k) = value;
  } else if (column == YColumn) {
    OffY(c, k) = value;
  } else if (column == ZColumn) {
    OffZ(c, k) = value;
  }
  if (column == ZColumn && k >= 1 && k <= 3) {
    for (int chine = 1; chine <= ChinesWithOneZ; ++chine) {
      OffZ(chine, k) = value;
    }
  }
}

void OpenCell() {
  const Grid& grid = Form5.Grid1;
  FloatingTextBox& box = Form5.Text1;
  CellBox place = grid.CurrentCell();
  place.Width -= 20;
  box.Box = place;
  box.Visible = true;
  box.Text = grid.Text(grid.Row(), grid.Col());
  box.BringToFront();
  box.SetFocus();
  box.SelectAll();
}

}  // namespace

void dummy8_Click() {
  if (!OffsetsNotesShown) {
    OffsetsNotesShown = true;
    MsgBox(Notes, 0, "Offsets Table");
  }
  Form5.Move(Place::Centre);
  if (!Form5.Loaded) {
    Form5_Load();
  }
  Form5.Open();
}

void Form5_Load() {
  Form5.Loaded = true;
  Form5.Grid1.SetRows(5 * NumChines + 1);
  SetWidths();
  FillGrid();
  Form5.Grid1.Select(1, XColumn);
}

void Form5_Unload() {
  Form5.Loaded = false;
  Form5.Visible = false;
  Form5.Text1.Visible = false;
}

void Form5_Grid1_Click() {
  OpenCell();
}

double EnteredInches(std::string_view text) {
  const std::size_t dash = text.find('-');
  if (dash == std::string_view::npos) {
    return NumberOf(text);
  }
  double inches = 0;  // what a number too large leaves
  Store(inches, NumberOf(text.substr(0, dash + 1)) + NumberOf(text.substr(dash + 1)) / 8);
  if (text.back() == '+') {
    inches += Sixteenth;
  } else if (text.back() == '-') {
    inches -= Sixteenth;
  }
  return inches;
}

void Form5_Text1_Change() {
  Grid& grid = Form5.Grid1;
  const std::string& typed = Form5.Text1.Text;
  const int k = BulkheadOf(grid.Row());
  const int c = grid.Row() - k * NumChines;
  double inches = 0;  // what an entry too large for a number leaves
  Store(inches, EnteredInches(typed));
  const bool fixed = grid.Row() == 0 || grid.Col() < XColumn;
  if (!typed.empty() && !fixed) {
    grid.SetText(grid.Row(), grid.Col(), PlainText(inches));
  }
  StoreOffset(grid.Col(), c, k, NumberOf(grid.Text(grid.Row(), grid.Col())));
  Form1.Refresh();
}

void Form5_Text1_KeyPress(int key) {
  Grid& grid = Form5.Grid1;
  if (key == EnterKey && grid.Row() < grid.Rows() - 1) {
    grid.Select(grid.Row() + 1, grid.Col());
    OpenCell();
  }
}

void Form5_Text1_LostFocus(const HeldKeys& held) {
  if (held.LeftButton || !held.Tab) {
    return;
  }
  Grid& grid = Form5.Grid1;
  const int step = held.Shift ? -1 : 1;
  const int last = grid.Cols() - 1;
  int row = grid.Row();
  int column = grid.Col() + step;
  if (column < 0 || column > last) {
    column = held.Shift ? last : 0;
    const int other = row + step;
    row = other < 0 || other >= grid.Rows() ? row : other;
  }
  grid.Select(row, column);
  OpenCell();
}
