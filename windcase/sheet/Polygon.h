// Convex polygons: what zones are cut from. Lengths in metres.
#pragma once

#include <vector>

namespace orve::sheet {

struct Point {
  double x = 0;
  double y = 0;
};
using Polygon = std::vector<Point>;

/// A box around a polygon.
struct Box {
  double left = 0, bottom = 0, right = 0, top = 0;
  double Width() const { return right - left; }
  double Height() const { return top - bottom; }
};

Polygon Rectangle(double width, double height);
double Area(const Polygon& polygon);
/// The centre of gravity; the box's centre for a polygon without area.
Point Centre(const Polygon& polygon);
Box BoxOf(const Polygon& polygon);

/// The part in which `normal` · point is at most `distance`.
Polygon Within(const Polygon& polygon, Point normal, double distance);
/// Cuts that part off the polygon, which keeps the rest, and gives it.
Polygon CutOff(Polygon& polygon, Point normal, double distance);

}  // namespace orve::sheet
