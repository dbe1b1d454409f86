#include "Conversion.h"

#include <limits>

#include "Dates.h"
#include "common/DateText.h"
#include "common/Error.h"
#include "common/Host.h"

namespace orve::python {

using automation::Kind;
using automation::RecordDescription;
using automation::RecordValue;
using automation::Type;
using automation::Value;

namespace {

py::object EnumerationToPython(std::int32_t value, std::string_view name) {
  const auto found = PythonTypes().enumerations.find(name);
  if (found != PythonTypes().enumerations.end()) {
    const py::int_ key(value);
    if (PyObject* member = PyDict_GetItem(found->second.ptr(), key.ptr()))
      return py::reinterpret_borrow<py::object>(member);
  }
  return py::int_(value);
}

py::object RecordToPython(const RecordValue& record) {
  py::tuple fields(record.fields.size());
  for (std::size_t i = 0; i < record.fields.size(); ++i)
    fields[i] = ToPython(record.fields[i], record.type->fields[i].type);
  return PythonTypes().records.at(record.type->name)(*fields);
}

struct ToPythonVisitor {
  const Type& type;
  bool isPath;

  py::object operator()(std::monostate) const { return py::none(); }
  py::object operator()(bool value) const { return py::bool_(value); }
  py::object operator()(std::int32_t value) const {
    return type.kind == Kind::Enumeration ? EnumerationToPython(value, type.name) : py::int_(value);
  }
  py::object operator()(float value) const { return py::float_(value); }
  py::object operator()(double value) const {
    return type.kind == Kind::Date ? DateToPython(value) : py::float_(value);
  }
  py::object operator()(const std::string& value) const {
    return TextToPython(isPath ? NativePath(value) : value);
  }
  py::object operator()(const automation::ObjectReference& value) const {
    if (!value.object) return py::none();
    return PythonTypes().classes.at(value.type->name)(Reference{value});
  }
  py::object operator()(const RecordValue& value) const { return RecordToPython(value); }
  py::object operator()(const std::vector<Value>& values) const {
    py::list rows;
    for (const Value& value : values) rows.append(ToPython(value, type));
    return rows;
  }
};

Value WholeFromPython(py::handle object) {
  const auto whole = py::reinterpret_steal<py::object>(PyNumber_Index(object.ptr()));
  if (!whole) throw py::error_already_set();
  int overflow = 0;
  const long long value = PyLong_AsLongLongAndOverflow(whole.ptr(), &overflow);
  if (overflow != 0) throw Error(ErrorNumber::Overflow, "Overflow: the whole number is too large");
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
    return static_cast<double>(value);
  return static_cast<std::int32_t>(value);
}

[[noreturn]] void RaiseMismatch(const std::string& text) {
  throw Error(ErrorNumber::TypeMismatch, "Type mismatch: " + text);
}

std::string TypeName(py::handle object) {
  return Py_TYPE(object.ptr())->tp_name;
}

/// A scalar of an array library, or an array without dimensions, as Python's own number; nothing for other
/// objects.
py::object ArrayScalar(py::handle object) {
  if (!py::hasattr(object, "dtype") || !py::hasattr(object, "shape")) return {};
  const py::object shape = object.attr("shape");
  if (!py::isinstance<py::tuple>(shape) || py::len(shape) != 0)
    RaiseMismatch("one value is wanted, not an array (" + TypeName(object) + ")");
  return object.attr("item")();
}

/// A member of one enumeration doesn't stand for one of another.
void RefuseOtherEnumeration(py::handle object, const Type& type) {
  if (type.kind != Kind::Enumeration) return;
  for (const auto& [name, enumeration] : PythonTypes().enumerationTypes)
    if (reinterpret_cast<PyObject*>(Py_TYPE(object.ptr())) == enumeration.ptr() && name != type.name)
      RaiseMismatch("a member of " + std::string(type.name) + " is wanted, not one of " + std::string(name));
}

Value TextFromPython(py::handle object) {
  Py_ssize_t size = 0;
  const char* text = PyUnicode_AsUTF8AndSize(object.ptr(), &size);
  if (text == nullptr) throw py::error_already_set();
  return std::string(text, static_cast<std::size_t>(size));
}

Value RecordFromPython(py::handle object, const RecordDescription& description) {
  RecordValue record{&description, {}};
  for (const auto& field : description.fields)
    record.fields.push_back(FromPython(object.attr(std::string(field.name).c_str()), {field.type}));
  return record;
}

}  // namespace

Types& PythonTypes() {
  static auto* types = new Types;
  return *types;
}

py::object TextToPython(const std::string& text) {
  PyObject* object = PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "replace");
  if (object == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(object);
}

py::object ToPython(const Value& value, const Type& type, bool isPath) {
  return std::visit(ToPythonVisitor{type, isPath}, value.Held());
}

std::string PathFromPython(py::handle object) {
  const auto path = py::reinterpret_steal<py::object>(PyOS_FSPath(object.ptr()));
  if (!path) throw py::error_already_set();
  const py::object text =
      py::isinstance<py::bytes>(path) ? py::module_::import("os").attr("fsdecode")(path) : path;
  return *TextFromPython(text).As<std::string>();
}

Value FromPython(py::handle object, const Wanted& wanted) {
  PyObject* given = object.ptr();
  if (given == Py_None) return {};
  if (PyBool_Check(given)) return given == Py_True;
  if (PyFloat_Check(given)) return PyFloat_AS_DOUBLE(given);
  if (PyUnicode_Check(given)) return TextFromPython(object);
  RefuseOtherEnumeration(object, wanted.type);
  if (PyLong_Check(given)) return WholeFromPython(object);
  if (py::isinstance<Reference>(object)) {
    const auto& reference = object.cast<const Reference&>().object;
    if (!reference.object) throw Error(ErrorNumber::ObjectNotSet, "Object is not set");
    return reference;
  }
  for (const auto& [name, type] : PythonTypes().records)
    if (reinterpret_cast<PyObject*>(Py_TYPE(given)) == type.ptr())
      return RecordFromPython(object, *automation::FindRecord(name));
  if (IsDate(object)) {
    if (wanted.type.kind == Kind::Date) return DateFromPython(object);
    if (wanted.type.kind == Kind::Text) return DateText(DateFromPython(object));
    RaiseMismatch("no date is wanted");
  }
  if (wanted.isPath && py::hasattr(object, "__fspath__")) return PathFromPython(object);
  if (const py::object scalar = ArrayScalar(object)) return FromPython(scalar, wanted);
  if (PyIndex_Check(given)) return WholeFromPython(object);
  // What else knows to be a number, such as a Decimal.
  const PyNumberMethods* number = Py_TYPE(given)->tp_as_number;
  if (number != nullptr && number->nb_float != nullptr)
    return py::float_(py::reinterpret_borrow<py::object>(object)).cast<double>();
  RaiseMismatch("no member takes an object of type " + TypeName(object));
}

Value ResultOf(const py::object& result, const Wanted& wanted, const char* service) {
  try {
    Value storage;
    return automation::Coerce(FromPython(result, wanted), wanted.type, storage);
  } catch (const Error& error) {
    throw Error(error.Number(), std::string("result of ") + service + ": " + error.what());
  }
}

}  // namespace orve::python
