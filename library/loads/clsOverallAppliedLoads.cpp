#include "loads/clsOverallAppliedLoads.h"

namespace orve {

clsOverallAppliedLoads::clsOverallAppliedLoads() {
  ApplyDefaults();
}

void clsOverallAppliedLoads::ApplyDefaults() {
  for (int areaNumber = 0; areaNumber < AreaCount; ++areaNumber)
    for (int faceNumber = 0; faceNumber < FaceCount; ++faceNumber) {
      const auto area = static_cast<BuildingAreas>(areaNumber);
      const auto face = static_cast<Faces>(faceNumber);
      SelectedLoadType(area, face, SelectedLoadTypes::Stepped_Wind_Load);
      SteppedWind_Load_1(area, face, 0);
      SteppedWind_Load_2(area, face, 0);
      SteppedWind_Load_3(area, face, 0);
      SteppedWind_Distance_1(area, face, 0);
      SteppedWind_Distance_2(area, face, 0);
      SteppedWind_Distance_3(area, face, 0);
      SteppedWind_Span(area, face, 0);
    }
  CantileverZoneIndexTo(0);
  CantileverZoneIndexFrom(0);
}

}  // namespace orve
