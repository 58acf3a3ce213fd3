#pragma once
// A top-level widget as the face of one of the core's windows: caption, place, visibility, hourglass,
// closing, and the keys that a window sees before its controls do.

#include <QObject>
#include <QWidget>

#include "controls/controls.h"

class WindowFace : public QObject {
 public:
  /// Ties `widget` to `control` for as long as both live.
  WindowFace(Window& control, QWidget* widget);

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void Close(QEvent* event);
  /// True if the core used the key up.
  bool PassKey(QEvent* event);

  Window& control_;
  QWidget* widget_;
};
