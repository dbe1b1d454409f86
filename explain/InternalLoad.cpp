// The internal loads of the face that the wind comes from.
#include <orve3_bs6399_2.h>

#include "Builders.h"
#include "common/LoadText.h"

namespace orve::explain {

namespace {

struct InternalWind {
  WorstWind ofCa;
  WorstWind ofq;
};

QuantityPtr Load(const char* symbol, const char* name, float value, const InternalWind& wind,
                 Quantity coefficient) {
  Quantity load = Number(symbol, name, value, std::string(BareLoadUnit));
  load.clause = "2.1.3.2";
  Add(load, wind.ofCa.search);
  Add(load, wind.ofq.search);
  Add(load, wind.ofCa.Ca);
  Add(load, wind.ofq.q);
  const QuantityPtr factor = Add(load, std::move(coefficient));
  SetFormula(load, "Ca \u00D7 q \u00D7 " + factor->symbol);
  if (*factor->value != 0) load.warnings = WarnOfInternalWind(wind.ofCa.record, wind.ofq.record);
  return std::make_shared<const Quantity>(std::move(load));
}

}  // namespace

// The two searches go over different wind areas, so that they can settle on different winds.
LoadTerms ExplainInternalLoads(WindFactors& factors, Faces windFace) {
  const auto internal = RequireCurrentCase().InternalCoefficients();
  const float pressure = internal->InternalCoefficientFactor_Cpi_Pressure(windFace);
  const float suction = internal->InternalCoefficientFactor_Cpi_Suction(windFace);
  const bool hasPressure = IsPresent(pressure) || internal->EnclosedBuilding_NoPositiveInternalPressure();
  LoadTerms terms;
  if (!hasPressure && !IsPresent(suction)) return terms;
  const InternalWind wind{
      ExplainWorstWind(factors, internal->Hybrid_WorstCaseSearch_Ca(windFace), windFace, "wind_Ca"),
      ExplainWorstWind(factors, internal->Hybrid_WorstCaseSearch_q(windFace), windFace, "wind_q")};
  if (hasPressure)
    terms.pressure =
        Load("pi_p", "internal pressure load", internal->Hybrid_InternalAppliedLoad_Pressure(windFace), wind,
             ExplainInternalCoefficient(windFace, false));
  if (IsPresent(suction))
    terms.suction = Load("pi_s", "internal suction load, as a magnitude",
                         internal->Hybrid_InternalAppliedLoad_Suction(windFace), wind,
                         ExplainInternalCoefficient(windFace, true));
  return terms;
}

}  // namespace orve::explain
