// The demo host: describes a portal building and its site, and prints the calculation from the wind speeds to
// the governing loads, with the sources of its figures.
#include <BuiltInEngines.h>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "portal_building.h"
#include "private_folder.h"
#include "scene_members.h"
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
  return 0;
} catch (const orve::Error& error) {
  std::cerr << "Error " << error.Number() << ": " << error.what() << "\n";
  return 1;
}
