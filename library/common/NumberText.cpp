#include "common/NumberText.h"

#include <algorithm>
#include <array>
#include <cfenv>
#include <charconv>
#include <cmath>

#include "common/Error.h"
#include "common/LetterCase.h"
#include "common/Narrow.h"
#include "common/TextEncoding.h"

namespace orve {

namespace {

constexpr std::string_view Blanks = " \t";

// The shortest decimal digits of a value: 0.d1d2d3... times ten to the exponent.
struct Decimal {
  bool negative = false;
  std::array<char, 20> digits{};
  int count = 0;
  int exponent = 0;

  bool IsZero() const { return count == 0; }
};

template <class Float>
Decimal Decompose(Float value) {
  Decimal decimal;
  decimal.negative = std::signbit(value);
  char text[40];
  const auto end =
      std::to_chars(text, text + sizeof text, std::abs(value), std::chars_format::scientific).ptr;
  const char* exponent = std::find(text, end, 'e');
  for (const char* digit = text; digit != exponent; ++digit)
    if (*digit != '.') decimal.digits[decimal.count++] = *digit;
  while (decimal.count > 0 && decimal.digits[decimal.count - 1] == '0') --decimal.count;
  const char* first = exponent + (exponent[1] == '+' ? 2 : 1);
  std::from_chars(first, end, decimal.exponent);
  ++decimal.exponent;
  return decimal;
}

// Rounds to a number of places behind the point, halves away from zero.
Decimal Round(Decimal decimal, int places) {
  const int keep = decimal.exponent + places;
  if (keep >= decimal.count) return decimal;
  const bool up = keep >= 0 && decimal.digits[keep] >= '5';
  decimal.count = std::max(keep, 0);
  if (!up) return decimal;
  while (decimal.count > 0 && decimal.digits[decimal.count - 1] == '9') --decimal.count;
  if (decimal.count > 0) {
    ++decimal.digits[decimal.count - 1];
  } else {
    decimal.digits[0] = '1';
    decimal.count = 1;
    ++decimal.exponent;
  }
  return decimal;
}

char DigitAt(const Decimal& decimal, int position) {
  return position >= 0 && position < decimal.count ? decimal.digits[position] : '0';
}

std::string PlainText(std::string_view sign, const Decimal& decimal, int places) {
  std::string text(sign);
  const int whole = decimal.IsZero() ? 0 : decimal.exponent;
  if (whole <= 0) text += '0';
  for (int position = 0; position < whole; ++position) text += DigitAt(decimal, position);
  if (places > 0) text += '.';
  for (int place = 0; place < places; ++place) text += DigitAt(decimal, whole + place);
  return text;
}

std::string NotFinite(double value) {
  return std::isnan(value) ? "nan" : std::signbit(value) ? "-inf" : "inf";
}

template <class Float>
std::string Fixed(Float value, int places) {
  if (!std::isfinite(value)) return NotFinite(value);
  const Decimal decimal = Round(Decompose(value), places);
  const bool sign = decimal.negative && !decimal.IsZero();
  return PlainText(sign ? "-" : "", decimal, places);
}

template <class Float>
std::string Signed(Float value) {
  if (!std::isfinite(value)) return NotFinite(value);
  constexpr int places = 3;
  return PlainText(value < 0 ? "-" : "+", Round(Decompose(value), places), places);
}

template <class Float>
std::string Shortest(Float value) {
  if (!std::isfinite(value)) return NotFinite(value);
  if (value == 0) return "0";
  char text[64];
  const Float size = std::abs(value);
  const bool plain = size >= Float(1e-5) && size < Float(1e15);
  const auto form = plain ? std::chars_format::fixed : std::chars_format::scientific;
  const auto end = std::to_chars(text, text + sizeof text, value, form).ptr;
  std::replace(text, end, 'e', 'E');
  return std::string(text, end);
}

std::size_t SkipDigits(std::string_view text, std::size_t position) {
  while (position < text.size() && IsDigit(text[position])) ++position;
  return position;
}

// Where the number at the start of a text ends; 0 if there is none.
std::size_t NumberLength(std::string_view text) {
  std::size_t position = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  const std::size_t whole = position;
  position = SkipDigits(text, position);
  std::size_t digits = position - whole;
  if (position < text.size() && text[position] == '.') {
    const std::size_t fraction = ++position;
    position = SkipDigits(text, position);
    digits += position - fraction;
  }
  if (digits == 0) return 0;
  if (position < text.size() && (text[position] == 'e' || text[position] == 'E')) {
    std::size_t exponent = position + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t end = SkipDigits(text, exponent);
    if (end > exponent) position = end;
  }
  return position;
}

// Whether a number that doesn't fit is too small rather than too large: its first digit that isn't 0 stands
// far behind the point.
bool IsTiny(std::string_view number) {
  const std::size_t mark = number.find_first_of("eE");
  const std::string_view mantissa = number.substr(0, mark);
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return true;
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  if (mark != std::string_view::npos && number.size() - mark > 8) return number[mark + 1] == '-';
  long exponent = 0;
  if (mark != std::string_view::npos) {
    const std::size_t sign = number[mark + 1] == '+' ? 2 : 1;
    std::from_chars(number.data() + mark + sign, number.data() + number.size(), exponent);
  }
  return exponent + static_cast<long>(point) - static_cast<long>(first) < 0;
}

// Rounding to nearest while a text is read: the standard library works short numbers out with a division,
// which follows the mode that the host has set.
class RoundingToNearest {
 public:
  RoundingToNearest() {
    if (m_mode != FE_TONEAREST) std::fesetround(FE_TONEAREST);
  }
  ~RoundingToNearest() {
    if (m_mode != FE_TONEAREST) std::fesetround(m_mode);
  }
  RoundingToNearest(const RoundingToNearest&) = delete;
  RoundingToNearest& operator=(const RoundingToNearest&) = delete;

