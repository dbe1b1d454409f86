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

/// The warnings of some trees, each once, those of loads first, then those of figures, the consistent ones
/// last; else in the order in which a reader comes to them.
std::vector<Warning> WarningsOf(std::span<const QuantityPtr> trees);

/// Warnings of the open case as a whole.
std::vector<Warning> CaseWarnings();

/// "Roof", "Walls" or "Parapet".
std::string AreaName(BuildingAreas area);

}  // namespace orve::explain
