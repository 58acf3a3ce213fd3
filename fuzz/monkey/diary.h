#pragma once
// What was done, act by act in words, and the first fault that was found.

#include <string>

/// A new run; its acts from this number on are told as they happen.
void StartDiary(int tell_from);

/// The next act. Returns its number, counted from 1.
int StartAct();
/// How many acts there were so far.
int ActCount();
/// Adds to the words of the current act, ahead of what it does: the words are there if it ends badly.
void Tell(const std::string& words);
/// The latest acts, a line each.
std::string LatestActs();

/// Something is wrong. Only the first of a run counts.
void NoteFault(const std::string& what);
/// Empty as long as all is well.
const std::string& FirstFault();
