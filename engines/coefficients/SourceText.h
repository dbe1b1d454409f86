// The source record of a coefficient.
#pragma once

#include "Sources.h"
#include "coefficients/Request.h"

namespace orve::coefficients {

/// Where a reading comes from: standard, edition, table, zone, parameter, corner figures, fraction, status.
SourceRecord SourceOf(const Request& request, const Reading& reading);

}  // namespace orve::coefficients
