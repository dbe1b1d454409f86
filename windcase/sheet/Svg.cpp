#include "Svg.h"

#include <cmath>

#include "Html.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr double kPi = 3.14159265358979323846;

std::string Pair(Point p) {
  return Coordinate(p.x) + " " + Coordinate(p.y);
}

Point OnCircle(Point centre, double radius, double bearing) {
  const double angle = bearing * kPi / 180;
  return {centre.x + radius * std::sin(angle), centre.y - radius * std::cos(angle)};
}

}  // namespace

std::string Coordinate(double value) {
  std::string text = FormatFixed(value, 1);
  if (text.size() > 2 && text.compare(text.size() - 2, 2, ".0") == 0) text.resize(text.size() - 2);
  return text;
}

Polygon View::At(const Polygon& outline) const {
  Polygon drawn;
  for (const Point& p : outline) drawn.push_back(At(p));
  return drawn;
}

Svg::Svg(double width, double height, std::string_view title, std::string_view description) {
  const std::string w = Coordinate(width);
  const std::string h = Coordinate(height);
  m_markup = "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\" viewBox=\"0 0 " + w + " " + h +
             "\" width=\"" + w + "\" height=\"" + h + "\" font-family=\"sans-serif\"><title>" +
             Escaped(title) + "</title><desc>" + Escaped(description) + "</desc>";
}

void Svg::Shape(const Polygon& outline, std::string_view fill, double stroke) {
  m_markup += "<path d=\"M";
  for (std::size_t i = 0; i < outline.size(); ++i) m_markup += (i ? "L" : "") + Pair(outline[i]);
  m_markup +=
      "z\" fill=\"" + std::string(fill) + "\" stroke=\"#000\" stroke-width=\"" + Coordinate(stroke) + "\"/>";
}

void Svg::Line(Point from, Point to, double stroke, bool dashed) {
  m_markup += "<path d=\"M" + Pair(from) + "L" + Pair(to) + "\" stroke=\"#000\" stroke-width=\"" +
              Coordinate(stroke) + "\"" + (dashed ? " stroke-dasharray=\"4 3\"" : "") + "/>";
}

void Svg::Circle(Point centre, double radius) {
  m_markup += "<circle cx=\"" + Coordinate(centre.x) + "\" cy=\"" + Coordinate(centre.y) + "\" r=\"" +
              Coordinate(radius) + "\" fill=\"none\" stroke=\"#999\" stroke-width=\"0.5\"/>";
}

void Svg::Wedge(Point centre, double radius, double from, double to, std::string_view fill) {
  const std::string r = Coordinate(radius);
  m_markup += "<path d=\"M" + Pair(centre) + "L" + Pair(OnCircle(centre, radius, from)) + "A" + r + " " + r +
              " 0 0 1 " + Pair(OnCircle(centre, radius, to)) + "z\" fill=\"" + std::string(fill) +
              "\" stroke=\"#000\" stroke-width=\"0.7\"/>";
}

void Svg::Arrow(Point from, Point to) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = std::hypot(dx, dy);
  constexpr double head = 6;
  const Point along{dx / length * head, dy / length * head};
  const Point neck{to.x - along.x, to.y - along.y};
  Line(from, neck, 1.4);
  Shape({to, {neck.x - along.y / 2, neck.y + along.x / 2}, {neck.x + along.y / 2, neck.y - along.x / 2}},
        "#000", 0.5);
}

void Svg::Text(Point at, std::string_view text, const TextForm& form) {
  const std::string x = Coordinate(at.x);
  const std::string y = Coordinate(at.y);
  std::string head = "<text x=\"" + x + "\" y=\"" + y + "\" font-size=\"" + Coordinate(form.size) + "\"";
  if (std::string_view(form.anchor) != "start") head += " text-anchor=\"" + std::string(form.anchor) + "\"";
  if (form.bold) head += " font-weight=\"bold\"";
  if (form.upwards) head += " transform=\"rotate(-90 " + x + " " + y + ")\"";
  const std::string body = ">" + Escaped(text) + "</text>";
  if (form.halo) m_markup += head + " stroke=\"#fff\" stroke-width=\"2.5\" aria-hidden=\"true\"" + body;
  m_markup += head + body;
}

void DrawScaleBar(Svg& svg, Point left, double scale) {
  constexpr double shortest = 36;
  double metres = 0.1;
  for (int step = 0; metres * scale < shortest && step < 12; ++step) metres *= step % 3 == 1 ? 2.5 : 2;
  const Point right{left.x + metres * scale, left.y};
  svg.Line(left, right, 1.2);
  for (const Point& end : {left, right}) svg.Line({end.x, end.y - 3}, {end.x, end.y + 3}, 1.2);
  svg.Text({right.x + 4, right.y + 3}, ShortestText(static_cast<float>(metres)) + " m", {8, "start"});
}

}  // namespace orve::sheet
