// Free-standing walls and parapets: Table 21 and clause 2.7.5.
#include <cmath>

#include "coefficients/Refusal.h"
#include "coefficients/Rules.h"

namespace orve::coefficients {

Reading ReadParapet(const Request& request) {
  const Table& table = request.tables.Require(TableNumber::Table21);
  RequirePositive(request, table, "Dim_H", request.plan.height, "m");
  const double corner = request.inputs.width;
  if (!(std::isgreaterequal(corner, 0.0) && corner <= kLargest))
    Refuse(request, table, "Dim_W", corner, "m", "a finite number of 0 or above");
  // A return corner shorter than the wall is high doesn't help: the figures without one are the safe side.
  const bool returns = corner >= request.plan.height;
  const Block& block = table.blocks[returns ? 1 : 0];
  const double solidity = request.inputs.solidity;
  if (solidity < block.First() || solidity > block.Last())
    Refuse(request, table, "Solidity", solidity, "",
           InputText(block.First()) + " to " + InputText(block.Last()));
  Reading reading = ReadBlock(request, table, block, request.zone, solidity, false);
  if (corner > 0 && !returns) reading.note = "return corner shorter than the wall is high: taken as none";
  return reading;
}

}  // namespace orve::coefficients
