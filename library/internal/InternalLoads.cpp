// The worst wind for a face's internal pressure, and internal loads.
#include "common/LoadText.h"
#include "common/Narrow.h"
#include "common/NumberText.h"
#include "common/clsCommon.h"
#include "core/CaseObjects.h"
#include "core/KeepAlive.h"
#include "core/basBS6399_2.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"
#include "internal/clsInternalCoefficients.h"
#include "sitewind/WindPressureArea.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve {

namespace {

WorstCase Search(Faces face, WindAreas windArea) {
  const bool orientationUnknown = CaseBuildingDimensions()->OrientationUnknown();
  const float normal =
      orientationUnknown ? -1.0f : CaseExternalCoefficients()->Hybrid_AngleNormalToFace(face);
  return SearchWorstCase(*CaseDynamicPressure(), windArea, orientationUnknown, normal);
}

}  // namespace

WorstCase clsInternalCoefficients::Hybrid_WorstCaseSearch_q(Faces face) const {
  return Search(Resolve(face), WindAreaOf(WindPressureType()));
}

WorstCase clsInternalCoefficients::Hybrid_WorstCaseSearch_Ca(Faces face) const {
  return Search(Resolve(face), WindAreas::waInternal);
}

float clsInternalCoefficients::Hybrid_WorstCase_DynamicPressure_q(Faces face) const {
  return Hybrid_WorstCaseSearch_q(face).q();
}

float clsInternalCoefficients::Hybrid_WorstCase_SizeEffectFactor_Ca(Faces face) const {
  return Hybrid_WorstCaseSearch_Ca(face).Ca();
}

float clsInternalCoefficients::Hybrid_InternalAppliedLoad_Pressure(Faces face) const {
  const KeepAlive keep(*this);
  const Faces onFace = Resolve(face);
  const double ca = Hybrid_WorstCase_SizeEffectFactor_Ca(onFace);
  const double cpi = InternalCoefficientFactor_Cpi_Pressure(onFace);
  const double q = Hybrid_WorstCase_DynamicPressure_q(onFace);
  return ToSingle(ca * q * cpi);
}

float clsInternalCoefficients::Hybrid_InternalAppliedLoad_Suction(Faces face) const {
  const KeepAlive keep(*this);
  const Faces onFace = Resolve(face);
  const double ca = Hybrid_WorstCase_SizeEffectFactor_Ca(onFace);
  const double cpi = InternalCoefficientFactor_Cpi_Suction(onFace);
  const double q = Hybrid_WorstCase_DynamicPressure_q(onFace);
  return ToSingle(ca * q * cpi);
}

std::string clsInternalCoefficients::Hybrid_InternalAppliedLoads(Faces face) const {
  const KeepAlive keep(*this);
  const Faces onFace = Resolve(face);
  std::string pressure;
  if (IsPresent(InternalCoefficientFactor_Cpi_Pressure(onFace)))
    pressure = FormatSigned(Hybrid_InternalAppliedLoad_Pressure(onFace));
  std::string suction;
  if (IsPresent(InternalCoefficientFactor_Cpi_Suction(onFace)))
    suction = FormatSigned(basBS6399_2::Common->ReverseSign(Hybrid_InternalAppliedLoad_Suction(onFace)));
  return JoinLoads(pressure, suction);
}

}  // namespace orve
