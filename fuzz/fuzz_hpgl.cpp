// Any bytes as a pattern file on its way to HPGL: every line is a pen or a move of a plotter.

#include "base/number_text.h"
#include "fuzz_program.h"
#include "panels/hpgl_export.h"

namespace {

/// "PU  1016,  2032;"
void ExpectMove(std::string_view line) {
  Expect(line.starts_with("PU") || line.starts_with("PD"));
  const std::string_view numbers = line.substr(2);
  const std::size_t comma = numbers.find(", ");
  Expect(comma != std::string_view::npos && NumericLength(numbers) == comma);
  const std::string_view y = numbers.substr(comma + 2);
  Expect(NumericLength(y) + 1 == y.size() && y.back() == ';');
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  const std::string plot = HpglOfPattern(TextOf(data, size));
  Expect(plot.starts_with("SP 1;\r\n"));
  TextReader in(plot);
  std::string_view line;
  while (in.ReadLine(line)) {
    if (line != "SP 1;" && line != "SP 3;") {
      ExpectMove(line);
    }
  }
  return 0;
}
