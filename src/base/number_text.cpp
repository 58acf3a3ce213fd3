#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

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

template <class Number>
void AppendNumber(std::string& out, Number value, int significant, std::string_view sign_place) {
  if (!std::isfinite(value)) {
    return;
  }
  if (value == 0) {
    out += sign_place;
    out += '0';
    return;
  }
  if (value < 0) {
    out += '-';
  } else {
    out += sign_place;
  }
  AppendGeneral(out, ToDecimal(value, significant), significant);
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
  AppendNumber(out, value, 15, "");
  return out;
}

std::string SignedText(double value) {
  std::string out;
  AppendNumber(out, value, 15, " ");
  return out;
}

std::string SignedText(float value) {
  std::string out;
  AppendNumber(out, value, 7, " ");
  return out;
}

std::string PrintText(double value) {
  std::string out;
  AppendPrintText(out, value);
  return out;
}

void AppendPrintText(std::string& out, double value) {
  AppendNumber(out, value, 15, " ");
  out += ' ';
}

void AppendWhole(std::string& out, double value) {
  std::array<char, 400> buffer;
  char* const end = buffer.data() + buffer.size();
  const bool small = std::abs(value) < 9e18;
  const auto written = small ? std::to_chars(buffer.data(), end, static_cast<long long>(value))
                             : std::to_chars(buffer.data(), end, value, std::chars_format::fixed, 0);
  out.append(buffer.data(), written.ptr);
}

void AppendFixedText(std::string& out, double value, int decimals) {
  if (!HasValue(value)) {
    return;
  }
  if (value < 0) {
    out += '-';
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
