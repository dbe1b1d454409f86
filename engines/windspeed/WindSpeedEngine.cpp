#include "windspeed/WindSpeedEngine.h"

#include "windspeed/WindSpeedComponent.h"

namespace orve {

std::shared_ptr<BVe2X> CreateWindSpeedEngine() {
  return std::make_shared<windspeed::WindSpeedComponent>();
}

}  // namespace orve
