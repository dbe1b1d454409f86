// Zones of walls (Figure 12) and of parapets (Figure 23) on their elevations.
#include "Layout.h"

namespace orve::sheet {

namespace {

constexpr int kFaceCount = 4;

Faces Turned(Faces face, int steps) {
  return static_cast<Faces>((static_cast<int>(face) + steps) % kFaceCount);
}

bool Has(const ZoneSizes& zones, const std::string& name) {
  for (const ZoneSize& zone : zones)
    if (zone.name == name) return true;
  return false;
}

}  // namespace

// The faces follow each other clockwise on the plan.
Faces LeftOf(Faces face) {
  return Turned(face, 1);
}
Faces RightOf(Faces face) {
  return Turned(face, kFaceCount - 1);
}

Pieces LayOutWall(const Polygon& wall, Faces face, WallWind wind, const ZoneSizes& zones) {
  Cutter cut(zones);
  if (wind == WallWind::Onto || wind == WallWind::Away) {
    const char* name = wind == WallWind::Onto ? "Windward" : "Leeward";
    if (Has(zones, name)) cut.Add(name, wall);
    return cut.Take();
  }
  const bool fromLeft = wind == WallWind::FromLeft;
  const int number = 1 + static_cast<int>(fromLeft ? LeftOf(face) : RightOf(face));
  const std::string from = " (face " + std::to_string(number) + ")";
  const std::string a = "A" + from;
  const std::string b = "B" + from;
  const std::string c = "C" + from;
  if (!Has(zones, a)) return {};
  // The last zone that there is takes the rest of the wall.
  const std::string last = Has(zones, c) ? c : Has(zones, b) ? b : a;
  Polygon rest = wall;
  const double far = BoxOf(wall).right;
  double end = 0;
  for (const std::string& name : {a, b}) {
    if (name == last || !Has(zones, name)) continue;
    end += cut.X(name);
    cut.Add(name, fromLeft ? CutOff(rest, {1, 0}, end) : CutOff(rest, {-1, 0}, end - far));
  }
  cut.Add(last, rest);
  return cut.Take();
}

Pieces LayOutParapet(double length, double height, bool windward, const ZoneSizes& zones) {
  Cutter cut(zones);
  std::vector<std::string> names;
  for (const char* letter : {"A", "B", "C", "D"}) {
    const std::string name = std::string(letter) + (windward ? " (windward)" : " (leeward)");
    if (Has(zones, name)) names.push_back(name);
  }
  Polygon rest = Rectangle(length, height);
  double end = 0;
  for (const std::string& name : names) {
    const bool last = name == names.back();
    end += cut.X(name);
    cut.Add(name, last ? rest : CutOff(rest, {1, 0}, end));
  }
  return cut.Take();
}

}  // namespace orve::sheet
