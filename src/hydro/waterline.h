#pragma once
// The waterline and the water: the scroll bar HScroll1 is the one path to a new waterline.

/// The scroll bar moved: sets WaterlineY to a tenth of its value, computes, repaints the form, and
/// draws the waterline on section and profile thumbnail and on Picture2.
void HScroll1_Change();

/// Waterline on (range from 1 inch to the height of the hull; Plan if no flat view is chosen) or
/// off. A heel can be asked for while it is on.
void EnterWaterline_Click();

/// Both items toggle between the two waters by their own check mark, and compute anew.
void Freshwater_Click();
void Seawater_Click();

/// Shows the plan with the water lines of one half at the ten planes up to the waterline; without a
/// waterline it turns one on, at 40 percent of the hull's height if there has been none.
void Contours_Click();

/// Checks EnterWaterline and shows the scroll bar from `least` tenths of an inch to the hull's
/// height.
void ShowWaterlineBar(int least);
/// Lets a heel be entered, and chooses the plan if no flat view is chosen.
void OfferHeelAndPlan();
/// Sets the bar's upper end to the height of the hull.
void ResetWaterlineRange();
/// Sets the bar to a height in inches, rounded to a tenth. Outside of the range it is skipped.
void SetWaterlineBar(double inches);
