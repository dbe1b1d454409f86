// The smallest host: creates the root object, describes a shed and its site, and prints the net loads of one
// wall.
#include <BuiltInEngines.h>
#include <filesystem>
#include <iostream>
#include <orve3_bs6399_2.h>

using namespace orve;

int main() try {
  // The library keeps its settings file in the folder that the host names.
  const auto folder = std::filesystem::temp_directory_path() / "orve-smallest-host";
  std::filesystem::create_directories(folder);
  Host().LibraryFolder = [folder] { return folder.string(); };

  RegisterBuiltInEngines();
  const auto windCase = CreateCurrentCase();
  windCase->Initialize_BreApps();

  // The building: lengths, heights and the diagonals of the loaded areas in metres.
  const auto building = windCase->BuildingDimensions();
  building->OrientationUnknown(false);
  building->Orientation(90);
  building->Face1And3_Length(24);
  building->Face2And4_Width(12);
  building->Roof_Height(5);
  building->Wall_SideHeight(5);
  building->Wall_SideDiagonal(7);
  building->Wall_GableHeight(5);
  building->Wall_GableDiagonal(7);

  // The site: open country, 30 km from the sea on all sides.
  const auto site = windCase->DynamicPressure();
  site->SiteAltitude(40);
  site->BasicWindSpeed(22);
  for (int sector = 0; sector < 12; ++sector) site->FetchesToSea(WindSectors(sector), 30);

  // Internal pressure: without a volume there is no size effect factor and so no internal load.
  const auto internal = windCase->InternalCoefficients();
  internal->InternalVolume(24 * 12 * 5);
  internal->EnclosedBuilding_GeneralCase(true);

  // Objects are fetched anew after Clear, Browse and OpenExisting; here the case stays the same.
  const auto loads = windCase->OverallAppliedLoads();
  const auto area = BuildingAreas::baWalls;
  const auto face = Faces::Face_1;
  for (std::int16_t zone = loads->ZoneIndexFrom(area, face); zone <= loads->ZoneIndexTo(area, face); ++zone)
    std::cout << loads->Hybrid_ZoneDescription(area, face, zone) << ": "
              << loads->Hybrid_OverallAppliedLoads(area, face, zone) << "\n";
  return 0;
} catch (const Error& error) {
  std::cerr << "Error " << error.Number() << ": " << error.what() << "\n";
  return 1;
}
