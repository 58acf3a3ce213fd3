#include "base/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

#include "base/file_replacement.h"
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

/// A change that is held back: the new text, or none for a file that is to be deleted.
struct HeldChange {
  fs::path path;
  std::optional<std::string> text;
};
bool holding_back = false;
std::vector<HeldChange> held;

bool Fail(const fs::path& path, const std::string& why) {
  FileFailed(path, why);
  return false;
}

HeldChange* FindHeld(const fs::path& path) {
  const auto found =
      std::find_if(held.begin(), held.end(), [&](const HeldChange& h) { return h.path == path; });
  return found == held.end() ? nullptr : &*found;
}

void Hold(const fs::path& path, std::optional<std::string> text) {
  if (HeldChange* change = FindHeld(path)) {
    change->text = std::move(text);
  } else {
    held.push_back({path, std::move(text)});
  }
}

/// Whether there is such a file, with what is held back taken as done.
bool Exists(const fs::path& path) {
  if (const HeldChange* change = FindHeld(path)) {
    return change->text.has_value();
  }
  std::error_code failed;
  return fs::exists(path, failed);
}

/// Calls take(path) for the files of a folder, with what is held back taken as done.
template <class Take>
void ForEachFile(const fs::path& folder, Take take) {
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
    std::error_code unknown;
    if (!entry->is_directory(unknown) && FindHeld(entry->path()) == nullptr) {
      take(entry->path());
    }
  }
  for (const HeldChange& change : held) {
    if (change.text && change.path.parent_path() == folder) {
      take(change.path);
    }
  }
}

fs::path FindIn(const fs::path& path) {
  if (Exists(path)) {
    return path;
  }
  const std::string wanted = LowerCase(path.filename().string());
  fs::path found;
  ForEachFile(path.parent_path(), [&](const fs::path& file) {
    if (found.empty() && LowerCase(file.filename().string()) == wanted) {
      found = file;
    }
  });
  return found;
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
  const std::size_t chunk = failed ? 65536 : std::min<std::uintmax_t>(size, MostBytes) + 1;
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

bool Remove(const fs::path& path) {
  std::error_code failed;
  return fs::remove(path, failed) || Fail(path, failed.message());
}

/// Everything that can go wrong goes wrong here, before anything has changed.
bool PrepareHeld(std::vector<Replacement>& prepared) {
  for (const HeldChange& change : held) {
    prepared.push_back(change.text ? BeginReplacement(change.path, *change.text)
                                   : Replacement{change.path, {}, WhyNotWritable(change.path)});
    if (!prepared.back().problem.empty()) {
      return Fail(change.path, prepared.back().problem);
    }
  }
  return true;
}

bool FinishHeld(const std::vector<Replacement>& prepared) {
  bool all = true;
  for (std::size_t i = 0; i < held.size(); ++i) {
    if (!held[i].text) {
      std::error_code failed;
      fs::remove(held[i].path, failed);
      continue;
    }
    const std::string problem = FinishReplacement(prepared[i]);
    if (problem.empty()) {
      FileWritten(held[i].path, held[i].text->size());
    } else {
      all = Fail(held[i].path, problem);
    }
  }
  return all;
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
  if (const HeldChange* change = FindHeld(path)) {
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

bool WriteTextFile(std::string_view name, std::string_view text) {
  const fs::path existing = FindFile(name);
  const fs::path path = existing.empty() ? WorkingFolder() / fs::path(name) : existing;
  if (IsKept(path)) {
    return false;
  }
  if (holding_back) {
    Hold(path, std::string(text));
    return true;
  }
  const Replacement replacement = BeginReplacement(path, text);
  const std::string problem =
      replacement.problem.empty() ? FinishReplacement(replacement) : replacement.problem;
  if (!problem.empty()) {
    return Fail(path, problem);
  }
  FileWritten(path, text.size());
  return true;
}

bool CopyTextFile(std::string_view from, std::string_view to) {
  const fs::path source = FindFile(from);
  const fs::path target = FindFile(to);
  std::error_code failed;
  if (source.empty() || source == target || (!target.empty() && fs::equivalent(source, target, failed))) {
    return false;
  }
  const std::optional<std::string> text = ReadTextFile(source);
  return text && WriteTextFile(to, *text);
}

void DeleteFile(std::string_view name) {
  const fs::path path = FindFile(name);
  if (path.empty() || IsKept(path)) {
    return;
  }
  if (holding_back) {
    Hold(path, std::nullopt);
    return;
  }
  const std::string problem = WhyNotWritable(path);
  if (!problem.empty()) {
    Fail(path, problem);
  } else {
    Remove(path);
  }
}

void DeleteFiles(std::string_view beginning, std::string_view ending) {
  std::vector<fs::path> matching;
  ForEachFile(WorkingFolder(), [&](const fs::path& file) {
    const std::string name = LowerCase(file.filename().string());
    if (name.size() >= beginning.size() + ending.size() && name.starts_with(beginning) &&
        name.ends_with(ending)) {
      matching.push_back(file);
    }
  });
  for (const fs::path& file : matching) {
    DeleteFile(file.string());
  }
}

void KeepAsItIs(const fs::path& path) {
  kept_file = path;
}

void HoldBackChanges() {
  holding_back = true;
}

void DropChanges() {
  holding_back = false;
  held.clear();
}

bool CommitChanges() {
  std::vector<Replacement> prepared;
  const bool done = PrepareHeld(prepared) && FinishHeld(prepared);
  if (!done) {
    std::for_each(prepared.begin(), prepared.end(), CancelReplacement);
  }
  DropChanges();
  return done;
}
