#include "Polygon.h"

#include <algorithm>
#include <cmath>

namespace orve::sheet {

namespace {

double Cross(Point a, Point b) {
  return a.x * b.y - a.y * b.x;
}

double SignedArea(const Polygon& polygon) {
  double twice = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i)
    twice += Cross(polygon[i], polygon[(i + 1) % polygon.size()]);
  return twice / 2;
}

}  // namespace

Polygon Rectangle(double width, double height) {
  return {{0, 0}, {width, 0}, {width, height}, {0, height}};
}

double Area(const Polygon& polygon) {
  return std::fabs(SignedArea(polygon));
}

Box BoxOf(const Polygon& polygon) {
  if (polygon.empty()) return {};
  Box box{polygon[0].x, polygon[0].y, polygon[0].x, polygon[0].y};
  for (const Point& point : polygon) {
    box.left = std::min(box.left, point.x);
    box.right = std::max(box.right, point.x);
    box.bottom = std::min(box.bottom, point.y);
    box.top = std::max(box.top, point.y);
  }
  return box;
}

Point Centre(const Polygon& polygon) {
  const double area = SignedArea(polygon);
  if (area == 0) {
    const Box box = BoxOf(polygon);
    return {(box.left + box.right) / 2, (box.bottom + box.top) / 2};
  }
  Point sum;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point& a = polygon[i];
    const Point& b = polygon[(i + 1) % polygon.size()];
    sum.x += (a.x + b.x) * Cross(a, b);
    sum.y += (a.y + b.y) * Cross(a, b);
  }
  return {sum.x / (6 * area), sum.y / (6 * area)};
}

Polygon Within(const Polygon& polygon, Point normal, double distance) {
  const auto side = [&](const Point& p) { return normal.x * p.x + normal.y * p.y - distance; };
  Polygon inside;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point& a = polygon[i];
    const Point& b = polygon[(i + 1) % polygon.size()];
    const double atA = side(a);
    const double atB = side(b);
    if (atA <= 0) inside.push_back(a);
    if ((atA < 0 && atB > 0) || (atA > 0 && atB < 0)) {
      const double share = atA / (atA - atB);
      inside.push_back({a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)});
    }
  }
  return inside;
}

Polygon CutOff(Polygon& polygon, Point normal, double distance) {
  Polygon part = Within(polygon, normal, distance);
  polygon = Within(polygon, {-normal.x, -normal.y}, -distance);
  return part;
}

}  // namespace orve::sheet
