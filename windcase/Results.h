// The loads of a case, zone by zone, as the library gives them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orve {
class clsCurrentCase;
enum class BuildingAreas : std::int32_t;
enum class Faces : std::int32_t;
}  // namespace orve

namespace windcase {

struct ZoneLoads {
  std::string area;  ///< "Roof", "Walls" or "Parapet".
  std::string face;  ///< "Face 1".
  std::string zone;  ///< The zone's name.
  std::string dimensions;
  std::string external;  ///< Load texts of the library.
  std::string internal;
  std::string overall;
  float pressure = 0;  ///< Overall loads, kN/m².
  float suction = 0;
  bool absent = false;  ///< A length isn't above 0, though a load is given.
  std::string fault;    ///< Why there is no load; empty if all is well.
};

/// The part of a building that is asked for; nothing means all.
struct Part {
  std::optional<orve::BuildingAreas> area;
  std::optional<orve::Faces> face;
};

/// An area and a face as typed: "roof", "walls", "parapet"; "1" to "4" or "Face 1". Failure: Usage.
std::optional<orve::BuildingAreas> AreaOf(const std::string& text);
std::optional<orve::Faces> FaceOf(const std::string& text);

/// The loads of all zones. Parapets are left out unless they are asked for or the building has one. A zone
/// that an engine refuses has its reason as a fault.
std::vector<ZoneLoads> ReadLoads(orve::clsCurrentCase& windCase, const Part& part);

/// The warnings of the case and of the quantities behind the loads, each once.
std::vector<std::string> ReadWarnings(orve::clsCurrentCase& windCase, const Part& part);

}  // namespace windcase
