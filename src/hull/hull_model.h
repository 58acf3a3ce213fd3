#pragma once
// The shared tables of the hull. There is no document object: every handler reads and writes these.
//
// Lengths are inches, weights pounds, angles degrees. X is the half-width from the centreline, Y the
// height above the baseline, Z the length aft from the stem. Chine 1 is the keel, chine NumChines
// the sheer. Bulkhead 0 is the stem, 4 the transom; bulkhead k lies on station 3k + 1.
// After a change of the offsets Form1.Refresh() rebuilds all that follows from them.

#include <array>
#include <optional>
#include <string>
#include <variant>

#include "base/table.h"

inline constexpr int MostChines = 30;
inline constexpr int Bulkheads = 5;   ///< numbered 0 to 4
inline constexpr int Stations = 13;   ///< numbered 1 to 13
inline constexpr int FrameCount = 8;  ///< numbered 0 to 7

/// Design offsets, indexed (chine 1..30, bulkhead 0..4); row 0 is never used. Written by the hull
/// file, the editors and rescaling, cleaned by RecomputeHull at every repaint.
using OffsetTable = Table<MostChines + 1, Bulkheads>;
extern OffsetTable OffX;
extern OffsetTable OffY;
extern OffsetTable OffZ;

/// The interpolated hull, indexed (coordinate 1..3, station 1..13, chine 1..30): coordinate 1 is X,
/// 2 is Y, 3 is Z. Index 0 of each dimension exists and stays 0. Written by RecomputeHull while
/// AutoSpline is checked, by the mouse and the hull file while it is not, turned by pitch and heel.
using PointTable = Table<4, Stations + 1, MostChines + 1>;
extern PointTable HullPts;

/// The upright hull points, kept while HullPts is heeled. Without AutoSpline nothing else could bring
/// them back: a recompute puts them back then, and a save takes these.
extern std::optional<PointTable> UprightPts;
/// Puts them back, if any are kept. Whoever changes single hull points does this first.
void RestoreUprightHull();

/// The place of an extra section: never set, a number of inches, or the text of a hull file's line
/// that waits to be taken as a number. 0 or less, and a place never set, mean no frame.
using FramePlace = std::variant<std::monostate, double, std::string>;
extern std::array<FramePlace, FrameCount> FrameZ;

/// The place as a number: 0 if it was never set, the leading number of a text.
double FrameInches(int frame);
/// The place as its box shows it: empty if it was never set.
std::string FrameBoxText(int frame);
/// The place as the hull file keeps it: an empty line, the print form, or the bare text.
std::string FrameFileText(int frame);

extern int NumChines;   ///< 2 to 30
extern int CurChine;    ///< chine of the selected node, -1 for none
extern int CurStation;  ///< its bulkhead while AutoSpline is checked, else its station; -1 for none

extern double PitchAngle;    ///< the wanted pitch
extern double PitchApplied;  ///< the pitch that the offsets hold now

/// Largest offset in each axis; HullMaxZ is the length overall. Written by RecomputeHull.
extern double HullMaxX;
extern double HullMaxY;
extern double HullMaxZ;
/// The largest interpolated X; the transom itself never counts. Written by RecomputeHull.
extern double MaxHalfBeam;
/// HullMaxX / 25, the blank border of every view. Written by RecomputeHull.
extern float ViewMargin;

extern std::string HullFileName;  ///< relative to the working folder unless a path was chosen
extern std::string ExportPath;    ///< folder for exports, ending in a separator once set

/// The info texts of a design, byte by byte as the hull file holds them.
extern std::string HullDesigner;
extern std::string HullInfo;
extern std::string HullContact;
extern std::string HullDate;

extern std::string NestMark;  ///< state of the nesting window's mark, kept with the hull

extern double BallastWeight;
extern double BallastStation;
extern double BallastHeight;
extern double HullFileSpare;  ///< read and written with the hull and nothing else

/// The program's pi for the view rotations and the quadrant of the panel expansion.
inline constexpr double PiVal = 3.1415927;
/// Half turns of angles in degrees elsewhere. The two differ on purpose, each in its place.
inline constexpr double CoarsePi = 3.1415;

/// Every table and scalar above as it is before anything is read, with the built-in hull of six
/// chines, four of them in use.
void SetDefaultHull();

/// Erases the offsets and the hull points.
void EraseHull();
