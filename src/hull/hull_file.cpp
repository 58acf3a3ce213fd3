#include "hull/hull_file.h"

#include <algorithm>
#include <optional>

#include "base/files.h"
#include "base/number_text.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"

namespace {

/// Reads a number into its target; what is missing, or too large, leaves the target as it was.
template <class Target>
void ReadNumber(TextReader& in, Target&& target) {
  std::string_view item;
  if (in.ReadItem(item)) {
    const double number = NumberOf(item);
    if (HasValue(number)) {
      target = number;
    }
  }
}

/// The count of chines that the file announces: at least 2, whatever it says.
int ReadChineCount(TextReader& in) {
  double announced = NumChines;
  ReadNumber(in, announced);
  announced = std::clamp(RoundHalfEven(announced), 2.0, 1e9);
  NumChines = static_cast<int>(std::min<double>(announced, MostChines));
  return static_cast<int>(announced);
}

void ReadOffsets(TextReader& in, int announced) {
  for (int k = 0; k < Bulkheads; ++k) {
    for (int c = 1; c <= announced && (c <= NumChines || !in.AtEnd()); ++c) {
      ReadNumber(in, OffX(c, k));
      ReadNumber(in, OffY(c, k));
      ReadNumber(in, OffZ(c, k));
      if (c == 1) {
        Form1.Text1[static_cast<std::size_t>(k)].Text = PlainText(OffZ(1, k));
      }
    }
  }
}

/// The item that the fields behind field 3 are read into. At the end of the file it keeps what it
/// held, and so the values that it was not cleared for repeat the last item read.
struct ItemCell {
  TextReader& in;
  std::string_view item;

  double Next() {
    in.ReadItem(item);
    return NumberOf(item);
  }
  double NextCleared() {
    item = {};
    return Next();
  }
  std::string_view NextLine() {
    item = {};
    in.ReadLine(item);
    return item;
  }
};

void ReadHullPoints(ItemCell& cell, int announced) {
  for (int s = 1; s <= Stations; ++s) {
    for (int c = 1; c <= announced && (c <= NumChines || !cell.in.AtEnd()); ++c) {
      HullPts(1, s, c) = cell.Next();
      HullPts(2, s, c) = cell.Next();
      HullPts(3, s, c) = cell.NextCleared();
    }
  }
}

void ReadFrames(ItemCell& cell, HullReader reader) {
  for (FramePlace& place : FrameZ) {
    const double number = cell.NextCleared();
    if (reader == HullReader::FileList) {
      place = std::string(cell.item);
    } else if (HasValue(number)) {
      place = number;
    }
  }
}

void ReadRig(ItemCell& cell) {
  for (TextBox* box : RigBoxes()) {
    const double number = cell.NextCleared();
    if (HasValue(number)) {
      box->Text = PlainText(number);
    }
  }
  // The writer's words "True" and "False" both have the number 0, so the choice of the step does
  // not survive a save: the rig stands on the keel again.
  for (OptionButton* option : {&Form4.Option1, &Form4.Option2}) {
    const double number = cell.NextCleared();
    if (HasValue(number)) {
      option->Value = number != 0;
    }
  }
}

void ReadInfo(ItemCell& cell, HullReader reader) {
  for (std::string* text : {&HullDesigner, &HullInfo, &HullContact, &HullDate, &NestMark}) {
    *text = cell.NextLine();
  }
  if (reader == HullReader::FileList) {
    Form4.Label4.Caption = HullDesigner;
    Form4.Label11.Caption = HullInfo;
  }
}

void ReadBallast(ItemCell& cell, HullReader reader) {
  for (double* number : {&BallastWeight, &BallastStation, &BallastHeight, &HullFileSpare}) {
    Store(*number, reader == HullReader::StartUp ? NumberOf(cell.NextLine()) : cell.NextCleared());
  }
  Form4.Text11.Text = PlainText(BallastWeight);
  Form4.Text12.Text = PlainText(BallastStation);
  Form4.Text13.Text = PlainText(BallastHeight);
}

/// Fields 1 to 23 in their order.
void ReadFields(TextReader& in, HullReader reader) {
  const int announced = ReadChineCount(in);
  ReadOffsets(in, announced);
  double auto_spline = 0;
  ReadNumber(in, auto_spline);
  if (in.AtEnd()) {  // an older file: the hull points come from the spline
    Form1.AutoSpline.Checked = true;
    return;
  }
  Form1.AutoSpline.Checked = auto_spline != 0;
  ItemCell cell{in, {}};
  ReadHullPoints(cell, announced);
  ReadFrames(cell, reader);
  ReadRig(cell);
  ReadInfo(cell, reader);
  ReadBallast(cell, reader);
}

void PutNumber(std::string& out, double value) {
  AppendPrintText(out, value);
  out += LineEnd;
}

void PutOffsets(std::string& out) {
  for (int k = 0; k < Bulkheads; ++k) {
    for (int c = 1; c <= NumChines; ++c) {
      PutNumber(out, OffX(c, k));
      PutNumber(out, OffY(c, k));
      PutNumber(out, OffZ(c, k));
    }
  }
}

void PutHullPoints(std::string& out) {
  const bool heeled = UprightPts && !Form1.AutoSpline.Checked;
  const PointTable& points = heeled ? *UprightPts : HullPts;
  for (int s = 1; s <= Stations; ++s) {
    for (int c = 1; c <= NumChines; ++c) {
      for (int coordinate = 1; coordinate <= 3; ++coordinate) {
        PutNumber(out, points(coordinate, s, c));
      }
    }
  }
}

void PutForm4(std::string& out) {
  for (const TextBox* box : RigBoxes()) {
    PutLine(out, *box->Text);
  }
  for (const OptionButton* option : {&Form4.Option1, &Form4.Option2}) {
    PutLine(out, option->Value ? "True" : "False");
  }
}

}  // namespace

