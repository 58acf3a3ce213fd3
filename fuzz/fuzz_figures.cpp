// Any bytes as the file of figures: all are drawn, each number is chosen, mirrored, upended and swapped, and
// dropped again. The outline stays finite, and a figure is the selected one only if the file has it.

#include <array>

#include "controls/forms.h"
#include "fuzz_program.h"
#include "hull/figures.h"
#include "hull/hull_model.h"

namespace {

/// Draws nothing and counts the lines.
class Thumbnail : public DrawSurface {
 public:
  void Line(double, double, double, double, int) override { ++lines; }
  int lines = 0;
};

int FiguresIn(std::string_view text) {
  int figures = 0;
  bool inside = false;
  TextReader in(text);
  std::string_view line;
  while (in.ReadLine(line)) {
    if (inside) {
      inside = line.find("end") == std::string_view::npos;
    } else if (line.find("start") != std::string_view::npos) {
      ++figures;
      inside = true;
      in.ReadLine(line);  // the name
    }
  }
  return figures;
}

void ExpectOutline() {
  for (int i = 1; i <= MostFigurePoints; ++i) {
    Expect(HasValue(FigureX(i)) && HasValue(FigureY(i)));
  }
  Expect(HasValue(FigureOffsetX) && HasValue(FigureOffsetY));
}

void ExpectThumbnails(int figures) {
  static std::array<Thumbnail, 9> thumbnails;
  for (std::size_t i = 0; i < thumbnails.size(); ++i) {
    thumbnails[i].lines = 0;
    Form4.Picture2[i] = &thumbnails[i];
  }
  DrawFigureThumbnails();
  for (std::size_t i = 0; i < thumbnails.size(); ++i) {
    Expect(thumbnails[i].lines < MostFigurePoints);
    Expect(thumbnails[i].lines == 0 || static_cast<int>(i) < figures);
  }
}

/// Two of each turn bring every point back.
void ExpectTurnsUndone() {
  const double x = FigureX(1);
  const double y = FigureY(1);
  for (CommandButton* turn : {&Form4.Command5, &Form4.Command6, &Form4.Command7}) {
    turn->Click();
    ExpectOutline();
    turn->Click();
    Expect(FigureX(1) == x && FigureY(1) == y);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const FuzzProgram program;
  const std::string_view text = TextOf(data, size);
  const int figures = FiguresIn(text);
  WriteTextFile("persons.fig", text);
  ExpectThumbnails(figures);
  for (int index = 0; index < 10; ++index) {
    Form4_Picture2_Click(index);
    Expect(FigureIndex == (index < figures ? index : -1));
    ExpectOutline();
    ExpectTurnsUndone();
    if (FigureIndex == index) {
      Form4_Picture2_Click(index);
      Expect(FigureIndex == -1 && !Form4.Shape2.Visible);
    }
  }
  return 0;
}
