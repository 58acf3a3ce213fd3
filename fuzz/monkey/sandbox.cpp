#include "monkey/sandbox.h"

#ifdef _WIN32
#include <process.h>
#define getpid _getpid
#else
#include <unistd.h>
#endif

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <vector>

#include "base/files.h"
#include "base/text_lines.h"
#include "hull/hull_model.h"
#include "monkey/diary.h"
#include "monkey/texts.h"
#include "views/vrml.h"

namespace fs = std::filesystem;

namespace {

fs::path root;
std::set<fs::path> folders;        // all that there are
std::set<fs::path> named_folders;  // of files that the user named

fs::path Work() {
  return root / "a" / "b" / "work";
}

std::string ReadFile(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

void WriteFile(const fs::path& path, const std::string& text) {
  std::error_code failed;
  if (fs::is_directory(path, failed)) {
    return;
  }
  fs::remove(path, failed);
  std::ofstream(path, std::ios::binary) << text;
}

std::vector<fs::path> FilesOf(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// The text with one fault in it.
std::string Damaged(std::string text, Stream& stream) {
  const int at = stream.Below(static_cast<int>(text.size()) + 1);
  const auto place = static_cast<std::size_t>(at);
  switch (stream.Below(5)) {
    case 0:
      return text.substr(0, place);
    case 1:
      return text.insert(place, OddText(stream));
    case 2: {
      const std::size_t end = text.find("\r\n", place);
      return end == std::string::npos ? text : text.replace(place, end - place, OddText(stream));
    }
    case 3:
      std::replace(text.begin(), text.end(), '.', ',');
      return text;
    default:
      return text.insert(place, "\r\n");
  }
}

std::string SampleHull(Stream& stream) {
  return ReadFile(stream.Of(FilesOf(ShippedDataFolder() / "hulls")));
}

std::string OddHull(Stream& stream) {
  constexpr std::array<std::string_view, 6> counts = {" 31 ", " 30 ", " 1 ", "-4 ", " 2.5 ", "1e9"};
  std::string text = SampleHull(stream);
  if (stream.OneIn(4)) {
    text.replace(0, text.find("\r\n"), stream.Of(counts));
  }
  if (stream.OneIn(8)) {  // an older file: the offsets alone
    std::size_t lines = 61;
    std::size_t end = 0;
    while (lines-- > 0 && end != std::string::npos) {
      end = text.find("\r\n", end + 1);
    }
    text.resize(std::min(end, text.size()));
  }
  return Damaged(text, stream);
}

std::string HandPlot(Stream& stream) {
  std::string text = "Hand plotting file for a boat.tvh        12:00:00\r\nX in.         Y in.\r\n";
  for (int part = stream.Below(34); part >= 0; --part) {
    PutLine(text, "part" + std::to_string(part) + ".uc      ____");
    for (int point = stream.Below(stream.OneIn(9) ? 60 : 9); point >= 0; --point) {
      PutLine(text, InchesText(stream) + "          " + NumberText(stream));
    }
  }
  return Damaged(text, stream);
}

fs::path FolderOf(const std::string& file) {
  return (Work() / file).lexically_normal().parent_path();
}

bool MayBeWrittenTo(const fs::path& folder) {
  return folder == Work() || folder == (Work() / ExportPath / "x").lexically_normal().parent_path() ||
         folder == FolderOf(HullFileName) || folder == FolderOf(VrmlName(HullFileName)) ||
         named_folders.contains(folder);
}

void CheckWrittenFile(const fs::path& path, std::size_t /*bytes*/) {
  const fs::path folder = path.lexically_normal().parent_path();
  if (!MayBeWrittenTo(folder) || !folder.string().starts_with(root.string())) {
    NoteFault("writes " + Quoted(path.string()));
  }
}

std::set<fs::path> FoldersNow() {
  std::set<fs::path> found;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    if (entry.is_directory()) {
      found.insert(entry.path());
    }
  }
  return found;
}

}  // namespace

void MakeSandbox(Stream& stream) {
  root = fs::temp_directory_path() / ("tarve-monkey-" + std::to_string(getpid()));
  fs::remove_all(root);
  for (const char* folder : {"sub", "dotted.dir"}) {
    fs::create_directories(Work() / folder);
  }
  fs::create_directories(root / "a" / "b" / "out");
  folders = FoldersNow();
  named_folders.clear();
#ifndef _WIN32
  setenv("XDG_CONFIG_HOME", root.c_str(), 1);
#endif
  SetWorkingFolder(Work());
  FileWritten = CheckWrittenFile;
  for (const fs::path& hull : FilesOf(ShippedDataFolder() / "hulls")) {
    fs::copy_file(hull, Work() / hull.filename());
  }
  for (const char* name : {"odd1.tvh", "odd2.TVH", "odd3.tvh", "sub/odd4.tvh", "dotted.dir/odd5.tvh"}) {
    WriteFile(Work() / name, OddHull(stream));
  }
}

void RemoveSandbox() {
  fs::remove_all(root);
}

std::string SomeFolder(Stream& stream) {
  const std::array<fs::path, 5> chosen = {Work(), Work(), Work() / "sub", Work() / "dotted.dir",
                                          root / "a" / "b" / "out"};
  return stream.Of(chosen).string();
}

/// None is empty: an empty box is the root of the drive, which is not the run's.
std::string SomeExportPath(Stream& stream) {
  const std::array<std::string, 9> typed = {(root / "a" / "b" / "out").string(),
                                            "../out/",
                                            "..\\out\\",
                                            "sub",
                                            ".",
                                            "./",
                                            "missing/folder",
                                            "dotted.dir",
                                            "no,commas"};
  return stream.Of(typed);
}

std::string SandboxDrive() {
  return root.string();
}

void AllowFolderOf(const std::string& file) {
  std::string own = file;
  std::replace(own.begin(), own.end(), '\\', '/');
  named_folders.insert(FolderOf(own));
}

void MeddleWithFiles(Stream& stream) {
  static constexpr std::array<const char*, 8> names = {"default.tvh",  "odd1.tvh", "boat.tvh",
                                                       "handplot.txt", "hull.dat", "qv32.dat",
                                                       "persons.fig",  "pedit.fnt"};
  const std::string name = stream.Of(names);
  const fs::path path = Work() / name;
  std::error_code failed;
  const int what = stream.Below(4);
  if (what == 0) {
    Tell("somebody deletes " + name);
    fs::remove(path, failed);
  } else if (what == 1 && fs::exists(path)) {
    Tell("somebody makes " + name + " read-only");
    fs::permissions(path, fs::perms::owner_read, failed);
  } else if (name.ends_with(".tvh")) {
    Tell("somebody puts an odd hull in place of " + name);
    WriteFile(path, OddHull(stream));
  } else {
    Tell("somebody puts an odd file in place of " + name);
    const fs::path shipped = ShippedDataFolder() / name;
    const std::string numbers = NumberText(stream) + " , " + NumberText(stream) + "\r\n";
    WriteFile(path, fs::exists(shipped)      ? Damaged(ReadFile(shipped), stream)
                    : name == "handplot.txt" ? HandPlot(stream)
                                             : numbers);
  }
}

void AllowWriting() {
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    fs::permissions(entry.path(), fs::perms::owner_all);
  }
}

void CheckFolders() {
  if (FoldersNow() != folders) {
    NoteFault("folders have come or gone");
  }
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    if (entry.path().extension().string().starts_with(".new")) {
      NoteFault("leaves " + Quoted(entry.path().string()));
    }
  }
}

std::string ReadWorkingFile(const std::string& name) {
  return ReadFile(FindFile(name));
}
