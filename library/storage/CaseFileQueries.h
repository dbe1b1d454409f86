// What a host can ask about case files before it opens or saves one.
#pragma once

#include <string>

namespace orve {

/// The file that opening and saving a name use, as the machine's own full path: the exact name, else the one
/// that differs in case and outer blanks alone, with links and ".." followed as the system does. For a file
/// that isn't there yet, the path that a save would make. Errors: 75 for an empty name or one with a zero
/// byte.
std::string ResolveFileName(const std::string& name);

/// True if opening that name would find a file, and saving to it would write over one.
bool CaseFileExists(const std::string& name);

/// True if the file of the open case isn't as the last opening or save of it here left it: changed, replaced
/// or gone (size, time of change and identity are compared). True too if the case was given the name of a
/// file that it neither was read from nor written to. False for a case without a file. Ask before saving.
bool CaseFileChanged();

/// The machine's path of the copy that an interrupted save left of a file that it was writing in place, if
/// the file isn't the same; empty if there is none. Errors: 75 for an empty name or one with a zero byte.
std::string CopyPutAside(const std::string& name);

}  // namespace orve
