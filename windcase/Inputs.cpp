#include "Inputs.h"

#include <algorithm>
#include <orve3_bs6399_2.h>

#include "Failure.h"
#include "common/NumberText.h"

namespace windcase {

using namespace orve::automation;

namespace {

[[noreturn]] void RaiseUsage(const std::string& text) {
  throw Failure(ExitCode::Usage, text);
}

bool SameWord(std::string_view a, std::string_view b) {
  return SameName(orve::TrimBlanks(a), orve::TrimBlanks(b));
}

// The published text, the enumerator's name, or that without the prefix of its kind ("Roof" for "waRoof").
bool Names(const Enumerator& enumerator, std::string_view text) {
  constexpr std::size_t prefix = 2;
  if (SameWord(enumerator.published, text) || SameWord(enumerator.name, text)) return true;
  const std::string_view name = enumerator.name;
  return name.size() > prefix && name[0] >= 'a' && name[0] <= 'z' && SameWord(name.substr(prefix), text);
}

std::string Choices(const EnumerationDescription& enumeration) {
  std::string text;
  for (const Enumerator& enumerator : enumeration.enumerators)
    text += (text.empty() ? "" : ", ") + std::to_string(enumerator.value) + " \"" +
            std::string(orve::TrimBlanks(enumerator.published)) + "\"";
  return text;
}

// A number stays one, also beyond the enumeration, since the library takes any.
Value EnumerationValue(const Type& type, const std::string& text, const std::string& what) {
  if (orve::IsNumericText(text)) return text;
  const EnumerationDescription& enumeration = *FindEnumeration(type.name);
  for (const Enumerator& enumerator : enumeration.enumerators)
    if (Names(enumerator, text)) return enumerator.value;
  RaiseUsage(what + ": \"" + text + "\" is none of " + Choices(enumeration));
}

Value ValueOfText(const Type& type, const std::string& text, const std::string& what) {
  if (type.kind == Kind::Enumeration) return EnumerationValue(type, text, what);
  return text;
}

// The values of one index: those of the text, or all of its enumeration.
std::vector<Value> IndexValues(const ArgumentDescription& argument, const std::string& text,
                               const std::string& key) {
  if (text != "*") return {ValueOfText(argument.type, text, key)};
  if (argument.type.kind != Kind::Enumeration)
    RaiseUsage(key + ": " + std::string(argument.name) + " must be a number, not *");
  std::vector<Value> values;
  for (const Enumerator& enumerator : FindEnumeration(argument.type.name)->enumerators)
    values.push_back(enumerator.value);
  return values;
}

std::string Form(const MemberDescription& member) {
  std::string text(member.name);
  for (const ArgumentDescription& argument : member.arguments)
    text += (&argument == member.arguments.data() ? "(" : ", ") + std::string(argument.name);
  return member.arguments.empty() ? text : text + ")";
}

// One coercion for the call and for the comparison with what was kept.
Value Coerced(const Value& value, const Type& type, const std::string& what) {
  try {
    Value storage;
    return Coerce(value, type, storage);
  } catch (const orve::Error& error) {
    RaiseUsage(what + ": \"" + TextOf(value) + "\" doesn't fit: " + error.what());
  }
}

// Of the root object's own values only the description is stored; the host's design fills a new case.
bool IsRootInput(const MemberDescription& member, bool newCase) {
  return member.name == "Description" || (newCase && member.name.substr(0, 7) == "Parent_");
}

std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const bool same = SameName(a.substr(i - 1, 1), b.substr(j - 1, 1));
      const std::size_t changed = diagonal + (same ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, changed});
    }
  }
  return row[b.size()];
}

std::vector<std::string> SplitIndices(std::string_view text) {
  std::vector<std::string> indices;
  while (true) {
    const std::size_t comma = std::min(text.find(','), text.size());
    indices.emplace_back(orve::TrimBlanks(text.substr(0, comma)));
    if (comma == text.size()) return indices;
    text.remove_prefix(comma + 1);
  }
}

}  // namespace

std::string InputKey::Text(bool withObject) const {
  std::string text = withObject && !object.empty() ? object + "." + name : name;
  for (std::size_t i = 0; i < indices.size(); ++i) text += (i == 0 ? "(" : ", ") + indices[i];
  return indices.empty() ? text : text + ")";
}

InputKey ParseKey(std::string_view text) {
  text = orve::TrimBlanks(text);
  InputKey key;
  const std::size_t bracket = text.find('(');
  std::string_view name = text.substr(0, bracket);
  if (bracket != std::string_view::npos) {
    if (text.back() != ')') RaiseUsage("\"" + std::string(text) + "\": the closing bracket is missing");
    key.indices = SplitIndices(text.substr(bracket + 1, text.size() - bracket - 2));
  }
  const std::size_t point = name.find('.');
  if (point != std::string_view::npos) {
    key.object = orve::TrimBlanks(name.substr(0, point));
    name.remove_prefix(point + 1);
  }
  key.name = orve::TrimBlanks(name);
  if (key.name.empty()) RaiseUsage("\"" + std::string(text) + "\" isn't the name of an input");
  return key;
}

