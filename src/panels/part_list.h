#pragma once
// Which parts a run has, and in which order the stages take them.

#include <string>
#include <vector>

/// The panels across the centre line that are asked for and the chine panels, by base name, in the
/// order in which they are developed and leveled: "deck", "keel", "sole1", "sole2", "chine1", ...
std::vector<std::string> DevelopedPanels();

/// All parts of the hand plotting table, by base name: "stem" if asked for, "transom", the
/// bulkheads, the panels across the centre line, the frames, the chine panels.
std::vector<std::string> HandPlottedParts();

/// All exported parts: the same with the sheet outline "4x8" ahead of the chine panels.
std::vector<std::string> ExportedParts();
