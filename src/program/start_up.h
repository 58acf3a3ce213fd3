#pragma once
// The start of the program, as far as it needs no window.

/// Every control is as in a fresh program, and every slot has its handler. A face fills its own
/// slots after this. From now on a file that grows too large is a failed write, not the end of the program.
void BindProgram();

/// Puts all tables into their start state: the built-in hull with four chines, no file, no figure.
void SetStartState();

/// A program without a window: both of the above, the plot scale of the working folder, and the
/// built-in hull recomputed. No hull file is read.
void StartProgram();
