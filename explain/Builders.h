// The makers of the tree's branches, each in a source of its own.
#pragma once

#include <map>
#include <utility>

#include "Quantity.h"
#include "core/Enumerations.h"
#include "external/WorstCaseSearch.h"

namespace orve::explain {

inline constexpr const char* kMetres = "m";

/// A zone of the open case.
struct ZoneAddress {
  BuildingAreas area;
  Faces face;
  std::int16_t zone;
};

/// q and Ca of wind areas and sectors, and the factors behind them. Each is made once.
class WindFactors {
 public:
  /// q and Ca with all that they follow from; `symbol` is that of the quantity made.
  QuantityPtr Pressure(WindAreas area, WindSectors sector, const std::string& symbol);
  QuantityPtr SizeEffect(WindAreas area, WindSectors sector, const std::string& symbol);

 private:
  using Key = std::pair<WindAreas, WindSectors>;
  std::map<Key, QuantityPtr> m_pressures;
  std::map<Key, QuantityPtr> m_sizeEffects;
  std::map<Key, QuantityPtr> m_heights;

  QuantityPtr EffectiveHeight(WindAreas area, WindSectors sector);
  friend class SectorFactors;
};

/// A search for the worst wind: the candidates walked, and q and Ca of the winner.
struct WorstWind {
  WorstCase record;
  QuantityPtr search;
  QuantityPtr q;
  QuantityPtr Ca;
};
WorstWind ExplainWorstWind(WindFactors& factors, const WorstCase& record, Faces windFace,
                           const std::string& symbol);

/// The external terms of a zone; null for one that is absent.
struct LoadTerms {
  QuantityPtr pressure;
  QuantityPtr suction;
};
LoadTerms ExplainExternalLoads(WindFactors& factors, const ZoneAddress& zone);
LoadTerms ExplainInternalLoads(WindFactors& factors, Faces windFace);

/// An external coefficient of a zone with its table.
Quantity ExplainExternalCoefficient(const ZoneAddress& zone, bool suction);
/// An internal coefficient of a face with the rule that wrote it.
Quantity ExplainInternalCoefficient(Faces face, bool suction);

/// The zone's lengths and their rule.
Quantity ExplainZoneSize(const ZoneAddress& zone);

/// Adds the warnings of the figure's source.
void WarnOfSource(Quantity& figure);

/// A wind area as texts name it, as "side walls".
const char* WindAreaName(WindAreas area);
/// A wind angle as texts show it, from 0 to below 360.
std::string WindAngleText(float angle);

}  // namespace orve::explain
