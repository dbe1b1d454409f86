// The demo host: describes a portal building and its site, and prints the calculation from the wind speeds to
// the governing loads, with the sources of its figures; then the loads of members, the case saved and opened
// again, and the building under every roof.
#include <BuiltInEngines.h>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "portal_building.h"
#include "private_folder.h"
#include "scene_members.h"
#include "scene_roofs.h"
#include "scene_storage.h"
#include "sheets.h"

int main() try {
  const examples::PrivateFolder folder;
  orve::RegisterBuiltInEngines();
  const auto windCase = orve::CreateCurrentCase();
  windCase->Initialize_BreApps();

  examples::DescribePortalBuilding(*windCase);
  examples::DescribeSite(*windCase);
  examples::PrintWholeSheet(std::cout, *windCase);
  examples::PrintMemberScene(*windCase, std::cout);
  const bool same = examples::PrintStorageScene(*windCase, folder.Path(), std::cout);
  examples::PrintRoofScene(*windCase, std::cout);
  return same ? 0 : 1;
} catch (const orve::Error& error) {
  std::cerr << "Error " << error.Number() << ": " << error.what() << "\n";
  return 1;
}
