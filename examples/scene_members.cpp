#include "scene_members.h"

#include <orve3_bs6399_2.h>
#include <string>

#include "portal_building.h"
#include "text_table.h"

namespace examples {

using namespace orve;

namespace {

constexpr auto Roof = BuildingAreas::baRoof;
constexpr auto Walls = BuildingAreas::baWalls;

std::string Metres(float value) {
  return Number(value, 3) + " m";
}

// The parent values stay over a Clear, which prefills the new case with them.
void StartFromPurlin(clsCurrentCase& windCase, std::ostream& out) {
  windCase.Parent_Span(6);
  windCase.Parent_Centres(1.8f);
  windCase.Parent_RoofPitch(6);
  windCase.Parent_Type(ParentTypes::Purlin_Continuous_Double);
  windCase.Clear();

  const auto building = windCase.BuildingDimensions();
  const auto loads = windCase.OverallAppliedLoads();
  PrintHeading(out, "Purlin, continuous double");
  TextTable table({"Prefilled from the purlin", "", ""}, 3);
  table.Add(
      {"Span and centres", Metres(windCase.Parent_Span()) + ", " + Metres(windCase.Parent_Centres()), ""});
  table.Add({"Roof, walls considered",
             std::string(building->ConsiderRoof() ? "yes" : "no") + ", " +
                 (building->ConsiderWalls() ? "yes" : "no"),
             ""});
  table.Add({"Roof diagonal", Metres(building->Roof_Diagonal()), "of three spans by the centres"});
  table.Add({"Roof pitch", Number(building->Roof_Pitch(), 1) + " degrees", ""});
  table.Add({"Span of stepped loads", Metres(loads->SteppedWind_Span(Roof, Faces::Face_1)), "two bays"});
  table.Print(out);
}

// The purlin next to the eaves passes through the corner zone A and then runs in zone B.
void PrintSteppedPurlin(clsCurrentCase& windCase, std::ostream& out) {
  const auto loads = windCase.OverallAppliedLoads();
  const auto face = Faces::Face_1;
  const float span = loads->SteppedWind_Span(Roof, face);
  const std::int16_t zoneA = loads->ZoneIndexFromZoneDescription("A", Roof, face);
  const std::int16_t zoneB = loads->ZoneIndexFromZoneDescription("B", Roof, face);
  const float lengthOfA = windCase.ExternalCoefficients()->Hybrid_ZoneDimensionX(
      Roof, face, zoneA, ResultsScreens::Overall_Applied_Loads);
  loads->SteppedWind_Load_1(Roof, face, loads->Hybrid_OverallAppliedLoad_Suction(Roof, face, zoneA));
  loads->SteppedWind_Distance_1(Roof, face, lengthOfA);
  loads->SteppedWind_Load_2(Roof, face, loads->Hybrid_OverallAppliedLoad_Suction(Roof, face, zoneB));
  loads->SteppedWind_Distance_2(Roof, face, span - lengthOfA);

  out << "\n";
  TextTable table({"Purlin at the eaves, wind on face 1", "", ""}, 3);
  table.Add(
      {"Step 1, zone A", Metres(lengthOfA), Number(loads->SteppedWind_Load_1(Roof, face), 3) + " kN/m²"});
  table.Add({"Step 2, zone B", Metres(span - lengthOfA),
             Number(loads->SteppedWind_Load_2(Roof, face), 3) + " kN/m²"});
  table.Add({"Average over both bays", Metres(span), loads->SelectedLoadValues(Roof, face)});
  if (loads->ContinuousSteppedWind(Roof, face)) {
    table.Add({"End bay", Metres(span / 2), loads->SelectedLoadValues_External(Roof, face)});
    table.Add({"Internal bay", Metres(span / 2), loads->SelectedLoadValues_Internal(Roof, face)});
  }
  table.Print(out);

  loads->SelectedLoadType(Roof, Faces::Face_2, SelectedLoadTypes::C);
  out << "\nPurlin chosen for zone C, wind on face 2: " << loads->SelectedLoadValues(Roof, Faces::Face_2)
      << "\n";
}

// Which zone of a gable wall stands under a cantilever, for each field of the record.
struct WallField {
  Faces Face;
  const char* Zone;
  CantileverZone ExternalPressure::*Field;
};

constexpr WallField WallFields[] = {
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

// The library's own wall results become the pressures under the cantilevers. A zone that the wall doesn't
// have keeps its default.
void FillWallPressures(clsCurrentCase& windCase) {
  const auto loads = windCase.OverallAppliedLoads();
  ExternalPressure record = windCase.CantileverWindloads()->ExternalPressures();
  for (const WallField& wall : WallFields) {
    const std::int16_t zone = loads->ZoneIndexFromZoneDescription(wall.Zone, Walls, wall.Face);
    if (zone > loads->ZoneIndexTo(Walls, wall.Face)) continue;
    record.*wall.Field = {loads->Hybrid_ZoneDimensions(Walls, wall.Face, zone),
                          loads->Hybrid_ExternalAppliedLoads(Walls, wall.Face, zone)};
  }
  windCase.CantileverWindloads()->ExternalPressures(record);
}

void PrintCanopy(clsCurrentCase& windCase, std::ostream& out) {
  const auto building = windCase.BuildingDimensions();
  const auto loads = windCase.OverallAppliedLoads();
  building->ConsiderCantilever(true);
  building->CantileverFace1Or2_Length(1.5f);
  building->CantileverFace3Or4_Length(2);
  FillWallPressures(windCase);

  PrintHeading(out, "Canopy: cantilevers of " + Metres(building->CantileverFace1Or2_Length()) +
                        " on face 2 and " + Metres(building->CantileverFace3Or4_Length()) + " on face 4");
  TextTable zones({"Face", "Zone", "Lengths", "Roof load", "Wall pressures", "Net load"}, 6);
  loads->ResetCantileverResults();
  for (int face = 0; face < 4; ++face) {
    if (!loads->CantileverValues(Roof, Faces(face), true)) continue;
    for (const CantileverZones& zone : loads->GetCantileverZones())
      zones.Add({std::to_string(face + 1), zone.Cantilever_ZoneDescription, zone.Cantilever_ZoneDimensions,
                 zone.Cantilever_ExternalAppliedLoads, zone.Cantilever_InternalAppliedLoads,
                 zone.Cantilever_OverallAppliedLoads});
  }
  loads->TrimCantileverResults();
  zones.Print(out);

  out << "\n";
  TextTable results({"Face", "Zone", "Pressure", "Uplift"}, 2);
  for (const CantileverResults& row : loads->GetCantileverResults())
    results.Add(
        {row.Cantilever_Face, row.Cantilever_Zone, row.Cantilever_WindPressure, row.Cantilever_WindUplift});
  results.Print(out);
}

}  // namespace

void PrintMemberScene(clsCurrentCase& windCase, std::ostream& out) {
  StartFromPurlin(windCase, out);
  const float diagonalOfPurlin = windCase.BuildingDimensions()->Roof_Diagonal();
  DescribePortalBuilding(windCase);
  DescribeSite(windCase);
  windCase.BuildingDimensions()->Roof_Diagonal(diagonalOfPurlin);
  PrintSteppedPurlin(windCase, out);
  PrintCanopy(windCase, out);
}

}  // namespace examples
