// Texts of numbers and bools, and the numbers in texts. No locale plays a part: the decimal sign is the
// point.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orve {

/// Shortest decimal text that reads back as the same value, at the value's own width (a 32-bit 1.0005 is
/// "1.0005").
std::string ShortestText(float value);
std::string ShortestText(double value);
/// At most seven significant digits in general form ("0.02", "6.185", "1.5E-08"): the form of a float in a
/// case file.
std::string SevenDigitText(float value);

/// The format "0.000" for three places: works on the shortest text and rounds halves away from zero. A value
/// that rounds to zero has no sign.
std::string FormatFixed(float value, int places);
std::string FormatFixed(double value, int places);

/// The format "+0.000;-0.000": the sign of any non-zero value stays ("-0.000"); zero is "+0.000".
std::string FormatSigned(float value);
std::string FormatSigned(double value);

/// True if a text is a plain decimal number with an optional sign and exponent, outer blanks allowed.
bool IsNumericText(std::string_view text);

/// Conversions of texts, outer blanks allowed. Errors: 13 if the text isn't a number, 6 if it doesn't fit.
float TextToSingle(std::string_view text);
double TextToDouble(std::string_view text);
/// A fraction goes to the nearest whole number, halves to even.
std::int16_t TextToInt16(std::string_view text);
std::int32_t TextToInt32(std::string_view text);
/// "True" and "False" in any case, or a number, 0 being False.
bool TextToBool(std::string_view text);
/// "True" or "False".
std::string BoolText(bool value);

/// The text without outer blanks.
std::string_view TrimBlanks(std::string_view text);

}  // namespace orve
