#include "hull/figures.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

FigureTable FigureX;
FigureTable FigureY;
int FigureCount;
int FigureIndex;
double FigureOffsetX;
double FigureOffsetY;
double FigureWeight;

namespace {

bool Holds(std::string_view line, std::string_view word) {
  return line.find(word) != std::string_view::npos;
}

std::optional<std::string> FigureFile() {
  return ReadTextFile(FindShippedFile("persons.fig"));
}

/// Goes to the next figure of the file and takes its name. False at the end of the file.
bool FindFigure(TextReader& in, std::string_view& name) {
  std::string_view line;
  while (in.ReadLine(line)) {
    if (Holds(line, "start")) {
      name = {};
      in.ReadLine(name);
      return true;
    }
  }
  return false;
}

/// What a figure's inches are multiplied with, and then divided by.
struct Scaling {
  double times = 1;
  double over = 1;
};

/// A line without a blank has neither X nor Y: its point keeps what the table held.
void TakePoint(std::string_view line, const Scaling& scaling) {
  ++FigureCount;
  const std::size_t blank = line.find(' ');
  if (blank != std::string_view::npos) {
    FigureX(FigureCount) = NumberOf(line.substr(0, blank)) * scaling.times / scaling.over;
    FigureY(FigureCount) = NumberOf(line.substr(blank)) * scaling.times / scaling.over;
  }
  if (FigureX(FigureCount) > HullMaxX) {
    HullMaxX = FigureX(FigureCount);
  }
  if (FigureY(FigureCount) > HullMaxY) {
    HullMaxY = FigureY(FigureCount);
  }
}

/// The points of the figure whose name was read, with the largest ones in HullMaxX and HullMaxY.
void ReadFigure(TextReader& in, const Scaling& scaling) {
  FigureCount = 0;
  HullMaxX = HullMaxY = -100;
  std::string_view line;
  while (in.ReadLine(line) && !Holds(line, "end")) {
    TakePoint(line, scaling);
  }
}

void DrawThumbnail(DrawSurface& surface) {
  const double M = std::max(HullMaxX, HullMaxY);
  surface.Scale(-2, M + 2, M + 2, -2);
  for (int i = 1; i < std::min(FigureCount, MostFigurePoints); ++i) {
    surface.Line(FigureX(i), FigureY(i), FigureX(i + 1), FigureY(i + 1), Red);
  }
}

/// Reads up to the figure of this number, each name showing in the window's caption as it passes.
/// False if the file has fewer.
bool ReadFigureOf(int index, std::string_view text) {
  const Scaling scaling{NumberOf(*Form4.Text3.Text), DrawnHeight};
  TextReader in(text);
  std::string_view name;
  for (int i = 0; FindFigure(in, name); ++i) {
    Form4.Caption = std::string(name);
    ReadFigure(in, scaling);
    if (i == index) {
      return true;
    }
  }
  return false;
}

void CentreFigure() {
  for (int i = 1; i <= MostFigurePoints; ++i) {
    FigureX(i) -= HullMaxX / 2;
    FigureY(i) -= HullMaxY / 2;
  }
  FigureOffsetX = HullMaxX / 2;
  FigureOffsetY = HullMaxY / 2;
}

void Negate(FigureTable& table) {
  for (int i = 1; i <= MostFigurePoints; ++i) {
    table(i) *= -1;
  }
  Form1.Picture2.Refresh();
}

}  // namespace

void ResetFigures() {
  FigureX = {};
  FigureY = {};
  FigureCount = 0;
  FigureIndex = -1;
  FigureOffsetX = FigureOffsetY = 0;
  FigureWeight = 0;
}

void DrawFigureThumbnails() {
  const std::optional<std::string> text = FigureFile();
  if (!text) {
    return;
  }
  TextReader in(*text);
  std::string_view name;
  for (std::size_t i = 0; FindFigure(in, name); ++i) {
    ReadFigure(in, {});
    if (i < Form4.Picture2.size()) {
      DrawThumbnail(*Form4.Picture2[i]);
    }
  }
  Form4_Text8_Change();
}

void DropFigure() {
  FigureIndex = -1;
  Form4.Shape2.Visible = false;
}

void Form4_Picture2_Click(int index) {
  if (FigureIndex == index) {
    DropFigure();
    Form4.Caption = "Open";
    Form1.Picture2.Refresh();
    return;
  }
  Form4.Shape2.Index = index;
  Form4.Shape2.Visible = true;
  FigureIndex = -1;
  const std::optional<std::string> text = FigureFile();
  if (text && ReadFigureOf(index, *text)) {
    FigureIndex = index;
    CentreFigure();
  }
  Form1.Picture2.Refresh();
}

void Form4_Text3_Change() {
  DropFigure();
  Form1.Picture2.Refresh();
}

void Form4_VScroll2_Change() {
  Form4.Text3.Text = PlainText(Form4.VScroll2.Value());
}

void Form4_Text8_Change() {
  Store(FigureWeight, NumberOf(*Form4.Text8.Text));
}

void Form4_Command5_Click() {
  Negate(FigureX);
}

void Form4_Command6_Click() {
  Negate(FigureY);
}

void Form4_Command7_Click() {
  std::swap(FigureX, FigureY);
  Form1.Picture2.Refresh();
}
