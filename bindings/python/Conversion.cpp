#include "Conversion.h"

#include <limits>

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
  py::object operator()(double value) const { return py::float_(value); }
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

/// numpy's truth value, which is no Python bool.
bool IsArrayBool(py::handle object) {
  if (PyLong_Check(object.ptr()) || !py::hasattr(object, "dtype")) return false;
  return py::str(object.attr("dtype").attr("kind")).equal(py::str("b"));
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
    record.fields.push_back(FromPython(object.attr(std::string(field.name).c_str())));
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

Value FromPython(py::handle object) {
  PyObject* given = object.ptr();
  if (given == Py_None) return {};
  if (PyBool_Check(given)) return given == Py_True;
  if (PyFloat_Check(given)) return PyFloat_AS_DOUBLE(given);
  if (PyUnicode_Check(given)) return TextFromPython(object);
  if (IsArrayBool(object)) return PyObject_IsTrue(given) == 1;
  if (PyIndex_Check(given)) return WholeFromPython(object);
  if (py::isinstance<Reference>(object)) return object.cast<const Reference&>().object;
  for (const auto& [name, type] : PythonTypes().records)
    if (reinterpret_cast<PyObject*>(Py_TYPE(given)) == type.ptr())
      return RecordFromPython(object, *automation::FindRecord(name));
  // What else knows to be a number, such as a numpy scalar.
  const PyNumberMethods* number = Py_TYPE(given)->tp_as_number;
  if (number != nullptr && number->nb_float != nullptr)
    return py::float_(py::reinterpret_borrow<py::object>(object)).cast<double>();
  throw Error(ErrorNumber::TypeMismatch,
              "Type mismatch: no member takes an object of type " + std::string(Py_TYPE(given)->tp_name));
}

Value ResultOf(const py::object& result, Kind kind, const char* service) {
  try {
    Value storage;
    return automation::Coerce(FromPython(result), Type{kind, {}}, storage);
  } catch (const Error& error) {
    throw Error(error.Number(), std::string("result of ") + service + ": " + error.what());
  }
}

}  // namespace orve::python
