#pragma once
// Letter case of file names, pattern lines and lettering: the letters of ASCII, whatever the locale.

#include <string>
#include <string_view>

inline std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return lower;
}
