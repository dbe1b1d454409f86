#include <cmath>
#include <cstring>
#include <string>

#include "FuzzTargets.h"
#include "common/DateText.h"
#include "common/Error.h"
#include "common/LetterCase.h"
#include "common/NumberText.h"
#include "common/TextEncoding.h"
#include "common/clsCommon.h"
#include "storage/CaseText.h"

namespace orve::fuzz {

namespace {

void Numbers(std::string_view input) {
  float value = 0;
  std::memcpy(&value, input.data(), std::min(input.size(), sizeof value));
  FormatFixed(value, 3);
  FormatSigned(value);
  if (!std::isfinite(value)) return;
  Require(TextToSingle(ShortestText(value)) == value, "a number comes back from its shortest text");
  const std::string text = SevenDigitText(value);
  Require(SevenDigitText(TextToSingle(text)) == text, "a number's text comes back");
}

void Dates(std::string_view input) {
  if (const auto date = ParseDate(input)) {
    Require(ParseDate(DateText(*date)) == date, "a date comes back from its text");
    LongDateText(*date);
    LongTimeText(*date);
  }
}

void Conversions(const std::string& text) {
  const clsCommon common;
  common.MakeNumeric(text, "");
  common.MakeDate(text, 0);
  common.MakeBoolean(text, false);
  try {
    Require(!IsNumericText(text) || std::isfinite(TextToSingle(text)), "a numeric text is a number");
    TextToInt16(text);
    TextToBool(text);
  } catch (const Error&) {
  }
}

void Descriptions(std::string_view input) {
  const std::string written = EncodeCaseText(input);
  Require(DecodeCaseText(written) == input, "a text comes back from its value");
  Require(written.find_first_of("\r\n[") == std::string::npos && !written.ends_with(' '),
          "a value fits its line");
  DecodeCaseText(input);
  const std::string text = ToUtf8(input);
  Require(ToUtf8(text) == text, "a converted text is UTF-8");
  const std::string upper = UpperCase(text);
  Require(UpperCase(upper) == upper, "upper case stands");
}

}  // namespace

void Texts(std::string_view input) {
  Numbers(input);
  Dates(input);
  Conversions(std::string(input));
  Descriptions(input);
}

}  // namespace orve::fuzz
