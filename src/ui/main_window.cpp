#include "ui/main_window.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPainter>
#include <QStatusBar>
#include <QStyleOptionFocusRect>
#include <QTimer>

#include "controls/forms.h"
#include "program/menus.h"
#include "ui/control_faces.h"
#include "ui/new_widgets.h"
#include "ui/picture_surface.h"
#include "ui/window_face.h"

namespace {

constexpr int ThumbnailHeight = 104;
/// What a screen of 1920 by 1080 shows at twice the size, less frame and panels.
constexpr int SmallWidth = 940;
constexpr QSize BestSize(1180, 800);

/// The fixed picture that stands for the spin view, a button that looks like a thumbnail.
class LogoButton : public QPushButton {
 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    icon().paint(&painter, rect());
    if (hasFocus()) {
      QStyleOptionFocusRect option;
      option.initFrom(this);
      style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
  }
};

}  // namespace

MainWindowWidget::MainWindowWidget() {
  refresh_.setSingleShot(true);  // one repaint for all thumbnails
  connect(&refresh_, &QTimer::timeout, this, [] { Form1.Refresh(); });
  BuildMenus();
  BuildPicture();
  BuildStatusBar();
  auto* middle = new QWidget;
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(Gap, Gap, Gap, 0);
  column->setSpacing(Gap);
  column->addWidget(BuildTopRow());
  column->addWidget(Framed(picture_), 1);
  setCentralWidget(middle);
  new WindowFace(Form1, this);
  for (MenuItem* view : {&Form1.Sections, &Form1.Profile, &Form1.Plan}) {
    connect(ActionOf(*view), &QAction::toggled, this, &MainWindowWidget::MarkCurrentView);
  }
  MarkCurrentView();
  auto* clock = new QTimer(this);
  connect(clock, &QTimer::timeout, this, [] { Form1.Timer1(); });
  clock->setTimerType(Qt::VeryCoarseTimer);
  clock->start(MainWindow::TimerInterval);
  ResizeToScreen(this, BestSize);
}

void MainWindowWidget::BuildMenus() {
  std::array<QMenu*, 2> open{};  // the menu of each depth that rows are added to
  const std::vector<MenuRow>& rows = Form1Menus();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const MenuRow& row = rows[i];
    const auto depth = static_cast<std::size_t>(row.depth);
    const bool opens = i + 1 < rows.size() && rows[i + 1].depth > row.depth;
    if (opens) {
      open[depth] = depth == 0 ? menuBar()->addMenu(row.caption) : open[depth - 1]->addMenu(row.caption);
    } else if (row.item == nullptr) {
      open[depth - 1]->addSeparator();
    } else {
      MenuItem& item = *row.item;
      QAction* action = open[depth - 1]->addAction(row.caption);
      action->setCheckable(row.start == MenuRow::Checked || row.start == MenuRow::Unchecked);
      const auto show = [&item, action] {
        action->setChecked(item.Checked);
        action->setEnabled(item.Enabled);
      };
      item.Checked.Show = item.Enabled.Show = show;
      show();
      connect(action, &QAction::triggered, this, [&item, show] {
        show();  // the toolkit has turned the tick already; the handler decides
        item.Click();
      });
      actions_.emplace_back(&item, action);
    }
  }
}

QAction* MainWindowWidget::ActionOf(MenuItem& item) const {
  for (const auto& [known, action] : actions_) {
    if (known == &item) {
      return action;
    }
  }
  return nullptr;
}

QWidget* MainWindowWidget::BuildTopRow() {
  auto* top = new QWidget;
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Gap);
  AddThumbnails(row);
  row->addSpacing(Gap);
  row->addWidget(BuildBoxes(), 1);
  SizeThumbnails(*row);
  return top;
}

void MainWindowWidget::AddThumbnails(QBoxLayout* row) {
  const char* const views[] = {"Section", "Profile", "plan"};
  for (std::size_t i = 0; i < 3; ++i) {
    auto* surface = new PictureSurface(Form1.Picture1[i], nullptr);
    surface->setCursor(Qt::PointingHandCursor);
    const QString tool_tip = QString("Click to edit %1 view").arg(views[i]);
    Describe(surface, tool_tip, tool_tip);
    surface->Resized = [this] { refresh_.start(); };
    frames_[i] = Framed(surface);
    row->addWidget(frames_[i]);
  }
  auto* logo = new LogoButton;
  logo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  logo->setIcon(QIcon(":/logo.png"));
  logo->setCursor(Qt::PointingHandCursor);
  logo->setFocusPolicy(Qt::TabFocus);
  Describe(logo, "Spin view", "Click to see the hull in space");
  connect(logo, &QPushButton::clicked, this, [] { Form1.Picture3.Click(); });
  PressWithEnter(logo);
  frames_[3] = Framed(logo);
  row->addWidget(frames_[3]);
}

/// As wide as the boxes beside them, in this desktop's font, leave room for on a small screen. They keep
/// that size: a thumbnail painted anew would lose its waterline.
void MainWindowWidget::SizeThumbnails(const QLayout& row) {
  for (const int width : {140, 116, 92}) {
    for (QFrame* frame : frames_) {
      frame->setFixedSize(width, ThumbnailHeight);
    }
    if (row.minimumSize().width() + 2 * Gap <= SmallWidth) {
      return;
    }
  }
}

