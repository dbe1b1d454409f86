#include <cmath>
#include <string>

#include "common/Error.h"
#include "windspeed/GustPeak.h"
#include "windspeed/Refusal.h"
#include "windspeed/WindSpeedComponent.h"
#include "windspeed/tables/AnnexDSeasonalFactor.h"
#include "windspeed/tables/Figure4Lines.h"
#include "windspeed/tables/Table22FetchFactor.h"
#include "windspeed/tables/Table22TurbulenceFactor.h"
#include "windspeed/tables/Table23FetchAdjustment.h"
#include "windspeed/tables/Table23TurbulenceAdjustment.h"

namespace orve::windspeed {

namespace {

SourceRecord Record(std::string table, std::string item, SourceStatus status, std::string note = {}) {
  SourceRecord record;
  record.standard = "BS 6399-2:1997";
  record.edition = "Amendment 1, March 2002";
  record.table = std::move(table);
  record.item = std::move(item);
  record.status = status;
  record.note = std::move(note);
  return record;
}

template <std::size_t Lines>
SourceAxis Axis(std::string_view name, std::string_view unit, const std::array<double, Lines>& lines,
                const Bracket& place) {
  return {std::string(name), std::string(unit), lines[place.low],
          lines[place.fraction == 0 ? place.low : place.high], place.fraction};
}

template <std::size_t Rows, std::size_t Columns>
SourceRecord TableRecord(const DistanceTable<Rows, Columns>& table, const Bracket& row,
                         const Bracket& column) {
  SourceRecord record = Record(std::string(table.table), std::string(table.item), table.status);
  record.axes = {Axis("He", "m", table.he, row), Axis(table.distance, "km", table.km, column)};
  for (const std::size_t line : {row.low, row.high}) {
    record.corners.push_back(table.values[line][column.low]);
    if (column.fraction != 0) record.corners.push_back(table.values[line][column.high]);
    if (row.fraction == 0) break;
  }
  return record;
}

/// What the status of a factor rests on, as read after the status.
std::string_view BasisOf(WindFactor factor, SourceStatus status) {
  if (factor == WindFactor::Sb || factor == WindFactor::q) return "like its weakest factor";
  if (status == SourceStatus::Confirmed) return "by an outside source or published calculations";
  if (status == SourceStatus::Recalled) return factor == WindFactor::Ca ? "with low confidence" : "";
  if (status != SourceStatus::Consistent) return {};
  switch (factor) {
    case WindFactor::Sp:
      return "with the probability factor of EN 1991-1-4";
    case WindFactor::Ss:
      return "with those figures of a sister table that were read";
    case WindFactor::Sd:
      return "with the direction factor of the UK annex to EN 1991-1-4";
    case WindFactor::Ca:
      return "with the gust peak factor 3.44, which belongs to a 5 m diagonal";
    default:
      return {};
  }
}

/// Makes the records of one sector.
class Records {
 public:
  Records(const InputValues& inputs, const SiteResults& site, std::size_t sector)
      : m_inputs(inputs), m_site(site), m_sector(sector), m_results(site.sectors[sector]) {}

  SourceRecord Of(WindFactor factor) const {
    SourceRecord record = Make(factor);
    record.basis = BasisOf(factor, record.status);
    return record;
  }

 private:
  SourceRecord Make(WindFactor factor) const {
    switch (factor) {
      case WindFactor::Sp:
        return Record("annex D", "probability factor Sp", SourceStatus::Consistent,
                      "sqrt((5 - ln(-ln(1 - Q))) / (5 - ln(-ln(0.98)))), Q " + ShownNumber(m_inputs.risk));
      case WindFactor::Ss:
        return Season();
      case WindFactor::Sd:
        return Direction();
      case WindFactor::Sa:
        return Altitude();
      case WindFactor::Zd:
        return Displacement();
      case WindFactor::He:
        return Height();
      case WindFactor::Sh:
        return Increment();
      case WindFactor::Sc:
        return Fetch(kTable22FetchFactor);
      case WindFactor::St:
        return Fetch(kTable22TurbulenceFactor);
      case WindFactor::Tc:
        return Town(kTable23FetchAdjustment);
      case WindFactor::Tt:
        return Town(kTable23TurbulenceAdjustment);
      case WindFactor::gt:
        return Gust();
      case WindFactor::Sb:
        return TerrainAndBuilding();
      case WindFactor::q:
        return Pressure();
      case WindFactor::Ca:
        break;
    }
    return SizeEffect();
  }

  double Value(Input input) const { return m_inputs.Value(input, m_sector); }

  SourceRecord Season() const {
    static constexpr const char* kPeriods[] = {"all year", "winter",   "summer",
                                               "4 months", "2 months", "1 month"};
    std::string item = std::string("seasonal factor Ss, ") + kPeriods[m_inputs.season];
    if (m_inputs.season > 2)
      item += " from " + std::string(PublishedText(static_cast<Months>(m_inputs.startMonth)));
    SourceRecord record = Record("annex D", item, SourceStatus::Consistent);
    record.corners = {m_site.Ss};
    return record;
  }

