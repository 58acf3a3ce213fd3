// Any bytes as the file of figures: thumbnails, choosing and turning of each end, and what is kept of
// a figure are numbers.

#include <algorithm>

#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "fuzz_program.h"
#include "hull/figures.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  WriteTextFile("persons.fig", TextOf(data, size));
  DrawFigureThumbnails();
  for (int index = 0; index < 9; ++index) {
    Form4_Picture2_Click(index);
    Expect(FigureIndex == index || FigureIndex == -1);
    Form4_Command5_Click();
    Form4_Command7_Click();
    Form1.Refresh();
    for (int i = 1; i <= std::min(FigureCount, MostFigurePoints); ++i) {
      Expect(HasValue(FigureX(i)) && HasValue(FigureY(i)));
    }
    Expect(HasValue(FigureOffsetX) && HasValue(FigureOffsetY));
  }
  return 0;
}
