// Any bytes as a nesting layout: it is refused with a short message in plain letters, or it holds what a
// layout may hold, and then the parts lie as it says, whole and stiff.

#include <cmath>
#include <stdexcept>

#include "batch/nest_placing.h"
#include "fuzz_sheets.h"

namespace {

/// Two parts and the one at the end, which has no center.
constexpr std::string_view ThreeParts =
    "Hand plotting file for boat.tvh      12:34:56      11-16-2026\r\nX in.         Y in.\r\n"
    "transom.uc    __________\r\n0.00          0.00\r\n40.00         0.000\r\n36.00         14.00\r\n"
    "deck.uc       __________\r\n0.00          0.00\r\n90.00         0.000\r\n0.00          20.0\r\n"
    "chine1.uc     __________\r\n0.00          0.00\r\n60.00         5.000\r\n";

void ExpectMessage(std::string_view message) {
  Expect(message.find("expected ") != std::string_view::npos && message.size() < 400);
  for (const char c : message) {
    Expect(c >= ' ' && c <= '~');
  }
}

bool IsWithin(double value, double least, double most) {
  return value >= least && value <= most;  // false for what has no value, too
}

void ExpectPlacing(const NestPlacing& placing) {
  Expect(IsWithin(placing.x, -100000, 100000) && IsWithin(placing.y, -100000, 100000));
  Expect(IsWithin(placing.turn, -3600, 3600));
}

void ExpectLayout(const NestLayout& layout) {
  Expect(IsWithin(layout.height, 1, 10000) && IsWithin(layout.length, 1, 10000));
  Expect(layout.sheets >= 3 && layout.sheets <= 5 && layout.parts.size() <= MostNestParts);
  for (const NestPartLayout& part : layout.parts) {
    Expect(!part.name.empty());
    ExpectPlacing(part.part);
    if (part.copy) {
      ExpectPlacing(*part.copy);
    }
  }
}

double FirstSide(const NestInstance& instance, int p) {
  return std::hypot(instance.x(p, 2) - instance.x(p, 1), instance.y(p, 2) - instance.y(p, 1));
}

/// A placing moves a part without bending it.
void ExpectPlaced(const NestInstance& instance, int p, const NestPlacing& placing) {
  constexpr double sides[] = {0, 40, 90, 60.2079728939615};  // the last: the root of 3625
  Expect(instance.Shown(p) && instance.pos_x(p) == placing.x && instance.pos_y(p) == placing.y);
  Expect(std::abs(FirstSide(instance, p) - sides[p]) < 1e-9);
}

void ExpectLaidOut(const NestLayout& layout) {
  Expect(SheetCount() == layout.sheets && std::abs(SheetHeight - layout.height) < 1e-9);
  for (const NestPartLayout& part : layout.parts) {
    for (int p = 1; p <= NestPartCount; ++p) {
      if (IsSameName(NestName(p), part.name)) {
        ExpectPlaced(NestInstances[0], p, part.part);
        Expect(NestInstances[1].Shown(p) == part.copy.has_value());
        if (part.copy) {
          ExpectPlaced(NestInstances[1], p, *part.copy);
        }
      }
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  NestLayout layout;
  try {
    layout = ReadNestLayout(TextOf(data, size));
  } catch (const std::invalid_argument& error) {
    ExpectMessage(error.what());
    return 0;
  }
  ExpectLayout(layout);
  const FuzzProgram program;
  ReadHandPlot(ThreeParts);
  if (LayOutParts(layout).empty()) {
    ExpectLaidOut(layout);
  }
  ExpectNestTable(NestTableText());
  ExpectPages();
  return 0;
}
