// The data objects of the current case, for members that can't do without them.
#pragma once

#include <memory>

namespace orve {

class clsBuildingDimensions;
class clsCantileverWindLoads;
class clsDynamicPressure;
class clsExternalCoefficients;
class clsInternalCoefficients;
class clsOverallAppliedLoads;

/// The object, held for as long as the caller works on it: a host's handler may replace it meanwhile. Errors:
/// 91 without a current case, or if a host has set the object to nothing.
std::shared_ptr<clsBuildingDimensions> CaseBuildingDimensions();
std::shared_ptr<clsDynamicPressure> CaseDynamicPressure();
std::shared_ptr<clsExternalCoefficients> CaseExternalCoefficients();
std::shared_ptr<clsInternalCoefficients> CaseInternalCoefficients();
std::shared_ptr<clsOverallAppliedLoads> CaseOverallAppliedLoads();
std::shared_ptr<clsCantileverWindLoads> CaseCantileverWindloads();

}  // namespace orve
