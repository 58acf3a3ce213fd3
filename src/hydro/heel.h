#pragma once
// The heeled hull: the waterline at which it floats at the same weight, the moment arm and the
// righting moment.
//
// The pass knows only a symmetric hull. So HullPts is turned in place by minus the angle and
// measured, which is the low side; then by twice the angle, the mirror image of the high side, and
// measured again. Half of each displacement is that side's share.

/// How the last heel ended.
enum class HeelOutcome { None, Solved, Failed };

/// What the search works with and leaves behind. Inches and pounds.
struct HeelState {
  HeelOutcome Outcome = HeelOutcome::None;
  double NominalWaterlineY = 0;  ///< where the search started
  bool BelowTargetSeen = false;  ///< once too light, it may never be too heavy again
  int Turns = 0;
  double TotalLbs = 0;        ///< both sides together
  double LowestY = 0;         ///< of the low side
  double HeeledLength = 0;    ///< of the heeled waterline
  double MomentArm = 0;       ///< from the center of gravity to that of buoyancy
  double RightingMoment = 0;  ///< foot pounds
};
extern HeelState Heel;

/// The state before anything was heeled.
void ResetHeel();

/// The smallest Y of the hull points as they are, at most 1000.
double LowestPoint();

/// Asks for an angle, brings the hull upright and heels it at the weight that it has now.
void EnterHeel_Click();

/// Searches the waterline at which the hull floats at TargetDisplacement (DisplacementLbs if that
/// is 0) within 15 pounds, heeled by HeelAngle, and draws each turn. Does nothing at 0 degrees.
/// Solved: fills Combo1 with the heeled results and leaves HullPts turned, and the picture drawn,
/// until the next repaint. Failed: repaints, says so in panel 1.
void ComputeHeel();
