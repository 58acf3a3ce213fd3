#pragma once
// The parts that are flat by nature: bulkheads, frames, transom, stem and the outline of a sheet,
// written as pattern files straight from the offsets and the interpolated hull.

/// Writes "bhead1.uc" to "bhead3.uc", "frame1.uc" to "frame8.uc" for the frames in use,
/// "transom.uc", "stem.uc" if Form3's Check7 is on, and "4x8.uc", in the plot scale in memory.
/// Brings the frame boxes of Form3, and with them FrameZ, within the hull's length on the way.
/// Check2 adds the spar cut-out, Check5 the lettering, Check6 leaves one side out.
/// A transom or stem has room for ten chines; its contour stops there.
void WriteFlatParts();
