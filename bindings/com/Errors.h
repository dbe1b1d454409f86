// Errors between the library and COM.
#pragma once

#include <string>
#include <utility>

#include "../FloatState.h"
#include "ComPointer.h"
#include "Dispatch.h"
#include "System.h"
#include "common/Error.h"

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

/// A call that failed, as its caller gets to know it.
struct Failure {
  HRESULT result = E_FAIL;
  std::string text;
  std::string source{SourceName};
  std::string helpFile;
  DWORD helpContext = 0;
};

/// A handler of the host that failed: it passes through the library to the caller of the member.
class HandlerError : public Error {
 public:
  explicit HandlerError(const Failure& failure)
      : Error(NumberOf(failure.result), failure.text), m_failure(failure) {}
  const Failure& Details() const { return m_failure; }

 private:
  Failure m_failure;
};

/// The exception being handled. Call it inside a catch block.
Failure CurrentFailure() noexcept;

/// Fills in what a late-bound caller reads.
void FillException(EXCEPINFO& exception, const Failure& failure) noexcept;
/// What a late-bound call raised; its texts are freed.
Failure TakeException(EXCEPINFO& exception);
/// What a typed call left behind its result, which is a failed one.
Failure TakeErrorInformation(HRESULT result);
/// Leaves an error for an early-bound caller. The result code.
HRESULT LeaveErrorInformation(const Failure& failure, const GUID& interfaceIdentity) noexcept;

/// Runs a body of an interface's method with the library's floating-point state; what it raises is left for
/// the caller.
template <class Body>
HRESULT Guarded(const GUID& interfaceIdentity, Body body) {
  const LibraryFloatState state;
  try {
    body();
    return S_OK;
  } catch (...) {
    return LeaveErrorInformation(CurrentFailure(), interfaceIdentity);
  }
}

}  // namespace orve::com
