#pragma once
// Numbers to texts and back, the same under every locale: the leading numeric part of a text, the
// print form of files, the masks of the windows and tables, and the whole-number rules. A number
// that has no value gives an empty text.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The leading numeric part of a text: leading blanks, a sign, digits, a point, an exponent by E
/// or D. 0 for a text without one; "no value" for a number too large for a double.
double NumberOf(std::string_view text);

/// How many characters of the text its leading numeric part takes, blanks in front included;
/// 0 if it has none.
std::size_t NumericLength(std::string_view text);

/// Up to 15 significant digits without trailing zeros, no sign place: "0.25", "-3", "1E-05",
/// "1E+15". Exponents stand below 1e-4 and from 1e15. Zero never has a sign.
std::string PlainText(double value);

/// The signed-number form: a blank or "-" in the sign place, then the digits: " 0.25".
std::string SignedText(double value);
/// The same for single precision: 7 digits, exponents from 1e7: " 1.234568E+07".
std::string SignedText(float value);

/// The print form of files: the signed-number form with one blank behind: " 0.25 ".
std::string PrintText(double value);

void AppendPrintText(std::string& out, double value);

/// More characters than any of these forms takes.
inline constexpr std::size_t NumberRoom = 32;
/// The print form for writers of very many numbers: writes into a place of NumberRoom characters and
/// returns how many. The value must be one.
std::size_t WritePrintText(char* to, double value);

/// Appends a number that is whole already as bare digits, never with an exponent.
void AppendWhole(std::string& out, double value);

/// The masks "0", "0.0", "0.00", "0.000": the value is taken to 15 significant digits and then rounded half
/// away from zero. A negative value that rounds to zero keeps its minus; a true zero has none.
std::string FixedText(double value, int decimals);
void AppendFixedText(std::string& out, double value, int decimals);

/// The masks "0.#", "0.##": the same, but trailing zeros are left out and the point stays: "5.", "0.75".
std::string FixedTextAtMost(double value, int decimals);

/// Nearest whole number, halves to the even one.
double RoundHalfEven(double value);

/// The same as a whole number of 16 bits, the range of scroll bars; nothing outside of it.
std::optional<int> ToWhole(double value);
