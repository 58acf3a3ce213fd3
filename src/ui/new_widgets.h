#pragma once
// Widgets made, tied to their control and described in one line: what all windows are built from, so
// that they look like one family.

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>

#include "controls/controls.h"

class QAbstractButton;
class QHBoxLayout;
class QVBoxLayout;

inline constexpr int Gap = 6;  ///< between widgets and around them, pixels

/// The label of a control; its letter, if it has one, leads to the neighbour.
QLabel* NewLabel(Label& control, QWidget* neighbour = nullptr);
/// A text box; no width lets it grow with its window.
QLineEdit* NewBox(TextBox& control, const QString& name, int width = 0, const QString& tool_tip = {});
/// A button, at least wide enough for its caption.
QPushButton* NewButton(CommandButton& control, const QString& name, int width = 0,
                       const QString& tool_tip = {});
QAbstractButton* NewCheck(CheckBox& control, const QString& tool_tip = {});
QAbstractButton* NewOption(OptionButton& control, const QString& tool_tip = {});

/// A thin frame around a widget, in a colour that ColourFrame changes.
QFrame* Framed(QWidget* inside);
void ColourFrame(QFrame* frame, QPalette::ColorRole role);

QHBoxLayout* NewRow();
QVBoxLayout* NewColumn();
/// A titled group with this layout inside.
QGroupBox* NewGroup(const QString& title, QLayout* inside);
