#include "batch/report.h"

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <vector>

#include "base/files.h"
#include "base/platform.h"
#include "controls/forms.h"

namespace fs = std::filesystem;

namespace {

struct Written {
  fs::path path;
  std::size_t size;
};

std::vector<Written> written;
std::vector<std::string> failed;

void NoteWritten(const fs::path& path, std::size_t size) {
  const auto same = [&](const Written& file) { return file.path == path; };
  const auto found = std::find_if(written.begin(), written.end(), same);
  if (found == written.end()) {
    written.push_back({path, size});
  } else {
    found->size = size;
  }
}

void NoteFailed(const fs::path& path, const std::string& why) {
  const std::string message = path.string() + ": " + why;
  if (std::find(failed.begin(), failed.end(), message) == failed.end()) {
    failed.push_back(message);
  }
}

}  // namespace

int Complain(const std::string& message) {
  std::cerr << "tarve-batch: " << message << '\n';
  return CouldNot;
}

void WatchFiles() {
  FileWritten = NoteWritten;
  FileFailed = NoteFailed;
}

void ShowProgress() {
  if (StandardErrorIsTerminal()) {
    Form1.StatusBar1.Panels[1].Show = [] {
      std::cerr << "\r\033[K" << *Form1.StatusBar1.Panels[1] << std::flush;
    };
  }
}

void EndProgress() {
  Form1.StatusBar1.Panels[1].Show = nullptr;
  if (StandardErrorIsTerminal()) {
    std::cerr << "\r\033[K" << std::flush;
  }
}

void ListFiles(const fs::path& folder) {
  for (const Written& file : written) {
    const bool inside = file.path.parent_path() == folder;
    const std::string name = inside ? file.path.filename().string() : file.path.string();
    std::cout << std::left << std::setw(20) << name << ' ' << std::right << std::setw(10) << file.size
              << " bytes\n";
  }
}

bool ComplainAboutFiles() {
  for (const std::string& message : failed) {
    Complain(message);
  }
  return !failed.empty();
}
