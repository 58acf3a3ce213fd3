#include "base/held_changes.h"

#include <system_error>
#include <utility>

#include "base/text_case.h"

namespace fs = std::filesystem;

std::vector<fs::path> FilesOnDisk(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
    std::error_code unknown;
    if (!entry->is_directory(unknown)) {
      files.push_back(entry->path());
    }
  }
  return files;
}

const HeldChange* HeldChanges::Find(const fs::path& path) const {
  const auto place = places_.find(path.string());
  return place == places_.end() ? nullptr : &changes_[place->second];
}

void HeldChanges::Hold(const fs::path& path, std::optional<std::string> text, Worth worth) {
  const std::string name = path.filename().string();
  Names& names = NamesOf(path.parent_path());
  std::erase_if(names, [&name](const auto& known) { return known.second == name; });
  if (text) {
    names.emplace(LowerCase(name), name);
  }
  const auto [place, is_new] = places_.try_emplace(path.string(), changes_.size());
  if (is_new) {
    changes_.push_back({path, std::move(text), worth});
  } else {
    changes_[place->second].text = std::move(text);
    changes_[place->second].worth = worth;
  }
}

fs::path HeldChanges::FindFile(const fs::path& path) {
  const std::string name = path.filename().string();
  const auto [first, last] = NamesOf(path.parent_path()).equal_range(LowerCase(name));
  for (auto known = first; known != last; ++known) {
    if (known->second == name) {
      return path;
    }
  }
  return first == last ? fs::path() : path.parent_path() / first->second;
}

std::vector<fs::path> HeldChanges::FilesOf(const fs::path& folder) {
  std::vector<fs::path> files;
  for (const auto& [lower, name] : NamesOf(folder)) {
    files.push_back(folder / name);
  }
  return files;
}

HeldChanges::Names& HeldChanges::NamesOf(const fs::path& folder) {
  const auto [known, is_new] = folders_.try_emplace(folder.string());
  if (is_new) {
    for (const fs::path& file : FilesOnDisk(folder)) {
      const std::string name = file.filename().string();
      known->second.emplace(LowerCase(name), name);
    }
  }
  return known->second;
}
