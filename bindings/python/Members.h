// The members of a described class as Python attributes.
#pragma once

#include "Conversion.h"

namespace orve::python {

/// The properties without arguments of a class, by their names.
py::dict PropertiesOf(const automation::ClassDescription& description, const py::object& base);
/// Its methods and properties with arguments: name, arguments (name, and default where there is one),
/// documentation, the call, and the let or None.
py::list FunctionsOf(const automation::ClassDescription& description, const py::object& base);

/// Calls by name, for hosts that know a member's name only when they run.
py::object InvokeByName(const Reference& self, const std::string& member, const py::args& arguments,
                        const py::kwargs& named);
void AssignByName(const Reference& self, const std::string& member, const py::args& arguments,
                  const py::kwargs& named);

/// Connects a Python callable; the connection ends when the returned object goes.
Connection ConnectByName(const Reference& self, const std::string& event, const py::function& handler);

}  // namespace orve::python
