// The inputs of the wind-speed engine and the range that each result needs of them.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

namespace orve::windspeed {

inline constexpr std::size_t kSectors = 12;
inline constexpr std::size_t kSectorValues = 9;
inline constexpr double kNotKnown = std::numeric_limits<double>::quiet_NaN();
/// The greatest value that a 32-bit result holds.
inline constexpr double kLargest = std::numeric_limits<float>::max();

/// Whether none of the values is NaN. Nothing is worked out from a value that isn't known: in a host that
/// lets floating-point exceptions trap, a comparison with NaN would end the program.
template <class... Values>
bool AllKnown(Values... values) {
  return (!std::isnan(values) && ...);
}

/// Every input; the nine values of a sector come first, in the order in which a host sends them.
enum class Input : std::size_t {
  CrestHeight,
  SiteLocation,
  UpwindLength,
  DownwindLength,
  BaseAltitude,
  ObstructionHeight,
  ObstructionSpacing,
  DistanceToSea,
  DistanceInTown,
  Risk,
  Season,
  StartMonth,
  TopographyMode,
  SiteAltitude,
  BasicWindSpeed,
  Height,
  Diagonal,
  Units,
};

/// Values of `InputValues::topographyMode` and `InputValues::units`.
inline constexpr std::int32_t kByTopography = 0;
inline constexpr std::int32_t kByAltitude = 2;
inline constexpr std::int32_t kKilonewtons = 0;
inline constexpr std::int32_t kPascals = 1;

/// What a site is: altitude (m), basic wind speed (m/s) and the nine values of each sector (m, of distances
/// km).
struct SiteValues {
  float altitude = 0;
  float basicWindSpeed = 0;
  std::array<std::array<float, kSectorValues>, kSectors> sectors{};
};

/// The inputs as they were set.
struct InputValues {
  SiteValues site;
  float risk = 0.02F;
  std::int32_t season = 0;
  std::int32_t startMonth = 0;
  std::int32_t topographyMode = kByAltitude;
  float height = 0;
  float diagonal = 0;
  std::int32_t units = kPascals;

  /// An input's value; `sector` counts for the nine values of a sector only.
  double Value(Input input, std::size_t sector) const;
  /// The value, or NaN if it lies outside the input's range.
  double Usable(Input input, std::size_t sector) const;
};

/// The refusal of a value: quantity, sector where it has one, value and the range that is allowed.
std::string RefusalText(Input input, std::size_t sector, double value);

/// A number's shortest text at 32 bits.
std::string ShownNumber(double value);

}  // namespace orve::windspeed