QWidget* MainWindowWidget::BuildBoxes() {
  auto* boxes = new QWidget;
  auto* rows = new QVBoxLayout(boxes);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(Gap);
  QHBoxLayout* const row[] = {NewRow(), NewRow(), NewRow()};
  AddBulkheads(row[0], row[1]);
  AddSpinControls(row[1]);
  AddWaterAndResults(row[2]);
  row[0]->addStretch(1);
  row[1]->addStretch(1);
  rows->addStretch(1);
  for (QHBoxLayout* each : row) {
    rows->addLayout(each);
  }
  rows->addStretch(1);
  return boxes;
}

void MainWindowWidget::AddBulkheads(QBoxLayout* upper, QBoxLayout* lower) {
  const QString names[] = {"Bulkhead 0, the stem: Z", "Bulkhead 1: Z", "Bulkhead 2: Z", "Bulkhead 3: Z",
                           "Bulkhead 4, the transom: Z"};
  Label* const labels[] = {nullptr, &Form1.Label1, &Form1.Label2, &Form1.Label3, &Form1.Label4};
  for (std::size_t k = 0; k < 5; ++k) {
    QBoxLayout* row = k < 4 ? upper : lower;
    const QString tool_tip = names[k] + " in inches; Enter moves the bulkhead of all chines";
    QLineEdit* box = NewBox(Form1.Text1[k], names[k], k == 0 ? 3 : 6, tool_tip);
    if (labels[k] != nullptr) {
      row->addWidget(NewLabel(*labels[k], box));
    }
    row->addWidget(box);
  }
}

void MainWindowWidget::AddSpinControls(QBoxLayout* row) {
  QLineEdit* chines = NewBox(Form1.Text3, "Number of chines", 3, "Number of chines, 2 to 30");
  row->addSpacing(Gap);
  row->addWidget(NewLabel(Form1.Label5, chines));
  row->addWidget(chines);
  row->addWidget(new SpinButtons(Form1.VScroll1, "Number of chines", nullptr));
  row->addSpacing(Gap);
  row->addWidget(NewButton(Form1.Command1, "Spin in X and Y", 1, "Spin view (or use keyboard)"));
  row->addWidget(NewButton(Form1.Command5, "Spin in X and Z", 1, "Spin view (left and right arrow)"));
  row->addWidget(NewButton(Form1.Command6, "Spin in Y and Z", 1, "Spin view (up and down arrow)"));
  row->addSpacing(Gap);
  row->addWidget(NewButton(Form1.Command2, "Write a VRML model", 5, "Write the hull as a VRML model"));
}

void MainWindowWidget::AddWaterAndResults(QBoxLayout* row) {
  auto* water = new QWidget;
  auto* inside = new QHBoxLayout(water);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->addWidget(new QLabel("Waterline"));
  auto* slider = new QSlider(Qt::Horizontal);
  Face(Form1.HScroll1, slider);
  slider->setVisible(true);
  FollowVisible(Form1.HScroll1.Visible, water);  // the label comes and goes with the slider
  Describe(slider, "Waterline height",
           "Waterline height, a tenth of an inch a step (Page Up and Down: an inch)");
  inside->addWidget(slider, 1);
  row->addWidget(water, 1);
  auto* results = new QComboBox;
  results->setMaxVisibleItems(20);
  results->setMinimumWidth(210);
  Face(Form1.Combo1, results);
  Describe(results, "Results", "Results at this waterline");
  row->addWidget(results, 1);
}

void MainWindowWidget::BuildPicture() {
  picture_ = new PictureSurface(Form1.Picture2, nullptr);
  picture_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  picture_->setMinimumSize(300, 150);
  Describe(picture_, "Drawing of the hull");
  picture_->Resized = [] { Form1.Picture2.Refresh(); };
}

void MainWindowWidget::BuildStatusBar() {
  const int widths[] = {0, 0, 110, 80, 80, 80, 40, 40};
  for (std::size_t i = 1; i <= 7; ++i) {
    auto* panel = new QLabel;
    panel->setTextFormat(Qt::PlainText);
    panel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    panel->setAccessibleName(QString("Status panel %1").arg(i));
    if (i == 1) {
      panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    } else {
      panel->setMinimumWidth(widths[i]);
    }
    statusBar()->addWidget(panel, i == 1 ? 1 : 0);
    Property<std::string>& text = Form1.StatusBar1.Panels[i];
    text.Show = [panel, &text, i] {
      panel->setText(Shown(text));
      if (i == 1) {  // what a long handler is doing shows while it works
        panel->repaint();
      }
    };
    text.Show();
  }
}

void MainWindowWidget::MarkCurrentView() {
  const bool shown[] = {Form1.Sections.Checked, Form1.Profile.Checked, Form1.Plan.Checked};
  const bool spin = !shown[0] && !shown[1] && !shown[2];
  for (std::size_t i = 0; i < frames_.size(); ++i) {
    const bool current = i < 3 ? shown[i] : spin;
    MarkFrame(frames_[i], current);
  }
}
