// The face that the wind comes from for a wall or parapet zone.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/Enumerations.h"

namespace orve {

/// A `Faces` value by the zone's description, compared exactly; 0 for a description that the face doesn't
/// have.
std::int16_t WindFaceOfWallZone(std::string_view description, Faces face);
std::int16_t WindFaceOfParapetZone(std::string_view description, Faces face);

}  // namespace orve
