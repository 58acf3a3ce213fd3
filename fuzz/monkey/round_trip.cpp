#include "monkey/round_trip.h"

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "hull/hull_file.h"
#include "monkey/diary.h"
#include "monkey/texts.h"

namespace {

/// A number as the file gives it back; `otherwise` for one that the file's digits round up beyond all
/// numbers.
double Reread(double number, double otherwise) {
  const double read = NumberOf(PrintText(number));
  return HasValue(read) ? read : otherwise;
}

void ExpectSame(const std::string& what, double written, double now) {
  if (Reread(written, now) != now) {
    NoteFault(what + " was written as" + PrintText(written) + "and is" + PrintText(now));
  }
}

void ExpectSame(const std::string& what, const std::string& written, const std::string& now) {
  if (WithPoints(written) != now) {
    NoteFault(what + " was written as " + Quoted(written) + " and is " + Quoted(now));
  }
}

std::string Cell(const char* table, int i, int j) {
  return std::string(table) + "(" + std::to_string(i) + ", " + std::to_string(j) + ")";
}

void CompareOffsets(const HullState& written) {
  for (int c = 1; c <= NumChines; ++c) {
    for (int k = 0; k < Bulkheads; ++k) {
      ExpectSame(Cell("OffX", c, k), written.x(c, k), OffX(c, k));
      ExpectSame(Cell("OffY", c, k), written.y(c, k), OffY(c, k));
      ExpectSame(Cell("OffZ", c, k), written.z(c, k), OffZ(c, k));
    }
  }
}

void ComparePoints(const HullState& written) {
  for (int c = 1; c <= NumChines; ++c) {
    for (int i = 1; i <= Stations; ++i) {
      for (int coordinate = 1; coordinate <= 3; ++coordinate) {
        ExpectSame("a hull point at" + Cell("", i, c), written.points(coordinate, i, c),
                   HullPts(coordinate, i, c));
      }
    }
    for (int k = 0; k < Bulkheads; ++k) {
      const int station = 3 * k + 1;
      const bool interior = k >= 1 && k <= 3;
      ExpectSame(Cell("OffX", c, k), written.points(1, station, c), OffX(c, k));
      ExpectSame(Cell("OffY", c, k), written.points(2, station, c), OffY(c, k));
      ExpectSame(Cell("OffZ", c, k), written.points(3, station, interior ? 1 : c), OffZ(c, k));
    }
  }
}

void CompareBoxes(const HullState& written) {
  for (int i = 0; i < FrameCount; ++i) {
    const double inches = NumberOf(WithPoints(written.frames[static_cast<std::size_t>(i)]));
    ExpectSame("frame " + std::to_string(i), HasValue(inches) ? inches : 0, FrameInches(i));
  }
  const auto boxes = RigBoxes();
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const double number = NumberOf(WithPoints(written.rig[i]));
    ExpectSame("rig box " + std::to_string(i), PlainText(number), *boxes[i]->Text);
  }
  if (Form4.Option1.Value || Form4.Option2.Value) {
    NoteFault("a step of the mast came back");
  }
}

void CompareTexts(const HullState& written) {
  const HullState now = TakeHullState();
  for (std::size_t i = 0; i < written.texts.size(); ++i) {
    ExpectSame("text " + std::to_string(i), written.texts[i], now.texts[i]);
  }
  for (std::size_t i = 0; i < written.ballast.size(); ++i) {
    ExpectSame("ballast " + std::to_string(i), written.ballast[i], now.ballast[i]);
  }
}

}  // namespace

HullState TakeHullState() {
  HullState state{NumChines, Form1.AutoSpline.Checked, OffX, OffY, OffZ, HullPts, {}, {}, {}, {}};
  for (int i = 0; i < FrameCount; ++i) {
    state.frames[static_cast<std::size_t>(i)] = FrameFileText(i);
  }
  const auto boxes = RigBoxes();
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    state.rig[i] = boxes[i]->Text;
  }
  state.texts = {HullDesigner, HullInfo, HullContact, HullDate, NestMark};
  state.ballast = {BallastWeight, BallastStation, BallastHeight, HullFileSpare};
  return state;
}

void CompareWithNow(const HullState& written) {
  ExpectSame("NumChines", written.chines, NumChines);
  ExpectSame("AutoSpline", written.auto_spline, Form1.AutoSpline.Checked);
  if (written.auto_spline) {
    CompareOffsets(written);
  } else {
    ComparePoints(written);
  }
  CompareBoxes(written);
  CompareTexts(written);
}
