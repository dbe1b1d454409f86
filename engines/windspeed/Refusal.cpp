#include "windspeed/Refusal.h"

#include <cmath>
#include <iterator>
#include <string>

#include "common/Error.h"
#include "core/Enumerations.h"
#include "windspeed/GustPeak.h"
#include "windspeed/TerrainFactors.h"
#include "windspeed/Topography.h"

namespace orve::windspeed {

namespace {

// Each member raises for the first unusable input of one result, in the order in which the result is worked
// out.
class Search {
 public:
  Search(const InputValues& inputs, std::size_t sector) : m_inputs(inputs), m_sector(sector) {}

  void Risk() const { Check(Input::Risk); }

  void Season() const {
    Check(Input::Season);
    if (m_inputs.season > static_cast<std::int32_t>(Durations::Summer)) Check(Input::StartMonth);
  }

  void Altitude() const { Check(FeatureOfSector().significant ? Input::BaseAltitude : Input::SiteAltitude); }

  void StandardAltitude() const {
    Altitude();
    Check(Input::SiteAltitude);
    Increment();
  }

  void Increment() const {
    if (FeatureOfSector().significant) Check(Input::Height);
  }

  void Displacement() const {
    Check(Input::DistanceInTown);
    if (Country()) return;
    Check(Input::ObstructionHeight);
    if (Value(Input::ObstructionHeight) > 0) Check(Input::ObstructionSpacing);
  }

  void EffectiveHeight() const {
    Check(Input::Height);
    Displacement();
  }

  void Fetch() const {
    EffectiveHeight();
    Check(Input::DistanceToSea);
  }

  void Town() const {
    Check(Input::DistanceInTown);
    if (!Country()) Fetch();
  }

  void SiteSpeed() const {
    Check(Input::BasicWindSpeed);
    Altitude();
    Season();
    Risk();
  }

  void Gust() const {
    Check(Input::Diagonal);
    if (Value(Input::Diagonal) <= kLeastDiagonal) return;
    SiteSpeed();
    Fetch();
    Increment();
  }

  void TerrainAndBuilding() const {
    Fetch();
    Increment();
    Gust();
  }

  void Pressure() const {
    SiteSpeed();
    Fetch();
    Increment();
    Check(Input::Units);
  }

  void SizeEffect() const {
    Check(Input::Diagonal);
    if (Value(Input::Diagonal) > kLeastDiagonal) Fetch();
  }

 private:
  double Value(Input input) const { return m_inputs.Value(input, m_sector); }
  double Usable(Input input) const { return m_inputs.Usable(input, m_sector); }

  bool Country() const { return InCountry(Value(Input::DistanceInTown), Usable(Input::DistanceToSea)); }

  void Check(Input input) const {
    if (std::isnan(Usable(input)))
      throw Error(ErrorNumber::InvalidArgument, RefusalText(input, m_sector, Value(input)));
  }

  Feature FeatureOfSector() const {
    Check(Input::TopographyMode);
    if (m_inputs.topographyMode == kByAltitude) return {};
    Check(Input::CrestHeight);
    Check(Input::UpwindLength);
    const Feature feature = DescribeFeature(Usable(Input::CrestHeight), Usable(Input::UpwindLength),
                                            Usable(Input::DownwindLength), Usable(Input::SiteLocation));
    if (feature.known) return feature;
    Check(Input::DownwindLength);
    Check(Input::SiteLocation);
    return feature;
  }

  const InputValues& m_inputs;
  std::size_t m_sector;
};

void CheckInputsOf(WindFactor factor, const Search& search) {
  switch (factor) {
    case WindFactor::Sp:
      return search.Risk();
    case WindFactor::Ss:
      return search.Season();
    case WindFactor::Sd:
      return;
    case WindFactor::Sa:
      return search.Altitude();
    case WindFactor::Zd:
      return search.Displacement();
    case WindFactor::He:
      return search.EffectiveHeight();
    case WindFactor::Sh:
      return search.Increment();
    case WindFactor::Sc:
    case WindFactor::St:
      return search.Fetch();
    case WindFactor::Tc:
    case WindFactor::Tt:
      return search.Town();
    case WindFactor::gt:
      return search.Gust();
    case WindFactor::Sb:
      return search.TerrainAndBuilding();
    case WindFactor::q:
      return search.Pressure();
    case WindFactor::Ca:
      return search.SizeEffect();
  }
}

[[noreturn]] void RaiseTooLarge(const std::string& name) {
  throw Error(ErrorNumber::Overflow, name + " is too large for a 32-bit number; up to 3.4e38 is allowed");
}

}  // namespace

void Refuse(WindFactor factor, const InputValues& inputs, std::size_t sector) {
  CheckInputsOf(factor, Search(inputs, sector));
  RaiseTooLarge(FactorName(factor));
}

void RefuseStandardSb(const InputValues& inputs, std::size_t sector, double he) {
  Search(inputs, sector).Fetch();
  throw Error(ErrorNumber::InvalidArgument, "Table 4: the effective height He of sector " +
                                                std::to_string(sector) + " is " + ShownNumber(he) +
                                                " m; up to " + ShownNumber(kTable4Height) + " m is allowed");
}

void RefuseStandardSa(const InputValues& inputs, std::size_t sector) {
  Search(inputs, sector).StandardAltitude();
  RaiseTooLarge("Sa");
}

const char* FactorName(WindFactor factor) {
  static constexpr const char* kNames[] = {"Sp", "Ss", "Sd", "Sa", "Zd", "He", "Sh", "Sc",
                                           "St", "Tc", "Tt", "gt", "Sb", "q",  "Ca"};
  return kNames[static_cast<std::size_t>(factor)];
}

}  // namespace orve::windspeed
