// The rules of use of each table: which block, column and parameter a zone is read at, and what is refused.
#pragma once

#include "coefficients/Request.h"

namespace orve::coefficients {

/// Walls, Table 5 and clause 2.4.1.4. Windward and leeward faces by D/H, side zones between isolated and
/// funnelling.
Reading ReadWalls(const Request& request);

/// Flat roofs, Table 8: sharp eaves, parapets, curved or mansard eaves.
Reading ReadFlatRoof(const Request& request);

/// Column 0 to 3 (A to D) of the sharp-eaves row of Table 8.
Reading ReadSharpEaves(const Request& request, std::size_t column, bool suction);

/// Mono-pitched roofs, Table 9, 5 to 75 degrees.
Reading ReadMonoPitchedRoof(const Request& request);

/// Duo-pitched roofs, Table 10, -45 to -5 and 5 to 75 degrees.
Reading ReadDuoPitchedRoof(const Request& request);

/// Hipped roofs, Table 11, 5 to 75 degrees.
Reading ReadHippedRoof(const Request& request);

/// Curved roofs: arched-roof figures with the wind across, sharp flat eaves with the wind along the ridge.
Reading ReadCurvedRoof(const Request& request);

/// Free-standing walls and parapets, Table 21: net figures, positive at either wind angle whichever case is
/// asked.
Reading ReadParapet(const Request& request);

/// The coefficient of the request's zone, by the rules of its shape.
Reading ReadCoefficient(const Request& request);

}  // namespace orve::coefficients
