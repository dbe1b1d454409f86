// The search for the worst wind: the face that it comes from, the sectors walked, and the winner.
#include <orve3_bs6399_2.h>

#include "Builders.h"
#include "Formula.h"

namespace orve::explain {

namespace {

constexpr float kFullCircle = 360;

float AngleOf(std::int16_t sector) {
  return basBS6399_2::Common->IndexToAngle(sector);
}

// Offsets of the normals from the building's orientation, by face.
constexpr int NormalOffsets[] = {270, 0, 90, 180};

Quantity Normal(Faces face, float normal) {
  const auto building = RequireCurrentCase().BuildingDimensions();
  if (building->OrientationUnknown())
    return Text("N", "wind angle normal to the face", "the orientation isn't known");
  Quantity quantity = Number("N", "wind angle normal to the face", normal, "degrees");
  const int orientation = building->Orientation();
  Add(quantity,
      Input(Number("O", "orientation of the normal to Face 2", static_cast<float>(orientation), "degrees")));
  const auto number = static_cast<std::int32_t>(face);
  if (number < 0 || number > 3) return quantity;
  const int offset = NormalOffsets[number];
  const int turns = (orientation + offset - static_cast<int>(normal)) / static_cast<int>(kFullCircle);
  std::string formula = "O + " + std::to_string(offset);
  if (turns != 0) formula += " - " + std::to_string(turns) + " \u00D7 360";
  SetFormula(quantity, formula);
  return quantity;
}

// Makes the quantities of one candidate. The winner is followed down to its factors.
class Candidate {
 public:
  Candidate(WindFactors& factors, WindAreas area, const WindCandidate& record, bool won)
      : m_factors(factors), m_area(area), m_record(record), m_won(won), m_angle(WindAngleText(record.Angle)) {
    m_q = Value(true);
    m_Ca = Value(false);
  }

  const QuantityPtr& q() const { return m_q; }
  const QuantityPtr& Ca() const { return m_Ca; }

  Quantity Product() const {
    Quantity product = Number("P_" + m_angle, "q \u00D7 Ca at " + m_angle + " degrees", m_record.Product);
    Add(product, m_q);
    Add(product, m_Ca);
    SetFormula(product, m_q->symbol + " \u00D7 " + m_Ca->symbol);
    if (m_record.Interpolated()) product.note = "an end of the window, interpolated";
    return product;
  }

 private:
  QuantityPtr Value(bool pressure) {
    if (m_record.Interpolated()) return Interpolated(pressure);
    return OfSector(m_record.Sector1, pressure);
  }

  QuantityPtr OfSector(std::int16_t sector, bool pressure) {
    const auto ofSector = static_cast<WindSectors>(sector);
    const std::string symbol = (pressure ? "q_" : "Ca_") + WindAngleText(AngleOf(sector));
    if (m_won)
      return pressure ? m_factors.Pressure(m_area, ofSector, symbol)
                      : m_factors.SizeEffect(m_area, ofSector, symbol);
    const float value = pressure ? m_record.q : m_record.Ca;
    return std::make_shared<const Quantity>(
        FromComponent(Number(symbol, Name(pressure), value, Unit(pressure))));
  }

  QuantityPtr Interpolated(bool pressure) {
    Quantity value = Number((pressure ? "q_" : "Ca_") + m_angle, Name(pressure),
                            pressure ? m_record.q : m_record.Ca, Unit(pressure));
    if (m_won) {
      const QuantityPtr low = Add(value, OfSector(m_record.Sector1, pressure));
      const QuantityPtr high = Add(value, OfSector(m_record.Sector2, pressure));
      SetFormula(value, Line(low->symbol, high->symbol));
    }
    value.note = "between the sectors " + WindAngleText(AngleOf(m_record.Sector1)) + " and " +
                 WindAngleText(AngleOf(m_record.Sector2));
    return std::make_shared<const Quantity>(std::move(value));
  }

