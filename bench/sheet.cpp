#include "sheet.h"

#include <cstdint>
#include <orve3_bs6399_2.h>
#include <string>

namespace bench {

using namespace orve;

namespace {

template <class Visit>
void ForEachZone(const clsCurrentCase& windCase, Visit visit) {
  const auto& loads = *windCase.OverallAppliedLoads();
  for (const BuildingAreas area : {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet})
    for (int i = 0; i < 4; ++i) {
      const auto face = Faces(i);
      const std::int16_t last = loads.ZoneIndexTo(area, face);
      for (std::int16_t zone = loads.ZoneIndexFrom(area, face); zone <= last; ++zone) visit(area, face, zone);
    }
}

}  // namespace

std::vector<NetLoads> ReadNetLoads(const clsCurrentCase& windCase) {
  const auto& loads = *windCase.OverallAppliedLoads();
  std::vector<NetLoads> all;
  ForEachZone(windCase, [&](BuildingAreas area, Faces face, std::int16_t zone) {
    all.push_back({loads.Hybrid_OverallAppliedLoad_Pressure(area, face, zone),
                   loads.Hybrid_OverallAppliedLoad_Suction(area, face, zone)});
  });
  return all;
}

double ReadNumbers(const clsCurrentCase& windCase) {
  auto& external = *windCase.ExternalCoefficients();
  const auto& loads = *windCase.OverallAppliedLoads();
  double sum = 0;
  ForEachZone(windCase, [&](BuildingAreas area, Faces face, std::int16_t zone) {
    const ZoneDimensionsXY size = external.Hybrid_ZoneDimensionsXY(area, face, zone);
    sum += size.DimensionX + size.DimensionY;
    sum += external.Hybrid_ZoneDimensionX(area, face, zone);
    sum += external.Hybrid_ZoneDimensionY(area, face, zone);
    sum += external.Hybrid_WindFromFace(area, face, zone);
    sum += external.Hybrid_WorstCase_DynamicPressure_q(area, face, zone);
    sum += external.Hybrid_WorstCase_SizeEffectFactor_Ca(area, face, zone);
    sum += external.Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, zone);
    sum += external.Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, face, zone);
    sum += external.Hybrid_ExternalAppliedLoad_Pressure(area, face, zone);
    sum += external.Hybrid_ExternalAppliedLoad_Suction(area, face, zone);
    sum += loads.Hybrid_OverallAppliedLoad_Pressure(area, face, zone);
    sum += loads.Hybrid_OverallAppliedLoad_Suction(area, face, zone);
  });
  return sum;
}

Texts ReadTexts(const clsCurrentCase& windCase) {
  const auto& loads = *windCase.OverallAppliedLoads();
  const std::size_t heldInPlace = std::string().capacity();
  Texts texts;
  const auto count = [&](const std::string& text) {
    ++texts.count;
    if (text.capacity() > heldInPlace) ++texts.allocated;
  };
  ForEachZone(windCase, [&](BuildingAreas area, Faces face, std::int16_t zone) {
    count(loads.Hybrid_ZoneDescription(area, face, zone));
    count(loads.Hybrid_ZoneDimensions(area, face, zone));
    count(loads.Hybrid_ExternalAppliedLoads(area, face, zone));
    count(loads.Hybrid_InternalAppliedLoads(area, face, zone));
    count(loads.Hybrid_OverallAppliedLoads(area, face, zone));
  });
  return texts;
}

}  // namespace bench
