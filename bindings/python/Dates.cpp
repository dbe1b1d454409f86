#include "Dates.h"

#include <cmath>

#include "common/Error.h"

namespace orve::python {

namespace py = pybind11;

namespace {

constexpr double MillisecondsOfDay = 86400000;
// 1 January 100 and 31 December 9999.
constexpr double FirstDate = -657434;
constexpr double LastDate = 2958465;

py::object DateTimeModule() {
  return py::module_::import("datetime");
}

py::object DayZero() {
  return DateTimeModule().attr("datetime")(1899, 12, 30);
}

}  // namespace

py::object DateToPython(double date) {
  if (date == 0) return py::none();
  if (!(date > FirstDate && date < LastDate)) return py::float_(date);
  // Before day zero the time of day counts forwards from the whole day.
  const double day = std::trunc(date);
  const double milliseconds = std::round(std::fabs(date - day) * MillisecondsOfDay);
  return DayZero() + DateTimeModule().attr("timedelta")(day, 0, 0, milliseconds);
}

bool IsDate(py::handle object) {
  return py::isinstance(object, DateTimeModule().attr("date"));
}

double DateFromPython(py::handle object) {
  const py::object type = DateTimeModule().attr("datetime");
  py::object given = py::reinterpret_borrow<py::object>(object);
  if (!py::isinstance(given, type)) given = type.attr("combine")(given, DateTimeModule().attr("time")());
  if (!given.attr("tzinfo").is_none())
    throw Error(ErrorNumber::TypeMismatch, "Type mismatch: a datetime without a time zone is wanted");
  const py::object difference = given - DayZero();
  const auto day = difference.attr("days").cast<double>();
  const double time = (difference.attr("seconds").cast<double>() * 1000 +
                       difference.attr("microseconds").cast<double>() / 1000) /
                      MillisecondsOfDay;
  return day < 0 ? day - time : day + time;
}

}  // namespace orve::python
