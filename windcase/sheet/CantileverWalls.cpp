#include "CantileverWalls.h"

#include <orve3_bs6399_2.h>

namespace orve::sheet {

namespace {

struct WallField {
  Faces face;
  const char* zone;
  CantileverZone ExternalPressure::*field;
};

// The wall of Face 2 stands under the cantilever of Face 1 or 2, that of Face 4 under the other.
constexpr WallField kFields[] = {
    {Faces::Face_2, "Windward", &ExternalPressure::Wall2_Windward},
    {Faces::Face_2, "Leeward", &ExternalPressure::Wall2_Leeward},
    {Faces::Face_2, "A (face 1)", &ExternalPressure::Wall2_A_Face_1},
    {Faces::Face_2, "B (face 1)", &ExternalPressure::Wall2_B_Face_1},
    {Faces::Face_2, "C (face 1)", &ExternalPressure::Wall2_C_Face_1},
    {Faces::Face_2, "A (face 3)", &ExternalPressure::Wall2_A_Face_3},
    {Faces::Face_2, "B (face 3)", &ExternalPressure::Wall2_B_Face_3},
    {Faces::Face_2, "C (face 3)", &ExternalPressure::Wall2_C_Face_3},
    {Faces::Face_4, "Windward", &ExternalPressure::Wall4_Windward},
    {Faces::Face_4, "Leeward", &ExternalPressure::Wall4_Leeward},
    {Faces::Face_4, "A (face 1)", &ExternalPressure::Wall4_A_Face_1},
    {Faces::Face_4, "B (face 1)", &ExternalPressure::Wall4_B_Face_1},
    {Faces::Face_4, "C (face 1)", &ExternalPressure::Wall4_C_Face_1},
    {Faces::Face_4, "A (face 3)", &ExternalPressure::Wall4_A_Face_3},
    {Faces::Face_4, "B (face 3)", &ExternalPressure::Wall4_B_Face_3},
    {Faces::Face_4, "C (face 3)", &ExternalPressure::Wall4_C_Face_3},
};

bool IsUntouched(const ExternalPressure& record) {
  for (const WallField& wall : kFields)
    if ((record.*wall.field).Zone_ExternalPressures != "0") return false;
  return true;
}

// A zone that the wall doesn't have, or whose loads are refused, keeps its default.
void Fill(ExternalPressure& record) {
  constexpr auto walls = BuildingAreas::baWalls;
  const auto loads = RequireCurrentCase().OverallAppliedLoads();
  for (const WallField& wall : kFields) {
    try {
      const std::int16_t zone = loads->ZoneIndexFromZoneDescription(wall.zone, walls, wall.face);
      if (zone > loads->ZoneIndexTo(walls, wall.face)) continue;
      record.*wall.field = {loads->Hybrid_ZoneDimensions(walls, wall.face, zone),
                            loads->Hybrid_ExternalAppliedLoads(walls, wall.face, zone)};
    } catch (const Error&) {
      continue;
    }
  }
}

}  // namespace

CantileverWalls::CantileverWalls()
    : m_record(RequireCurrentCase().CantileverWindloads()->ExternalPressures()),
      m_from(RequireCurrentCase().OverallAppliedLoads()->CantileverZoneIndexFrom()),
      m_to(RequireCurrentCase().OverallAppliedLoads()->CantileverZoneIndexTo()) {
  if (!IsUntouched(m_record)) return;
  ExternalPressure filled = m_record;
  Fill(filled);
  RequireCurrentCase().CantileverWindloads()->ExternalPressures(filled);
}

CantileverWalls::~CantileverWalls() {
  const auto root = basBS6399_2::CurrentCase;
  root->CantileverWindloads()->ExternalPressures(m_record);
  root->OverallAppliedLoads()->CantileverZoneIndexFrom(m_from);
  root->OverallAppliedLoads()->CantileverZoneIndexTo(m_to);
}

}  // namespace orve::sheet
