// The nine site values of a sector and the component's members that they pair with.
#pragma once

#include "sitewind/BVe2X.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve {

struct clsDynamicPressure::SectorInput {
  SectorValues clsDynamicPressure::*values;
  float (BVe2X::*get)(WindSectors) const;
  void (BVe2X::*set)(WindSectors, float);
};

}  // namespace orve
