#pragma once
// A nesting layout as JSON: which parts lie where on which sheets.
//
// {"sheet": {"height": 48, "length": 96, "count": 3},
//  "parts": [{"name": "chine1.uc", "x": 48, "y": 24, "turn": 90, "flip": true,
//             "copy": {"x": 140, "y": 24}}]}

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where an instance lies: its center in inches on the row of sheets. It is flipped first and turned
/// then, in degrees, anticlockwise.
struct NestPlacing {
  double x = 0;
  double y = 0;
  double turn = 0;
  bool flip = false;
};

struct NestPartLayout {
  std::string name;
  NestPlacing part;
  std::optional<NestPlacing> copy;
};

struct NestLayout {
  double height = 48;
  double length = 96;
  int sheets = 3;
  std::vector<NestPartLayout> parts;
};

/// Reads a layout; throws std::invalid_argument, saying where and what was expected, for a text that is
/// no layout.
NestLayout ReadNestLayout(std::string_view text);

/// Whether two names mean the same part: letter case doesn't count, as with files.
bool IsSameName(std::string_view a, std::string_view b);

/// A text from a file as a message can show it: quoted, short, in plain letters.
std::string Quoted(std::string_view text);
