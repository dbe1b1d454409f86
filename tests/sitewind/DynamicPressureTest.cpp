// The site, q and Ca on a recording component.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;
using Strings = std::vector<std::string>;

struct DynamicPressure : test::FakeCase {
  std::shared_ptr<clsDynamicPressure> pressure = root->DynamicPressure();
  std::shared_ptr<clsBuildingDimensions> building = root->BuildingDimensions();

  DynamicPressure() {
    building->Roof_Height(6);
    building->Roof_Diagonal(10);
    building->Wall_SideHeight(5);
    building->Wall_SideDiagonal(8);
    building->Wall_GableHeight(7);
    building->Wall_GableDiagonal(9);
    building->Parapet_HeightFromFFL_m(7.5f);
    building->Parapet_SideDiagonal(3);
    building->Parapet_GableDiagonal(4);
    for (int s = 0; s < 12; ++s) {
      wind->bsGust[s] = static_cast<float>(1000 + s);
      wind->dirVal[s] = static_cast<float>(2000 + s);
      wind->hybridCa[s] = static_cast<float>(0.9 - 0.01 * s);
    }
    root->IsDirty(false);
  }
  void Settle() { pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(0)); }
};

TEST_F(DynamicPressure, RefreshByValuesKeepsTheOrder) {
  Settle();
  pressure->SiteAltitude(76);
  pressure->CrestHeight_Z(WindSectors(1), 3);
  pressure->FetchesToSea(WindSectors(11), 20);
  Record();
  pressure->FetchesToSea(WindSectors(11));
  Strings expected = {"Risk=0.02", "Season=0", "StartMonth=0", "TopogMode=2", "SiteAltitude=76", "BaseV=0"};
  const char* gets[] = {"CrestHt", "CrestX", "UpwLen", "DnwLen", "BaseAlt",
                        "ObsHt",   "ObsSep", "ToSea",  "InTown"};
  for (int s = 0; s < 12; ++s)
    for (const char* get : gets) {
      expected.push_back(std::string(get) + "(" + std::to_string(s) + ")?");
      if (s == 1 && std::string(get) == "CrestHt") expected.push_back("setCrestHt(1)=3");
      if (s == 11 && std::string(get) == "ToSea")
        expected.insert(expected.end(), {"setToSea(11)=20", "ToSea(11)?"});
    }
  expected.insert(expected.end(), {"A?", "Calculate", "ToSea(11)?"});
  EXPECT_EQ(log->calls, expected);
  EXPECT_FALSE(root->BreVe_Dirty());
  EXPECT_TRUE(pressure->SiteEdited());
}

TEST_F(DynamicPressure, RefreshByReferenceReturnsEarlyAndLeavesTheFlag) {
  Settle();
  pressure->SiteAltitude(50);
  pressure->GridReference("SU1234");
  EXPECT_TRUE(pressure->SiteDirty() && pressure->SiteSelected());
  pressure->ObstructionHeight_Ho(WindSectors(0), 99);
  wind->onGBSite = [this] { wind->siteAltitude = 120, wind->baseV = 23, wind->obsHt[0] = 8; };
  Record();
  EXPECT_EQ(pressure->ObstructionHeight_Ho(WindSectors(0)), 8) << "the load overlays what was set before";
  const Strings head(log->calls.begin(), log->calls.begin() + 10);
  EXPECT_EQ(head, (Strings{"Risk=0.02", "Season=0", "StartMonth=0", "SiteID=SU1234", "GBSite", "Wizard?",
                           "Calculate", "SiteAltitude?", "BaseV?", "CrestHt(0)?"}));
  EXPECT_EQ(log->calls.size(), 9u + 12 * 9 + 1);
  EXPECT_EQ(pressure->SiteAltitude(), 120);
  EXPECT_EQ(pressure->BasicWindSpeed(), 23);
  EXPECT_FALSE(pressure->SiteDirty());
  EXPECT_TRUE(root->BreVe_Dirty()) << "the next read sends the values";
  pressure->DynamicPressure_q();
  EXPECT_FALSE(root->BreVe_Dirty());
}

TEST_F(DynamicPressure, QWithAChangedHeightCalculatesOnce) {
  Settle();
  Settle();
  building->Roof_Height(9);
  Record();
  EXPECT_EQ(pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(3)), 1.003f);
  Strings ends = {log->calls[0], log->calls[1], log->calls[2], log->calls[3], log->calls[4]};
  EXPECT_EQ(ends, (Strings{"H?", "H=9", "A?", "Units?", "Risk=0.02"}));
  EXPECT_EQ(log->calls.back(), "BSGust(3)?");
  log->calls.clear();
  EXPECT_EQ(pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(4)), 1.004f);
  EXPECT_EQ(log->calls, (Strings{"H?", "A?", "Units?", "BSGust(4)?"}));
  EXPECT_EQ(wind->calculations, 2);
}

