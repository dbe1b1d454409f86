// The overall loads of a zone: external and internal load at their worst.
#include <array>
#include <orve3_bs6399_2.h>

#include "Builders.h"
#include "Explain.h"
#include "common/LoadText.h"
#include "common/Narrow.h"

namespace orve::explain {

namespace {

struct Terms {
  LoadTerms external;
  LoadTerms internal;
};

// A pair of an external and an internal term: magnitudes, with the sign that each has in the difference.
struct Pair {
  std::string formula;
  float difference;
};

std::vector<Pair> PairsOf(const Terms& terms) {
  struct Signed {
    const QuantityPtr& term;
    double sign;
  };
  const std::array<Signed, 2> outside = {{{terms.external.pressure, 1}, {terms.external.suction, -1}}};
  const std::array<Signed, 2> inside = {{{terms.internal.pressure, 1}, {terms.internal.suction, -1}}};
  std::vector<Pair> pairs;
  for (const auto& [external, sign] : outside)
    for (const auto& [internal, internalSign] : inside) {
      if (!external || !internal) continue;
      pairs.push_back(
          {(sign < 0 ? "-" : "") + external->symbol + (internalSign < 0 ? " + " : " - ") + internal->symbol,
           ToSingle(sign * *external->value - internalSign * *internal->value)});
    }
  return pairs;
}

// The first pair whose difference is the library's result.
std::string Governing(const std::vector<Pair>& pairs, float load) {
  for (const Pair& pair : pairs)
    if (pair.difference == load) return pair.formula + " governs";
  return "0 governs: no pair lies on this side";
}

std::string MissingSide(const Terms& terms) {
  const bool external = terms.external.pressure || terms.external.suction;
  return std::string("no ") + (external ? "internal" : "external") +
         " load is present, so that no pair exists and the overall load is 0";
}

void Combine(Quantity& load, const Terms& terms, const char* extreme) {
  for (const QuantityPtr& term :
       {terms.external.pressure, terms.external.suction, terms.internal.pressure, terms.internal.suction})
    if (term) Add(load, term);
  const std::vector<Pair> pairs = PairsOf(terms);
  load.clause = "2.1.3.3";
  if (pairs.empty()) {
    load.note = MissingSide(terms);
    if (!load.children.empty()) load.warnings.push_back(WarnOfMissingPair(load.name, load.note));
    return;
  }
  std::string formula = std::string(extreme) + "(0";
  for (const Pair& pair : pairs) formula += ", " + pair.formula;
  SetFormula(load, formula + ")");
  load.note = Governing(pairs, static_cast<float>(*load.value));
}

Quantity OverallLoad(const char* symbol, const char* name, float value) {
  Quantity load = Number(symbol, name, value, std::string(BareLoadUnit));
  load.text = FormatSignedLoad(value);
  return load;
}

// A parapet has no internal side; its coefficients are net ones.
void TakeParapetTerm(Quantity& load, const QuantityPtr& term, const char* sign) {
  Add(load, term);
  SetFormula(load, sign + term->symbol);
  load.clause = "2.7.5";
  load.note = "net across the wall";
}

}  // namespace

QuantityPtr ExplainZone(BuildingAreas area, Faces face, std::int16_t zone) {
  const auto& root = RequireCurrentCase();
  const auto loads = root.OverallAppliedLoads();
  const ZoneAddress address{area, face, zone};

  Quantity overall = Text("zone",
                          AreaName(area) + ", " + std::string(PublishedText(face)) + ", zone " +
                              loads->Hybrid_ZoneDescription(area, face, zone),
                          loads->Hybrid_OverallAppliedLoads(area, face, zone));
  Add(overall, ExplainZoneSize(address));
  Quantity pressure =
      OverallLoad("p_max", "overall pressure", loads->Hybrid_OverallAppliedLoad_Pressure(area, face, zone));
  Quantity suction =
      OverallLoad("p_min", "overall suction", loads->Hybrid_OverallAppliedLoad_Suction(area, face, zone));

  WindFactors factors;
  Terms terms;
  terms.external = ExplainExternalLoads(factors, address);
  if (area == BuildingAreas::baParapet) {
    TakeParapetTerm(pressure, terms.external.pressure, "");
    TakeParapetTerm(suction, terms.external.suction, "-");
  } else {
    const auto windFace =
        static_cast<Faces>(root.ExternalCoefficients()->Hybrid_WindFromFace(area, face, zone));
    terms.internal = ExplainInternalLoads(factors, windFace);
    Combine(pressure, terms, "max");
    Combine(suction, terms, "min");
  }
  Add(overall, std::move(pressure));
  Add(overall, std::move(suction));
  return std::make_shared<const Quantity>(std::move(overall));
}

}  // namespace orve::explain
