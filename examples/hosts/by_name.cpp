// A host that knows members by their names alone: texts in, texts out.
#include <BuiltInEngines.h>
#include <Dispatch.h>
#include <cstdio>
#include <filesystem>
#include <orve3_bs6399_2.h>

using namespace orve::automation;

int main() try {
  const auto folder = std::filesystem::temp_directory_path() / "orve-by-name";
  std::filesystem::create_directories(folder);
  orve::Host().LibraryFolder = [folder] { return folder.string(); };

  orve::RegisterBuiltInEngines();
  const ObjectReference root = CreateObject("clsCurrentCase");
  Invoke(root, "Initialize_BreApps", {});
  const ObjectReference building = *Invoke(root, "BuildingDimensions", {}).As<ObjectReference>();
  Assign(building, "roof_height", {}, "5.5");
  Assign(building, "roof_diagonal", {}, "8");
  const ObjectReference site = *Invoke(root, "DynamicPressure", {}).As<ObjectReference>();
  Assign(site, "BasicWindSpeed", {}, 22);
  for (int sector = 0; sector < 12; ++sector) Assign(site, "FetchesToSea", std::vector<Value>{sector}, "30");

  const std::vector<NamedArgument> west{{"WindSector", 9}};
  std::printf("q %s kN/m\u00B2\n", TextOf(Invoke(site, "DynamicPressure_q", {}, west)).c_str());
  return 0;
} catch (...) {
  const ErrorReport report = CurrentError();
  std::fprintf(stderr, "Error %d: %s\n", report.number, report.text.c_str());
  return 1;
}
