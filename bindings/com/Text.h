// Texts between the library (UTF-8) and COM (UTF-16).
#pragma once

#include <string>
#include <string_view>

#include "System.h"

namespace orve::com {

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);
/// A new text of the caller's. Errors: 7.
BSTR NewText(std::string_view text);
/// A null pointer is the empty text.
std::string FromText(BSTR text);

/// An identity from its text without braces.
GUID ToGuid(std::string_view text);

}  // namespace orve::com
