// A host's sink for the events, which keeps them as texts.
#pragma once

#include <string>
#include <utility>

#include "LateBound.h"
#include "ORVE3_BS6399_2.h"

namespace orve::test {

/// Lives on the stack; its count tells who else holds it.
class Sink final : public IDispatch {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identity, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++m_count; }
  ULONG STDMETHODCALLTYPE Release() override { return --m_count; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*,
                                   EXCEPINFO* exception, UINT*) override;

  ULONG Count() const { return m_count; }
  /// The events since the last call.
  std::string Take() { return std::exchange(m_events, {}); }
  /// What the handler ends with; DISP_E_EXCEPTION comes with number, text, source and help.
  void FailWith(HRESULT result) { m_result = result; }
  /// The floating-point state in which the last handler ran.
  unsigned FloatState() const { return m_floatState; }

 private:
  ULONG m_count = 1;
  HRESULT m_result = S_OK;
  unsigned m_floatState = 0;
  std::string m_events;
};

}  // namespace orve::test
