#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "base/skipped_statement.h"

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) {
    ++at;
  }
  return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

/// Behind the exponent that starts at `at`, or `at` itself if none starts there.
std::size_t SkipExponent(std::string_view text, std::size_t at) {
  if (at >= text.size() || std::string_view("EeDd").find(text[at]) == std::string_view::npos) {
    return at;
  }
  const std::size_t digits = SkipSign(text, at + 1);
  const std::size_t end = SkipDigits(text, digits);
  return end == digits ? at : end;
}

struct NumericPart {
  std::size_t first = 0;     // the sign, or the first digit or point
  std::size_t mantissa = 0;  // behind the sign
  std::size_t exponent = 0;  // behind the mantissa
  std::size_t end = 0;       // 0 if the text has no numeric part
};

NumericPart FindNumericPart(std::string_view text) {
  NumericPart part;
  while (part.first < text.size() && IsBlank(text[part.first])) {
    ++part.first;
  }
  part.mantissa = SkipSign(text, part.first);
  std::size_t at = SkipDigits(text, part.mantissa);
  std::size_t digits = at - part.mantissa;
  if (at < text.size() && text[at] == '.') {
    const std::size_t end = SkipDigits(text, at + 1);
    digits += end - (at + 1);
    at = end;
  }
  part.exponent = at;
  part.end = digits == 0 ? 0 : SkipExponent(text, at);
  return part;
}

/// For a number that a double can't hold: 0 if it is too small, "no value" if it is too large.
double OutOfRange(std::string_view mantissa, std::string_view exponent) {
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t leading = mantissa.find_first_not_of("0.");
  if (leading == std::string_view::npos) {
    return 0;
  }
  const bool whole = leading < point;
  const double place = whole ? static_cast<double>(point - leading) : -static_cast<double>(leading - point);
  const bool negative = exponent.size() > 1 && exponent[1] == '-';
  double shift = 0;
  for (const char c : exponent) {
    shift = IsDigit(c) ? std::min(shift * 10 + (c - '0'), 1e9) : shift;
  }
  return place + (negative ? -shift : shift) > 0 ? NoValue : 0;
}

/// The digits of a value and the exponent of the first one, as in d.ddd x 10^exponent.
struct Decimal {
  std::array<char, 24> digits{};
  int count = 0;
  int exponent = 0;
};

/// Reads what std::to_chars wrote in scientific form and drops trailing zeros.
Decimal ReadScientific(const char* from, const char* to) {
  Decimal decimal;
  const char* at = from;
  for (; at != to && *at != 'e'; ++at) {
    if (*at != '.') {
      decimal.digits[static_cast<std::size_t>(decimal.count++)] = *at;
    }
  }
  const char* exponent = at + 1;
  std::from_chars(exponent + (*exponent == '+' ? 1 : 0), to, decimal.exponent);
  while (decimal.count > 1 && decimal.digits[static_cast<std::size_t>(decimal.count) - 1] == '0') {
    --decimal.count;
  }
  return decimal;
}

/// The magnitude of a value to so many significant digits. The shortest form is tried first: when
/// it has no more digits than wanted it is the same number, and it is found much faster.
template <class Number>
Decimal ToDecimal(Number value, int significant) {
  std::array<char, 40> buffer;
  char* const begin = buffer.data();
  char* const end = begin + buffer.size();
  const Number magnitude = std::abs(value);
  auto written = std::to_chars(begin, end, magnitude, std::chars_format::scientific);
  Decimal decimal = ReadScientific(begin, written.ptr);
  if (decimal.count > significant) {
    written = std::to_chars(begin, end, magnitude, std::chars_format::scientific, significant - 1);
    decimal = ReadScientific(begin, written.ptr);
  }
  return decimal;
}

/// Digits from place `from` to before `to`; places outside of the known digits are zeros.
void AppendDigits(std::string& out, const Decimal& decimal, int from, int to) {
  for (int i = from; i < to; ++i) {
    out += i >= 0 && i < decimal.count ? decimal.digits[static_cast<std::size_t>(i)] : '0';
  }
}

/// The digits before the point: the first `whole` of them, or a single zero for a value below 1.
void AppendWholeDigits(std::string& out, const Decimal& decimal, int whole) {
  if (whole <= 0) {
    out += '0';
  } else {
    AppendDigits(out, decimal, 0, whole);
  }
}

