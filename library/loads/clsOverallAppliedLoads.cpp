#include "loads/clsOverallAppliedLoads.h"

#include "core/OwedSteps.h"

namespace orve {

clsOverallAppliedLoads::clsOverallAppliedLoads() {
  ApplyDefaults();
}

void clsOverallAppliedLoads::ApplyDefaults() {
  using L = clsOverallAppliedLoads;
  OwedLets<L> let(*this);
  for (int areaNumber = 0; areaNumber < AreaCount; ++areaNumber)
    for (int faceNumber = 0; faceNumber < FaceCount; ++faceNumber) {
      const auto area = static_cast<BuildingAreas>(areaNumber);
      const auto face = static_cast<Faces>(faceNumber);
      let(&L::SelectedLoadType, area, face, SelectedLoadTypes::Stepped_Wind_Load);
      let(&L::SteppedWind_Load_1, area, face, 0);
      let(&L::SteppedWind_Load_2, area, face, 0);
      let(&L::SteppedWind_Load_3, area, face, 0);
      let(&L::SteppedWind_Distance_1, area, face, 0);
      let(&L::SteppedWind_Distance_2, area, face, 0);
      let(&L::SteppedWind_Distance_3, area, face, 0);
      let(&L::SteppedWind_Span, area, face, 0);
    }
  let(&L::CantileverZoneIndexTo, 0);
  let(&L::CantileverZoneIndexFrom, 0);
  let.Finish();
}

}  // namespace orve
