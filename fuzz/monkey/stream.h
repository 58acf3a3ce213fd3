#pragma once
// The one source of chance of a run. The same seed gives the same numbers on every machine, so it uses
// none of the library's distributions.

#include <cstddef>
#include <cstdint>
#include <random>

class Stream {
 public:
  /// Of four seeds two are a usual user, one is careful, and one types nonsense half of the time.
  explicit Stream(std::uint64_t seed)
      : engine_(seed),
        oddness_(seed % 4 == 0   ? 2
                 : seed % 4 == 1 ? 60
                                 : 12) {}

  /// Whether something odd is done this time.
  bool IsOdd() { return OneIn(oddness_); }

  /// 0 to n - 1.
  int Below(int n) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(n)); }
  bool OneIn(int n) { return Below(n) == 0; }
  double Between(double low, double high) {
    return low + (high - low) * (static_cast<double>(engine_() >> 11) * 0x1p-53);
  }
  template <class List>
  const auto& Of(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
  }

 private:
  std::mt19937_64 engine_;
  int oddness_;
};
