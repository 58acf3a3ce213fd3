#include "base/clock.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace {

std::string fixed_date;
std::string fixed_time;

std::tm LocalNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  return local;
}

std::string ThreeNumbers(const char* form, int first, int second, int third) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), form, first, second, third);
  return text.data();
}

}  // namespace

std::string DateText() {
  if (!fixed_date.empty()) {
    return fixed_date;
  }
  const std::tm now = LocalNow();
  return ThreeNumbers("%02d-%02d-%04d", now.tm_mon + 1, now.tm_mday, now.tm_year + 1900);
}

std::string TimeText() {
  if (!fixed_time.empty()) {
    return fixed_time;
  }
  const std::tm now = LocalNow();
  return ThreeNumbers("%02d:%02d:%02d", now.tm_hour, now.tm_min, now.tm_sec);
}

void FixClock(std::string_view date, std::string_view time) {
  fixed_date = date;
  fixed_time = time;
}
