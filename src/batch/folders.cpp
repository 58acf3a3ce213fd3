#include "batch/folders.h"

#include "batch/report.h"

namespace fs = std::filesystem;

fs::path FolderPath(const std::string& name) {
  const fs::path folder = fs::absolute(name).lexically_normal();
  return folder.has_filename() ? folder : folder.parent_path();
}

bool MakeFolder(const fs::path& folder) {
  std::error_code failed;
  fs::create_directories(folder, failed);
  if (!fs::is_directory(folder)) {
    Complain(folder.string() +
             ": expected a folder to write in: " + (failed ? failed.message() : "is a file"));
    return false;
  }
  return true;
}
