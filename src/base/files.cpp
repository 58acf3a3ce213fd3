#include "base/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

#include "base/file_replacement.h"
#include "base/held_changes.h"
#include "base/platform.h"
#include "base/text_case.h"

namespace fs = std::filesystem;

Event<const fs::path&, std::size_t> FileWritten;
Event<const fs::path&, const std::string&> FileFailed;

namespace {

fs::path working_folder;
fs::path data_folder;
fs::path kept_file;

/// More than any file of this system can grow to.
constexpr std::size_t MostBytes = std::size_t{64} << 20;

/// What is held back now, if anything is.
std::optional<HeldChanges> held;

bool Fail(const fs::path& path, const std::string& why) {
  FileFailed(path, why);
  return false;
}

fs::path FindIn(const fs::path& path) {
  if (held) {
    return held->FindFile(path);
  }
  std::error_code failed;
  if (fs::exists(path, failed)) {
    return path;
  }
  const std::string wanted = LowerCase(path.filename().string());
  for (const fs::path& file : FilesOnDisk(path.parent_path())) {
    if (LowerCase(file.filename().string()) == wanted) {
      return file;
    }
  }
  return {};
}

bool IsKept(const fs::path& path) {
  std::error_code failed;
  return !kept_file.empty() && fs::equivalent(path, kept_file, failed);
}

std::optional<std::string> ReadAll(const fs::path& path) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.string().c_str(), "rb"),
                                                             std::fclose);
  if (!file) {
    Fail(path, std::generic_category().message(errno));
    return std::nullopt;
  }
  std::error_code failed;
  const std::uintmax_t size = fs::file_size(path, failed);
  const std::size_t chunk = failed || size == 0 ? 65536 : std::min<std::uintmax_t>(size, MostBytes) + 1;
  std::string text;
  std::size_t used = 0;
  std::size_t taken = chunk;
  while (taken == chunk && used <= MostBytes) {
    text.resize(used + chunk);
    taken = std::fread(text.data() + used, 1, chunk, file.get());
    used += taken;
  }
  if (std::ferror(file.get()) != 0 || used > MostBytes) {
    Fail(path, used > MostBytes ? "is larger than any file of this program" : "could not be read to its end");
    return std::nullopt;
  }
  text.resize(used);
  return text;
}

bool WriteNow(const fs::path& path, std::string_view text, Worth worth) {
  Replacement replacement = BeginReplacement(path, text, worth);
  const std::string problem =
      replacement.problem.empty() ? FinishReplacement(replacement) : replacement.problem;
  if (!problem.empty()) {
    return Fail(path, problem);
  }
  FileWritten(path, text.size());
  return true;
}

void DeleteNow(const fs::path& path) {
  std::error_code failed;
  const std::string problem = WhyNotWritable(path);
  if (!problem.empty()) {
    Fail(path, problem);
  } else if (!fs::remove(path, failed) && failed) {
    Fail(path, failed.message());
  }
}

/// What can be told before anything has changed, a full disk above all, goes wrong here.
bool PrepareAll(const std::vector<HeldChange>& changes, std::vector<Replacement>& prepared) {
  for (const HeldChange& change : changes) {
    prepared.push_back(change.text ? BeginReplacement(change.path, *change.text, change.worth)
                                   : Replacement{change.path, {}, WhyNotWritable(change.path)});
    if (!prepared.back().problem.empty()) {
      return Fail(change.path, prepared.back().problem);
    }
  }
  return true;
}

bool FinishAll(const std::vector<HeldChange>& changes, std::vector<Replacement>& prepared) {
  bool all = true;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    const HeldChange& change = changes[i];
    std::error_code failed;
    if (!change.text) {
      fs::remove(change.path, failed);
      all = (!failed || Fail(change.path, failed.message())) && all;
      continue;
    }
    const std::string problem = FinishReplacement(prepared[i]);
    if (problem.empty()) {
      FileWritten(change.path, change.text->size());
    } else {
      all = Fail(change.path, problem + "; other files may be replaced already");
    }
  }
  return all;
}

/// Ends the holding back and gives what was held.
std::vector<HeldChange> TakeHeld() {
  std::vector<HeldChange> changes;
  if (held) {
    changes = held->All();
  }
  held.reset();
  return changes;
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

fs::path FindFile(std::string_view name) {
  return FindIn(WorkingFolder() / fs::path(name));
}

fs::path FindShippedFile(std::string_view name) {
  const fs::path found = FindFile(name);
  return found.empty() && !data_folder.empty() ? FindIn(data_folder / fs::path(name)) : found;
}

std::optional<std::string> ReadTextFile(const fs::path& path) {
  if (path.empty()) {
    return std::nullopt;
  }
  if (const HeldChange* change = held ? held->Find(path) : nullptr) {
    return change->text;
  }
  std::error_code failed;
  if (fs::is_directory(path, failed)) {
    Fail(path, "is a folder");
    return std::nullopt;
  }
  return ReadAll(path);
}

std::string ReadOrEmpty(std::string_view name) {
  return ReadTextFile(FindFile(name)).value_or(std::string());
}

bool WriteTextFile(std::string_view name, std::string_view text, Worth worth) {
  const fs::path existing = FindFile(name);
  const fs::path path = existing.empty() ? WorkingFolder() / fs::path(name) : existing;
  if (IsKept(path)) {
    return false;
  }
  if (held) {
    held->Hold(path, std::string(text), worth);
    return true;
  }
  return WriteNow(path, text, worth);
}

bool CopyTextFile(std::string_view from, std::string_view to, Worth worth) {
  const fs::path source = FindFile(from);
  const fs::path target = FindFile(to);
  std::error_code failed;
  if (source.empty() || source == target || (!target.empty() && fs::equivalent(source, target, failed))) {
    return false;
  }
  const std::optional<std::string> text = ReadTextFile(source);
  return text && WriteTextFile(to, *text, worth);
}

void DeleteFile(std::string_view name) {
  const fs::path path = FindFile(name);
  if (path.empty() || IsKept(path)) {
    return;
  }
  if (held) {
    held->Hold(path, std::nullopt, Worth::MakingAgain);
  } else {
    DeleteNow(path);
  }
}

void DeleteFiles(std::string_view beginning, std::string_view ending) {
  for (const fs::path& file : held ? held->FilesOf(WorkingFolder()) : FilesOnDisk(WorkingFolder())) {
    const std::string name = LowerCase(file.filename().string());
    if (name.size() >= beginning.size() + ending.size() && name.starts_with(beginning) &&
        name.ends_with(ending)) {
      DeleteFile(file.string());
    }
  }
}

void KeepAsItIs(const fs::path& path) {
  kept_file = path;
}

bool HoldBackChanges() {
  if (held) {
    return false;
  }
  held.emplace();
  return true;
}

void WriteChanges() {
  for (const HeldChange& change : TakeHeld()) {
    if (change.text) {
      WriteNow(change.path, *change.text, change.worth);
    } else {
      DeleteNow(change.path);
    }
  }
}

bool CommitChanges() {
  const std::vector<HeldChange> changes = TakeHeld();
  std::vector<Replacement> prepared;
  const bool done = PrepareAll(changes, prepared) && FinishAll(changes, prepared);
  if (!done) {
    std::for_each(prepared.begin(), prepared.end(), CancelReplacement);
  }
  return done;
}

void DropChanges() {
  held.reset();
}
