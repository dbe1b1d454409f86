#include <algorithm>
#include <cctype>

#include "ComLibrary.h"
#include "Generate.h"

namespace orve::automation {

namespace {

bool IsIdentifier(std::string_view text) {
  const auto isPart = [](unsigned char letter) { return std::isalnum(letter) != 0 || letter == '_'; };
  return !text.empty() && std::isalpha(static_cast<unsigned char>(text.front())) != 0 &&
         std::all_of(text.begin(), text.end(), isPart);
}

/// How many names of the library, enumerators apart, and published names are this one, case ignored.
std::ptrdiff_t CountOfName(std::string_view name) {
  const auto isName = [name](const auto& described) { return SameName(described.name, name); };
  const auto isClass = [name](const ClassDescription* description) {
    return SameName(description->name, name);
  };
  std::ptrdiff_t count = std::count_if(Enumerations().begin(), Enumerations().end(), isName) +
                         std::count_if(Records().begin(), Records().end(), isName) +
                         std::count_if(ComClasses().begin(), ComClasses().end(), isClass);
  for (const EnumerationDescription& enumeration : Enumerations())
    count +=
        std::count_if(enumeration.enumerators.begin(), enumeration.enumerators.end(),
                      [name](const Enumerator& enumerator) { return SameName(enumerator.published, name); });
  return count;
}

/// A published name that is a legal identifier and the only one in the library stands as it is.
bool StandsAsPublished(const Enumerator& enumerator) {
  return IsIdentifier(enumerator.published) && CountOfName(enumerator.published) == 1;
}

std::string FullEnumeratorName(const EnumerationDescription& enumeration, const Enumerator& enumerator) {
  return std::string(enumeration.name) + "_" + std::string(enumerator.name);
}

std::string EnumeratorName(const EnumerationDescription& enumeration, const Enumerator& enumerator) {
  return StandsAsPublished(enumerator) ? std::string(enumerator.published)
                                       : FullEnumeratorName(enumeration, enumerator);
}

/// Names of one or two letters are no good in a header, where they would bar every such variable and template
/// argument.
std::string HeaderNames() {
  std::string text = "#ifdef ORVE_HEADER\n";
  for (const EnumerationDescription& enumeration : Enumerations())
    for (const Enumerator& enumerator : enumeration.enumerators)
      if (StandsAsPublished(enumerator) && enumerator.published.size() <= 2)
        text += "#define " + std::string(enumerator.published) + " " +
                FullEnumeratorName(enumeration, enumerator) + "\n";
  return text + "#endif\n\n";
}

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
  if (&description == ComClasses().front())
    text += "        interface I" + std::string(DescribeComLibrary().name) + ";\n";
  if (!description.events.empty()) text += "        [default, source] dispinterface I" + name + "Events;\n";
  return text + "    };\n\n";
}

}  // namespace

std::string ComInterface() {
  std::string text = "// " + std::string(GeneratedNote) + "\nimport \"oaidl.idl\";\n\n" + HeaderNames() +
                     "[uuid(" + std::string(TypeLibraryGuid) +
                     "), version(3.0), helpstring(\"ORVE BS6399-2 Library 3.0\")]\nlibrary ORVE3_BS6399_2 {\n"
                     "    importlib(\"stdole2.tlb\");\n\n";
  for (const EnumerationDescription& enumeration : Enumerations()) {
    const std::string name(enumeration.name);
    text += "    typedef [helpstring(\"" + std::string(enumeration.help) + "\")] enum " + name + " {\n";
    for (const Enumerator& enumerator : enumeration.enumerators)
      text += "        " + EnumeratorName(enumeration, enumerator) + " = " +
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
  for (const ClassDescription* description : ComClasses())
    text += "    interface I" + std::string(description->name) + ";\n";
  text += "\n";
  for (const ClassDescription* description : ComClasses())
    text += InterfaceText(*description) + EventsText(*description);
  for (const ClassDescription* description : ComClasses()) text += ClassText(*description);
  text.pop_back();
  return text + "};\n";
}

}  // namespace orve::automation
