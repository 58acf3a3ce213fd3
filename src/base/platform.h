#pragma once
// What differs from one operating system to the next, and nothing else.

#include <filesystem>

/// Parts the folders of a path; both kinds are accepted in what the user types.
#ifdef _WIN32
inline constexpr char PathSeparator = '\\';
#else
inline constexpr char PathSeparator = '/';
#endif

/// The folder that the running program lies in; empty if the system doesn't tell.
std::filesystem::path ProgramFolder();

/// The calibration file that serves all working folders: "c:\qvxp.dat", or where there are no
/// drives "qvxp.dat" in the user's own configuration folder.
std::filesystem::path SharedCalibrationFile();

/// Whether a person reads the standard error stream as it comes.
bool StandardErrorIsTerminal();
