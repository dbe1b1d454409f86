#include "Describe.h"

namespace orve::automation {

namespace {

template <class Record, class Field>
FieldDescription FieldOf(std::string_view name, Field Record::*member) {
  FieldDescription field;
  field.name = name;
  field.type = TypeOf<Field>::type;
  field.member = Erase(member);
  field.read = [](const ErasedPointer& pointer, const void* record) {
    return Pack(static_cast<const Record*>(record)->*Restore<Field Record::*>(pointer));
  };
  field.write = [](const ErasedPointer& pointer, void* record, const Value& value) {
    static_cast<Record*>(record)->*Restore<Field Record::*>(pointer) = Unpack<Field>(value);
  };
  return field;
}

#define ORVE_FIELD(name) FieldOf(#name, &R::name)

std::vector<FieldDescription> ZoneDimensionsXYFields() {
  using R = ZoneDimensionsXY;
  return {ORVE_FIELD(DimensionX), ORVE_FIELD(DimensionY)};
}

std::vector<FieldDescription> CantileverZonesFields() {
  using R = CantileverZones;
  return {ORVE_FIELD(Cantilever_ZoneDescription), ORVE_FIELD(Cantilever_ZoneDimensions),
          ORVE_FIELD(Cantilever_ExternalAppliedLoads), ORVE_FIELD(Cantilever_InternalAppliedLoads),
          ORVE_FIELD(Cantilever_OverallAppliedLoads)};
}

std::vector<FieldDescription> CantileverResultsFields() {
  using R = CantileverResults;
  return {ORVE_FIELD(Cantilever_Face), ORVE_FIELD(Cantilever_Zone), ORVE_FIELD(Cantilever_WindPressure),
          ORVE_FIELD(Cantilever_WindUplift)};
}

std::vector<FieldDescription> CantileverZoneFields() {
  using R = CantileverZone;
  return {ORVE_FIELD(Zone_Dimensions), ORVE_FIELD(Zone_ExternalPressures)};
}

std::vector<FieldDescription> ExternalPressureFields() {
  using R = ExternalPressure;
  return {ORVE_FIELD(Roof1_A_Face),   ORVE_FIELD(Roof1_B_Face),   ORVE_FIELD(Roof2_A_Face),
          ORVE_FIELD(Roof2_B_Face),   ORVE_FIELD(Roof2_C_Face),   ORVE_FIELD(Wall2_Windward),
          ORVE_FIELD(Wall2_Leeward),  ORVE_FIELD(Wall2_A_Face_1), ORVE_FIELD(Wall2_B_Face_1),
          ORVE_FIELD(Wall2_C_Face_1), ORVE_FIELD(Wall2_A_Face_3), ORVE_FIELD(Wall2_B_Face_3),
          ORVE_FIELD(Wall2_C_Face_3), ORVE_FIELD(Wall4_Windward), ORVE_FIELD(Wall4_Leeward),
          ORVE_FIELD(Wall4_A_Face_1), ORVE_FIELD(Wall4_B_Face_1), ORVE_FIELD(Wall4_C_Face_1),
          ORVE_FIELD(Wall4_A_Face_3), ORVE_FIELD(Wall4_B_Face_3), ORVE_FIELD(Wall4_C_Face_3)};
}

}  // namespace

const std::vector<RecordDescription>& Records() {
  static const std::vector<RecordDescription> records{
      {"ZoneDimensionsXY", "The two lengths of a zone, in metres", "05d97d7e-4986-4d93-9751-e237406dfdf5",
       ZoneDimensionsXYFields()},
      {"CantileverZones", "One row of the cantilever zone table", "d7f7d61a-77d2-44f5-b821-185456a4b549",
       CantileverZonesFields()},
      {"CantileverResults", "One row of the cantilever result table", "3d0d01bd-45c0-4b4a-98a4-404d934eda39",
       CantileverResultsFields()},
      {"CantileverZone", "Dimensions and external pressure of one wall zone, as texts",
       "37cc3b81-49ef-4ce0-a30f-b40ceec14214", CantileverZoneFields()},
      {"ExternalPressure", "Pressures of the roof zones and of the wall zones under the cantilevers",
       "5df6fc62-8f4a-44c9-8220-22afb9c00750", ExternalPressureFields()},
  };
  return records;
}

}  // namespace orve::automation
