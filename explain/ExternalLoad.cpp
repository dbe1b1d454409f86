// The external loads of a zone.
#include <orve3_bs6399_2.h>

#include "Builders.h"
#include "common/LoadText.h"

namespace orve::explain {

namespace {

Faces WindFaceOf(clsExternalCoefficients& external, const ZoneAddress& zone) {
  return static_cast<Faces>(external.Hybrid_WindFromFace(zone.area, zone.face, zone.zone));
}

QuantityPtr Load(const char* symbol, const char* name, float value, const WorstWind& wind,
                 Quantity coefficient) {
  Quantity load = Number(symbol, name, value, std::string(BareLoadUnit));
  load.clause = "2.1.3.1";
  Add(load, wind.search);
  Add(load, wind.Ca);
  Add(load, wind.q);
  const QuantityPtr factor = Add(load, std::move(coefficient));
  SetFormula(load, "Ca \u00D7 q \u00D7 " + factor->symbol);
  if (*factor->value != 0)
    if (const auto warning = WarnOfExternalWind(wind.record)) load.warnings.push_back(*warning);
  return std::make_shared<const Quantity>(std::move(load));
}

}  // namespace

// A parapet's loads enter the overall ones whether the coefficient is present or not.
LoadTerms ExplainExternalLoads(WindFactors& factors, const ZoneAddress& zone) {
  const auto& [area, face, index] = zone;
  const auto external = RequireCurrentCase().ExternalCoefficients();
  const bool always = area == BuildingAreas::baParapet;
  Quantity pressure = ExplainExternalCoefficient(zone, false);
  Quantity suction = ExplainExternalCoefficient(zone, true);
  const bool hasPressure = always || IsPresent(static_cast<float>(*pressure.value));
  const bool hasSuction = always || IsPresent(static_cast<float>(*suction.value));
  LoadTerms terms;
  if (!hasPressure && !hasSuction) return terms;
  const WorstWind wind = ExplainWorstWind(factors, external->Hybrid_WorstCaseSearch(area, face, index),
                                          WindFaceOf(*external, zone), "wind");
  if (hasPressure)
    terms.pressure = Load("pe_p", "external pressure load",
                          external->Hybrid_ExternalAppliedLoad_Pressure(area, face, index), wind, pressure);
  if (hasSuction)
    terms.suction = Load("pe_s", "external suction load, as a magnitude",
                         external->Hybrid_ExternalAppliedLoad_Suction(area, face, index), wind, suction);
  return terms;
}

}  // namespace orve::explain