TEST_F(DynamicPressure, EveryAreaHasItsHeightAndDiagonal) {
  building->Roof_Height(6);
  root->InternalCoefficients()->InternalVolume(1000);
  root->InternalCoefficients()->WindPressureType(WindPressureTypes::wptGable);
  const float expected[][2] = {{6, 10}, {5, 8}, {7, 9}, {7, 9}, {7.5f, 3}, {7.5f, 4}};
  for (int area = 0; area < 6; ++area) {
    pressure->DynamicPressure_q(WindAreas(area), WindSectors(0));
    EXPECT_EQ(wind->h, expected[area][0]) << area;
    EXPECT_EQ(wind->a, expected[area][1]) << area;
    pressure->TerrainAndBuildingFactor_Sb(WindAreas(area), WindSectors(0));
    EXPECT_EQ(wind->a, 5) << "under the hybrid method";
  }
  pressure->SizeEffectFactor_Ca(WindAreas::waInternal, WindSectors(0));
  EXPECT_EQ(wind->h, 7);
  EXPECT_EQ(wind->a, 100) << "ten times the cube root of the volume";
  pressure->Method(Methods::Directional);
  EXPECT_TRUE(root->BreCp_Dirty());
  pressure->TerrainAndBuildingFactor_Sb(WindAreas::waRoof, WindSectors(0));
  EXPECT_EQ(wind->a, 10);
  EXPECT_EQ(pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(2)), 2.002f);
}

TEST_F(DynamicPressure, SizeEffectWithoutDiagonalIsZeroAndDoesNotRefresh) {
  Settle();
  building->Roof_Diagonal(0);
  Record();
  EXPECT_EQ(pressure->SizeEffectFactor_Ca(WindAreas::waRoof, WindSectors(0)), 0);
  EXPECT_EQ(log->calls, (Strings{"H?", "A?", "A=0", "A?"}));
  pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(0));
  EXPECT_EQ(wind->a, 1) << "raised for the calculation";
}

TEST_F(DynamicPressure, GustFactorUnderHybridComesBeforeTheArguments) {
  Record();
  EXPECT_EQ(pressure->GustPeakFactor_gt(WindAreas(99), WindSectors(99)), 3.44f);
  EXPECT_TRUE(log->calls.empty());
  pressure->Method(Methods::Directional);
  wind->gustFactor[2] = 2.8f;
  EXPECT_EQ(pressure->GustPeakFactor_gt(WindAreas::waRoof, WindSectors(2)), 2.8f);
}

TEST_F(DynamicPressure, SpeedsAreProductsReadInOrder) {
  wind->sa[1] = 1.1f, wind->sd[1] = 0.9f, wind->sb[1] = 1.7f, wind->ss = 0.8f, wind->sp = 1.05f;
  pressure->BasicWindSpeed(22);
  pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(1));
  Record();
  const float vs = pressure->SiteWindSpeed_Vs(WindAreas::waRoof, WindSectors(1));
  EXPECT_EQ(vs, static_cast<float>(double(1.1f) * 22.0f * double(0.9f) * double(0.8f) * double(1.05f)));
  EXPECT_EQ(log->calls, (Strings{"H?", "A?", "Sa(1)?", "H?", "A?", "Sd(1)?", "Ss?", "Sp?"}));
  EXPECT_EQ(pressure->EffectiveWindSpeed_Ve(WindAreas::waRoof, WindSectors(1)),
            static_cast<float>(double(1.7f) * double(vs)));
}

TEST_F(DynamicPressure, ManualResultsReplaceTheComponent) {
  pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(0), 5);
  EXPECT_FALSE(root->IsDirty()) << "dropped without manual results";
  pressure->ManualResults(true);
  root->IsDirty(false);
  Record();
  EXPECT_EQ(pressure->DynamicPressure_q(WindAreas::waRoof, WindSectors(0)), 0);
  root->InternalCoefficients()->WindPressureType(WindPressureTypes::wptGable);
  pressure->DynamicPressure_q(WindAreas::waInternal, WindSectors(2), 0.7f);
  EXPECT_EQ(pressure->DynamicPressure_q(WindAreas::waGable, WindSectors(2)), 0.7f);
  root->IsDirty(false);
  pressure->DynamicPressure_q(WindAreas::waGable, WindSectors(2), 0.7f);
  EXPECT_FALSE(root->IsDirty());
  pressure->SizeEffectFactor_Ca(WindAreas::waGableParapet, WindSectors(11), 0.9f);
  pressure->WindArea(WindAreas::waGableParapet);
  pressure->WindSector(WindSectors(11));
  EXPECT_EQ(pressure->SizeEffectFactor_Ca(), 0.9f);
  EXPECT_TRUE(log->calls.empty());
  EXPECT_EQ(ErrorOf([&] { pressure->DynamicPressure_q(WindAreas(6), WindSectors(0)); }), 9);
  EXPECT_EQ(ErrorOf([&] { pressure->SizeEffectFactor_Ca(WindAreas(0), WindSectors(12), 1); }), 9);
}