  SourceRecord Direction() const {
    const double degrees = 30.0 * static_cast<double>(m_sector);
    SourceRecord record = Record("Table 3", "direction factor Sd", SourceStatus::Consistent);
    record.axes = {{"direction", "degrees", degrees, degrees, 0}};
    record.corners = {DirectionFactor(m_sector)};
    return record;
  }

  // Which altitude holds, and whether Sh counts, rests on the reach of the feature, which is recalled.
  SourceStatus ReachStatus() const {
    return m_results.feature.kind == FeatureKind::None ? SourceStatus::Confirmed : SourceStatus::Recalled;
  }

  SourceRecord Altitude() const {
    if (m_results.feature.significant)
      return Record("clause 3.2.2", "altitude factor Sa, topography significant", ReachStatus(),
                    "1 + 0.001 base altitude");
    return Record("clause 2.2.2.2", "altitude factor Sa, topography not significant", ReachStatus(),
                  "1 + 0.001 site altitude");
  }

  SourceRecord Displacement() const {
    const auto record = [](SourceStatus status, const char* note) {
      return Record("clause 1.7.3", "displacement height Hd", status, note);
    };
    const double ho = Value(Input::ObstructionHeight);
    if (ho == 0) return record(SourceStatus::Confirmed, "no obstructions: 0");
    if (Value(Input::DistanceInTown) < kLeastTown)
      return record(SourceStatus::Recalled, "country terrain: 0");
    if (InCountry(Value(Input::DistanceInTown), m_inputs.Usable(Input::DistanceToSea, m_sector)))
      return record(SourceStatus::EngineChoice, "at the sea: as country, 0");
    if (ho < 0) return record(SourceStatus::EngineChoice, "Ho below 0: 0");
    return record(SourceStatus::Confirmed, "1.2 Ho - 0.2 Xo, from 0 to 0.8 Ho");
  }

  SourceRecord Height() const {
    return Record("clause 1.7.3", "effective height He", Displacement().status,
                  "the greater of Hr - Hd and 0.4 Hr");
  }

  SourceRecord Increment() const {
    const Feature& feature = m_results.feature;
    if (!feature.significant)
      return Record("Table 25", "topographic increment Sh, topography not significant", ReachStatus(), "0");
    SourceRecord record = Record("Table 25", "topographic increment Sh", SourceStatus::Recalled);
    // To the places that the fits have.
    record.corners = {std::round(1e4 * LocationFactor(feature, Value(Input::Height))) / 1e4};
    record.note = std::string("2 psi_e s for the s shown, ") +
                  (feature.kind == FeatureKind::HillOrRidge ? "hill or ridge" : "cliff or escarpment") +
                  ", psi_e " + ShownNumber(feature.effectiveSlope) + ", Le " +
                  ShownNumber(feature.effectiveLength) +
                  " m; s by the fits of EN 1991-1-4, A.3, to curves like Figures 9 and 10";
    return record;
  }

  TerrainPlace Place() const {
    return PlaceOf(m_results.He, Value(Input::DistanceToSea), Value(Input::DistanceInTown));
  }

  // What the engine chose where a table says nothing.
  void AddChoices(SourceRecord& record, bool ofTown) const {
    const auto add = [&record](const char* choice) {
      record.status = Weaker(record.status, SourceStatus::EngineChoice);
      record.note += std::string(record.note.empty() ? "" : "; ") + choice;
    };
    if (m_results.He > kTable22FetchFactor.he.back()) add("He above 300 m: row 300");
    if (ofTown && Value(Input::DistanceInTown) > Value(Input::DistanceToSea))
      add("the distance in the town is taken as that to the sea");
  }

  template <std::size_t Rows, std::size_t Columns>
  SourceRecord Fetch(const DistanceTable<Rows, Columns>& table) const {
    const TerrainPlace place = Place();
    SourceRecord record = TableRecord(table, place.height, place.sea);
    AddChoices(record, false);
    return record;
  }

  template <std::size_t Rows, std::size_t Columns>
  SourceRecord Town(const DistanceTable<Rows, Columns>& table) const {
    const TerrainPlace place = Place();
    if (place.inTown) {
      SourceRecord record = TableRecord(table, place.height, place.town);
      AddChoices(record, true);
      return record;
    }
    SourceRecord record =
        Record(std::string(table.table), std::string(table.item), table.status, "country terrain: 1");
    if (Value(Input::DistanceInTown) >= kLeastTown) AddChoices(record, true);
    return record;
  }

