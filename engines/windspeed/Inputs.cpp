#include "windspeed/Inputs.h"

#include <cmath>
#include <limits>

#include "common/NumberText.h"

namespace orve::windspeed {

namespace {

/// A range with its ends, each inside or outside of it.
struct Range {
  const char* quantity;
  const char* unit;
  double low;
  bool lowInside;
  double high;
  bool highInside;
  const char* allowed;
};

constexpr const char* kAnyNumber = "any finite number is allowed";

constexpr Range Any(const char* quantity, const char* unit) {
  return {quantity, unit, -kLargest, true, kLargest, true, kAnyNumber};
}

constexpr Range Positive(const char* quantity, const char* unit) {
  return {quantity, unit, 0, false, kLargest, true, "above 0 is needed"};
}

constexpr Range NotNegative(const char* quantity, const char* unit) {
  return {quantity, unit, 0, true, kLargest, true, "0 or more is allowed"};
}

constexpr Range Altitude(const char* quantity) {
  return {quantity, " m", -1000, false, kLargest, true, "above -1000 m is allowed"};
}

constexpr Range kRanges[] = {
    Any("crest height Z", " m"),
    Any("distance X from the crest", " m"),
    Any("upwind length LU", " m"),
    Any("downwind length LD", " m"),
    Altitude("base altitude"),
    Any("obstruction height Ho", " m"),
    NotNegative("obstruction spacing Xo", " m"),
    NotNegative("distance to the sea", " km"),
    NotNegative("distance in the town", " km"),
    {"annual risk Q", "", 0, false, 1, false, "above 0 and below 1 is allowed"},
    {"season", "", 0, true, 5, true, "0 to 5 is allowed"},
    {"start month", "", 0, true, 11, true, "0 to 11 is allowed"},
    {"topography mode", "", 0, true, 2, true, "0 or 2 is allowed"},
    Altitude("site altitude"),
    Positive("basic wind speed Vb", " m/s"),
    Positive("height H", " m"),
    Any("diagonal a", " m"),
    {"unit of pressures", "", 0, true, 1, true, "0 (kN/m2) or 1 (Pa) is allowed"},
};

bool Inside(const Range& range, double value) {
  if (std::isnan(value)) return false;
  return (range.lowInside ? value >= range.low : value > range.low) &&
         (range.highInside ? value <= range.high : value < range.high);
}

}  // namespace

double InputValues::Value(Input input, std::size_t sector) const {
  const auto index = static_cast<std::size_t>(input);
  if (index < kSectorValues) return site.sectors[sector][index];
  switch (input) {
    case Input::Risk:
      return risk;
    case Input::Season:
      return season;
    case Input::StartMonth:
      return startMonth;
    case Input::TopographyMode:
      return topographyMode;
    case Input::SiteAltitude:
      return site.altitude;
    case Input::BasicWindSpeed:
      return site.basicWindSpeed;
    case Input::Height:
      return height;
    case Input::Diagonal:
      return diagonal;
    default:
      return units;
  }
}

double InputValues::Usable(Input input, std::size_t sector) const {
  const double value = Value(input, sector);
  if (input == Input::TopographyMode && value == 1) return kNotKnown;
  return Inside(kRanges[static_cast<std::size_t>(input)], value) ? value : kNotKnown;
}

std::string RefusalText(Input input, std::size_t sector, double value) {
  const auto index = static_cast<std::size_t>(input);
  const Range& range = kRanges[index];
  std::string text = std::string("The ") + range.quantity;
  if (index < kSectorValues) text += " of sector " + std::to_string(sector);
  return text + " is " + ShownNumber(value) + range.unit + "; " + range.allowed;
}

std::string ShownNumber(double value) {
  // Inputs are whole numbers or 32-bit values, which have a shorter text at their own width.
  return value == std::trunc(value) ? ShortestText(value) : ShortestText(static_cast<float>(value));
}

}  // namespace orve::windspeed
