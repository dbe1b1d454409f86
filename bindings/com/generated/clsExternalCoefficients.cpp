// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsExternalCoefficientsObject final : public DualObject<IclsExternalCoefficients> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_BuildingArea(::BuildingAreas* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_BuildingArea(::BuildingAreas NewValue) override {
    return Put(1, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Face(::Faces* Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Face(::Faces NewValue) override {
    return Put(2, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ZoneIndex(SHORT* Result) override {
    return Get(3, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ZoneIndex(SHORT NewValue) override {
    return Put(3, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ZoneIndexFrom(::BuildingAreas BuildingArea, ::Faces Face, SHORT* Result) override {
    return Get(4, {&BuildingArea, &Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_ZoneIndexTo(::BuildingAreas BuildingArea, ::Faces Face, ::ResultsScreens ResultsScreen, SHORT* Result) override {
    return Get(5, {&BuildingArea, &Face, &ResultsScreen}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_ManualResults(VARIANT_BOOL* Result) override {
    return Get(6, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ManualResults(VARIANT_BOOL NewValue) override {
    return Put(6, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Bay(::Bays* Result) override {
    return Get(7, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Bay(::Bays NewValue) override {
    return Put(7, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_GableFace(::Faces Face, VARIANT_BOOL* Result) override {
    return Get(8, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_WindFromFace(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, SHORT* Result) override {
    return Get(9, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_AngleNormalToFace(::Faces Face, FLOAT* Result) override {
    return Get(10, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_WorstCase_DynamicPressure_q(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(11, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_WorstCase_SizeEffectFactor_Ca(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(12, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ZoneDescription(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(13, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ZoneDimensionsXY(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, ::ResultsScreens ResultsScreen, ::ZoneDimensionsXY* Result) override {
    return Get(14, {&BuildingArea, &Face, &ZoneIndex, &ResultsScreen}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ZoneDimensionX(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, ::ResultsScreens ResultsScreen, FLOAT* Result) override {
    return Get(15, {&BuildingArea, &Face, &ZoneIndex, &ResultsScreen}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ZoneDimensionY(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, ::ResultsScreens ResultsScreen, FLOAT* Result) override {
    return Get(16, {&BuildingArea, &Face, &ZoneIndex, &ResultsScreen}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ZoneDimensions(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, ::ResultsScreens ResultsScreen, BSTR* Result) override {
    return Get(17, {&BuildingArea, &Face, &ZoneIndex, &ResultsScreen}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ExternalCoefficientFactor_Cpe_Pressure(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(18, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Hybrid_ExternalCoefficientFactor_Cpe_Pressure(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT NewValue) override {
    return Put(18, {&BuildingArea, &Face, &ZoneIndex}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ExternalCoefficientFactor_Cpe_Suction(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(19, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Hybrid_ExternalCoefficientFactor_Cpe_Suction(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT NewValue) override {
    return Put(19, {&BuildingArea, &Face, &ZoneIndex}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ExternalAppliedLoad_Pressure(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(20, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ExternalAppliedLoad_Suction(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, FLOAT* Result) override {
    return Get(21, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_ExternalAppliedLoads(::BuildingAreas BuildingArea, ::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(22, {&BuildingArea, &Face, &ZoneIndex}, Result);
  }
};

}  // namespace

Object* New_clsExternalCoefficients(const automation::ObjectReference& reference) {
  return new clsExternalCoefficientsObject(reference);
}

}  // namespace orve::com
