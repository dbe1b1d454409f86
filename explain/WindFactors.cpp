// Dynamic pressure and size effect factor of a wind area and sector, down to the site's data.
#include <orve3_bs6399_2.h>
#include <windspeed/WindSpeedSources.h>

#include "Builders.h"
#include "sitewind/WindPressureArea.h"

namespace orve::explain {

namespace {

constexpr const char* kKilometres = "km";
constexpr const char* kSpeed = "m/s";

// The properties that height and diagonal of a wind area come from.
struct AreaMeasures {
  const char* height;
  const char* diagonal;
};

AreaMeasures MeasuresOf(WindAreas area) {
  switch (area) {
    case WindAreas::waSidewall:
      return {"height of the side walls", "diagonal of the side walls"};
    case WindAreas::waGable:
      return {"height of the gable walls", "diagonal of the gable walls"};
    case WindAreas::waSidewallParapet:
      return {"height of the top of the parapet", "diagonal of the side parapet"};
    case WindAreas::waGableParapet:
      return {"height of the top of the parapet", "diagonal of the gable parapet"};
    default:
      return {"height of the roof", "diagonal of the roof"};
  }
}

// The internal wind area has factors of its own for Ca alone; all else follows the wall or roof area.
WindAreas FactorArea(WindAreas area) {
  if (area != WindAreas::waInternal) return area;
  return WindAreaOf(RequireCurrentCase().InternalCoefficients()->WindPressureType());
}

Quantity InternalDiagonal() {
  const auto internal = RequireCurrentCase().InternalCoefficients();
  Quantity diagonal =
      Number("a", "diagonal for internal pressure", internal->Calculated_DiagonalDimension_a(), kMetres);
  diagonal.clause = "2.6";
  if (internal->InternalVolume() < 0) {
    diagonal.note = "0 for an internal volume below 0";
    return diagonal;
  }
  const StructureTypes type = internal->StructureType();
  if (type != StructureTypes::Enclosed_building && type != StructureTypes::Dominant_opening) {
    diagonal.note = "0 for an open-sided building";
    return diagonal;
  }
  Add(diagonal, Input(Number("V", "internal volume", internal->InternalVolume(), "m\u00B3")));
  if (type == StructureTypes::Enclosed_building) {
    SetFormula(diagonal, "10 \u00D7 cbrt(V)");
    return diagonal;
  }
  Add(diagonal,
      Input(Number("a_o", "diagonal of the dominant opening", internal->DiagonalDimension_a(), kMetres)));
  SetFormula(diagonal, "max(a_o, 0.2 \u00D7 cbrt(V))");
  return diagonal;
}

}  // namespace

// Makes the factors of one wind area and sector. A source is asked for straight after the read of its figure,
// while the component holds the results of the same height and diagonal.
class SectorFactors {
 public:
  SectorFactors(WindFactors& factors, WindAreas area, WindSectors sector)
      : m_factors(factors),
        m_area(FactorArea(area)),
        m_ownArea(area),
        m_sector(sector),
        m_site(*RequireCurrentCase().DynamicPressure()),
        m_component(RequireBreVe()),
        m_sources(dynamic_cast<const WindSpeedSources*>(m_component.get())) {}

  Quantity Pressure(const std::string& symbol) const {
    const float value = m_site.DynamicPressure_q(m_ownArea, m_sector);
    Quantity q = Number(symbol, "dynamic pressure", value, "kN/m\u00B2");
    if (m_site.ManualResults()) return ByHand(std::move(q));
    q = FromComponent(std::move(q), Source(WindFactor::q));
    q.clause = "3.1.2";
    const Quantity ve = EffectiveSpeed();
    if (m_site.Method() == Methods::Hybrid) {
      Add(q, ve);
      if (m_sources) SetFormula(q, "0.613 \u00D7 Ve^2 / 1000");
      return q;
    }
    // Size enters the load by Ca alone, so that q has the gust peak factor of a 5 m diagonal; Ve has that of
    // the diagonal asked for.
    const QuantityPtr sb = Part(ve, "Sb");
    for (const char* factor : {"Sc", "Tc", "St", "Tt", "Sh"}) Add(q, Part(*sb, factor));
    Add(q, Part(ve, "Vs"));
    Add(q, ve);
    if (m_sources)
      SetFormula(q,
                 "0.613 \u00D7 (Vs \u00D7 Sc \u00D7 Tc \u00D7 (1 + 3.44 \u00D7 St \u00D7 Tt + Sh))^2 / 1000");
    q.note =
        "with gt 3.44, that of a 5 m diagonal, since Ca allows for the size; Ve and Sb are shown for the "
        "diagonal of the wind area and don't enter q";
    return q;
  }

