// What the fuzzer feeds and the replay repeats. A target returns; a broken rule ends the program.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace orve::fuzz {

/// Ends the program if a rule doesn't hold.
inline void Require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken rule: %s\n", rule);
  std::abort();
}

/// A case file: it opens or raises an error, and an opened case can be saved and opened again.
void CaseFile(std::string_view input);
/// Calls by name on the object model, with handlers that raise, clear, open and release: nothing but the
/// library's own errors.
void ObjectModel(std::string_view input);
/// A profile file: a stored value is found again.
void ProfileFile(std::string_view input);
/// A calculation sheet: eight texts, parted by the byte 0xFF, at the places that a stranger can fill. The
/// markup stays whole and holds no script and no outside link.
void Sheet(std::string_view input);
/// Texts of numbers, dates and descriptions, and what is read back from them.
void Texts(std::string_view input);

}  // namespace orve::fuzz
