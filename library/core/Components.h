// Start-up of the two components.
#pragma once

namespace orve {

/// Creates `BreVe` and `BreCp`, each by its first class and else by its fallback class; any error is
/// swallowed and the reference then stays empty. The wind-speed component's first class and the coefficient
/// component's fallback class are given the data folder, the system directory followed by "\wzfdata".
void StartComponents();

}  // namespace orve
