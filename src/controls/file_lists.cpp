#include "controls/file_lists.h"

#include <utility>

#include "base/platform.h"

FileListBox::FileListBox(std::string pattern) : Pattern(std::move(pattern)), Path(path_changed_) {
  path_changed_ = [this] { FileName = std::string(); };
}

std::string ChosenPath(const DirListBox& folder, const FileListBox& file) {
  std::string path = folder.Path;
  if (path.empty() || path.back() != PathSeparator) {
    path += PathSeparator;
  }
  return path + *file.FileName;
}
