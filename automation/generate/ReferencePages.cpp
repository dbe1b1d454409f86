#include "Generate.h"

namespace orve::automation {

namespace {

std::string TypeText(const Type& type) {
  switch (type.kind) {
    case Kind::None:
      return "";
    case Kind::Bool:
      return "bool";
    case Kind::Int16:
      return "16-bit integer";
    case Kind::Int32:
      return "32-bit integer";
    case Kind::Single:
      return "32-bit float";
    case Kind::Date:
      return "date";
    case Kind::Text:
      return "text";
    case Kind::Object:
      return "[" + std::string(type.name) + "](" + std::string(type.name) + ".md)";
    case Kind::RecordArray:
      return "array of [" + std::string(type.name) + "](types.md#" + std::string(type.name) + ")";
    case Kind::Enumeration:
    case Kind::Record:
      break;
  }
  return "[" + std::string(type.name) + "](types.md#" + std::string(type.name) + ")";
}

std::string ArgumentsText(const std::vector<ArgumentDescription>& arguments) {
  std::vector<std::string> parts;
  for (const ArgumentDescription& argument : arguments) {
    std::string part = std::string(argument.name) + ": " + TypeText(argument.type);
    if (argument.defaultValue) part += " = " + TextOf(*argument.defaultValue);
    parts.push_back(part);
  }
  return Join(parts, ", ");
}

std::string AccessText(const MemberDescription& member) {
  if (member.isMethod) return "method";
  if (!member.let) return "get";
  return member.type.kind == Kind::Object ? "get, set" : "get, let";
}

/// The page's anchors keep a name as it stands.
std::string Anchor(std::string_view name) {
  return "<a id=\"" + std::string(name) + "\"></a>\n\n";
}

}  // namespace

std::string ReferenceClassPage(const ClassDescription& description) {
  const std::string name(description.name);
  std::string text = "<!-- " + std::string(GeneratedNote) + " -->\n# " + name + "\n\n" +
                     std::string(description.help) + ".\n\n";
  text +=
      description.create != nullptr ? "A host can create it.\n\n" : "Reached through `clsCurrentCase`.\n\n";
  text +=
      "| No. | Member | Access | Arguments | Type | Unit | Meaning | Range | Errors | Clause |\n"
      "|---|---|---|---|---|---|---|---|---|---|\n";
  for (const MemberDescription& member : description.members)
    text += "| " + std::to_string(member.number) + " | `" + std::string(member.name) + "` | " +
            AccessText(member) + " | " + ArgumentsText(member.arguments) + " | " + TypeText(member.type) +
            " | " + std::string(member.unit) + " | " + std::string(member.help) + " | " + RangeText(member) +
            " | " + std::string(member.errors) + " | " + std::string(member.clause) + " |\n";
  if (description.events.empty()) return text;
  text += "\n## Events\n\n| No. | Event | Arguments | Raised |\n|---|---|---|---|\n";
  for (const EventDescription& event : description.events)
    text += "| " + std::to_string(event.number) + " | `" + std::string(event.name) + "` | " +
            ArgumentsText(event.arguments) + " | " + std::string(event.help) + " |\n";
  return text;
}

std::string ReferenceTypesPage() {
  std::string text = "<!-- " + std::string(GeneratedNote) + " -->\n# Enumerations and records\n\n";
  for (const EnumerationDescription& enumeration : Enumerations()) {
    text += Anchor(enumeration.name) + "## " + std::string(enumeration.name) + "\n\n" +
            std::string(enumeration.help) + ".\n\n| Value | Name in code | Published text |\n|---|---|---|\n";
    for (const Enumerator& enumerator : enumeration.enumerators)
      text += "| " + std::to_string(enumerator.value) + " | `" + std::string(enumerator.name) + "` | `" +
              std::string(enumerator.published) + "` |\n";
    text += "\n";
  }
  for (const RecordDescription& record : Records()) {
    text += Anchor(record.name) + "## " + std::string(record.name) + "\n\n" + std::string(record.help) +
            ".\n\n| Field | Type |\n|---|---|\n";
    for (const FieldDescription& field : record.fields)
      text += "| `" + std::string(field.name) + "` | " + TypeText(field.type) + " |\n";
    text += "\n";
  }
  text.pop_back();
  return text;
}

std::string ReferenceIndex() {
  std::string text =
      "<!-- " + std::string(GeneratedNote) +
      " -->\n# Reference\n\nThe object model, the same through every binding. An optional argument "
      "of -1 stands for the object's own\nselection of that name. Building areas are numbered 0 to 2, faces "
      "0 to 3, "
      "wind areas 0 to 5, wind sectors 0 to 11, and\nzones from `ZoneIndexFrom` to `ZoneIndexTo`.\n\nWhere "
      "*Errors* is "
      "empty a member raises none of its own. Bindings that convert their arguments add 13 for a wrong type "
      "and\n6 for a "
      "number that doesn't fit; every let may bring the error of a handler.\n\n";
  for (const ClassDescription* description : Classes())
    text += "- [" + std::string(description->name) + "](" + std::string(description->name) +
            ".md): " + std::string(description->help) + "\n";
  return text + "- [Enumerations and records](types.md)\n";
}

}  // namespace orve::automation
