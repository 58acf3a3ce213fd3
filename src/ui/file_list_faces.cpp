#include "ui/file_list_faces.h"

#include <QDir>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QTimer>

#include "ui/control_faces.h"

namespace {

void ListFiles(const FileListBox& control, QListWidget* widget) {
  const QSignalBlocker quiet(widget);
  widget->clear();
  const QDir folder(Shown(control.Path));
  const QDir::SortFlags order = QDir::Name | QDir::IgnoreCase;
  widget->addItems(folder.entryList({Shown(control.Pattern)}, QDir::Files | QDir::Readable, order));
  const QList<QListWidgetItem*> chosen = widget->findItems(Shown(control.FileName), Qt::MatchExactly);
  widget->setCurrentItem(chosen.isEmpty() ? nullptr : chosen.front());
}

void ListFolders(const DirListBox& control, QListWidget* widget) {
  const QSignalBlocker quiet(widget);
  widget->clear();
  const QDir folder(Shown(control.Path));
  if (!folder.isRoot()) {
    widget->addItem("..");
  }
  widget->addItems(folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
}

/// What the system mounts for itself is no place for hulls.
bool HoldsFilesOfAUser(const QStorageInfo& volume) {
  const QString root = volume.rootPath();
  const bool own_tree = root == "/" || root.startsWith("/media/") || root.startsWith("/mnt/") ||
                        root.startsWith("/run/media/") || root.startsWith("/Volumes/");
  return volume.isValid() && volume.isReady() && (QDir::rootPath() != "/" || own_tree);
}

QStringList Places() {
  QStringList places = {QDir::rootPath(), QDir::homePath()};
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (HoldsFilesOfAUser(volume) && !places.contains(volume.rootPath())) {
      places << volume.rootPath();
    }
  }
  return places;
}

}  // namespace

void Face(FileListBox& control, QListWidget* widget) {
  const auto show = [&control, widget] { ListFiles(control, widget); };
  control.Path.Show = control.Refresh = control.FileName.Show = show;
  show();
  OnChoice(widget, [&control](const QListWidgetItem* item) {
    control.FileName = Entered(item->text());  // this fills the list anew: the item is gone
    control.Click();
  });
}

void Face(DirListBox& control, QListWidget* widget) {
  const auto show = [&control, widget] { ListFolders(control, widget); };
  control.Path.Show = show;
  show();
  QObject::connect(widget, &QListWidget::itemActivated, widget, [&control](const QListWidgetItem* item) {
    const QDir inside(QDir(Shown(control.Path)).filePath(item->text()));
    if (inside.isReadable()) {
      control.Path = Entered(QDir::toNativeSeparators(QDir::cleanPath(inside.absolutePath())));
    }
  });
}

void Face(DriveListBox& control, QComboBox* widget) {
  // Asking for all mounted volumes takes a while, and nobody needs them before the window shows.
  QTimer::singleShot(0, widget, [widget] { widget->addItems(Places()); });
  QObject::connect(widget, &QComboBox::textActivated, widget, [&control](const QString& place) {
    if (*control.Drive == Entered(place)) {
      control.Change();  // chosen again, it leads back to its root
    } else {
      control.Drive = Entered(place);
    }
  });
}
