#include "hydro/results.h"

#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "controls/forms.h"
#include "hydro/hydrostatics.h"

void FillResults(const std::string& title, const std::vector<ResultRow>& rows) {
  std::vector<std::string> texts;
  for (const ResultRow& row : rows) {
    if (HasValue(row.value)) {
      texts.push_back(row.label + FixedText(row.value, row.decimals) + row.unit);
    }
  }
  Form1.Combo1.SetRows(std::move(texts));
  Form1.Combo1.Text = title;
  Form1.Combo1.Visible = true;
}

void ShowResults() {
  const double length = WaterlineLength;
  FillResults("Results", {
                             {"Waterline heighth: ", WaterlineY, 1, " in.\""},
                             {"Displacement: ", DisplacementLbs, 0, " lbs"},
                             {"Displaced volume: ", DisplacedVolume / 1728, 2, " ft3"},
                             {"Center of buoyancy, Z: ", BuoyancyCenterZ, 1, " in.\""},
                             {"Center of buoyancy, Y: ", BuoyancyCenterY, 1, " in.\""},
                             {"Center of Lateral Area, Z: ", LateralCenterZ, 1, " in.\""},
                             {"Center of Lateral Area, Y: ", LateralCenterY, 1, " in.\""},
                             {"Lateral Area: ", LateralArea / 144, 2, " ft2\""},
                             {"Length of Waterline: ", length, 0, "\""},
                             {"Prismatic Coeff: ", PrismaticCoeff, 2, ""},
                             {"Buttock angle: ", ButtockAngle, 1, " deg."},
                             {"Disp. Hull Speed: ", DisplacementSpeedKt, 2, " kt"},
                             {"D/L ratio: ", DLRatio, 0, ""},
                             {"S/L ratio: ", SLRatioLimit, 2, ""},
                             {"D/L limited speed: ", SLRatioLimit * std::pow(length / 12, 0.5), 2, " kt."},
                         });
  if (ResultsListIndex > -1) {
    Form1.Combo1.SetListIndex(ResultsListIndex);
  }
}

void Combo1_Click() {
  ResultsListIndex = Form1.Combo1.ListIndex();
}
