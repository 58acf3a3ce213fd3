#pragma once
// The folders of a run, with the sample hulls and some damaged ones; and the watch that no file is
// written anywhere but in the working folder, the export path and the folders that the user named.

#include <string>

#include "monkey/stream.h"

/// New folders, and the program's working folder among them.
void MakeSandbox(Stream& stream);
void RemoveSandbox();

/// The folders that a user may choose, with absolute paths. They all lie in the sandbox.
std::string SomeFolder(Stream& stream);
/// An export path, typed in one of several ways.
std::string SomeExportPath(Stream& stream);
/// Stands for the only drive.
std::string SandboxDrive();

/// The user named a file of "nest.txt"'s kind: it may be written where it says.
void AllowFolderOf(const std::string& file);

/// Somebody else puts a file of the program into the working folder, a damaged or an odd one, or takes
/// one away, or makes the hull of the last session read-only.
void MeddleWithFiles(Stream& stream);

/// All files that may be written may be written again.
void AllowWriting();

/// Notes a fault for a folder or a left-over file that nobody should have made.
void CheckFolders();

/// Letter case aside, like the program: somebody may have saved "DEFAULT.TVH".
std::string ReadWorkingFile(const std::string& name);
