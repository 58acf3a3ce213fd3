#include "ui/open_window.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QFormLayout>
#include <QGridLayout>
#include <QTimer>

#include "controls/forms.h"
#include "ui/control_faces.h"
#include "ui/file_list_faces.h"
#include "ui/new_widgets.h"
#include "ui/picture_surface.h"
#include "ui/window_face.h"

namespace {

constexpr int FigureSize = 84;
constexpr int NumberBox = 7;  ///< digits

struct LabelledBox {
  Label& label;
  TextBox& box;
  const char* tool_tip;
};

template <std::size_t Count>
QWidget* NewForm(const QString& title, const LabelledBox (&rows)[Count], QFormLayout* form) {
  for (const LabelledBox& row : rows) {
    QLineEdit* box = NewBox(row.box, Shown(row.label.Caption), NumberBox, row.tool_tip);
    form->addRow(NewLabel(row.label, box), box);
  }
  return NewGroup(title, form);
}

}  // namespace

OpenWindowWidget::OpenWindowWidget(QWidget* parent) : QWidget(parent, Qt::Window) {
  auto* columns = new QHBoxLayout(this);
  columns->setSpacing(2 * Gap);
  columns->addWidget(BuildFiles(), 1);
  columns->addWidget(BuildFigures());
  auto* numbers = NewColumn();
  numbers->addWidget(BuildRig());
  numbers->addWidget(BuildBallast());
  numbers->addStretch(1);
  columns->addLayout(numbers);
  MarkFigure();
  new WindowFace(Form4, this);
  // The window is loaded and hidden again before the program is there: it has no turn to flash.
  const auto show = Form4.Visible.Show;
  Form4.Visible.Show = [this, show] {
    if (Form4.Visible) {
      QTimer::singleShot(0, this, show);
    } else {
      show();
    }
  };
  ResizeToScreen(this, {900, 470});
}

QWidget* OpenWindowWidget::BuildFiles() {
  auto* column = NewColumn();
  column->addWidget(NewBox(Form4.Text1, "Open hull file"));
  QListWidget* files = NewList("Hull files", "A click opens the hull");
  Face(Form4.File1, files);
  column->addWidget(files, 3);
  column->addWidget(NewPathLabel(Form4.Label3));
  QListWidget* folders = NewList("Folders", "A double click goes to a folder");
  Face(Form4.Dir1, folders);
  column->addWidget(folders, 2);
  auto* places = new QComboBox;
  Face(Form4.Drive1, places);
  Describe(places, "Drives and places");
  column->addWidget(places);
  for (Label* text : {&Form4.Label4, &Form4.Label11}) {
    QLabel* about = NewLabel(*text);
    about->setWordWrap(true);
    column->addWidget(about);
  }
  auto* last = NewRow();
  last->addStretch(1);
  last->addWidget(NewButton(Form4.Command1, "Done", 0, "Back to the hull"));
  column->addLayout(last);
  return NewGroup("Hull", column);
}

QWidget* OpenWindowWidget::BuildFigures() {
  auto* column = NewColumn();
  auto* grid = new QGridLayout;
  grid->setSpacing(Gap);
  for (std::size_t i = 0; i < Form4.Picture2.size(); ++i) {
    auto* surface = new PictureSurface(Form4.Picture2[i], nullptr);
    surface->FixSize({FigureSize, FigureSize});
    surface->setCursor(Qt::PointingHandCursor);
    surface->setFocusPolicy(Qt::TabFocus);
    Describe(surface, QString("Figure %1").arg(i + 1),
             "A click puts the figure into the drawing, or takes it out");
    frames_[i] = Framed(surface);
    grid->addWidget(frames_[i], static_cast<int>(i / 3), static_cast<int>(i % 3));
  }
  column->addLayout(grid);
  column->addLayout(BuildFigureButtons());
  column->addStretch(1);
  QGroupBox* group = NewGroup("Figure", column);
  Form4.Shape2.Index.Show = Form4.Shape2.Visible.Show = [this] { MarkFigure(); };
  return group;
}

QBoxLayout* OpenWindowWidget::BuildFigureButtons() {
  auto* rows = NewColumn();
  auto* sizes = NewRow();
  sizes->addWidget(new QLabel("Height"));
  sizes->addWidget(NewBox(Form4.Text3, "Height of the person", 4, "Height of the person in inches"));
  sizes->addWidget(new SpinButtons(Form4.VScroll2, "Height of the person", nullptr));
  sizes->addSpacing(Gap);
  sizes->addWidget(new QLabel("Weight"));
  sizes->addWidget(NewBox(Form4.Text8, "Weight of the person", 5));
  sizes->addStretch(1);
  rows->addLayout(sizes);
  auto* turns = NewRow();
  turns->addWidget(NewButton(Form4.Command5, "Flip the figure left to right"));
  turns->addWidget(NewButton(Form4.Command6, "Flip the figure upside down"));
  turns->addWidget(NewButton(Form4.Command7, "Turn the figure by 90 degrees", 3));
  turns->addStretch(1);
  rows->addLayout(turns);
  return rows;
}

QWidget* OpenWindowWidget::BuildRig() {
  const LabelledBox rows[] = {
      {Form4.MastLabel, Form4.Text2, "Length of the mast, inches"},
      {Form4.BoomLabel, Form4.Text4, "Height of the boom above the step, inches"},
      {Form4.StepLabel, Form4.Text10, "Distance of the mast from the stem, inches"},
      {Form4.LuffLabel, Form4.Text5, "Length of the sail's edge along the mast, inches"},
      {Form4.FootLabel, Form4.Text9, "Length of the sail's lower edge, inches"},
      {Form4.HeadLabel, Form4.Text6, "Length of the sail's upper edge, inches"},
      {Form4.AngleLabel, Form4.Text7, "Angle of the upper edge above the horizontal, degrees"},
  };
  auto* form = new QFormLayout;
  form->setVerticalSpacing(Gap);
  QWidget* group = NewForm("Rig", rows, form);
  auto* steps = NewRow();
  steps->addWidget(NewOption(Form4.Option1, "The mast stands on the sheer"));
  steps->addWidget(NewOption(Form4.Option2, "The mast stands on the keel"));
  form->addRow(steps);
  form->addRow(NewCheck(Form4.Rig, "Shows the rig in the profile"));
  return group;
}

QWidget* OpenWindowWidget::BuildBallast() {
  const LabelledBox rows[] = {
      {Form4.WeightLabel, Form4.Text11, "Pounds; shown with the righting moment, and kept with the hull"},
      {Form4.StationLabel, Form4.Text12, "Inches; kept with the hull"},
      {Form4.HeightLabel, Form4.Text13, "Inches; kept with the hull"},
  };
  auto* form = new QFormLayout;
  form->setVerticalSpacing(Gap);
  return NewForm("Ballast", rows, form);
}

void OpenWindowWidget::MarkFigure() {
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    const bool chosen = Form4.Shape2.Visible && Form4.Shape2.Index == static_cast<int>(i);
    MarkFrame(frames_[i], chosen);
  }
}