  SourceRecord Gust() const {
    if (m_inputs.diagonal <= static_cast<float>(kLeastDiagonal))
      return Record("Table 24", "gust peak factor gt, diagonal up to 5 m", SourceStatus::Confirmed, "3.44");
    return Record("annex F", "gust peak factor gt", SourceStatus::Recalled,
                  "3.44 - 0.42 ln t, t = max(1, (a/5) min(1, 22.5/V0)), a " + ShownNumber(m_inputs.diagonal) +
                      " m; the entries of Table 24 aren't at hand");
  }

  SourceStatus WeakestOf(std::initializer_list<WindFactor> factors) const {
    SourceStatus weakest = SourceStatus::Confirmed;
    for (const WindFactor factor : factors) weakest = Weaker(weakest, Of(factor).status);
    return weakest;
  }

  std::string TerrainFormula() const {
    return Place().inTown ? "Sc Tc (1 + gt St Tt + Sh)" : "Sc (1 + gt St + Sh)";
  }

  SourceStatus TerrainStatus() const {
    return WeakestOf(
        {WindFactor::Sc, WindFactor::St, WindFactor::Tc, WindFactor::Tt, WindFactor::Sh, WindFactor::He});
  }

  SourceRecord TerrainAndBuilding() const {
    return Record("clause 3.2.3", "terrain and building factor Sb", Weaker(TerrainStatus(), Gust().status),
                  TerrainFormula());
  }

  SourceRecord Pressure() const {
    const SourceStatus speed = WeakestOf({WindFactor::Sa, WindFactor::Sd, WindFactor::Ss, WindFactor::Sp});
    return Record("clause 3.1.2", "dynamic pressure q", Weaker(TerrainStatus(), speed),
                  "0.613 (Vb Sa Sd Ss Sp Sb)^2, Sb = " + TerrainFormula() +
                      " with gt 3.44; the diagonal enters the load by Ca alone");
  }

  SourceRecord SizeEffect() const {
    if (m_inputs.diagonal <= static_cast<float>(kLeastDiagonal))
      return Record("Figure 4", "size effect factor Ca, diagonal up to 5 m", SourceStatus::Consistent, "1");
    const auto line = static_cast<std::size_t>(*m_results.line);
    SourceRecord record =
        Record("Figure 4", std::string("size effect factor Ca, line ") + "ABC"[line], SourceStatus::Recalled,
               "((1 + (3.44 - 0.42 ln(a/5)) S) / (1 + 3.44 S))^2 for the S shown, a " +
                   ShownNumber(m_inputs.diagonal) + " m; recalled, readings of the print aren't at hand");
    record.corners = {kFigure4LineTurbulence[line]};
    const bool nearSea =
        Value(Input::DistanceInTown) >= kTownFetch && Value(Input::DistanceToSea) < kTownFetch;
    if (nearSea || m_inputs.diagonal > 1000) record.status = SourceStatus::EngineChoice;
    if (nearSea) record.note += "; town nearer than 2 km to the sea: column 2 to 10 km";
    if (m_inputs.diagonal > 1000) record.note += "; a above 1000 m: value at 1000 m";
    return record;
  }

  const InputValues& m_inputs;
  const SiteResults& m_site;
  std::size_t m_sector;
  const SectorResults& m_results;
};

// Reads a result for the errors that its read raises.
void RequireResult(const WindSpeedComponent& engine, WindFactor factor, WindSectors sector) {
  static constexpr float (WindSpeedComponent::*kReads[])(WindSectors)
      const = {&WindSpeedComponent::Sd,      &WindSpeedComponent::Sa, &WindSpeedComponent::Zd,
               &WindSpeedComponent::He,      &WindSpeedComponent::Sh, &WindSpeedComponent::Sc,
               &WindSpeedComponent::St,      &WindSpeedComponent::Tc, &WindSpeedComponent::Tt,
               &WindSpeedComponent::gt,      &WindSpeedComponent::Sb, &WindSpeedComponent::DirVal,
               &WindSpeedComponent::HybridCa};
  const auto index = static_cast<std::int32_t>(factor);
  if (index < 0 || index > static_cast<std::int32_t>(WindFactor::Ca))
    throw Error(ErrorNumber::InvalidArgument,
                "The wind factor is " + std::to_string(index) + "; 0 to 14 is allowed");
  if (factor == WindFactor::Sp || factor == WindFactor::Ss) {
    engine.Sd(sector);
    factor == WindFactor::Sp ? engine.Sp() : engine.Ss();
    return;
  }
  (engine.*kReads[index - static_cast<std::int32_t>(WindFactor::Sd)])(sector);
}

}  // namespace

SourceRecord WindSpeedComponent::Source(WindFactor factor, WindSectors sector) const {
  RequireResult(*this, factor, sector);
  return Records(m_used, m_results, static_cast<std::size_t>(sector)).Of(factor);
}

}  // namespace orve::windspeed
