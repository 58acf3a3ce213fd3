#include "base/file_replacement.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>
#include <set>
#include <system_error>
#include <utility>
#include <vector>

#include "base/held_changes.h"
#include "base/platform.h"

namespace fs = std::filesystem;

namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile Open(const fs::path& path, const char* mode) {
  return OpenFile(std::fopen(path.string().c_str(), mode));
}

std::string LastError() {
  return std::generic_category().message(errno);
}

/// Writes and closes; why not all of it went out otherwise.
std::string WriteAndClose(OpenFile file, std::string_view text, Worth worth) {
  if (!file || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) {
    return LastError();
  }
  if (worth == Worth::Keeping && !FlushToDisk(file.get())) {
    return LastError();
  }
  return std::fclose(file.release()) == 0 ? std::string() : LastError();
}

constexpr std::string_view BesideMark = ".tarve-new";

/// A replacement takes seconds; what waits longer than this waits for a run that was killed.
constexpr std::chrono::minutes LongestWait{10};

bool IsBeside(const std::string& name) {
  const std::size_t mark = name.rfind(BesideMark);
  return mark != std::string::npos && mark > 0 && mark + BesideMark.size() < name.size() &&
         name.find_first_not_of("0123456789", mark + BesideMark.size()) == std::string::npos;
}

/// Takes away what killed runs left in a folder. Once is enough, since only other runs leave such files.
void SweepOnce(const fs::path& folder) {
  static std::set<fs::path> swept;
  if (!swept.insert(folder).second) {
    return;
  }
  for (const fs::path& file : FilesOnDisk(folder)) {
    std::error_code failed;
    if (!IsBeside(file.filename().string()) || !fs::is_regular_file(fs::symlink_status(file, failed))) {
      continue;
    }
    const fs::file_time_type written = fs::last_write_time(file, failed);
    if (!failed && fs::file_time_type::clock::now() - written > LongestWait) {
      fs::remove(file, failed);
    }
  }
}

/// A file beside the target that nobody has yet.
OpenFile OpenBeside(const fs::path& target, fs::path& beside) {
  static unsigned count = 0;
  SweepOnce(target.parent_path());
  OpenFile file;
  do {
    beside = target;
    beside += std::string(BesideMark) + std::to_string(++count);
    file = Open(beside, "wbx");
  } while (!file && errno == EEXIST);
  return file;
}

bool IsReadOnly(const fs::file_status& status) {
  const fs::perms any_write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return (status.permissions() & any_write) == fs::perms::none;
}

std::string WhyNotWritable(const fs::path& path, const fs::file_status& status) {
  if (!fs::exists(status)) {
    return {};
  }
  if (fs::is_directory(status)) {
    return "is a folder";
  }
  if (!fs::is_regular_file(status) && !fs::is_character_file(status)) {
    return "is neither a file nor a device";
  }
  if (IsReadOnly(status)) {
    return "is read-only";
  }
  return Open(path, "r+b") ? std::string() : LastError();
}

}  // namespace

std::string WhyNotWritable(const fs::path& path) {
  std::error_code failed;
  return WhyNotWritable(path, fs::status(path, failed));
}

Replacement BeginReplacement(const fs::path& path, std::string_view text, Worth worth) {
  std::error_code failed;
  const fs::file_status old = fs::status(path, failed);
  Replacement replacement{path, {}, WhyNotWritable(path, old)};
  if (!replacement.problem.empty()) {
    return replacement;
  }
  if (fs::is_character_file(old)) {
    replacement.problem = WriteAndClose(Open(path, "wb"), text, Worth::MakingAgain);
    return replacement;
  }
  if (fs::is_symlink(path, failed)) {
    const fs::path linked = fs::weakly_canonical(path, failed);
    replacement.target = failed ? path : linked;  // the link stays, its file is replaced
  }
  replacement.problem = WriteAndClose(OpenBeside(replacement.target, replacement.beside), text, worth);
  if (!replacement.problem.empty()) {
    CancelReplacement(replacement);
  } else if (fs::exists(old)) {
    fs::permissions(replacement.beside, old.permissions(), failed);
  }
  return replacement;
}

std::string FinishReplacement(Replacement& replacement) {
  if (replacement.beside.empty()) {
    return {};
  }
  std::error_code failed;
  fs::rename(replacement.beside, replacement.target, failed);
  if (failed) {
    CancelReplacement(replacement);
  }
  replacement.beside.clear();
  return failed ? failed.message() : std::string();
}

void CancelReplacement(const Replacement& replacement) {
  std::error_code failed;
  if (!replacement.beside.empty()) {
    fs::remove(replacement.beside, failed);
  }
}
