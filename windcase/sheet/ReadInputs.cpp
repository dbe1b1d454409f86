// The inputs of the case with their units.
#include <Explain.h>
#include <orve3_bs6399_2.h>

#include "Content.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr const char* kMetres = "m";
constexpr const char* kDegrees = "degrees";

class InputList {
 public:
  void Group(const char* title) { m_group = title; }
  InputRow& Add(const char* name, std::string value, const char* unit = "", bool shown = true) {
    m_rows.push_back({m_group, name, {std::move(value), {}}, unit, shown});
    return m_rows.back();
  }
  InputRow& Add(const char* name, float value, const char* unit, bool shown = true) {
    return Add(name, ShortestText(value), unit, shown);
  }
  InputRow& Add(const char* name, bool value, bool shown = true) {
    return Add(name, std::string(value ? "yes" : "no"), "", shown);
  }
  template <class Enumeration>
  InputRow& AddChoice(const char* name, Enumeration value, bool shown = true) {
    std::string text(PublishedText(value));
    if (text.empty()) text = std::to_string(static_cast<int>(value)) + " (unknown)";
    return Add(name, std::move(text), "", shown);
  }
  std::vector<InputRow> Take() { return std::move(m_rows); }

 private:
  std::string m_group;
  std::vector<InputRow> m_rows;
};

bool IsPitched(RoofTypes roof) {
  return roof == RoofTypes::Mono_pitched_roof || roof == RoofTypes::Duo_pitched_roof ||
         roof == RoofTypes::Hipped_roof;
}

void AddRoof(InputList& list, const clsBuildingDimensions& building) {
  const RoofTypes roof = building.RoofType();
  list.Group("Roof");
  list.AddChoice("Roof type", roof);
  list.Add("Height of the roof", building.Roof_Height(), kMetres);
  list.Add("Diagonal of the loaded area", building.Roof_Diagonal(), kMetres);
  list.Add("Pitch", building.Roof_Pitch(), kDegrees, IsPitched(roof));
  list.Add("Height of the parapets", building.Roof_ParapetHeight(), kMetres,
           roof == RoofTypes::Flat_roof_with_parapets);
  list.Add("Radius of the eaves", building.Roof_EavesRadius(), kMetres,
           roof == RoofTypes::Flat_roof_with_curved_eaves);
  list.Add("Slope of the mansard eaves", building.Roof_MansardSlope(), kDegrees,
           roof == RoofTypes::Flat_roof_with_mansard_eaves);
  list.Add("Rise", building.Roof_RiseHeight(), kMetres, roof == RoofTypes::Curved_roof);
  list.AddChoice("Frames", building.Roof_FrameType());
  list.AddChoice("Bay", RequireCurrentCase().ExternalCoefficients()->Bay(),
                 building.Roof_FrameType() != FrameTypes::Frames_1);
}

void AddWalls(InputList& list, const clsBuildingDimensions& building, Warnings& warnings) {
  list.Group("Walls");
  list.Add("Height of the side walls", building.Wall_SideHeight(), kMetres);
  list.Add("Diagonal of the side walls", building.Wall_SideDiagonal(), kMetres);
  list.Add("Height of the gable walls", building.Wall_GableHeight(), kMetres);
  list.Add("Diagonal of the gable walls", building.Wall_GableDiagonal(), kMetres);
  InputRow& gables = list.AddChoice("Gables", building.Wall_GableFaces());
  for (const explain::Warning& warning : explain::CaseWarnings())
    warnings.Mark(gables.value.marks, warning.text);
  list.Add("Gap beside Face 1", building.Wall_GapFace1(), kMetres);
  list.Add("Gap beside Face 2", building.Wall_GapFace2(), kMetres);
  list.Add("Gap beside Face 3", building.Wall_GapFace3(), kMetres);
  list.Add("Gap beside Face 4", building.Wall_GapFace4(), kMetres);
}

void AddParapet(InputList& list, const clsBuildingDimensions& building) {
  const bool shown = building.ConsiderParapet() || building.Parapet_Height() != 0;
  list.Group("Parapets");
  list.Add("Height of the parapet", building.Parapet_Height(), kMetres, shown);
  list.Add("Height of its top above floor level", building.Parapet_HeightFromFFL_m(), kMetres, shown);
  list.Add("Diagonal of the side parapets", building.Parapet_SideDiagonal(), kMetres, shown);
  list.Add("Diagonal of the gable parapets", building.Parapet_GableDiagonal(), kMetres, shown);
  list.Add("Return corners of the side parapets", building.Parapet_SideReturnCorner(), shown);
  list.Add("Return corners of the gable parapets", building.Parapet_GableReturnCorner(), shown);
}

