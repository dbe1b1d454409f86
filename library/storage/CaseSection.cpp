#include "storage/CaseSection.h"

#include <cmath>
#include <limits>

#include "common/DateText.h"
#include "common/NumberText.h"
#include "common/TextEncoding.h"
#include "storage/CaseText.h"
#include "storage/clsSaveFile.h"

namespace orve {

std::string CaseValueText(bool value) {
  return BoolText(value);
}
std::string CaseValueText(std::int16_t value) {
  return std::to_string(value);
}
std::string CaseValueText(std::int32_t value) {
  return std::to_string(value);
}
std::string CaseValueText(float value) {
  return SevenDigitText(value);
}
std::string CaseValueText(CaseDate value) {
  return DateText(value.value);
}
std::string CaseValueText(const std::string& value) {
  return EncodeCaseText(ToUtf8(value));
}

void ReadCaseValue(std::string_view text, bool& value) {
  value = TextToBool(text);
}
void ReadCaseValue(std::string_view text, std::int16_t& value) {
  value = TextToInt16(text);
}
void ReadCaseValue(std::string_view text, std::int32_t& value) {
  value = TextToInt32(text);
}
void ReadCaseValue(std::string_view text, float& value) {
  // A measure that was set to no finite number comes back too, so that its case still opens.
  constexpr float infinity = std::numeric_limits<float>::infinity();
  for (const float special : {infinity, -infinity, std::numeric_limits<float>::quiet_NaN()}) {
    if (TrimBlanks(text) != SevenDigitText(special)) continue;
    value = special;
    return;
  }
  value = TextToSingle(text);
}
void ReadCaseValue(std::string_view text, CaseDate& value) {
  value.value = TextToDate(text);
}
void ReadCaseValue(std::string_view text, std::string& value) {
  value = DecodeCaseText(text);
}

std::string IndexedKey(std::string_view name, std::initializer_list<std::int32_t> indices) {
  std::string key(name);
  const char* separator = "(";
  for (const std::int32_t index : indices) {
    key.append(separator).append(std::to_string(index));
    separator = ", ";
  }
  return key.append(")");
}

std::string CaseSection::TextOf(const std::string& key, const std::string& absent) const {
  return m_file->Data(m_section, key, absent);
}

void CaseSection::WriteKey(const std::string& key, const std::string& text) {
  m_file->Data(m_section, key, std::string(), text);
}

void CaseSection::RaiseAt(const std::string& key, const Error& error) const {
  throw Error(error.Number(), std::string(error.what()) + " (" + key + " in [" + m_section + "])");
}

}  // namespace orve
