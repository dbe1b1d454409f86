// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsOverallAppliedLoadsObject final : public DualObject<IclsOverallAppliedLoads> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE GetCantileverZones(SAFEARRAY** Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE GetCantileverResults(SAFEARRAY** Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_BuildingArea(::BuildingAreas* Result) override {
    return Get(3, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_BuildingArea(::BuildingAreas NewValue) override {
    return Put(3, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Face(::Faces* Result) override {
    return Get(4, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Face(::Faces NewValue) override {
    return Put(4, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ZoneIndex(SHORT* Result) override {
    return Get(5, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ZoneIndex(SHORT NewValue) override {
    return Put(5, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ZoneIndexFrom(::BuildingAreas BuildingArea, ::Faces Face, SHORT* Result) override {
    return Get(6, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_ZoneIndexTo(::BuildingAreas BuildingArea, ::Faces Face, SHORT* Result) override {
    return Get(7, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ZoneDescription(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(8, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ZoneDimensions(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(9, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ExternalAppliedLoads(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(10, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_InternalAppliedLoads(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(11, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_OverallAppliedLoad_Pressure(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(12, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_OverallAppliedLoad_Suction(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(13, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_OverallAppliedLoads(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(14, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_SelectedFace(::Faces* Result) override {
    return Get(15, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SelectedFace(::Faces NewValue) override {
    return Put(15, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SelectedLoadType(::BuildingAreas BuildingArea, ::Faces Face, ::SelectedLoadTypes* Result) override {
    return Get(16, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SelectedLoadType(::BuildingAreas BuildingArea, ::Faces Face, ::SelectedLoadTypes NewValue) override {
    return Put(16, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SelectedLoadValues(::BuildingAreas BuildingArea, ::Faces Face, BSTR* Result) override {
    return Get(17, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_SelectedLoadValues_External(::BuildingAreas BuildingArea, ::Faces Face, BSTR* Result) override {
    return Get(18, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_SelectedLoadValues_Internal(::BuildingAreas BuildingArea, ::Faces Face, BSTR* Result) override {
    return Get(19, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Load_1(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(20, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SteppedWind_Load_1(::BuildingAreas BuildingArea, ::Faces Face, FLOAT NewValue) override {
    return Put(20, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Load_2(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(21, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SteppedWind_Load_2(::BuildingAreas BuildingArea, ::Faces Face, FLOAT NewValue) override {
    return Put(21, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Load_3(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(22, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SteppedWind_Load_3(::BuildingAreas BuildingArea, ::Faces Face, FLOAT NewValue) override {
    return Put(22, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Distance_1(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(23, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SteppedWind_Distance_1(::BuildingAreas BuildingArea, ::Faces Face, FLOAT NewValue) override {
    return Put(23, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Distance_2(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(24, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SteppedWind_Distance_2(::BuildingAreas BuildingArea, ::Faces Face, FLOAT NewValue) override {
    return Put(24, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Distance_3(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(25, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SteppedWind_Distance_3(::BuildingAreas BuildingArea, ::Faces Face, FLOAT NewValue) override {
    return Put(25, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Span(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(26, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_SteppedWind_Span(::BuildingAreas BuildingArea, ::Faces Face, FLOAT NewValue) override {
    return Put(26, {&BuildingArea, &Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Load(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(27, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Load_External(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(28, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_SteppedWind_Load_Internal(::BuildingAreas BuildingArea, ::Faces Face, FLOAT* Result) override {
    return Get(29, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverZoneIndexFrom(SHORT* Result) override {
    return Get(30, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_CantileverZoneIndexFrom(SHORT NewValue) override {
    return Put(30, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverZoneIndexTo(SHORT* Result) override {
    return Get(31, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_CantileverZoneIndexTo(SHORT NewValue) override {
    return Put(31, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverZoneDescription(SHORT CantileverZoneIndex, BSTR* Result) override {
    return Get(32, {&CantileverZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverZoneDimensions(SHORT CantileverZoneIndex, BSTR* Result) override {
    return Get(33, {&CantileverZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Cantilever_ExternalAppliedLoads(SHORT CantileverZoneIndex, BSTR* Result) override {
    return Get(34, {&CantileverZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Cantilever_InternalAppliedLoads(SHORT CantileverZoneIndex, BSTR* Result) override {
    return Get(35, {&CantileverZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Cantilever_OverallAppliedLoads(SHORT CantileverZoneIndex, BSTR* Result) override {
    return Get(36, {&CantileverZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE ExternalBayLoad(FLOAT* Span_L1, FLOAT* Span_L2, FLOAT* Span_L3, FLOAT* WindLoad_W1, FLOAT* WindLoad_W2, FLOAT* WindLoad_W3, FLOAT* Step_Z1, FLOAT* Step_Z2, FLOAT* Result) override {
    return Get(37, {Span_L1, Span_L2, Span_L3, WindLoad_W1, WindLoad_W2, WindLoad_W3, Step_Z1, Step_Z2}, Result);
  }
  HRESULT STDMETHODCALLTYPE InternalBayLoad(FLOAT* Span_L1, FLOAT* Span_L2, FLOAT* Span_L3, FLOAT* WindLoad_W1, FLOAT* WindLoad_W2, FLOAT* WindLoad_W3, FLOAT* Step_Z1, FLOAT* Step_Z2, FLOAT* Result) override {
    return Get(38, {Span_L1, Span_L2, Span_L3, WindLoad_W1, WindLoad_W2, WindLoad_W3, Step_Z1, Step_Z2}, Result);
  }
  HRESULT STDMETHODCALLTYPE CantileverValues(::BuildingAreas BuildingArea, ::Faces Face, VARIANT_BOOL Results, VARIANT_BOOL* Result) override {
    return Get(39, {&BuildingArea, &Face, &Results}, Result);
  }
  HRESULT STDMETHODCALLTYPE SelectedCantileverLoadValues(::BuildingAreas BuildingArea, ::Faces Face, BSTR* Result) override {
    return Get(40, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE ResetCantileverResults() override {
    return Get(41, {}, nullptr);
  }
  HRESULT STDMETHODCALLTYPE TrimCantileverResults() override {
    return Get(42, {}, nullptr);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverZoneWidthWarning(::BuildingAreas BuildingArea, ::Faces Face, VARIANT_BOOL* Result) override {
    return Get(43, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_ContinuousSteppedWind(::BuildingAreas BuildingArea, ::Faces Face, VARIANT_BOOL* Result) override {
    return Get(44, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE ZoneIndexFromSelectedLoadType(::SelectedLoadTypes SelectedLoadType, ::BuildingAreas BuildingArea, ::Faces Face, SHORT* Result) override {
    return Get(45, {&SelectedLoadType, &BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE SelectedLoadTypeFromZoneIndex(SHORT ZoneIndex, ::BuildingAreas BuildingArea, ::Faces Face, SHORT* Result) override {
    return Get(46, {&ZoneIndex, &BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE SelectedLoadTypeFromZoneDescription(BSTR ZoneDescription, SHORT* Result) override {
    return Get(47, {&ZoneDescription}, Result);
  }
  HRESULT STDMETHODCALLTYPE ZoneDescriptionFromSelectedLoadType(::SelectedLoadTypes SelectedLoadType, BSTR* Result) override {
    return Get(48, {&SelectedLoadType}, Result);
  }
  HRESULT STDMETHODCALLTYPE ZoneIndexFromZoneDescription(BSTR ZoneDescription, ::BuildingAreas BuildingArea, ::Faces Face, SHORT* Result) override {
    return Get(49, {&ZoneDescription, &BuildingArea, &Face}, Result);
  }
};

}  // namespace

Object* New_clsOverallAppliedLoads(const automation::ObjectReference& reference) {
  return new clsOverallAppliedLoadsObject(reference);
}

}  // namespace orve::com
