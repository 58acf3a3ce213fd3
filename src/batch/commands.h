#pragma once
// The commands of the program, each with what its arguments say. They return the exit status.

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

/// Starts the program's tables and opens a hull as the Open window does, without touching its file;
/// an empty name leaves the built-in hull. Complains and returns false if the file is no hull.
bool OpenHull(const std::string& path);
