#include "ui/dialog_faces.h"

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "controls/dialogs.h"
#include "ui/control_faces.h"

namespace {

constexpr const char* ProgramTitle = "Tarve Designer";

/// The window that a box belongs to. A box without one could come up behind the others.
QWidget* Owner() {
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr) {
    return active;
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->parentWidget() == nullptr) {
      return window;
    }
  }
  return nullptr;
}

std::string AskForText(const std::string& prompt, const std::string& title, const std::string& offered) {
  bool accepted = false;
  const QString text = QInputDialog::getText(Owner(), Shown(title.empty() ? ProgramTitle : title),
                                             Shown(prompt), QLineEdit::Normal, Shown(offered), &accepted);
  return accepted ? Entered(text) : std::string();
}

QMessageBox::StandardButtons Buttons(int style) {
  switch (style & 7) {
    case 1:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case 3:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case 4:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon Icon(int style) {
  switch (style & 0x70) {
    case 16:
      return QMessageBox::Critical;
    case 32:
      return QMessageBox::Question;
    case 48:
      return QMessageBox::Warning;
    case 64:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

Answer Tell(const std::string& text, int style, const std::string& title) {
  QMessageBox box(Icon(style), Shown(title.empty() ? ProgramTitle : title), Shown(text), Buttons(style),
                  Owner());
  box.setTextFormat(Qt::PlainText);  // a file's name is never taken for markup
  switch (box.exec()) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

}  // namespace

void ShowDialogsWithQt() {
  InputBox = AskForText;
  MsgBox = Tell;
}
