// The search of a zone by its description.
#pragma once

#include <cstdint>
#include <string_view>

namespace orve {

/// Where a search of a zone ended: the index found, or one behind the last zone.
struct ZoneSearch {
  std::int32_t Index = 0;
  bool Found = false;
};

/// Walks the zones `from` to `to`, reading `descriptionOf(zoneIndex)` of each, and stops at the first whose
/// text is exactly `description`. Callers read `ZoneIndexTo` before `ZoneIndexFrom`.
template <class DescriptionOf>
ZoneSearch FindZone(std::int16_t from, std::int16_t to, std::string_view description,
                    DescriptionOf&& descriptionOf) {
  for (std::int32_t index = from; index <= to; ++index)
    if (descriptionOf(static_cast<std::int16_t>(index)) == description) return {index, true};
  return {to + 1, false};
}

}  // namespace orve
