#pragma once
// Text files by name: where they are looked for, and reading, replacing, copying and deleting them
// so that nothing is ever half written.
//
// Names are relative to the working folder unless they are whole paths, and letter case doesn't
// count when a file is looked for. Files are read and written whole. A failure leaves the file as it
// was and is told to FileFailed only: the windows leave that slot empty, the command line program
// reports from it.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/event.h"

/// Where working files are: the folder in which the program was started, unless set otherwise.
const std::filesystem::path& WorkingFolder();
void SetWorkingFolder(const std::filesystem::path& folder);

/// Where files that ship with the program are looked for when the working folder has none.
void SetDataFolder(const std::filesystem::path& folder);
/// The data folder of an installed program, or else of the source tree that it was built from.
std::filesystem::path ShippedDataFolder();

/// An existing file of this name, letter case aside; empty if there is none.
std::filesystem::path FindFile(std::string_view name);
/// The same, first in the working folder and then in the data folder.
std::filesystem::path FindShippedFile(std::string_view name);

/// The bytes of a file, or nothing if it is missing, can't be read, or is larger than any file of
/// this system can grow to.
std::optional<std::string> ReadTextFile(const std::filesystem::path& path);
/// The bytes of a working file, or an empty text: what a stage makes of a missing file.
std::string ReadOrEmpty(std::string_view name);

/// What a file is worth when the power goes. A hull is somebody's work: it is written through to the disk
/// before it takes the place of the old one, so that one of the two is there afterwards. Patterns, tables
/// and exports are made again in a moment, and a run writes up to a hundred of them; waiting for the
/// disk each time would take longer than all the rest.
enum class Worth { MakingAgain, Keeping };

/// Creates or replaces a file. A file that can't be written to stays as it is. False if the file
/// was not written.
bool WriteTextFile(std::string_view name, std::string_view text, Worth worth = Worth::MakingAgain);

/// Copies a file's bytes over another; copying a file over itself, or a missing file, does nothing.
bool CopyTextFile(std::string_view from, std::string_view to, Worth worth = Worth::MakingAgain);

/// Deletes a working file if it is there. A file that can't be written to stays.
void DeleteFile(std::string_view name);
/// Deletes the working files whose names begin and end so, letter case aside. Folders stay.
void DeleteFiles(std::string_view beginning, std::string_view ending);

/// From now on this file is neither written to nor deleted; an empty path lifts that.
void KeepAsItIs(const std::filesystem::path& path);

/// From now on writes and deletes are held back in memory: what follows reads them as if they had
/// been done, but nothing on disk changes. False, and nothing new, if they are held back already.
bool HoldBackChanges();
/// Does what was held back, each file by itself: one that fails doesn't stop the others.
void WriteChanges();
/// Does what was held back together: every text is written beside its target first, and only when all
/// of them are there the old files go and the new ones take their names. False, with the reason
/// told, if something failed. What a full disk or a file that can't be written to makes fail is
/// found before anything has changed; each file is whole at any moment, but a run that is killed
/// while the names change leaves some of the old files and some of the new ones.
bool CommitChanges();
/// Forgets all that was held back.
void DropChanges();

/// Raised for each file that was written whole.
extern Event<const std::filesystem::path&, std::size_t> FileWritten;
/// Raised for each file that exists but can't be read, or can't be written: the path and why.
extern Event<const std::filesystem::path&, const std::string&> FileFailed;
