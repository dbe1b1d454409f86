// What is gathered for a sheet: governing loads, warnings at their numbers, derivations, inputs and the
// digest.
#include <Explain.h>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <portal_building.h>
#include <set>
#include <sheet/Content.h>
#include <sheet/Derivation.h>
#include <sheet/Sheet.h>
#include <string>
#include <vector>

#include "explain/RandomCase.h"
#include "sheet/SheetReader.h"

namespace orve::test {

namespace {

using namespace sheet;

class ContentTest : public SheetCase {
 protected:
  void MakePortal() {
    examples::DescribePortalBuilding(*root);
    examples::DescribeSite(*root);
  }
};

Marks MarksOf(const ZoneRow& row) {
  Marks all;
  for (const Marks* marks :
       {&row.dimensions.marks, &row.cpePressure.marks, &row.cpeSuction.marks, &row.q.marks, &row.Ca.marks,
        &row.external.marks, &row.internal.marks, &row.overall.marks, &row.refusal})
    all.insert(all.end(), marks->begin(), marks->end());
  return all;
}

// Every warning that explain has of a zone's loads stands at one of its numbers, once.
void CheckMarks(const ZoneRow& row, const Warnings& warnings) {
  std::set<std::string> marked;
  for (const int mark : MarksOf(row)) marked.insert(warnings.Texts().at(static_cast<std::size_t>(mark) - 1));
  for (const explain::Warning& warning : explain::WarningsOf({&row.tree, 1}))
    EXPECT_EQ(marked.count(warning.text), 1U) << warning.text;
}

// Lines follow from earlier ones alone, and the last is the load.
void CheckDerivation(const ZoneRow& row, bool pressure) {
  const auto lines = Derive(*row.tree, pressure);
  ASSERT_FALSE(lines.empty());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].number, static_cast<int>(i) + 1);
    for (const int from : lines[i].from) EXPECT_LT(from, lines[i].number);
  }
  EXPECT_EQ(lines.back().quantity->symbol, pressure ? "p_max" : "p_min");
  EXPECT_EQ(*lines.back().quantity->value, pressure ? row.pressure : row.suction);
}

TEST_F(ContentTest, HoldsTheGreatestLoadsTheirWarningsAndDerivationsForRandomCases) {
  std::mt19937 random(23);
  for (int i = 0; i < 6; ++i) {
    SCOPED_TRACE(i);
    root->Clear();
    FillRandomCase(*root, random);
    const Content content = GatherContent();
    for (const AreaZones& area : content.areas) {
      float greatest = 0;
      float least = 0;
      for (const FaceZones& face : area.faces)
        for (const ZoneRow& row : face.rows) {
          greatest = std::max(greatest, row.pressure);
          least = std::min(least, row.suction);
          EXPECT_EQ(row.tree == nullptr, !row.refusal.empty());
          if (row.tree) CheckMarks(row, content.warnings);
        }
      EXPECT_EQ(area.pressure.load, greatest);
      EXPECT_EQ(area.suction.load, least);
      if (area.Worst().face >= 0) CheckDerivation(area.Row(area.Worst()), &area.Worst() == &area.pressure);
    }
  }
}

// A tall and shallow building: the face is too short for zone D, whose pressure is the only one.
TEST_F(ContentTest, NamesAGoverningZoneThatIsAbsent) {
  MakePortal();
  const auto building = root->BuildingDimensions();
  building->RoofType(RoofTypes::Flat_roof_with_sharp_eaves);
  building->OrientationUnknown(true);
  building->Face1And3_Length(60);
  building->Face2And4_Width(8);
  building->Roof_Height(20);
  const Content content = GatherContent();
  const AreaZones& roof = content.areas.front();
  ASSERT_GE(roof.pressure.face, 0);
  EXPECT_EQ(roof.Row(roof.pressure).name, "D");
  EXPECT_TRUE(roof.Row(roof.pressure).absent);
  EXPECT_FALSE(roof.Row(roof.suction).absent);
  const std::string sheet = MakeSheet({});
  EXPECT_NE(sheet.find("<br>absent</td>"), std::string::npos);
}

