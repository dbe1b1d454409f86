// The tree of every zone puts itself together again, bottom up.
#include <BuiltInEngines.h>
#include <Explain.h>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "common/Narrow.h"
#include "explain/FormulaValue.h"
#include "explain/RandomCase.h"
#include "support/FakeComponents.h"

namespace orve::test {

namespace {

using explain::Layer;
using explain::Quantity;
using explain::QuantityPtr;

constexpr double kBelowComponents = 1e-6;

double ValueOf(const Quantity& parent, std::string_view symbol) {
  for (const QuantityPtr& child : parent.children)
    if (child->symbol == symbol && child->value) return *child->value;
  ADD_FAILURE() << parent.symbol << " has no child " << symbol;
  return 0;
}

std::string Told(const Quantity& quantity) {
  return quantity.symbol + " (" + quantity.name + ") = " + quantity.formula + " = " + quantity.numbers +
         " = " + (quantity.value ? ShortestText(*quantity.value) : quantity.text);
}

// Above the components exactly, rounded once to 32 bits; below them within 1e-6. The numbers put in are
// shown with six digits.
void CheckFormula(const Quantity& quantity) {
  const double value =
      FormulaValue(quantity.formula, [&](std::string_view symbol) { return ValueOf(quantity, symbol); });
  if (quantity.layer == Layer::Library)
    EXPECT_EQ(ToSingle(value), static_cast<float>(*quantity.value)) << Told(quantity);
  else
    EXPECT_NEAR(value, *quantity.value, kBelowComponents * std::max(1.0, std::fabs(value))) << Told(quantity);
  const double shown = FormulaValue(quantity.numbers, [](std::string_view symbol) {
    ADD_FAILURE() << "no number was put in for " << symbol;
    return 0.0;
  });
  EXPECT_NEAR(shown, *quantity.value, 5e-4 + 2e-5 * std::fabs(*quantity.value)) << Told(quantity);
}

// A figure read from a table, from the corners and the places between them that its source tells.
double TableFigure(const SourceRecord& source) {
  std::vector<double> figures = source.corners;
  for (auto axis = source.axes.rbegin(); axis != source.axes.rend() && figures.size() > 1; ++axis) {
    if (axis->low == axis->high) continue;
    std::vector<double> between;
    for (std::size_t i = 0; i + 1 < figures.size(); i += 2)
      between.push_back(figures[i] + axis->fraction * (figures[i + 1] - figures[i]));
    figures = between;
  }
  return figures.front();
}

void CheckTable(const Quantity& quantity) {
  static const std::set<std::string> ofTables = {"Sc", "St", "Tc", "Tt", "Sd", "Ss", "Cpe"};
  if (!quantity.source || quantity.source->corners.empty() || !ofTables.count(quantity.symbol)) return;
  EXPECT_NEAR(TableFigure(*quantity.source), *quantity.value, kBelowComponents) << Told(quantity) << "\n"
                                                                                << quantity.source->Text();
}

// The walk again: of equal products the first stays, and both ends are measured against the whole sectors.
void CheckSearch(const Quantity& search) {
  double best = 0;
  std::string won = "none";
  for (const QuantityPtr& child : search.children) {
    if (child->symbol.substr(0, 2) != "P_" || !(*child->value > best)) continue;
    won = child->symbol.substr(2) + " degrees";
    if (child->note.empty()) best = *child->value;
  }
  EXPECT_EQ(search.text, won) << Told(search);
}

void CheckTree(const Quantity& quantity, std::set<const Quantity*>& seen) {
  if (!seen.insert(&quantity).second) return;
  if (!quantity.formula.empty()) CheckFormula(quantity);
  if (quantity.symbol.substr(0, 4) == "wind") CheckSearch(quantity);
  CheckTable(quantity);
  for (const QuantityPtr& child : quantity.children) CheckTree(*child, seen);
}

void CollectSymbols(const Quantity& quantity, std::map<std::string, const Quantity*>& symbols) {
  symbols.emplace(quantity.symbol, &quantity);
  for (const QuantityPtr& child : quantity.children) CollectSymbols(*child, symbols);
}

class Explain : public ::testing::Test {
 protected:
  Explain() {
    RegisterBuiltInEngines();
    m_case = CreateCurrentCase();
    m_case->Initialize_BreApps();
  }

