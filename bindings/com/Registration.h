// The library's entries in the registry, those of the current user.
#pragma once

namespace orve::com {

/// Writes the classes that a host can create, and the type library. Errors: as `RaiseIfFailed` gives them;
/// what was written is then taken out again.
void RegisterLibrary();
/// Takes them out. What isn't there is no error.
void UnregisterLibrary();

}  // namespace orve::com
