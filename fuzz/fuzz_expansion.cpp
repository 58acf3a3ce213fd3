// Any bytes as a triangle file on its way through expansion and leveling: the pattern of the panel
// has its head, its outline and its end, and nothing but lines that readers know.

#include "controls/forms.h"
#include "fuzz_program.h"
#include "hull/hull_model.h"
#include "panels/expansion.h"
#include "panels/leveling.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  NumChines = 2;
  Form3.Check5.Value = size % 2 == 1;
  WriteTextFile("chine1.tri", TextOf(data, size));
  ExpandPanels();
  const std::string pattern = ReadOrEmpty("chine1.uc");
  Expect(pattern.starts_with("start_plot\r\n/* Hull Xscale: ") && pattern.ends_with("1 penup\r\n"));
  ExpectPattern(pattern);
  LevelPatterns();
  ExpectPattern(ReadOrEmpty("chine1.uc"));
  return 0;
}
