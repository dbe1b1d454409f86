// The services of the host as Python callables.
#pragma once

#include "Conversion.h"

namespace orve::python {

/// Sets a service by its name; None brings the headless default back. Errors: 438 for a name that isn't a
/// service.
void SetService(const std::string& name, const py::object& callable);
/// Lets go of every Python callable, before Python ends.
void ClearServices();

}  // namespace orve::python
