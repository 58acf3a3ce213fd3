#pragma once
// The lists in which the user finds a file. They read the disk; what is chosen goes to the core.

#include <QComboBox>
#include <QListWidget>

#include "controls/file_lists.h"

/// The files of the folder that fit the pattern; a click, or Enter, chooses one.
void Face(FileListBox& control, QListWidget* widget);
/// The folder above and the folders inside; a double click, or Enter, goes there.
void Face(DirListBox& control, QListWidget* widget);
/// The places of the platform: drives where there are any, else root, home and mounted volumes.
void Face(DriveListBox& control, QComboBox* widget);
