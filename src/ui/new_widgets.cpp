#include "ui/new_widgets.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QRadioButton>

#include "ui/control_faces.h"

QLabel* NewLabel(Label& control, QWidget* neighbour) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  Face(control, label);
  label->setBuddy(neighbour);
  return label;
}

QLineEdit* NewBox(TextBox& control, const QString& name, int width, const QString& tool_tip) {
  auto* box = new QLineEdit;
  if (width > 0) {
    box->setFixedWidth(width);
  }
  Face(control, box);
  Describe(box, name, tool_tip);
  return box;
}

QPushButton* NewButton(CommandButton& control, const QString& name, int width, const QString& tool_tip) {
  auto* button = new QPushButton;
  button->setAutoDefault(false);
  Face(control, button);
  if (width > 0) {
    button->setFixedWidth(width);
  }
  Describe(button, name, tool_tip);
  return button;
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

QFrame* Framed(QWidget* inside) {
  auto* frame = new QFrame;
  frame->setFrameStyle(QFrame::Box | QFrame::Plain);
  frame->setLineWidth(2);
  auto* layout = new QHBoxLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(inside);
  return frame;
}

void ColourFrame(QFrame* frame, QPalette::ColorRole role) {
  QPalette colours = frame->parentWidget()->palette();
  colours.setColor(QPalette::WindowText, colours.color(role));
  frame->setPalette(colours);
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
