#pragma once
// What tests of windows share: finding a widget by the name that a person who can't see is told, and the
// rules that every window keeps.

#include <gtest/gtest.h>

#include <QListWidget>
#include <QString>
#include <QWidget>

/// The widget of this type and accessible name; fails the test if there is none.
template <class Widget>
Widget* Named(const QWidget& window, const QString& name) {
  for (auto* widget : window.findChildren<Widget*>()) {
    if (widget->accessibleName() == name) {
      return widget;
    }
  }
  ADD_FAILURE() << "no widget " << name.toStdString();
  return nullptr;
}

/// Shows a window, and lets it settle, at a size; with none at the size it has.
void ShowAt(QWidget& window, QSize size = {});

/// All that a hand does in a double click on a list; the toolkit's own helper leaves the first click out.
void DoubleClick(const QListWidget& list, QPoint at);

/// Every control lies inside the window, covers no other one, has a name and room for its text.
void ExpectNothingIsClipped(QWidget& window);
