// The interfaces of an object: its own dual one and those that hosts ask for beside it.
#pragma once

#include "../FloatState.h"
#include "ORVE3_BS6399_2.h"
#include "Object.h"

namespace orve::com {

template <class Interface>
class DualObject : public Interface, public ISupportErrorInfo, public IProvideClassInfo2, public Object {
 public:
  using Object::Object;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identity, void** result) override {
    if (Whole() != nullptr) return Whole()->QueryInterface(identity, result);
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    if (identity == ObjectIdentity) {
      *result = static_cast<Object*>(this);
      return S_OK;
    }
    if (identity == IID_IUnknown || identity == IID_IDispatch || identity == InterfaceIdentity())
      *result = static_cast<Interface*>(this);
    else if (identity == IID_ISupportErrorInfo)
      *result = static_cast<ISupportErrorInfo*>(this);
    else if (identity == IID_IProvideClassInfo || identity == IID_IProvideClassInfo2)
      *result = static_cast<IProvideClassInfo2*>(this);
    else if (identity == IID_IConnectionPointContainer)
      *result = Events();
    else
      *result = FurtherInterface(identity);
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return Whole() != nullptr ? Whole()->AddRef() : Count(1); }
  ULONG STDMETHODCALLTYPE Release() override {
    if (Whole() != nullptr) return Whole()->Release();
    const ULONG count = Count(-1);
    if (count == 0) {
      const LibraryFloatState state;
      delete this;
    }
    return count;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** information) override {
    return TypeInfoOfInterface(index, information);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* numbers) override {
    return NumbersOfNames(names, count, numbers);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID identity, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) override {
    return InvokeByNumber(number, identity, flags, parameters, result, exception, wrongArgument);
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID identity) override {
    return identity == InterfaceIdentity() ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** information) override {
    return TypeInfoOfClass(information);
  }
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* identity) override {
    return EventsIdentity(kind, identity);
  }

  IDispatch* Dispatch() override { return static_cast<Interface*>(this); }
};

}  // namespace orve::com
