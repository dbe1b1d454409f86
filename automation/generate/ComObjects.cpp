#include "ComLibrary.h"
#include "Generate.h"

namespace orve::automation {

namespace {

/// A parameter of the interface's header, and the address of what it gives.
struct Parameter {
  std::string declaration;
  std::string address;
};

std::string HeaderType(const Type& type) {
  switch (type.kind) {
    case Kind::None:
      return "void";
    case Kind::Bool:
      return "VARIANT_BOOL";
    case Kind::Int16:
      return "SHORT";
    case Kind::Int32:
      return "LONG";
    case Kind::Single:
      return "FLOAT";
    case Kind::Date:
      return "DATE";
    case Kind::Text:
      return "BSTR";
    case Kind::Object:
      return "I" + std::string(type.name) + "*";
    case Kind::RecordArray:
      return "SAFEARRAY*";
    case Kind::Enumeration:
    case Kind::Record:
      break;
  }
  // The library's own types bear the same names in their namespace.
  return "::" + std::string(type.name);
}

Parameter ParameterOf(const Type& type, bool byReference, const std::string& name) {
  if (byReference || type.kind == Kind::Record) return {HeaderType(type) + "* " + name, name};
  return {HeaderType(type) + " " + name, "&" + name};
}

std::string MethodText(const MemberDescription& member, std::string_view prefix, std::string_view body,
                       const Parameter& last) {
  std::vector<std::string> declarations;
  std::vector<std::string> addresses;
  for (const ArgumentDescription& argument : member.arguments) {
    const Parameter parameter = ParameterOf(argument.type, argument.byReference, std::string(argument.name));
    declarations.push_back(parameter.declaration);
    addresses.push_back(parameter.address);
  }
  if (!last.declaration.empty()) declarations.push_back(last.declaration);
  return "  HRESULT STDMETHODCALLTYPE " + std::string(prefix) + std::string(member.name) + "(" +
         Join(declarations, ", ") + ") override {\n    return " + std::string(body) + "(" +
         std::to_string(member.number) + ", {" + Join(addresses, ", ") + "}, " + last.address + ");\n  }\n";
}

std::string MemberText(const MemberDescription& member) {
  const Parameter result = member.type.kind == Kind::None
                               ? Parameter{"", "nullptr"}
                               : Parameter{HeaderType(member.type) + "* Result", "Result"};
  std::string text = MethodText(member, member.isMethod ? "" : "get_", "Get", result);
  if (member.let)
    text += MethodText(member, member.type.kind == Kind::Object ? "putref_" : "put_", "Put",
                       ParameterOf(member.type, false, "NewValue"));
  return text;
}

std::string ObjectName(const ClassDescription& description) {
  return std::string(description.name) + "Object";
}

}  // namespace

std::string ComObjectBody(const ClassDescription& description) {
  const std::string name = ObjectName(description);
  std::string text = "// " + std::string(GeneratedNote) +
                     "\n#include \"DualObject.h\"\n#include \"Classes.h\"\n\nnamespace orve::com {\n\n"
                     "namespace {\n\nclass " +
                     name + " final : public DualObject<I" + std::string(description.name) +
                     "> {\n public:\n  using DualObject::DualObject;\n\n";
  for (const MemberDescription& member : description.members) text += MemberText(member);
  return text + "};\n\n}  // namespace\n\nObject* New_" + std::string(description.name) +
         "(const automation::ObjectReference& reference) {\n  return new " + name +
         "(reference);\n}\n\n}  // namespace orve::com\n";
}

std::string ComClassTable() {
  std::string functions;
  std::string rows;
  for (const ClassDescription* description : ComClasses()) {
    const std::string name(description->name);
    functions += "Object* New_" + name + "(const automation::ObjectReference& reference);\n";
    rows += "    {\"" + name + "\", &New_" + name + "},\n";
  }
  return "// " + std::string(GeneratedNote) +
         "\n#pragma once\n\n#include \"Object.h\"\n\nnamespace orve::com {\n\n" + functions +
         "\n/// Makes the COM object of a class; its count is 1.\nstruct ClassMaker {\n  std::string_view "
         "name;\n"
         "  Object* (*make)(const automation::ObjectReference& reference);\n};\n"
         "inline constexpr ClassMaker ClassMakers[] = {\n" +
         rows + "};\n\n}  // namespace orve::com\n";
}

}  // namespace orve::automation
