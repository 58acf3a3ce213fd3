#include "ui/save_window.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>

#include "controls/forms.h"
#include "ui/control_faces.h"
#include "ui/file_list_faces.h"
#include "ui/new_widgets.h"
#include "ui/window_face.h"

SaveWindowWidget::SaveWindowWidget(QWidget* parent) : QWidget(parent, Qt::Window) {
  setWindowModality(Qt::ApplicationModal);
  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(Gap);
  auto* quarters = new QGridLayout;
  quarters->setSpacing(Gap);
  quarters->addWidget(BuildFile(), 0, 0);
  quarters->addWidget(BuildInformation(), 0, 1);
  quarters->addWidget(BuildFrames(), 1, 0);
  quarters->addWidget(BuildChecks(), 1, 1);
  quarters->setRowStretch(0, 1);
  quarters->setColumnStretch(0, 1);
  quarters->setColumnStretch(1, 1);
  rows->addLayout(quarters, 1);
  rows->addLayout(BuildButtons());
  new WindowFace(Form3, this);
  const auto show = Form3.Visible.Show;
  Form3.Visible.Show = [this, show] {
    show();
    if (!Form3.Visible) {
      until_hidden_.quit();
    }
  };
  Form3.ShowModal = [this] { ShowModal(); };
  ResizeToScreen(this, {760, 560});
}

void SaveWindowWidget::ShowModal() {
  Form3.Visible = true;
  until_hidden_.exec();
}

bool SaveWindowWidget::event(QEvent* event) {
  const bool done = QWidget::event(event);
  if (event->type() == QEvent::WindowActivate) {
    Form3.GotFocus();
  }
  return done;
}

QWidget* SaveWindowWidget::BuildFile() {
  auto* column = NewColumn();
  QLineEdit* name =
      NewBox(Form3.Text1, "File name", 0, "What stands before the first dot, or eight letters, and .tvh");
  column->addWidget(NewLabel(Form3.Label1, name));
  column->addWidget(name);
  QListWidget* files = NewList("Hull files", "A click takes the name");
  Face(Form3.File1, files);
  column->addWidget(files, 2);
  QListWidget* folders = NewList("Folders", "A double click goes to a folder");
  Face(Form3.Dir1, folders);
  column->addWidget(NewLabel(Form3.Label2, folders));
  column->addWidget(NewPathLabel(Form3.Label3));
  column->addWidget(folders, 2);
  auto* places = new QComboBox;
  Face(Form3.Drive1, places);
  Describe(places, "Drives and places");
  auto* drive = NewRow();
  drive->addWidget(NewLabel(Form3.Label4, places));
  drive->addWidget(places, 1);
  column->addLayout(drive);
  return NewGroup("Hull file", column);
}

QWidget* SaveWindowWidget::BuildInformation() {
  auto* form = new QFormLayout;
  form->setVerticalSpacing(Gap);
  const std::pair<Label*, TextBox*> texts[] = {
      {&Form3.Label16, &Form3.Text2}, {&Form3.Label17, &Form3.Text3}, {&Form3.Label18, &Form3.Text4}};
  for (const auto& [label, box] : texts) {
    QLineEdit* edit = NewBox(*box, Shown(label->Caption));
    form->addRow(NewLabel(*label, edit), edit);
  }
  form->addRow(NewButton(Form3.Command3, "Now", 0, "Puts today's date beside it"),
               NewBox(Form3.Text5, "Date"));
  auto* column = NewColumn();
  column->addWidget(NewGroup(Shown(Form3.Frame1.Caption), form));
  QLineEdit* path = NewBox(Form3.Text6, "Export path", 0, "Folder for the DXF and HPGL files");
  column->addWidget(NewLabel(Form3.Label5, path));
  column->addWidget(path);
  column->addStretch(1);
  auto* all = new QWidget;
  column->setContentsMargins(0, 0, 0, 0);
  all->setLayout(column);
  return all;
}

QWidget* SaveWindowWidget::BuildFrames() {
  Label* const numbers[] = {&Form3.Label7,  &Form3.Label8,  &Form3.Label9,  &Form3.Label10,
                            &Form3.Label11, &Form3.Label12, &Form3.Label13, &Form3.Label14};
  auto* grid = new QGridLayout;
  grid->setSpacing(Gap);
  grid->addWidget(NewLabel(Form3.Label15), 0, 0, 1, 5);
  for (int i = 0; i < 8; ++i) {
    const auto at = static_cast<std::size_t>(i);
    QLineEdit* box = NewBox(Form3.FrameText[at], QString("Z position of frame %1").arg(i + 1), 7,
                            "Inches from the stem; empty or 0 for no frame");
    grid->addWidget(NewLabel(*numbers[at], box), 1 + i % 4, 2 * (i / 4));
    grid->addWidget(box, 1 + i % 4, 2 * (i / 4) + 1);
  }
  grid->setColumnStretch(4, 1);
  return NewGroup(Shown(Form3.Label6.Caption), grid);
}

QWidget* SaveWindowWidget::BuildChecks() {
  struct Check {
    CheckBox& box;
    const char* tool_tip;
  };
  const Check checks[] = {
      {Form3.Check1, "Develops all parts; off: only the hull file is saved"},
      {Form3.Check3, "Writes HPGL files to the export path"},
      {Form3.Check4, "Writes DXF files to the export path"},
      {Form3.Check5, "Letters the parts"},
      {Form3.Check6, "Bulkheads, frames and transom as one side only"},
      {Form3.Check2, "A hole for a spar on the centre line of bulkheads and frames"},
      {Form3.Check7, "A pattern for the stem"},
      {Form3.Check8, "Two floors, across the hull at chines 2 and 3"},
      {Form3.Check9, "A panel across the sheer"},
      {Form3.Check10, "A panel across the keel"},
  };
  auto* grid = new QGridLayout;
  grid->setSpacing(Gap);
  int place = 0;
  for (const Check& check : checks) {
    grid->addWidget(NewCheck(check.box, check.tool_tip), place % 5, place / 5);
    ++place;
  }
  return NewGroup("Create", grid);
}

QBoxLayout* SaveWindowWidget::BuildButtons() {
  auto* row = NewRow();
  row->addStretch(1);
  QPushButton* save = NewButton(Form3.Command1, "Save", 9, "Saves the hull and creates what is ticked");
  save->setDefault(true);
  Form3.Command1.SetFocus = [save] { save->setFocus(); };
  row->addWidget(save);
  row->addWidget(NewButton(Form3.Command2, "Cancel", 9));
  return row;
}
