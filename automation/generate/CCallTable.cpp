// The table that lets a C program call any function by the names of class and member, with texts for
// arguments and result. It serves the tests that compare the doors; the helpers that it uses are theirs.
#include "Generate.h"

namespace orve::automation {

namespace {

std::string Argument(const Type& type, std::size_t index, const std::optional<Value>& missing) {
  const std::string at = "(call, " + std::to_string(index);
  switch (type.kind) {
    case Kind::Bool:
      return "bool_argument" + at + ", " + (missing && *missing->As<bool>() ? "true" : "false") + ")";
    case Kind::Int16:
      return "(int16_t)whole_argument" + at + ")";
    case Kind::Int32:
    case Kind::Enumeration:
      return "whole_argument" + at + ")";
    case Kind::Single:
      return "single_argument" + at + ")";
    case Kind::Date:
      return "double_argument" + at + ")";
    case Kind::Object:
      return "(" + CTypeName(type) + ")object_argument" + at + ")";
    case Kind::Record:
      return "record_argument_" + std::string(type.name) + at + ")";
    default:
      return "text_argument" + at + ")";
  }
}

std::vector<std::string> Arguments(const ClassDescription& description, const MemberDescription& member) {
  std::vector<std::string> arguments{"(orve_" + std::string(description.name) + ")call->handle"};
  for (std::size_t i = 0; i < member.arguments.size(); ++i)
    arguments.push_back(Argument(member.arguments[i].type, i, member.arguments[i].defaultValue));
  return arguments;
}

std::string OutText(const Type& type) {
  const std::string name(type.name);
  switch (type.kind) {
    case Kind::Bool:
      return "out_bool(call, result);";
    case Kind::Int16:
    case Kind::Int32:
    case Kind::Enumeration:
      return "out_whole(call, result);";
    case Kind::Single:
      return "out_single(call, result);";
    case Kind::Date:
      return "out_double(call, result);";
    case Kind::Object:
      return "out_object(call, result, \"" + name + "\");";
    case Kind::Record: {
      const bool owned = FindRecord(name)->fields.front().type.kind == Kind::Text;
      return "out_" + name + "(call, &result);" + (owned ? " orve_" + name + "_free(&result);" : "");
    }
    case Kind::RecordArray:
      return "out_raw(call, \"[\"); for (size_t i = 0; i < count; ++i) { if (i > 0) out_raw(call, \", \"); "
             "out_" +
             name + "(call, rows + i); } out_raw(call, \"]\"); orve_" + name + "_free_rows(rows, count);";
    default:
      return "out_raw(call, result); orve_free_text(result);";
  }
}

std::string FunctionName(const ClassDescription& description, std::string_view verb,
                         const MemberDescription& member) {
  return "call_" + std::string(verb) + "_" + std::string(description.name) + "_" + std::string(member.name);
}

std::string GetText(const ClassDescription& description, const MemberDescription& member) {
  std::string text =
      "static orve_error " + FunctionName(description, "get", member) + "(door_call* call) {\n";
  auto arguments = Arguments(description, member);
  if (member.type.kind == Kind::RecordArray) {
    text += "  " + CTypeName(member.type) + "* rows; size_t count;\n";
    arguments.insert(arguments.end(), {"&rows", "&count"});
  } else if (member.type.kind != Kind::None) {
    text += "  " + CTypeName(member.type) + " result;\n";
    arguments.emplace_back("&result");
  }
  const std::string call = CGetName(description, member) + "(" + Join(arguments, ", ") + ")";
  if (member.type.kind == Kind::None) return text + "  return " + call + ";\n}\n";
  return text + "  const orve_error error = " + call + ";\n  if (error == 0) { " + OutText(member.type) +
         " }\n  return error;\n}\n";
}

std::string LetText(const ClassDescription& description, const MemberDescription& member) {
  auto arguments = Arguments(description, member);
  arguments.push_back(Argument(member.type, member.arguments.size(), {}));
  return "static orve_error " + FunctionName(description, "let", member) + "(door_call* call) {\n  return " +
         CLetName(description, member) + "(" + Join(arguments, ", ") + ");\n}\n";
}

std::string RecordTexts(const RecordDescription& record) {
  const std::string name(record.name);
  std::string out = "static void out_" + name + "(door_call* call, const orve_" + name +
                    "* record) {\n  out_raw(call, \"{\");\n";
  for (const FieldDescription& field : record.fields) {
    if (&field != record.fields.data()) out += "  out_raw(call, \"; \");\n";
    const std::string access = "record->" + std::string(field.name);
    if (field.type.kind == Kind::Record)
      out += "  out_" + std::string(field.type.name) + "(call, &" + access + ");\n";
    else
      out += (field.type.kind == Kind::Text ? "  out_raw(call, " : "  out_single(call, ") + access + ");\n";
  }
  return out + "  out_raw(call, \"}\");\n}\n";
}

/// The record that a host gives, filled with two texts: lengths, and all else.
std::string FilledRecord(const RecordDescription& record) {
  const std::string name(record.name);
  std::string text = "static const orve_" + name + "* record_argument_" + name +
                     "(const door_call* call, int index) {\n  static orve_" + name + " record;\n";
  for (const FieldDescription& field : record.fields) {
    const std::string access = "  record." + std::string(field.name);
    if (field.type.kind == Kind::Text) {
      text += access + " = text_argument(call, index);\n";
      continue;
    }
    for (const FieldDescription& inner : FindRecord(field.type.name)->fields)
      text += access + "." + std::string(inner.name) + " = text_argument(call, index" +
              (inner.name == "Zone_Dimensions" ? " + 1" : "") + ");\n";
  }
  return text + "  return &record;\n}\n";
}

}  // namespace

std::string CCallTable() {
  std::string text = "/* " + std::string(GeneratedNote) + " */\n";
  for (const RecordDescription& record : Records()) text += RecordTexts(record);
  text += FilledRecord(*FindRecord("ExternalPressure"));
  std::string rows = "static const door_entry door_entries[] = {\n";
  std::string objects =
      "static orve_error fetch_object(orve_clsCurrentCase root, const char* name, const void** object) {\n";
  for (const ClassDescription* description : Classes()) {
    for (const MemberDescription& member : description->members) {
      text += GetText(*description, member);
      if (member.let) text += LetText(*description, member);
      rows += "  {\"" + std::string(description->name) + "\", \"" + std::string(member.name) + "\", " +
              FunctionName(*description, "get", member) + ", " +
              (member.let ? FunctionName(*description, "let", member) : "NULL") + "},\n";
      if (member.type.kind != Kind::Object) continue;
      const std::string type = CTypeName(member.type);
      objects +=
          "  if (strcmp(name, \"" + std::string(member.type.name) + "\") == 0) {\n    " + type +
          " found;\n    const orve_error error = " + CGetName(*description, member) +
          "(root, &found);\n    *object = error == 0 ? (const void*)found : NULL;\n    return error;\n  }\n";
    }
  }
  return text + rows + "};\n" + objects + "  return 424;\n}\n";
}

}  // namespace orve::automation
