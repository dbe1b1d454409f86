#include "coefficients/Zones.h"

#include <array>

namespace orve::coefficients {

namespace {

using Letters = std::string_view;

// Walls (clause 2.4.1).
constexpr std::array<Letters, 1> kWindward{"Windward"};
constexpr std::array<Letters, 1> kLeeward{"Leeward"};
constexpr std::array<Letters, 3> kSideWall{"A", "B", "C"};

// Four strips: flat roofs (clause 2.5.1), duo-pitched roofs with the wind on the gable, free-standing walls.
constexpr std::array<Letters, 4> kFourStrips{"A", "B", "C", "D"};

// Mono-pitched roofs (clause 2.5.2): one slope; the upwind corner differs by the eaves that it lies on.
constexpr std::array<Letters, 3> kMonoSlope{"A", "B", "C"};
constexpr std::array<Letters, 1> kMonoUpperCorner{"AU"};
constexpr std::array<Letters, 4> kMonoLowerCorner{"AL", "B", "C", "D"};

// Duo-pitched roofs with the wind on the eaves: A to C on the windward slope, E to G on the leeward one.
constexpr std::array<Letters, 6> kDuoSlopes{"A", "B", "C", "E", "F", "G"};

// Hipped roofs (clause 2.5.3): windward slope, ridge and leeward slope, side slopes.
constexpr std::array<Letters, 9> kHipped{"A", "B", "C", "E", "F", "G", "H", "I", "J"};

constexpr std::array<Letters, 6> kCurved{"A", "B", "C", "D", "E", "F"};

bool BesideRightAngle(WindAngle angle) {
  return angle == WindAngle::Near90 || angle == WindAngle::Near270;
}

std::span<const Letters> MonoPitchedZones(WindAngle angle) {
  if (BesideRightAngle(angle)) return kMonoLowerCorner;
  if (AlongLength(angle)) return kMonoUpperCorner;
  return kMonoSlope;
}

std::span<const Letters> WallZones(WindAngle angle) {
  if (AlongLength(angle)) return kSideWall;
  return angle == WindAngle::At0 ? std::span<const Letters>(kWindward) : std::span<const Letters>(kLeeward);
}

}  // namespace

std::span<const std::string_view> ZonesOf(Shape shape, WindAngle angle) {
  if (angle == WindAngle::None) return {};
  if (shape == Shape::MonoPitched) return MonoPitchedZones(angle);
  if (BesideRightAngle(angle)) return {};
  switch (shape) {
    case Shape::Walls:
      return WallZones(angle);
    case Shape::Flat:
      return kFourStrips;
    case Shape::DuoPitched:
      return AlongLength(angle) ? std::span<const Letters>(kFourStrips)
                                : std::span<const Letters>(kDuoSlopes);
    case Shape::Hipped:
      return kHipped;
    case Shape::Curved:
      return kCurved;
    case Shape::Parapet:
      return AlongLength(angle) ? std::span<const Letters>() : std::span<const Letters>(kFourStrips);
    case Shape::MonoPitched:
    case Shape::None:
      break;
  }
  return {};
}

}  // namespace orve::coefficients
