#include "base/file_replacement.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>

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
std::string WriteAndClose(OpenFile file, std::string_view text) {
  if (!file || std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) {
    return LastError();
  }
  return std::fclose(file.release()) == 0 ? std::string() : LastError();
}

/// A file beside the target that nobody has yet.
OpenFile OpenBeside(const fs::path& target, fs::path& beside) {
  static unsigned count = 0;
  OpenFile file;
  do {
    beside = target;
    beside += ".new" + std::to_string(++count);
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

Replacement BeginReplacement(const fs::path& path, std::string_view text) {
  std::error_code failed;
  const fs::file_status old = fs::status(path, failed);
  Replacement replacement{path, {}, WhyNotWritable(path, old)};
  if (!replacement.problem.empty()) {
    return replacement;
  }
  if (fs::is_character_file(old)) {
    replacement.problem = WriteAndClose(Open(path, "wb"), text);
    return replacement;
  }
  if (fs::is_symlink(path, failed)) {
    const fs::path linked = fs::weakly_canonical(path, failed);
    replacement.target = failed ? path : linked;  // the link stays, its file is replaced
  }
  replacement.problem = WriteAndClose(OpenBeside(replacement.target, replacement.beside), text);
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
