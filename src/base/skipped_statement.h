#pragma once
// The rule of the skipped statement, in its one home.
//
// A statement that fails (a division by zero, a negative root, an overflow, an index outside of a
// table) is skipped: its target keeps its value, nothing is reported, the next statement runs.
// A failing calculation yields "no value", and what stores results leaves its target alone then.
// So a line of code reads like its formula, and the rule holds by construction.

#include <cmath>
#include <limits>

/// What a failed read or calculation yields. It spreads through further arithmetic by itself.
inline constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();

/// False for "no value" and for what a division by zero or an overflow leaves.
inline bool HasValue(double value) {
  return std::isfinite(value);
}

/// target = value, unless the value failed to come about; then the target keeps what it had.
inline void Store(double& target, double value) {
  if (HasValue(value)) {
    target = value;
  }
}

/// The same for a single precision target: the value is rounded to single precision.
inline void Store(float& target, double value) {
  const float rounded = static_cast<float>(value);
  if (std::isfinite(rounded)) {
    target = rounded;
  }
}

/// a / b with "no value" for a zero b. Needed only where a plain quotient goes on into a function
/// that would make an infinite argument finite again, such as the arc tangent.
inline double Quotient(double a, double b) {
  return b == 0 ? NoValue : a / b;
}