void AddBuilding(InputList& list, Warnings& warnings) {
  const auto building = RequireCurrentCase().BuildingDimensions();
  list.Group("Building");
  list.Add("Plan length along Faces 1 and 3", building->Face1And3_Length(), kMetres);
  list.Add("Plan length along Faces 2 and 4", building->Face2And4_Width(), kMetres);
  const bool known = !building->OrientationUnknown();
  list.Add("Orientation",
           std::string(known ? "known" : "not known: all twelve sectors count for every face"));
  list.Add("Normal to Face 2", std::to_string(building->Orientation()), kDegrees, known);
  list.Add("Roof considered", building->ConsiderRoof());
  list.Add("Walls considered", building->ConsiderWalls());
  list.Add("Parapets considered", building->ConsiderParapet());
  const bool cantilevers = building->ConsiderCantilever();
  list.Add("Cantilevers considered", cantilevers);
  list.Add("Cantilever on Face 1 or 2", building->CantileverFace1Or2_Length(), kMetres, cantilevers);
  list.Add("Cantilever on Face 3 or 4", building->CantileverFace3Or4_Length(), kMetres, cantilevers);
  AddRoof(list, *building);
  AddWalls(list, *building, warnings);
  AddParapet(list, *building);
}

void AddSite(InputList& list) {
  const auto site = RequireCurrentCase().DynamicPressure();
  const bool byHand = site->ManualResults();
  list.Group("Site and method");
  list.AddChoice("Method", site->Method());
  list.Add("q and Ca entered by hand", byHand);
  list.Add("Coefficients entered by hand", RequireCurrentCase().ExternalCoefficients()->ManualResults());
  list.Add("Site reference", site->GridReference(), "", !site->GridReference().empty());
  list.Add("Site data edited", site->SiteEdited());
  list.AddChoice("Altitude factor by", site->SaBasedOn(), !byHand);
  list.Add("Site altitude", site->SiteAltitude(), kMetres, !byHand);
  list.Add("Basic wind speed", site->BasicWindSpeed(), "m/s", !byHand);
  list.Add("Annual risk of exceedance", site->AnnualRisk(), "", !byHand);
  list.AddChoice("Life", site->LifeTime(), !byHand);
  list.AddChoice("Exposed", site->Duration(), !byHand);
  list.AddChoice("First month", site->StartMonth(), !byHand && site->Duration() > Durations::Summer);
}

void AddInternal(InputList& list) {
  const auto internal = RequireCurrentCase().InternalCoefficients();
  const StructureTypes type = internal->StructureType();
  list.Group("Internal pressure");
  list.AddChoice("Structure", type);
  list.Add("Internal volume", internal->InternalVolume(), "m\u00B3",
           type != StructureTypes::Open_sided_building);
  list.Add("Diagonal of the dominant opening", internal->DiagonalDimension_a(), kMetres,
           type == StructureTypes::Dominant_opening);
  const WindPressureTypes pressure = internal->WindPressureType();
  list.Add("q for internal pressure of",
           pressure == WindPressureTypes::wptSidewall ? std::string("side walls")
           : pressure == WindPressureTypes::wptGable  ? std::string("gable walls")
                                                      : std::string("roof"));
  for (const Faces face : kFaces) {
    const std::string of = "Cpi of " + std::string(PublishedText(face));
    list.Add((of + ", pressure").c_str(), internal->InternalCoefficientFactor_Cpi_Pressure(face), "");
    list.Add((of + ", suction").c_str(), internal->InternalCoefficientFactor_Cpi_Suction(face), "");
    list.AddChoice(("Opening of " + std::string(PublishedText(face)) + " in zone").c_str(),
                   internal->DominantOpening_SelectedZoneIndex(face),
                   type == StructureTypes::Dominant_opening);
  }
  list.Add("No positive internal pressure", internal->EnclosedBuilding_NoPositiveInternalPressure());
}

}  // namespace

std::vector<InputRow> ReadInputs(Warnings& warnings) {
  InputList list;
  AddBuilding(list, warnings);
  AddSite(list);
  AddInternal(list);
  return list.Take();
}

BuildingForm ReadBuilding() {
  const auto& root = RequireCurrentCase();
  const auto building = root.BuildingDimensions();
  const auto external = root.ExternalCoefficients();
  BuildingForm form;
  form.roofType = building->RoofType();
  form.length = building->Face1And3_Length();
  form.width = building->Face2And4_Width();
  for (const Faces face : kFaces) {
    const auto index = static_cast<std::size_t>(face);
    form.gable[index] = external->GableFace(face);
    form.wallHeight[index] = form.gable[index] ? building->Wall_GableHeight() : building->Wall_SideHeight();
  }
  form.parapetHeight = building->Parapet_Height();
  if (building->ConsiderCantilever()) {
    form.cantilever12 = building->CantileverFace1Or2_Length();
    form.cantilever34 = building->CantileverFace3Or4_Length();
  }
  form.orientationKnown = !building->OrientationUnknown();
  form.orientation = building->Orientation();
  return form;
}

}  // namespace orve::sheet
