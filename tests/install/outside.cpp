// A host outside the project: it sees nothing but the installed package.
#include <BuiltInEngines.h>
#include <cstdio>
#include <filesystem>
#include <orve3_bs6399_2.h>

int main() {
  const auto folder = std::filesystem::temp_directory_path() / "orve-outside-host";
  std::filesystem::create_directories(folder);
  orve::Host().LibraryFolder = [folder] { return folder.string(); };
  orve::RegisterBuiltInEngines();

  const auto windCase = orve::CreateCurrentCase();
  windCase->Initialize_BreApps();
  const auto building = windCase->BuildingDimensions();
  building->Face1And3_Length(20);
  building->Face2And4_Width(10);
  building->Wall_SideHeight(5);
  building->Wall_SideDiagonal(5);
  const auto site = windCase->DynamicPressure();
  site->BasicWindSpeed(23);
  for (int sector = 0; sector < 12; ++sector) site->FetchesToSea(orve::WindSectors(sector), 50);

  const float q = site->DynamicPressure_q(orve::WindAreas::waSidewall, orve::WindSectors::Degrees_240);
  const float Cpe = windCase->ExternalCoefficients()->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(
      orve::BuildingAreas::baWalls, orve::Faces::Face_1, 0);
  std::printf("q %d N/m2, Cpe %d/1000\n", static_cast<int>(q * 1000), static_cast<int>(Cpe * 1000));
  std::filesystem::remove_all(folder);
  return q > 0 && Cpe > 0 ? 0 : 1;
}
