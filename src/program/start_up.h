#pragma once
// The start of the program, as far as it needs no window.

/// Every control is as in a fresh program and every slot has its handler, no figure is chosen, and the
/// lists of files show the working folder. From now on a file that grows too large is a failed write and
/// not the end of the program. A face fills its own slots after this.
void ResetProgram();

/// Puts the tables into their start state: the built-in hull with four chines, no results, no zoom.
void SetStartState();

/// A program without a window: both of the above, the plot scale of the working folder, and the
/// built-in hull recomputed. No hull file is read.
void StartProgram();
