// What the built-in engines tell about their figures, asked for one zone of the open case.
#pragma once

#include <Sources.h>
#include <core/Enumerations.h>
#include <cstdint>
#include <vector>

namespace orve {
class clsCurrentCase;
}

namespace examples {

/// Sources of the coefficients that a zone has: of its pressure, of its suction, or of both. Empty if another
/// component than the built-in engine is loaded.
std::vector<orve::SourceRecord> CoefficientSourcesOf(const orve::clsCurrentCase& windCase,
                                                     orve::BuildingAreas area, orve::Faces face,
                                                     std::int16_t zone);

/// Sources of q, Ca and all factors behind them, for a wind area and sector.
std::vector<orve::SourceRecord> WindSourcesOf(const orve::clsCurrentCase& windCase, orve::WindAreas area,
                                              orve::WindSectors sector);

/// The weakest status among some sources, as text; empty for none.
std::string WeakestStatus(const std::vector<orve::SourceRecord>& sources);

}  // namespace examples
