// Any bytes as the calibration file: both scales are usable, and a coordinate that is written by them
// reads back to within one plot unit.

#include <cmath>

#include "base/skipped_statement.h"
#include "fuzz_program.h"
#include "hull/plot_scale.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  WriteTextFile("qv32.dat", TextOf(data, size));
  ReadPlotScale();
  Expect(HasValue(PlotXScale) && PlotXScale > 0);
  Expect(HasValue(PlotYScale) && PlotYScale > 0);
  std::string line;
  PutMove(line, 12.5, -0.75);
  ExpectPattern(line);
  if (!line.empty()) {
    const PlotPoint back = ReadMove(line);
    Expect(std::abs(back.x - 12.5) <= 1 / PlotXScale + 1e-9);
    Expect(std::abs(back.y + 0.75) <= 1 / PlotYScale + 1e-9);
  }
  return 0;
}
