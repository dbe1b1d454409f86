// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsCurrentCaseObject final : public DualObject<IclsCurrentCase> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_BreCp_Dirty(VARIANT_BOOL* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_BreCp_Dirty(VARIANT_BOOL NewValue) override {
    return Put(1, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_BreOSDatabase(VARIANT_BOOL* Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_BreOSDatabase(VARIANT_BOOL NewValue) override {
    return Put(2, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_BreVe_Dirty(VARIANT_BOOL* Result) override {
    return Get(3, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_BreVe_Dirty(VARIANT_BOOL NewValue) override {
    return Put(3, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parent_Type(::ParentTypes* Result) override {
    return Get(4, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parent_Type(::ParentTypes NewValue) override {
    return Put(4, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parent_Span(FLOAT* Result) override {
    return Get(5, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parent_Span(FLOAT NewValue) override {
    return Put(5, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parent_Centres(FLOAT* Result) override {
    return Get(6, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parent_Centres(FLOAT NewValue) override {
    return Put(6, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parent_RoofPitch(SHORT* Result) override {
    return Get(7, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parent_RoofPitch(SHORT NewValue) override {
    return Put(7, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parent_HeightOfPost_m(FLOAT* Result) override {
    return Get(8, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parent_HeightOfPost_m(FLOAT NewValue) override {
    return Put(8, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parent_HeightToTopOfPostFromFFL_m(FLOAT* Result) override {
    return Get(9, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parent_HeightToTopOfPostFromFFL_m(FLOAT NewValue) override {
    return Put(9, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parent_BaySize_m(FLOAT* Result) override {
    return Get(10, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parent_BaySize_m(FLOAT NewValue) override {
    return Put(10, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_PathToHelp(BSTR* Result) override {
    return Get(11, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_PathToHelp(BSTR NewValue) override {
    return Put(11, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_PathToWindLoadCases(BSTR* Result) override {
    return Get(12, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_PathToWindLoadCases(BSTR NewValue) override {
    return Put(12, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_IsDirty(VARIANT_BOOL* Result) override {
    return Get(13, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_IsDirty(VARIANT_BOOL NewValue) override {
    return Put(13, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Location(BSTR* Result) override {
    return Get(14, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Location(BSTR NewValue) override {
    return Put(14, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_LocationCorrect(VARIANT_BOOL* Result) override {
    return Get(15, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Description(BSTR* Result) override {
    return Get(16, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Description(BSTR NewValue) override {
    return Put(16, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Created(DATE* Result) override {
    return Get(17, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Modified(DATE* Result) override {
    return Get(18, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_breDataPath(BSTR* Result) override {
    return Get(19, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_breDataPath(BSTR NewValue) override {
    return Put(19, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_BuildingDimensions(IclsBuildingDimensions** Result) override {
    return Get(20, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE putref_BuildingDimensions(IclsBuildingDimensions* NewValue) override {
    return Put(20, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_DynamicPressure(IclsDynamicPressure** Result) override {
    return Get(21, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE putref_DynamicPressure(IclsDynamicPressure* NewValue) override {
    return Put(21, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ExternalCoefficients(IclsExternalCoefficients** Result) override {
    return Get(22, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE putref_ExternalCoefficients(IclsExternalCoefficients* NewValue) override {
    return Put(22, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_InternalCoefficients(IclsInternalCoefficients** Result) override {
    return Get(23, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE putref_InternalCoefficients(IclsInternalCoefficients* NewValue) override {
    return Put(23, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_OverallAppliedLoads(IclsOverallAppliedLoads** Result) override {
    return Get(24, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE putref_OverallAppliedLoads(IclsOverallAppliedLoads* NewValue) override {
    return Put(24, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_WindCaseList(IclsWindCaseList** Result) override {
    return Get(25, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE putref_WindCaseList(IclsWindCaseList* NewValue) override {
    return Put(25, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverWindloads(IclsCantileverWindLoads** Result) override {
    return Get(26, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE putref_CantileverWindloads(IclsCantileverWindLoads* NewValue) override {
    return Put(26, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE Initialize_BreApps() override {
    return Get(27, {}, nullptr);
  }
  HRESULT STDMETHODCALLTYPE Clear() override {
    return Get(28, {}, nullptr);
  }
  HRESULT STDMETHODCALLTYPE Browse(VARIANT_BOOL* Result) override {
    return Get(29, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE OpenExisting(BSTR FileNameToOpen, VARIANT_BOOL* Result) override {
    return Get(30, {&FileNameToOpen}, Result);
  }
  HRESULT STDMETHODCALLTYPE Save() override {
    return Get(31, {}, nullptr);
  }
  HRESULT STDMETHODCALLTYPE SaveAs() override {
    return Get(32, {}, nullptr);
  }
  HRESULT STDMETHODCALLTYPE get_OldBreVeVersion(VARIANT_BOOL* Result) override {
    return Get(33, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_OldBreCpVersion(VARIANT_BOOL* Result) override {
    return Get(34, {}, Result);
  }
};

}  // namespace

Object* New_clsCurrentCase(const automation::ObjectReference& reference) {
  return new clsCurrentCaseObject(reference);
}

}  // namespace orve::com
