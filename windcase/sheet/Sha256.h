// The SHA-256 digest of a text (FIPS 180-4).
#pragma once

#include <string>
#include <string_view>

namespace orve::sheet {

/// The digest as 64 hexadecimal digits.
std::string Sha256(std::string_view text);

}  // namespace orve::sheet
