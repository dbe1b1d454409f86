// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "DualObject.h"
#include "Classes.h"

namespace orve::com {

namespace {

class clsCantileverWindLoadsObject final : public DualObject<IclsCantileverWindLoads> {
 public:
  using DualObject::DualObject;

  HRESULT STDMETHODCALLTYPE get_ExternalPressures(::ExternalPressure* Result) override {
    return Get(1, {}, Result);
  }
  HRESULT STDMETHODCALLTYPE put_ExternalPressures(::ExternalPressure* NewValue) override {
    return Put(1, {}, NewValue);
  }
};

}  // namespace

Object* New_clsCantileverWindLoads(const automation::ObjectReference& reference) {
  return new clsCantileverWindLoadsObject(reference);
}

}  // namespace orve::com
