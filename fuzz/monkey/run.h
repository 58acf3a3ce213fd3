#pragma once
// One run: a seed and a number of acts, from a fresh program to the hull read back by another.

#include <cstdint>

/// An act that takes longer than this hangs, as far as its user is concerned. Processor time.
inline constexpr double MostSecondsAnAct = 2;

struct RunOrder {
  std::uint64_t seed = 1;
  int acts = 1000;
  int tell_from = 0;  ///< acts from this number on are told as they happen; 0 for none
};

/// False, with the fault in the diary, if one was found.
bool Run(const RunOrder& order);

/// The slowest act of all runs so far.
struct SlowAct {
  double seconds = 0;  ///< processor time
  std::uint64_t seed = 0;
  int act = 0;
};
const SlowAct& SlowestAct();
