// The text of a document: sections of keys and values, edited in place.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace orve {

/// A text of lines `[Section]` and `Key=value`. A section begins at the first place of its head anywhere and
/// ends at the next "["; a key is the first one at a line's begin there. The keys of the section that was
/// asked for last are known by their places, and changes to them are made together when another section is
/// asked for, so that the time for all keys of a text grows with its size only.
class DocumentText {
 public:
  const std::string& Text() const;
  void Text(std::string text);

  /// The value: what stands up to the next carriage return.
  std::optional<std::string> Value(const std::string& section, const std::string& key) const;
  /// Changes a value, blanks behind it excepted, or adds the key and the section if they aren't there.
  void Value(const std::string& section, const std::string& key, const std::string& value);

 private:
  struct KeyPlace {
    std::size_t hash;
    std::size_t lineFeed;
  };
  struct Edit {
    std::size_t at;
    std::size_t length;
    std::string text;
  };

  void MakeEdits() const;
  void Forget() const;
  /// False if the section isn't there.
  bool Locate(const std::string& section) const;
  std::size_t KeyAt(const std::string& key, std::size_t end) const;
  void AddKey(const std::string& line);

  mutable std::string m_text;
  // The section that was located last.
  mutable std::optional<std::string> m_section;
  mutable std::size_t m_begin = 0;
  mutable std::size_t m_end = 0;
  mutable std::size_t m_lastCharacter =
      0;  ///< Position behind the section's last one but line ends and blanks.
  mutable std::vector<KeyPlace> m_keys;
  // Changes to it that aren't made yet.
  mutable std::vector<Edit> m_edits;
  mutable std::string m_added;
  mutable std::unordered_set<std::string> m_changed;
};

}  // namespace orve
