#include "windspeed/Calculation.h"

#include "windspeed/EffectiveHeight.h"
#include "windspeed/GustPeak.h"
#include "windspeed/SeasonAndRisk.h"
#include "windspeed/tables/Table3DirectionFactor.h"

namespace orve::windspeed {

namespace {

constexpr double kHalfDensityOfAir = 0.613;  // kg/m3, so that q is in Pa

double Usable(const SectorResults& results, Input input) {
  return results.usable[static_cast<std::size_t>(input)];
}

// What hangs on the sector's own values: the topographic feature and the displacement height.
void UpdateSite(SectorResults& results, const InputValues& inputs, std::size_t sector) {
  for (std::size_t index = 0; index < kSectorValues; ++index)
    results.usable[index] = inputs.Usable(static_cast<Input>(index), sector);
  results.feature = Feature{};
  const double mode = inputs.Usable(Input::TopographyMode, sector);
  if (mode == kByTopography)
    results.feature =
        DescribeFeature(Usable(results, Input::CrestHeight), Usable(results, Input::UpwindLength),
                        Usable(results, Input::DownwindLength), Usable(results, Input::SiteLocation));
  else if (mode != kByAltitude)
    results.feature.known = false;
  results.Zd = DisplacementHeight(
      Usable(results, Input::ObstructionHeight), Usable(results, Input::ObstructionSpacing),
      Usable(results, Input::DistanceToSea), Usable(results, Input::DistanceInTown));
}

// What hangs on the height too: topographic increment, effective height and terrain factors.
void UpdateTerrain(SectorResults& results, double height) {
  const double toSea = Usable(results, Input::DistanceToSea);
  const double inTown = Usable(results, Input::DistanceInTown);
  results.Sh = TopographicIncrement(results.feature, height);
  results.He = EffectiveHeight(height, results.Zd);
  results.terrain = FactorsAt(PlaceOf(results.He, toSea, inTown));
  results.line = SizeEffectLine(results.He, toSea, inTown);
}

double TerrainAndBuilding(const SectorResults& results, double gt) {
  const TerrainFactors& terrain = results.terrain;
  if (!AllKnown(terrain.Sc, terrain.Tc, terrain.St, terrain.Tt, gt, results.Sh)) return kNotKnown;
  return TerrainAndBuildingFactor(terrain, gt, results.Sh);
}

// Mean wind speed V0 at the effective height, by which gusts pass.
double MeanSpeed(const SectorResults& results) {
  if (!AllKnown(results.Vs, results.terrain.Sc, results.terrain.Tc, results.Sh)) return kNotKnown;
  return results.Vs * results.terrain.Sc * results.terrain.Tc * (1 + results.Sh);
}

// Site wind speed and the dynamic pressure of a gust peak factor of 3.44.
void UpdateSpeed(SectorResults& results, const SiteResults& site, double altitude, double basicWindSpeed,
                 std::size_t sector) {
  results.Sa = AltitudeFactor(results.feature, altitude, Usable(results, Input::BaseAltitude));
  results.Vs = AllKnown(basicWindSpeed, results.Sa, site.Ss, site.Sp)
                   ? basicWindSpeed * results.Sa * DirectionFactor(sector) * site.Ss * site.Sp
                   : kNotKnown;
  results.logOfSpeed = LogOfSpeed(MeanSpeed(results));
  const double Sb = TerrainAndBuilding(results, kGustPeakAt5m);
  if (AllKnown(results.Vs, Sb)) {
    const double Ve = results.Vs * Sb;
    results.q = kHalfDensityOfAir * Ve * Ve;
  } else {
    results.q = kNotKnown;
  }
}

// What hangs on the diagonal. Up to 5 m it hangs on nothing else.
void UpdateSize(SectorResults& results, const SiteResults& site, bool small) {
  results.gt = small ? kGustPeakAt5m : GustPeakFactor(site.logOfDiagonal, results.logOfSpeed);
  results.Sb = TerrainAndBuilding(results, results.gt);
  if (small)
    results.Ca = 1;
  else
    results.Ca = results.line ? site.sizeEffect[static_cast<std::size_t>(*results.line)] : kNotKnown;
}

}  // namespace

void Changes::Clear() {
  seasonAndRisk = topographyMode = height = speed = diagonal = false;
  site.fill(false);
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
  const bool small = !std::isnan(a) && a <= kLeastDiagonal;
  const double height = inputs.Usable(Input::Height, 0);
  const double altitude = inputs.Usable(Input::SiteAltitude, 0);
  const double basicWindSpeed = inputs.Usable(Input::BasicWindSpeed, 0);
  for (std::size_t sector = 0; sector < kSectors; ++sector) {
    SectorResults& own = results.sectors[sector];
    const bool site = changes.site[sector] || changes.topographyMode;
    const bool terrain = site || changes.height;
    const bool speed = terrain || changes.speed || changes.seasonAndRisk;
    if (site) UpdateSite(own, inputs, sector);
    if (terrain) UpdateTerrain(own, height);
    if (speed) UpdateSpeed(own, results, altitude, basicWindSpeed, sector);
    if (speed || changes.diagonal) UpdateSize(own, results, small);
  }
}

double DirectionFactor(std::size_t sector) {
  return kTable3DirectionFactor[sector];
}

double StandardSa(const SectorResults& results, const InputValues& inputs, std::size_t sector) {
  return StandardAltitudeFactor(results.feature, inputs.Usable(Input::Height, sector),
                                inputs.Usable(Input::SiteAltitude, sector),
                                Usable(results, Input::BaseAltitude));
}

double StandardSb(const SectorResults& results) {
  return Table4Factor(results.He, Usable(results, Input::DistanceToSea),
                      Usable(results, Input::DistanceInTown));
}

}  // namespace orve::windspeed
