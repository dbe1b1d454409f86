// A shed driven from C++: q and Ca by sector, and the net loads of every zone of roof and walls.
#include <BuiltInEngines.h>
#include <cstdio>
#include <filesystem>
#include <orve3_bs6399_2.h>

using namespace orve;

namespace {

void DescribeBuilding(clsBuildingDimensions& building) {
  building.OrientationUnknown(false);
  building.Orientation(90);
  building.Face1And3_Length(24);
  building.Face2And4_Width(12);
  building.Roof_Height(5.5f);
  building.Roof_Diagonal(8);
  building.Wall_SideHeight(5);
  building.Wall_SideDiagonal(7);
  building.Wall_GableHeight(5.5f);
  building.Wall_GableDiagonal(7.5f);
}

void DescribeSite(clsDynamicPressure& site) {
  site.SiteAltitude(40);
  site.BasicWindSpeed(22);
  for (int sector = 0; sector < 12; ++sector) site.FetchesToSea(WindSectors(sector), 30);
}

void PrintSectors(clsDynamicPressure& site) {
  for (int sector = 0; sector < 12; ++sector) {
    const float q = site.DynamicPressure_q(WindAreas::waRoof, WindSectors(sector));
    const float ca = site.SizeEffectFactor_Ca(WindAreas::waRoof, WindSectors(sector));
    std::printf("%3d degrees: q %.3f kN/m\u00B2, Ca %.3f\n", sector * 30, q, ca);
  }
}

void PrintFace(const clsOverallAppliedLoads& loads, BuildingAreas area, Faces face) {
  for (std::int16_t zone = loads.ZoneIndexFrom(area, face); zone <= loads.ZoneIndexTo(area, face); ++zone)
    std::printf("%s, %s, %s: %s\n", PublishedText(area).data(), PublishedText(face).data(),
                loads.Hybrid_ZoneDescription(area, face, zone).c_str(),
                loads.Hybrid_OverallAppliedLoads(area, face, zone).c_str());
}

}  // namespace

int main() try {
  // The settings file lies in a folder that the host names.
  const auto folder = std::filesystem::temp_directory_path() / "orve-shed-cpp";
  std::filesystem::create_directories(folder);
  Host().LibraryFolder = [folder] { return folder.string(); };

  RegisterBuiltInEngines();
  const auto windCase = CreateCurrentCase();
  windCase->Initialize_BreApps();
  DescribeBuilding(*windCase->BuildingDimensions());
  DescribeSite(*windCase->DynamicPressure());
  windCase->InternalCoefficients()->InternalVolume(24 * 12 * 5);
  windCase->InternalCoefficients()->EnclosedBuilding_GeneralCase(true);

  PrintSectors(*windCase->DynamicPressure());
  for (const auto area : {BuildingAreas::baRoof, BuildingAreas::baWalls})
    for (int face = 0; face < 4; ++face) PrintFace(*windCase->OverallAppliedLoads(), area, Faces(face));
  return 0;
} catch (const Error& error) {
  std::fprintf(stderr, "Error %d: %s\n", error.Number(), error.what());
  return 1;
}
