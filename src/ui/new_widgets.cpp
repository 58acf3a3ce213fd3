#include "ui/new_widgets.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QEvent>
#include <QPainter>
#include <QRadioButton>
#include <QScreen>

#include "ui/control_faces.h"

namespace {

constexpr int AroundTextOfBox = 14;     ///< frame, margins and the cursor of a line edit, pixels
constexpr int AroundTextOfButton = 22;  ///< the like of a push button

/// The font of a person's desktop may be twice as wide as ours: widths are told in digits.
void FixWidth(QWidget* widget, int digits, int around) {
  widget->setFixedWidth(digits * widget->fontMetrics().horizontalAdvance('0') + around);
}

class PathLabel : public QLabel {
 public:
  PathLabel() { setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
  }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ToolTip) {
      setToolTip(text());
    }
    return QLabel::event(event);
  }
};

}  // namespace

QLabel* NewLabel(Label& control, QWidget* neighbour) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  Face(control, label);
  label->setBuddy(neighbour);
  return label;
}

QLabel* NewPathLabel(Label& control) {
  auto* label = new PathLabel;
  label->setTextFormat(Qt::PlainText);
  Face(control, label);
  return label;
}

QLineEdit* NewBox(TextBox& control, const QString& name, int digits, const QString& tool_tip) {
  auto* box = new QLineEdit;
  if (digits > 0) {
    FixWidth(box, digits, AroundTextOfBox);
  }
  Face(control, box);
  Describe(box, name, tool_tip);
  return box;
}

QPushButton* NewButton(CommandButton& control, const QString& name, int digits, const QString& tool_tip) {
  auto* button = new QPushButton;
  button->setAutoDefault(false);
  Face(control, button);
  if (digits > 0) {
    FixWidth(button, digits, AroundTextOfButton);
  }
  Describe(button, name, tool_tip);
  return button;
}

QListWidget* NewList(const QString& name, const QString& tool_tip) {
  constexpr int rows = 3;
  auto* list = new QListWidget;
  list->setMinimumHeight(rows * list->fontMetrics().height() + 2 * list->frameWidth());
  Describe(list, name, tool_tip);
  return list;
}

QAbstractButton* NewCheck(CheckBox& control, const QString& tool_tip) {
  auto* box = new QCheckBox;
  Face(control, box);
  Describe(box, box->text(), tool_tip);
  return box;
}

QAbstractButton* NewOption(OptionButton& control, const QString& tool_tip) {
  auto* button = new QRadioButton;
  Face(control, button);
  Describe(button, button->text(), tool_tip);
  return button;
}

void ResizeToScreen(QWidget* window, QSize best) {
  constexpr QSize frame_and_panels(20, 40);
  window->resize(best.boundedTo(window->screen()->availableSize() - frame_and_panels));
}

void MarkFrame(QFrame* frame, bool chosen) {
  // By role, not by colour, so that it follows the desktop from light to dark.
  frame->setForegroundRole(chosen ? QPalette::Highlight : QPalette::Mid);
}

QFrame* Framed(QWidget* inside) {
  auto* frame = new QFrame;
  frame->setFrameStyle(QFrame::Box | QFrame::Plain);
  frame->setLineWidth(2);
  MarkFrame(frame, false);
  auto* layout = new QHBoxLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(inside);
  return frame;
}

QHBoxLayout* NewRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(Gap);
  return row;
}

QVBoxLayout* NewColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(Gap);
  return column;
}

QGroupBox* NewGroup(const QString& title, QLayout* inside) {
  auto* group = new QGroupBox(title);
  group->setLayout(inside);
  return group;
}
