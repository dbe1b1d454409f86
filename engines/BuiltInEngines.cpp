#include "BuiltInEngines.h"

#include "coefficients/CoefficientEngine.h"
#include "core/ComponentClasses.h"
#include "windspeed/WindSpeedEngine.h"

namespace orve {

void RegisterBuiltInEngines() {
  ComponentClasses().Register("BVe2XControl4.BVe2X",
                              ComponentClassRegistry::WindSpeedFactory(&CreateWindSpeedEngine));
  ComponentClasses().Register("BreCp2_2XControl3.BreCp2_2X",
                              ComponentClassRegistry::CoefficientFactory(&CreateCoefficientEngine));
}

}  // namespace orve
