#include "nest/nest_model.h"

#include <algorithm>
#include <cmath>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_case.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

int NestPartCount = 0;
NestPlaces NestPointCount;
NestOutlines NestX;
NestOutlines NestY;
NestOutlines NestCopyX;
NestOutlines NestCopyY;
NestPlaces NestPosX;
NestPlaces NestPosY;
NestPlaces NestCopyPosX;
NestPlaces NestCopyPosY;
NestPlaces NestShown;
NestPlaces NestCopyShown;
NestPlaces NestWidth;
NestPlaces NestHeight;
int NestCurrent = 0;
int NestCopySelected = 0;
double SheetHeight = 48;
double SheetLength = 96;
double SheetRowLength = 288;
double NestSnapX = NoValue;
double NestSnapY = NoValue;
bool NestSnapDrawn = false;

const std::array<NestInstance, 2> NestInstances = {{
    {"", NestX, NestY, NestPosX, NestPosY, NestShown},
    {"Copy of ", NestCopyX, NestCopyY, NestCopyPosX, NestCopyPosY, NestCopyShown},
}};

namespace {

std::string_view Trim(std::string_view text) {
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  text.remove_prefix(first);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool IsBanner(std::string_view line) {
  return LowerCase(line).find("uc") != std::string::npos;
}

/// The name of the hull file, of up to eight letters before its dot, and what follows in the title.
/// A title without one leaves the caption alone.
void TakeCaption(std::string_view title) {
  constexpr std::size_t letters = 8;
  const std::size_t dot = title.find('.');
  if (dot != std::string_view::npos && dot >= letters) {
    Form2.Caption = std::string(Trim(title.substr(dot - letters)));
  }
}

struct Extents {
  double max_x = -50000;
  double max_y = -50000;
  double min_x = 50000;
  double min_y = 50000;
};

/// One pass through a hand plotting table.
struct HandPlotWalk {
  TextReader in{{}};
  std::string_view line;
  /// The latest point: what a line can't tell stays as it was in the line before.
  double x = 0;
  double y = 0;
  int p = 0;  ///< the part, also beyond the tables
  Extents extents;
};

/// Y is as many characters long as X, however many it has: that is what the layout of the columns
/// was once, and stays.
void ReadPoint(HandPlotWalk& walk) {
  const std::size_t blank = walk.line.find(' ');
  if (blank == std::string_view::npos) {
    return;
  }
  Store(walk.x, NumberOf(Trim(walk.line.substr(0, blank))));
  Store(walk.y, NumberOf(Trim(Trim(walk.line.substr(blank)).substr(0, blank))));
}

void AddPoint(HandPlotWalk& walk) {
  NestPointCount(walk.p) += 1;
  const double count = NestPointCount(walk.p);
  const int k = count <= MostNestPoints ? static_cast<int>(count) : MostNestPoints + 1;
  for (const NestInstance& instance : NestInstances) {
    instance.x(walk.p, k) = walk.x;
    instance.y(walk.p, k) = walk.y;
  }
  Extents& extents = walk.extents;
  extents.max_x = std::max(extents.max_x, walk.x);
  extents.max_y = std::max(extents.max_y, walk.y);
  extents.min_x = std::min(extents.min_x, walk.x);
  extents.min_y = std::min(extents.min_y, walk.y);
}

void OpenPart(HandPlotWalk& walk) {
  ++walk.p;
  walk.extents = Extents{};
  if (walk.p > MostNestParts) {
    return;
  }
  NestPartCount = walk.p;
  Form2.List1.AddItem(std::string(Trim(walk.line.substr(0, walk.line.find(' ')))));
}

void ShiftOutlines(int p, double by_x, double by_y) {
  for (const NestInstance& instance : NestInstances) {
    for (int k = 1; k <= StoredPoints(p); ++k) {
      instance.x(p, k) -= by_x;
      instance.y(p, k) -= by_y;
    }
  }
}

void ClosePart(const HandPlotWalk& walk) {
  const int p = walk.p;
  const Extents& extents = walk.extents;
  NestWidth(p) = extents.max_x - extents.min_x;
  NestHeight(p) = extents.max_y - extents.min_y;
  if (NestPosX(p) == 0) {
    NestPosX(p) = NestWidth(p) / 2;
  }
  if (NestPosY(p) == 0) {
    NestPosY(p) = NestHeight(p) / 2;
  }
  ShiftOutlines(p, (extents.max_x + extents.min_x) / 2, (extents.max_y + extents.min_y) / 2);
}

/// From a banner to the line that closes its part. False at the end of the text, which closes none.
bool ReadPart(HandPlotWalk& walk) {
  OpenPart(walk);
  while (walk.in.ReadLine(walk.line)) {
    if (walk.line.empty() || IsBanner(walk.line)) {
      ClosePart(walk);
      return true;
    }
    ReadPoint(walk);
    AddPoint(walk);
  }
  return false;
}

bool FindFirstBanner(HandPlotWalk& walk) {
  while (walk.in.ReadLine(walk.line)) {
    if (IsBanner(walk.line)) {
      return true;
    }
  }
  return false;
}

/// Check1 follows NestMark here, not NestMark Check1: its text stays to the letter.
void TickWithoutMarking(bool tick) {
  const std::string mark = NestMark;
  Form2.Check1.Value = tick;
  NestMark = mark;
}

void PutControlsBack() {
  Form2.Caption = std::string("Pattern Nesting");
  Form2.Option1.Value = true;
  Form2.Text1.Text = std::string("48");
  Form2.Text2.Text = std::string("96");
  Form2.Command7.Caption = std::string("Wide View");
  Form2.Picture1.Left = SlidingPicture::LeftAtRest;
  Form2.Picture1.Width = SlidingPicture::WidestView;
  Form2.Check2.Value = false;
  TickWithoutMarking(false);
}

}  // namespace

int StoredPoints(int p) {
  const double count = NestPointCount(p);
  return HasValue(count) ? static_cast<int>(std::min<double>(count, MostNestPoints)) : 0;
}

std::string NestName(int p) {
  const auto& rows = Form2.List1.Rows();
  return p >= 1 && p <= static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(p - 1)] : std::string();
}

