#pragma once
// Qt widgets as faces of the core's controls: a widget shows what its control holds and passes the
// user's acts in. Each function ties one widget to one control for as long as both live, and the
// widget takes its caption and its first state from the control.

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QToolButton>
#include <functional>

#include "controls/controls.h"

/// Texts of the core are bytes, shown as UTF-8.
QString Shown(const std::string& text);
std::string Entered(const QString& text);

void Face(Label& control, QLabel* widget);
void Face(TextBox& control, QLineEdit* widget);
void Face(CheckBox& control, QAbstractButton* widget);
void Face(OptionButton& control, QAbstractButton* widget);
void Face(CommandButton& control, QAbstractButton* widget);
void Face(ComboBox& control, QComboBox* widget);
void Face(ListBox& control, QListWidget* widget);
void Face(ScrollBar& control, QSlider* widget);

/// Two arrow buttons, one above the other: the upper one steps the control toward its Min.
class SpinButtons : public QWidget {
 public:
  SpinButtons(ScrollBar& control, const QString& name, QWidget* parent);

 private:
  QToolButton* AddArrow(Qt::ArrowType arrow, const QString& name, int y);
};

/// Enter presses the button when it has the keyboard, as the space bar does.
void PressWithEnter(QAbstractButton* button);

/// Each click on a row, and Enter or the space bar on the current one.
void OnChoice(QListWidget* list, std::function<void(const QListWidgetItem*)> choose);

/// Keeps the widget's place while the control hides it, so that nothing jumps when it comes back.
void FollowVisible(Property<bool>& visible, QWidget* widget);

/// What a person who doesn't see the widget is told, and what a hovering mouse shows.
void Describe(QWidget* widget, const QString& name, const QString& tool_tip = {});
