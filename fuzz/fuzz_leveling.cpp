// Any bytes as a pattern file on its way through leveling and into the table for marking out by hand:
// what is no coordinate line comes through as it is, in its order.

#include "controls/forms.h"
#include "fuzz_program.h"
#include "hull/hull_model.h"
#include "panels/hand_plot.h"
#include "panels/leveling.h"

namespace {

bool IsCoordinateLine(std::string_view line) {
  return Contains(line, "acut") || Contains(line, "aline") || Contains(line, "spline_pt");
}

/// Every other line of the pattern stands in the leveled one, too, and in the same order.
void ExpectOtherLinesKept(std::string_view pattern, std::string_view leveled) {
  TextReader in(pattern);
  TextReader out(leveled);
  std::string_view line;
  while (in.ReadLine(line)) {
    bool kept = IsCoordinateLine(line);
    for (std::string_view found; !kept && out.ReadLine(found);) {
      kept = found == line;
    }
    Expect(kept);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  const std::string_view pattern = TextOf(data, size);
  NumChines = 2;
  Form3.Check9.Value = true;
  WriteTextFile("deck.uc", pattern);
  WriteTextFile("chine1.uc", "0 0 acut\r\n");  // takes the slope of the panel before
  LevelPatterns();
  const std::string leveled = ReadOrEmpty("deck.uc");
  ExpectOtherLinesKept(pattern, leveled);
  Expect(ReadOrEmpty("chine1.uc") == "0 0 acut\r\n" || ReadOrEmpty("chine1.uc") == "-0 0 acut\r\n");
  WriteHandPlot();
  Expect(ReadOrEmpty("handplot.txt").ends_with(HandPlotRows(ReadOrEmpty("chine1.uc"))));
  return 0;
}
