// Loads chosen for members, and cantilevers.
#include <Explain.h>
#include <orve3_bs6399_2.h>

#include "CantileverWalls.h"
#include "Content.h"
#include "common/LoadText.h"

namespace orve::sheet {

namespace {

constexpr auto kStepped = SelectedLoadTypes::Stepped_Wind_Load;

bool HasSteps(const MemberRow& row) {
  for (const float value : {row.loads[0], row.loads[1], row.loads[2], row.distances[0], row.distances[1],
                            row.distances[2], row.span})
    if (value != 0) return true;
  return false;
}

// A case begins with a stepped load chosen everywhere, without steps.
bool IsShown(const MemberRow& row) {
  return !row.stepped || HasSteps(row);
}

MemberRow ReadMember(BuildingAreas area, Faces face, Warnings& warnings) {
  const auto loads = RequireCurrentCase().OverallAppliedLoads();
  MemberRow row;
  row.area = explain::AreaName(area);
  row.face = std::string(PublishedText(face));
  const SelectedLoadTypes type = loads->SelectedLoadType(area, face);
  row.stepped = type == kStepped;
  row.choice = loads->ZoneDescriptionFromSelectedLoadType(type);
  row.loads = {loads->SteppedWind_Load_1(area, face), loads->SteppedWind_Load_2(area, face),
               loads->SteppedWind_Load_3(area, face)};
  row.distances = {loads->SteppedWind_Distance_1(area, face), loads->SteppedWind_Distance_2(area, face),
                   loads->SteppedWind_Distance_3(area, face)};
  row.span = loads->SteppedWind_Span(area, face);
  try {
    row.load.text = loads->SelectedLoadValues(area, face);
    if (row.load.text.empty() && IsShown(row))
      warnings.Mark(row.load.marks, row.stepped
                                        ? "A stepped load without a span or without loads is none"
                                        : "The face has no zone of the name chosen, or it has no load");
    row.average = loads->SteppedWind_Load(area, face);
    row.continuous = loads->ContinuousSteppedWind(area, face);
    if (row.continuous) {
      row.endBay = loads->SelectedLoadValues_External(area, face);
      row.internalBay = loads->SelectedLoadValues_Internal(area, face);
    }
  } catch (const Error& error) {
    warnings.Mark(row.load.marks, error.what());
  }
  return row;
}

}  // namespace

std::vector<MemberRow> ReadMembers(Warnings& warnings) {
  std::vector<MemberRow> rows;
  for (const BuildingAreas area : ConsideredAreas())
    for (const Faces face : kFaces) {
      MemberRow row = ReadMember(area, face, warnings);
      if (IsShown(row)) rows.push_back(std::move(row));
    }
  return rows;
}

std::vector<CantileverFace> ReadCantilevers(Warnings& warnings) {
  const auto& root = RequireCurrentCase();
  const auto building = root.BuildingDimensions();
  const auto loads = root.OverallAppliedLoads();
  if (!building->ConsiderCantilever()) return {};
  const CantileverWalls walls;
  std::vector<CantileverFace> faces;
  for (const Faces face : kFaces) {
    CantileverFace list{face, {}, {}};
    try {
      if (loads->CantileverValues(BuildingAreas::baRoof, face)) list.zones = loads->GetCantileverZones();
    } catch (const Error& error) {
      warnings.Mark(list.refusal,
                    "Cantilevers, wind on " + std::string(PublishedText(face)) + ": " + error.what());
    }
    if (!list.zones.empty() || !list.refusal.empty()) faces.push_back(std::move(list));
  }
  return faces;
}

}  // namespace orve::sheet
