#include <filesystem>
#include <optional>

#include "base/files.h"
#include "base/text_case.h"
#include "batch/commands.h"
#include "batch/folders.h"
#include "batch/open_hull.h"
#include "batch/report.h"
#include "controls/forms.h"

int RunVrml(const VrmlArguments& arguments) {
  WatchFiles();
  const std::optional<HullSource> hull = ReadHull(arguments.hull);
  if (!hull) {
    return CouldNot;
  }
  if (LowerCase(hull->name).ends_with("wrl")) {  // the solid would take the hull's place
    return Complain(hull->name + ": expected a hull file with a name that no solid has, such as boat.tvh");
  }
  const std::filesystem::path folder = FolderPath(arguments.into);
  SetWorkingFolder(folder);
  OpenHull(*hull);
  HoldBackChanges();
  Form1.Command2.Click();
  const bool done = MakeFolder(folder) && CommitChanges();
  if (ComplainAboutFiles() || !done) {
    return CouldNot;
  }
  ListFiles(folder);
  return Done;
}
