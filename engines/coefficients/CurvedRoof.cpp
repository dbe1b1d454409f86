// Curved roofs, for which BS 6399-2 prints no table: arched-roof figures with the wind across the ridge,
// sharp flat eaves with the wind along it.
#include <algorithm>
#include <cmath>

#include "coefficients/Refusal.h"
#include "coefficients/Rules.h"
#include "coefficients/tables/ArchedRoof.h"

namespace orve::coefficients {

namespace {

constexpr TableTitle kTitle{"Curved roofs", "arched-roof figures, no table of BS 6399-2", ""};

constexpr std::size_t kFlatB = 1, kFlatC = 2, kFlatD = 3;

/// Rise over span: the span is `Dim_W` whatever the wind angle.
double RiseOverSpan(const Request& request) {
  const Inputs& inputs = request.inputs;
  RequirePositive(request, kTitle, "Dim_W", inputs.width, "m");
  if (!(std::isgreaterequal(inputs.height, 0.0F) && inputs.height <= kLargest))
    Refuse(request, kTitle, "Dim_H", inputs.height, "m", "a finite number of 0 or above");
  const double r = static_cast<double>(inputs.barrelRise) / inputs.width;
  if (!std::isgreater(r, 0.0))
    Refuse(request, kTitle, "Barrel_r over Dim_W", r, "", "above 0 to 0.6",
           "Describe a roof without rise as a flat roof");
  if (Below(kArchedRoof.riseLimit, r))
    Refuse(request, kTitle, "Barrel_r over Dim_W", r, "", "above 0 to 0.6");
  return r;
}

Cell WindwardQuarter(const Request& request, double r) {
  if (request.inputs.height == 0) return P(kArchedRoof.fromGround.At(r));
  if (Below(r, kArchedRoof.middleFrom)) return S(kArchedRoof.shallow.At(r));
  if (!Below(r, kArchedRoof.steepFrom)) return P(kArchedRoof.steep.At(r));
  return SP(kArchedRoof.middleSuction.At(r),
            std::max(0.0, kArchedRoof.middlePressureSlope * (r - kArchedRoof.middleFrom)));
}

Reading ArchReading(const Cell& cell, bool suction, std::string_view part) {
  const bool asked = !IsBlank(suction ? cell.suction : cell.pressure);
  Reading reading;
  reading.table = &kTitle;
  reading.origin = &kArchedRoofs;
  reading.column = part;
  reading.figure.found = true;
  reading.figure.mark = Mark::SubstituteRecalled;
  reading.figure.suction = asked ? suction : !suction;
  reading.value = reading.figure.suction ? cell.suction : cell.pressure;
  reading.figure.value = reading.value;
  return reading;
}

/// The more onerous of two readings in the case asked for; one that lacks this case gives way to one that has
/// it.
const Reading& MoreOnerous(const Reading& first, const Reading& second, bool suction) {
  if (first.figure.suction != second.figure.suction) return first.figure.suction == suction ? first : second;
  return std::fabs(second.value) > std::fabs(first.value) ? second : first;
}

Reading ReadAcrossRidge(const Request& request, double r) {
  const bool suction = request.inputs.suction;
  const Reading windward = ArchReading(WindwardQuarter(request, r), suction, "windward quarter");
  const Reading centre = ArchReading(S(kArchedRoof.centreHalf.At(r)), suction, "centre half");
  const Reading leeward = ArchReading(S(kArchedRoof.leewardQuarter.At(r)), suction, "leeward quarter");
  // Six strips of a sixth of the depth. The arch figures have no edge strips, so the outer ones are held
  // against those of a flat roof. Of the strips across two figures the fifth takes the centre's, the greater.
  switch (request.zone) {
    case 0:
      return MoreOnerous(windward, ReadSharpEaves(request, kFlatB, suction), suction);
    case 1:
      return MoreOnerous(windward, centre, suction);
    case 5:
      return MoreOnerous(leeward, ReadSharpEaves(request, kFlatC, suction), suction);
    default:
      return centre;
  }
}

Reading ReadAlongRidge(const Request& request) {
  const bool suction = request.inputs.suction;
  switch (request.zone) {
    case 3:
    case 4:
      return ReadSharpEaves(request, suction ? kFlatC : kFlatD, suction);
    case 5:
      return ReadSharpEaves(request, kFlatD, suction);
    default:
      return ReadSharpEaves(request, request.zone, suction);
  }
}

}  // namespace

Reading ReadCurvedRoof(const Request& request) {
  const double r = RiseOverSpan(request);
  return AlongLength(request.angle) ? ReadAlongRidge(request) : ReadAcrossRidge(request, r);
}

}  // namespace orve::coefficients
