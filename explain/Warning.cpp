#include "Warning.h"

#include <algorithm>
#include <orve3_bs6399_2.h>

#include "Builders.h"
#include "Formula.h"
#include "common/NumberText.h"

namespace orve::explain {

namespace {

bool HasSizeEffect(const WorstCase& search) {
  const auto* const end = search.Candidates.data() + search.Count;
  return std::any_of(search.Candidates.data(), end,
                     [](const WindCandidate& candidate) { return candidate.Ca != 0; });
}

Warning PressureZero(const char* coefficient) {
  return {WarningCode::WindPressureZero, std::string(coefficient) +
                                             " is present but q is 0 in every wind looked at, so that the "
                                             "load is 0: give q where results are entered by hand"};
}

const char* DiagonalOf(WindAreas area) {
  switch (area) {
    case WindAreas::waSidewall:
      return "Wall_SideDiagonal";
    case WindAreas::waGable:
      return "Wall_GableDiagonal";
    default:
      return "Roof_Diagonal";
  }
}

Warning InternalPressureZero(WindAreas area) {
  return {WarningCode::InternalPressureZero,
          std::string("An internal coefficient is present but its q is 0, so that the internal load is 0: "
                      "WindPressureType takes q from the ") +
              WindAreaName(area) + ", and their diagonal is 0: give " + DiagonalOf(area)};
}

Warning StatusWarning(const std::string& place, const SourceRecord& source) {
  switch (source.status) {
    case SourceStatus::Consistent:
      return {WarningCode::FigureConsistent, place + " isn't confirmed: it is " + source.StatusText()};
    case SourceStatus::Recalled:
      return {WarningCode::FigureRecalled,
              place + " is " + source.StatusText() + " and isn't confirmed: check it against the print"};
    case SourceStatus::EngineChoice:
      return {WarningCode::FigureEngineChoice,
              place + " is the engine's own choice where no rule of the standard is known"};
    default:
      break;
  }
  std::string text = place + " is taken from a substitute table";
  if (!source.replaces.empty()) text += " for " + source.replaces;
  if (!source.caution.empty()) text += " and " + source.caution;
  return {WarningCode::FigureSubstitute, text};
}

}  // namespace

std::vector<Warning> FigureWarnings(const std::string& name, const SourceRecord& source) {
  const std::string place = name + " (" + source.standard + ", " + source.table + ")";
  std::vector<Warning> warnings;
  if (source.status != SourceStatus::Confirmed) warnings.push_back(StatusWarning(place, source));
  for (const WeakerFigure& figure : source.weaker)
    warnings.push_back({WarningCode::FigureWeakerThanPrint,
                        place + " is weaker than the print may be: " + figure.Text(),
                        {figure.served, figure.recalled}});
  return warnings;
}

std::optional<Warning> WarnOfZoneSize(BuildingAreas area, Faces face, std::int16_t zone) {
  const auto& root = RequireCurrentCase();
  if (root.OverallAppliedLoads()->Hybrid_ZoneDimensions(area, face, zone).empty()) return {};
  const ZoneDimensionsXY lengths = root.ExternalCoefficients()->Hybrid_ZoneDimensionsXY(
      area, face, zone, ResultsScreens::Overall_Applied_Loads);
  std::vector<double> values = {lengths.DimensionX};
  // A wall's zones are as high as the wall.
  if (area == BuildingAreas::baRoof) values.push_back(lengths.DimensionY);
  if (std::all_of(values.begin(), values.end(), [](double length) { return length > 0; })) return {};
  return Warning{WarningCode::ZoneWithoutArea,
                 "A length isn't above 0: the zone is absent, since it lies wholly on the cantilever or the "
                 "surface is too small for it; a load is given for it all the same",
                 std::move(values)};
}

std::optional<Warning> WarnOfExternalWind(const WorstCase& search) {
  if (search.Winner >= 0) return {};
  if (HasSizeEffect(search)) return PressureZero("A coefficient");
  return Warning{WarningCode::ExternalCaZero,
                 "A coefficient is present but Ca is 0, so that the load is 0: give the diagonal"};
}

std::vector<Warning> WarnOfInternalWind(const WorstCase& searchOfCa, const WorstCase& searchOfq) {
  std::vector<Warning> warnings;
  if (searchOfCa.Winner < 0 && !HasSizeEffect(searchOfCa))
    warnings.push_back(
        {WarningCode::InternalCaZero,
         "An internal coefficient is present but its Ca is 0, so that the internal load is 0: give the "
         "internal volume, unless the building is open-sided"});
  if (searchOfq.Winner < 0 && !HasSizeEffect(searchOfq))
    warnings.push_back(InternalPressureZero(searchOfq.WindArea));
  if (warnings.empty() && (searchOfCa.Winner < 0 || searchOfq.Winner < 0))
    warnings.push_back(PressureZero("An internal coefficient"));
  return warnings;
}

Warning WarnOfMissingPair(const std::string& load, const std::string& reason) {
  return {WarningCode::NoPairOfLoads, load + ": " + reason};
}

std::optional<Warning> WarnOfWorstWind(const WorstCase& search, Faces windFace) {
  if (search.Winner < 0) return {};
  const WindCandidate& served = search.Candidates[static_cast<std::size_t>(search.Winner)];
  const auto* const begin = search.Candidates.data();
  const WindCandidate& greatest =
      *std::max_element(begin, begin + search.Count,
                        [](const WindCandidate& a, const WindCandidate& b) { return a.Product < b.Product; });
  if (!(greatest.Product > served.Product)) return {};
  const double below = 100 * (1 - static_cast<double>(served.Product) / greatest.Product);
  return Warning{WarningCode::WorstWindNotGreatest,
                 "Wind on " + std::string(PublishedText(windFace)) + ", " + WindAreaName(search.WindArea) +
                     ": q \u00D7 Ca " + FormulaNumber(served.Product) + " kN/m\u00B2 at " +
                     WindAngleText(served.Angle) + " degrees is served, " + FormatFixed(below, 1) +
                     " % below the " + FormulaNumber(greatest.Product) + " at " +
                     WindAngleText(greatest.Angle) +
                     " degrees: both ends of the window beat the whole sectors, and the upper end stands",
                 {served.Product, served.Angle, greatest.Product, greatest.Angle}};
}

// A roof's wind angle 0 blows on Face 1, across the ridge, so that its gables can only be Faces 2 and 4.
std::optional<Warning> WarnOfGableFaces() {
  const auto building = RequireCurrentCase().BuildingDimensions();
  const RoofTypes roof = building->RoofType();
  if (roof != RoofTypes::Mono_pitched_roof && roof != RoofTypes::Duo_pitched_roof) return {};
  if (building->Wall_GableFaces() != GableFaces::Faces_1_and_3) return {};
  return Warning{WarningCode::GableFacesAcrossRidge,
                 "The gable faces are Faces 1 and 3, but the ridge of a pitched roof runs along them, from "
                 "Face 2 to Face 4: heights and diagonals of gable and side walls are then taken for the "
                 "wrong faces"};
}

}  // namespace orve::explain
