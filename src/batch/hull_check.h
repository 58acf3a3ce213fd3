#pragma once
// Looks at a hull file's text before it is opened. The windows open anything quietly; a person at a
// prompt is told what is wrong with a file, and in which line.

#include <string>
#include <string_view>

struct HullCheck {
  int line = 0;         ///< the line that the message is about, from 1
  std::string error;    ///< why the file is refused; empty if it isn't
  std::string warning;  ///< what is odd about a file that can be read
};

/// Refuses a count of chines that is not a whole number from 2 to 30, offsets that are missing, and
/// texts, or sizes beyond any boat, where numbers must be. Warns of a file that ends behind its
/// offsets but before its last field; one that ends right behind them is a sound file of the older
/// kind.
HullCheck CheckHull(std::string_view text);
