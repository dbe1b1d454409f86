// The building and the site of the demo: a duo-pitched portal frame on the edge of a town.
#pragma once

namespace orve {
class clsCurrentCase;
}

namespace examples {

/// Plan 30 m by 15 m, 6 m to the eaves, 6 degrees of pitch; sheeted, with a parapet of 1 m round all faces.
void DescribePortalBuilding(orve::clsCurrentCase& windCase);

/// 65 m above sea level; the sea to the south and west, a town to the north and east.
void DescribeSite(orve::clsCurrentCase& windCase);

}  // namespace examples
