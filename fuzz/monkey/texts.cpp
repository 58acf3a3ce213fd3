#include "monkey/texts.h"

#include <cmath>
#include <string_view>

#include "base/number_text.h"

using namespace std::literals;

namespace {

/// Line ends and NUL can't be entered into a box of one line, so there are none; and no number so near
/// to the largest of all that its 15 digits are beyond it.
constexpr std::string_view OddTexts[] = {
    "",
    " ",
    "0",
    "-0",
    "-0.0",
    "-1",
    "1e308",
    "-1e308",
    "1.797e308",
    "1e309",
    "-1D400",
    "5e-324",
    "1e-310",
    "1e155",
    "1e17",
    "1000000",
    "32767.5",
    "3276.8",
    "0.000001",
    "5-4+",
    "5-4-",
    "5-4",
    "-",
    "+",
    "--",
    "5-",
    "-5-4",
    "1e308-8+",
    "1,5",
    "1,5,7",
    ",",
    ".",
    "..",
    "1.2.3",
    "inf",
    "nan",
    "0x10",
    "1e",
    "1e+",
    "12''",
    "six",
    "\"quoted\"",
    "'",
    "tab\there",
    "bell\a",
    "\x1b[31m",
    "K\xc3\xbcstenwind \xe2\x80\x94 \xe8\x88\xb9 \xf0\x9f\x9b\xb6",
    "\xff\xfe not a letter",
    "True",
    "uc",
    "end",
    "handplot",
    "____",
};

/// The sum, the square or the cube of one of these may be no number any more.
constexpr std::string_view LargeNumbers[] = {"1e308", "-1e308", "1.797e308", "9e307",
                                             "1e200", "1e155",  "3e103"};

constexpr std::string_view FileNames[] = {
    "default.tvh",  "boat",        "boat.tvh",        "skiff.v2.tvh", "longer than eight",
    "sub/boat.tvh", "sub\\skiff",  "missing/x",       ".tvh",         ".",
    "..",           "../up.txt",   "B\xc3\xb6te.tvh", "no, commas",   "tick'\"",
    "a b c",        "DEFAULT.TVH", "chine1.uc",       "handplot.txt", "hull.dat",
    "temp.txt",     "sub",         "../../far.txt",   "x/",
};

}  // namespace

std::string InchesText(Stream& stream) {
  const double inches = stream.OneIn(3) ? stream.Between(0, 12) : stream.Between(0, 200);
  switch (stream.Below(4)) {
    case 0:
      return PlainText(std::floor(inches));
    case 1:
      return PlainText(std::floor(inches)) + "-" + PlainText(stream.Below(8)) + (stream.OneIn(2) ? "+" : "");
    case 2:
      return FixedText(inches, 2) + "''";
    default:
      return FixedText(inches, 3);
  }
}

std::string OddText(Stream& stream) {
  switch (stream.Below(8)) {
    case 0:
      return PlainText(std::pow(10.0, stream.Between(-320, 308)) * (stream.OneIn(2) ? 1 : -1));
    case 1:
      return std::string(static_cast<std::size_t>(stream.Below(3000)), stream.Of("9a ,.-\xc3"sv));
    case 2:
      return std::string(stream.Of(LargeNumbers));
    default:
      return std::string(stream.Of(OddTexts));
  }
}

std::string NumberText(Stream& stream) {
  return stream.IsOdd() ? OddText(stream) : InchesText(stream);
}

std::string FileNameText(Stream& stream) {
  return std::string(stream.Of(FileNames));
}

std::string Quoted(const std::string& text) {
  constexpr std::size_t most = 60;
  constexpr char hex[] = "0123456789abcdef";
  std::string out = "\"";
  for (const char c : text.substr(0, most)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32 || byte == 127) {
      out += std::string("\\x") + hex[byte / 16] + hex[byte % 16];
    } else {
      out += c;
    }
  }
  return out +
         (text.size() > most ? "\"... (" + PlainText(static_cast<double>(text.size())) + " letters)" : "\"");
}
