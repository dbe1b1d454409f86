#include "external/WindFace.h"

#include "core/Ranges.h"

namespace orve {

namespace {

std::int16_t Opposite(Faces face) {
  return static_cast<std::int16_t>((static_cast<std::int32_t>(face) + 2) % FaceCount);
}

bool IsZoneOf(std::string_view description, std::string_view letters, std::string_view suffix) {
  return description.size() == suffix.size() + 1 && letters.find(description[0]) != std::string_view::npos &&
         description.substr(1) == suffix;
}

}  // namespace

std::int16_t WindFaceOfWallZone(std::string_view description, Faces face) {
  if (!IsFace(face)) return 0;
  if (description == "Windward") return static_cast<std::int16_t>(face);
  if (description == "Leeward") return Opposite(face);
  constexpr std::string_view suffixes[] = {" (face 1)", " (face 2)", " (face 3)", " (face 4)"};
  const int beside = static_cast<std::int32_t>(face) % 2 == 0 ? 1 : 0;
  for (const int windFace : {beside, beside + 2})
    if (IsZoneOf(description, "ABC", suffixes[windFace])) return static_cast<std::int16_t>(windFace);
  return 0;
}

std::int16_t WindFaceOfParapetZone(std::string_view description, Faces face) {
  if (!IsFace(face)) return 0;
  if (IsZoneOf(description, "ABCD", " (windward)")) return static_cast<std::int16_t>(face);
  if (IsZoneOf(description, "ABCD", " (leeward)")) return Opposite(face);
  return 0;
}

}  // namespace orve
