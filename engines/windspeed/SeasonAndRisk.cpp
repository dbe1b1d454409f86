#include "windspeed/SeasonAndRisk.h"

#include <cmath>
#include <cstddef>

#include "core/Enumerations.h"
#include "windspeed/Inputs.h"
#include "windspeed/tables/AnnexDSeasonalFactor.h"

namespace orve::windspeed {

namespace {

// -ln(-ln(1 - Q)), exact for small risks too.
double ReducedVariate(double risk) {
  return -std::log(-std::log1p(-risk));
}

}  // namespace

double ProbabilityFactor(double risk) {
  if (std::isnan(risk)) return risk;
  return std::sqrt((5 + ReducedVariate(risk)) / (5 + ReducedVariate(0.02)));
}

double SeasonalFactor(double season, double startMonth) {
  if (std::isnan(season)) return kNotKnown;
  std::size_t period = 0;
  switch (static_cast<Durations>(season)) {
    case Durations::All_year:
      return kAnnexDSeasonalFactor.allYear;
    case Durations::Winter:
      return kAnnexDSeasonalFactor.winter;
    case Durations::Summer:
      return kAnnexDSeasonalFactor.summer;
    case Durations::Months_4:
      period = 2;
      break;
    case Durations::Months_2:
      period = 1;
      break;
    case Durations::Months_1:
      break;
  }
  if (std::isnan(startMonth)) return kNotKnown;
  return kAnnexDSeasonalFactor.months[static_cast<std::size_t>(startMonth)][period];
}

}  // namespace orve::windspeed
