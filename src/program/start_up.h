#pragma once
// The start of the program, as far as it needs no window.

/// Puts all tables and controls into their state before any file is read: the built-in hull with
/// four chines, recomputed, every slot bound to its handler, and the plot scale.
void StartProgram();
