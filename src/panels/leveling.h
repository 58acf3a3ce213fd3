#pragma once
// Turns each developed panel so that its long direction lies along X, as it is laid on a sheet.

#include <string>
#include <string_view>

/// The slope of the least-squares line through all coordinate lines of a pattern; "no value" if
/// they share one X. Every line counts: ticks, lettering, samples and repeated knots alike.
double FittedSlope(std::string_view pattern);

/// The pattern turned about the origin by -arctan(slope). Coordinates are rounded here, not floored
/// as everywhere else, which is wanted; all other lines come through as they are.
std::string LeveledPattern(std::string_view pattern, double slope);

/// Levels the developed panels in place by way of the scratch file "temp", which stays. A panel
/// without a slope of its own takes that of the panel before, the first one 0; a missing panel is
/// passed over.
void LevelPatterns();
