#include "ui/offsets_window.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>

#include "controls/forms.h"
#include "ui/control_faces.h"
#include "ui/new_widgets.h"
#include "ui/window_face.h"

namespace {

constexpr double TwipsPerPixel = 15;
constexpr int FixedColumns = 2;

/// The headings and the labels are fixed: they don't open.
void OpenCell(int row, int column) {
  if (row > 0 && column >= FixedColumns) {
    Form5.Grid1.Select(row, column);
    Form5.Grid1.Click();
  }
}

/// With this width of the whole grid the first column, a quarter of it, holds "BH 4 transom".
constexpr int DigitsAcross = 58;

}  // namespace

OffsetsWindowWidget::OffsetsWindowWidget(QWidget* parent)
    : QWidget(parent, Qt::Window), table_(new QTableWidget), box_(nullptr) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(Gap, Gap, Gap, Gap);
  column->addWidget(table_);
  table_->setColumnCount(Form5.Grid1.Cols());
  table_->horizontalHeader()->hide();  // the first row of the grid holds the headings
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setTabKeyNavigation(false);
  table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  Describe(table_, "Offsets", "Click on any offset to change it");
  const int grid_width = DigitsAcross * fontMetrics().horizontalAdvance('0');
  setMinimumWidth(grid_width + 2 * Gap + table_->verticalScrollBar()->sizeHint().width() +
                  2 * table_->frameWidth());
  ResizeToScreen(this, {minimumWidth(), 560});
  Form5.Grid1.Box.Width = grid_width * TwipsPerPixel;

  box_ = new QLineEdit(table_->viewport());
  Face(Form5.Text1, box_);
  Describe(box_, "Offset", "Inches; 5-4 is 5 4/8, one more + or - is a sixteenth");
  box_->setFrame(false);
  box_->installEventFilter(this);
  table_->installEventFilter(this);

  // The grid is filled cell by cell; the screen needs it once.
  Form5.Grid1.Show = [this] {
    if (!changed_) {
      changed_ = true;
      QTimer::singleShot(0, this, [this] { ShowGrid(); });
    }
  };
  Form5.Text1.Visible.Show = Form5.Text1.Box.Show = [this] { ShowBox(); };
  Form5.Text1.BringToFront = [this] { box_->raise(); };
  Form5.Text1.SelectAll = [this] { box_->selectAll(); };
  connect(table_, &QTableWidget::cellClicked, this, OpenCell);
  connect(table_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { PlaceBox(); });
  new WindowFace(Form5, this);
  ShowGrid();
  ShowBox();
}

void OffsetsWindowWidget::ShowGrid() {
  changed_ = false;
  const QSignalBlocker quiet(table_);
  const Grid& grid = Form5.Grid1;
  table_->setRowCount(grid.Rows());
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int at = 0; at < grid.Cols(); ++at) {
      QTableWidgetItem* item = table_->item(row, at);
      if (item == nullptr) {
        item = new QTableWidgetItem;
        item->setTextAlignment(at < FixedColumns ? Qt::AlignLeft | Qt::AlignVCenter
                                                 : Qt::AlignRight | Qt::AlignVCenter);
        table_->setItem(row, at, item);
      }
      if (row == 0 || at < FixedColumns) {
        item->setBackground(palette().alternateBase());
      }
      const QString text = Shown(grid.Text(row, at));
      if (item->text() != text) {
        item->setText(text);
      }
    }
  }
  for (int at = 0; at < grid.Cols(); ++at) {
    table_->setColumnWidth(at, static_cast<int>(grid.ColWidth(at) / TwipsPerPixel));
  }
  table_->setCurrentCell(grid.Row(), grid.Col());
}

void OffsetsWindowWidget::ShowBox() {
  if (changed_) {
    ShowGrid();
  }
  if (Form5.Text1.Visible) {
    table_->scrollTo(table_->model()->index(Form5.Grid1.Row(), Form5.Grid1.Col()));
  }
  PlaceBox();
  box_->setVisible(Form5.Text1.Visible);
}

void OffsetsWindowWidget::PlaceBox() {
  box_->setGeometry(table_->visualRect(table_->model()->index(Form5.Grid1.Row(), Form5.Grid1.Col())));
}

void OffsetsWindowWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    ShowGrid();
  }
}

bool OffsetsWindowWidget::eventFilter(QObject* target, QEvent* event) {
  if (target == table_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2) {
      OpenCell(table_->currentRow(), table_->currentColumn());
      return true;
    }
  }
  if (target == box_ && event->type() == QEvent::KeyPress && LeavesByTab(event)) {
    return true;
  }
  if (target == box_ && event->type() == QEvent::FocusOut) {
    HeldKeys held;
    held.LeftButton = QGuiApplication::mouseButtons() & Qt::LeftButton;
    Form5.Text1.LostFocus(held);
  }
  return QWidget::eventFilter(target, event);
}

bool OffsetsWindowWidget::LeavesByTab(QEvent* event) {
  const auto* pressed = static_cast<QKeyEvent*>(event);
  if (pressed->key() != Qt::Key_Tab && pressed->key() != Qt::Key_Backtab) {
    return false;
  }
  HeldKeys held;
  held.LeftButton = QGuiApplication::mouseButtons() & Qt::LeftButton;
  held.Tab = true;
  held.Shift = pressed->key() == Qt::Key_Backtab || (pressed->modifiers() & Qt::ShiftModifier);
  Form5.Text1.LostFocus(held);
  return true;
}
