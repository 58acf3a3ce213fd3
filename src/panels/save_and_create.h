#pragma once
// The chain from the finished hull to things to build from, run by one click on Save.

/// With Form3's Check1 on: triangle files, flat parts, hull drawing, developed panels, leveling,
/// hand plotting table, and HPGL and DXF if asked for; then, in any case, the hull file and its copy
/// "default.tvh". Exports go to ExportPath, the hull drawing beside the hull file, all else to the
/// working folder. No stage stops the chain; progress is told in panel 1.
void SaveAndCreate();

/// The menu item "Clear old patterns": deletes the pattern files and the hand plotting table of the
/// working folder at once, with no question. Triangle files and exports stay.
void dummy21_Click();
