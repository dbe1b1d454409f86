// External and internal coefficients, and where they come from.
#include <coefficients/CoefficientSources.h>
#include <orve3_bs6399_2.h>

#include "Builders.h"
#include "common/LoadText.h"

namespace orve::explain {

namespace {

// The component's figure for the zone and case that the last read of a coefficient left selected.
Quantity ComponentFigure(const BreCpX& component) {
  std::optional<SourceRecord> source;
  if (const auto* sources = dynamic_cast<const CoefficientSources*>(&component)) source = sources->Source();
  Quantity figure = FromComponent(Number("Cpe", "external pressure coefficient", component.Cpe()), source);
  figure.clause = source ? source->table : std::string();
  WarnOfSource(figure);
  return figure;
}

// Bay factor of a multi-span roof as the formula shows it; empty where it is 1.
std::string BayFactor(const ZoneAddress& zone) {
  const auto& root = RequireCurrentCase();
  const bool acrossTheBays = zone.face == Faces::Face_1 || zone.face == Faces::Face_3;
  if (zone.area != BuildingAreas::baRoof || !acrossTheBays) return {};
  if (root.BuildingDimensions()->Roof_FrameType() == FrameTypes::Frames_1) return {};
  switch (root.ExternalCoefficients()->Bay()) {
    case Bays::Second_Bay:
      return " \u00D7 0.8";
    case Bays::All_Remaining_Bays:
      return " \u00D7 0.6";
    default:
      return {};
  }
}

// Which sign the coefficient takes of the component's figure.
void TakeFigure(Quantity& coefficient, const ZoneAddress& zone, const BreCpX& component, bool suction) {
  if (zone.area == BuildingAreas::baParapet) {
    const bool windward = component.Theta() == 0;
    if (windward == suction) {
      coefficient.note = windward ? "a windward zone has no suction" : "a leeward zone has no pressure";
      return;
    }
    Add(coefficient, ComponentFigure(component));
    SetFormula(coefficient, "Cpe");
    return;
  }
  Add(coefficient, ComponentFigure(component));
  const std::string bay = BayFactor(zone);
  SetFormula(coefficient, (suction ? "max(0, -Cpe)" : "max(0, Cpe)") + bay);
  if (!bay.empty()) coefficient.note = "with the factor of the bay, Table 12";
}

struct EnclosedRule {
  bool (clsInternalCoefficients::*stands)() const;
  const char* text;
};

constexpr EnclosedRule EnclosedRules[] = {
    {&clsInternalCoefficients::EnclosedBuilding_GeneralCase, "enclosed building, general case"},
    {&clsInternalCoefficients::EnclosedBuilding_NoPositiveInternalPressure,
     "enclosed building, no positive internal pressure"},
    {&clsInternalCoefficients::EnclosedBuilding_WindNormalToPermeableFace,
     "enclosed building, wind normal to the permeable face"},
    {&clsInternalCoefficients::EnclosedBuilding_WindNormalToImpermeableFace,
     "enclosed building, wind normal to an impermeable face"},
    {&clsInternalCoefficients::EnclosedBuilding_FourWallsEquallyPermeable,
     "enclosed building, four walls equally permeable"},
};

// A ratio rule is known by its numbers at three decimals, so that no formula is given for it.
void TakeOpening(Quantity& coefficient, const clsInternalCoefficients& internal, Faces face, bool suction,
                 const char* ratio) {
  const std::string zone(PublishedText(internal.DominantOpening_SelectedZoneIndex(face)));
  const float cpe = suction ? internal.DominantOpening_SelectedZoneCpe_Suction(face)
                            : internal.DominantOpening_SelectedZoneCpe_Pressure(face);
  Add(coefficient, Number("Cpe_o", "external coefficient at the dominant opening, zone " + zone, cpe));
  coefficient.note = std::string(ratio) + " of Cpe_o, at three decimals";
  coefficient.clause = "Table 17";
}

}  // namespace

Quantity ExplainExternalCoefficient(const ZoneAddress& zone, bool suction) {
  const auto external = RequireCurrentCase().ExternalCoefficients();
  const auto& [area, face, index] = zone;
  const float value = suction ? external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, face, index)
                              : external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, index);
  Quantity coefficient = suction ? Number("Cpe_s", "external suction coefficient, as a magnitude", value)
                                 : Number("Cpe_p", "external pressure coefficient", value);
  if (external->ManualResults()) {
    coefficient.layer = Layer::Input;
    coefficient.note = "entered by hand";
    return coefficient;
  }
  TakeFigure(coefficient, zone, *RequireBreCp(), suction);
  return coefficient;
}

Quantity ExplainInternalCoefficient(Faces face, bool suction) {
  const auto internal = RequireCurrentCase().InternalCoefficients();
  Quantity coefficient = suction ? Number("Cpi_s", "internal suction coefficient, as a magnitude",
                                          internal->InternalCoefficientFactor_Cpi_Suction(face))
                                 : Number("Cpi_p", "internal pressure coefficient",
                                          internal->InternalCoefficientFactor_Cpi_Pressure(face));
  coefficient.layer = Layer::Input;
  for (const EnclosedRule& rule : EnclosedRules)
    if (((*internal).*rule.stands)()) {
      coefficient.note = rule.text;
      coefficient.clause = "Table 16";
      return coefficient;
    }
  if (internal->DominantOpening_Ratio2(face))
    TakeOpening(coefficient, *internal, face, suction, "0.75");
  else if (internal->DominantOpening_Ratio3(face))
    TakeOpening(coefficient, *internal, face, suction, "0.9");
  else
    coefficient.note = "entered by hand";
  return coefficient;
}

}  // namespace orve::explain
