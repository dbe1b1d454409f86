// OLE dates (days since 30 December 1899, 0 for none) as naive datetimes, and back.
#pragma once

#include <pybind11/pybind11.h>

namespace orve::python {

/// To the millisecond; None for 0, the float itself for what no datetime can be.
pybind11::object DateToPython(double date);
/// True for a `datetime.datetime` or `datetime.date`.
bool IsDate(pybind11::handle object);
/// Errors: 13 for a datetime with a time zone.
double DateFromPython(pybind11::handle object);

}  // namespace orve::python
