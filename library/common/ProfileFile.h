// A profile file: lines with a section name in square brackets, then lines of a key, "=" and a value.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "common/FileLayer.h"

namespace orve {

/// The text of one profile file between its reading and its writing. Names of sections and keys are found in
/// any case; blanks around a key and a value, and quotes around a value, don't count; a line that begins with
/// ";" is a comment.
class ProfileFile {
 public:
  /// Reads a file. One that isn't there counts as empty; so does one that can't be read, which `Store` then
  /// leaves alone.
  static ProfileFile Load(const std::string& path);
  explicit ProfileFile(std::string text) : m_text(std::move(text)) {}

  /// The value of a key, at most 1024 characters of it, if section and key are there.
  std::optional<std::string> Value(std::string_view section, std::string_view key) const;
  /// Stores a value, adding the section and the key if they aren't there. A value is one line: what stands
  /// behind its first line is left out.
  void Value(std::string_view section, std::string_view key, std::string_view value);
  /// All values of a section in the form of `Value`, found in one pass. The keys are in upper case.
  std::unordered_map<std::string, std::string> Values(std::string_view section) const;
  /// Stores the values of several different keys, as `Value` would one after the other, in one pass.
  void Values(std::string_view section, const std::vector<std::pair<std::string, std::string>>& values);
  /// Writes the file back, if a value has changed. On an unwritable file nothing is stored and nothing
  /// reported.
  void Store(const std::string& path, Durability durability = Durability::Atomic) const;

  const std::string& Text() const { return m_text; }

 private:
  struct Line;
  struct Place;
  Line LineAt(std::size_t begin) const;
  /// Calls `visit` with the upper-case key and the place of each line of a section, until it returns true.
  template <class Visit>
  Place Walk(std::string_view section, Visit visit) const;
  Place Find(std::string_view section, std::string_view key) const;
  std::string ValueAt(const Place& place) const;

  std::string m_text;
  bool m_unreadable = false;
  bool m_changed = false;
};

}  // namespace orve
