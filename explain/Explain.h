// Why a load is what it is: the quantities behind the loads of one zone of the open case.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "Quantity.h"
#include "core/Enumerations.h"

namespace orve::explain {

/// The tree of a zone of the open case, from the overall loads down to the inputs: the terms of external and
/// internal load and the pair that governs, Ca, q and coefficients, the wind face, the sectors walked, the
/// factors of the wind that won, the zone's size, the table behind each coefficient. `zone` is a position in
/// the zone list of the area and face. Errors: those of the reads, as 9 for a zone that isn't there.
QuantityPtr ExplainZone(BuildingAreas area, Faces face, std::int16_t zone);

/// The warnings of some trees, each once, in the order in which a reader comes to them; figures that agree
/// with published calculations come last.
std::vector<std::string> WarningsOf(std::span<const QuantityPtr> trees);

/// Warnings of the open case as a whole: gable faces that don't fit a pitched roof's ridge.
std::vector<std::string> CaseWarnings();

/// "Roof", "Walls" or "Parapet".
std::string AreaName(BuildingAreas area);

}  // namespace orve::explain
