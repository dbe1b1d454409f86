// The built-in pressure-coefficient engine.
#pragma once

#include <memory>

namespace orve {

class BreCpX;

/// Makes a coefficient engine: zones and external pressure coefficients of BS 6399-2. Type name "BreCp2_2X".
std::shared_ptr<BreCpX> CreateCoefficientEngine();

}  // namespace orve
