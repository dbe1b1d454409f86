#include "coefficients/Request.h"

#include "coefficients/Refusal.h"

namespace orve::coefficients {

Reading ReadBlock(const Request& request, const Table& table, const Block& block, std::size_t column,
                  double parameter, bool suction) {
  Reading reading;
  reading.table = &table;
  reading.block = &block;
  reading.origin = block.origin;
  reading.column = block.letters[column];
  reading.position = Locate(block, parameter);
  reading.figure = ReadFigure(block, column, reading.position, suction);
  if (!reading.figure.found) RefuseBlank(request, table, block, reading.position);
  reading.value = reading.figure.value;
  return reading;
}

}  // namespace orve::coefficients
