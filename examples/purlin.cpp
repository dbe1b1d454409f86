// A host that designs one purlin: it tells the library what it knows of the purlin, the building and the
// site, chooses the roof zone that the purlin lies in, and prints the load to design it for.
#include <BuiltInEngines.h>
#include <filesystem>
#include <iostream>
#include <orve3_bs6399_2.h>

using namespace orve;

namespace {

// The purlin. Its kind comes last: with it the library prefills the new case with the loaded area's diagonal
// (Figure 5), the pitch and the spans of stepped loads.
void DescribePurlin(clsCurrentCase& windCase) {
  windCase.Parent_Span(6);
  windCase.Parent_Centres(1.5f);
  windCase.Parent_RoofPitch(10);
  windCase.Parent_Type(ParentTypes::Purlin_Single);
}

// A workshop of 24 m by 12 m, in open country 40 km from the sea.
void DescribeWorkshop(clsCurrentCase& windCase) {
  const auto building = windCase.BuildingDimensions();
  building->RoofType(RoofTypes::Duo_pitched_roof);
  building->Face1And3_Length(24);
  building->Face2And4_Width(12);
  building->Roof_Height(5);
  const auto internal = windCase.InternalCoefficients();
  internal->InternalVolume(24 * 12 * 4);
  internal->WindPressureType(WindPressureTypes::wptRoof);
  internal->EnclosedBuilding_GeneralCase(true);
  const auto site = windCase.DynamicPressure();
  site->SiteAltitude(50);
  site->BasicWindSpeed(23);
  for (int sector = 0; sector < 12; ++sector) site->FetchesToSea(WindSectors(sector), 40);
}

}  // namespace

int main() try {
  const auto folder = std::filesystem::temp_directory_path() / "orve-purlin";
  std::filesystem::create_directories(folder);
  Host().LibraryFolder = [folder] { return folder.string(); };
  RegisterBuiltInEngines();
  const auto windCase = CreateCurrentCase();
  windCase->Initialize_BreApps();

  DescribePurlin(*windCase);
  DescribeWorkshop(*windCase);

  // Wind on face 1, the purlin nearest the eaves and the gable: zone A.
  const auto loads = windCase->OverallAppliedLoads();
  loads->SelectedLoadType(BuildingAreas::baRoof, Faces::Face_1, SelectedLoadTypes::A);
  std::cout << "Purlin in roof zone A, wind on face 1: "
            << loads->SelectedLoadValues(BuildingAreas::baRoof, Faces::Face_1) << "\n";
  return 0;
} catch (const Error& error) {
  std::cerr << "Error " << error.Number() << ": " << error.what() << "\n";
  return 1;
}
