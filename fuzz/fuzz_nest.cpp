// Any bytes as a hand plotting table: it is read by the nesting window, laid out, tidied, painted and
// written, and ends. The table that comes out has a line for no more points than the tables hold.

#include <algorithm>

#include "controls/forms.h"
#include "fuzz_program.h"
#include "nest/nest_model.h"
#include "nest/nest_pages.h"
#include "nest/nest_table.h"

namespace {

void LayOutEveryPart() {
  for (int row = 0; row < NestPartCount; ++row) {
    Form2.List1.SetListIndex(row);
    Form2.Command5.Click();
    Form2.Command3.Click();
  }
  Form2.Picture1.MouseUp(1, 0, 0);
  Form2.Picture1.MouseMove(0, 10, 10);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  WriteTextFile("handplot.txt", TextOf(data, size));
  ForgetNest();
  Form2_Load();
  Expect(NestPartCount >= 0 && NestPartCount <= MostNestParts);
  LayOutEveryPart();
  const std::string table = NestTableText();
  Expect(table.starts_with("Nested hand plotting file for ") && table.ends_with("\r\n"));
  constexpr auto most_lines = 2 * 2 * MostNestParts * (MostNestPoints + 3) + 20;
  Expect(std::count(table.begin(), table.end(), '\n') <= most_lines);
  DrawSurface paper;
  NestPages(NestFit::Print).paint(1, paper);
  return 0;
}
