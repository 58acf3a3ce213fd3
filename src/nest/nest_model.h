#pragma once
// The shared tables of nesting, and reading "handplot.txt" into them.
//
// Lengths are inches, angles degrees. The sheets lie in a row from (0, 0), side by side along X.
// A part stands for two instances, itself and its copy, with the same number of points and an outline
// and a position each. Parts are numbered from 1; List1 holds their names, row r that of part r + 1.
// Number 0 stands for no part: its cells exist, so that a handler without a current part does no harm.

#include <array>
#include <string>
#include <string_view>

#include "base/table.h"

inline constexpr int MostNestParts = 30;
inline constexpr int MostNestPoints = 50;
inline constexpr int MostSheets = 5;

using NestPlaces = Table<MostNestParts + 1>;
using NestOutlines = Table<MostNestParts + 1, MostNestPoints + 1>;

extern int NestPartCount;
/// Points of each outline, those beyond the tables counted as well.
extern NestPlaces NestPointCount;
/// Outlines relative to the middle of their extents, indexed (part, point from 1). Written by
/// ReadHandPlot, turned and flipped by the buttons.
extern NestOutlines NestX;
extern NestOutlines NestY;
extern NestOutlines NestCopyX;
extern NestOutlines NestCopyY;
/// Where the middle lies on the sheet row.
extern NestPlaces NestPosX;
extern NestPlaces NestPosY;
extern NestPlaces NestCopyPosX;
extern NestPlaces NestCopyPosY;
/// 1 for an instance that is on the sheets, else 0.
extern NestPlaces NestShown;
extern NestPlaces NestCopyShown;
/// Extents of the outline as it was read.
extern NestPlaces NestWidth;
extern NestPlaces NestHeight;

extern int NestCurrent;       ///< the current part, 0 for none
extern int NestCopySelected;  ///< 0 when the part is the selected instance, 1 when its copy is

/// The sheets, as ReadSheets last found them in the boxes.
extern double SheetHeight;
extern double SheetLength;
extern double SheetRowLength;

/// The point that the snap read-out showed last; no value before the first.
extern double NestSnapX;
extern double NestSnapY;
/// Whether its distances stand on the picture. A paint takes them off; drawn twice, smoothed letters
/// would grow fat.
extern bool NestSnapDrawn;

struct NestPoint {
  double x;
  double y;
};

/// One of the two kinds of instances with its tables, so that a rule for both stands once.
struct NestInstance {
  const char* prefix;  ///< what stands before the part's name
  NestOutlines& x;
  NestOutlines& y;
  NestPlaces& pos_x;
  NestPlaces& pos_y;
  NestPlaces& shown;

  /// A point of the outline, on the sheet row.
  NestPoint OnSheets(int p, int k) const { return {x(p, k) + pos_x(p), y(p, k) + pos_y(p)}; }
  NestPoint Center(int p) const { return {pos_x(p), pos_y(p)}; }
  bool Shown(int p) const { return shown(p) == 1; }
};

/// The parts first, then the copies: indexed by NestCopySelected.
extern const std::array<NestInstance, 2> NestInstances;

/// The points of a part that the tables hold.
int StoredPoints(int p);
/// The name from List1; empty if there is no such row.
std::string NestName(int p);

/// Sets the three sheet numbers from Text1, Text2 and the options. A number too large keeps what it
/// was.
void ReadSheets();
/// 3, 4 or 5, by the options.
int SheetCount();
/// Which sheet of the row x lies on, 1 to 5: a seam belongs to the sheet on its left, and the first
/// takes all that lies farther left. 0 beyond the fifth, however many sheets the row has.
int SheetAt(double x);
/// "12-3": the whole inches of one number, and the eighths of another, 0 to 8 without a carry.
std::string InchesAndEighths(double inches, double eighths_of);

/// Puts every table of the parts into its start state, takes the selection away and empties List1.
void ForgetNest();
/// Forgets all parts and takes those of a hand plotting table, whatever its bytes: names, outlines,
/// positions in the first corner, the window's caption. Parts and points beyond the tables are read
/// past. The part that meets the end of the text stays as it is in the table: not centered, its
/// extents 0. HullMaxX and HullMaxY end as the largest X and Y of the last part.
void ReadHandPlot(std::string_view text);

/// Shows the window with the parts of "handplot.txt", all hidden, on three sheets.
void Form2_Load();
/// Forgets the parts, puts the controls back and hides the window; NestMark stays. The next dummy15_Click
/// loads anew.
void Form2_Unload();
/// Shows the window, loaded if it was not, and ticks Check1 by NestMark, which stays as it is.
void dummy15_Click();
/// NestMark becomes the value of Check1, as the hull file writes numbers.
void Form2_Check1_Click();
