#include "hydro/waterline_search.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "base/skipped_statement.h"
#include "controls/dialogs.h"
#include "controls/forms.h"
#include "hull/chine_spline.h"
#include "hull/hull_model.h"
#include "hydro/hydrostatics.h"
#include "hydro/results.h"
#include "hydro/waterline.h"

namespace {

bool pitch_warned = false;

/// The displacement as computed last, in double precision.
double LastDisplacement() {
  return (WaterDensity * DisplacedVolume) / 231;
}

/// What the two commands do differently at the end. The displacement command goes on with the next
/// inch when the interpolation can't be worked out, and clips its result into the bar's range; the
/// pitch command skips both statements.
enum class Search { Displacement, Pitch };

void ClipToBar() {
  WaterlineY = std::clamp(WaterlineY, Form1.HScroll1.Low() / 10.0, Form1.HScroll1.High() / 10.0);
}

/// From the bottom inch by inch. Sets TargetReached. The range's end bounds the search.
void SearchTarget(Search search) {
  TargetReached = false;
  WaterlineY = 0;
  double computed = 0;
  while (true) {
    WaterlineY = WaterlineY + 1;
    const double prev = LastDisplacement();
    if (!(WaterlineY * 10 <= Form1.HScroll1.Max())) {
      WaterlineY = computed;
      return;
    }
    SetWaterlineBar(WaterlineY);
    computed = WaterlineY;
    const double now = LastDisplacement();
    if (!(TargetDisplacement < now)) {
      continue;
    }
    const double found = (WaterlineY - 1) + (TargetDisplacement - prev) / (now - prev);
    if (search == Search::Displacement && !HasValue(found)) {
      WaterlineY = WaterlineY + 1;
      continue;
    }
    Store(WaterlineY, found);
    if (search == Search::Displacement) {
      ClipToBar();
    }
    SetWaterlineBar(WaterlineY);
    TargetReached = true;
    return;
  }
}

bool PitchIsWanted() {
  if (pitch_warned) {
    return true;
  }
  constexpr int ok_cancel_information = 65;
  pitch_warned = true;
  return MsgBox(
             "The pitching function may shift your hull slightly in Y and Z to keep it on the screen. The "
             "hull "
             "will not change, although the Y-Z offsets may be permanently slightly shifted if you Save.",
             ok_cancel_information, "Warning") != Answer::Cancel;
}

}  // namespace

void displacement_Click() {
  WaterlineY = 0;
  if (TargetDisplacement == 0) {
    TargetDisplacement = DisplacementLbs == 0 ? 250 : static_cast<double>(DisplacementLbs);
  }
  const std::string answer =
      InputBox("Enter a target displacement in pounds:", "Displacement", PlainText(TargetDisplacement));
  Store(TargetDisplacement, std::abs(NumberOf(answer)));
  if (TargetDisplacement == 0) {
    Form1.Combo1.Visible = false;
    return;
  }
  ShowWaterlineBar(0);
  OfferHeelAndPlan();
  SearchTarget(Search::Displacement);
}

void EnterPitch_Click() {
  if (!PitchIsWanted()) {
    return;
  }
  Store(PitchAngle,
        NumberOf(InputBox("Enter a hull pitch angle in degrees:", "Pitch Angle", PlainText(PitchAngle))));
  ApplyPitch();
  ResetWaterlineRange();
  if (!Form1.HScroll1.Visible) {
    ShowResults();
    return;
  }
  if (TargetDisplacement == 0) {
    TargetDisplacement = DisplacementLbs;
  }
  SearchTarget(Search::Pitch);
}

void ResetPitchWarning() {
  pitch_warned = false;
}
