// A loosely typed value, as it passes between a host and the object model.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orve::automation {

struct ClassDescription;
struct RecordDescription;
class Value;

/// A counted reference to an object of a described class; null if `object` is empty.
struct ObjectReference {
  std::shared_ptr<void> object;
  const ClassDescription* type = nullptr;
};

/// A record with its fields in their declared order.
struct RecordValue {
  const RecordDescription* type = nullptr;
  std::vector<Value> fields;
};

/// A value of any kind. The empty value stands for an argument that was left out, and for the result of a
/// method without one.
class Value {
 public:
  using Storage = std::variant<std::monostate, bool, std::int32_t, float, double, std::string,
                               ObjectReference, RecordValue, std::vector<Value>>;

  Value() = default;
  Value(bool value) : m_storage(value) {}
  Value(std::int32_t value) : m_storage(value) {}
  Value(float value) : m_storage(value) {}
  Value(double value) : m_storage(value) {}
  Value(std::string value) : m_storage(std::move(value)) {}
  Value(std::string_view value) : m_storage(std::string(value)) {}
  Value(const char* value) : m_storage(std::string(value)) {}
  Value(ObjectReference value) : m_storage(std::move(value)) {}
  Value(RecordValue value) : m_storage(std::move(value)) {}
  Value(std::vector<Value> value) : m_storage(std::move(value)) {}

  bool IsEmpty() const { return m_storage.index() == 0; }
  /// The value as one kind; null if it is of another.
  template <class Kind>
  const Kind* As() const {
    return std::get_if<Kind>(&m_storage);
  }
  const Storage& Held() const { return m_storage; }

 private:
  Storage m_storage;
};

/// The kinds of the types that members, arguments and fields have.
enum class Kind { None, Bool, Int16, Int32, Single, Date, Text, Enumeration, Object, Record, RecordArray };

/// A type of the object model. Enumerations, classes and records carry their name.
struct Type {
  Kind kind = Kind::None;
  std::string_view name;

  friend bool operator==(const Type&, const Type&) = default;
};

/// The value in the form in which a type is held: bool, 32-bit integer (whole numbers and enumerations),
/// float, double (dates), text, object or record. Numbers, texts and bools convert into each other, True as
/// -1; a fraction goes to the nearest whole number, halves to even. Errors: 13 for what doesn't convert, 6
/// for what doesn't fit. A null object stays one. `storage` takes the converted value where one is needed.
const Value& Coerce(const Value& value, const Type& type, Value& storage);

/// The value as text: "True" and "False", the shortest text of a number, the fields of a record in brackets
/// joined by "; ", the rows of an array in square brackets joined by ", ".
std::string TextOf(const Value& value);

}  // namespace orve::automation
