// The built-in pressure-coefficient engine.
#pragma once

#include <memory>

namespace orve {

class BreCpX;

/// Makes a coefficient engine: zones and external pressure coefficients of BS 6399-2. Type name "BreCp2_2X".
/// It reads the table files ("Table10.txt") of the folder "wzfdata" in the host's system directory, once, as
/// it is made; a faulty file is told of at the first coefficient that needs its table. Also a
/// `CoefficientSources`.
std::shared_ptr<BreCpX> CreateCoefficientEngine();

}  // namespace orve
