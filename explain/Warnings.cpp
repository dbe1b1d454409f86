#include <algorithm>
#include <set>

#include "Builders.h"
#include "Explain.h"

namespace orve::explain {

namespace {

// Those of loads come before those of figures, and of these the many of consistent ones last.
class Collector {
 public:
  void Take(const Quantity& quantity) {
    if (!m_seen.insert(&quantity).second) return;
    for (const Warning& warning : quantity.warnings) {
      std::vector<Warning>& list = ListOf(warning.code);
      if (std::find(list.begin(), list.end(), warning) == list.end()) list.push_back(warning);
    }
    for (const QuantityPtr& child : quantity.children) Take(*child);
  }

  std::vector<Warning> Warnings() const {
    std::vector<Warning> warnings = m_loads;
    warnings.insert(warnings.end(), m_figures.begin(), m_figures.end());
    warnings.insert(warnings.end(), m_consistent.begin(), m_consistent.end());
    return warnings;
  }

 private:
  std::vector<Warning>& ListOf(WarningCode code) {
    switch (code) {
      case WarningCode::FigureConsistent:
        return m_consistent;
      case WarningCode::FigureRecalled:
      case WarningCode::FigureEngineChoice:
      case WarningCode::FigureSubstitute:
      case WarningCode::FigureWeakerThanPrint:
        return m_figures;
      default:
        return m_loads;
    }
  }

  std::set<const Quantity*> m_seen;
  std::vector<Warning> m_loads;
  std::vector<Warning> m_figures;
  std::vector<Warning> m_consistent;
};

}  // namespace

void WarnOfSource(Quantity& figure) {
  if (figure.source) figure.warnings = FigureWarnings(figure.name, *figure.source);
}

std::vector<Warning> WarningsOf(std::span<const QuantityPtr> trees) {
  Collector collector;
  for (const QuantityPtr& tree : trees) collector.Take(*tree);
  return collector.Warnings();
}

std::vector<Warning> CaseWarnings() {
  std::vector<Warning> warnings;
  if (const auto warning = WarnOfGableFaces()) warnings.push_back(*warning);
  return warnings;
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
