#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>

#include "base/number_text.h"
#include "batch/commands.h"
#include "batch/open_hull.h"
#include "batch/report.h"
#include "hull/hull_model.h"

namespace {

/// A number to 15 significant digits: JSON then writes no more than those.
double Rounded(double value) {
  return NumberOf(PlainText(value));
}

template <class Take>
void ForEachPoint(Take take) {
  for (int c = 1; c <= NumChines; ++c) {
    for (int s = 1; s <= Stations; ++s) {
      take(c, s, HullPts(1, s, c), HullPts(2, s, c), HullPts(3, s, c));
    }
  }
}

void PrintCsv() {
  std::cout << "chine,station,X,Y,Z\n";
  ForEachPoint([](int c, int s, double x, double y, double z) {
    std::cout << c << ',' << s << ',' << PlainText(x) << ',' << PlainText(y) << ',' << PlainText(z) << '\n';
  });
}

void PrintJson() {
  nlohmann::ordered_json hull;
  hull["NumChines"] = NumChines;
  hull["HullMaxX"] = Rounded(HullMaxX);
  hull["HullMaxY"] = Rounded(HullMaxY);
  hull["HullMaxZ"] = Rounded(HullMaxZ);
  hull["MaxHalfBeam"] = Rounded(MaxHalfBeam);
  nlohmann::ordered_json& points = hull["points"];
  ForEachPoint([&points](int c, int s, double x, double y, double z) {
    points.push_back({{"chine", c}, {"station", s}, {"X", Rounded(x)}, {"Y", Rounded(y)}, {"Z", Rounded(z)}});
  });
  std::cout << hull.dump(2) << '\n';
}

}  // namespace

int RunPoints(const PointsArguments& arguments) {
  WatchFiles();
  const std::optional<HullSource> hull = ReadHull(arguments.hull);
  if (!hull) {
    return CouldNot;
  }
  OpenHull(*hull);
  if (arguments.format == "json") {
    PrintJson();
  } else {
    PrintCsv();
  }
  return Done;
}
