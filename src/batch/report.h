#pragma once
// What the command line program tells: errors and warnings on standard error, the files written on
// standard output.

#include <filesystem>
#include <string>

inline constexpr int Done = 0;
inline constexpr int CouldNot = 1;
inline constexpr int WrongUsage = 2;

/// "tarve-batch: message" on standard error; returns CouldNot.
int Complain(const std::string& message);

/// Keeps a list of the files that are written, and of those that fail, from now on.
void WatchFiles();

/// Shows panel 1 of the status bar on standard error as it changes, if a person watches.
void ShowProgress();
/// Takes the last progress line away.
void EndProgress();

/// Prints a line a file written, name and size, names relative to a folder they lie in.
void ListFiles(const std::filesystem::path& folder);

/// Complains about the files that failed, each once. True if there were any.
bool ComplainAboutFiles();
