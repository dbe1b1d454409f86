// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsWindCaseListObject final : public DualObject<IclsWindCaseList> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_Index(LONG* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Index(LONG NewValue) override {
    return Put(1, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Count(LONG* Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_MaxCount(LONG* Result) override {
    return Get(3, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_MaxCount(LONG NewValue) override {
    return Put(3, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE get_Location(LONG Index, BSTR* Result) override {
    return Get(4, {&Index}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_LocationCorrect(LONG Index, VARIANT_BOOL* Result) override {
    return Get(5, {&Index}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Description(LONG Index, BSTR* Result) override {
    return Get(6, {&Index}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Created(LONG Index, DATE* Result) override {
    return Get(7, {&Index}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Modified(LONG Index, DATE* Result) override {
    return Get(8, {&Index}, Result);
  }
};

}  // namespace

Object* New_clsWindCaseList(const automation::ObjectReference& reference) {
  return new clsWindCaseListObject(reference);
}

}  // namespace orve::com