std::array<TextBox*, 7> RigBoxes() {
  return {&Form4.Text2, &Form4.Text4, &Form4.Text10, &Form4.Text5, &Form4.Text6, &Form4.Text7, &Form4.Text9};
}

std::string WithPoints(std::string_view text) {
  std::string changed(text);
  std::replace(changed.begin(), changed.end(), ',', '.');
  return changed;
}

void NormalizeHullFile(std::string_view path) {
  const std::optional<std::string> text = ReadTextFile(FindFile(path));
  if (text) {
    const std::string changed = WithPoints(*text);
    WriteTextFile("temp.txt", changed);
    WriteTextFile(path, changed, Worth::Keeping);
  }
}

void LoadHullFile(std::string_view path, HullReader reader) {
  LoadHull(ReadOrEmpty(path), reader);
}

void LoadHull(std::string_view text, HullReader reader) {
  if (reader == HullReader::FileList) {
    EraseHull();
  }
  RestoreUprightHull();
  TextReader in(text);
  ReadFields(in, reader);
  Form1.VScroll1.SetValue(NumChines);
  Form1.StatusBar1.Panels[1] = "Working on..." + HullFileName;
  if (reader == HullReader::FileList) {
    Form1.Refresh();
  }
}

void WriteHullFile(std::string_view path) {
  WriteTextFile(path, HullText(), Worth::Keeping);
}

std::string HullText() {
  std::string out;
  PutNumber(out, NumChines);
  PutOffsets(out);
  PutLine(out, Form1.AutoSpline.Checked ? "-1" : "0");
  PutHullPoints(out);
  for (int i = 0; i < FrameCount; ++i) {
    PutLine(out, FrameFileText(i));
  }
  PutForm4(out);
  for (const std::string* text : {&HullDesigner, &HullInfo, &HullContact, &HullDate, &NestMark}) {
    PutLine(out, *text);
  }
  for (const double number : {BallastWeight, BallastStation, BallastHeight, HullFileSpare}) {
    PutNumber(out, number);
  }
  return out;
}
