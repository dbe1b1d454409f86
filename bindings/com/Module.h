// The library as a module in the host's process: its file, its type library, and what is alive of it.
#pragma once

#include <string>

#include "ComPointer.h"
#include "System.h"

namespace orve::com {

/// Full path of the library's file, and the folder that it lies in.
std::wstring ModulePath();
std::string ModuleFolder();

/// Objects and locks that keep the library loaded.
void CountModule(int change);
long ModuleCount();

/// False once the process or the library is going: foreign objects aren't released any more then, as their
/// own libraries may be gone.
bool ModuleStands();

/// The type library that the file carries. Errors: as `RaiseComError` gives them.
ComPointer<ITypeLib> TypeLibrary();
/// A type by its identity; kept until `ForgetTypeInformation`. Errors: as above.
ITypeInfo* TypeInformation(const GUID& identity);
/// Lets go of the types that were asked for, before the library goes.
void ForgetTypeInformation();

}  // namespace orve::com