TEST_F(DynamicPressure, PickingASite) {
  Settle();
  pressure->SiteEdited(true);
  wind->dialogSite = "NZ10", wind->autoWizard = true;
  wind->onGBSite = [this] { EXPECT_FALSE(wind->autoWizard); };
  Record();
  EXPECT_TRUE(pressure->SelectSite());
  const Strings head(log->calls.begin(), log->calls.begin() + 5);
  EXPECT_EQ(head, (Strings{"Browse", "SiteID?", "AutoWizard?", "AutoWizard=False", "Risk=0.02"}));
  EXPECT_EQ(log->calls.back(), "AutoWizard=True");
  EXPECT_EQ(pressure->GridReference(), "NZ10");
  EXPECT_FALSE(pressure->SiteEdited());
  wind->wizard = 1;
  pressure->SiteEdited(true);
  EXPECT_TRUE(pressure->EnterSite()) << "the same site again, reloaded";
  EXPECT_TRUE(pressure->SiteEdited()) << "set by the component's wizard";
  wind->dialogAnswer = false;
  log->calls.clear();
  EXPECT_FALSE(pressure->EnterSite());
  EXPECT_EQ(log->calls, (Strings{"SelectDlg"}));
}

TEST_F(DynamicPressure, AnEditSurvivesTheNextRefresh) {
  Settle();
  root->IsDirty(false);
  wind->onEdit = [this] { wind->siteAltitude = 88, wind->toSea[5] = 4; };
  EXPECT_TRUE(pressure->EditSite());
  EXPECT_TRUE(pressure->SiteEdited() && root->IsDirty());
  pressure->AnnualRisk(0.01f);
  Settle();
  EXPECT_EQ(wind->siteAltitude, 88);
  EXPECT_EQ(pressure->FetchesToSea(WindSectors(5)), 4);

  pressure->SiteEdited(false);
  pressure->AnnualRisk(0.02f);
  pressure->GridReference("SU1234");
  wind->onEdit = [this] { wind->siteAltitude = 99; };
  const Connection reader = root->DirtyUpdated.Connect([this](bool) { Settle(); });
  EXPECT_TRUE(pressure->EditSite());
  EXPECT_EQ(pressure->SiteAltitude(), 99) << "a read at the mark doesn't send the old values over the edit";
}

TEST_F(DynamicPressure, AFetchThatIsNeverTakenIsTriedTwentyTimes) {
  Settle();
  wind->refuseFetch = true;
  pressure->FetchesToSea(WindSectors(0), 5);
  Record();
  pressure->FetchesInTown(WindSectors(0));
  EXPECT_EQ(std::count(log->calls.begin(), log->calls.end(), "setToSea(0)=5"), 20);
  EXPECT_EQ(std::count(log->calls.begin(), log->calls.end(), "Calculate"), 1);
}

TEST_F(DynamicPressure, MarksOfTheLets) {
  Settle();
  root->IsDirty(false);
  pressure->LifeTime(LifeTime::Temporary);
  EXPECT_TRUE(root->IsDirty() && root->BreVe_Dirty());
  Settle();
  root->IsDirty(false);
  pressure->SiteDirty(true);
  pressure->SiteSelected(true);
  EXPECT_FALSE(root->IsDirty());
  Settle();
  EXPECT_TRUE(pressure->SiteDirty()) << "without a reference it goes by values and stays";
  EXPECT_EQ(ErrorOf([&] { pressure->CrestHeight_Z(WindSectors(12), 1); }), 9);
  pressure->Duration(Durations(1 << 20));
  EXPECT_EQ(pressure->Duration(), Durations(1 << 20)) << "kept at 32 bits and not judged";
  wind->onCalculate = [] { throw Error(1234, "component"); };
  pressure->SiteAltitude(1);
  EXPECT_EQ(ErrorOf([&] { Settle(); }), 1234);
  EXPECT_TRUE(root->BreVe_Dirty()) << "the next read tries again";
}

}  // namespace orve
