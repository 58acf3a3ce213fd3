// tarve-designer: starts the toolkit, binds the core and shows the main window.

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QStandardPaths>
#include <QTimer>
#include <optional>

#include "base/files.h"
#include "controls/forms.h"
#include "program/session.h"
#include "program/start_up.h"
#include "ui/dialog_faces.h"
#include "ui/main_window.h"
#include "ui/nesting_window.h"
#include "ui/offsets_window.h"
#include "ui/open_window.h"
#include "ui/save_window.h"

namespace {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 64, 256}) {
    icon.addFile(QString(":/icon-%1.png").arg(size));
  }
  return icon;
}

/// A start from the desktop's menu happens in the home folder or at the root. Working files would
/// litter those, so it gets a folder of its own among the user's documents.
void ChooseWorkingFolder() {
  const QDir here = QDir::current();
  if (here != QDir::home() && !here.isRoot()) {
    return;
  }
  QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  if (documents.mkpath("Tarve Designer") && documents.cd("Tarve Designer")) {
    QDir::setCurrent(documents.path());
    SetWorkingFolder(documents.filesystemAbsolutePath());
  }
}

struct OtherWindows {
  explicit OtherWindows(QWidget* main) : save(main), offsets(main) {}
  SaveWindowWidget save;
  OffsetsWindowWidget offsets;
  NestingWindowWidget nesting;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setDesktopFileName("tarve-designer");
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // a blinking cursor would be work in idle
  ChooseWorkingFolder();
  ResetProgram();
  ShowDialogsWithQt();
  MainWindowWidget window;
  const OpenWindowWidget open(&window);
  std::optional<OtherWindows> others;
  QTimer::singleShot(0, &window, [&] { others.emplace(&window); });  // once the main window shows
  bool ended = false;
  Form1.Unload = [&ended] {
    ended = true;
    QApplication::exit(0);
  };
  Form_Load();
  return ended ? 0 : QApplication::exec();
}