  // Duo-pitched building in a town 10 km from the sea.
  void FillFixedCase() {
    m_case->Clear();
    const auto building = m_case->BuildingDimensions();
    building->OrientationUnknown(false);
    building->Orientation(20);
    building->RoofType(RoofTypes::Duo_pitched_roof);
    building->Face1And3_Length(30);
    building->Face2And4_Width(15);
    building->Roof_Pitch(15);
    building->Roof_Height(7);
    building->Roof_Diagonal(16);
    building->Wall_SideHeight(5);
    building->Wall_SideDiagonal(8);
    building->Wall_GableHeight(7);
    building->Wall_GableDiagonal(16);
    const auto site = m_case->DynamicPressure();
    site->Method(Methods::Directional);
    site->BasicWindSpeed(22.5f);
    site->SiteAltitude(65);
    for (int sector = 0; sector < 12; ++sector) {
      site->FetchesToSea(WindSectors(sector), 10);
      site->FetchesInTown(WindSectors(sector), 3);
      site->ObstructionHeight_Ho(WindSectors(sector), 4);
      site->ObstructionSpacing_Xo(WindSectors(sector), 12);
    }
    m_case->InternalCoefficients()->EnclosedBuilding_GeneralCase(true);
    m_case->InternalCoefficients()->InternalVolume(2600);
  }

