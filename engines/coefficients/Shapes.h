// What the engine is asked about: the building shape, the wind angle and the inputs.
#pragma once

#include <cstdint>

namespace orve::coefficients {

/// Building shapes, as `TypeIndex` names them.
enum class Shape : std::uint8_t { None, Walls, Flat, MonoPitched, DuoPitched, Hipped, Parapet, Curved };

/// Shape of a `TypeIndex`; `None` for a number without a shape.
Shape ShapeOf(std::int32_t typeIndex);

/// Wind angles that zones are defined for. `Near90` and `Near270` (89.9 and 270.1) are 90 and 270 seen from
/// the low eaves of a mono-pitched roof.
enum class WindAngle : std::uint8_t { None, At0, Near90, At90, At180, At270, Near270 };

/// Wind angle of a `Theta`, which may have passed through a 32-bit float: within 0.05 degrees.
WindAngle WindAngleOf(double theta);

/// True for wind along the length `Dim_L` (90 and 270 and the angles beside them).
constexpr bool AlongLength(WindAngle angle) {
  return angle == WindAngle::Near90 || angle == WindAngle::At90 || angle == WindAngle::At270 ||
         angle == WindAngle::Near270;
}

/// Inputs as they were set, lengths in metres, angles in degrees.
struct Inputs {
  std::int32_t typeIndex = 0;
  float barrelRise = 0;
  float eavesPitch = 0;
  float eavesRadius = 0;
  float parapetHeight = 0;
  float roofPitch = 0;
  float length = 0;
  float width = 0;
  float height = 0;
  float gap = 0;
  std::int32_t solidity = 0;
  double theta = 0;
  std::int16_t zoneIndex = 0;
  bool suction = false;
};

}  // namespace orve::coefficients
