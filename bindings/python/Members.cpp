#include "Members.h"

#include <vector>

#include "common/Error.h"

namespace orve::python {

using automation::MemberDescription;
using automation::NamedArgument;
using automation::Value;

namespace {

struct CallArguments {
  std::vector<Value> positional;
  std::vector<NamedArgument> named;
  std::vector<std::string> names;  ///< What the names of `named` lie in.

  CallArguments(const py::args& arguments, const py::kwargs& keywords) {
    positional.reserve(arguments.size());
    for (const py::handle argument : arguments) positional.push_back(FromPython(argument));
    names.reserve(keywords.size());
    for (const auto& [key, argument] : keywords) {
      names.push_back(key.cast<std::string>());
      named.push_back({names.back(), FromPython(argument)});
    }
  }

  /// The value of a let: named "value", or the last one given.
  Value TakeValue() {
    for (auto argument = named.begin(); argument != named.end(); ++argument) {
      if (argument->name != "value") continue;
      Value value = std::move(argument->value);
      named.erase(argument);
      return value;
    }
    if (positional.empty()) return {};
    Value value = std::move(positional.back());
    positional.pop_back();
    return value;
  }
};

py::object Call(const Reference& self, const MemberDescription& member, const py::args& arguments,
                const py::kwargs& keywords) {
  const CallArguments given(arguments, keywords);
  return ToPython(automation::Invoke(self.object, member, given.positional, given.named), member.type,
                  member.unit == "path");
}

void Let(const Reference& self, const MemberDescription& member, const py::args& arguments,
         const py::kwargs& keywords) {
  CallArguments given(arguments, keywords);
  const Value value = given.TakeValue();
  automation::Assign(self.object, member, given.positional, value, given.named);
}

std::string DocumentationOf(const MemberDescription& member) {
  std::string text(member.help);
  if (!member.unit.empty() && member.unit != "path") text += ", " + std::string(member.unit);
  return text + ".";
}

/// The form from which Python's own tools read a signature.
std::string SignatureOf(const MemberDescription& member, bool isLet) {
  std::string text = (isLet ? "set_" : "") + std::string(member.name) + "($self";
  for (const auto& argument : member.arguments) {
    text += ", " + std::string(argument.name);
    if (!isLet && argument.defaultValue) text += "=" + automation::TextOf(*argument.defaultValue);
  }
  return text + (isLet ? ", value" : "") + ")\n--\n\n" + DocumentationOf(member);
}

py::object PropertyOf(const MemberDescription& member, const py::object& base) {
  const auto get = [&member](const Reference& self) {
    return ToPython(automation::Invoke(self.object, member, {}), member.type, member.unit == "path");
  };
  const auto let = [&member](const Reference& self, const py::object& value) {
    automation::Assign(self.object, member, {}, FromPython(value));
  };
  const py::object getter = py::cpp_function(get, py::is_method(base));
  const py::object setter = member.let ? py::object(py::cpp_function(let, py::is_method(base))) : py::none();
  return py::module_::import("builtins")
      .attr("property")(getter, setter, py::none(), DocumentationOf(member));
}

py::object FunctionOf(const MemberDescription& member, const py::object& base) {
  const std::string name(member.name);
  return py::cpp_function(
      [&member](const Reference& self, const py::args& arguments, const py::kwargs& keywords) {
        return Call(self, member, arguments, keywords);
      },
      py::is_method(base), py::name(name.c_str()), py::doc(SignatureOf(member, false).c_str()));
}

py::object SetterOf(const MemberDescription& member, const py::object& base) {
  const std::string name = "set_" + std::string(member.name);
  return py::cpp_function([&member](const Reference& self, const py::args& arguments,
                                    const py::kwargs& keywords) { Let(self, member, arguments, keywords); },
                          py::is_method(base), py::name(name.c_str()),
                          py::doc(SignatureOf(member, true).c_str()));
}

}  // namespace

py::dict MembersOf(const automation::ClassDescription& description, const py::object& base) {
  py::options options;
  options.disable_function_signatures();
  py::dict members;
  for (const MemberDescription& member : description.members) {
    const std::string name(member.name);
    if (!member.isMethod && member.arguments.empty()) {
      members[name.c_str()] = PropertyOf(member, base);
      continue;
    }
    members[name.c_str()] = FunctionOf(member, base);
    if (member.let) members[("set_" + name).c_str()] = SetterOf(member, base);
  }
  return members;
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
