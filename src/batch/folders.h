#pragma once
// The folders that a command writes to.

#include <filesystem>
#include <string>

/// The whole path of a folder, without a separator at its end.
std::filesystem::path FolderPath(const std::string& name);

/// Makes a folder if it is missing. False, and a complaint, if it can't be made.
bool MakeFolder(const std::filesystem::path& folder);
