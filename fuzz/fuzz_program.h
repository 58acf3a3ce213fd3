#pragma once
// What all fuzz targets share: a fresh program for each input, whose files stay in memory, and the
// promises that several readers keep.

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "base/files.h"
#include "base/text_lines.h"
#include "panels/pattern_file.h"
#include "program/start_up.h"

/// A promise of the program; a broken one is a finding.
inline void Expect(bool holds) {
  if (!holds) {
    std::abort();
  }
}

/// A program as it is right after its start, in an empty working folder. What it writes is held back in
/// memory, where it reads it again, and is forgotten at the end of the input.
class FuzzProgram {
 public:
  FuzzProgram() {
    static const bool prepared = Prepare();
    Expect(prepared && HoldBackChanges());
    StartProgram();
  }
  ~FuzzProgram() { DropChanges(); }
  FuzzProgram(const FuzzProgram&) = delete;
  FuzzProgram& operator=(const FuzzProgram&) = delete;

 private:
  /// The working folder is one that isn't there, so that nothing on disk can reach an input and no
  /// input the disk.
  static bool Prepare() {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "tarve-fuzz" / "none";
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    SetWorkingFolder(folder);
    FixClock("11-16-2026", "12:34:56");
    return !std::filesystem::exists(folder);
  }
};

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Whether a text is a coordinate as writers put it: an optional "-" and digits.
inline bool IsWhole(std::string_view text) {
  const std::string_view digits = text.starts_with('-') ? text.substr(1) : text;
  return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Every line of a pattern that the program wrote by itself is one that readers know.
inline void ExpectPattern(std::string_view pattern) {
  TextReader in(pattern);
  std::string_view line;
  while (in.ReadLine(line)) {
    if (line.ends_with(" acut")) {
      const MoveFields fields = SplitMove(line);
      Expect(IsWhole(fields.x) && IsWhole(fields.y) && fields.rest == " acut");
    } else {
      const bool comment = line.starts_with("/* ") && line.ends_with(" */");
      const bool pen = line == "0 penup" || line == "0 pendown" || line == "1 penup" || line == "1 pendown";
      Expect(comment || pen || line == "start_plot" || line == "end_plot");
    }
  }
}