  Quantity SizeEffect(const std::string& symbol) const {
    Quantity ca = Number(symbol, "size effect factor", m_site.SizeEffectFactor_Ca(m_ownArea, m_sector));
    if (m_site.ManualResults()) return ByHand(std::move(ca));
    ca.clause = "Figure 4";
    const float a = m_component->A();
    Add(ca, m_ownArea == WindAreas::waInternal ? InternalDiagonal() : AreaDiagonal(a));
    ca = FromComponent(std::move(ca));
    if (!(a > 0)) {
      ca.note = "0 without a diagonal";
      return ca;
    }
    ca.source = Source(WindFactor::Ca);
    WarnOfSource(ca);
    if (ca.source && !ca.source->corners.empty()) {
      AddTurbulence(ca);
      SetFormula(ca, "((1 + (3.44 - 0.42 \u00D7 ln(min(a, 1000) / 5)) \u00D7 S) / (1 + 3.44 \u00D7 S))^2");
    } else if (ca.source) {
      ca.note = "1 for a diagonal up to 5 m";
    }
    return ca;
  }

  Quantity EffectiveHeight() const {
    Quantity he = Factor("He", "effective height", &clsDynamicPressure::EffectiveHeight_He, WindFactor::He,
                         "1.7.3", kMetres);
    const float height = m_component->H();
    Add(he, Input(Number("Hr", MeasuresOf(m_area).height, height, kMetres)));
    Add(he, Displacement());
    if (m_sources) SetFormula(he, "max(Hr - Hd, 0.4 \u00D7 Hr)");
    return he;
  }

 private:
  using ReadFactor = float (clsDynamicPressure::*)(WindAreas, WindSectors);
  using ReadSite = float (clsDynamicPressure::*)(WindSectors);

  static Quantity ByHand(Quantity quantity) {
    quantity.layer = Layer::Input;
    quantity.note = "entered by hand";
    return quantity;
  }

  static QuantityPtr Part(const Quantity& quantity, const std::string& symbol) {
    for (const QuantityPtr& child : quantity.children)
      if (child->symbol == symbol) return child;
    return std::make_shared<const Quantity>();
  }

  std::optional<SourceRecord> Source(WindFactor factor) const {
    if (!m_sources) return {};
    return m_sources->Source(factor, m_sector);
  }

  Quantity Factor(const char* symbol, const char* name, ReadFactor read, WindFactor factor,
                  const char* clause, const char* unit = "") const {
    Quantity quantity = Number(symbol, name, (m_site.*read)(m_area, m_sector), unit);
    quantity.clause = clause;
    return FromComponent(std::move(quantity), Source(factor));
  }

  // A figure that isn't worked out of others: its own source counts.
  Quantity Figure(const char* symbol, const char* name, ReadFactor read, WindFactor factor,
                  const char* clause) const {
    Quantity quantity = Factor(symbol, name, read, factor, clause);
    WarnOfSource(quantity);
    return quantity;
  }

  Quantity SiteValue(const char* symbol, const char* name, ReadSite read, const char* unit) const {
    return Input(Number(symbol, name, (m_site.*read)(m_sector), unit));
  }

  Quantity ToSea() const {
    return SiteValue("D_sea", "distance to the sea", &clsDynamicPressure::FetchesToSea, kKilometres);
  }
  Quantity InTown() const {
    return SiteValue("D_town", "distance in the town", &clsDynamicPressure::FetchesInTown, kKilometres);
  }

  QuantityPtr SharedHeight() const { return m_factors.EffectiveHeight(m_area, m_sector); }

  Quantity AreaDiagonal(float a) const { return Input(Number("a", MeasuresOf(m_area).diagonal, a, kMetres)); }

  // The line of Figure 4 stands for a turbulence.
  void AddTurbulence(Quantity& ca) const {
    const auto turbulence = static_cast<float>(ca.source->corners.front());
    Quantity line = FromComponent(Number("S", "turbulence of the line of Figure 4", turbulence), ca.source);
    line.value = ca.source->corners.front();
    line.clause = "Figure 4";
    Add(line, SharedHeight());
    Add(line, ToSea());
    Add(line, InTown());
    Add(ca, std::move(line));
  }

