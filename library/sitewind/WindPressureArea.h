// The wind area that the internal wind area follows.
#pragma once

#include "core/Enumerations.h"

namespace orve {

/// `waSidewall`, `waGable` or `waRoof` by the type; any other value is `waRoof`.
constexpr WindAreas WindAreaOf(WindPressureTypes type) {
  switch (type) {
    case WindPressureTypes::wptSidewall:
      return WindAreas::waSidewall;
    case WindPressureTypes::wptGable:
      return WindAreas::waGable;
    default:
      return WindAreas::waRoof;
  }
}

}  // namespace orve
