#include "coefficients/Rules.h"

#include "coefficients/Refusal.h"

namespace orve::coefficients {

Reading ReadCoefficient(const Request& request) {
  switch (request.shape) {
    case Shape::Walls:
      return ReadWalls(request);
    case Shape::Flat:
      return ReadFlatRoof(request);
    case Shape::MonoPitched:
      return ReadMonoPitchedRoof(request);
    case Shape::DuoPitched:
      return ReadDuoPitchedRoof(request);
    case Shape::Hipped:
      return ReadHippedRoof(request);
    case Shape::Parapet:
      return ReadParapet(request);
    case Shape::Curved:
      return ReadCurvedRoof(request);
    case Shape::None:
      break;
  }
  RefuseZone(request.inputs, request.shape, request.angle);
}

}  // namespace orve::coefficients
