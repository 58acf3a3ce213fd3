#include "ui/control_faces.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QSizePolicy>
#include <algorithm>
#include <functional>

namespace {

/// Watches the keys of one line edit: the core hears of a character before the edit takes it.
class KeyWatch : public QObject {
 public:
  KeyWatch(TextBox& control, QLineEdit* widget) : QObject(widget), control_(control) {
    widget->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const QString typed = static_cast<QKeyEvent*>(event)->text();
      if (!typed.isEmpty() && typed[0] != u'\t') {
        control_.KeyPress(typed[0] == u'\n' ? static_cast<int>(EnterKey) : typed[0].unicode());
      }
    }
    return false;
  }

 private:
  TextBox& control_;
};

/// Lets Enter press a button that has the keyboard, as the space bar does.
class EnterPresses : public QObject {
 public:
  explicit EnterPresses(QAbstractButton* button) : QObject(button) { button->installEventFilter(this); }

  bool eventFilter(QObject* button, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const auto* pressed = static_cast<QKeyEvent*>(event);
      if ((pressed->key() == Qt::Key_Return || pressed->key() == Qt::Key_Enter) && !pressed->isAutoRepeat()) {
        static_cast<QAbstractButton*>(button)->click();
        return true;
      }
    }
    return false;
  }
};

/// Watches for Enter in a list. The list's own signal for it would also come with a double click,
/// whose two clicks are told anyway.
class EnterWatch : public QObject {
 public:
  EnterWatch(QListWidget* list, std::function<void(const QListWidgetItem*)> choose)
      : QObject(list), list_(list), choose_(std::move(choose)) {
    list->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      const QListWidgetItem* item = list_->currentItem();
      if ((key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) && item != nullptr) {
        choose_(item);
        return true;
      }
    }
    return false;
  }

 private:
  QListWidget* list_;
  std::function<void(const QListWidgetItem*)> choose_;
};

void ShowText(const TextBox& control, QLineEdit* widget) {
  const QString text = Shown(control.Text);
  if (widget->text() != text) {
    // A handler may complete what is being typed; the cursor stays where the typing goes on.
    const int cursor = widget->cursorPosition();
    const bool typing = widget->hasFocus();
    widget->setText(text);
    widget->setCursorPosition(typing ? cursor : 0);
  }
}

}  // namespace

QString Shown(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Entered(const QString& text) {
  return text.toStdString();
}

void Face(Label& control, QLabel* widget) {
  const auto show = [&control, widget] { widget->setText(Shown(control.Caption)); };
  control.Caption.Show = show;
  show();
}

void Face(TextBox& control, QLineEdit* widget) {
  control.Text.Show = [&control, widget] { ShowText(control, widget); };
  ShowText(control, widget);
  QObject::connect(widget, &QLineEdit::textEdited, widget,
                   [&control](const QString& text) { control.Text = Entered(text); });
  control.SetFocus = [widget] { widget->setFocus(); };
  new KeyWatch(control, widget);
}

void Face(CheckBox& control, QAbstractButton* widget) {
  const auto show = [&control, widget] {
    widget->setText(Shown(control.Caption));
    widget->setChecked(control.Value);
  };
  control.Caption.Show = control.Value.Show = show;
  show();
  QObject::connect(widget, &QAbstractButton::clicked, widget,
                   [&control](bool checked) { control.Value = checked; });
}

void Face(OptionButton& control, QAbstractButton* widget) {
  widget->setAutoExclusive(false);  // the core keeps the group, which can have no choice at all
  const auto show = [&control, widget] {
    widget->setText(Shown(control.Caption));
    widget->setChecked(control.Value);
  };
  control.Caption.Show = control.Value.Show = show;
  show();
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&control, show] {
    control.Value = true;
    show();
  });
}

void Face(CommandButton& control, QAbstractButton* widget) {
  const auto show = [&control, widget] { widget->setText(Shown(control.Caption)); };
  control.Caption.Show = show;
  show();
  QObject::connect(widget, &QAbstractButton::clicked, widget, [&control] { control.Click(); });
  PressWithEnter(widget);
}