  PrivateFolder m_folder;
  std::shared_ptr<clsCurrentCase> m_case;
};

TEST_F(Explain, EveryTreePutsItselfTogetherAgain) {
  std::mt19937 random(20);
  int zones = 0;
  int refused = 0;
  const bool longRun = std::getenv("ORVE_LONG_TESTS") != nullptr;
  const int wanted = longRun ? 20000 : 2500;
  while (zones < wanted && !HasFailure()) {
    m_case->Clear();
    FillRandomCase(*m_case, random);
    const auto loads = m_case->OverallAppliedLoads();
    for (int area = 0; area < 3; ++area)
      for (int face = 0; face < 4; ++face)
        for (std::int16_t zone = 0; zone <= loads->ZoneIndexTo(BuildingAreas(area), Faces(face)); ++zone)
          try {
            const QuantityPtr tree = explain::ExplainZone(BuildingAreas(area), Faces(face), zone);
            EXPECT_EQ(tree->text, loads->Hybrid_OverallAppliedLoads(BuildingAreas(area), Faces(face), zone));
            std::set<const Quantity*> seen;
            CheckTree(*tree, seen);
            if (!m_case->ExternalCoefficients()->ManualResults() &&
                !m_case->BuildingDimensions()->ConsiderCantilever()) {
              for (const QuantityPtr& length : tree->children.front()->children)
                EXPECT_FALSE(length->formula.empty()) << tree->name << " " << length->name;
            }
            ++zones;
          } catch (const Error& error) {
            EXPECT_EQ(error.Number(), 5) << error.what();
            ++refused;
          }
  }
  EXPECT_LT(refused, zones / 2);
}

TEST_F(Explain, HasEveryFactorOfTheChain) {
  FillFixedCase();
  const QuantityPtr tree = explain::ExplainZone(BuildingAreas::baRoof, Faces::Face_1, 0);
  std::map<std::string, const Quantity*> symbols;
  CollectSymbols(*tree, symbols);
  for (const char* symbol : {"p_max",  "p_min",   "pe_s", "pi_p", "pi_s", "size", "X",     "Y",      "wind",
                             "wind_q", "wind_Ca", "face", "N",    "O",    "q",    "Ca",    "Cpe_s",  "Cpe",
                             "Cpi_p",  "Cpi_s",   "Ve",   "Vs",   "Vb",   "Sa",   "Sd",    "Ss",     "Sp",
                             "Sb",     "Sc",      "St",   "Tc",   "Tt",   "Sh",   "gt",    "He",     "Hd",
                             "Hr",     "Ho",      "Xo",   "a",    "V",    "Q",    "D_sea", "D_town", "S"})
    EXPECT_TRUE(symbols.count(symbol)) << symbol;
  const Quantity& cpe = *symbols.at("Cpe");
  ASSERT_TRUE(cpe.source);
  EXPECT_EQ(cpe.source->status, SourceStatus::Substitute);
  EXPECT_FALSE(cpe.source->axes.empty());
  EXPECT_EQ(symbols.at("pi_s")->layer, Layer::Library);
}

TEST_F(Explain, WarnsOfWhatALoadRestsOn) {
  using explain::Warning;
  using explain::WarningCode;
  const auto building = [&] { return m_case->BuildingDimensions(); };
  const auto flat = [&] {
    building()->RoofType(RoofTypes::Flat_roof_with_sharp_eaves);
    building()->Roof_Diagonal(5);
  };
  // Sea to the north, the town from north-east to east, its edge in the south-east: both ends of the window
  // of face 2 beat the whole sectors, and the lower one is the greater.
  const auto sharpEnds = [&] {
    flat();
    building()->Orientation(50);
    const auto site = m_case->DynamicPressure();
    for (int sector = 0; sector < 12; ++sector) {
      const auto number = WindSectors(sector);
      site->FetchesToSea(number, sector == 0 ? 0.1F : 60);
      site->FetchesInTown(number, sector >= 1 && sector <= 3 ? 10.F : sector == 4 ? 0.2F : 0.F);
      site->ObstructionHeight_Ho(number, 0);
    }
  };
  const auto noInternal = [&] {
    const auto internal = m_case->InternalCoefficients();
    for (int face = 0; face < 4; ++face) {
      internal->InternalCoefficientFactor_Cpi_Pressure(Faces(face), 0);
      internal->InternalCoefficientFactor_Cpi_Suction(Faces(face), 0);
    }
  };
  struct Case {
    WarningCode code;
    std::function<void()> change;
    std::string text;
    std::vector<double> values{};
  };
  const Case cases[] = {
      {WarningCode::FigureSubstitute, [] {},
       "(EN 1991-1-4, Tables 7.4a and 7.4b, cpe,10) is taken from a substitute table for BS 6399-2 Table 10 "
       "and "
       "may be weaker than the print: by 11 to 40 % where it could be compared"},
      {WarningCode::FigureRecalled, [] {},
       "Figure 4) is recalled with low confidence and isn't confirmed: check it against the print"},
      {WarningCode::FigureConsistent, [] {},
       "Table 3) isn't confirmed: it is consistent with the direction factor of the UK annex to EN 1991-1-4"},
      {WarningCode::FigureEngineChoice,
       [&] { m_case->DynamicPressure()->FetchesToSea(WindSectors::Degrees_270, 1); },
       "is the engine's own choice"},
      {WarningCode::FigureWeakerThanPrint,
       [&] { building()->Roof_Pitch(6); },
       "-1.7 for the recalled -1.8 of BS 6399-2 Table 10 (zone A, pitch 5 degrees)",
       {-1.7, -1.8}},
      {WarningCode::GableFacesAcrossRidge, [&] { building()->Wall_GableFaces(GableFaces::Faces_1_and_3); },
       "the ridge of a pitched roof"},
      {WarningCode::ExternalCaZero, [&] { building()->Roof_Diagonal(0); }, "but Ca is 0"},
      {WarningCode::InternalCaZero, [&] { m_case->InternalCoefficients()->InternalVolume(0); },
       "its Ca is 0"},
      {WarningCode::InternalPressureZero, [&] { building()->Wall_SideDiagonal(0); },
       "WindPressureType takes q from the side walls, and their diagonal is 0: give Wall_SideDiagonal"},
      {WarningCode::WindPressureZero,
       [&] {
         m_case->DynamicPressure()->ManualResults(true);
         for (int sector = 0; sector < 12; ++sector)
           m_case->DynamicPressure()->SizeEffectFactor_Ca(WindAreas::waRoof, WindSectors(sector), 1);
       },
       "q is 0 in every wind looked at"},
      {WarningCode::NoPairOfLoads, noInternal, "no internal load is present"},
      {WarningCode::ZoneWithoutArea,
       [&] {
         flat();
         building()->Face1And3_Length(60);
         building()->Face2And4_Width(8);
         building()->Roof_Height(20);
       },
       "the zone is absent",
       {60, -12}},
      {WarningCode::WorstWindNotGreatest, sharpEnds, "Wind on Face 2, roof: q \u00D7 Ca ", {}},
  };
  const auto warningsOf = [&] {
    std::vector<QuantityPtr> trees;
    for (const Faces face : {Faces::Face_1, Faces::Face_2})
      for (std::int16_t zone = 0; zone < 4; ++zone)
        trees.push_back(explain::ExplainZone(BuildingAreas::baRoof, face, zone));
    std::vector<Warning> warnings = explain::CaseWarnings();
    for (const Warning& warning : explain::WarningsOf(trees)) warnings.push_back(warning);
    return warnings;
  };
  FillFixedCase();
  std::set<WarningCode> before;
  for (const Warning& warning : warningsOf()) before.insert(warning.code);
  EXPECT_EQ(before, (std::set{WarningCode::FigureConsistent, WarningCode::FigureRecalled,
                              WarningCode::FigureSubstitute}));
  for (const Case& one : cases) {
    SCOPED_TRACE(one.text);
    FillFixedCase();
    one.change();
    bool found = false;
    for (const Warning& warning : warningsOf()) {
      if (warning.code != one.code || warning.text.find(one.text) == std::string::npos) continue;
      found = true;
      if (one.code != WarningCode::WorstWindNotGreatest) {
        EXPECT_EQ(warning.values, one.values);
      } else {
        ASSERT_EQ(warning.values.size(), 4U);
        const auto wind =
            m_case->ExternalCoefficients()->Hybrid_WorstCaseSearch(BuildingAreas::baRoof, Faces::Face_2, 0);
        EXPECT_EQ(static_cast<float>(warning.values[0]), wind.Candidates[std::size_t(wind.Winner)].Product);
        EXPECT_GT(warning.values[2], 1.4 * warning.values[0]);
        EXPECT_EQ(warning.values[1], 95);
        EXPECT_EQ(warning.values[3], 5);
        EXPECT_NE(warning.text.find("32.0 % below the 0.57980"), std::string::npos) << warning.text;
      }
    }
    EXPECT_TRUE(found);
  }
}

// A component that tells nothing of its figures gives a tree without formulas below it, and the same loads.
TEST_F(FakeCase, WorksWithComponentsThatTellNoSources) {
  coefficients->zones = {{0, 0, 0, "Windward", 0.8f, 0.8f}};
  wind->bsGust.fill(700);
  wind->hybridCa.fill(0.9f);
  root->BuildingDimensions()->Face1And3_Length(20);
  root->BuildingDimensions()->Wall_SideDiagonal(5);
  root->InternalCoefficients()->EnclosedBuilding_GeneralCase(true);
  const QuantityPtr tree = explain::ExplainZone(BuildingAreas::baWalls, Faces::Face_1, 0);
  EXPECT_EQ(tree->text, root->OverallAppliedLoads()->Hybrid_OverallAppliedLoads(BuildingAreas::baWalls,
                                                                                Faces::Face_1, 0));
  std::set<const Quantity*> seen;
  CheckTree(*tree, seen);
  for (const Quantity* quantity : seen) EXPECT_FALSE(quantity->source) << Told(*quantity);
}

}  // namespace

}  // namespace orve::test