int SheetCount() {
  return Form2.Option3.Value ? 5 : Form2.Option2.Value ? 4 : 3;
}

void ReadSheets() {
  Store(SheetHeight, std::abs(NumberOf(*Form2.Text1.Text)));
  Store(SheetLength, std::abs(NumberOf(*Form2.Text2.Text)));
  Store(SheetRowLength, SheetLength * SheetCount());
}

int SheetAt(double x) {
  for (int n = 1; n <= MostSheets; ++n) {
    if (x <= n * SheetLength) {
      return n;
    }
  }
  return 0;
}

std::string InchesAndEighths(double inches, double eighths_of) {
  const double eighths = RoundHalfEven((eighths_of - std::floor(eighths_of)) / 0.125);
  return PlainText(std::floor(inches)) + "-" + PlainText(eighths);
}

void ForgetNest() {
  NestPartCount = 0;
  NestPointCount.Erase();
  NestWidth.Erase();
  NestHeight.Erase();
  for (const NestInstance& instance : NestInstances) {
    instance.x.Erase();
    instance.y.Erase();
    instance.pos_x.Erase();
    instance.pos_y.Erase();
    instance.shown.Erase();
  }
  NestCurrent = NestCopySelected = 0;
  NestSnapX = NestSnapY = NoValue;
  NestSnapDrawn = false;
  Form2.List1.Clear();
}

void ReadHandPlot(std::string_view text) {
  ForgetNest();
  HandPlotWalk walk;
  walk.in = TextReader(text);
  if (walk.in.ReadLine(walk.line)) {
    TakeCaption(walk.line);
  }
  bool more = FindFirstBanner(walk);
  while (more) {
    const bool closed = ReadPart(walk);
    HullMaxX = walk.extents.max_x;
    HullMaxY = walk.extents.max_y;
    more = closed && !walk.line.empty();
  }
}

void Form2_Load() {
  ForgetNest();
  Form2.Loaded = true;
  Form2.Move(Place::Centre);
  Form2.Visible = true;
  Form2.Option1.Value = true;
  Form2.Text1.Text = std::string("48");
  Form2.Text2.Text = std::string("96");
  SheetRowLength = 288;
  Form2.Picture1.Refresh();
  if (FindFile("handplot.txt").empty()) {
    Form2.Caption = std::string("No handplot.txt");
    return;
  }
  ReadHandPlot(ReadOrEmpty("handplot.txt"));
}

void Form2_Unload() {
  ForgetNest();
  PutControlsBack();
  ReadSheets();
  Form2.Visible = false;
  Form2.Loaded = false;
}

void dummy15_Click() {
  if (!Form2.Loaded) {
    Form2_Load();
  }
  Form2.Open();
  const double mark = RoundHalfEven(NumberOf(NestMark));
  if (mark >= 0 && mark <= 2) {  // what a check box can be; anything else leaves it as it is
    TickWithoutMarking(mark != 0);
  }
}

void Form2_Check1_Click() {
  NestMark = PrintText(Form2.Check1.Value ? 1 : 0);
}
