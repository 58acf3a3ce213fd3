#include "base/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <vector>

#include "base/platform.h"
#include "base/text_case.h"

namespace fs = std::filesystem;

Event<const fs::path&, std::size_t> FileWritten;
Event<const fs::path&, const std::string&> FileFailed;

namespace {

fs::path working_folder;
fs::path data_folder;
fs::path kept_file;

/// More than any file of this system can grow to; the rest of a larger one is not read.
constexpr std::size_t MostBytes = std::size_t{256} << 20;

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

bool Fail(const fs::path& path, const std::string& why) {
  FileFailed(path, why);
  return false;
}

fs::path FindIn(const fs::path& path) {
  std::error_code failed;
  if (fs::exists(path, failed)) {
    return path;
  }
  const std::string wanted = LowerCase(path.filename().string());
  for (fs::directory_iterator entry(path.parent_path(), failed), end; !failed && entry != end;
       entry.increment(failed)) {
    if (LowerCase(entry->path().filename().string()) == wanted) {
      return entry->path();
    }
  }
  return {};
}

/// Writes and closes; false with errno set if any byte did not go out.
bool WriteAndClose(OpenFile file, std::string_view text) {
  const bool written = file && std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
  const int reason = errno;
  const bool closed = file && std::fclose(file.release()) == 0;
  errno = written ? errno : reason;
  return written && closed;
}

/// Whether an existing file may be written to. The permission bits count too, because a user with
/// all rights would be let past them, and a file that was made read-only is meant to stay.
bool IsWritable(const fs::path& path, fs::perms permissions) {
  const fs::perms any_write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((permissions & any_write) == fs::perms::none) {
    errno = EACCES;
    return false;
  }
  return Open(path, "r+b") != nullptr;
}

/// Writes beside the target and moves the complete file over it.
bool Replace(const fs::path& target, const fs::file_status& old, std::string_view text) {
  static unsigned count = 0;
  fs::path beside;
  OpenFile file;
  do {
    beside = target;
    beside += ".new" + std::to_string(++count);
    file = Open(beside, "wbx");
  } while (!file && errno == EEXIST);
  if (!file) {
    return Fail(target, LastError());
  }
  std::error_code failed;
  if (!WriteAndClose(std::move(file), text)) {
    const std::string why = LastError();
    fs::remove(beside, failed);
    return Fail(target, why);
  }
  if (fs::is_regular_file(old)) {
    fs::permissions(beside, old.permissions(), failed);
  }
  fs::rename(beside, target, failed);
  if (failed) {
    const std::string why = failed.message();
    fs::remove(beside, failed);
    return Fail(target, why);
  }
  return true;
}

bool WriteTo(const fs::path& path, std::string_view text) {
  std::error_code failed;
  const fs::file_status old = fs::status(path, failed);
  if (!fs::exists(old)) {
    return Replace(path, old, text);
  }
  if (fs::is_directory(old) || !IsWritable(path, old.permissions())) {
    return Fail(path, fs::is_directory(old) ? "is a folder" : LastError());
  }
  if (!fs::is_regular_file(old)) {  // a device takes what is written as it comes
    return WriteAndClose(Open(path, "wb"), text) || Fail(path, LastError());
  }
  return Replace(fs::canonical(path, failed), old, text);
}

}  // namespace

const fs::path& WorkingFolder() {
  if (working_folder.empty()) {
    std::error_code failed;
    working_folder = fs::current_path(failed);
  }
  return working_folder;
}

void SetWorkingFolder(const fs::path& folder) {
  working_folder = folder;
}

void SetDataFolder(const fs::path& folder) {
  data_folder = folder;
}

fs::path ShippedDataFolder() {
  std::error_code failed;
  const fs::path installed = ProgramFolder().parent_path() / "share" / "tarve-designer";
  return fs::is_directory(installed, failed) ? installed : fs::path(TARVE_SOURCE_DATA);
}

fs::path PathOf(std::string_view name) {
  std::string local(name);
  std::replace(local.begin(), local.end(), '\\', PathSeparator);
  std::replace(local.begin(), local.end(), '/', PathSeparator);
  return WorkingFolder() / fs::path(local);
}

fs::path FindFile(std::string_view name) {
  return FindIn(PathOf(name));
}

fs::path FindShippedFile(std::string_view name) {
  const fs::path found = FindFile(name);
  return found.empty() && !data_folder.empty() ? FindIn(data_folder / fs::path(name)) : found;
}

std::optional<std::string> ReadTextFile(const fs::path& path) {
  if (path.empty()) {
    return std::nullopt;
  }
  std::error_code failed;
  if (fs::is_directory(path, failed)) {
    Fail(path, "is a folder");
    return std::nullopt;
  }
  const OpenFile file = Open(path, "rb");
  if (!file) {
    Fail(path, LastError());
    return std::nullopt;
  }
  const std::uintmax_t size = fs::file_size(path, failed);
  const std::size_t chunk = failed ? 65536 : std::min<std::uintmax_t>(size, MostBytes) + 1;
  std::string text;
  std::size_t used = 0;
  while (used < MostBytes) {
    text.resize(used + chunk);
    const std::size_t taken = std::fread(text.data() + used, 1, chunk, file.get());
    used += taken;
    if (taken < chunk) {
      break;
    }
  }
  text.resize(used);
  return text;
}

std::string ReadOrEmpty(std::string_view name) {
  return ReadTextFile(FindFile(name)).value_or(std::string());
}

bool WriteTextFile(std::string_view name, std::string_view text) {
  const fs::path existing = FindFile(name);
  const fs::path path = existing.empty() ? PathOf(name) : existing;
  std::error_code failed;
  if (!kept_file.empty() && fs::equivalent(path, kept_file, failed)) {
    return false;
  }
  if (!WriteTo(path, text)) {
    return false;
  }
  FileWritten(path, text.size());
  return true;
}

bool CopyTextFile(std::string_view from, std::string_view to) {
  const fs::path source = FindFile(from);
  const fs::path target = FindFile(to);
  std::error_code failed;
  if (!target.empty() && fs::equivalent(source, target, failed)) {
    return false;
  }
  const std::optional<std::string> text = ReadTextFile(source);
  return text && WriteTextFile(to, *text);
}

void DeleteFile(std::string_view name) {
  const fs::path path = FindFile(name);
  if (path.empty()) {
    return;
  }
  std::error_code failed;
  const fs::file_status status = fs::status(path, failed);
  if (fs::exists(status) && !IsWritable(path, status.permissions())) {
    Fail(path, LastError());
  } else if (!fs::remove(path, failed)) {
    Fail(path, failed.message());
  }
}

void DeleteFiles(std::string_view beginning, std::string_view ending) {
  std::error_code failed;
  std::vector<std::string> names;
  for (fs::directory_iterator entry(WorkingFolder(), failed), end; !failed && entry != end;
       entry.increment(failed)) {
    const std::string name = LowerCase(entry->path().filename().string());
    if (name.size() >= beginning.size() + ending.size() && name.starts_with(beginning) &&
        name.ends_with(ending)) {
      names.push_back(entry->path().filename().string());
    }
  }
  for (const std::string& name : names) {
    DeleteFile(name);
  }
}

void KeepAsItIs(const fs::path& path) {
  kept_file = path;
}
