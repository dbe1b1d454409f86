// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsBuildingDimensionsObject final : public DualObject<IclsBuildingDimensions> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_OrientationUnknown(VARIANT_BOOL* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_OrientationUnknown(VARIANT_BOOL NewValue) override {
    return Put(1, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Orientation(SHORT* Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Orientation(SHORT NewValue) override {
    return Put(2, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_RoofType(::RoofTypes* Result) override {
    return Get(3, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_RoofType(::RoofTypes NewValue) override {
    return Put(3, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Face1And3_Length(FLOAT* Result) override {
    return Get(4, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Face1And3_Length(FLOAT NewValue) override {
    return Put(4, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Face2And4_Width(FLOAT* Result) override {
    return Get(5, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Face2And4_Width(FLOAT NewValue) override {
    return Put(5, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ConsiderRoof(VARIANT_BOOL* Result) override {
    return Get(6, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ConsiderRoof(VARIANT_BOOL NewValue) override {
    return Put(6, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ConsiderWalls(VARIANT_BOOL* Result) override {
    return Get(7, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ConsiderWalls(VARIANT_BOOL NewValue) override {
    return Put(7, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ConsiderCantilever(VARIANT_BOOL* Result) override {
    return Get(8, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ConsiderCantilever(VARIANT_BOOL NewValue) override {
    return Put(8, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_ConsiderParapet(VARIANT_BOOL* Result) override {
    return Get(9, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ConsiderParapet(VARIANT_BOOL NewValue) override {
    return Put(9, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_Height(FLOAT* Result) override {
    return Get(10, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_Height(FLOAT NewValue) override {
    return Put(10, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_Diagonal(FLOAT* Result) override {
    return Get(11, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_Diagonal(FLOAT NewValue) override {
    return Put(11, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_Diagonal_Default(FLOAT* Result) override {
    return Get(12, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_ParapetHeight(FLOAT* Result) override {
    return Get(13, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_ParapetHeight(FLOAT NewValue) override {
    return Put(13, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_EavesRadius(FLOAT* Result) override {
    return Get(14, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_EavesRadius(FLOAT NewValue) override {
    return Put(14, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_MansardSlope(FLOAT* Result) override {
    return Get(15, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_MansardSlope(FLOAT NewValue) override {
    return Put(15, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_Pitch(FLOAT* Result) override {
    return Get(16, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_Pitch(FLOAT NewValue) override {
    return Put(16, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_RiseHeight(FLOAT* Result) override {
    return Get(17, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_RiseHeight(FLOAT NewValue) override {
    return Put(17, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Roof_FrameType(::FrameTypes* Result) override {
    return Get(18, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Roof_FrameType(::FrameTypes NewValue) override {
    return Put(18, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_SideHeight(FLOAT* Result) override {
    return Get(19, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_SideHeight(FLOAT NewValue) override {
    return Put(19, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_SideDiagonal(FLOAT* Result) override {
    return Get(20, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_SideDiagonal(FLOAT NewValue) override {
    return Put(20, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_SideDiagonal_Default(FLOAT* Result) override {
    return Get(21, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GableHeight(FLOAT* Result) override {
    return Get(22, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_GableHeight(FLOAT NewValue) override {
    return Put(22, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GableDiagonal(FLOAT* Result) override {
    return Get(23, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_GableDiagonal(FLOAT NewValue) override {
    return Put(23, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GableDiagonal_Default(FLOAT* Result) override {
    return Get(24, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GableFaces(::GableFaces* Result) override {
    return Get(25, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_GableFaces(::GableFaces NewValue) override {
    return Put(25, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GapFace1(FLOAT* Result) override {
    return Get(26, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_GapFace1(FLOAT NewValue) override {
    return Put(26, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GapFace2(FLOAT* Result) override {
    return Get(27, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_GapFace2(FLOAT NewValue) override {
    return Put(27, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GapFace3(FLOAT* Result) override {
    return Get(28, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_GapFace3(FLOAT NewValue) override {
    return Put(28, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Wall_GapFace4(FLOAT* Result) override {
    return Get(29, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Wall_GapFace4(FLOAT NewValue) override {
    return Put(29, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverFace1Or2_Length(FLOAT* Result) override {
    return Get(30, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_CantileverFace1Or2_Length(FLOAT NewValue) override {
    return Put(30, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_CantileverFace3Or4_Length(FLOAT* Result) override {
    return Get(31, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_CantileverFace3Or4_Length(FLOAT NewValue) override {
    return Put(31, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_Height(FLOAT* Result) override {
    return Get(32, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parapet_Height(FLOAT NewValue) override {
    return Put(32, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_HeightFromFFL_m(FLOAT* Result) override {
    return Get(33, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parapet_HeightFromFFL_m(FLOAT NewValue) override {
    return Put(33, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_SideDiagonal(FLOAT* Result) override {
    return Get(34, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parapet_SideDiagonal(FLOAT NewValue) override {
    return Put(34, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_SideDiagonal_Default(FLOAT* Result) override {
    return Get(35, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_GableDiagonal(FLOAT* Result) override {
    return Get(36, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parapet_GableDiagonal(FLOAT NewValue) override {
    return Put(36, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_GableDiagonal_Default(FLOAT* Result) override {
    return Get(37, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_SideReturnCorner(VARIANT_BOOL* Result) override {
    return Get(38, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parapet_SideReturnCorner(VARIANT_BOOL NewValue) override {
    return Put(38, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Parapet_GableReturnCorner(VARIANT_BOOL* Result) override {
    return Get(39, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Parapet_GableReturnCorner(VARIANT_BOOL NewValue) override {
    return Put(39, {}, &NewValue);
  }
};

}  // namespace

Object* New_clsBuildingDimensions(const automation::ObjectReference& reference) {
  return new clsBuildingDimensionsObject(reference);
}

}  // namespace orve::com
