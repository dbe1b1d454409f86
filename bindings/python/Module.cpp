// The extension module `_orve`: the description as Python objects. `__init__.py` makes the public package of
// it.
#include <pybind11/pybind11.h>

#include "BuiltInEngines.h"
#include "Members.h"
#include "Services.h"
#include "common/Error.h"
#include "common/Host.h"
#include "common/NumberText.h"
#include "common/clsCommon.h"
#include "storage/CaseFileQueries.h"
#include "storage/clsCommonDialog.h"

namespace orve::python {

namespace {

namespace a = automation;

py::str Str(std::string_view text) {
  return py::str(text.data(), text.size());
}

/// Name, help and members (name, value, published text) of every enumeration.
py::list EnumerationTable() {
  py::list table;
  for (const auto& enumeration : a::Enumerations()) {
    py::list members;
    for (const auto& enumerator : enumeration.enumerators)
      members.append(py::make_tuple(Str(enumerator.name), enumerator.value, Str(enumerator.published)));
    table.append(py::make_tuple(Str(enumeration.name), Str(enumeration.help), members));
  }
  return table;
}

/// Name, help and fields (name, name of the field's record or None, whether it is a text) of every record.
py::list RecordTable() {
  py::list table;
  for (const auto& record : a::Records()) {
    py::list fields;
    for (const auto& field : record.fields) {
      const py::object type =
          field.type.kind == a::Kind::Record ? py::object(Str(field.type.name)) : py::none();
      fields.append(py::make_tuple(Str(field.name), type, field.type.kind == a::Kind::Text));
    }
    table.append(py::make_tuple(Str(record.name), Str(record.help), fields));
  }
  return table;
}

/// Name, help, whether it can be created, properties, functions and events (name and help) of every class.
py::list ClassTable(const py::object& base) {
  py::list table;
  for (const auto* description : a::Classes()) {
    py::list events;
    for (const auto& event : description->events)
      events.append(py::make_tuple(Str(event.name), Str(event.help)));
    table.append(py::make_tuple(Str(description->name), Str(description->help),
                                description->create != nullptr, PropertiesOf(*description, base),
                                FunctionsOf(*description, base), events));
  }
  return table;
}

void TranslateError(std::exception_ptr raised) {
  try {
    if (raised) std::rethrow_exception(raised);
  } catch (const Error& error) {
    const py::object exception = PythonTypes().error(error.Number(), TextToPython(error.what()));
    PyErr_SetObject(PythonTypes().error.ptr(), exception.ptr());
  }
}

void DefineRegistration(py::module_& module) {
  module.def("register_error", [](const py::object& type) { PythonTypes().error = type; });
  module.def("register_enumeration",
             [](const std::string& name, const py::object& type, const py::dict& members) {
               PythonTypes().enumerationTypes[a::FindEnumeration(name)->name] = type;
               PythonTypes().enumerations[a::FindEnumeration(name)->name] = members;
             });
  module.def("register_record", [](const std::string& name, const py::object& type) {
    PythonTypes().records[a::FindRecord(name)->name] = type;
  });
  module.def("register_class", [](const std::string& name, const py::object& type) {
    PythonTypes().classes[a::FindClass(name)->name] = type;
  });
}

void DefineObjects(py::module_& module) {
  py::class_<Connection>(module, "Slot").def("disconnect", &Connection::Disconnect);
  py::class_<clsCommonDialog>(module, "FileDialog")
      .def_readwrite("CancelError", &clsCommonDialog::CancelError)
      .def_readwrite("DefaultExt", &clsCommonDialog::DefaultExt)
      .def_readwrite("DialogTitle", &clsCommonDialog::DialogTitle)
      .def_readwrite("Filter", &clsCommonDialog::Filter)
      .def_readwrite("Flags", &clsCommonDialog::Flags)
      .def_readwrite("InitDir", &clsCommonDialog::InitDir)
      .def_property(
          "FileName", [](const clsCommonDialog& self) { return TextToPython(self.FileName); },
          [](clsCommonDialog& self, const py::object& name) { self.FileName = PathFromPython(name); });
  py::class_<Reference> object(module, "Object");
  object.def(py::init<const Reference&>())
      .def(py::init([](const std::string& className) { return Reference{a::CreateObject(className)}; }))
      .def("invoke", &InvokeByName, py::doc("Reads a property or calls a method by its name."))
      .def("assign", &AssignByName, py::doc("Lets or sets a property by its name; the value comes last."))
      .def("_connect", &ConnectByName)
      .def("__eq__",
           [](const Reference& self, const py::object& other) {
             return py::isinstance<Reference>(other) &&
                    other.cast<const Reference&>().object.object == self.object.object;
           })
      .def("__copy__", [](const py::object& self) { return self; })
      .def("__deepcopy__", [](const py::object& self, const py::dict&) { return self; })
      .def("__reduce__",
           [](const py::object&) -> py::object {
             throw Error(ErrorNumber::TypeMismatch, "Type mismatch: an object of the library isn't a value");
           })
      .def("_address",
           [](const Reference& self) { return reinterpret_cast<std::uintptr_t>(self.object.object.get()); })
      .def("__hash__", [](const Reference& self) { return std::hash<void*>()(self.object.object.get()); });
}

}  // namespace

PYBIND11_MODULE(_orve, module) {
  py::options options;
  options.disable_function_signatures();
  py::register_exception_translator(&TranslateError);
  DefineRegistration(module);
  DefineObjects(module);
  module.def("enumerations", &EnumerationTable);
  module.def("records", &RecordTable);
  module.def("classes", &ClassTable);
  module.def("set_service", &SetService);
  module.def("clear_services", &ClearServices);
  module.def("register_built_in_engines", &RegisterBuiltInEngines);
  module.def("native_path",
             [](const py::object& path) { return TextToPython(NativePath(PathFromPython(path))); });
  module.def("resolve_file_name", [](const py::object& name) {
    return TextToPython(NativePath(ResolveFileName(PathFromPython(name))));
  });
  module.def("case_file_exists", [](const py::object& name) { return CaseFileExists(PathFromPython(name)); });
  module.def("copy_put_aside",
             [](const py::object& name) { return TextToPython(CopyPutAside(PathFromPython(name))); });
  module.def("case_file_changed", [] { return CaseFileChanged(); });
  module.def("single_text", [](double value) { return ShortestText(static_cast<float>(value)); });
  module.def("double_text", [](double value) { return ShortestText(value); });
  module.def("app_version", [] { return clsCommon().AppVersion(); });
}

}  // namespace orve::python
