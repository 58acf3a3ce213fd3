#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>

#include "base/clock.h"
#include "base/files.h"
#include "batch/commands.h"
#include "batch/report.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "panels/save_dialog.h"

namespace fs = std::filesystem;

namespace {

/// Makes a folder if it is missing; its whole path, or nothing (and a complaint) if it can't be
/// made or written to.
std::optional<fs::path> FolderToWriteIn(const std::string& name) {
  std::error_code failed;
  fs::path folder = fs::absolute(name, failed).lexically_normal();
  if (!folder.has_filename()) {
    folder = folder.parent_path();
  }
  fs::create_directories(folder, failed);
  if (failed || !fs::is_directory(folder, failed)) {
    Complain(name + ": expected a folder to write in: " + (failed ? failed.message() : "is a file"));
    return std::nullopt;
  }
  const fs::path probe = folder / ".tarve-batch";
  std::FILE* const file = std::fopen(probe.string().c_str(), "wb");
  if (file == nullptr) {
    Complain(name + ": expected a folder to write in: " + std::generic_category().message(errno));
    return std::nullopt;
  }
  std::fclose(file);
  fs::remove(probe, failed);
  return folder;
}

void SetCheckBoxes(const PatternsArguments& arguments) {
  Form3.Check1.Value = true;
  Form3.Check2.Value = arguments.spar;
  Form3.Check3.Value = arguments.hpgl;
  Form3.Check4.Value = arguments.dxf;
  Form3.Check5.Value = arguments.text;
  Form3.Check6.Value = arguments.half_frames;
  Form3.Check7.Value = arguments.stem;
  Form3.Check8.Value = arguments.soles;
  Form3.Check9.Value = arguments.deck;
  Form3.Check10.Value = arguments.keel;
}

void ReplaceFrames(const std::vector<double>& frames) {
  FrameZ.fill({});
  for (std::size_t i = 0; i < frames.size() && i < FrameZ.size(); ++i) {
    FrameZ[i] = frames[i];
  }
}

/// The hull file is left as it was, even where its copy would go.
void ProtectHull(const std::string& hull, const fs::path& folder) {
  std::error_code failed;
  const fs::path own = fs::canonical(hull, failed);
  KeepAsItIs(own);
  if (fs::equivalent(own, folder / own.filename(), failed)) {
    Complain(hull + ": note: the hull file stays as it is, no copy is saved beside it");
  }
}

/// Fills the dialog as its menu item does and presses its button.
void PressSave(const PatternsArguments& arguments, const fs::path& export_folder) {
  const std::string own_name = HullFileName;
  if (!arguments.frames.empty()) {
    ReplaceFrames(arguments.frames);
  }
  Dummy4_Click();
  HullFileName = own_name;
  Form3.Text6.Text = export_folder.string();
  SetCheckBoxes(arguments);
  Form3.Command1.Click();
}

}  // namespace

int RunPatterns(const PatternsArguments& arguments) {
  const auto start = std::chrono::steady_clock::now();
  WatchFiles();
  FixClock(arguments.date, arguments.time);
  SetWorkingFolder(fs::absolute(arguments.into));
  if (!OpenHull(arguments.hull)) {
    return CouldNot;
  }
  const std::optional<fs::path> folder = FolderToWriteIn(arguments.into);
  const std::string& exports = arguments.export_path.empty() ? arguments.into : arguments.export_path;
  const std::optional<fs::path> export_folder = folder ? FolderToWriteIn(exports) : std::nullopt;
  if (!folder || !export_folder) {
    return CouldNot;
  }
  SetWorkingFolder(*folder);
  if (!arguments.hull.empty()) {
    ProtectHull(arguments.hull, *folder);
  }
  ShowProgress();
  PressSave(arguments, *export_folder);
  EndProgress();
  ListFiles(*folder);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::cout << "done in " << taken.count() << " s\n";
  return ComplainAboutFiles() ? CouldNot : Done;
}
