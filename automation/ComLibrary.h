// The one class that the COM library offers beside those of the object model: what a C++ host has as free
// functions and constants. `IclsLibrary` is also an interface of the root object.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Description.h"

namespace orve::automation {

/// Identity of the type library, fixed for ever.
inline constexpr std::string_view TypeLibraryGuid = "347500a3-d11a-40c7-8429-fab7b162211e";

/// An enumeration is given by its name, case ignored. Errors of the enumeration's members: 5 for a name,
/// value or text that isn't there.
class clsLibrary {
 public:
  /// The library's version, "3.0.33".
  std::string Version() const;

  /// True if nobody sits in front of the host: the message box answers No or OK and the file dialogs Cancel,
  /// and none of them is shown. Of the whole library, not of one object.
  bool Unattended() const;
  void Unattended(bool value);

  /// The published text of a value, "Hipped roof".
  std::string PublishedText(const std::string& Enumeration, std::int32_t Value) const;
  /// The value of a published text, case and outer blanks ignored.
  std::int32_t ValueOfText(const std::string& Enumeration, const std::string& Text) const;
  /// How many members an enumeration has, and the value of the one at a position from 0, in declared order.
  std::int32_t EnumeratorCount(const std::string& Enumeration) const;
  std::int32_t EnumeratorValue(const std::string& Enumeration, std::int32_t Position) const;

  /// As the functions of these names in `storage/CaseFileQueries.h`.
  std::string ResolveFileName(const std::string& FileName) const;
  bool CaseFileExists(const std::string& FileName) const;
  bool CaseFileChanged() const;
  std::string CopyPutAside(const std::string& FileName) const;
};

const ClassDescription& DescribeComLibrary();

/// The classes of the object model, and `clsLibrary`.
const std::vector<const ClassDescription*>& ComClasses();

}  // namespace orve::automation
