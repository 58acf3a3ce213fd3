#pragma once
// What tests of windows share: finding a widget by the name that a person who can't see is told, and the
// rules that every window keeps.

#include <gtest/gtest.h>

#include <QListWidget>
#include <QString>
#include <QWidget>
#include <memory>

#include "support/program_test.h"

/// A program with one window of its face, which goes before the program does.
template <class Window>
class WindowTest : public ProgramTest {
 protected:
  void TearDown() override {
    window.reset();
    ProgramTest::TearDown();
  }

  std::unique_ptr<Window> window;
};

/// A hand that moves the mouse over a widget with these buttons held.
void MoveMouse(QWidget& widget, QPoint to, Qt::MouseButtons held);

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
