#pragma once
// Pattern files as HPGL plotter files, in plotter units of 1/1016 inch. Cutting pen 0 becomes
// plotter pen 3, marking pen 1 plotter pen 1.

#include <string>
#include <string_view>

/// The plotter file of a pattern, in the plot scale in force. A pen is chosen ahead of a coordinate
/// only; the file starts with "SP 1;" although pen 0 is current, so that a file that starts in
/// pen 0 has pen 1 selected until a line in pen 1 has come and gone.
std::string HpglOfPattern(std::string_view pattern);

/// Exports all parts of the run into ExportPath, and deletes old "chine*.plt" of the working folder.
void ExportHpgl();
