#pragma once
// What differs from one operating system to the next, and nothing else.

#include <cstdio>
#include <filesystem>
#include <string>

/// Parts the folders of a path; both kinds are accepted in what the user types.
#ifdef _WIN32
inline constexpr char PathSeparator = '\\';
#else
inline constexpr char PathSeparator = '/';
#endif

/// A path that the user typed, with the separators of this system.
std::string WithOwnSeparators(std::string path);

/// The folder that the running program lies in; empty if the system doesn't tell.
std::filesystem::path ProgramFolder();

/// The calibration file that serves all working folders: "c:\qvxp.dat", or where there are no
/// drives "qvxp.dat" in the user's own configuration folder.
std::filesystem::path SharedCalibrationFile();

/// Lets a write beyond the limit for file sizes fail instead of ending the program.
void SurviveFileSizeLimit();

/// Waits until what was written to the file has reached the disk. False, with errno set, if it can't.
bool FlushToDisk(std::FILE* file);

/// Whether a person reads the standard error stream as it comes.
bool StandardErrorIsTerminal();
