// The lines of the door scripts.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orve::test {

struct ScriptLine {
  int number = 0;
  std::vector<std::string> fields;  ///< Verb first; empty fields kept.

  std::string Field(std::size_t i) const { return i < fields.size() ? fields[i] : std::string(); }
  /// The arguments of field 3; "-" as it stands.
  std::vector<std::string> Arguments() const;
};

std::vector<ScriptLine> ReadScript(const std::filesystem::path& path);

/// The text with every occurrence of a part replaced.
std::string Replaced(std::string text, const std::string& part, const std::string& by);

}  // namespace orve::test
