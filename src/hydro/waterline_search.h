#pragma once
// The commands that look for the waterline at which the hull weighs what was asked for, inch by
// inch from the bottom, and between the last two by interpolation. A search ends at the top of the
// waterline's range, with the last inch that was computed.

/// Asks for a displacement, turns the waterline on and searches. An answer of 0 hides the results
/// and leaves the waterline at 0.
void displacement_Click();

/// Asks for a pitch (with a warning once a run), applies it, and floats a hull that has a waterline
/// at the same weight.
void EnterPitch_Click();

/// Forgets that the warning was shown, as at the start of the program.
void ResetPitchWarning();
