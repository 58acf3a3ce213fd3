#pragma once
// Widgets made, tied to their control and described in one line: what all windows are built from, so
// that they look like one family.

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "controls/controls.h"

class QAbstractButton;
class QHBoxLayout;
class QListWidget;
class QVBoxLayout;

inline constexpr int Gap = 6;  ///< between widgets and around them, pixels

/// The label of a control; its letter, if it has one, leads to the neighbour.
QLabel* NewLabel(Label& control, QWidget* neighbour = nullptr);
/// The label of a path, on one line however long it is: its middle gives way, its tool tip tells all.
QLabel* NewPathLabel(Label& control);
/// A text box for so many digits; none lets it grow with its window.
QLineEdit* NewBox(TextBox& control, const QString& name, int digits = 0, const QString& tool_tip = {});
/// A button for so many digits; none leaves the width to the toolkit.
QPushButton* NewButton(CommandButton& control, const QString& name, int digits = 0,
                       const QString& tool_tip = {});
/// A list that keeps a few rows in sight where the screen is small.
QListWidget* NewList(const QString& name, const QString& tool_tip);
QAbstractButton* NewCheck(CheckBox& control, const QString& tool_tip = {});
QAbstractButton* NewOption(OptionButton& control, const QString& tool_tip = {});

/// Gives a window its best size, or what of it fits the screen beside frame and panels.
void ResizeToScreen(QWidget* window, QSize best);

/// A thin frame around a widget, dull until it is marked as the chosen one.
QFrame* Framed(QWidget* inside);
void MarkFrame(QFrame* frame, bool chosen);

QHBoxLayout* NewRow();
QVBoxLayout* NewColumn();
/// A titled group with this layout inside.
QGroupBox* NewGroup(const QString& title, QLayout* inside);
