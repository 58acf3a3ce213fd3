#include <chrono>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "base/clock.h"
#include "base/files.h"
#include "base/text_case.h"
#include "batch/commands.h"
#include "batch/folders.h"
#include "batch/open_hull.h"
#include "batch/report.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "panels/save_dialog.h"

namespace fs = std::filesystem;

namespace {

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

/// Whether a hull file's own name is one that the run itself writes, deletes or reads: its copy would
/// take the place of such a file, or such a file that of the copy.
bool NameIsTaken(const std::string& name) {
  const std::string lower = LowerCase(name);
  for (const char* ending : {".uc", ".tri", ".plt", ".dxf", ".fnt", ".dat"}) {
    if (lower.ends_with(ending)) {
      return true;
    }
  }
  return lower == "temp" || lower == "temp.txt" || lower == "handplot.txt";
}

/// Whether the hull's drawing would be named like the export of a part: "chine1.tvh", "keel.tvh".
bool DrawingIsNamedLikeAPart(const std::string& hull) {
  const std::string own = LowerCase(hull.substr(0, hull.find('.')));
  const std::string part = own.substr(0, own.find_last_not_of("0123456789") + 1);
  for (const char* taken : {"chine", "bhead", "frame", "sole"}) {
    if (part == taken && own != part) {
      return true;
    }
  }
  return own == "deck" || own == "keel" || own == "stem" || own == "transom" || own == "4x8";
}

/// The hull file is left as it was, even where its copy would go.
void ProtectHull(const std::string& hull, const fs::path& copy) {
  std::error_code failed;
  const fs::path own = FindFile(hull);
  KeepAsItIs(fs::absolute(own));
  if (fs::equivalent(own, copy, failed)) {
    Complain(hull + ": note: the hull file stays as it is, no copy is saved beside it");
  }
}

/// Fills the dialog as its menu item does and presses its button.
void PressSave(const PatternsArguments& arguments, const fs::path& export_folder) {
  const std::string own_name = HullFileName;
  if (!arguments.frames.empty()) {
    ReplaceFrames(arguments.frames);
  }
  Form3.Loaded = true;  // the settings of a window do not count here
  Dummy4_Click();
  HullFileName = own_name;
  Form3.Text6.Text = export_folder.string();
  ExportPath = (export_folder / "").string();  // as the system names it, not as somebody typed it
  SetCheckBoxes(arguments);
  Form3.Command1.Click();
}

}  // namespace

int RunPatterns(const PatternsArguments& arguments) {
  const auto start = std::chrono::steady_clock::now();
  WatchFiles();
  FixClock(arguments.date, arguments.time);
  const std::optional<HullSource> hull = ReadHull(arguments.hull);
  if (!hull) {
    return CouldNot;
  }
  if (NameIsTaken(hull->name)) {
    return Complain(hull->name + ": expected a hull file with a name that no pattern has, such as boat.tvh");
  }
  const fs::path folder = FolderPath(arguments.into);
  const fs::path export_folder = arguments.export_path.empty() ? folder : FolderPath(arguments.export_path);
  if (arguments.dxf && export_folder == folder && DrawingIsNamedLikeAPart(hull->name)) {
    return Complain(hull->name +
                    ": its drawing and a part would be one file; expected another name or --export-path");
  }
  if (!hull->name.empty()) {
    ProtectHull(arguments.hull, folder / hull->name);
  }
  SetWorkingFolder(folder);
  OpenHull(*hull);
  if (arguments.text && FindShippedFile("pedit.fnt").empty()) {
    return Complain("pedit.fnt: expected the stroke font in " + folder.string() +
                    " or the program's data folder");
  }
  ShowProgress();
  HoldBackChanges();
  PressSave(arguments, export_folder);
  EndProgress();
  const bool done = MakeFolder(folder) && MakeFolder(export_folder) && CommitChanges();
  if (ComplainAboutFiles() || !done) {
    return CouldNot;
  }
  ListFiles(folder);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  std::cout << "done in " << taken.count() << " s\n";
  return Done;
}