void AppendExponent(std::string& out, int exponent) {
  out += exponent < 0 ? "E-" : "E+";
  const int magnitude = std::abs(exponent);
  if (magnitude < 10) {
    out += '0';
  }
  std::array<char, 8> buffer;
  out.append(buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude).ptr);
}

/// General form: plain digits from 1e-4 up to `significant` places, an exponent outside of that.
void AppendGeneral(std::string& out, const Decimal& decimal, int significant) {
  const bool plain = decimal.exponent >= -4 && decimal.exponent < significant;
  const int whole = plain ? decimal.exponent + 1 : 1;
  AppendWholeDigits(out, decimal, whole);
  if (decimal.count > whole) {
    out += '.';
    AppendDigits(out, decimal, whole, decimal.count);
  }
  if (!plain) {
    AppendExponent(out, decimal.exponent);
  }
}

int CountDigits(std::uint64_t number) {
  int digits = 1;
  for (std::uint64_t bound = 10; number >= bound && digits < 19; bound *= 10) {
    ++digits;
  }
  return digits;
}

/// Writes a sign (0 for none) and a whole number of units, so many decimals to one: '-', 12345 and 3
/// is "-12.345". Returns how many characters. Written in place, because many of these are needed.
std::size_t WriteUnits(char* to, char sign, std::uint64_t units, int decimals) {
  const int digits = std::max(CountDigits(units), decimals + 1);
  const std::size_t size = static_cast<std::size_t>(digits) + (sign != 0 ? 1 : 0) + (decimals > 0 ? 1 : 0);
  char* at = to + size;
  for (int place = 0; place < digits; ++place) {
    if (place == decimals && decimals > 0) {
      *--at = '.';
    }
    *--at = static_cast<char>('0' + units % 10);
    units /= 10;
  }
  if (sign != 0) {
    *to = sign;
  }
  return size;
}

/// The short way for what most coordinates are, a number of at most three decimals. It is exact:
/// a decimal of up to `significant` digits that reads as the value is its form of so many digits.
/// Returns how many characters it wrote, 0 if the value needs the long way.
template <class Number>
std::size_t WriteShort(char* to, char sign, Number magnitude, int significant) {
  const double most = significant < 15 ? 1e7 : 1e15;
  if (static_cast<double>(magnitude) < most && magnitude == std::floor(magnitude)) {
    return WriteUnits(to, sign, static_cast<std::uint64_t>(magnitude), 0);
  }
  const double thousandths = static_cast<double>(magnitude) * 1000;
  if (!(thousandths < most)) {
    return 0;
  }
  auto units = static_cast<std::uint64_t>(thousandths + 0.5);
  if (static_cast<Number>(static_cast<double>(units) / 1000) != magnitude) {
    return 0;
  }
  int decimals = 3;
  while (decimals > 0 && units % 10 == 0) {
    units /= 10;
    --decimals;
  }
  return WriteUnits(to, sign, units, decimals);
}

void AppendUnits(std::string& out, char sign, std::uint64_t units, int decimals) {
  std::array<char, NumberRoom> text;
  out.append(text.data(), WriteUnits(text.data(), sign, units, decimals));
}

/// `plus` is what stands in the sign place of a number that is not negative, 0 for nothing.
template <class Number>
void AppendNumber(std::string& out, Number value, int significant, char plus) {
  if (!std::isfinite(value)) {
    return;
  }
  const char sign = value < 0 ? '-' : plus;
  std::array<char, NumberRoom> text;
  const std::size_t size = WriteShort(text.data(), sign, std::abs(value), significant);
  out.append(text.data(), size);
  if (size == 0) {
    if (sign != 0) {
      out += sign;
    }
    AppendGeneral(out, ToDecimal(value, significant), significant);
  }
}

/// Rounds to the digit that stands `decimals` behind the point, halves away from zero.
void RoundDecimal(Decimal& decimal, int decimals) {
  const int keep = decimal.exponent + 1 + decimals;
  if (keep >= decimal.count) {
    return;
  }
  bool carry = keep >= 0 && decimal.digits[static_cast<std::size_t>(keep)] >= '5';
  decimal.count = std::max(keep, 0);
  for (int i = decimal.count - 1; carry && i >= 0; --i) {
    char& digit = decimal.digits[static_cast<std::size_t>(i)];
    carry = digit == '9';
    digit = carry ? '0' : static_cast<char>(digit + 1);
  }
  if (carry) {
    std::copy_backward(decimal.digits.begin(), decimal.digits.begin() + decimal.count,
                       decimal.digits.begin() + decimal.count + 1);
    decimal.digits[0] = '1';
    ++decimal.count;
    ++decimal.exponent;
  }
}

