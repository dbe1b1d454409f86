#include "Sink.h"

#include <xmmintrin.h>

namespace orve::test {

HRESULT Sink::QueryInterface(REFIID identity, void** result) {
  const bool known =
      identity == IID_IUnknown || identity == IID_IDispatch || identity == __uuidof(IclsCurrentCaseEvents);
  *result = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT Sink::Invoke(DISPID number, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*,
                     EXCEPINFO* exception, UINT*) {
  static constexpr const char* names[] = {"DirtyUpdated", "LocationUpdated", "WindCaseListUpdated",
                                          "WindCaseOpened", "WindCaseSaved"};
  m_floatState = _mm_getcsr();
  if (m_result == DISP_E_EXCEPTION) {
    *exception = {};
    exception->scode = static_cast<SCODE>(0x800A0000 | 1234);
    exception->bstrDescription = NewText("The handler fails");
    exception->bstrSource = NewText("The host");
    exception->bstrHelpFile = NewText("host.chm");
    exception->dwHelpContext = 7;
  }
  if (FAILED(m_result)) return m_result;
  if (!m_events.empty()) m_events += ' ';
  m_events += std::string(names[number - 1]) + '(';
  if (parameters->cArgs > 0) {
    Argument value;
    ::VariantCopy(value.Get(), &parameters->rgvarg[0]);
    m_events += value.Text();
  }
  m_events += ')';
  return S_OK;
}

}  // namespace orve::test
