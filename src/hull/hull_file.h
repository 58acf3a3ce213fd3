#pragma once
// The hull file ".tvh": one value a line, told by position alone. The one reader and the one writer
// that all callers use, as texts and as files.
//
// Field  Lines  Content
//   1      1    NumChines, N
//   2    15 N   for bulkhead 0..4, for chine 1..N: OffX, OffY, OffZ
//   3      1    "-1" if AutoSpline is checked, else "0"
//   4    39 N   for station 1..13, for chine 1..N: HullPts 1, 2, 3
//   5      8    FrameZ(0..7), an empty line for one never set
//  6-12    7    the rig boxes of Form4, as typed
// 13-14    2    its step options, "True" or "False"
// 15-19    5    HullDesigner, HullInfo, HullContact, HullDate, NestMark
// 20-23    4    BallastWeight, BallastStation, BallastHeight, HullFileSpare
//
// Older files end behind field 2 or field 3.

#include <array>
#include <string>
#include <string_view>

#include "controls/controls.h"

/// The reader's two callers, which differ in what they erase, store and show.
enum class HullReader {
  StartUp,   ///< the tables stay as they are before reading; frames are stored as numbers
  FileList,  ///< the tables are erased first; frames are stored as texts; ends with Form1.Refresh
};

/// Rewrites the file with every comma turned into a point, so that decimal commas read as numbers.
/// Leaves a copy in "temp.txt" of the working folder. A file that can't be written stays as it is.
void NormalizeHullFile(std::string_view path);

/// Reads a hull file into the tables and the boxes, and puts "Working on..." and HullFileName into
/// panel 1. What is missing keeps its value up to field 3 and reads as 0 or empty behind it, but
/// for the first missing hull point, whose X and Y repeat the last item read.
/// The count of chines is held to 2..30; what a larger count announces is read past and dropped.
void LoadHullFile(std::string_view path, HullReader reader);
/// The same from the text of a hull file.
void LoadHull(std::string_view text, HullReader reader);

/// Creates or replaces the file with fields 1 to 23.
void WriteHullFile(std::string_view path);
/// Fields 1 to 23 as text, from the tables and Form4's boxes as they stand.
std::string HullText();

/// A text with its commas turned into points.
std::string WithPoints(std::string_view text);

/// The rig boxes of Form4 in the order of fields 6 to 12.
std::array<TextBox*, 7> RigBoxes();
