#pragma once
// One file replaced by another so that it is never half written: the new text is written beside the
// old file and moved over it when complete. For base/files alone; everybody else asks that.
//
// The new text waits in "NAME.tarve-new1", with a number that no other file has. A run that is killed
// leaves that file behind, so the first replacement in a folder takes away those of ten minutes ago
// and more. Their names are the program's own; no other file is touched.

#include <filesystem>
#include <string>
#include <string_view>

#include "base/files.h"

/// Why the file at a path may not be written to or deleted; empty if it may, or if there is none.
/// A file that was made read-only stays as it is for every user, also for one with all rights and
/// where the folder would allow to replace it.
std::string WhyNotWritable(const std::filesystem::path& path);

/// A new text on its way to a file.
struct Replacement {
  std::filesystem::path target;
  std::filesystem::path beside;  ///< holds the text until FinishReplacement; empty for a device
  std::string problem;           ///< why it can't be done; nothing has changed then
};

/// Writes the text beside its target. A device takes it as it comes.
Replacement BeginReplacement(const std::filesystem::path& path, std::string_view text, Worth worth);

/// Moves the text over its target; why it could not be done otherwise. Nothing is beside it after.
std::string FinishReplacement(Replacement& replacement);

/// Takes the text beside the target away again.
void CancelReplacement(const Replacement& replacement);
