#include "batch/open_hull.h"

#include <filesystem>

#include "base/files.h"
#include "batch/hull_check.h"
#include "batch/report.h"
#include "controls/forms.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"
#include "program/start_up.h"

std::optional<HullSource> ReadHull(const std::string& path) {
  if (path.empty()) {
    return HullSource{};
  }
  const std::filesystem::path file = FindFile(path);
  if (file.empty()) {
    Complain(path + ": no such hull file");
    return std::nullopt;
  }
  const std::optional<std::string> text = ReadTextFile(file);
  if (!text) {
    ComplainAboutFiles();
    return std::nullopt;
  }
  const HullCheck check = CheckHull(*text);
  const std::string place = path + ", line " + std::to_string(check.line) + ": ";
  if (!check.error.empty()) {
    Complain(place + check.error);
    return std::nullopt;
  }
  if (!check.warning.empty()) {
    Complain(place + "warning: " + check.warning);
  }
  return HullSource{std::filesystem::path(path).filename().string(), WithPoints(*text)};
}

void OpenHull(const HullSource& hull) {
  StartProgram();
  if (!hull.name.empty()) {
    HullFileName = hull.name;
    LoadHull(hull.text, HullReader::FileList);
    Form1.Refresh();  // the window's button "Done" repaints once more
  }
}