 private:
  int m_mode = std::fegetround();
};

template <class Float>
Float Convert(std::string_view text) {
  std::string_view number = TrimBlanks(text);
  if (number.empty() || NumberLength(number) != number.size())
    throw Error(ErrorNumber::TypeMismatch, "Type mismatch: \"" + ShortText(text) + "\" isn't a number");
  if (number[0] == '+') number.remove_prefix(1);
  const RoundingToNearest rounding;
  Float value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  if (!IsTiny(number)) RaiseOverflow();
  return 0;
}

bool EqualsIgnoringCase(std::string_view text, std::string_view lower) {
  return std::equal(text.begin(), text.end(), lower.begin(), lower.end(), [](char a, char b) {
    return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
  });
}

}  // namespace

std::string ShortestText(float value) {
  return Shortest(value);
}
std::string ShortestText(double value) {
  return Shortest(value);
}

std::string SevenDigitText(float value) {
  if (!std::isfinite(value)) return NotFinite(value);
  if (value == 0) return "0";
  constexpr int significant = 7;
  char text[40];
  const auto end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::general, significant).ptr;
  std::replace(text, end, 'e', 'E');
  return std::string(text, end);
}

std::string FormatFixed(float value, int places) {
  return Fixed(value, places);
}
std::string FormatFixed(double value, int places) {
  return Fixed(value, places);
}
std::string FormatSigned(float value) {
  return Signed(value);
}
std::string FormatSigned(double value) {
  return Signed(value);
}

bool IsNumericText(std::string_view text) {
  const std::string_view number = TrimBlanks(text);
  return !number.empty() && NumberLength(number) == number.size();
}

float TextToSingle(std::string_view text) {
  return Convert<float>(text);
}
double TextToDouble(std::string_view text) {
  return Convert<double>(text);
}
std::int16_t TextToInt16(std::string_view text) {
  return ToInt16(TextToDouble(text));
}
std::int32_t TextToInt32(std::string_view text) {
  return ToInt32(TextToDouble(text));
}

bool TextToBool(std::string_view text) {
  const std::string_view word = TrimBlanks(text);
  if (EqualsIgnoringCase(word, "true")) return true;
  if (EqualsIgnoringCase(word, "false")) return false;
  return TextToDouble(text) != 0;
}

std::string BoolText(bool value) {
  return value ? "True" : "False";
}

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(Blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

}  // namespace orve
