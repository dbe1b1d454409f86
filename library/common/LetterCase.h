// Letters and digits of UTF-8 text, without a locale.
#pragma once

#include <string>
#include <string_view>

namespace orve {

/// The text with its ASCII, Latin-1 and Latin Extended-A letters in upper case; all else stands.
std::string UpperCase(std::string_view text);

/// True for 0 to 9.
constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace orve
