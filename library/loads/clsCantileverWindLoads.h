// The wall pressures under the cantilevers, filled by the host.
#pragma once

#include "core/Records.h"

namespace orve {

/// Holds one record of wall pressures; all its texts start as "0". A host may create one and assign it to the
/// root.
class clsCantileverWindLoads {
 public:
  clsCantileverWindLoads();

  /// The record; get and let copy it whole.
  ExternalPressure ExternalPressures() const { return m_ExternalPressures; }
  void ExternalPressures(const ExternalPressure& value) { m_ExternalPressures = value; }

 private:
  void ApplyDefaults();

  ExternalPressure m_ExternalPressures;
};

}  // namespace orve
