#include "loads/CantileverTexts.h"

#include "common/Error.h"
#include "common/LoadText.h"
#include "common/Narrow.h"
#include "common/NumberText.h"
#include "common/clsCommon.h"

namespace orve {
namespace {

constexpr auto NotFound = std::string_view::npos;

std::string Trimmed(std::string_view text) {
  return std::string(TrimBlanks(text));
}

// The part before the unit. Errors: 5 if the unit isn't there.
std::string_view BeforeUnit(std::string_view text, std::string_view unit) {
  const auto position = text.find(unit);
  if (position == NotFound)
    throw Error(ErrorNumber::InvalidArgument,
                "Invalid argument: no \"" + std::string(unit) + "\" in \"" + std::string(text) + "\"");
  return text.substr(0, position);
}

// A text that isn't a number passes the format unchanged.
std::string FormatSignedText(std::string_view text) {
  return IsNumericText(text) ? FormatSignedLoad(TextToDouble(text)) : std::string(text);
}

// The net loads stand in texts with at most seven significant digits before they are rounded to three places.
std::string FormatNetLoad(float load) {
  return FormatSignedText(SevenDigitText(load));
}

void AppendLoad(std::string& loads, const std::string& load) {
  if (TrimBlanks(loads).empty())
    loads = load;
  else
    loads += ", " + load;
}

struct NetExtremes {
  float High = 0;
  float Low = 0;

  void Enter(const std::string& roofLoad, const std::string& wallPressure) {
    const float external = TextToSingle(roofLoad);
    const float net = wallPressure.empty()
                          ? external
                          : ToSingle(static_cast<double>(external) - TextToSingle(wallPressure));
    if (net > High) High = net;
    if (net < Low) Low = net;
  }
};

void AppendWallPressure(std::string& internal, std::string_view wallPressure) {
  if (!TrimBlanks(internal).empty())
    internal += ", " + FormatSignedText(TrimBlanks(BeforeUnit(wallPressure, LoadUnit)));
  else if (wallPressure.find(LoadUnit) == NotFound)
    internal.clear();
  else
    internal = FormatSignedText(TrimBlanks(BeforeUnit(wallPressure, LoadUnit)));
}

}  // namespace

std::string StripUnit(std::string_view text) {
  auto position = text.find(BareLoadUnit);
  if (position == NotFound) position = text.find('m');
  if (position == NotFound) return {};
  return Trimmed(text.substr(0, position));
}

LoadValues SplitLoadValues(std::string_view externalLoads) {
  const auto comma = externalLoads.find(',');
  if (comma == NotFound) return {Trimmed(BeforeUnit(externalLoads, BareLoadUnit)), {}, 1};
  return {Trimmed(externalLoads.substr(0, comma)),
          Trimmed(BeforeUnit(externalLoads.substr(comma + 1), BareLoadUnit)), 2};
}

CantileverLoads CombineCantileverLoads(std::string_view externalLoads,
                                       std::span<const std::string> wallPressures) {
  const LoadValues roof = SplitLoadValues(externalLoads);
  NetExtremes net;
  CantileverLoads loads;
  for (const std::string& wallPressure : wallPressures) {
    const std::string value = StripUnit(wallPressure);
    net.Enter(roof.First, value);
    if (roof.Count == 2) net.Enter(roof.Second, value);
    AppendWallPressure(loads.Internal, wallPressure);
  }
  loads.Internal += LoadUnit;
  if (net.High != 0) loads.Overall = FormatNetLoad(net.High);
  if (net.Low != 0) AppendLoad(loads.Overall, FormatNetLoad(net.Low));
  loads.Overall += LoadUnit;
  return loads;
}

WindAndUplift SplitWindAndUplift(std::string_view overallLoads) {
  const std::string number = StripUnit(overallLoads);
  const auto comma = number.find(',');
  if (comma != std::string::npos) {
    // The character behind the comma is the blank that stands there.
    const std::size_t second = comma + 2;
    return {number.substr(0, comma), second < number.size() ? number.substr(second) : std::string()};
  }
  const float value = TextToSingle(clsCommon().MakeNumeric(number, "0"));
  if (value < 0) return {"0", ShortestText(-value)};
  return {ShortestText(value), "0"};
}

std::string FormatZoneDimensions(float first, float second) {
  const std::string text = FormatFixed(first, 3) + " m";
  if (second == 0) return text;
  return text + ", " + FormatFixed(second, 3) + " m";
}

}  // namespace orve
