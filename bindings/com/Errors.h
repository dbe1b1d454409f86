// Error numbers and texts between the library and COM.
#pragma once

#include <string>
#include <utility>

#include "ComPointer.h"
#include "Dispatch.h"
#include "System.h"

namespace orve::com {

/// The name by which the library gives itself as the source of an error.
inline constexpr std::string_view SourceName = "ORVE3_BS6399_2";

/// An error number as a result code: numbers up to 65535 as 0x800A0000 and the number, in which form hosts
/// show the number itself; a result code of a component stays as it is.
HRESULT ResultOf(int number);
/// The way back, where the codes of late-bound calls have numbers too (a member that isn't there is 438).
int NumberOf(HRESULT result);

/// Raises a failed result as an `orve::Error`, with the text that goes with it.
void RaiseIfFailed(HRESULT result);

/// Fills in what a late-bound caller reads.
void FillException(EXCEPINFO& exception, const automation::ErrorReport& report) noexcept;
/// Number and text of what a late-bound call raised; its texts are freed.
automation::ErrorReport TakeException(EXCEPINFO& exception);
/// Leaves number and text for an early-bound caller. The result code.
HRESULT LeaveErrorInformation(const automation::ErrorReport& report, const GUID& interfaceIdentity) noexcept;

/// Runs a body of an interface's method; what it raises is left for the caller.
template <class Body>
HRESULT Guarded(const GUID& interfaceIdentity, Body body) {
  try {
    body();
    return S_OK;
  } catch (...) {
    return LeaveErrorInformation(automation::CurrentError(), interfaceIdentity);
  }
}

}  // namespace orve::com
