#include "ui/nesting_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDesktopServices>
#include <QToolButton>
#include <QUrl>

#include "base/files.h"
#include "controls/forms.h"
#include "ui/control_faces.h"
#include "ui/new_widgets.h"
#include "ui/picture_surface.h"
#include "ui/printer.h"
#include "ui/window_face.h"

namespace {

constexpr int TwipsPerPixel = 15;

QToolButton* NewArrow(ClickableImage& image, Qt::ArrowType arrow, const QString& name) {
  auto* button = new QToolButton;
  button->setArrowType(arrow);
  Describe(button, name, name);
  QObject::connect(button, &QToolButton::clicked, button, [&image] { image.Click(); });
  return button;
}

/// A desktop without a viewer is no failure of ours: the toolkit's own complaint on the terminal is held
/// back.
void StartViewer(const std::string& name) {
  const std::filesystem::path path = FindFile(name);
  if (!path.empty()) {
    const auto told = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QDesktopServices::openUrl(QUrl::fromLocalFile(Shown(path.string())));
    qInstallMessageHandler(told);
  }
}

}  // namespace

NestingWindowWidget::NestingWindowWidget() {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(Gap, Gap, Gap, Gap);
  rows->setSpacing(Gap);
  auto* upper = NewRow();
  QListWidget* parts = NewList("Parts", "A click puts a part on the sheets, or takes it off");
  parts->setFixedSize(220, 108);
  Face(Form2.List1, parts);
  upper->addWidget(parts);
  upper->addLayout(BuildTools(), 1);
  rows->addLayout(upper);
  rows->addLayout(BuildPicture(), 1);
  new WindowFace(Form2, this);
  Form2.Beep = [] { QApplication::beep(); };
  Form2.StartViewer = StartViewer;
  Form2.Print = [this](const PrintJob& job) { PrintWithDialog(job, this); };
  ResizeToScreen(this, {1100, 560});
}

QBoxLayout* NestingWindowWidget::BuildTools() {
  auto* rows = NewColumn();
  rows->addLayout(BuildPartRow());
  rows->addLayout(BuildSheetRow());
  rows->addStretch(1);
  return rows;
}

QBoxLayout* NestingWindowWidget::BuildPartRow() {
  auto* row = NewRow();
  row->addWidget(NewButton(Form2.Command1, "Flip the part", 0, "A mirror image of the part"));
  row->addWidget(NewButton(Form2.Command2, "Turn the part by 180 degrees", 4));
  row->addWidget(NewButton(Form2.Command3, "Turn the part by 90 degrees", 3));
  row->addWidget(NewButton(Form2.Command4, "Turn the part anticlockwise", 4, "A quarter of a degree"));
  row->addWidget(NewButton(Form2.Command6, "Turn the part clockwise", 3, "A quarter of a degree"));
  row->addWidget(NewButton(Form2.Command5, "Copy the part", 0, "A second piece of the part, or none"));
  row->addWidget(NewCheck(Form2.Check2, "Names of the parts"));
  row->addStretch(1);
  row->addWidget(
      NewButton(Form2.Command8, "Save the table", 0, "Writes where each point falls on its sheet"));
  row->addWidget(NewButton(Form2.Command10, "Print", 0, "A page for each sheet"));
  row->addWidget(
      NewButton(Form2.Command9, "Print another way", 0, "A page for each sheet, fitted by its longer side"));
  return row;
}

QBoxLayout* NestingWindowWidget::BuildSheetRow() {
  auto* row = NewRow();
  row->addWidget(new QLabel("Sheet"));
  row->addWidget(NewBox(Form2.Text1, "Height of a sheet", 5, "Inches"));
  row->addWidget(new QLabel("x"));
  row->addWidget(NewBox(Form2.Text2, "Length of a sheet", 5, "Inches"));
  for (OptionButton* count : {&Form2.Option1, &Form2.Option2, &Form2.Option3}) {
    row->addWidget(NewOption(*count));
  }
  row->addWidget(NewCheck(Form2.Check1, "A mark that is kept with the hull"));
  row->addStretch(1);
  row->addWidget(NewArrow(Form2.Image4, Qt::LeftArrow, "Slide the picture to the left"));
  row->addWidget(NewArrow(Form2.Image3, Qt::RightArrow, "Slide the picture to the right"));
  row->addWidget(NewButton(Form2.Command7, "View of the sheets", 10, "The next view of the sheets"));
  return row;
}

QBoxLayout* NestingWindowWidget::BuildPicture() {
  auto* row = NewRow();
  opening_ = new QWidget;
  opening_->setMinimumSize(300, 150);
  opening_->installEventFilter(this);
  picture_ = new PictureSurface(Form2.Picture1, opening_);
  Describe(picture_, "Sheets with parts");
  picture_->HoldsPointer = true;  // a part that is dropped outside would be out of sight for good
  picture_->Resized = [] { Form2.Picture1.Refresh(); };
  Form2.Picture1.Left.Show = Form2.Picture1.Width.Show = [this] { PlacePicture(); };
  row->addWidget(Framed(opening_), 1);
  return row;
}

void NestingWindowWidget::PlacePicture() {
  const int left = (Form2.Picture1.Left - SlidingPicture::LeftAtRest) / TwipsPerPixel;
  picture_->setGeometry(left, 0, Form2.Picture1.Width / TwipsPerPixel, opening_->height());
}

void NestingWindowWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Form2.Width = width() * TwipsPerPixel;
}

bool NestingWindowWidget::eventFilter(QObject* target, QEvent* event) {
  if (target == opening_ && event->type() == QEvent::Resize) {
    PlacePicture();
  }
  return QWidget::eventFilter(target, event);
}
