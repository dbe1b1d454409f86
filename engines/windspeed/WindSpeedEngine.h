// The built-in wind-speed engine.
#pragma once

#include <memory>

namespace orve {

class BVe2X;

/// Makes a wind-speed engine: site wind speeds and factors of BS 6399-2 by sector. Type name "BVe2X".
std::shared_ptr<BVe2X> CreateWindSpeedEngine();

}  // namespace orve
