// Loads, and why they are what they are.
#include <Explain.h>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "Commands.h"
#include "JsonText.h"
#include "OpenCase.h"
#include "Results.h"
#include "Settings.h"
#include "TextTable.h"
#include "TreeText.h"

namespace windcase {

namespace {

bool AnyFault(const std::vector<ZoneLoads>& loads) {
  for (const ZoneLoads& zone : loads)
    if (!zone.fault.empty()) return true;
  return false;
}

void PrintLoads(const std::vector<ZoneLoads>& loads) {
  TextTable table({"Area", "Face", "Zone", "Dimensions", "External", "Internal", "Overall"});
  for (const ZoneLoads& zone : loads)
    table.Add({zone.area, zone.face, zone.zone, zone.dimensions, zone.external, zone.internal,
               zone.fault.empty() ? zone.overall : "no load: " + zone.fault});
  table.Print(std::cout);
}

void PrintWarnings(const std::vector<std::string>& warnings) {
  if (!warnings.empty()) std::cout << "\nBefore you rely on these loads:\n";
  for (const std::string& warning : warnings) std::cout << "- " << warning << "\n";
}

// A zone by its name or its position.
std::int16_t ZoneOf(const orve::clsOverallAppliedLoads& loads, orve::BuildingAreas area, orve::Faces face,
                    const std::string& text) {
  const std::int16_t first = loads.ZoneIndexFrom(area, face);
  const std::int16_t last = loads.ZoneIndexTo(area, face);
  std::string names;
  for (std::int16_t zone = first; zone <= last; ++zone) {
    const std::string name = loads.Hybrid_ZoneDescription(area, face, zone);
    if (text == name || text == std::to_string(zone)) return zone;
    names += (names.empty() ? "" : ", ") + name;
  }
  throw Failure(ExitCode::Usage, "There is no zone \"" + text + "\"; the zones are " +
                                     (names.empty() ? "none: give the building's dimensions" : names));
}

}  // namespace

ExitCode RunLoads(const Options& options) {
  const Part part{AreaOf(options.area), FaceOf(options.face)};
  OpenCase windCase(UserSettingsFolder());
  windCase.Open(options.file);
  const std::vector<ZoneLoads> loads = ReadLoads(*windCase, part);
  const std::vector<std::string> warnings = ReadWarnings(*windCase, part);
  if (options.json) {
    std::cout << LoadsJson(loads, warnings);
  } else if (loads.empty()) {
    std::cout << "There are no zones: give the building's dimensions.\n";
  } else {
    PrintLoads(loads);
    PrintWarnings(warnings);
  }
  return loads.empty() || AnyFault(loads) ? ExitCode::Attention : ExitCode::Done;
}

ExitCode RunExplain(const Options& options) {
  const orve::BuildingAreas area = *AreaOf(options.area);
  const orve::Faces face = *FaceOf(options.face);
  OpenCase windCase(UserSettingsFolder());
  windCase.Open(options.file);
  const std::int16_t zone = ZoneOf(*windCase->OverallAppliedLoads(), area, face, options.zone);
  const auto tree = orve::explain::ExplainZone(area, face, zone);
  if (options.json)
    std::cout << TreeJson(*tree);
  else
    PrintTree(std::cout, *tree, options.depth);
  return ExitCode::Done;
}

}  // namespace windcase
