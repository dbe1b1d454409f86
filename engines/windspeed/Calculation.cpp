#include "windspeed/Calculation.h"

#include "windspeed/EffectiveHeight.h"
#include "windspeed/GustPeak.h"
#include "windspeed/SeasonAndRisk.h"
#include "windspeed/tables/Table3DirectionFactor.h"

namespace orve::windspeed {

namespace {

constexpr double kHalfDensityOfAir = 0.613;  // kg/m3, so that q is in Pa

// Topography, effective height and terrain factors.
void UpdateTerrain(SectorResults& results, const InputValues& inputs, std::size_t sector) {
  const auto usable = [&](Input input) { return inputs.Usable(input, sector); };
  const double mode = usable(Input::TopographyMode);
  results.feature = Feature{};
  if (mode == kByTopography)
    results.feature = DescribeFeature(usable(Input::CrestHeight), usable(Input::UpwindLength),
                                      usable(Input::DownwindLength), usable(Input::SiteLocation));
  else if (mode != kByAltitude)
    results.feature.known = false;
  const double height = usable(Input::Height);
  results.Sh = TopographicIncrement(results.feature, height);

  const double toSea = usable(Input::DistanceToSea);
  const double inTown = usable(Input::DistanceInTown);
  results.Zd =
      DisplacementHeight(usable(Input::ObstructionHeight), usable(Input::ObstructionSpacing), inTown);
  results.He = EffectiveHeight(height, results.Zd);
  results.terrain = FactorsAt(PlaceOf(results.He, toSea, inTown));
  results.line = SizeEffectLine(results.He, toSea, inTown);
}

// Site wind speed and the dynamic pressure of a gust peak factor of 3.44.
void UpdateSpeed(SectorResults& results, const SiteResults& site, const InputValues& inputs,
                 std::size_t sector) {
  results.Sa = AltitudeFactor(results.feature, inputs.Usable(Input::SiteAltitude, sector),
                              inputs.Usable(Input::BaseAltitude, sector));
  results.Vs =
      inputs.Usable(Input::BasicWindSpeed, sector) * results.Sa * DirectionFactor(sector) * site.Ss * site.Sp;
  results.logOfSpeed = LogOfSpeed(results.Vs * results.terrain.Sc * results.terrain.Tc * (1 + results.Sh));
  const double Ve = results.Vs * TerrainAndBuildingFactor(results.terrain, kGustPeakAt5m, results.Sh);
  results.q = kHalfDensityOfAir * Ve * Ve;
}

// What hangs on the diagonal. Up to 5 m it hangs on nothing else.
void UpdateSize(SectorResults& results, const SiteResults& site, bool small) {
  results.gt = small ? kGustPeakAt5m : GustPeakFactor(site.logOfDiagonal, results.logOfSpeed);
  results.Sb = TerrainAndBuildingFactor(results.terrain, results.gt, results.Sh);
  if (small)
    results.Ca = 1;
  else
    results.Ca = results.line ? site.sizeEffect[static_cast<std::size_t>(*results.line)] : kNotKnown;
}

}  // namespace

void Changes::Clear() {
  seasonAndRisk = speed = diagonal = false;
  terrain.fill(false);
}

void Update(SiteResults& results, const InputValues& inputs, const Changes& changes) {
  if (changes.seasonAndRisk) {
    results.Sp = ProbabilityFactor(inputs.Usable(Input::Risk, 0));
    results.Ss = SeasonalFactor(inputs.Usable(Input::Season, 0), inputs.Usable(Input::StartMonth, 0));
  }
  const double a = inputs.Usable(Input::Diagonal, 0);
  if (changes.diagonal) {
    results.logOfDiagonal = LogOfDiagonal(a);
    results.sizeEffect = SizeEffectFactors(a);
  }
  for (std::size_t sector = 0; sector < kSectors; ++sector) {
    SectorResults& own = results.sectors[sector];
    const bool terrain = changes.terrain[sector];
    const bool speed = terrain || changes.speed || changes.seasonAndRisk;
    if (terrain) UpdateTerrain(own, inputs, sector);
    if (speed) UpdateSpeed(own, results, inputs, sector);
    if (speed || changes.diagonal) UpdateSize(own, results, a <= kLeastDiagonal);
  }
}

double DirectionFactor(std::size_t sector) {
  return kTable3DirectionFactor[sector];
}

double StandardSa(const SectorResults& results, const InputValues& inputs, std::size_t sector) {
  return StandardAltitudeFactor(results.feature, inputs.Usable(Input::Height, sector),
                                inputs.Usable(Input::SiteAltitude, sector),
                                inputs.Usable(Input::BaseAltitude, sector));
}

double StandardSb(const SectorResults& results, const InputValues& inputs, std::size_t sector) {
  return Table4Factor(results.He, inputs.Usable(Input::DistanceToSea, sector),
                      inputs.Usable(Input::DistanceInTown, sector));
}

}  // namespace orve::windspeed
