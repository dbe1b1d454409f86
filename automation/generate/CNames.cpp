#include "Generate.h"

namespace orve::automation {

namespace {

std::string ArgumentDeclaration(const ArgumentDescription& argument) {
  const std::string name(argument.name);
  if (argument.type.kind == Kind::Text) return "const char* " + name;
  if (argument.type.kind == Kind::Record) return "const " + CTypeName(argument.type) + "* " + name;
  return CTypeName(argument.type) + " " + name;
}

std::string ResultDeclaration(const Type& type) {
  if (type.kind == Kind::RecordArray) return CTypeName(type) + "** rows, size_t* count";
  return CTypeName(type) + "* result";
}

std::string Declaration(const ClassDescription& description, const std::string& name,
                        const std::vector<std::string>& parameters) {
  return "orve_error " + name + "(orve_" + std::string(description.name) + " object" +
         (parameters.empty() ? "" : ", ") + Join(parameters, ", ") + ")";
}

std::vector<std::string> Parameters(const MemberDescription& member) {
  std::vector<std::string> parameters;
  for (const ArgumentDescription& argument : member.arguments)
    parameters.push_back(ArgumentDeclaration(argument));
  return parameters;
}

}  // namespace

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string text;
  for (const std::string& part : parts) {
    if (&part != parts.data()) text += separator;
    text += part;
  }
  return text;
}

std::string CTypeName(const Type& type) {
  switch (type.kind) {
    case Kind::None:
      return "void";
    case Kind::Bool:
      return "bool";
    case Kind::Int16:
      return "int16_t";
    case Kind::Int32:
      return "int32_t";
    case Kind::Single:
      return "float";
    case Kind::Date:
      return "double";
    case Kind::Text:
      return "char*";
    case Kind::Enumeration:
    case Kind::Object:
    case Kind::Record:
    case Kind::RecordArray:
      break;
  }
  return "orve_" + std::string(type.name);
}

std::string CFunctionName(const ClassDescription& description, std::string_view verb,
                          std::string_view member) {
  std::string name = "orve_" + std::string(description.name) + "_";
  if (!verb.empty()) name += std::string(verb) + "_";
  return name + std::string(member);
}

std::string CGetName(const ClassDescription& description, const MemberDescription& member) {
  return CFunctionName(description, member.isMethod ? "" : "get", member.name);
}

std::string CLetName(const ClassDescription& description, const MemberDescription& member) {
  return CFunctionName(description, member.type.kind == Kind::Object ? "set" : "let", member.name);
}

std::string CGetDeclaration(const ClassDescription& description, const MemberDescription& member) {
  auto parameters = Parameters(member);
  if (member.type.kind != Kind::None) parameters.push_back(ResultDeclaration(member.type));
  return Declaration(description, CGetName(description, member), parameters);
}

std::string CLetDeclaration(const ClassDescription& description, const MemberDescription& member) {
  auto parameters = Parameters(member);
  parameters.push_back(ArgumentDeclaration({"value", member.type, {}}));
  return Declaration(description, CLetName(description, member), parameters);
}

std::string CConnectDeclaration(const ClassDescription& description, const EventDescription& event) {
  const std::string handler = "orve_" + std::string(description.name) + "_" + std::string(event.name);
  return Declaration(description, CFunctionName(description, "connect", event.name),
                     {handler + " handler", "void* user", "orve_connection* result"});
}

std::vector<std::string> CDeclarations(const ClassDescription& description) {
  std::vector<std::string> declarations;
  if (description.create != nullptr)
    declarations.push_back("orve_error " + CFunctionName(description, "", "create") + "(orve_" +
                           std::string(description.name) + "* result)");
  for (const MemberDescription& member : description.members) {
    declarations.push_back(CGetDeclaration(description, member));
    if (member.let) declarations.push_back(CLetDeclaration(description, member));
  }
  for (const EventDescription& event : description.events)
    declarations.push_back(CConnectDeclaration(description, event));
  return declarations;
}

}  // namespace orve::automation
