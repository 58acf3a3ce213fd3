#include "hydro/heel.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hydro/heel_drawing.h"
#include "hydro/hull_points.h"
#include "hydro/hydrostatics.h"
#include "hydro/results.h"
#include "hydro/waterline.h"

HeelState Heel;

namespace {

constexpr double Tolerance = 15;  // pounds either way
/// A search that has not ended by then, or has sunk the waterline so far, has failed.
constexpr int MostTurns = 1000;
constexpr double LeastWaterline = 0.000001;

double Radians(double degrees) {
  return degrees * CoarsePi / 180;
}

struct Center {
  double x;
  double y;
  double z;
};

/// Displacement and center of one side, as the pass has just found them.
struct Side {
  double lbs;
  Center center;
};

/// A turn of points of a section about the keel line.
struct SectionTurn {
  explicit SectionTurn(double angle) : cosine(std::cos(angle)), sine(std::sin(angle)) {}

  double TurnedX(double x, double y) const { return x * cosine - y * sine; }
  double TurnedY(double x, double y) const { return x * sine + y * cosine; }

  double cosine;
  double sine;
};

/// Without AutoSpline nothing but a copy can bring the upright points back, and it may be unchecked
/// while the hull is heeled.
void KeepUprightPoints() {
  if (!UprightPts) {
    UprightPts = HullPts;
  }
}

/// Turns every hull point in place.
void TurnHull(double angle) {
  KeepUprightPoints();
  const SectionTurn turn(angle);
  for (int c = 1; c <= NumChines; ++c) {
    for (int i = 1; i <= Stations; ++i) {
      const double x = X(i, c);
      const double y = Y(i, c);
      HullPts(1, i, c) = turn.TurnedX(x, y);
      HullPts(2, i, c) = turn.TurnedY(x, y);
    }
  }
}

/// The centroid of the whole hull, found by immersing it, heeled once. The waterline comes back
/// rounded to a tenth of an inch.
void FindCenterOfGravity(double angle) {
  ResetWaterlineRange();
  SetWaterlineBar(HullMaxY);
  GravityCenterY = BuoyancyCenterY;
  GravityCenterZ = BuoyancyCenterZ;
  SetWaterlineBar(Heel.NominalWaterlineY);
  const SectionTurn turn(angle);
  const double y = GravityCenterY;
  Store(GravityCenterX, turn.TurnedX(0, y));
  Store(GravityCenterY, turn.TurnedY(0, y));
}

/// The ends of the heeled waterline. All chines of the low side count here, unlike in the upright
/// walk along stem, keel and transom.
void MeasureHeeledLength() {
  const double W = WaterlineY;
  WaterlineAftZ = 0;
  WaterlineForeZ = HullMaxZ;
  for (int c = NumChines; c >= 2; --c) {
    if (Y(1, c) > W && Y(1, c - 1) < W) {
      Store(WaterlineForeZ, CrossingZ(1, c, 1, c - 1, W));
    }
  }
  for (int c = 1; c <= NumChines; ++c) {
    for (int i = 1; i <= 12; ++i) {
      const double z = CrossingZ(i, c, i + 1, c, W);
      if (Y(i, c) > W && Y(i + 1, c) < W && z < WaterlineForeZ) {
        Store(WaterlineForeZ, z);
      }
      if (Y(i, c) < W && Y(i + 1, c) > W && z > WaterlineAftZ) {
        Store(WaterlineAftZ, z);
      }
    }
  }
  for (int c = 1; c <= NumChines - 1; ++c) {
    if (Y(13, c) < W && Y(13, c + 1) > W) {
      Store(WaterlineAftZ, CrossingZ(13, c, 13, c + 1, W));
    }
  }
  Store(Heel.HeeledLength, WaterlineAftZ - WaterlineForeZ);
}

Side MeasureSide() {
  ComputeHydrostatics();
  return {static_cast<double>(DisplacementLbs) / 2, {BuoyancyCenterX, BuoyancyCenterY, BuoyancyCenterZ}};
}

Side MeasureLowSide(double angle) {
  StartHeelDrawing();
  TurnHull(angle);
  Heel.LowestY = LowestPoint();
  DrawHeeledSide(LowSide);
  MeasureHeeledLength();
  DrawHeeledWaterline();
  DrawHeeledOutline(LowSide);
  return MeasureSide();
}

Side MeasureHighSide() {
  TurnHull(Radians(2 * HeelAngle));
  DrawHeeledSide(HighSide);
  if (WaterlineY != 0) {
    DrawHeeledOutline(HighSide);
  }
  return MeasureSide();
}

/// X of the high side counts the other way: it lies on the other side of the centerline.
void Combine(const Side& low, const Side& high) {
  Heel.TotalLbs = low.lbs + high.lbs;
  Store(BuoyancyCenterX, (low.lbs * low.center.x - high.lbs * high.center.x) / Heel.TotalLbs);
  Store(BuoyancyCenterY, (low.lbs * low.center.y + high.lbs * high.center.y) / Heel.TotalLbs);
  Store(BuoyancyCenterZ, (low.lbs * low.center.z + high.lbs * high.center.z) / Heel.TotalLbs);
  Store(Heel.MomentArm, BuoyancyCenterX - GravityCenterX);
  Store(Heel.RightingMoment, (Heel.MomentArm / 12) * Heel.TotalLbs);
}

enum class Verdict { GoOn, Solved, Failed };

/// Brings the hull upright and takes the waterline to its next height, as the bar rounds it.
Verdict Step(double next) {
  Form1.Refresh();
  Store(WaterlineY, next);
  if (WaterlineY < LeastWaterline) {
    return Verdict::Failed;
  }
  SetWaterlineBar(WaterlineY);
  return Verdict::GoOn;
}

/// Comes down fast.
Verdict StepDown() {
  if (Heel.BelowTargetSeen) {
    return Verdict::Failed;
  }
  const double W = WaterlineY;
  return Step(W - ((0.333 * W) * (Heel.TotalLbs - TargetDisplacement)) / Heel.TotalLbs);
}

/// Creeps up slowly. The bound is there to stop a hull that can't reach its target: the bar counts
/// tenths, so it stands at a hundred times the hull's height. As a whole number of 16 bits it may
/// overflow, and then it bounds nothing.
Verdict StepUp() {
  Heel.BelowTargetSeen = true;
  const double W = WaterlineY;
  const double next = W + ((0.1 * W) * (TargetDisplacement - Heel.TotalLbs)) / Heel.TotalLbs;
  const auto bound = ToWhole(Form1.HScroll1.Max() * 10.0);
  if (bound && next > *bound) {
    Store(WaterlineY, next);
    return Verdict::Failed;
  }
  return Step(next);
}

Verdict Decide() {
  const double excess = Heel.TotalLbs - TargetDisplacement;
  if (Heel.TotalLbs < Tolerance) {
    return Verdict::Failed;
  }
  if (std::abs(excess) <= Tolerance) {
    return Verdict::Solved;
  }
  if (Heel.Turns >= MostTurns) {
    return Verdict::Failed;
  }
  return excess > 0 ? StepDown() : StepUp();
}

/// One turn starts with the hull upright, which the repaint of the turn before has seen to.
Verdict SearchTurn(double angle) {
  ++Heel.Turns;
  const Side low = MeasureLowSide(angle);
  const Side high = MeasureHighSide();
  Combine(low, high);
  DrawCenters(Heel.RightingMoment);
  return Decide();
}

/// What both outcomes tell behind the angle.
std::string WeightAndHint() {
  return " degrees, displ:" + FixedText(Heel.TotalLbs, 0) + "lbs. Click \"TD\" logo.";
}

void ReportFailure() {
  Heel.Outcome = HeelOutcome::Failed;
  Form1.Refresh();
  Form1.StatusBar1.Panels[1] = "Sunk or failed at WL:" + FixedText(WaterlineY, 1) +
                               "\" at:" + FixedText(HeelAngle, 1) + WeightAndHint();
}

void ReportSolution() {
  Heel.Outcome = HeelOutcome::Solved;
  Form1.StatusBar1.Panels[1] = "Heeled WL at:" + FixedText(HeelAngle, 1) + WeightAndHint();
  constexpr double pounds_per_cubic_foot = 62.4;  // whichever water is chosen
  FillResults("Results, Heeled " + FixedText(HeelAngle, 1) + " degrees",
              {
                  {"Heel angle: ", HeelAngle, 1, " degrees"},
                  {"Moment arm, X: ", Heel.MomentArm, 1, " in.\""},
                  {"Righting moment: ", Heel.RightingMoment, 0, " ft-lbs"},
                  {"Nominal Waterline heighth: ", WaterlineY, 1, " in.\""},
                  {"Corrected heeled draft: ", WaterlineY - Heel.LowestY, 1, " in."},
                  {"Displacement: ", Heel.TotalLbs, 0, " lbs"},
                  {"Displaced volume: ", Heel.TotalLbs / pounds_per_cubic_foot, 2, " ft3"},
                  {"Center of buoyancy, X: ", BuoyancyCenterX, 1, " in.\""},
                  {"  Center of buoyancy, Y: ", BuoyancyCenterY, 1, " in.\""},
                  {"  Center of buoyancy, Z: ", BuoyancyCenterZ, 1, " in.\""},
                  {"Center of gravity, X: ", GravityCenterX, 1, " in.\""},
                  {"  Center of gravity, Y: ", GravityCenterY, 1, " in.\""},
                  {"  Center of gravity, Z: ", GravityCenterZ, 1, " in.\""},
                  {"  Ballast: ", BallastWeight, 1, " lbs.\""},
                  {"Length of Waterline: ", Heel.HeeledLength, 0, "\""},
              });
  Store(DisplacementLbs, TargetDisplacement);
}

}  // namespace

double LowestPoint() {
  double lowest = 1000;
  for (int c = 1; c <= NumChines; ++c) {
    for (int i = 1; i <= Stations; ++i) {
      lowest = std::min(lowest, Y(i, c));
    }
  }
  return lowest;
}

void ResetHeel() {
  Heel = HeelState{};
}

void EnterHeel_Click() {
  TargetDisplacement = DisplacementLbs;
  Store(HeelAngle,
        NumberOf(InputBox("Enter a hull heel angle in degrees:", "Heel Angle", PlainText(HeelAngle))));
  Form1.Refresh();
  ComputeHeel();
}

void ComputeHeel() {
  if (HeelAngle == 0) {
    return;
  }
  if (TargetDisplacement == 0) {
    TargetDisplacement = DisplacementLbs;
  }
  ResetHeel();
  Heel.NominalWaterlineY = WaterlineY;
  const double angle = Radians(-HeelAngle);
  FindCenterOfGravity(angle);
  Verdict verdict = Verdict::GoOn;
  while (verdict == Verdict::GoOn) {
    verdict = SearchTurn(angle);
  }
  if (verdict == Verdict::Solved) {
    ReportSolution();
  } else {
    ReportFailure();
  }
}
