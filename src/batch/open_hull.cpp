#include <filesystem>
#include <optional>

#include "base/files.h"
#include "batch/commands.h"
#include "batch/hull_check.h"
#include "batch/report.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "program/start_up.h"

bool OpenHull(const std::string& path) {
  std::optional<std::string> text;
  if (!path.empty()) {
    const std::filesystem::path file = FindFile(path);
    if (file.empty()) {
      Complain(path + ": no such hull file");
      return false;
    }
    text = ReadTextFile(file);
    if (!text) {
      ComplainAboutFiles();
      return false;
    }
    const HullCheck check = CheckHull(*text);
    const std::string place = path + ", line " + std::to_string(check.line) + ": ";
    if (!check.error.empty()) {
      Complain(place + check.error);
      return false;
    }
    if (!check.warning.empty()) {
      Complain(place + "warning: " + check.warning);
    }
  }
  StartProgram();
  if (text) {
    HullFileName = std::filesystem::path(path).filename().string();
    LoadHull(WithPoints(*text), HullReader::FileList);
  }
  return true;
}
