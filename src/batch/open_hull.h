#pragma once
// Opening the hull that a command works on.

#include <optional>
#include <string>

/// A hull file in memory: its own name and its text. Both empty stand for the built-in hull.
struct HullSource {
  std::string name;
  std::string text;
};

/// Reads and checks a hull file, which is left as it is; an empty path gives the built-in hull.
/// Complains and gives nothing if the file is no hull.
std::optional<HullSource> ReadHull(const std::string& path);

/// Starts the program's tables anew and opens the hull as the Open window does.
void OpenHull(const HullSource& hull);
