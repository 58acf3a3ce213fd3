#include "batch/folders.h"

#include <system_error>

#include "batch/report.h"

namespace fs = std::filesystem;

fs::path FolderPath(const std::string& name) {
  std::error_code failed;
  const fs::path folder = fs::weakly_canonical(fs::absolute(name), failed);
  return folder.has_filename() ? folder : folder.parent_path();
}

bool MakeFolder(const fs::path& folder) {
  std::error_code failed;
  fs::create_directories(folder, failed);
  std::error_code unknown;
  if (!fs::is_directory(folder, unknown)) {
    Complain(folder.string() +
             ": expected a folder to write in: " + (failed ? failed.message() : "is a file"));
    return false;
  }
  return true;
}
