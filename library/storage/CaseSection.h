// One section of the case file, on its way from or to the text: each key is described once, for both ways.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "common/Error.h"
#include "core/Document.h"

namespace orve {

class clsSaveFile;

/// A date among the values of a case.
struct CaseDate {
  double value = 0;
};

// The forms of a value in the file: its text and what a text stands for. Errors of the reading: 13 if the
// text doesn't convert, 6 if it doesn't fit.
std::string CaseValueText(bool value);
std::string CaseValueText(std::int16_t value);
std::string CaseValueText(std::int32_t value);
std::string CaseValueText(float value);
std::string CaseValueText(CaseDate value);
std::string CaseValueText(const std::string& value);
void ReadCaseValue(std::string_view text, bool& value);
void ReadCaseValue(std::string_view text, std::int16_t& value);
void ReadCaseValue(std::string_view text, std::int32_t& value);
void ReadCaseValue(std::string_view text, float& value);
void ReadCaseValue(std::string_view text, CaseDate& value);
void ReadCaseValue(std::string_view text, std::string& value);

/// An enumeration stands in the file as its integer value, whatever it is.
template <class Value>
requires std::is_enum_v<Value> std::string CaseValueText(Value value) {
  return CaseValueText(static_cast<std::int32_t>(value));
}
template <class Value>
requires std::is_enum_v<Value>
void ReadCaseValue(std::string_view text, Value& value) {
  std::int32_t number = 0;
  ReadCaseValue(text, number);
  value = static_cast<Value>(number);
}

/// A key with indices: "Name(0, 3)".
std::string IndexedKey(std::string_view name, std::initializer_list<std::int32_t> indices);

/// A walk over the keys of one section, which either reads them from the manager's text or writes them into
/// it.
class CaseSection {
 public:
  enum class Way { Read, Write };

  CaseSection(std::shared_ptr<clsSaveFile> file, const char* section, Way way)
      : m_file(std::move(file)), m_document(*m_file), m_section(section), m_reading(way == Way::Read) {}

  bool Reading() const { return m_reading; }

  /// A key whose value `get()` gives and `set(value)` takes; `absent` stands for a key that isn't there.
  /// Errors: `DocumentReplaced` if a handler or a component has put another document in the file's place.
  template <class Value, class Get, class Set>
  void Key(const std::string& key, const Value& absent, Get get, Set set) {
    if (m_reading) {
      set(ReadKey(key, absent));
      m_document.RequireOpen();
    } else {
      const std::string text = CaseValueText(get());
      m_document.RequireOpen();
      WriteKey(key, text);
    }
  }

 private:
  template <class Value>
  Value ReadKey(const std::string& key, const Value& absent) const {
    const std::string text = TextOf(key, CaseValueText(absent));
    Value value{};
    try {
      ReadCaseValue(text, value);
    } catch (const Error& error) {
      RaiseAt(key, error);
    }
    return value;
  }

  std::string TextOf(const std::string& key, const std::string& absent) const;
  void WriteKey(const std::string& key, const std::string& text);
  [[noreturn]] void RaiseAt(const std::string& key, const Error& error) const;

  std::shared_ptr<clsSaveFile> m_file;
  Document m_document;
  std::string m_section;
  bool m_reading;
};

/// The keys of a section that are properties of one object, so that a row of the description is a key, the
/// property's two members and the value that an absent key stands for.
template <class Owner>
class PropertyKeys {
 public:
  PropertyKeys(CaseSection& section, Owner& owner) : m_section(section), m_owner(owner) {}

  /// A plain property.
  template <class Value>
  void operator()(const std::string& key, Value (Owner::*get)() const,
                  void (Owner::*set)(std::type_identity_t<Value>), std::type_identity_t<Value> absent) const {
    m_section.Key(
        key, absent, [&] { return (m_owner.*get)(); }, [&](Value value) { (m_owner.*set)(value); });
  }

  /// A property whose absent key takes the value that another property has at that moment.
  template <class Value>
  void operator()(const std::string& key, Value (Owner::*get)() const,
                  void (Owner::*set)(std::type_identity_t<Value>), Value (Owner::*absent)() const) const {
    (*this)(key, get, set, m_section.Reading() ? (m_owner.*absent)() : Value{});
  }

  /// A text.
  void operator()(const std::string& key, const std::string& (Owner::*get)() const,
                  void (Owner::*set)(const std::string&), const std::string& absent) const {
    m_section.Key(
        key, absent, [&] { return (m_owner.*get)(); },
        [&](const std::string& value) { (m_owner.*set)(value); });
  }

 private:
  CaseSection& m_section;
  Owner& m_owner;
};

}  // namespace orve
