// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsLibraryObject final : public DualObject<IclsLibrary> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_Version(BSTR* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE get_Unattended(VARIANT_BOOL* Result) override {
    return Get(2, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_Unattended(VARIANT_BOOL NewValue) override {
    return Put(2, {}, &NewValue);
  }
  HRESULT STDMETHODCALLTYPE PublishedText(BSTR Enumeration, LONG Value, BSTR* Result) override {
    return Get(3, {&Enumeration, &Value}, Result);
  }
  HRESULT STDMETHODCALLTYPE ValueOfText(BSTR Enumeration, BSTR Text, LONG* Result) override {
    return Get(4, {&Enumeration, &Text}, Result);
  }
  HRESULT STDMETHODCALLTYPE EnumeratorCount(BSTR Enumeration, LONG* Result) override {
    return Get(5, {&Enumeration}, Result);
  }
  HRESULT STDMETHODCALLTYPE EnumeratorValue(BSTR Enumeration, LONG Position, LONG* Result) override {
    return Get(6, {&Enumeration, &Position}, Result);
  }
  HRESULT STDMETHODCALLTYPE ResolveFileName(BSTR FileName, BSTR* Result) override {
    return Get(7, {&FileName}, Result);
  }
  HRESULT STDMETHODCALLTYPE CaseFileExists(BSTR FileName, VARIANT_BOOL* Result) override {
    return Get(8, {&FileName}, Result);
  }
  HRESULT STDMETHODCALLTYPE CaseFileChanged(VARIANT_BOOL* Result) override {
    return Get(9, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE CopyPutAside(BSTR FileName, BSTR* Result) override {
    return Get(10, {&FileName}, Result);
  }
};

}  // namespace

Object* New_clsLibrary(const automation::ObjectReference& reference) {
  return new clsLibraryObject(reference);
}

}  // namespace orve::com
