// Zones of hipped roofs on the plan (Figure 21).
#include <cmath>

#include "Layout.h"

namespace orve::sheet {

namespace {

// The four slopes meet in hips at 45 degrees on the plan: a slope is what lies nearest to its eaves.
struct Slopes {
  Polygon windward, leeward, left, right;
};

Polygon NearestTo(const Polygon& roof, const std::vector<Point>& normals,
                  const std::vector<double>& distances) {
  Polygon slope = roof;
  for (std::size_t i = 0; i < normals.size(); ++i) slope = Within(slope, normals[i], distances[i]);
  return slope;
}

Slopes SlopesOf(double breadth, double depth) {
  const Polygon roof = Rectangle(breadth, depth);
  return {NearestTo(roof, {{-1, 1}, {1, 1}, {0, 2}}, {0, breadth, depth}),
          NearestTo(roof, {{-1, -1}, {1, -1}, {0, -2}}, {-depth, breadth - depth, -depth}),
          NearestTo(roof, {{1, -1}, {1, 1}, {2, 0}}, {0, depth, breadth}),
          NearestTo(roof, {{-1, -1}, {-1, 1}, {-2, 0}}, {-breadth, depth - breadth, -breadth})};
}

void Windward(Cutter& cut, Polygon slope, double breadth, double strip, double corner) {
  Polygon eaves = CutOff(slope, {0, 1}, strip);
  cut.Add("A", CutOff(eaves, {1, 0}, corner));
  cut.Add("A", CutOff(eaves, {-1, 0}, corner - breadth));
  cut.Add("B", eaves);
  cut.Add("C", slope);
}

// Strips beside the two hips, then one beside the ridge where there is one across the wind.
void Leeward(Cutter& cut, Polygon slope, double breadth, double depth, double strip, double besideHip) {
  cut.Add("E", CutOff(slope, {1, 1}, depth + besideHip));
  cut.Add("E", CutOff(slope, {-1, 1}, depth - breadth + besideHip));
  cut.Add("F", CutOff(slope, {0, 1}, depth / 2 + strip));
  cut.Add("G", slope);
}

}  // namespace

// The library gives one size for all zones: x is the width of the strips along eaves, hips and ridge, y the
// length beside a corner.
Pieces LayOutHippedRoof(const ZoneSizes& zones, double breadth, double depth) {
  Cutter cut(zones);
  const double strip = cut.X("A");
  const double corner = cut.Y("A");
  const double besideHip = strip * std::sqrt(2.0);  // measured along an eaves
  const Slopes slopes = SlopesOf(breadth, depth);
  Windward(cut, slopes.windward, breadth, strip, corner);
  Leeward(cut, slopes.leeward, breadth, depth, strip, besideHip);
  for (const bool atLeft : {true, false}) {
    Polygon slope = atLeft ? slopes.left : slopes.right;
    // Distance behind the windward hip: y - x at the left, y - (breadth - x) at the right.
    cut.Add("H", CutOff(slope, {atLeft ? -1.0 : 1.0, 1}, besideHip + (atLeft ? 0 : breadth)));
    cut.Add("I", CutOff(slope, {0, 1}, corner));
    cut.Add("J", slope);
  }
  return cut.Take();
}

}  // namespace orve::sheet
