#include "Value.h"

#include <cmath>
#include <optional>

#include "Description.h"
#include "common/Error.h"
#include "common/Narrow.h"
#include "common/NumberText.h"

namespace orve::automation {

namespace {

[[noreturn]] void RaiseMismatch(std::string_view wanted) {
  throw Error(ErrorNumber::TypeMismatch, "Type mismatch: " + std::string(wanted) + " is wanted");
}

/// What a number, a bool or the number in a text comes to; nothing for other kinds.
std::optional<double> NumberIn(const Value& value) {
  if (const auto* whole = value.As<std::int32_t>()) return *whole;
  if (const auto* single = value.As<float>()) return *single;
  if (const auto* number = value.As<double>()) return *number;
  if (const auto* truth = value.As<bool>()) return *truth ? -1.0 : 0.0;
  return std::nullopt;
}

/// "True" and "False" stand for their numbers in a text too.
std::optional<double> TruthIn(const std::string& text) {
  if (IsNumericText(text)) return std::nullopt;
  return TextToBool(text) ? -1.0 : 0.0;
}

bool ToBool(const Value& value) {
  if (const auto number = NumberIn(value)) return *number != 0;
  if (const auto* text = value.As<std::string>()) return TextToBool(*text);
  RaiseMismatch("a truth value");
}

std::int32_t ToWhole(const Value& value, Kind kind) {
  const auto narrow = [kind](double number) {
    return kind == Kind::Int16 ? orve::ToInt16(number) : orve::ToInt32(number);
  };
  if (const auto number = NumberIn(value)) return narrow(*number);
  const auto* text = value.As<std::string>();
  if (text == nullptr) RaiseMismatch("a whole number");
  if (const auto truth = TruthIn(*text)) return narrow(*truth);
  return kind == Kind::Int16 ? TextToInt16(*text) : TextToInt32(*text);
}

float ToFloat(const Value& value) {
  if (const auto number = NumberIn(value)) return ToSingle(*number);
  const auto* text = value.As<std::string>();
  if (text == nullptr) RaiseMismatch("a number");
  if (const auto truth = TruthIn(*text)) return ToSingle(*truth);
  return TextToSingle(*text);
}

double ToDate(const Value& value) {
  if (const auto number = NumberIn(value)) return *number;
  if (const auto* text = value.As<std::string>()) return TextToDouble(*text);
  RaiseMismatch("a date");
}

std::string ToText(const Value& value) {
  if (NumberIn(value)) return TextOf(value);
  RaiseMismatch("a text");
}

/// A null reference is no object, which an object property takes.
const Value& ToObject(const Value& value, std::string_view className) {
  const auto* reference = value.As<ObjectReference>();
  if (reference == nullptr || (reference->object && reference->type->name != className))
    RaiseMismatch("an object of class " + std::string(className));
  return value;
}

const Value& ToRecord(const Value& value, std::string_view recordName) {
  const auto* record = value.As<RecordValue>();
  if (record == nullptr || record->type == nullptr || record->type->name != recordName ||
      record->fields.size() != record->type->fields.size())
    RaiseMismatch("a record " + std::string(recordName));
  return value;
}

std::string Joined(char open, const std::vector<Value>& values, std::string_view separator, char close) {
  std::string text(1, open);
  for (const Value& value : values) {
    if (&value != values.data()) text += separator;
    text += TextOf(value);
  }
  text += close;
  return text;
}

struct TextVisitor {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(bool value) const { return BoolText(value); }
  std::string operator()(std::int32_t value) const { return std::to_string(value); }
  std::string operator()(float value) const { return ShortestText(value); }
  std::string operator()(double value) const { return ShortestText(value); }
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(const ObjectReference& value) const {
    return value.object ? std::string(value.type->name) : "Nothing";
  }
  std::string operator()(const RecordValue& value) const { return Joined('{', value.fields, "; ", '}'); }
  std::string operator()(const std::vector<Value>& value) const { return Joined('[', value, ", ", ']'); }
};

}  // namespace

const Value& Coerce(const Value& value, const Type& type, Value& storage) {
  switch (type.kind) {
    case Kind::Bool:
      if (value.As<bool>()) return value;
      return storage = ToBool(value);
    case Kind::Int16:
      return storage = ToWhole(value, type.kind);
    case Kind::Int32:
    case Kind::Enumeration:
      if (value.As<std::int32_t>()) return value;
      return storage = ToWhole(value, type.kind);
    case Kind::Single:
      if (value.As<float>()) return value;
      return storage = ToFloat(value);
    case Kind::Date:
      if (value.As<double>()) return value;
      return storage = ToDate(value);
    case Kind::Text:
      if (value.As<std::string>()) return value;
      return storage = ToText(value);
    case Kind::Object:
      return ToObject(value, type.name);
    case Kind::Record:
      return ToRecord(value, type.name);
    case Kind::None:
    case Kind::RecordArray:
      break;
  }
  RaiseMismatch("no such argument");
}

std::string TextOf(const Value& value) {
  return std::visit(TextVisitor{}, value.Held());
}

}  // namespace orve::automation
