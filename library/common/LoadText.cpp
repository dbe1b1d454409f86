#include "common/LoadText.h"

#include "common/NumberText.h"

namespace orve {

std::string FormatSignedLoad(float value) {
  return value == 0 ? std::string() : FormatSigned(value);
}
std::string FormatSignedLoad(double value) {
  return value == 0 ? std::string() : FormatSigned(value);
}

bool IsPresent(float value) {
  return value != 0;
}

std::string JoinLoads(const std::string& pressure, const std::string& suction) {
  std::string text = pressure;
  if (!text.empty() && !suction.empty()) text += ", ";
  text += suction;
  if (!text.empty()) text += LoadUnit;
  return text;
}

}  // namespace orve
