// Text of files from older machines.
#pragma once

#include <string>
#include <string_view>

namespace orve {

/// The text as UTF-8: what is valid UTF-8 stands, any other byte is taken as Windows-1252.
std::string ToUtf8(std::string_view bytes);
/// The same for a whole file, which may begin with a byte order mark.
std::string FileText(std::string_view bytes);

/// At most so many characters of a UTF-8 text.
std::string FirstCharacters(std::string_view text, std::size_t count);
/// A text that somebody entered, as an error shows it: what is long ends in "...".
std::string ShortText(std::string_view text);

}  // namespace orve
