#include "Generate.h"

namespace orve::automation {

namespace {

std::string Head(std::string_view includes) {
  return "// " + std::string(GeneratedNote) + "\n" + std::string(includes) + "\n";
}

/// A C argument as the C++ argument that it stands for.
std::string CppArgument(const ArgumentDescription& argument) {
  const std::string name(argument.name);
  const std::string type(argument.type.name);
  switch (argument.type.kind) {
    case Kind::Enumeration:
      return "static_cast<orve::" + type + ">(" + name + ")";
    case Kind::Text:
      return "TextArgument(" + name + ", \"" + name + "\")";
    case Kind::Record:
      return "FromC(RecordArgument(" + name + ", \"" + name + "\"))";
    case Kind::Object:
      return "ObjectOrNothing<orve::" + type + ">(" + name + ")";
    default:
      return name;
  }
}

std::string CallText(const MemberDescription& member, bool withValue) {
  std::vector<std::string> arguments;
  for (const ArgumentDescription& argument : member.arguments) arguments.push_back(CppArgument(argument));
  if (withValue) arguments.push_back(CppArgument({"value", member.type, {}}));
  return "self->" + std::string(member.name) + "(" + Join(arguments, ", ") + ")";
}

std::string FunctionText(const ClassDescription& description, const std::string& declaration,
                         const std::string& check, const std::string& statement) {
  return declaration + " {\n  const orve::LibraryFloatState state;\n  try {\n" + check +
         "    const auto self = ObjectOf<orve::" + std::string(description.name) + ">(object);\n    " +
         statement + ";\n    return Succeeded();\n  } catch (...) {\n    return Failed();\n  }\n}\n\n";
}

std::string GetText(const ClassDescription& description, const MemberDescription& member) {
  const std::string call = CallText(member, false);
  std::string check = "    RequireResult(result);\n";
  std::string statement = "Give(result, " + call + ")";
  if (member.type.kind == Kind::None) {
    check.clear();
    statement = call;
  } else if (member.type.kind == Kind::RecordArray) {
    check = "    RequireResult(rows);\n    RequireResult(count);\n";
    statement = "GiveRows(rows, count, " + call + ")";
  } else if (member.type.kind == Kind::Object) {
    statement = "GiveObject(result, " + call + ")";
  }
  return FunctionText(description, CGetDeclaration(description, member), check, statement);
}

std::string EventText(const ClassDescription& description, const EventDescription& event) {
  std::string parameters;
  std::string arguments;
  for (const ArgumentDescription& argument : event.arguments) {
    const bool isText = argument.type.kind == Kind::Text;
    parameters +=
        (isText ? "const std::string&" : CTypeName(argument.type)) + " " + std::string(argument.name);
    arguments += std::string(argument.name) + (isText ? ".c_str(), " : ", ");
  }
  return FunctionText(description, CConnectDeclaration(description, event),
                      "    RequireResult(result);\n    RequireCallback(handler != nullptr);\n",
                      "GiveConnection(result, self->" + std::string(event.name) +
                          ".Connect([handler, user](" + parameters +
                          ") { RaiseFromCallback(CallHost(handler, " + arguments + "user)); }))");
}

std::string FreeText(const RecordDescription& record) {
  const std::string type = "orve_" + std::string(record.name);
  std::string text = "void " + type + "_free(" + type + "* record) {\n  if (record == nullptr) return;\n";
  for (const FieldDescription& field : record.fields) {
    const std::string name = "record->" + std::string(field.name);
    text += field.type.kind == Kind::Text ? "  FreeText(" + name + ");\n"
                                          : "  " + CTypeName(field.type) + "_free(&" + name + ");\n";
  }
  return text + "}\n\nvoid " + type + "_free_rows(" + type +
         "* rows, size_t count) {\n  if (rows == nullptr) return;\n  for (size_t i = 0; i < count; ++i) " +
         type + "_free(rows + i);\n  std::free(rows);\n}\n\n";
}

std::string ConversionTexts(const RecordDescription& record) {
  const std::string name(record.name);
  std::string text = "void Fill(orve_" + name + "& to, const orve::" + name + "& from) {\n";
  std::string back = "orve::" + name + " FromC(const orve_" + name + "& from) {\n  orve::" + name + " to;\n";
  for (const FieldDescription& field : record.fields) {
    const std::string fieldName(field.name);
    if (field.type.kind == Kind::Record) {
      text += "  Fill(to." + fieldName + ", from." + fieldName + ");\n";
      back += "  to." + fieldName + " = FromC(from." + fieldName + ");\n";
    } else if (field.type.kind == Kind::Text) {
      text += "  to." + fieldName + " = NewText(from." + fieldName + ");\n";
      back += "  to." + fieldName + " = TextOrEmpty(from." + fieldName + ");\n";
    } else {
      text += "  to." + fieldName + " = from." + fieldName + ";\n";
      back += "  to." + fieldName + " = from." + fieldName + ";\n";
    }
  }
  return text + "}\n\n" + back + "  return to;\n}\n\n";
}

bool HasTexts(const RecordDescription& record) {
  return record.fields.front().type.kind == Kind::Text;
}

}  // namespace

std::string CClassBody(const ClassDescription& description) {
  const std::string name(description.name);
  std::string text = Head(
      "#include \"Records.h\"\n\n"
      "using namespace orve::c;\n");
  if (description.create != nullptr)
    text += CDeclarations(description).front() +
            " {\n  const orve::LibraryFloatState state;\n  try {\n    RequireResult(result);\n    "
            "GiveObject(result, Create<orve::" +
            name + ">());\n    return Succeeded();\n  } catch (...) {\n    return Failed();\n  }\n}\n\n";
  for (const MemberDescription& member : description.members) {
    text += GetText(description, member);
    if (!member.let) continue;
    text += FunctionText(description, CLetDeclaration(description, member), "", CallText(member, true));
  }
  for (const EventDescription& event : description.events) text += EventText(description, event);
  text.pop_back();
  return text;
}

std::string CTypesHeader() {
  std::string text = "// " + std::string(GeneratedNote) +
                     "\n#pragma once\n\n#include \"Guard.h\"\n\nnamespace orve::c {\n\n";
  for (const RecordDescription& record : Records()) {
    const std::string name(record.name);
    text += "void Fill(orve_" + name + "& to, const orve::" + name + "& from);\norve::" + name +
            " FromC(const orve_" + name + "& from);\n";
    if (HasTexts(record))
      text += "inline void FreeRecord(orve_" + name + "& record) { orve_" + name + "_free(&record); }\n";
    else
      text += "inline void FreeRecord(orve_" + name + "&) {}\n";
  }
  return text + "\n}  // namespace orve::c\n";
}

std::string CTypesBody() {
  std::string text = Head("#include \"Types.h\"\n\n#include <cstdlib>\n\nusing namespace orve::c;\n");
  for (const EnumerationDescription& enumeration : Enumerations()) {
    const std::string name(enumeration.name);
    text += "const char* orve_" + name + "_text(orve_" + name +
            " value) { return StaticText(PublishedText(static_cast<orve::" + name + ">(value))); }\n";
  }
  text += "\n";
  for (const RecordDescription& record : Records())
    if (HasTexts(record)) text += FreeText(record);
  text += "namespace orve::c {\n\n";
  for (const RecordDescription& record : Records()) text += ConversionTexts(record);
  return text + "}  // namespace orve::c\n";
}

}  // namespace orve::automation
