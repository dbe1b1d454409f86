#include "windspeed/SizeEffect.h"

#include <cmath>
#include <cstddef>

#include "windspeed/GustPeak.h"
#include "windspeed/Interpolation.h"
#include "windspeed/TerrainFactors.h"
#include "windspeed/tables/Figure4Lines.h"

namespace orve::windspeed {

namespace {

constexpr double kGreatestDiagonal = 1000;

template <std::size_t Limits>
std::size_t ColumnOf(const std::array<double, Limits>& fromKm, double km) {
  std::size_t column = 0;
  while (column < Limits && km >= fromKm[column]) ++column;
  return column;
}

}  // namespace

std::optional<Figure4Key::Line> SizeEffectLine(double he, double toSea, double inTown) {
  if (std::isnan(he) || std::isnan(toSea) || std::isnan(inTown)) return std::nullopt;
  std::size_t row = 0;
  while (row < kFigure4Key.heUpTo.size() && !AtMost(he, kFigure4Key.heUpTo[row])) ++row;
  if (inTown >= kTownFetch) return kFigure4Key.town[row][ColumnOf(kFigure4Key.townFromKm, toSea)];
  return kFigure4Key.country[row][ColumnOf(kFigure4Key.countryFromKm, toSea)];
}

std::array<double, 3> SizeEffectFactors(double a) {
  std::array<double, 3> factors{};
  if (std::isnan(a)) {
    factors.fill(kNotKnown);
    return factors;
  }
  const double gt =
      kGustPeakAt5m - kGustPeakFall * LogOfDiagonal(a > kGreatestDiagonal ? kGreatestDiagonal : a);
  for (std::size_t line = 0; line < factors.size(); ++line) {
    const double turbulence = kFigure4LineTurbulence[line];
    const double ratio = (1 + gt * turbulence) / (1 + kGustPeakAt5m * turbulence);
    factors[line] = ratio * ratio;
  }
  return factors;
}

}  // namespace orve::windspeed
