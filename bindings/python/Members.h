// The members of a described class as Python attributes.
#pragma once

#include "Conversion.h"

namespace orve::python {

/// Every member and event of a class by its Python name: a property for a get without arguments, a function
/// for a get with arguments or a method, "set_" and the name for a let with arguments.
py::dict MembersOf(const automation::ClassDescription& description, const py::object& base);

/// Calls by name, for hosts that know a member's name only when they run.
py::object InvokeByName(const Reference& self, const std::string& member, const py::args& arguments,
                        const py::kwargs& named);
void AssignByName(const Reference& self, const std::string& member, const py::args& arguments,
                  const py::kwargs& named);

/// Connects a Python callable; the connection ends when the returned object goes.
Connection ConnectByName(const Reference& self, const std::string& event, const py::function& handler);

}  // namespace orve::python
