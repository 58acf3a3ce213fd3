#pragma once
// File changes that are held back in memory: what is to be written or deleted, and how the folders
// look with that done. For base/files alone.

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/files.h"

/// A change of one file: its new text, or none for a file that is to be deleted.
struct HeldChange {
  std::filesystem::path path;
  std::optional<std::string> text;
  Worth worth;
};

class HeldChanges {
 public:
  /// The changes in the order in which their files were first named.
  const std::vector<HeldChange>& All() const { return changes_; }

  /// The change of a file, or nullptr.
  const HeldChange* Find(const std::filesystem::path& path) const;

  void Hold(const std::filesystem::path& path, std::optional<std::string> text, Worth worth);

  /// The file of this name, letter case aside, with the changes taken as done; empty if there is
  /// none. A folder is read from disk once, at the first question about it.
  std::filesystem::path FindFile(const std::filesystem::path& path);

  /// The files of a folder with the changes taken as done.
  std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& folder);

 private:
  /// Names of one folder, by their lower-case form.
  using Names = std::multimap<std::string, std::string>;

  Names& NamesOf(const std::filesystem::path& folder);

  std::vector<HeldChange> changes_;
  std::unordered_map<std::string, std::size_t> places_;  // path to its place in changes_
  std::unordered_map<std::string, Names> folders_;
};

/// The files of a folder on disk.
std::vector<std::filesystem::path> FilesOnDisk(const std::filesystem::path& folder);
