// A new case: the one place that makes all the data objects.
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"
#include "internal/clsInternalCoefficients.h"
#include "loads/clsCantileverWindLoads.h"
#include "loads/clsOverallAppliedLoads.h"
#include "sitewind/BVe2X.h"
#include "sitewind/SiteState.h"
#include "sitewind/clsDynamicPressure.h"
#include "storage/clsSaveFile.h"

namespace orve {

void clsCurrentCase::Clear() {
  const auto self = shared_from_this();
  if (m_iclsSaveFile->NewFile()) ApplyParentContext();
}

void clsCurrentCase::m_iclsSaveFile_NewFile() {
  BreCp_Dirty(false);
  BreVe_Dirty(false);
  Description("");
  SetCreated(0);
  SetModified(0);
  if (auto* state = dynamic_cast<SiteState*>(basBS6399_2::BreVe.get())) state->ForgetSite();
  m_BuildingDimensions = std::make_shared<clsBuildingDimensions>();
  m_DynamicPressure = std::make_shared<clsDynamicPressure>();
  m_ExternalCoefficients = std::make_shared<clsExternalCoefficients>();
  m_InternalCoefficients = std::make_shared<clsInternalCoefficients>();
  m_OverallAppliedLoads = std::make_shared<clsOverallAppliedLoads>();
  m_CantileverWindloads = std::make_shared<clsCantileverWindLoads>();
}

}  // namespace orve
