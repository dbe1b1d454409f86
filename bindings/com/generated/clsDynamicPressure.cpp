// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsDynamicPressureObject final : public DualObject<IclsDynamicPressure> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_WindArea(::WindAreas* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_WindArea(::WindAreas NewValue) override {
    return Put(1, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_WindSector(::WindSectors* Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_WindSector(::WindSectors NewValue) override {
    return Put(2, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SiteDirty(VARIANT_BOOL* Result) override {
    return Get(3, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SiteDirty(VARIANT_BOOL NewValue) override {
    return Put(3, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SiteSelected(VARIANT_BOOL* Result) override {
    return Get(4, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SiteSelected(VARIANT_BOOL NewValue) override {
    return Put(4, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SiteEdited(VARIANT_BOOL* Result) override {
    return Get(5, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SiteEdited(VARIANT_BOOL NewValue) override {
    return Put(5, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Method(::Methods* Result) override {
    return Get(6, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Method(::Methods NewValue) override {
    return Put(6, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ManualResults(VARIANT_BOOL* Result) override {
    return Get(7, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ManualResults(VARIANT_BOOL NewValue) override {
    return Put(7, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_GridReference(BSTR* Result) override {
    return Get(8, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_GridReference(BSTR NewValue) override {
    return Put(8, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SaBasedOn(::SaBasedOnTypes* Result) override {
    return Get(9, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SaBasedOn(::SaBasedOnTypes NewValue) override {
    return Put(9, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SiteAltitude(FLOAT* Result) override {
    return Get(10, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SiteAltitude(FLOAT NewValue) override {
    return Put(10, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_BasicWindSpeed(FLOAT* Result) override {
    return Get(11, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_BasicWindSpeed(FLOAT NewValue) override {
    return Put(11, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_AnnualRisk(FLOAT* Result) override {
    return Get(12, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_AnnualRisk(FLOAT NewValue) override {
    return Put(12, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_LifeTime(::LifeTime* Result) override {
    return Get(13, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_LifeTime(::LifeTime NewValue) override {
    return Put(13, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Duration(::Durations* Result) override {
    return Get(14, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Duration(::Durations NewValue) override {
    return Put(14, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_StartMonth(::Months* Result) override {
    return Get(15, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_StartMonth(::Months NewValue) override {
    return Put(15, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_CrestHeight_Z(::WindSectors WindSector, FLOAT* Result) override {
    return Get(16, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_CrestHeight_Z(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(16, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SiteLocation_X(::WindSectors WindSector, FLOAT* Result) override {
    return Get(17, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SiteLocation_X(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(17, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_UpwindLength_LU(::WindSectors WindSector, FLOAT* Result) override {
    return Get(18, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_UpwindLength_LU(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(18, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_DownwindLength_LD(::WindSectors WindSector, FLOAT* Result) override {
    return Get(19, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_DownwindLength_LD(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(19, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_BaseAltitude(::WindSectors WindSector, FLOAT* Result) override {
    return Get(20, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_BaseAltitude(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(20, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ObstructionHeight_Ho(::WindSectors WindSector, FLOAT* Result) override {
    return Get(21, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ObstructionHeight_Ho(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(21, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ObstructionSpacing_Xo(::WindSectors WindSector, FLOAT* Result) override {
    return Get(22, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ObstructionSpacing_Xo(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(22, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_FetchesToSea(::WindSectors WindSector, FLOAT* Result) override {
    return Get(23, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_FetchesToSea(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(23, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_FetchesInTown(::WindSectors WindSector, FLOAT* Result) override {
    return Get(24, {&WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_FetchesInTown(::WindSectors WindSector, FLOAT NewValue) override {
    return Put(24, {&WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ProbabilityFactor_Sp(FLOAT* Result) override {
    return Get(25, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_SeasonalFactor_Ss(FLOAT* Result) override {
    return Get(26, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DirectionFactor_Sd(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(27, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_AltitudeFactor_Sa(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(28, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DisplacementHeight_Hd(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(29, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_EffectiveHeight_He(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(30, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_TopographicIncrement_Sh(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(31, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_FetchFactor_Sc(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(32, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_TurbulenceFactor_St(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(33, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_FetchAdjustmentFactor_Tc(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(34, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_TurbulenceAdjustmentFactor_Tt(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(35, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_GustPeakFactor_gt(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(36, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_TerrainAndBuildingFactor_Sb(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(37, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_EffectiveWindSpeed_Ve(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(38, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DynamicPressure_q(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(39, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_DynamicPressure_q(::WindAreas WindArea, ::WindSectors WindSector, FLOAT NewValue) override {
    return Put(39, {&WindArea, &WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SizeEffectFactor_Ca(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(40, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SizeEffectFactor_Ca(::WindAreas WindArea, ::WindSectors WindSector, FLOAT NewValue) override {
    return Put(40, {&WindArea, &WindSector}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SiteWindSpeed_Vs(::WindAreas WindArea, ::WindSectors WindSector, FLOAT* Result) override {
    return Get(41, {&WindArea, &WindSector}, Result);
  }
  HRESULT STDMETHODCALLTYPE SelectSite(VARIANT_BOOL* Result) override {
    return Get(42, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE EnterSite(VARIANT_BOOL* Result) override {
    return Get(43, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE EditSite(VARIANT_BOOL* Result) override {
    return Get(44, {}, Result);
  }
};

}  // namespace

Object* New_clsDynamicPressure(const automation::ObjectReference& reference) {
  return new clsDynamicPressureObject(reference);
}

}  // namespace orve::com
