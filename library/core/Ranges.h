// How many building areas, faces and wind sectors there are, and what belongs to them.
#pragma once

#include <cstdint>

#include "core/Enumerations.h"

namespace orve {

inline constexpr std::int32_t BuildingAreaCount = 3;
inline constexpr std::int32_t FaceCount = 4;
inline constexpr std::int32_t WindSectorCount = 12;

/// True for the four faces; a face may hold any value.
constexpr bool IsFace(Faces face) {
  const auto value = static_cast<std::int32_t>(face);
  return value >= 0 && value < FaceCount;
}

/// True for the areas whose zones have an internal side too.
constexpr bool IsRoofOrWalls(BuildingAreas area) {
  return area == BuildingAreas::baRoof || area == BuildingAreas::baWalls;
}

}  // namespace orve
