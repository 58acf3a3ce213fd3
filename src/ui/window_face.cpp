#include "ui/window_face.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>

#include "ui/control_faces.h"

namespace {

void MoveTo(Place place, QWidget* widget) {
  const QRect screen = widget->screen()->availableGeometry();
  const QSize size = widget->frameGeometry().size();
  const QPoint last(screen.right() + 1 - size.width(), screen.bottom() + 1 - size.height());
  QPoint corner = screen.topLeft();
  if (place == Place::Centre) {
    corner = (screen.topLeft() + last) / 2;
  } else if (place == Place::BottomRight) {
    corner = last;
  }
  widget->move(std::max(corner.x(), screen.left()), std::max(corner.y(), screen.top()));
}

int CodeOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return LeftKey;
    case Qt::Key_Up:
      return UpKey;
    case Qt::Key_Right:
      return RightKey;
    case Qt::Key_Down:
      return DownKey;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return EnterKey;
    case Qt::Key_Escape:
      return EscapeKey;
    default:
      return NoKey;
  }
}

}  // namespace

WindowFace::WindowFace(Window& control, QWidget* widget)
    : QObject(widget), control_(control), widget_(widget) {
  const auto show_caption = [this] { widget_->setWindowTitle(Shown(control_.Caption)); };
  control.Caption.Show = show_caption;
  show_caption();
  control.Visible.Show = [this] {
    widget_->setVisible(control_.Visible);
    if (control_.Visible) {
      control_.ToFront();
    }
  };
  control.ToFront = [this] {
    widget_->setWindowState(widget_->windowState() & ~Qt::WindowMinimized);
    widget_->raise();
    widget_->activateWindow();
  };
  control.Move = [this](Place place) { MoveTo(place, widget_); };
  control.Busy.Show = [this] {
    if (control_.Busy) {
      QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
      QApplication::restoreOverrideCursor();
    }
  };
  qApp->installEventFilter(this);
}

bool WindowFace::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::Close && target == widget_) {
    Close(event);
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    const QWidget* focus = widget_->focusWidget();
    return target == (focus != nullptr ? focus : widget_) && !qobject_cast<QMenuBar*>(target) &&
           PassKey(event);
  }
  return false;
}

void WindowFace::Close(QEvent* event) {
  bool refuse = false;
  control_.QueryUnload(refuse);
  if (!refuse) {
    control_.Visible = false;
    control_.Unload();
  }
  event->setAccepted(!refuse);
}

bool WindowFace::PassKey(QEvent* event) {
  const auto* pressed = static_cast<QKeyEvent*>(event);
  // With Control an arrow key goes to the control that has the keyboard: a cursor or a slider moves.
  if (pressed->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
    return false;
  }
  int code = CodeOf(pressed->key());
  if (code == NoKey) {
    return false;
  }
  control_.KeyDown(code);
  return code == NoKey;
}
