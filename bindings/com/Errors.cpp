#include "Errors.h"

#include <array>
#include <iterator>
#include <string>

#include "Text.h"

namespace orve::com {

namespace {

constexpr HRESULT ControlErrors = static_cast<HRESULT>(0x800A0000);
constexpr int AutomationFailed = static_cast<int>(automation::DispatchError::AutomationFailed);

struct NumberedResult {
  HRESULT result;
  int number;
};
// How late-bound hosts number the results of a call.
constexpr NumberedResult NumberedResults[] = {
    {DISP_E_UNKNOWNNAME, 438},
    {DISP_E_MEMBERNOTFOUND, 438},
    {DISP_E_UNKNOWNINTERFACE, 438},
    {DISP_E_PARAMNOTFOUND, 448},
    {DISP_E_PARAMNOTOPTIONAL, 449},
    {DISP_E_BADPARAMCOUNT, 450},
    {DISP_E_TYPEMISMATCH, 13},
    {DISP_E_BADVARTYPE, 13},
    {DISP_E_OVERFLOW, 6},
    {DISP_E_BADINDEX, 9},
    {DISP_E_DIVBYZERO, 11},
    {DISP_E_NONAMEDARGS, 446},
    {E_OUTOFMEMORY, 7},
    {E_INVALIDARG, 5},
    {E_ACCESSDENIED, 70},
    {REGDB_E_CLASSNOTREG, 429},
    {CO_E_CLASSSTRING, 429},
    {CO_E_NOTINITIALIZED, 429},
    {E_NOTIMPL, 445},
    {E_NOINTERFACE, 430},
    {TYPE_E_ELEMENTNOTFOUND, 438},
};

std::string HexText(HRESULT result) {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string text(8, '0');
  auto rest = static_cast<unsigned long>(result);
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, rest >>= 4) *digit = digits[rest & 15];
  return text;
}

}  // namespace

HRESULT ResultOf(int number) {
  if (number > 0 && number <= 0xFFFF) return ControlErrors | number;
  return number < 0 ? static_cast<HRESULT>(number) : ControlErrors | AutomationFailed;
}

int NumberOf(HRESULT result) {
  if ((result & static_cast<HRESULT>(0xFFFF0000)) == ControlErrors) return result & 0xFFFF;
  for (const NumberedResult& numbered : NumberedResults)
    if (numbered.result == result) return numbered.number;
  return static_cast<int>(result);
}

void RaiseIfFailed(HRESULT result) {
  if (SUCCEEDED(result)) return;
  throw Error(NumberOf(result), "The system's error " + HexText(result));
}

Failure CurrentFailure() noexcept {
  Failure failure;
  failure.result = ResultOf(static_cast<int>(automation::DispatchError::OutOfMemory));
  try {
    throw;
  } catch (const HandlerError& error) {
    try {
      failure = error.Details();
    } catch (...) {
    }
  } catch (...) {
    try {
      const automation::ErrorReport report = automation::CurrentError();
      failure.result = ResultOf(report.number);
      failure.text = report.text;
    } catch (...) {
    }
  }
  return failure;
}

// A lack of memory costs the texts alone.
void FillException(EXCEPINFO& exception, const Failure& failure) noexcept {
  exception = {};
  exception.scode = failure.result;
  exception.dwHelpContext = failure.helpContext;
  try {
    exception.bstrSource = NewText(failure.source);
    exception.bstrDescription = NewText(failure.text);
    if (!failure.helpFile.empty()) exception.bstrHelpFile = NewText(failure.helpFile);
  } catch (...) {
  }
}

Failure TakeException(EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  Failure failure;
  failure.result = exception.wCode != 0 ? ResultOf(exception.wCode) : exception.scode;
  if (!FAILED(failure.result)) failure.result = ResultOf(AutomationFailed);
  failure.text = FromText(exception.bstrDescription);
  failure.source = FromText(exception.bstrSource);
  failure.helpFile = FromText(exception.bstrHelpFile);
  failure.helpContext = exception.dwHelpContext;
  ::SysFreeString(exception.bstrSource);
  ::SysFreeString(exception.bstrDescription);
  ::SysFreeString(exception.bstrHelpFile);
  exception = {};
  return failure;
}

Failure TakeErrorInformation(HRESULT result) {
  Failure failure;
  failure.result = result;
  failure.text = "The host's handler failed with result " + HexText(result);
  ComPointer<IErrorInfo> information;
  if (::GetErrorInfo(0, information.Receive()) != S_OK) return failure;
  const auto take = [&information](HRESULT (STDMETHODCALLTYPE IErrorInfo::*get)(BSTR*), std::string& text) {
    BSTR given = nullptr;
    if (FAILED((information.Get()->*get)(&given)) || given == nullptr) return;
    text = FromText(given);
    ::SysFreeString(given);
  };
  take(&IErrorInfo::GetDescription, failure.text);
  take(&IErrorInfo::GetSource, failure.source);
  take(&IErrorInfo::GetHelpFile, failure.helpFile);
  information->GetHelpContext(&failure.helpContext);
  return failure;
}

HRESULT LeaveErrorInformation(const Failure& failure, const GUID& interfaceIdentity) noexcept {
  try {
    ComPointer<ICreateErrorInfo> created;
    RaiseIfFailed(::CreateErrorInfo(created.Receive()));
    created->SetGUID(interfaceIdentity);
    created->SetSource(ToWide(failure.source).data());
    created->SetDescription(ToWide(failure.text).data());
    created->SetHelpFile(ToWide(failure.helpFile).data());
    created->SetHelpContext(failure.helpContext);
    ComPointer<IErrorInfo> information;
    RaiseIfFailed(created->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(information.Receive())));
    ::SetErrorInfo(0, information.Get());
  } catch (...) {
  }
  return failure.result;
}

}  // namespace orve::com
