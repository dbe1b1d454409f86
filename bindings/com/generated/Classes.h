// Written by orve_generate from the description of the object model; don't edit it by hand.
#pragma once

#include "Object.h"

namespace orve::com {

Object* New_clsCurrentCase(const automation::ObjectReference& reference);
Object* New_clsBuildingDimensions(const automation::ObjectReference& reference);
Object* New_clsDynamicPressure(const automation::ObjectReference& reference);
Object* New_clsExternalCoefficients(const automation::ObjectReference& reference);
Object* New_clsInternalCoefficients(const automation::ObjectReference& reference);
Object* New_clsOverallAppliedLoads(const automation::ObjectReference& reference);
Object* New_clsCantileverWindLoads(const automation::ObjectReference& reference);
Object* New_clsWindCaseList(const automation::ObjectReference& reference);
Object* New_clsLibrary(const automation::ObjectReference& reference);

/// Makes the COM object of a class; its count is 1.
struct ClassMaker {
  std::string_view name;
  Object* (*make)(const automation::ObjectReference& reference);
};
inline constexpr ClassMaker ClassMakers[] = {
    {"clsCurrentCase", &New_clsCurrentCase},
    {"clsBuildingDimensions", &New_clsBuildingDimensions},
    {"clsDynamicPressure", &New_clsDynamicPressure},
    {"clsExternalCoefficients", &New_clsExternalCoefficients},
    {"clsInternalCoefficients", &New_clsInternalCoefficients},
    {"clsOverallAppliedLoads", &New_clsOverallAppliedLoads},
    {"clsCantileverWindLoads", &New_clsCantileverWindLoads},
    {"clsWindCaseList", &New_clsWindCaseList},
    {"clsLibrary", &New_clsLibrary},
};

}  // namespace orve::com
