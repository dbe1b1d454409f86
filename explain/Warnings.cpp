#include <algorithm>
#include <orve3_bs6399_2.h>
#include <set>

#include "Builders.h"
#include "Explain.h"

namespace orve::explain {

namespace {

// Figures that agree with published calculations come behind the others.
class Collector {
 public:
  void Take(const Quantity& quantity) {
    if (!m_seen.insert(&quantity).second) return;
    const bool consistent = quantity.source && quantity.source->status == SourceStatus::Consistent;
    std::vector<std::string>& list = consistent ? m_consistent : m_others;
    for (const std::string& warning : quantity.warnings)
      if (std::find(list.begin(), list.end(), warning) == list.end()) list.push_back(warning);
    for (const QuantityPtr& child : quantity.children) Take(*child);
  }

  std::vector<std::string> Warnings() const {
    std::vector<std::string> warnings = m_others;
    warnings.insert(warnings.end(), m_consistent.begin(), m_consistent.end());
    return warnings;
  }

 private:
  std::set<const Quantity*> m_seen;
  std::vector<std::string> m_others;
  std::vector<std::string> m_consistent;
};

}  // namespace

// The texts name table and factor but neither zone nor sector, so that the same fact reads the same
// everywhere.
void WarnOfSource(Quantity& figure) {
  if (!figure.source) return;
  const SourceRecord& source = *figure.source;
  const std::string place = figure.name + " (" + source.standard + ", " + source.table + ")";
  switch (source.status) {
    case SourceStatus::Confirmed:
      return;
    case SourceStatus::Consistent:
      figure.warnings.push_back(place + " agrees with published calculations but isn't confirmed");
      return;
    case SourceStatus::Recalled:
      figure.warnings.push_back(place + " is recalled and isn't confirmed: check it against the print");
      return;
    case SourceStatus::EngineChoice:
      figure.warnings.push_back(place + " is the engine's own choice where no rule of the standard is known");
      return;
    case SourceStatus::StandingIn:
      figure.warnings.push_back(place + " stands in for a figure of BS 6399-2 that isn't at hand");
      return;
  }
}

std::vector<std::string> WarningsOf(std::span<const QuantityPtr> trees) {
  Collector collector;
  for (const QuantityPtr& tree : trees) collector.Take(*tree);
  return collector.Warnings();
}

// A roof's wind angle 0 blows on Face 1, across the ridge, so that its gables can only be Faces 2 and 4.
std::vector<std::string> CaseWarnings() {
  const auto building = RequireCurrentCase().BuildingDimensions();
  const RoofTypes roof = building->RoofType();
  if (roof != RoofTypes::Mono_pitched_roof && roof != RoofTypes::Duo_pitched_roof) return {};
  if (building->Wall_GableFaces() != GableFaces::Faces_1_and_3) return {};
  return {
      "The gable faces are Faces 1 and 3, but the ridge of a pitched roof runs along them, from Face 2 to "
      "Face "
      "4: heights and diagonals of gable and side walls are then taken for the wrong faces"};
}

std::string AreaName(BuildingAreas area) {
  switch (area) {
    case BuildingAreas::baRoof:
      return "Roof";
    case BuildingAreas::baWalls:
      return "Walls";
    case BuildingAreas::baParapet:
      return "Parapet";
  }
  return {};
}

}  // namespace orve::explain
