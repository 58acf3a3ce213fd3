#pragma once
// The lists in which the user finds a file: drives, the folders of a drive, the files of a folder.
// Handlers pass a choice from one to the next; a face reads the disk and shows what is there.

#include <string>

#include "controls/property.h"

/// The files of one folder that fit a pattern.
class FileListBox {
 public:
  explicit FileListBox(std::string pattern);

  /// The user chose a file; FileName tells which.
  Event<> Click;
  /// The face's slot: reads the folder anew.
  Event<> Refresh;
  const std::string Pattern;
  /// The chosen file, without its folder; empty for none.
  Property<std::string> FileName;

 private:
  Event<> path_changed_;

 public:
  /// The folder. In another one no file is chosen.
  Property<std::string> Path;
};

/// The folders of one drive.
struct DirListBox {
  Event<> Change;
  /// The open folder.
  Property<std::string> Path{Change};
};

struct DriveListBox {
  Event<> Change;
  /// The root of the chosen drive.
  Property<std::string> Drive{Change};
};

/// The chosen file with its folder.
std::string ChosenPath(const DirListBox& folder, const FileListBox& file);
