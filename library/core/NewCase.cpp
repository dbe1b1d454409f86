// A new case: the one place that makes all the data objects.
#include "core/OwedSteps.h"
#include "core/WithoutDefaults.h"
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

namespace {

void ForgetSite() {
  const auto component = basBS6399_2::BreVe;
  if (auto* state = dynamic_cast<SiteState*>(component.get())) state->ForgetSite();
}

}  // namespace

void clsCurrentCase::Clear() {
  StartNewCase();
}

bool clsCurrentCase::StartNewCase() {
  const auto self = shared_from_this();
  bool stands = true;
  OwedSteps steps;
  steps.Run([&] { stands = m_iclsSaveFile->NewFile(); });
  const Document document(*m_iclsSaveFile);
  if (stands) steps.Run([&] { ApplyParentContext(); });
  steps.Finish();
  return stands && document.IsOpen();
}

// The objects come one after the other, each with its defaults; a handler sees those made so far.
void clsCurrentCase::m_iclsSaveFile_NewFile() {
  BreCp_Dirty(false);
  BreVe_Dirty(false);
  RunAll([this] { Description(""); },  //
         [this] { SetCreated(0); },    //
         [this] { SetModified(0); },   //
         [] { ForgetSite(); },         //
         [this] { Renew(m_BuildingDimensions); }, [this] { Renew(m_DynamicPressure); },
         [this] { Renew(m_ExternalCoefficients); }, [this] { Renew(m_InternalCoefficients); },
         [this] { Renew(m_OverallAppliedLoads); },
         [this] { m_CantileverWindloads = std::make_shared<clsCantileverWindLoads>(); });
}

template <class Object>
void clsCurrentCase::Renew(std::shared_ptr<Object>& place) {
  const std::shared_ptr<Object> object(new Object(WithoutDefaults()));
  RunAll([&] { object->ApplyDefaults(); }, [&] { place = object; });
}

}  // namespace orve
