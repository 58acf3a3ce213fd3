#include "batch/hull_check.h"

#include <cmath>

#include "base/number_text.h"
#include "base/text_lines.h"
#include "hull/hull_file.h"
#include "hull/hull_model.h"

namespace {

/// A run of lines of one kind.
struct Section {
  const char* name;
  int lines;
  bool numbers;
  bool may_be_empty;
};

/// A number as large as this is a fault of the file, and formulas on it would overflow.
constexpr double BeyondAnyBoat = 1e9;

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t") == std::string_view::npos;
}

bool IsNumber(std::string_view text) {
  const std::size_t length = NumericLength(text);
  return length > 0 && IsBlank(text.substr(length)) && std::abs(NumberOf(text)) <= BeyondAnyBoat;
}

/// A line as a message can show it: short, and printable whatever the file holds.
std::string Quoted(std::string_view line) {
  constexpr std::size_t most = 40;
  std::string shown = "\"";
  for (const char c : line.substr(0, most)) {
    shown += c < ' ' || c == '\x7f' ? '?' : c;
  }
  return shown + (line.size() > most ? "...\"" : "\"");
}

class Checker {
 public:
  explicit Checker(std::string_view text) : in_(text) {}

  HullCheck Run() {
    const int chines = CheckCount();
    const int hull_points = 3 * Stations * chines;
    const Section sections[] = {
        {"offset", 3 * Bulkheads * chines, true, false},
        {"auto-spline mark", 1, true, true},
        {"hull point", hull_points, true, true},
        {"frame", FrameCount, true, true},
        {"rig box", 7, false, true},
        {"mast step", 2, false, true},
        {"info text", 5, false, true},
        {"ballast", 4, true, true},
    };
    bool past_offsets = false;
    for (const Section& section : sections) {
      if (result_.error.empty() && result_.warning.empty() && !done_) {
        CheckSection(section, past_offsets);
      }
      past_offsets = true;
    }
    return result_;
  }

 private:
  int CheckCount() {
    std::string_view line;
    result_.line = 1;
    in_.ReadLine(line);
    const double count = NumberOf(line);
    if (!IsNumber(line) || count != std::floor(count) || count < 2 || count > MostChines) {
      result_.error = "expected the number of chines, a whole number from 2 to 30, found " + Quoted(line);
      return 2;
    }
    return static_cast<int>(count);
  }

  void CheckSection(const Section& section, bool past_offsets) {
    for (int i = 0; i < section.lines && result_.error.empty(); ++i) {
      std::string_view line;
      if (!in_.ReadLine(line)) {
        ReportEnd(section, i, past_offsets);
        return;
      }
      ++result_.line;
      const bool fits = !section.numbers || IsNumber(line) || (section.may_be_empty && IsBlank(line));
      if (!fits) {
        result_.error = std::string("expected a number (") + section.name + "), found " + Quoted(line);
      }
    }
  }

  void ReportEnd(const Section& section, int found, bool past_offsets) {
    done_ = true;
    const std::string missing = std::string("the file ends here, ahead of ") + section.name + " line " +
                                std::to_string(found + 1) + " of " + std::to_string(section.lines);
    const std::string_view name = section.name;
    if (!past_offsets) {
      result_.error = missing;
    } else if (name == "hull point" && found == 0) {
      result_.warning =
          "the file ends here, behind its auto-spline mark; it is read as one of the older kind";
    } else if (name != "auto-spline mark") {
      result_.warning = missing + "; what is missing is read as 0 or empty";
    }
  }

  TextReader in_;
  HullCheck result_;
  bool done_ = false;
};

}  // namespace

HullCheck CheckHull(std::string_view text) {
  return Checker(WithPoints(text)).Run();
}
