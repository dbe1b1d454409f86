// Zones of roofs on the plan (Figures 16 to 21).
#include <algorithm>

#include "Layout.h"

namespace orve::sheet {

namespace {

constexpr Point kWithWind{0, 1};
constexpr Point kAcross{1, 0};
constexpr Point kBack{-1, 0};

bool IsFace1Or3(Faces face) {
  return face == Faces::Face_1 || face == Faces::Face_3;
}

void FlatRoof(Cutter& cut, Polygon roof) {
  const double edge = cut.Y("A");
  cut.Strip(roof, edge, "A", cut.X("A"), "B");
  cut.Add("C", CutOff(roof, kWithWind, edge + cut.Y("C")));
  cut.Add("D", roof);
}

void MonoPitchedAcross(Cutter& cut, Polygon roof) {
  cut.Strip(roof, cut.Y("A"), "A", cut.X("A"), "B");
  cut.Add("C", roof);
}

// The low eaves lie on Face 1, at x 0.
void MonoPitchedAlong(Cutter& cut, Polygon roof, double breadth) {
  const double edge = cut.Y("AL");
  Polygon strip = CutOff(roof, kWithWind, edge);
  cut.Add("AL", CutOff(strip, kAcross, cut.X("AL")));
  cut.Add("AU", CutOff(strip, kBack, cut.X("AU") - breadth));
  cut.Add("B", strip);
  cut.Add("C", CutOff(roof, kWithWind, edge + cut.Y("C")));
  cut.Add("D", roof);
}

void DuoPitchedAcross(Cutter& cut, Polygon leeward, double depth) {
  Polygon windward = CutOff(leeward, kWithWind, depth / 2);
  cut.Strip(windward, cut.Y("A"), "A", cut.X("A"), "B");
  cut.Add("C", windward);
  cut.Strip(leeward, depth / 2 + cut.Y("E"), "E", cut.X("E"), "F");
  cut.Add("G", leeward);
}

// A lies at the eaves and B at the ridge, on either slope.
void DuoPitchedAlong(Cutter& cut, Polygon right, double breadth) {
  Polygon left = CutOff(right, kAcross, breadth / 2);
  const double edge = cut.Y("A");
  for (const bool atLeft : {true, false}) {
    Polygon& slope = atLeft ? left : right;
    Polygon strip = CutOff(slope, kWithWind, edge);
    cut.Add("A", atLeft ? CutOff(strip, kAcross, cut.X("A")) : CutOff(strip, kBack, cut.X("A") - breadth));
    cut.Add("B", strip);
    cut.Add("C", CutOff(slope, kWithWind, edge + cut.Y("C")));
    cut.Add("D", slope);
  }
}

void CurvedAcross(Cutter& cut, Polygon roof) {
  double end = 0;
  for (const char* name : {"A", "B", "C", "D", "E"})
    cut.Add(name, CutOff(roof, kWithWind, end += cut.Y(name)));
  cut.Add("F", roof);
}

void CurvedAlong(Cutter& cut, Polygon roof) {
  double end = cut.Y("A");
  cut.Strip(roof, end, "A", cut.X("A"), "B");
  for (const char* name : {"C", "D", "E"}) cut.Add(name, CutOff(roof, kWithWind, end += cut.Y(name)));
  cut.Add("F", roof);
}

// From the wind's directions to the plan.
Point ToPlan(Point p, Faces face, double length, double width) {
  switch (face) {
    case Faces::Face_2:
      return {p.y, p.x};
    case Faces::Face_3:
      return {p.x, width - p.y};
    case Faces::Face_4:
      return {length - p.y, p.x};
    default:
      return p;
  }
}

Pieces InWindDirections(RoofTypes roofType, bool across, const ZoneSizes& zones, double breadth,
                        double depth) {
  Cutter cut(zones);
  const Polygon roof = Rectangle(breadth, depth);
  switch (roofType) {
    case RoofTypes::Mono_pitched_roof:
      across ? MonoPitchedAcross(cut, roof) : MonoPitchedAlong(cut, roof, breadth);
      break;
    case RoofTypes::Duo_pitched_roof:
      across ? DuoPitchedAcross(cut, roof, depth) : DuoPitchedAlong(cut, roof, breadth);
      break;
    case RoofTypes::Hipped_roof:
      return LayOutHippedRoof(zones, breadth, depth);
    case RoofTypes::Curved_roof:
      across ? CurvedAcross(cut, roof) : CurvedAlong(cut, roof);
      break;
    default:
      FlatRoof(cut, roof);
      break;
  }
  return cut.Take();
}

}  // namespace

const ZoneSize* Cutter::Find(std::string_view name) const {
  for (const ZoneSize& zone : m_zones)
    if (zone.name == name) return &zone;
  return nullptr;
}

double Cutter::X(std::string_view name) const {
  const ZoneSize* zone = Find(name);
  return zone && zone->hasSize ? std::max(zone->x, 0.0) : 0;
}

double Cutter::Y(std::string_view name) const {
  const ZoneSize* zone = Find(name);
  return zone && zone->hasSize ? std::max(zone->y, 0.0) : 0;
}

void Cutter::Add(std::string_view name, const Polygon& outline) {
  constexpr double smallest = 1e-9;
  if (m_zones.empty() || outline.size() < 3 || Area(outline) < smallest) return;
  const ZoneSize* zone = Find(name);
  m_pieces.push_back({zone ? static_cast<std::size_t>(zone - m_zones.data()) : 0, outline});
}

void Cutter::Strip(Polygon& rest, double depth, const char* outer, double width, const char* inner) {
  const double breadth = BoxOf(rest).right;
  Polygon strip = CutOff(rest, kWithWind, depth);
  Add(outer, CutOff(strip, kAcross, width));
  Add(outer, CutOff(strip, kBack, width - breadth));
  Add(inner, strip);
}

Pieces LayOutRoof(RoofTypes roofType, Faces face, const ZoneSizes& zones, double length, double width) {
  const bool across = IsFace1Or3(face);
  Pieces pieces = InWindDirections(roofType, across, zones, across ? length : width, across ? width : length);
  for (Piece& piece : pieces)
    for (Point& point : piece.outline) point = ToPlan(point, face, length, width);
  return pieces;
}

}  // namespace orve::sheet