  // The line through the two sectors, read at the angle, with the angles brought onto one turn.
  std::string Line(const std::string& low, const std::string& high) const {
    const float angle1 = AngleOf(m_record.Sector1);
    float angle2 = AngleOf(m_record.Sector2);
    float angle = m_record.Angle;
    if (angle2 < angle1) angle2 += kFullCircle;
    if (angle > angle2) angle -= kFullCircle;
    if (angle < angle1) angle += kFullCircle;
    const std::string from = FormulaNumber(angle1);
    return "(" + low + " - " + high + ") / (" + from + " - " + FormulaNumber(angle2) + ") \u00D7 (" +
           FormulaNumber(angle) + " - " + from + ") + " + low;
  }

  static const char* Name(bool pressure) { return pressure ? "dynamic pressure" : "size effect factor"; }
  static const char* Unit(bool pressure) { return pressure ? "kN/m\u00B2" : ""; }

  WindFactors& m_factors;
  WindAreas m_area;
  const WindCandidate& m_record;
  bool m_won;
  std::string m_angle;
  QuantityPtr m_q;
  QuantityPtr m_Ca;
};

Quantity Winner(const char* symbol, const char* name, const char* unit, float value, const QuantityPtr& won) {
  Quantity quantity = Number(symbol, name, value, unit);
  if (won) {
    Add(quantity, won);
    SetFormula(quantity, won->symbol);
  } else {
    quantity.note = "no wind has a product q \u00D7 Ca above 0";
  }
  return quantity;
}

}  // namespace

const char* WindAreaName(WindAreas area) {
  switch (area) {
    case WindAreas::waRoof:
      return "roof";
    case WindAreas::waSidewall:
      return "side walls";
    case WindAreas::waGable:
      return "gable walls";
    case WindAreas::waInternal:
      return "inside of the building";
    case WindAreas::waSidewallParapet:
      return "parapet of the side walls";
    case WindAreas::waGableParapet:
      return "parapet of the gable walls";
  }
  return "";
}

std::string WindAngleText(float angle) {
  if (angle < 0) angle += kFullCircle;
  if (angle >= kFullCircle) angle -= kFullCircle;
  return FormulaNumber(angle);
}

WorstWind ExplainWorstWind(WindFactors& factors, const WorstCase& record, Faces windFace,
                           const std::string& symbol) {
  const bool allSectors = RequireCurrentCase().BuildingDimensions()->OrientationUnknown();
  Quantity search = Text(symbol, "worst wind", "none");
  search.note = allSectors
                    ? "the greatest q \u00D7 Ca of all twelve sectors"
                    : "the greatest q \u00D7 Ca of the whole sectors within 45 degrees of the normal, or "
                      "an end of the window that is greater than these; of two such ends the upper one";
  if (const auto warning = WarnOfWorstWind(record, windFace)) search.warnings.push_back(*warning);
  Add(search, Text("face", "wind from", std::string(PublishedText(windFace))));
  Add(search, Normal(windFace, record.AngleNormalToFace));
  Add(search, Text("area", "wind area", WindAreaName(record.WindArea)));

  QuantityPtr q;
  QuantityPtr ca;
  for (int i = 0; i < record.Count; ++i) {
    const Candidate candidate(factors, record.WindArea, record.Candidates[i], i == record.Winner);
    Add(search, candidate.Product());
    if (i != record.Winner) continue;
    search.text = WindAngleText(record.Candidates[i].Angle) + " degrees";
    q = candidate.q();
    ca = candidate.Ca();
  }
  WorstWind wind;
  wind.record = record;
  wind.search = std::make_shared<const Quantity>(std::move(search));
  wind.q = std::make_shared<const Quantity>(
      Winner("q", "dynamic pressure of the worst wind", "kN/m\u00B2", record.q(), q));
  wind.Ca = std::make_shared<const Quantity>(
      Winner("Ca", "size effect factor of the worst wind", "", record.Ca(), ca));
  return wind;
}

}  // namespace orve::explain
