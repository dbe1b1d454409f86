// Registration of the built-in engines.
#pragma once

namespace orve {

/// Registers the built-in wind-speed engine as "BVe2XControl4.BVe2X" and the built-in coefficient engine as
/// "BreCp2_2XControl3.BreCp2_2X", the first class that is tried for each component. Call it before
/// `CreateCurrentCase`.
void RegisterBuiltInEngines();

}  // namespace orve