/// The short way for values far from a half, which the steps of the mask can't move across it.
bool AppendFixedShort(std::string& out, char sign, double magnitude, int decimals) {
  constexpr std::array<double, 4> powers = {1, 10, 100, 1000};
  constexpr double near = 1e-4;
  if (decimals >= static_cast<int>(powers.size())) {
    return false;
  }
  const double scaled = magnitude * powers[static_cast<std::size_t>(decimals)];
  if (!(scaled < 1e9) || std::abs(scaled - std::floor(scaled) - 0.5) < near) {
    return false;
  }
  AppendUnits(out, sign, static_cast<std::uint64_t>(scaled + 0.5), decimals);
  return true;
}

}  // namespace

std::size_t NumericLength(std::string_view text) {
  return FindNumericPart(text).end;
}

double NumberOf(std::string_view text) {
  const NumericPart part = FindNumericPart(text);
  if (part.end == 0) {
    return 0;
  }
  const std::string_view mantissa = text.substr(part.mantissa, part.exponent - part.mantissa);
  const std::string_view exponent = text.substr(part.exponent, part.end - part.exponent);
  std::string with_e;
  std::string_view number = text.substr(part.mantissa, part.end - part.mantissa);
  if (!exponent.empty() && (exponent[0] == 'D' || exponent[0] == 'd')) {
    with_e = std::string(mantissa) + "E" + std::string(exponent.substr(1));
    number = with_e;
  }
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (read.ec == std::errc::result_out_of_range) {
    value = OutOfRange(mantissa, exponent);
  }
  return text[part.first] == '-' ? -value : value;
}

std::string PlainText(double value) {
  std::string out;
  AppendNumber(out, value, 15, 0);
  return out;
}

std::string SignedText(double value) {
  std::string out;
  AppendNumber(out, value, 15, ' ');
  return out;
}

std::string SignedText(float value) {
  std::string out;
  AppendNumber(out, value, 7, ' ');
  return out;
}

std::string PrintText(double value) {
  std::string out;
  AppendPrintText(out, value);
  return out;
}

std::size_t WritePrintText(char* to, double value) {
  std::size_t size = WriteShort(to, value < 0 ? '-' : ' ', std::abs(value), 15);
  if (size == 0) {
    size = SignedText(value).copy(to, NumberRoom - 1);
  }
  to[size] = ' ';
  return size + 1;
}

void AppendPrintText(std::string& out, double value) {
  AppendNumber(out, value, 15, ' ');
  out += ' ';
}

void AppendWhole(std::string& out, double value) {
  if (std::abs(value) < 9e18) {
    AppendUnits(out, value < 0 ? '-' : '\0', static_cast<std::uint64_t>(std::abs(value)), 0);
    return;
  }
  std::array<char, 400> buffer;
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 0);
  out.append(buffer.data(), written.ptr);
}

void AppendFixedText(std::string& out, double value, int decimals) {
  if (!HasValue(value)) {
    return;
  }
  const char sign = value < 0 ? '-' : '\0';
  if (AppendFixedShort(out, sign, std::abs(value), decimals)) {
    return;
  }
  if (sign != 0) {
    out += sign;
  }
  Decimal decimal = ToDecimal(value, 15);
  RoundDecimal(decimal, decimals);
  const int whole = decimal.exponent + 1;
  AppendWholeDigits(out, decimal, whole);
  if (decimals > 0) {
    out += '.';
    AppendDigits(out, decimal, whole, whole + decimals);
  }
}

std::string FixedText(double value, int decimals) {
  std::string out;
  AppendFixedText(out, value, decimals);
  return out;
}

std::string FixedTextAtMost(double value, int decimals) {
  std::string text = FixedText(value, decimals);
  text.resize(text.find_last_not_of('0') + 1);
  return text;
}

double RoundHalfEven(double value) {
  return std::nearbyint(value);
}

std::optional<int> ToWhole(double value) {
  const double whole = RoundHalfEven(value);
  if (!(whole >= -32768 && whole <= 32767)) {
    return std::nullopt;
  }
  return static_cast<int>(whole);
}
