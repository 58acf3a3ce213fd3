#pragma once
// The hydrostatic state and the pass that computes it. Lengths are inches, areas square inches,
// volumes cubic inches, weights pounds, angles degrees.

/// Input of the pass.
extern double WaterlineY;  ///< height of the waterline; the searches write it too, all else goes by HScroll1
extern double WaterDensity;  ///< pounds per US gallon

inline constexpr double FreshwaterDensity = 8.3305;  ///< at 20 degrees C
inline constexpr double SeawaterDensity = 8.5556;

/// Results, shared by all handlers. Each keeps its value when its statement fails.
extern double DisplacedVolume;  ///< whole hull
extern float DisplacementLbs;   ///< whole hull
extern float WaterlineLength;
extern double WaterlineForeZ;
extern double WaterlineAftZ;
extern double BuoyancyCenterX;  ///< of one half of an upright hull, of all of a heeled one
extern double BuoyancyCenterY;
extern double BuoyancyCenterZ;
extern double LateralArea;  ///< immersed profile
extern double LateralCenterY;
extern double LateralCenterZ;
/// During a pass the largest section area; its last step makes it the coefficient.
extern double PrismaticCoeff;
extern double ButtockAngle;         ///< run of chine 2 over the aft stations
extern double DLRatio;              ///< long tons over the cube of a hundredth of the length in feet
extern double SLRatioLimit;         ///< speed/length ratio limited by DLRatio
extern double DisplacementSpeedKt;  ///< knots

/// What was asked for, and whether the last search for a displacement came to its target.
extern double TargetDisplacement;  ///< pounds; 0 until set
extern bool TargetReached;
extern double HeelAngle;

/// Center of gravity of the heel: by definition the centroid of the whole hull volume.
extern double GravityCenterX;
extern double GravityCenterY;
extern double GravityCenterZ;

/// The chosen row of the results, -1 for none.
extern int ResultsListIndex;

/// The state before anything is computed.
void SetDefaultHydrostatics();

/// Integrates the part of HullPts under WaterlineY, whatever HullPts holds at that moment: sections
/// by triangles, volume by trapezoids between stations, the lateral area by a fan in the profile,
/// the other centers by fans on ten water planes. Rewrites "watrplne.uc", draws the waterplane on
/// Picture2, keeps HScroll1's maximum under a sheer that is under water (which can raise its change
/// event and so run a pass within this one), writes a summary to panel 1, and shows the results.
void ComputeHydrostatics();
