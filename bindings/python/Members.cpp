#include "Members.h"

#include <cmath>
#include <vector>

#include "common/Error.h"

namespace orve::python {

using automation::Kind;
using automation::MemberDescription;
using automation::NamedArgument;
using automation::Value;

namespace {

Wanted WantedValue(const MemberDescription& member) {
  return {member.type, member.unit == "path"};
}

Wanted WantedArgument(const automation::ArgumentDescription& argument) {
  return {argument.type, argument.name == "FileNameToOpen"};
}

std::string FullName(const Reference& self, const MemberDescription& member) {
  return std::string(self.object.type == nullptr ? "" : self.object.type->name) + "." +
         std::string(member.name);
}

/// The value of a let: None stands for no object, and what isn't a number is refused.
Value LetValue(const Reference& self, const MemberDescription& member, py::handle given) {
  if (given.is_none() && member.type.kind == Kind::Object) return automation::ObjectReference{};
  Value value = FromPython(given, WantedValue(member));
  if (const double* number = value.As<double>(); number != nullptr && std::isnan(*number))
    throw Error(ErrorNumber::InvalidArgument, FullName(self, member) + ": NaN is no value");
  return value;
}

struct CallArguments {
  std::vector<Value> positional;
  std::vector<NamedArgument> named;
  std::vector<std::string> names;  ///< What the names of `named` lie in.

  CallArguments(const MemberDescription& member, const py::args& arguments, std::size_t count,
                const py::kwargs& keywords) {
    positional.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
      positional.push_back(FromPython(
          arguments[i], i < member.arguments.size() ? WantedArgument(member.arguments[i]) : Wanted{}));
    names.reserve(keywords.size());
    for (const auto& [key, argument] : keywords) {
      names.push_back(key.cast<std::string>());
      named.push_back({names.back(), FromPython(argument, WantedOf(member, names.back()))});
    }
  }

 private:
  static Wanted WantedOf(const MemberDescription& member, std::string_view name) {
    for (const auto& argument : member.arguments)
      if (automation::SameName(argument.name, name)) return WantedArgument(argument);
    return {};
  }
};

/// Whatever a member raises names it.
template <class Run>
auto NamingMember(const Reference& self, const MemberDescription& member, Run run) {
  try {
    return run();
  } catch (const Error& error) {
    const std::string text = error.what();
    if (error.Number() != static_cast<int>(ErrorNumber::TypeMismatch) || text.rfind("Type mismatch", 0) != 0)
      throw;
    throw Error(error.Number(), FullName(self, member) + ": " + text);
  }
}

py::object Call(const Reference& self, const MemberDescription& member, const py::args& arguments,
                const py::kwargs& keywords) {
  const CallArguments given = NamingMember(
      self, member, [&] { return CallArguments(member, arguments, arguments.size(), keywords); });
  return ToPython(automation::Invoke(self.object, member, given.positional, given.named), member.type,
                  member.unit == "path");
}

/// The value of a let is named "value", or the last one given.
void Let(const Reference& self, const MemberDescription& member, const py::args& arguments,
         const py::kwargs& keywords) {
  std::size_t count = arguments.size();
  py::kwargs others = py::reinterpret_steal<py::kwargs>(PyDict_Copy(keywords.ptr()));
  py::object last;
  if (others.contains("value"))
    last = others.attr("pop")("value");
  else if (count > 0)
    last = arguments[--count];
  else
    throw Error(static_cast<int>(automation::DispatchError::ArgumentNotOptional),
                FullName(self, member) + ": argument value isn't optional");
  const CallArguments given =
      NamingMember(self, member, [&] { return CallArguments(member, arguments, count, others); });
  const Value value = NamingMember(self, member, [&] { return LetValue(self, member, last); });
  automation::Assign(self.object, member, given.positional, value, given.named);
}

std::string DocumentationText(const MemberDescription& member) {
  const std::vector<std::string> lines = automation::DocumentationOf(member);
  std::string text = lines.front();
  for (std::size_t i = 1; i < lines.size(); ++i) text += (i == 1 ? "\n\n" : "\n") + lines[i];
  return text;
}

py::object PropertyOf(const MemberDescription& member, const py::object& base) {
  const auto get = [&member](const Reference& self) {
    return ToPython(automation::Invoke(self.object, member, {}), member.type, member.unit == "path");
  };
  const auto let = [&member](const Reference& self, const py::object& given) {
    const Value value = NamingMember(self, member, [&] { return LetValue(self, member, given); });
    automation::Assign(self.object, member, {}, value);
  };
  const py::object getter = py::cpp_function(get, py::is_method(base));
  const py::object setter = member.let ? py::object(py::cpp_function(let, py::is_method(base))) : py::none();
  return py::module_::import("builtins")
      .attr("property")(getter, setter, py::none(), DocumentationText(member));
}

/// Names and defaults of the arguments; no default for one that must be given.
py::list ArgumentsOf(const MemberDescription& member) {
  py::list arguments;
  for (const auto& argument : member.arguments) {
    const py::str name(std::string(argument.name));
    arguments.append(argument.defaultValue
                         ? py::make_tuple(name, ToPython(*argument.defaultValue, {argument.type.kind, {}}))
                         : py::make_tuple(name));
  }
  return arguments;
}

py::object FunctionOf(const MemberDescription& member, const py::object& base) {
  return py::cpp_function(
      [&member](const Reference& self, const py::args& arguments, const py::kwargs& keywords) {
        return Call(self, member, arguments, keywords);
      },
      py::is_method(base));
}

py::object SetterOf(const MemberDescription& member, const py::object& base) {
  return py::cpp_function([&member](const Reference& self, const py::args& arguments,
                                    const py::kwargs& keywords) { Let(self, member, arguments, keywords); },
                          py::is_method(base));
}

}  // namespace

py::dict PropertiesOf(const automation::ClassDescription& description, const py::object& base) {
  py::dict properties;
  for (const MemberDescription& member : description.members)
    if (!member.isMethod && member.arguments.empty())
      properties[std::string(member.name).c_str()] = PropertyOf(member, base);
  return properties;
}

py::list FunctionsOf(const automation::ClassDescription& description, const py::object& base) {
  py::list functions;
  for (const MemberDescription& member : description.members) {
    if (!member.isMethod && member.arguments.empty()) continue;
    const py::object setter = member.let ? SetterOf(member, base) : py::none();
    functions.append(py::make_tuple(std::string(member.name), ArgumentsOf(member), DocumentationText(member),
                                    FunctionOf(member, base), setter));
  }
  return functions;
}

py::object InvokeByName(const Reference& self, const std::string& member, const py::args& arguments,
                        const py::kwargs& named) {
  return Call(self, automation::RequireMember(self.object, member), arguments, named);
}

void AssignByName(const Reference& self, const std::string& member, const py::args& arguments,
                  const py::kwargs& named) {
  Let(self, automation::RequireMember(self.object, member), arguments, named);
}

Connection ConnectByName(const Reference& self, const std::string& event, const py::function& handler) {
  if (self.object.type == nullptr) throw Error(ErrorNumber::ObjectNotSet, "Object is not set");
  const automation::EventDescription* description = self.object.type->FindEvent(event);
  return automation::ConnectEvent(self.object, event, [description, handler](std::span<const Value> values) {
    py::tuple arguments(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
      // An event's text is a stored path.
      arguments[i] = ToPython(values[i], description->arguments[i].type, true);
    handler(*arguments);
  });
}

}  // namespace orve::python
