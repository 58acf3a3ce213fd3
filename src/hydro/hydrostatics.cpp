#include "hydro/hydrostatics.h"

#include <array>
#include <cmath>
#include <string>

#include "base/files.h"
#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "base/text_lines.h"
#include "controls/forms.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "hydro/hull_points.h"
#include "hydro/results.h"
#include "hydro/water_planes.h"

double WaterlineY = 0;
double WaterDensity = FreshwaterDensity;
double DisplacedVolume = 0;
float DisplacementLbs = 0;
float WaterlineLength = 0;
double WaterlineForeZ = 0;
double WaterlineAftZ = 0;
double BuoyancyCenterX = 0;
double BuoyancyCenterY = 0;
double BuoyancyCenterZ = 0;
double LateralArea = 0;
double LateralCenterY = 0;
double LateralCenterZ = 0;
double PrismaticCoeff = 0;
double ButtockAngle = 0;
double DLRatio = 0;
double SLRatioLimit = 0;
double DisplacementSpeedKt = 0;
double TargetDisplacement = 0;
bool TargetReached = false;
double HeelAngle = 15;
double GravityCenterX = 0;
double GravityCenterY = 0;
double GravityCenterZ = 0;
int ResultsListIndex = -1;

namespace {

/// What exists only during one pass. A pass that runs within another has its own.
struct Pass {
  double S = 0;      ///< area of the current section, both sides
  double PrevS = 0;  ///< area of the one before
  double px = 0;     ///< waterline point of the current station
  double py = 0;
  double pz = 0;
  double MomentZ = 0;
  double AreaSum = 0;
  double LateralMomentY = 0;
  double LateralMomentZ = 0;
};

/// Adds the triangle (0, W), (x2, y2), (x3, y3) of a section; the factor 2 counts both sides.
void AddSectionTriangle(Pass& pass, double x2, double y2, double x3, double y3) {
  const double W = WaterlineY;
  Store(pass.S, pass.S + (2 * 0.5) * (((0 * y2 - x2 * W) + (x2 * y3 - x3 * y2)) + (x3 * W - 0 * y3)));
}

/// Where the segment from chine c to c + 1 crosses the water.
void CrossWater(Pass& pass, int i, int c) {
  const double f = (WaterlineY - Y(i, c)) / (Y(i, c + 1) - Y(i, c));
  if (X(i, c) != X(i, c + 1)) {
    Store(pass.px, X(i, c) + (X(i, c + 1) - X(i, c)) * f);
    Store(pass.pz, Z(i, c) + (Z(i, c + 1) - Z(i, c)) * f);
  } else {
    Store(pass.px, X(i, c));
    if (Z(i, c) != Z(i, c + 1)) {
      Store(pass.pz, Z(i, c) + (Z(i, c + 1) - Z(i, c)) * f);
    }
  }
  pass.py = WaterlineY;
}

void AddSection(Pass& pass, int i) {
  pass.PrevS = pass.S;
  pass.S = 0;
  pass.px = X(i, 1);
  pass.py = Y(i, 1);
  pass.pz = Z(i, 1);
  if (Y(i, 1) <= WaterlineY) {
    AddSectionTriangle(pass, 0, Y(i, 1), X(i, 1), Y(i, 1));
  }
  for (int c = 1; c <= NumChines - 1; ++c) {
    if (Y(i, c + 1) < WaterlineY) {
      pass.px = X(i, c + 1);
      pass.py = Y(i, c + 1);
      AddSectionTriangle(pass, X(i, c), Y(i, c), pass.px, pass.py);
    } else if (!(Y(i, c) > WaterlineY)) {
      CrossWater(pass, i, c);
      AddSectionTriangle(pass, X(i, c), Y(i, c), pass.px, WaterlineY);
      return;
    }
  }
}

/// The slice between this station and the one before, spaced by the keel.
void AddSlice(Pass& pass, int i) {
  const double mean = (pass.S + pass.PrevS) / 2;
  Store(DisplacedVolume, DisplacedVolume + mean * (Z(i, 1) - Z(i - 1, 1)));
  Store(pass.MomentZ, pass.MomentZ + mean * ((Z(i, 1) + Z(i - 1, 1)) / 2));
  Store(pass.AreaSum, pass.AreaSum + pass.S);
  if (pass.S > PrismaticCoeff) {
    PrismaticCoeff = pass.S;
  }
}

/// The waterline point of one station, to the file, to the mirrored half and to the picture.
void PutOutlinePoint(const Pass& pass, int i, std::string& out, std::string& mirrored) {
  PutMove(mirrored, pass.pz, -pass.px);
  if (i == 1) {
    Form1.Picture2->PSet(pass.pz, pass.px, DrawSurface::Foreground);
    PutFlatHead(out);
    PutMove(out, pass.pz, pass.px);
    PutLine(out, "0 pendown");
  } else {
    Form1.Picture2->LineTo(pass.pz, pass.px, Brown);
    PutMove(out, pass.pz, pass.px);
  }
}

/// Sections, volume, and the outline of the waterplane: out along one side, back along the other.
void IntegrateSections(Pass& pass) {
  std::array<std::string, Stations + 1> mirrored;
  std::string out;
  for (int i = 1; i <= Stations; ++i) {
    AddSection(pass, i);
    AddSlice(pass, i);
    PutOutlinePoint(pass, i, out, mirrored[static_cast<std::size_t>(i)]);
  }
  for (std::size_t i = Stations; i >= 1; --i) {
    out += mirrored[i];
  }
  PutLine(out, "0 penup");
  PutLine(out, "end_plot");
  WriteTextFile("watrplne.uc", out);
}

/// Ends the waterline's range below a sheer that has gone under. Waterline and maximum are read
/// anew at each station, because lowering the maximum can move the waterline.
void KeepScrollBarUnderSheer() {
  for (int i = 1; i <= Stations; ++i) {
    const double sheer = Y(i, NumChines);
    if (WaterlineY > sheer && sheer < Form1.HScroll1.Max() / 10.0) {
      if (const auto max = ToWhole(sheer * 10 - ScrollBar::SmallChange)) {
        Form1.HScroll1.SetMax(*max);
      }
    }
  }
}

/// A point of the profile.
struct ProfilePoint {
  double z;
  double y;
};

ProfilePoint At(int i, int c) {
  return {Z(i, c), Y(i, c)};
}

/// Adds the triangle of the profile with its apex on the waterline amidships, unsigned.
void AddLateralTriangle(Pass& pass, ProfilePoint p2, ProfilePoint p3) {
  const double W = WaterlineY;
  const double zA = HullMaxZ / 2;
  const double a =
      std::abs(0.5 * (((zA * p2.y - p2.z * W) + (p2.z * p3.y - p3.z * p2.y)) + (p3.z * W - zA * p3.y)));
  Store(pass.LateralMomentY, pass.LateralMomentY + a * (W + p2.y + p3.y) / 3);
  Store(pass.LateralMomentZ, pass.LateralMomentZ + a * (zA + p2.z + p3.z) / 3);
  Store(LateralArea, LateralArea + a);
}

/// Down the stem, r being the running point.
void WalkStem(Pass& pass, ProfilePoint& r) {
  for (int c = NumChines; c >= 2; --c) {
    const ProfilePoint below = At(1, c - 1);
    if (Y(1, c) > WaterlineY && below.y < WaterlineY) {
      Store(WaterlineForeZ, CrossingZ(1, c, 1, c - 1, WaterlineY));
      AddLateralTriangle(pass, below, {WaterlineForeZ, WaterlineY});
      r = below;
    } else if (below.y < WaterlineY) {
      AddLateralTriangle(pass, below, r);
      r = below;
    }
  }
}

void WalkKeel(Pass& pass) {
  for (int i = 1; i <= 12; ++i) {
    const ProfilePoint p = At(i, 1);
    const ProfilePoint q = At(i + 1, 1);
    if (p.y > WaterlineY && q.y < WaterlineY) {
      Store(WaterlineForeZ, CrossingZ(i, 1, i + 1, 1, WaterlineY));
      AddLateralTriangle(pass, q, {WaterlineForeZ, WaterlineY});
    } else if (p.y < WaterlineY && q.y < WaterlineY) {
      AddLateralTriangle(pass, p, q);
    } else if (p.y < WaterlineY && q.y > WaterlineY) {
      Store(WaterlineAftZ, CrossingZ(i, 1, i + 1, 1, WaterlineY));
      AddLateralTriangle(pass, p, {WaterlineAftZ, WaterlineY});
    }
  }
}

void WalkTransom(Pass& pass) {
  for (int c = 1; c <= NumChines - 1; ++c) {
    const ProfilePoint below = At(13, c);
    const ProfilePoint above = At(13, c + 1);
    if (below.y < WaterlineY && above.y > WaterlineY) {
      Store(WaterlineAftZ, CrossingZ(13, c, 13, c + 1, WaterlineY));
      AddLateralTriangle(pass, below, {WaterlineAftZ, WaterlineY});
    } else if (above.y < WaterlineY) {
      AddLateralTriangle(pass, above, below);
    }
  }
}

/// The immersed profile as one closed line. All comparisons are strict: a point exactly at the
/// waterline takes part in no branch. Where nothing crosses, the ends stay at the hull's.
void IntegrateProfile(Pass& pass) {
  pass.LateralMomentY = pass.LateralMomentZ = LateralArea = 0;
  WaterlineForeZ = 0;
  WaterlineAftZ = HullMaxZ;
  ProfilePoint running{pass.pz, pass.py};
  WalkStem(pass, running);
  WalkKeel(pass);
  WalkTransom(pass);
}

void DeriveResults(const Pass& pass) {
  Store(WaterlineLength, WaterlineAftZ - WaterlineForeZ);
  // A plain weighted mean of the stations: no spacing enters it, and the bias is accepted.
  Store(BuoyancyCenterZ, pass.MomentZ / pass.AreaSum);
  constexpr double cubic_inches_per_gallon = 231;
  Store(DisplacementLbs, (WaterDensity * DisplacedVolume) / cubic_inches_per_gallon);
  const double length = WaterlineLength;
  const double hundredths = (length * 0.01) / 12;
  Store(DLRatio, (static_cast<double>(DisplacementLbs) / 2240) / (hundredths * hundredths * hundredths));
  Store(SLRatioLimit, 8.26 / std::pow(DLRatio, 0.311));
  Store(DisplacementSpeedKt, std::pow(length / 12, 0.5) * 1.34);
  Store(LateralCenterY, pass.LateralMomentY / LateralArea);
  Store(LateralCenterZ, pass.LateralMomentZ / LateralArea);
  const double run = Quotient(Y(13, 2) - Y(10, 2), Z(13, 2) - Z(10, 2));
  Store(ButtockAngle, (std::abs(std::atan(run)) * 180) / PiVal);
}

void IntegrateWaterPlanes() {
  const WaterPlaneSums sums = SumWaterPlanes(WaterlineY);
  Store(BuoyancyCenterY, WaterlineY - (sums.DepthMoment / sums.Area));
  Store(BuoyancyCenterX, sums.MomentX / (sums.Area / 2));
}

void ShowSummary() {
  constexpr double cubic_inches_per_cubic_foot = 1728;
  Form1.StatusBar1.Panels[1] =
      "WL:" + FixedText(WaterlineY, 1) + "\"" + "  Displ:" + FixedText(DisplacementLbs, 0) + " lbs @" +
      FixedText(DisplacedVolume / cubic_inches_per_cubic_foot, 2) +
      " ft3  CB:" + FixedText(BuoyancyCenterZ, 1) + "\"" + "  LWL:" + FixedText(WaterlineLength, 0) + "\"" +
      "  D/L:" + FixedText(DLRatio, 0) + "  HS:" + FixedText(DisplacementSpeedKt, 1) + " kt";
}

}  // namespace

