// What the built-in wind-speed engine tells beside its contract. It is reached from the component:
//   if (const auto* sources = dynamic_cast<const orve::WindSpeedSources*>(orve::basBS6399_2::BreVe.get()))
//   ...
#pragma once

#include <cstdint>

#include "Sources.h"
#include "core/Enumerations.h"

namespace orve {

/// A result of the wind-speed engine, named as its member in the contract; q stands for `DirVal` and
/// `BSGust`, Ca for `HybridCa`.
enum class WindFactor : std::int32_t { Sp, Ss, Sd, Sa, Zd, He, Sh, Sc, St, Tc, Tt, gt, Sb, q, Ca };

class WindSpeedSources {
 public:
  virtual ~WindSpeedSources() = default;

  /// Where a result of the last `Calculate` comes from. Errors: as the read of that result.
  virtual SourceRecord Source(WindFactor factor, WindSectors sector) const = 0;

  // The standard method's own factors for the last `Calculate`, to compare with the engine's hybrid ones.

  /// Sb of Table 4. Errors: 5 for an input that isn't usable or an effective height above 100 m, 9 for the
  /// sector.
  virtual float StandardSb(WindSectors sector) const = 0;
  /// Sa that goes with Sb of Table 4 (2.2.2.2.2, 2.2.2.2.3). Errors: 5 for an input that isn't usable, 9.
  virtual float StandardSa(WindSectors sector) const = 0;
};

}  // namespace orve
