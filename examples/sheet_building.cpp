#include <orve3_bs6399_2.h>
#include <string>

#include "sheets.h"
#include "text_table.h"

namespace examples {

using namespace orve;

namespace {

std::string Metres(float value) {
  return Number(value, 1) + " m";
}

std::string Cpi(float pressure, float suction) {
  return "+" + Number(pressure, 2) + ", -" + Number(suction, 2);
}

void PrintSite(std::ostream& out, const clsCurrentCase& windCase) {
  const auto site = windCase.DynamicPressure();
  TextTable table({"Site", "", ""}, 3);
  table.Add({"Altitude", Metres(site->SiteAltitude()), ""});
  table.Add({"Basic wind speed Vb", Number(site->BasicWindSpeed(), 1) + " m/s", ""});
  table.Add({"Method", site->Method() == Methods::Hybrid ? "hybrid" : "directional", ""});
  table.Add({"Probability factor Sp", Number(site->ProbabilityFactor_Sp(), 3),
             "for an annual risk of " + Number(site->AnnualRisk(), 3)});
  table.Add({"Seasonal factor Ss", Number(site->SeasonalFactor_Ss(), 3), ""});
  table.Print(out);

  TextTable sectors({"Sector", "Sea", "Town", "Ho", "Xo"});
  sectors.Add({"degrees", "km", "km", "m", "m"});
  for (int i = 0; i < 12; ++i) {
    const auto sector = WindSectors(i);
    sectors.Add({std::to_string(30 * i), Number(site->FetchesToSea(sector), 1),
                 Number(site->FetchesInTown(sector), 1), Number(site->ObstructionHeight_Ho(sector), 1),
                 Number(site->ObstructionSpacing_Xo(sector), 1)});
  }
  out << "\n";
  sectors.Print(out);
}

}  // namespace

void PrintBuilding(std::ostream& out, const clsCurrentCase& windCase) {
  const auto building = windCase.BuildingDimensions();
  const auto internal = windCase.InternalCoefficients();
  const auto external = windCase.ExternalCoefficients();

  PrintHeading(out, windCase.Description());
  TextTable table({"Building", "", ""}, 3);
  table.Add({"Roof", std::string(PublishedText(building->RoofType())),
             "pitch " + Number(building->Roof_Pitch(), 1) + " degrees"});
  table.Add({"Plan", Metres(building->Face1And3_Length()) + " by " + Metres(building->Face2And4_Width()),
             "along faces 1 and 3, along faces 2 and 4"});
  table.Add(
      {"Height and diagonal, roof", Metres(building->Roof_Height()), Metres(building->Roof_Diagonal())});
  table.Add({"Height and diagonal, side walls", Metres(building->Wall_SideHeight()),
             Metres(building->Wall_SideDiagonal())});
  table.Add({"Height and diagonal, gables", Metres(building->Wall_GableHeight()),
             Metres(building->Wall_GableDiagonal())});
  table.Add({"Parapet", Metres(building->Parapet_Height()),
             "top at " + Metres(building->Parapet_HeightFromFFL_m())});
  for (int i = 0; i < 4; ++i) {
    const auto face = Faces(i);
    table.Add({"Face " + std::to_string(i + 1), external->GableFace(face) ? "gable" : "side wall",
               building->OrientationUnknown()
                   ? "orientation unknown"
                   : "normal at " + Number(external->Hybrid_AngleNormalToFace(face), 0) + " degrees"});
  }
  table.Add({"Internal volume", Number(internal->InternalVolume(), 0) + " m\u00B3",
             "diagonal a for Ca " + Metres(internal->Calculated_DiagonalDimension_a())});
  table.Add({"Internal coefficients Cpi",
             Cpi(internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_1),
                 internal->InternalCoefficientFactor_Cpi_Suction(Faces::Face_1)),
             internal->EnclosedBuilding_GeneralCase() ? "enclosed building, general case" : ""});
  table.Print(out);
  out << "\n";
  PrintSite(out, windCase);
}

}  // namespace examples