void SetDefaultHydrostatics() {
  WaterDensity = FreshwaterDensity;
  for (double* result : {&WaterlineY, &DisplacedVolume, &WaterlineForeZ, &WaterlineAftZ, &BuoyancyCenterX,
                         &BuoyancyCenterY, &BuoyancyCenterZ, &LateralArea, &LateralCenterY, &LateralCenterZ,
                         &PrismaticCoeff, &ButtockAngle, &DLRatio, &SLRatioLimit, &DisplacementSpeedKt,
                         &TargetDisplacement, &GravityCenterX, &GravityCenterY, &GravityCenterZ}) {
    *result = 0;
  }
  DisplacementLbs = WaterlineLength = 0;
  TargetReached = false;
  HeelAngle = 15;
  ResultsListIndex = -1;
}

/// The steps run in this order: values of one stay in the variables of the next.
void ComputeHydrostatics() {
  Pass pass;
  DisplacedVolume = 0;
  WaterlineLength = 0;
  PrismaticCoeff = 0;
  IntegrateSections(pass);
  KeepScrollBarUnderSheer();
  IntegrateProfile(pass);
  DeriveResults(pass);
  IntegrateWaterPlanes();
  ShowSummary();
  Store(PrismaticCoeff, DisplacedVolume / (static_cast<double>(WaterlineLength) * PrismaticCoeff));
  ShowResults();
}
