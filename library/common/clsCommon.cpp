#include "common/clsCommon.h"

#include <algorithm>
#include <cmath>

#include "common/DateText.h"
#include "common/LetterCase.h"
#include "common/Narrow.h"
#include "common/NumberText.h"

namespace orve {

namespace {

constexpr double FullCircle = 360;
constexpr double SectorWidth = 30;
constexpr int SectorCount = 12;

void RefuseZeroDivisor(bool zero) {
  if (zero) throw Error(ErrorNumber::DivisionByZero, "Division by zero");
}

std::string CutFront(std::string text) {
  while (!text.empty() && !IsDigit(text.front()) && !IsNumericText(text.substr(0, 2))) text.erase(0, 1);
  return text;
}

std::string CutBack(std::string text) {
  while (!text.empty() && !IsDigit(text.back()) &&
         !IsNumericText(text.substr(text.size() - std::min<std::size_t>(text.size(), 2))))
    text.pop_back();
  return text;
}

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

}  // namespace

double clsCommon::FractionalMod(double value, double modulus) const {
  const double divisor = RoundHalfEven(modulus);
  RefuseZeroDivisor(divisor == 0);
  return value - modulus * std::trunc(RoundHalfEven(value) / divisor);
}

float clsCommon::AngleToPositive(float angle) const {
  const float shifted = ToSingle(angle + FullCircle);
  return ToSingle(FractionalMod(shifted, FullCircle));
}

std::int16_t clsCommon::AngleToIndex(float angle) const {
  const double position = std::floor((AngleToPositive(angle) + SectorWidth / 2) / SectorWidth);
  const int index = ToInt16(position) % SectorCount;
  return static_cast<std::int16_t>(index < 0 ? index + SectorCount : index);
}

float clsCommon::IndexToAngle(std::int16_t index) const {
  const std::int16_t angle = ToInt16(index * static_cast<int>(SectorWidth));
  return static_cast<float>(angle % static_cast<int>(FullCircle));
}

float clsCommon::ValueForIntermediateAngle(float angle1, float angle2, float value1, float value2,
                                           float angle) const {
  if (angle2 < angle1) angle2 = ToSingle(angle2 + FullCircle);
  if (angle > angle2) angle = ToSingle(angle - FullCircle);
  if (angle < angle1) angle = ToSingle(angle + FullCircle);
  RefuseZeroDivisor(angle1 == angle2);
  const double slope = (double(value1) - value2) / (double(angle1) - angle2);
  return ToSingle(slope * (double(angle) - angle1) + value1);
}

float clsCommon::ValueForIntermediateSetting(float setting1, float setting2, float value1, float value2,
                                             float setting) const {
  if (setting1 == setting2) return value1;
  const double slope = (double(value1) - value2) / (double(setting1) - setting2);
  return ToSingle(slope * (double(setting) - setting1) + value1);
}

std::int32_t clsCommon::ReverseSign(std::int32_t value) const {
  return ToInt32(-static_cast<double>(value));
}

double clsCommon::CubeRoot(double value) const {
  if (value < 0)
    throw Error(ErrorNumber::InvalidArgument, "Invalid power: the cube root of a negative value");
  return std::pow(value, 1.0 / 3.0);
}

std::string clsCommon::MakeNumeric(const std::string& value, const std::string& defaultText) const {
  const std::string cut = IsNumericText(value) ? value : CutBack(CutFront(value));
  return IsNumericText(cut) ? std::string(TrimBlanks(cut)) : defaultText;
}

std::string clsCommon::MakeNumeric(std::int32_t value, const std::string& defaultText) const {
  return value == 0 ? defaultText : std::to_string(value);
}

std::string clsCommon::MakeNumeric(float value, const std::string& defaultText) const {
  return value == 0 ? defaultText : ShortestText(value);
}

std::string clsCommon::MakeNumeric(double value, const std::string& defaultText) const {
  return value == 0 ? defaultText : ShortestText(value);
}

std::string clsCommon::MakeString(const char* value, const std::string& defaultText) const {
  return value == nullptr ? defaultText : value;
}

std::string clsCommon::MakeString(const std::string& value, const std::string&) const {
  return value;
}

std::string clsCommon::MakeString(std::int32_t value, const std::string&) const {
  return std::to_string(value);
}

std::string clsCommon::MakeString(float value, const std::string&) const {
  return ShortestText(value);
}

std::string clsCommon::MakeString(double value, const std::string&) const {
  return ShortestText(value);
}

double clsCommon::MakeDate(const std::string& value, double defaultDate) const {
  return ParseDate(value).value_or(defaultDate);
}

bool clsCommon::MakeBoolean(const std::string& value, bool defaultValue) const {
  const std::string word = UpperCase(TrimBlanks(value));
  if (IsOneOf(word, {"FALSE", "0", "NO", "N"})) return false;
  if (IsOneOf(word, {"TRUE", "1", "-1", "YES", "Y"})) return true;
  return defaultValue;
}

bool clsCommon::MakeBoolean(double value, bool defaultValue) const {
  const std::int16_t whole = ToInt16(value);
  if (whole == 0) return false;
  return whole == 1 || whole == -1 ? true : defaultValue;
}

double clsCommon::RoundArithmetically(double value, std::int16_t places) const {
  const double scale = std::pow(10.0, places);
  return std::floor(value * scale + 0.5) / scale;
}

bool clsCommon::CheckFixedDecimalPlace(std::int16_t places, std::int16_t comparison, double a,
                                       double b) const {
  const double scale = std::pow(10.0, places);
  const std::int32_t first = ToInt32(a * scale);
  const std::int32_t second = ToInt32(b * scale);
  switch (comparison) {
    case 0:
      return first == second;
    case 1:
      return first > second;
    case 2:
      return first < second;
    case 3:
      return first >= second;
    case 4:
      return first <= second;
    default:
      return false;
  }
}

}  // namespace orve
