#pragma once
// The commands of the program, each with what its arguments say. They return the exit status.

#include <optional>
#include <string>
#include <vector>

struct PatternsArguments {
  std::string hull;  ///< empty for the built-in hull
  std::string into = ".";
  std::string export_path;  ///< empty for the folder of `into`
  bool keel = false;
  bool deck = false;
  bool soles = false;
  bool stem = false;
  bool spar = false;
  bool text = false;
  bool half_frames = false;
  bool dxf = false;
  bool hpgl = false;
  std::vector<double> frames;
  std::string date;
  std::string time;
};

/// Runs the chain as the Save button does, in a working folder of its own.
int RunPatterns(const PatternsArguments& arguments);

struct PointsArguments {
  std::string hull;  ///< empty for the built-in hull
  std::string format = "csv";
};

/// Prints the interpolated hull.
int RunPoints(const PointsArguments& arguments);

struct HydrostaticsArguments {
  std::string hull;  ///< empty for the built-in hull
  std::optional<double> waterline;
  std::optional<double> displacement;
  std::optional<double> from;
  std::optional<double> to;
  std::optional<double> step;
  bool sea = false;
  std::optional<double> pitch;
  std::vector<double> heel;
  std::string format = "text";
  std::string into;  ///< where the waterplane goes; empty to leave none behind
};

/// Prints the hydrostatics at one waterline or at several, upright or at one heel or several.
int RunHydrostatics(const HydrostaticsArguments& arguments);

struct VrmlArguments {
  std::string hull;  ///< empty for the built-in hull
  std::string into = ".";
};

/// Writes the hull as a solid for viewers, as the button "VRML" does.
int RunVrml(const VrmlArguments& arguments);

struct NestArguments {
  std::string hand_plot;  ///< a table as "handplot.txt"
  std::string layout;     ///< JSON, see nest_layout.h
  std::string out;        ///< the file to write
  std::string hull;       ///< the name on it; empty for the one in the table's title
  std::string date;
  std::string time;
};

/// Lays parts out on sheets and writes the table for marking them out by hand.
int RunNestTable(const NestArguments& typed);

struct NestPrintArguments {
  NestArguments nest;
  std::string fit = "print";
};

/// Lays parts out on sheets and writes a PDF file with a page a sheet.
int RunNestPrint(const NestPrintArguments& typed);
