// What in the text of a case file gets lost when it is read by the letter, and the text that was meant.
//
// The library finds a section by its head anywhere in the text, ends it at the next "[" and a value at the
// next carriage return. A text that people or other programs wrote may mean something else by its lines.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace windcase {

/// A line that isn't read as it is meant.
struct CaseTextFault {
  std::size_t line = 0;  ///< From 1.
  std::string text;      ///< As "\"[\" inside a line ends its section".
};

/// The faults of a case file's bytes, in their order; none if the library reads every line as it is meant:
/// "[" inside a line, a head that isn't "[name]", line ends of several kinds, and in the sections that the
/// library reads a second head, a second line of one key, and blanks around a key.
std::vector<CaseTextFault> CheckCaseText(std::string_view bytes);

/// The file that the lines stand for, in the library's own form: each section once, values that hold "[" in
/// their written form, lines that end in carriage return and line feed. Of a key that stands twice the first
/// counts, as it does for the library. The result has no faults.
std::string MeantCaseText(std::string_view bytes);

/// True if a line of the file begins with the head of a case's first section.
bool IsCaseText(std::string_view bytes);

}  // namespace windcase
