// One zone of the zone table.
#pragma once

#include <cstdint>
#include <string>

namespace orve {

/// The lengths of a zone, in metres. `NoDimensions` says that the zone shows no lengths (the rest of a roof);
/// its two lengths are then 1.0 and are never shown.
struct ZoneExtent {
  bool NoDimensions = false;
  float DimensionX = 0;
  float DimensionY = 0;
};

/// A zone as the coefficient component offered it.
struct ZoneRecord {
  std::int16_t ComponentZoneIndex = 0;  ///< The component's own number of the zone.
  float Theta = 0;                      ///< Wind angle that the zone was found at, degrees.
  std::string Description;              ///< Name as shown to the host.
  float Dim_L = 0;                      ///< What the component read back for the zone.
  float Dim_W = 0;
  float Dim_H = 0;
  float Dim_gap = 0;
  ZoneExtent Extent;
};

}  // namespace orve
