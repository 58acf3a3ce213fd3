#pragma once
// The start of the program, as far as it needs no window.

/// Puts all tables and controls into their start state, binds every slot to its handler, reads the
/// plot scale of the working folder, and recomputes the built-in hull with four chines.
void StartProgram();
