#include "hull/hull_model.h"

#include "base/number_text.h"

OffsetTable OffX;
OffsetTable OffY;
OffsetTable OffZ;
PointTable HullPts;
std::optional<PointTable> UprightPts;
std::array<FramePlace, FrameCount> FrameZ;

int NumChines = 4;
int CurChine = 1;
int CurStation = 1;

double PitchAngle = 0;
double PitchApplied = 0;

double HullMaxX = 0;
double HullMaxY = 0;
double HullMaxZ = 0;
double MaxHalfBeam = 0;
float ViewMargin = 0;

std::string HullFileName = "default.tvh";
std::string ExportPath;

std::string HullDesigner;
std::string HullInfo;
std::string HullContact;
std::string HullDate;
std::string NestMark;

double BallastWeight = 0;
double BallastStation = 0;
double BallastHeight = 0;
double HullFileSpare = 0;

namespace {

struct Offset {
  double x;
  double y;
  double z;
};

/// The built-in hull, a row a chine, a column a bulkhead. Chines 5 and 6 wait until the count of
/// chines is raised.
constexpr Offset BuiltIn[6][Bulkheads] = {
    {{0, 1.3, 1.3}, {3.875, 0, 28}, {8, 0, 58}, {8, 0, 96}, {5, 1, 140}},
    {{0.75, 6, 0}, {10.25, 5.2, 28}, {20.75, 4.5, 58}, {23, 4.5, 96}, {15, 5, 140}},
    {{1.5, 18, 0}, {20, 16, 28}, {30, 14.5, 58}, {33, 14.5, 96}, {23, 17, 140}},
    {{2, 38, 0}, {23, 33, 28}, {34.25, 29.5, 58}, {37, 29.5, 96}, {28, 35, 140}},
    {{2, 42, 0}, {25, 35, 28}, {37, 32, 58}, {39, 31, 96}, {30, 37, 140}},
    {{2, 46, 0}, {27, 37, 28}, {39, 34, 58}, {41, 33, 96}, {32, 39, 140}},
};

template <class OfNumber, class OfText>
std::string FrameText(int frame, OfNumber of_number, OfText of_text) {
  const FramePlace& place = FrameZ[static_cast<std::size_t>(frame)];
  if (const double* number = std::get_if<double>(&place)) {
    return of_number(*number);
  }
  const std::string* text = std::get_if<std::string>(&place);
  return text == nullptr ? std::string() : of_text(*text);
}

}  // namespace

double FrameInches(int frame) {
  const FramePlace& place = FrameZ[static_cast<std::size_t>(frame)];
  const double* number = std::get_if<double>(&place);
  return number != nullptr ? *number : NumberOf(FrameBoxText(frame));
}

std::string FrameBoxText(int frame) {
  return FrameText(frame, PlainText, [](const std::string& text) { return text; });
}

std::string FrameFileText(int frame) {
  return FrameText(frame, PrintText, [](const std::string& text) { return text; });
}

void RestoreUprightHull() {
  if (UprightPts) {
    HullPts = *UprightPts;
    UprightPts.reset();
  }
}

void EraseHull() {
  OffX.Erase();
  OffY.Erase();
  OffZ.Erase();
  HullPts.Erase();
  UprightPts.reset();
}

void SetDefaultHull() {
  EraseHull();
  for (int k = 0; k < Bulkheads; ++k) {
    for (int c = 1; c <= 6; ++c) {
      const Offset& offset = BuiltIn[c - 1][k];
      OffX(c, k) = offset.x;
      OffY(c, k) = offset.y;
      OffZ(c, k) = offset.z;
    }
  }
  FrameZ.fill({});
  NumChines = 4;
  CurChine = 1;
  CurStation = 1;
  PitchAngle = PitchApplied = 0;
  HullMaxX = HullMaxY = HullMaxZ = MaxHalfBeam = 0;
  ViewMargin = 0;
  HullFileName = "default.tvh";
  ExportPath.clear();
  for (std::string* text : {&HullDesigner, &HullInfo, &HullContact, &HullDate, &NestMark}) {
    text->clear();
  }
  BallastWeight = BallastStation = BallastHeight = HullFileSpare = 0;
}
