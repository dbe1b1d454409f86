// Where the coefficients of the built-in engine come from.
#pragma once

#include "Sources.h"

namespace orve {

/// The source of a coefficient, beside the members of the contract: reach it by `dynamic_cast` from a
/// `BreCpX`.
class CoefficientSources {
 public:
  virtual ~CoefficientSources() = default;

  /// Source of what `Cpe` gives for the zone and the case now selected: standard, edition and table that the
  /// figure is taken from, zone, parameter with the corner values used and the fraction between them, status.
  /// A figure of a substitute table names its own standard and the table that it replaces. Raises what `Cpe`
  /// raises.
  virtual SourceRecord Source() const = 0;
};

}  // namespace orve
