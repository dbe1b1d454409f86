// Drawings as SVG. Lengths in pixels, y downwards.
#pragma once

#include <string>
#include <string_view>

#include "Polygon.h"

namespace orve::sheet {

/// A coordinate as short as a drawing needs it.
std::string Coordinate(double value);

/// How a text stands.
struct TextForm {
  double size = 9;
  const char* anchor = "middle";
  bool bold = false;
  bool upwards = false;  ///< Reads from bottom to top.
  bool halo = false;     ///< On a white edge, where it covers lines.
};

class Svg {
 public:
  /// `title` and `description` stand for the drawing where it can't be seen.
  Svg(double width, double height, std::string_view title, std::string_view description);

  void Shape(const Polygon& outline, std::string_view fill, double stroke);
  void Line(Point from, Point to, double stroke, bool dashed = false);
  void Circle(Point centre, double radius);
  /// A sector of a circle between two bearings, degrees clockwise from the top.
  void Wedge(Point centre, double radius, double from, double to, std::string_view fill);
  void Arrow(Point from, Point to);
  void Text(Point at, std::string_view text, const TextForm& form = {});
  std::string Take() const { return m_markup + "</svg>"; }

 private:
  std::string m_markup;
};

/// From metres, y upwards, to a drawing.
struct View {
  double scale = 1;  ///< Pixels a metre.
  Point origin;      ///< Where 0, 0 lies.

  Point At(const Point& p) const { return {origin.x + p.x * scale, origin.y - p.y * scale}; }
  Polygon At(const Polygon& outline) const;
};

/// A bar of a round length of metres, with its end at `left`.
void DrawScaleBar(Svg& svg, Point left, double scale);

}  // namespace orve::sheet