  Quantity Displacement() const {
    Quantity hd = Figure("Hd", "displacement height", &clsDynamicPressure::DisplacementHeight_Hd,
                         WindFactor::Zd, "1.7.3");
    hd.unit = kMetres;
    Add(hd, InTown());
    Add(hd, ToSea());
    Add(hd,
        SiteValue("Ho", "height of the obstructions", &clsDynamicPressure::ObstructionHeight_Ho, kMetres));
    Add(hd,
        SiteValue("Xo", "spacing of the obstructions", &clsDynamicPressure::ObstructionSpacing_Xo, kMetres));
    // The record tells whether the obstructions count.
    if (hd.source && hd.source->note.find("1.2 Ho") != std::string::npos)
      SetFormula(hd, "min(0.8 \u00D7 Ho, max(0, 1.2 \u00D7 Ho - 0.2 \u00D7 Xo))");
    return hd;
  }

  Quantity Altitude() const {
    Quantity sa =
        Figure("Sa", "altitude factor", &clsDynamicPressure::AltitudeFactor_Sa, WindFactor::Sa, "2.2.2.2");
    if (!sa.source) return sa;
    if (sa.source->note.find("base") == std::string::npos) {
      Add(sa, Input(Number("\u0394S", "site altitude", m_site.SiteAltitude(), kMetres)));
      SetFormula(sa, "1 + 0.001 \u00D7 \u0394S");
    } else {
      Add(sa, SiteValue("\u0394T", "altitude of the base of the topographic feature",
                        &clsDynamicPressure::BaseAltitude, kMetres));
      SetFormula(sa, "1 + 0.001 \u00D7 \u0394T");
    }
    return sa;
  }

  Quantity Probability() const {
    Quantity sp = FromComponent(Number("Sp", "probability factor", m_site.ProbabilityFactor_Sp()),
                                Source(WindFactor::Sp));
    sp.clause = "annex D";
    WarnOfSource(sp);
    Add(sp, Input(Number("Q", "annual risk of exceedance", m_site.AnnualRisk())));
    if (m_sources) SetFormula(sp, "sqrt((5 - ln(-ln(1 - Q))) / (5 - ln(-ln(0.98))))");
    return sp;
  }

  Quantity Season() const {
    Quantity ss =
        FromComponent(Number("Ss", "seasonal factor", m_site.SeasonalFactor_Ss()), Source(WindFactor::Ss));
    ss.clause = "annex D";
    WarnOfSource(ss);
    Add(ss, Input(Text("period", "period of exposure", std::string(PublishedText(m_site.Duration())))));
    return ss;
  }

  Quantity SiteSpeed() const {
    Quantity vs = Number("Vs", "site wind speed", m_site.SiteWindSpeed_Vs(m_area, m_sector), kSpeed);
    vs.clause = "2.2.2";
    Add(vs, Altitude());
    Add(vs, Input(Number("Vb", "basic wind speed", m_site.BasicWindSpeed(), kSpeed)));
    Add(vs,
        Figure("Sd", "direction factor", &clsDynamicPressure::DirectionFactor_Sd, WindFactor::Sd, "Table 3"));
    Add(vs, Season());
    Add(vs, Probability());
    SetFormula(vs, "Sa \u00D7 Vb \u00D7 Sd \u00D7 Ss \u00D7 Sp");
    return vs;
  }

  Quantity Topography() const {
    Quantity sh = Figure("Sh", "topographic increment", &clsDynamicPressure::TopographicIncrement_Sh,
                         WindFactor::Sh, "Table 25");
    Add(sh, SiteValue("Z", "crest height", &clsDynamicPressure::CrestHeight_Z, kMetres));
    Add(sh, SiteValue("X", "distance from the crest", &clsDynamicPressure::SiteLocation_X, kMetres));
    Add(sh, SiteValue("LU", "upwind slope length", &clsDynamicPressure::UpwindLength_LU, kMetres));
    Add(sh, SiteValue("LD", "downwind slope length", &clsDynamicPressure::DownwindLength_LD, kMetres));
    return sh;
  }