Assignment ParseAssignment(std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos)
    RaiseUsage("\"" + std::string(text) + "\" isn't KEY=VALUE, as in Roof_Pitch=15");
  return {ParseKey(text.substr(0, equals)), std::string(text.substr(equals + 1))};
}

Inputs::Inputs(orve::clsCurrentCase& windCase)
    : m_root{windCase.shared_from_this(), FindClass("clsCurrentCase")} {}

std::vector<Inputs::Owner> Inputs::Owners() const {
  std::vector<Owner> owners{{"", m_root}};
  for (const MemberDescription& member : m_root.type->members)
    if (member.type.kind == Kind::Object && !member.isMethod)
      owners.push_back({std::string(member.name), *Invoke(m_root, member, {}).As<ObjectReference>()});
  return owners;
}

std::string Inputs::Nearest(std::string_view name) const {
  std::string nearest;
  std::size_t least = name.size() / 2 + 1;
  for (const Owner& owner : Owners())
    for (const MemberDescription& member : owner.object.type->members) {
      if (!member.let || member.type.kind == Kind::Object) continue;
      const std::size_t distance = Distance(name, member.name);
      if (distance >= least) continue;
      least = distance;
      nearest = member.name;
    }
  return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

std::vector<Input> Inputs::Find(const InputKey& key) const {
  std::vector<Input> found;
  std::string owners;
  for (const Owner& owner : Owners()) {
    if (!key.object.empty() && !SameName(key.object, owner.name)) continue;
    const MemberDescription* member = owner.object.type->Find(key.name);
    if (member == nullptr || !member->let || member->type.kind == Kind::Object) continue;
    if (!found.empty()) owners += " or ";
    owners += owner.name + "." + std::string(member->name);
    found.push_back({owner.object, member, {}, {owner.name, std::string(member->name), {}}});
  }
  if (found.empty()) RaiseUsage("There is no input " + key.Text(true) + Nearest(key.name));
  if (found.size() > 1) RaiseUsage(key.name + " isn't clear: say " + owners);

  const Input input = found.front();
  if (input.member->arguments.size() != key.indices.size())
    RaiseUsage(key.Text(true) + ": the input is " + Form(*input.member) +
               (input.member->arguments.empty() ? "" : ", with a number, a text or * for each index"));
  std::vector<Input> inputs{input};
  for (std::size_t i = 0; i < key.indices.size(); ++i) {
    std::vector<Input> longer;
    for (const Input& shorter : inputs)
      for (const Value& value : IndexValues(input.member->arguments[i], key.indices[i], key.Text(false))) {
        longer.push_back(shorter);
        longer.back().indices.push_back(Coerced(value, input.member->arguments[i].type, key.Text(false)));
        longer.back().key.indices.push_back(TextOf(longer.back().indices.back()));
      }
    inputs = longer;
  }
  return inputs;
}

std::optional<InputKey> Inputs::StoredKey(const std::string& section, std::string_view text) const {
  try {
    InputKey key = ParseKey(text);
    key.object = section;
    for (const Owner& owner : Owners()) {
      if (!SameName(owner.name, section)) continue;
      const MemberDescription* member = owner.object.type->Find(key.name);
      if (member != nullptr && member->arguments.size() == key.indices.size()) return key;
    }
  } catch (const Failure&) {  // not even the form of a key
  }
  return std::nullopt;
}

std::string Inputs::Read(const Input& input) const {
  const Value value = Invoke(input.object, *input.member, input.indices);
  if (input.member->type.kind != Kind::Enumeration) return TextOf(value);
  for (const Enumerator& enumerator : FindEnumeration(input.member->type.name)->enumerators)
    if (enumerator.value == *value.As<std::int32_t>())
      return std::string(orve::TrimBlanks(enumerator.published));
  return TextOf(value);
}

void Inputs::Assign(const Input& input, const std::string& text, bool newCase) const {
  const std::string name = input.key.Text(false);
  const bool ofRoot = input.object.object == m_root.object;
  if (ofRoot && !IsRootInput(*input.member, newCase)) RaiseUsage(name + " isn't an input of a case");
  const Value wanted = Coerced(ValueOfText(input.member->type, text, name), input.member->type, name);

  auto& root = *static_cast<orve::clsCurrentCase*>(m_root.object.get());
  const std::string before = Read(input);
  root.IsDirty(false);
  orve::automation::Assign(input.object, *input.member, input.indices, wanted);
  const std::string after = Read(input);
  // What a case file doesn't hold, as a selection, doesn't make the case dirty.
  if (!ofRoot && before != after && !root.IsDirty()) RaiseUsage(name + " isn't stored in a case");
  if (TextOf(Invoke(input.object, *input.member, input.indices)) != TextOf(wanted))
    RaiseUsage(name + " stays " + after + ": what it depends on doesn't allow " + text +
               " (values entered by hand count while ManualResults is True)");
  // A site that a reference names is loaded at the next read of a site value, and would then write over the
  // inputs that follow.
  if (input.member->name == "GridReference") root.DynamicPressure()->FetchesToSea(orve::WindSectors(0));
}

}  // namespace windcase
