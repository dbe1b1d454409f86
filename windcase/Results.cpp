#include "Results.h"

#include <Explain.h>
#include <functional>
#include <orve3_bs6399_2.h>

#include "Failure.h"

namespace windcase {

using orve::BuildingAreas;
using orve::Faces;
using orve::explain::Warning;

namespace {

constexpr BuildingAreas kAreas[] = {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet};
constexpr Faces kFaces[] = {Faces::Face_1, Faces::Face_2, Faces::Face_3, Faces::Face_4};

std::string Lower(std::string text) {
  for (char& letter : text)
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  return text;
}

bool HasParapet(const orve::clsCurrentCase& windCase) {
  const auto building = windCase.BuildingDimensions();
  return building->ConsiderParapet() || building->Parapet_Height() != 0;
}

using Visit = std::function<void(BuildingAreas, Faces, std::int16_t)>;

void VisitZones(orve::clsCurrentCase& windCase, const Part& part, const Visit& visit) {
  const auto loads = windCase.OverallAppliedLoads();
  for (const BuildingAreas area : kAreas) {
    if (part.area ? *part.area != area : area == BuildingAreas::baParapet && !HasParapet(windCase)) continue;
    for (const Faces face : kFaces) {
      if (part.face && *part.face != face) continue;
      const std::int16_t last = loads->ZoneIndexTo(area, face);
      for (std::int16_t zone = loads->ZoneIndexFrom(area, face); zone <= last; ++zone)
        visit(area, face, zone);
    }
  }
}

ZoneLoads Read(const orve::clsOverallAppliedLoads& loads, BuildingAreas area, Faces face, std::int16_t zone) {
  ZoneLoads result;
  result.area = orve::explain::AreaName(area);
  result.face = PublishedText(face);
  result.zone = loads.Hybrid_ZoneDescription(area, face, zone);
  result.dimensions = loads.Hybrid_ZoneDimensions(area, face, zone);
  result.absent = orve::explain::WarnOfZoneSize(area, face, zone).has_value();
  try {
    result.external = loads.Hybrid_ExternalAppliedLoads(area, face, zone);
    result.internal = loads.Hybrid_InternalAppliedLoads(area, face, zone);
    result.overall = loads.Hybrid_OverallAppliedLoads(area, face, zone);
    result.pressure = loads.Hybrid_OverallAppliedLoad_Pressure(area, face, zone);
    result.suction = loads.Hybrid_OverallAppliedLoad_Suction(area, face, zone);
  } catch (const orve::Error& error) {
    result.fault = error.what();
  }
  return result;
}

}  // namespace

std::optional<BuildingAreas> AreaOf(const std::string& text) {
  if (text.empty()) return {};
  for (const BuildingAreas area : kAreas)
    if (Lower(text) == Lower(orve::explain::AreaName(area))) return area;
  throw Failure(ExitCode::Usage, "The area is \"" + text + "\"; roof, walls or parapet is wanted");
}

std::optional<Faces> FaceOf(const std::string& text) {
  if (text.empty()) return {};
  for (const Faces face : kFaces) {
    const std::string name(PublishedText(face));
    if (Lower(text) == Lower(name) || text == name.substr(name.size() - 1)) return face;
  }
  throw Failure(ExitCode::Usage, "The face is \"" + text + "\"; 1, 2, 3 or 4 is wanted");
}

std::vector<ZoneLoads> ReadLoads(orve::clsCurrentCase& windCase, const Part& part) {
  std::vector<ZoneLoads> results;
  const auto loads = windCase.OverallAppliedLoads();
  VisitZones(windCase, part, [&](BuildingAreas area, Faces face, std::int16_t zone) {
    results.push_back(Read(*loads, area, face, zone));
  });
  return results;
}

// The trees of zones that an engine refuses say nothing; the loads tell the reason.
std::vector<std::string> ReadWarnings(orve::clsCurrentCase& windCase, const Part& part) {
  std::vector<orve::explain::QuantityPtr> trees;
  VisitZones(windCase, part, [&](BuildingAreas area, Faces face, std::int16_t zone) {
    try {
      trees.push_back(orve::explain::ExplainZone(area, face, zone));
    } catch (const orve::Error&) {
    }
  });
  std::vector<std::string> texts;
  for (const Warning& warning : orve::explain::CaseWarnings()) texts.push_back(warning.text);
  for (const Warning& warning : orve::explain::WarningsOf(trees)) texts.push_back(warning.text);
  return texts;
}

}  // namespace windcase