  // Under the hybrid method Sb stands for a 5 m diagonal.
  Quantity GustPeak(const QuantityPtr& siteSpeed, const Quantity& sb) const {
    Quantity gt = Number("gt", "gust peak factor", m_site.GustPeakFactor_gt(m_area, m_sector));
    gt.clause = "Table 24";
    if (m_site.Method() == Methods::Hybrid) {
      gt.note = "3.44, that of a 5 m diagonal, for the hybrid method";
      return gt;
    }
    gt = FromComponent(std::move(gt), Source(WindFactor::gt));
    WarnOfSource(gt);
    const float a = m_component->A();
    Add(gt, AreaDiagonal(a));
    Add(gt, siteSpeed);
    for (const char* factor : {"Sc", "Tc", "Sh"}) Add(gt, Part(sb, factor));
    if (m_sources && a > 5)
      SetFormula(
          gt,
          "max(0, 3.44 - 0.42 \u00D7 ln(max(1, a / 5 \u00D7 min(1, 22.5 / (Vs \u00D7 Sc \u00D7 Tc \u00D7 "
          "(1 + Sh))))))");
    return gt;
  }

  Quantity TerrainAndBuilding(const QuantityPtr& siteSpeed) const {
    Quantity sb = Factor("Sb", "terrain and building factor",
                         &clsDynamicPressure::TerrainAndBuildingFactor_Sb, WindFactor::Sb, "3.2.3");
    struct TableFactor {
      const char* symbol;
      const char* name;
      ReadFactor read;
      WindFactor factor;
      const char* table;
      bool ofTown;
    };
    static constexpr TableFactor kFactors[] = {
        {"Sc", "fetch factor", &clsDynamicPressure::FetchFactor_Sc, WindFactor::Sc, "Table 22", false},
        {"St", "turbulence factor", &clsDynamicPressure::TurbulenceFactor_St, WindFactor::St, "Table 22",
         false},
        {"Tc", "fetch adjustment factor", &clsDynamicPressure::FetchAdjustmentFactor_Tc, WindFactor::Tc,
         "Table 23", true},
        {"Tt", "turbulence adjustment factor", &clsDynamicPressure::TurbulenceAdjustmentFactor_Tt,
         WindFactor::Tt, "Table 23", true}};
    const QuantityPtr height = SharedHeight();
    for (const TableFactor& row : kFactors) {
      Quantity factor = Figure(row.symbol, row.name, row.read, row.factor, row.table);
      Add(factor, height);
      Add(factor, row.ofTown ? InTown() : ToSea());
      Add(sb, std::move(factor));
    }
    Add(sb, Topography());
    Add(sb, GustPeak(siteSpeed, sb));
    if (m_sources) SetFormula(sb, "Sc \u00D7 Tc \u00D7 (1 + gt \u00D7 St \u00D7 Tt + Sh)");
    return sb;
  }

  Quantity EffectiveSpeed() const {
    Quantity ve =
        Number("Ve", "effective wind speed", m_site.EffectiveWindSpeed_Ve(m_area, m_sector), kSpeed);
    ve.clause = "2.2.3";
    const auto siteSpeed = std::make_shared<const Quantity>(SiteSpeed());
    Add(ve, TerrainAndBuilding(siteSpeed));
    Add(ve, siteSpeed);
    SetFormula(ve, "Sb \u00D7 Vs");
    return ve;
  }

  WindFactors& m_factors;
  WindAreas m_area;
  WindAreas m_ownArea;
  WindSectors m_sector;
  clsDynamicPressure& m_site;
  std::shared_ptr<const BVe2X> m_component;
  const WindSpeedSources* m_sources;
};

QuantityPtr WindFactors::Pressure(WindAreas area, WindSectors sector, const std::string& symbol) {
  QuantityPtr& made = m_pressures[{FactorArea(area), sector}];
  if (!made) made = std::make_shared<const Quantity>(SectorFactors(*this, area, sector).Pressure(symbol));
  return made;
}

QuantityPtr WindFactors::SizeEffect(WindAreas area, WindSectors sector, const std::string& symbol) {
  QuantityPtr& made = m_sizeEffects[{area, sector}];
  if (!made) made = std::make_shared<const Quantity>(SectorFactors(*this, area, sector).SizeEffect(symbol));
  return made;
}

QuantityPtr WindFactors::EffectiveHeight(WindAreas area, WindSectors sector) {
  QuantityPtr& made = m_heights[{area, sector}];
  if (!made) made = std::make_shared<const Quantity>(SectorFactors(*this, area, sector).EffectiveHeight());
  return made;
}

}  // namespace orve::explain
