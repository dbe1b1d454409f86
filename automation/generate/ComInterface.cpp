#include "Generate.h"

namespace orve::automation {

namespace {

// Identities of the library, fixed for ever.
constexpr std::string_view LibraryGuid = "347500a3-d11a-40c7-8429-fab7b162211e";

std::string ComType(const Type& type) {
  switch (type.kind) {
    case Kind::None:
      return "void";
    case Kind::Bool:
      return "VARIANT_BOOL";
    case Kind::Int16:
      return "short";
    case Kind::Int32:
      return "long";
    case Kind::Single:
      return "float";
    case Kind::Date:
      return "DATE";
    case Kind::Text:
      return "BSTR";
    case Kind::Object:
      return "I" + std::string(type.name) + "*";
    case Kind::RecordArray:
      return "SAFEARRAY(" + std::string(type.name) + ")";
    case Kind::Enumeration:
    case Kind::Record:
      break;
  }
  return std::string(type.name);
}

/// The type of an argument, or of a property's new value: a record goes by reference, as typed hosts pass it.
std::string InputType(const Type& type) {
  return ComType(type) + (type.kind == Kind::Record ? "*" : "");
}

std::string DefaultText(const Value& value) {
  const auto* truth = value.As<bool>();
  if (truth == nullptr) return TextOf(value);
  return *truth ? "-1" : "0";
}

std::vector<std::string> Parameters(const MemberDescription& member) {
  std::vector<std::string> parameters;
  for (const ArgumentDescription& argument : member.arguments) {
    std::string attributes = argument.byReference ? "in, out" : "in";
    if (argument.defaultValue) attributes += ", defaultvalue(" + DefaultText(*argument.defaultValue) + ")";
    parameters.push_back("[" + attributes + "] " + InputType(argument.type) +
                         (argument.byReference ? "* " : " ") + std::string(argument.name));
  }
  return parameters;
}

std::string Line(std::string_view attribute, const MemberDescription& member, std::string_view last) {
  auto parameters = Parameters(member);
  if (!last.empty()) parameters.emplace_back(last);
  std::string text = "        [";
  if (!attribute.empty()) text += std::string(attribute) + ", ";
  return text + "id(" + std::to_string(member.number) + "), helpstring(\"" + member.Summary() +
         "\")] HRESULT " + std::string(member.name) + "(" + Join(parameters, ", ") + ");\n";
}

std::string InterfaceText(const ClassDescription& description) {
  const std::string name(description.name);
  std::string text = "    [object, uuid(" + std::string(description.identity.interfaceGuid) +
                     "), dual, oleautomation, helpstring(\"" + std::string(description.help) +
                     "\")]\n    interface I" + name + " : IDispatch {\n";
  for (const MemberDescription& member : description.members) {
    const std::string type = ComType(member.type);
    const std::string result = member.type.kind == Kind::None ? "" : "[out, retval] " + type + "* Result";
    text += Line(member.isMethod ? "" : "propget", member, result);
    if (!member.let) continue;
    text += Line(member.type.kind == Kind::Object ? "propputref" : "propput", member,
                 "[in] " + InputType(member.type) + " NewValue");
  }
  return text + "    };\n\n";
}

std::string EventsText(const ClassDescription& description) {
  if (description.events.empty()) return {};
  std::string text = "    [uuid(" + std::string(description.identity.eventsGuid) + ")]\n    dispinterface I" +
                     std::string(description.name) + "Events {\n    properties:\n    methods:\n";
  for (const EventDescription& event : description.events) {
    std::vector<std::string> parameters;
    for (const ArgumentDescription& argument : event.arguments)
      parameters.push_back("[in] " + ComType(argument.type) + " " + std::string(argument.name));
    text += "        [id(" + std::to_string(event.number) + "), helpstring(\"" + std::string(event.help) +
            "\")] void " + std::string(event.name) + "(" + Join(parameters, ", ") + ");\n";
  }
  return text + "    };\n\n";
}

std::string ClassText(const ClassDescription& description) {
  const std::string name(description.name);
  std::string text = "    [uuid(" + std::string(description.identity.classGuid) + ")" +
                     (description.create == nullptr ? ", noncreatable" : "") + "]\n    coclass " + name +
                     " {\n        [default] interface I" + name + ";\n";
  if (!description.events.empty()) text += "        [default, source] dispinterface I" + name + "Events;\n";
  return text + "    };\n\n";
}

}  // namespace

std::string ComInterface() {
  std::string text = "// " + std::string(GeneratedNote) + "\nimport \"oaidl.idl\";\n\n[uuid(" +
                     std::string(LibraryGuid) +
                     "), version(3.0), helpstring(\"ORVE BS6399-2 Library 3.0\")]\nlibrary ORVE3_BS6399_2 {\n"
                     "    importlib(\"stdole2.tlb\");\n\n";
  for (const EnumerationDescription& enumeration : Enumerations()) {
    const std::string name(enumeration.name);
    text += "    typedef [helpstring(\"" + std::string(enumeration.help) + "\")] enum " + name + " {\n";
    for (const Enumerator& enumerator : enumeration.enumerators)
      text += "        " + name + "_" + std::string(enumerator.name) + " = " +
              std::to_string(enumerator.value) + ",\n";
    text.erase(text.size() - 2, 1);
    text += "    } " + name + ";\n\n";
  }
  for (const RecordDescription& record : Records()) {
    const std::string name(record.name);
    text += "    typedef [uuid(" + std::string(record.guid) + "), helpstring(\"" + std::string(record.help) +
            "\")] struct " + name + " {\n";
    for (const FieldDescription& field : record.fields)
      text += "        " + ComType(field.type) + " " + std::string(field.name) + ";\n";
    text += "    } " + name + ";\n\n";
  }
  for (const ClassDescription* description : Classes())
    text += "    interface I" + std::string(description->name) + ";\n";
  text += "\n";
  for (const ClassDescription* description : Classes())
    text += InterfaceText(*description) + EventsText(*description);
  for (const ClassDescription* description : Classes()) text += ClassText(*description);
  text.pop_back();
  return text + "};\n";
}

}  // namespace orve::automation