void PressWithEnter(QAbstractButton* button) {
  new EnterPresses(button);
}

void Face(ComboBox& control, QComboBox* widget) {
  widget->setEditable(true);
  widget->lineEdit()->setReadOnly(true);
  const auto show = [&control, widget] {
    const QSignalBlocker quiet(widget);
    QStringList rows;
    for (const std::string& row : control.Rows()) {
      rows << Shown(row);
    }
    widget->clear();
    widget->addItems(rows);
    widget->setCurrentIndex(control.ListIndex());
    widget->setEditText(Shown(control.Text));
  };
  const auto show_text = [&control, widget] {
    const QSignalBlocker quiet(widget);
    widget->setCurrentIndex(control.ListIndex());
    widget->setEditText(Shown(control.Text));
  };
  control.Show = show;
  control.Text.Show = show_text;
  show();
  QObject::connect(widget, &QComboBox::activated, widget, [&control](int row) { control.SetListIndex(row); });
  FollowVisible(control.Visible, widget);
}

void Face(ListBox& control, QListWidget* widget) {
  const auto show = [&control, widget] {
    const QSignalBlocker quiet(widget);
    const auto& rows = control.Rows();
    if (widget->count() > static_cast<int>(rows.size())) {
      widget->clear();
    }
    for (int row = widget->count(); row < static_cast<int>(rows.size()); ++row) {
      widget->addItem(Shown(rows[static_cast<std::size_t>(row)]));
    }
    widget->setCurrentRow(control.ListIndex());
  };
  control.Show = show;
  show();
  OnChoice(widget,
           [&control, widget](const QListWidgetItem* item) { control.SetListIndex(widget->row(item)); });
}

void OnChoice(QListWidget* list, std::function<void(const QListWidgetItem*)> choose) {
  QObject::connect(list, &QListWidget::itemClicked, list, choose);
  QObject::connect(list, &QListWidget::itemDoubleClicked, list, choose);  // told in place of a second click
  new EnterWatch(list, std::move(choose));
}

void Face(ScrollBar& control, QSlider* widget) {
  const auto show = [&control, widget] {
    // The control's value may lie outside of its ends; the slider then stands at the nearer end, and
    // tells nobody.
    const QSignalBlocker quiet(widget);
    widget->setRange(control.Low(), control.High());
    widget->setValue(control.Value());
  };
  widget->setSingleStep(ScrollBar::SmallChange);
  widget->setPageStep(10 * ScrollBar::SmallChange);
  control.Show = show;
  show();
  QObject::connect(widget, &QSlider::valueChanged, widget,
                   [&control](int value) { control.SetValue(value); });
  FollowVisible(control.Visible, widget);
}

SpinButtons::SpinButtons(ScrollBar& control, const QString& name, QWidget* parent) : QWidget(parent) {
  setFixedSize(18, 24);
  const auto step = [&control](int direction) {
    const int toward_min = control.Min() < control.Max() ? -1 : 1;
    control.SetValue(control.Value() + direction * toward_min * ScrollBar::SmallChange);
  };
  connect(AddArrow(Qt::UpArrow, name + ", up", 0), &QToolButton::clicked, this, [step] { step(1); });
  connect(AddArrow(Qt::DownArrow, name + ", down", 12), &QToolButton::clicked, this, [step] { step(-1); });
}

QToolButton* SpinButtons::AddArrow(Qt::ArrowType arrow, const QString& name, int y) {
  auto* button = new QToolButton(this);
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setGeometry(0, y, 18, 12);
  Describe(button, name);
  return button;
}

void FollowVisible(Property<bool>& visible, QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  const auto show = [&visible, widget] { widget->setVisible(visible); };
  visible.Show = show;
  show();
}

void Describe(QWidget* widget, const QString& name, const QString& tool_tip) {
  widget->setAccessibleName(name);
  widget->setToolTip(tool_tip);
}
