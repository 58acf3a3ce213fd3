#include "monkey/state_check.h"

#include <array>
#include <bit>
#include <cmath>
#include <string>

#include "base/files.h"
#include "base/platform.h"
#include "controls/forms.h"
#include "hull/figures.h"
#include "hull/hull_model.h"
#include "hull/plot_scale.h"
#include "hull/rig.h"
#include "hydro/heel.h"
#include "hydro/hydrostatics.h"
#include "hydro/results.h"
#include "monkey/diary.h"
#include "nest/nest_model.h"
#include "views/spin_view.h"
#include "views/zoom.h"

namespace {

template <class TableType>
void ExpectFinite(const char* name, const TableType& table) {
  const auto cells = std::bit_cast<std::array<double, sizeof(TableType) / sizeof(double)>>(table);
  double sum = 0;  // of zeros, unless a cell has no value; much faster than to ask each cell
  for (const double cell : cells) {
    sum += cell * 0;
  }
  if (sum != 0 || std::isnan(sum)) {
    NoteFault(std::string(name) + " holds a cell without a value");
  }
}

void ExpectFinite(const char* name, double number) {
  if (!std::isfinite(number)) {
    NoteFault(std::string(name) + " has no value");
  }
}

void ExpectWithin(const char* name, int number, int low, int high) {
  if (number < low || number > high) {
    NoteFault(std::string(name) + " is " + std::to_string(number));
  }
}

void Expect(bool holds, const char* otherwise) {
  if (!holds) {
    NoteFault(otherwise);
  }
}

/// Row 0 of the offsets and index 0 of the hull points exist and are never written.
void CheckUnusedCells() {
  bool empty = true;
  for (int k = 0; k < Bulkheads; ++k) {
    empty = empty && OffX(0, k) == 0 && OffY(0, k) == 0 && OffZ(0, k) == 0;
  }
  for (int i = 0; i <= Stations; ++i) {
    for (int coordinate = 0; coordinate <= 3; ++coordinate) {
      empty = empty && HullPts(coordinate, i, 0) == 0;
    }
  }
  for (int c = 0; c <= MostChines; ++c) {
    for (int coordinate = 0; coordinate <= 3; ++coordinate) {
      empty = empty && HullPts(coordinate, 0, c) == 0;
    }
  }
  Expect(empty, "a cell that is never used was written");
}

void CheckTables() {
  ExpectFinite("OffX", OffX);
  ExpectFinite("OffY", OffY);
  ExpectFinite("OffZ", OffZ);
  ExpectFinite("HullPts", HullPts);
  if (UprightPts) {
    ExpectFinite("UprightPts", *UprightPts);
  }
  ExpectFinite("ViewPtsA", ViewPtsA);
  ExpectFinite("ViewPtsB", ViewPtsB);
  ExpectFinite("FigureX", FigureX);
  ExpectFinite("FigureY", FigureY);
  for (const NestInstance& instance : NestInstances) {
    ExpectFinite("NestX", instance.x);
    ExpectFinite("NestY", instance.y);
    ExpectFinite("NestPosX", instance.pos_x);
    ExpectFinite("NestPosY", instance.pos_y);
    ExpectFinite("NestShown", instance.shown);
  }
  ExpectFinite("NestPointCount", NestPointCount);
  ExpectFinite("NestWidth", NestWidth);
  ExpectFinite("NestHeight", NestHeight);
}

struct Number {
  const char* name;
  double value;
};

void CheckNumbers() {
  const Number numbers[] = {
      {"PitchAngle", PitchAngle},
      {"PitchApplied", PitchApplied},
      {"HullMaxX", HullMaxX},
      {"HullMaxY", HullMaxY},
      {"HullMaxZ", HullMaxZ},
      {"MaxHalfBeam", MaxHalfBeam},
      {"ViewMargin", ViewMargin},
      {"BallastWeight", BallastWeight},
      {"BallastStation", BallastStation},
      {"BallastHeight", BallastHeight},
      {"HullFileSpare", HullFileSpare},
      {"PlotXScale", PlotXScale},
      {"PlotYScale", PlotYScale},
      {"RigMastLength", RigMastLength},
      {"RigBoomHeight", RigBoomHeight},
      {"RigStepZ", RigStepZ},
      {"RigLuffLength", RigLuffLength},
      {"RigFootLength", RigFootLength},
      {"RigHeadLength", RigHeadLength},
      {"RigHeadAngle", RigHeadAngle},
      {"RigStepY", RigStepY},
      {"FigureOffsetX", FigureOffsetX},
      {"FigureOffsetY", FigureOffsetY},
      {"FigureWeight", FigureWeight},
      {"WaterlineY", WaterlineY},
      {"WaterDensity", WaterDensity},
      {"DisplacedVolume", DisplacedVolume},
      {"DisplacementLbs", DisplacementLbs},
      {"WaterlineLength", WaterlineLength},
      {"WaterlineForeZ", WaterlineForeZ},
      {"WaterlineAftZ", WaterlineAftZ},
      {"BuoyancyCenterX", BuoyancyCenterX},
      {"BuoyancyCenterY", BuoyancyCenterY},
      {"BuoyancyCenterZ", BuoyancyCenterZ},
      {"LateralArea", LateralArea},
      {"LateralCenterY", LateralCenterY},
      {"LateralCenterZ", LateralCenterZ},
      {"PrismaticCoeff", PrismaticCoeff},
      {"ButtockAngle", ButtockAngle},
      {"DLRatio", DLRatio},
      {"SLRatioLimit", SLRatioLimit},
      {"DisplacementSpeedKt", DisplacementSpeedKt},
      {"TargetDisplacement", TargetDisplacement},
      {"HeelAngle", HeelAngle},
      {"GravityCenterX", GravityCenterX},
      {"GravityCenterY", GravityCenterY},
      {"GravityCenterZ", GravityCenterZ},
      {"Heel.NominalWaterlineY", Heel.NominalWaterlineY},
      {"Heel.TotalLbs", Heel.TotalLbs},
      {"Heel.LowestY", Heel.LowestY},
      {"Heel.HeeledLength", Heel.HeeledLength},
      {"Heel.MomentArm", Heel.MomentArm},
      {"Heel.RightingMoment", Heel.RightingMoment},
      {"ZoomLeft", ZoomLeft},
      {"ZoomRight", ZoomRight},
      {"ZoomBottom", ZoomBottom},
      {"ZoomTop", ZoomTop},
      {"SpinStep", SpinStep},
      {"SheetHeight", SheetHeight},
      {"SheetLength", SheetLength},
      {"SheetRowLength", SheetRowLength},
  };
  for (const Number& number : numbers) {
    ExpectFinite(number.name, number.value);
  }
}

void CheckIndices() {
  ExpectWithin("NumChines", NumChines, 2, MostChines);
  ExpectWithin("CurChine", CurChine, -1, MostChines);
  ExpectWithin("CurStation", CurStation, -1, Stations);
  ExpectWithin("FigureIndex", FigureIndex, -1, 8);
  ExpectWithin("NestPartCount", NestPartCount, 0, MostNestParts);
  ExpectWithin("NestCurrent", NestCurrent, 0, MostNestParts);
  ExpectWithin("NestCopySelected", NestCopySelected, 0, 1);
  ExpectWithin("ResultsListIndex", ResultsListIndex, -1, 14);
  ExpectWithin("Form1.Combo1", Form1.Combo1.ListIndex(), -1,
               static_cast<int>(Form1.Combo1.Rows().size()) - 1);
  ExpectWithin("Form2.List1", Form2.List1.ListIndex(), -1, static_cast<int>(Form2.List1.Rows().size()) - 1);
  Expect(static_cast<int>(Form2.List1.Rows().size()) == NestPartCount, "List1 has other rows than parts");
}

void CheckControls() {
  const Window* const windows[] = {&Form1, &Form2, &Form3, &Form4, &Form5};
  for (const Window* window : windows) {
    if (window->Busy) {
      NoteFault(*window->Caption + " still shows the hourglass");
    }
  }
  Expect(!HullFileName.empty(), "the hull file has no name");
  Expect(ExportPath.empty() || ExportPath.back() == PathSeparator, "the export path ends in no separator");
  Expect(Form1.Sections.Checked + Form1.Profile.Checked + Form1.Plan.Checked <= 1, "two views are checked");
  Expect(Form1.Freshwater.Checked != Form1.Seawater.Checked, "not one water is checked");
  Expect(Form2.Option1.Value + Form2.Option2.Value + Form2.Option3.Value == 1, "not one count of sheets");
  Expect(!(Form4.Option1.Value && Form4.Option2.Value), "two steps of the mast are chosen");
}

void CheckFilesHeldBack() {
  Expect(HoldBackChanges(), "files are still held back");
  DropChanges();
}

}  // namespace

void CheckState() {
  CheckTables();
  CheckUnusedCells();
  CheckNumbers();
  CheckIndices();
  CheckControls();
  CheckFilesHeldBack();
}
