// Terrain factors of a site: Tables 22 and 23, and Sb of the standard method from Table 4.
#pragma once

#include <cmath>

#include "windspeed/Interpolation.h"

namespace orve::windspeed {

/// A town reaching this far upwind counts as town in Table 4 and Figure 4 (km).
inline constexpr double kTownFetch = 2;
/// A town that reaches less far upwind is country: Table 23 begins here (km).
inline constexpr double kLeastTown = 0.1;
/// Table 4 ends at this effective height (m); above it stand Tables 22 and 23.
inline constexpr double kTable4Height = 100;

/// Where a site lies in Tables 22 and 23, which have one axis of effective heights.
struct TerrainPlace {
  Bracket height;
  Bracket sea;
  Bracket town;
  bool inTown = false;
};

struct TerrainFactors {
  double Sc = 0;
  double St = 0;
  double Tc = 1;
  double Tt = 1;
};

/// Whether a site is in country terrain: in no town, or nearer to the sea than a town reaches at the least
/// (the engine's choice). `inTown` is a number; a `toSea` that isn't counts as far.
inline bool InCountry(double inTown, double toSea) {
  return inTown < kLeastTown || (!std::isnan(toSea) && toSea < kLeastTown);
}

/// Distance in the town that counts in Table 23 (km): not more than the distance to the sea (the engine's
/// choice); 0 in country terrain. NaN if an input that counts is NaN.
double TownDistance(double inTown, double toSea);

TerrainPlace PlaceOf(double he, double toSea, double inTown);

/// The factors of a place; Tc and Tt are 1 in country terrain.
TerrainFactors FactorsAt(const TerrainPlace& place);

/// Terrain and building factor of a gust peak factor: Sc (1 + gt St + Sh), in town Sc Tc (1 + gt St Tt + Sh).
inline double TerrainAndBuildingFactor(const TerrainFactors& factors, double gt, double sh) {
  return factors.Sc * factors.Tc * (1 + gt * factors.St * factors.Tt + sh);
}

/// Sb of the standard method: Table 4, its half by terrain (kTownFetch), up to kTable4Height.
double Table4Factor(double he, double toSea, double inTown);

}  // namespace orve::windspeed
