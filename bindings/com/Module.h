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
/// A type by its identity; kept for the life of the library. Errors: as above.
ITypeInfo* TypeInformation(const GUID& identity);

}  // namespace orve::com
