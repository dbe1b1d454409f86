#include "core/CaseObjects.h"

#include "core/Required.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"

namespace orve {

std::shared_ptr<clsBuildingDimensions> CaseBuildingDimensions() {
  return Required(RequireCurrentCase().BuildingDimensions(), "BuildingDimensions");
}

std::shared_ptr<clsDynamicPressure> CaseDynamicPressure() {
  return Required(RequireCurrentCase().DynamicPressure(), "DynamicPressure");
}

std::shared_ptr<clsExternalCoefficients> CaseExternalCoefficients() {
  return Required(RequireCurrentCase().ExternalCoefficients(), "ExternalCoefficients");
}

std::shared_ptr<clsInternalCoefficients> CaseInternalCoefficients() {
  return Required(RequireCurrentCase().InternalCoefficients(), "InternalCoefficients");
}

std::shared_ptr<clsOverallAppliedLoads> CaseOverallAppliedLoads() {
  return Required(RequireCurrentCase().OverallAppliedLoads(), "OverallAppliedLoads");
}

std::shared_ptr<clsCantileverWindLoads> CaseCantileverWindloads() {
  return Required(RequireCurrentCase().CantileverWindloads(), "CantileverWindloads");
}

}  // namespace orve
