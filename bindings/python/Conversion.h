// Python objects as values of the object model, and back.
#pragma once

#include <cstddef>
#include <map>
#include <new>
#include <pybind11/pybind11.h>
#include <string>
#include <string_view>

#include "Dispatch.h"

namespace orve::python {

namespace py = pybind11;

/// What `_orve.Object` holds: a counted reference to an object of the library.
struct Reference {
  automation::ObjectReference object;

  /// An instance whose `__init__` never ran holds a null reference instead of raw memory.
  static void* operator new(std::size_t size) { return ::new (::operator new(size)) Reference(); }
  static void* operator new(std::size_t, void* place) { return place; }
  static void operator delete(void* memory) { ::operator delete(memory); }
};

/// The Python types made from the description, by name: an enumeration as a dictionary from value to member,
/// a record or class as its type. Never destroyed, since Python's own end comes first.
struct Types {
  std::map<std::string_view, py::object> enumerationTypes;
  std::map<std::string_view, py::dict> enumerations;
  std::map<std::string_view, py::object> records;
  std::map<std::string_view, py::object> classes;
  py::object error;
};
Types& PythonTypes();

/// A text of the library as a str; bytes that aren't UTF-8 become the replacement character.
py::object TextToPython(const std::string& text);

/// A value as Python has it: an enumeration as its member where there is one, a date as a naive datetime
/// (None for 0), a stored path as the machine's own.
py::object ToPython(const automation::Value& value, const automation::Type& type, bool isPath = false);

/// What a Python object is wanted for.
struct Wanted {
  automation::Type type;
  bool isPath = false;
};

/// A Python object as a loosely typed value; None as the empty value. A datetime serves for a date and a
/// text, an `os.PathLike` for a path. Errors: 13 for what can't be taken, a member of another enumeration
/// included, 6 for a whole number beyond all, 91 for an object without a library object.
automation::Value FromPython(py::handle object, const Wanted& wanted);

/// A Python result of a callback as a value of a type. Errors: 13, 6.
automation::Value ResultOf(const py::object& result, const Wanted& wanted, const char* service);

/// A path given by Python, as text. Errors: 13.
std::string PathFromPython(py::handle object);

}  // namespace orve::python
