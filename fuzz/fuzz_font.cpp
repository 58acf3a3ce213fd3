// Any bytes as the stroke font: lettering ends and is made of strokes in pen 1.

#include "fuzz_program.h"
#include "panels/lettering.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  WriteTextFile("pedit.fnt", TextOf(data, size));
  std::string strokes;
  PlotText(strokes, "BH1frm8", 0.375, 0, 0.25, -4);
  PlotText(strokes, "T", 0.25, 30, 1e6, 1e6);
  ExpectPattern(strokes);
  Expect(strokes.empty() || strokes.starts_with("1 penup\r\n"));
  return 0;
}
