// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsInternalCoefficientsObject final : public DualObject<IclsInternalCoefficients> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_Face(::Faces* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Face(::Faces NewValue) override {
    return Put(1, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_StructureType(::StructureTypes* Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_StructureType(::StructureTypes NewValue) override {
    return Put(2, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_DiagonalDimension_a(FLOAT* Result) override {
    return Get(3, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_DiagonalDimension_a(FLOAT NewValue) override {
    return Put(3, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_InternalVolume(FLOAT* Result) override {
    return Get(4, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_InternalVolume(FLOAT NewValue) override {
    return Put(4, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_WindPressureType(::WindPressureTypes* Result) override {
    return Get(5, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_WindPressureType(::WindPressureTypes NewValue) override {
    return Put(5, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_EnclosedBuilding_GeneralCase(VARIANT_BOOL* Result) override {
    return Get(6, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_EnclosedBuilding_GeneralCase(VARIANT_BOOL NewValue) override {
    return Put(6, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_EnclosedBuilding_NoPositiveInternalPressure(VARIANT_BOOL* Result) override {
    return Get(7, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_EnclosedBuilding_NoPositiveInternalPressure(VARIANT_BOOL NewValue) override {
    return Put(7, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_EnclosedBuilding_WindNormalToPermeableFace(VARIANT_BOOL* Result) override {
    return Get(8, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_EnclosedBuilding_WindNormalToPermeableFace(VARIANT_BOOL NewValue) override {
    return Put(8, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_EnclosedBuilding_WindNormalToImpermeableFace(VARIANT_BOOL* Result) override {
    return Get(9, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_EnclosedBuilding_WindNormalToImpermeableFace(VARIANT_BOOL NewValue) override {
    return Put(9, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_EnclosedBuilding_FourWallsEquallyPermeable(VARIANT_BOOL* Result) override {
    return Get(10, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_EnclosedBuilding_FourWallsEquallyPermeable(VARIANT_BOOL NewValue) override {
    return Put(10, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_ZoneIndex(SHORT* Result) override {
    return Get(11, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_DominantOpening_ZoneIndex(SHORT NewValue) override {
    return Put(11, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_ZoneIndexFrom(::Faces Face, SHORT* Result) override {
    return Get(12, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_ZoneIndexTo(::Faces Face, SHORT* Result) override {
    return Get(13, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_ZoneDescription(::Faces Face, SHORT ZoneIndex, BSTR* Result) override {
    return Get(14, {&Face, &ZoneIndex}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_SelectedZoneIndex(::Faces Face, ::WallZones* Result) override {
    return Get(15, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_DominantOpening_SelectedZoneIndex(::Faces Face, ::WallZones NewValue) override {
    return Put(15, {&Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_SelectedZoneCpe_Pressure(::Faces Face, FLOAT* Result) override {
    return Get(16, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_SelectedZoneCpe_Suction(::Faces Face, FLOAT* Result) override {
    return Get(17, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_Ratio2(::Faces Face, VARIANT_BOOL* Result) override {
    return Get(18, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_DominantOpening_Ratio2(::Faces Face, VARIANT_BOOL NewValue) override {
    return Put(18, {&Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_DominantOpening_Ratio3(::Faces Face, VARIANT_BOOL* Result) override {
    return Get(19, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_DominantOpening_Ratio3(::Faces Face, VARIANT_BOOL NewValue) override {
    return Put(19, {&Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_InternalCoefficientFactor_Cpi_Pressure(::Faces Face, FLOAT* Result) override {
    return Get(20, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_InternalCoefficientFactor_Cpi_Pressure(::Faces Face, FLOAT NewValue) override {
    return Put(20, {&Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_InternalCoefficientFactor_Cpi_Suction(::Faces Face, FLOAT* Result) override {
    return Get(21, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_InternalCoefficientFactor_Cpi_Suction(::Faces Face, FLOAT NewValue) override {
    return Put(21, {&Face}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_WorstCase_DynamicPressure_q(::Faces Face, FLOAT* Result) override {
    return Get(22, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Calculated_DiagonalDimension_a(FLOAT* Result) override {
    return Get(23, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_WorstCase_SizeEffectFactor_Ca(::Faces Face, FLOAT* Result) override {
    return Get(24, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_InternalAppliedLoad_Pressure(::Faces Face, FLOAT* Result) override {
    return Get(25, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_InternalAppliedLoad_Suction(::Faces Face, FLOAT* Result) override {
    return Get(26, {&Face}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Hybrid_InternalAppliedLoads(::Faces Face, BSTR* Result) override {
    return Get(27, {&Face}, Result);
  }
};

}  // namespace

Object* New_clsInternalCoefficients(const automation::ObjectReference& reference) {
  return new clsInternalCoefficientsObject(reference);
}

}  // namespace orve::com