TEST_F(ContentTest, ShowsTheInputsThatPlayAPart) {
  struct Case {
    RoofTypes roof;
    const char* shown;
  };
  const Case cases[] = {{RoofTypes::Flat_roof_with_sharp_eaves, ""},
                        {RoofTypes::Flat_roof_with_parapets, "Height of the parapets"},
                        {RoofTypes::Flat_roof_with_curved_eaves, "Radius of the eaves"},
                        {RoofTypes::Flat_roof_with_mansard_eaves, "Slope of the mansard eaves"},
                        {RoofTypes::Mono_pitched_roof, "Pitch"},
                        {RoofTypes::Hipped_roof, "Pitch"},
                        {RoofTypes::Curved_roof, "Rise"}};
  for (const Case& one : cases) {
    root->BuildingDimensions()->RoofType(one.roof);
    Warnings warnings;
    std::string shown;
    for (const InputRow& row : ReadInputs(warnings))
      for (const char* shape :
           {"Height of the parapets", "Radius of the eaves", "Slope of the mansard eaves", "Pitch", "Rise"})
        if (row.group == "Roof" && row.name == shape && row.shown) shown += shape;
    EXPECT_EQ(shown, one.shown);
  }
}

TEST_F(ContentTest, ChoosesTheSurfacesThatTheCaseConsiders) {
  const auto building = root->BuildingDimensions();
  using Areas = std::vector<BuildingAreas>;
  EXPECT_EQ(ConsideredAreas(), (Areas{BuildingAreas::baRoof, BuildingAreas::baWalls}));
  building->Parapet_Height(1);
  EXPECT_EQ(ConsideredAreas().size(), 3U);
  building->ConsiderRoof(true);
  EXPECT_EQ(ConsideredAreas(), Areas{BuildingAreas::baRoof});
  building->ConsiderCantilever(true);
  EXPECT_EQ(ConsideredAreas(), (Areas{BuildingAreas::baRoof, BuildingAreas::baWalls}));
}

TEST_F(ContentTest, DigestFollowsInputsAndResultsAndNothingElse) {
  MakePortal();
  const std::string before = GatherContent().digest;
  root->DynamicPressure()->WindSector(WindSectors::Degrees_90);
  root->ExternalCoefficients()->Face(Faces::Face_3);
  EXPECT_EQ(GatherContent().digest, before);
  using Change = std::function<void()>;
  const Change changes[] = {
      [&] { root->Description("Another"); },
      [&] { root->BuildingDimensions()->Roof_EavesRadius(0.25f); },
      [&] { root->BuildingDimensions()->Roof_Height(6.8000007f); },
      [&] { root->DynamicPressure()->FetchesToSea(WindSectors::Degrees_210, 3.6f); },
      [&] { root->DynamicPressure()->LifeTime(LifeTime::Temporary); },
      [&] {
        root->InternalCoefficients()->DominantOpening_SelectedZoneIndex(Faces::Face_4, WallZones::Leeward);
      },
      [&] {
        root->OverallAppliedLoads()->SelectedLoadType(BuildingAreas::baWalls, Faces::Face_3,
                                                      SelectedLoadTypes::Leeward);
      },
      [&] { root->OverallAppliedLoads()->SteppedWind_Distance_3(BuildingAreas::baRoof, Faces::Face_1, 1); },
  };
  for (std::size_t i = 0; i < std::size(changes); ++i) {
    root->Clear();
    MakePortal();
    changes[i]();
    EXPECT_NE(GatherContent().digest, before) << i;
  }
}

TEST_F(ContentTest, TakesResultsEnteredByHandAsTheyAre) {
  MakePortal();
  const auto site = root->DynamicPressure();
  site->ManualResults(true);
  site->DynamicPressure_q(WindAreas::waRoof, WindSectors::Degrees_60, 1.25f);
  const Content content = GatherContent();
  EXPECT_TRUE(content.siteData.columns.empty());
  ASSERT_EQ(content.factors.front().columns.size(), 2U);
  EXPECT_EQ(content.factors.front().columns[0].values[2].text, "1.250");
  EXPECT_EQ(content.factors.front().q[2], 1.25);
}

}  // namespace

}  // namespace orve::test
