// The lengths of a zone and the rule that they follow (Figures 12 to 23).
#include <array>
#include <orve3_bs6399_2.h>

#include "Builders.h"
#include "Formula.h"

namespace orve::explain {

namespace {

/// What the component says of the zone that the last read of a coefficient left selected.
struct Selected {
  std::int32_t type;
  std::string letters;
  float theta;

  bool Across() const { return theta == 0 || theta == 180; }
  bool FromFace2() const { return theta == 90 || theta == 89.9f; }
  bool FromFace4() const { return theta == 270 || theta == 270.1f; }
};

/// The rule of a zone: X and Y, or one length for both; "cu" and "cd" stand for the cantilevers upwind and
/// downwind, "c1" and "c2" for those of Face 1 or 2 and of Face 3 or 4.
struct Rule {
  std::int32_t type;
  bool across;
  std::string_view letters;  // separated by blanks
  std::string_view x;
  std::string_view y;
};

constexpr std::string_view kRest = "rest";

// Shapes: 0 walls, 2 flat, 3 mono-pitched, 4 duo-pitched, 5 hipped, 8 parapet, 11 curved.
constexpr Rule Rules[] = {
    {2, true, "A", "b / 4 - c1", "b / 10"},
    {2, true, "B", "B - 2 \u00D7 (b / 4)", "b / 10"},
    {2, true, "C", "B - (c1 + c2)", "b / 2 - b / 10"},
    {2, true, "D", "B - (c1 + c2)", "D - b / 2"},
    {2, false, "A", "b / 4", "b / 10 - cu"},
    {2, false, "B", "B - 2 \u00D7 (b / 4)", "b / 10 - cu"},
    {2, false, "C", "B", "b / 2 - b / 10"},
    {2, false, "D", "B", "D - b / 2 - cd"},
    {3, true, "A", "b / 2 - c1", "b / 10"},
    {3, true, "B", "B - 2 \u00D7 (b / 2)", "b / 10"},
    {3, true, "C", kRest, kRest},
    {3, false, "AU AL", "b / 4", "b / 10 - cu"},
    {3, false, "B", "B - 2 \u00D7 (b / 4)", "b / 10 - cu"},
    {3, false, "C", "B", "b / 2 - b / 10"},
    {3, false, "D", kRest, kRest},
    {4, true, "A E", "b / 2 - c1", "b / 10"},
    {4, true, "B F", "B - 2 \u00D7 (b / 2)", "b / 10"},
    {4, true, "C G", kRest, kRest},
    {4, false, "A B", "B / 4", "b / 10 - cu"},
    {4, false, "C", "B / 2", "b / 2 - b / 10"},
    {4, false, "D", kRest, kRest},
    {11, true, "A B C D E F", "B - (c1 + c2)", "D / 6"},
    {11, false, "A B", "B / 3", "min(B, 2 \u00D7 H_r) / 10 - cu"},
    {11, false, "C", "B", "B / 3 - min(B, 2 \u00D7 H_r) / 10"},
    {11, false, "D E", "B", "B / 3"},
    {11, false, "F", "B", "D - B - cd"},
};

bool HasWord(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    if (words.substr(0, end) == word) return true;
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return false;
}

struct Lengths {
  std::string x;
  std::string y;
};

Lengths Both(const char* formula) {
  return {formula, formula};
}

// Walls and parapets have one length along the wall.
Lengths WallRule(std::string_view letters, double depth, double scale) {
  const bool deep = depth > scale;
  if (letters == "Windward" || letters == "Leeward") return Both("B");
  if (letters == "A") return Both("0.2 \u00D7 b");
  if (letters == "B") return Both(deep ? "b - 0.2 \u00D7 b" : "D - 0.2 \u00D7 b");
  if (letters == "C" && deep) return Both("D - b");
  return {};
}

Lengths ParapetRule(std::string_view letters) {
  if (letters == "A") return Both("min(0.3 \u00D7 H, L)");
  if (letters == "B") return Both("min(2 \u00D7 H, L) - 0.3 \u00D7 H");
  if (letters == "C") return Both("min(4 \u00D7 H, L) - 2 \u00D7 H");
  if (letters == "D") return Both("L - 4 \u00D7 H");
  return {};
}

Lengths RuleOf(const Selected& zone, const BreCpX& component) {
  if (zone.type == 0) return WallRule(zone.letters, component.Depth(), component.Scale_b());
  if (zone.type == 5) return {"b / 10", "b / 2"};
  if (zone.type == 8) return ParapetRule(zone.letters);
  if (!zone.Across() && !zone.FromFace2() && !zone.FromFace4()) return {};
  for (const Rule& rule : Rules)
    if (rule.type == zone.type && rule.across == zone.Across() && HasWord(rule.letters, zone.letters))
      return {std::string(rule.x), std::string(rule.y)};
  return {};
}

void Replace(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

// The formula with the cantilevers that come off this zone, or without them.
std::string WithCantilevers(std::string formula, const Selected& zone, bool takeOff) {
  if (!takeOff) {
    for (const char* part : {" - (c1 + c2)", " - c1", " - cu", " - cd"}) Replace(formula, part, "");
    return formula;
  }
  Replace(formula, "cu", zone.FromFace2() ? "c1" : "c2");
  Replace(formula, "cd", zone.FromFace2() ? "c2" : "c1");
  return formula;
}

void AddMeasures(Quantity& length, const BreCpX& component) {
  const auto building = RequireCurrentCase().BuildingDimensions();
  const std::array<Quantity, 8> measures = {{
      FromComponent(Number("b", "scaling length", component.Scale_b(), kMetres)),
      FromComponent(Number("B", "crosswind breadth", component.Breadth(), kMetres)),
      FromComponent(Number("D", "inwind depth", component.Depth(), kMetres)),
      FromComponent(Number("H", "height", component.Dim_H(), kMetres)),
      FromComponent(Number("L", "length of the wall", component.Dim_L(), kMetres)),
      Input(Number("H_r", "height of the roof", building->Roof_Height(), kMetres)),
      Input(Number("c1", "cantilever of Face 1 or 2", building->CantileverFace1Or2_Length(), kMetres)),
      Input(Number("c2", "cantilever of Face 3 or 4", building->CantileverFace3Or4_Length(), kMetres)),
  }};
  for (const Quantity& measure : measures)
    if (UsesSymbol(length.formula, measure.symbol)) Add(length, measure);
  SetFormula(length, length.formula);
}

Quantity Length(const char* symbol, const char* name, float value, const std::string& formula,
                const BreCpX& component) {
  Quantity length = Number(symbol, name, value, kMetres);
  length.formula = formula;
  if (!formula.empty()) AddMeasures(length, component);
  return length;
}

}  // namespace

// The zone of the coefficient screen and that of the loads are the same unless the cantilevers have reduced
// one before it to nothing; the lengths are those of the loads.
Quantity ExplainZoneSize(const ZoneAddress& zone) {
  const auto& [area, face, index] = zone;
  const auto& root = RequireCurrentCase();
  const auto loads = root.OverallAppliedLoads();
  const auto external = root.ExternalCoefficients();
  const auto building = root.BuildingDimensions();
  const auto screen = ResultsScreens::Overall_Applied_Loads;

  Quantity size = Text("size", "size of the zone", loads->Hybrid_ZoneDimensions(area, face, index));
  size.clause = area == BuildingAreas::baWalls ? "2.4.1" : area == BuildingAreas::baRoof ? "2.5" : "2.7";
  if (size.text.empty()) {
    size.text = "the rest of its surface";
    return size;
  }
  if (const auto warning = WarnOfZoneSize(area, face, index)) size.warnings.push_back(*warning);
  const ZoneDimensionsXY lengths = external->Hybrid_ZoneDimensionsXY(area, face, index, screen);
  const bool sameZones = external->ZoneIndexTo(area, face, screen) == external->ZoneIndexTo(area, face);
  Lengths rule;
  const auto held = RequireBreCp();
  const BreCpX& component = *held;
  if (!external->ManualResults() && sameZones) {
    external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, index);
    const Selected selected{component.TypeIndex(), component.ZoneString(),
                            static_cast<float>(component.Theta())};
    rule = RuleOf(selected, component);
    const bool takeOff = building->ConsiderCantilever() && area == BuildingAreas::baRoof &&
                         !loads->CantileverZoneWidthWarning(area, face);
    rule.x = WithCantilevers(rule.x, selected, takeOff);
    rule.y = WithCantilevers(rule.y, selected, takeOff);
  }
  Add(size, Length("X", area == BuildingAreas::baRoof ? "length across the wind" : "length along the wall",
                   lengths.DimensionX, rule.x, component));
  if (area == BuildingAreas::baRoof)
    Add(size, Length("Y", "length in the direction of the wind", lengths.DimensionY, rule.y, component));
  return size;
}

}  // namespace orve::explain
