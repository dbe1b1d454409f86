// What the documents and the bindings say of a member.
#include <algorithm>

#include "Description.h"

namespace orve::automation {

namespace {

/// "0 to 11", from the enumeration's values.
std::string EnumerationRange(std::string_view name) {
  const auto& enumerators = FindEnumeration(name)->enumerators;
  const auto [least, greatest] = std::minmax_element(
      enumerators.begin(), enumerators.end(), [](const auto& a, const auto& b) { return a.value < b.value; });
  return std::to_string(least->value) + " to " + std::to_string(greatest->value);
}

std::string TypeRange(const Type& type) {
  switch (type.kind) {
    case Kind::Bool:
      return "True or False";
    case Kind::Int16:
      return "-32768 to 32767";
    case Kind::Enumeration:
      return EnumerationRange(type.name) + ", a member of " + std::string(type.name);
    case Kind::Text:
      return "any text";
    case Kind::Record:
    case Kind::RecordArray:
    case Kind::Object:
    case Kind::None:
      return {};
    case Kind::Int32:
    case Kind::Single:
    case Kind::Date:
      break;
  }
  return "any number";
}

std::string ArgumentRange(const ArgumentDescription& argument) {
  if (argument.type.kind == Kind::Enumeration) return EnumerationRange(argument.type.name);
  if (argument.name == "ZoneIndex") return "first to last zone of the face";
  if (argument.name == "CantileverZoneIndex") return "CantileverZoneIndexFrom to CantileverZoneIndexTo";
  if (argument.name == "Index") return "1 to Count";
  return TypeRange(argument.type);
}

/// An argument that the object's own selection stands in for.
bool IsSelection(const ArgumentDescription& argument) {
  return argument.defaultValue && argument.defaultValue->As<std::int32_t>();
}

}  // namespace

std::string MemberDescription::Summary() const {
  return clause.empty() ? std::string(help) : std::string(help) + " (" + std::string(clause) + ")";
}

std::string RangeText(const MemberDescription& member) {
  const bool result = member.isMethod || member.ReadOnly();
  if (!member.range.empty()) return std::string(member.range);
  // A result that can be anything needs no line.
  if (result && member.type.kind != Kind::Bool && member.type.kind != Kind::Enumeration) return {};
  return TypeRange(member.type);
}

std::string ArgumentRangesText(const MemberDescription& member) {
  std::string text;
  bool selection = false;
  for (const ArgumentDescription& argument : member.arguments) {
    if (!text.empty()) text += ", ";
    text += std::string(argument.name) + " " + ArgumentRange(argument);
    selection = selection || IsSelection(argument);
  }
  return selection ? text + "; -1 or left out: the object's own" : text;
}

std::vector<std::string> DocumentationOf(const MemberDescription& member) {
  std::string first(member.help);
  if (!member.unit.empty() && member.unit != "path") first += ", " + std::string(member.unit);
  std::vector<std::string> lines{first + "."};
  const auto add = [&lines](std::string_view label, std::string_view text) {
    if (!text.empty()) lines.push_back(std::string(label) + ": " + std::string(text) + ".");
  };
  add("Range", RangeText(member));
  add("Arguments", ArgumentRangesText(member));
  add("Errors", member.errors);
  add("BS 6399-2", member.clause);
  return lines;
}

}  // namespace orve::automation
