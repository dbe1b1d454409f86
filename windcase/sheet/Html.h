// Texts in the markup of a sheet.
#pragma once

#include <string>
#include <string_view>

namespace orve::sheet {

/// The text as the head of a sheet keeps it: UTF-8, other bytes taken as Windows-1252, control characters as
/// blanks. It comes back unchanged from markup.
std::string PlainText(std::string_view text);
/// The text as markup shows it: the characters of the markup escaped, control characters as blanks, bytes
/// that aren't UTF-8 as U+FFFD.
std::string Escaped(std::string_view text);
/// The text as a string of a style sheet, quotes included.
std::string StyleString(std::string_view text);
/// The text behind "name=" in a `<meta>` of a sheet, as it was before escaping; empty if there is none.
std::string MetaContent(std::string_view html, std::string_view name);
/// A `<meta>` that `MetaContent` reads.
std::string MetaTag(std::string_view name, std::string_view content);

}  // namespace orve::sheet
