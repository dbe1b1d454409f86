#include "windspeed/TerrainFactors.h"

#include "windspeed/tables/Table22FetchFactor.h"
#include "windspeed/tables/Table22TurbulenceFactor.h"
#include "windspeed/tables/Table23FetchAdjustment.h"
#include "windspeed/tables/Table23TurbulenceAdjustment.h"
#include "windspeed/tables/Table4Country.h"
#include "windspeed/tables/Table4Town.h"

namespace orve::windspeed {

static_assert(kTable22FetchFactor.he == kTable22TurbulenceFactor.he &&
              kTable22FetchFactor.he == kTable23FetchAdjustment.he &&
              kTable22FetchFactor.he == kTable23TurbulenceAdjustment.he);
static_assert(kTable22FetchFactor.km == kTable22TurbulenceFactor.km &&
              kTable23FetchAdjustment.km == kTable23TurbulenceAdjustment.km);

double TownDistance(double inTown, double toSea) {
  if (std::isnan(inTown)) return inTown;
  if (InCountry(inTown, toSea)) return 0;
  return std::isnan(toSea) || toSea < inTown ? toSea : inTown;
}

TerrainPlace PlaceOf(double he, double toSea, double inTown) {
  TerrainPlace place;
  place.height = Locate(kTable22FetchFactor.he, he);
  place.sea = Locate(kTable22FetchFactor.km, toSea);
  const double town = TownDistance(inTown, toSea);
  place.inTown = town != 0;
  if (place.inTown) place.town = Locate(kTable23FetchAdjustment.km, town);
  return place;
}

TerrainFactors FactorsAt(const TerrainPlace& place) {
  TerrainFactors factors;
  factors.Sc = At(kTable22FetchFactor, place.height, place.sea);
  factors.St = At(kTable22TurbulenceFactor, place.height, place.sea);
  if (!place.inTown) return factors;
  factors.Tc = At(kTable23FetchAdjustment, place.height, place.town);
  factors.Tt = At(kTable23TurbulenceAdjustment, place.height, place.town);
  return factors;
}

double Table4Factor(double he, double toSea, double inTown) {
  if (!AllKnown(he, toSea, inTown)) return kNotKnown;
  if (inTown >= kTownFetch) return At(kTable4Town, Locate(kTable4Town.he, he), Locate(kTable4Town.km, toSea));
  return At(kTable4Country, Locate(kTable4Country.he, he), Locate(kTable4Country.km, toSea));
}

}  // namespace orve::windspeed
