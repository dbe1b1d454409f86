// The library's entries in the registry, those of the current user.
#pragma once

namespace orve::com {

/// Writes the classes that a host can create, the interfaces and the type library. Errors: as `RaiseIfFailed`
/// gives them; what was there before then stands again.
void RegisterLibrary();
/// Takes them out; what the library of the other bitness needs too stays until that one is gone. What isn't
/// there is no error.
void UnregisterLibrary();

}  // namespace orve::com
