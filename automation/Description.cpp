#include "Description.h"

#include <algorithm>

#include "Describe.h"

namespace orve::automation {

namespace {

char LowerCase(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool NameLess(std::string_view a, std::string_view lowerCase) {
  return std::lexicographical_compare(a.begin(), a.end(), lowerCase.begin(), lowerCase.end(),
                                      [](char x, char y) { return LowerCase(x) < LowerCase(y); });
}

template <class Descriptions>
auto FindNamed(const Descriptions& descriptions, std::string_view name) -> decltype(descriptions.data()) {
  for (const auto& description : descriptions)
    if (SameName(description.name, name)) return &description;
  return nullptr;
}

}  // namespace

bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

const MemberDescription* ClassDescription::Find(std::string_view memberName) const {
  const auto found = std::lower_bound(
      byName.begin(), byName.end(), memberName,
      [](const auto& entry, std::string_view wanted) { return NameLess(entry.first, wanted); });
  if (found == byName.end() || !SameName(found->first, memberName)) return nullptr;
  return &members[found->second];
}

const MemberDescription* ClassDescription::Find(int memberNumber) const {
  for (const MemberDescription& member : members)
    if (member.number == memberNumber) return &member;
  return nullptr;
}

const EventDescription* ClassDescription::FindEvent(std::string_view eventName) const {
  return FindNamed(events, eventName);
}

const std::vector<const ClassDescription*>& Classes() {
  static const std::vector<const ClassDescription*> classes{
      &DescribeCurrentCase(),          &DescribeBuildingDimensions(),   &DescribeDynamicPressure(),
      &DescribeExternalCoefficients(), &DescribeInternalCoefficients(), &DescribeOverallAppliedLoads(),
      &DescribeCantileverWindLoads(),  &DescribeWindCaseList(),
  };
  return classes;
}

const EnumerationDescription* FindEnumeration(std::string_view name) {
  return FindNamed(Enumerations(), name);
}

const RecordDescription* FindRecord(std::string_view name) {
  return FindNamed(Records(), name);
}

const ClassDescription* FindClass(std::string_view name) {
  for (const ClassDescription* description : Classes())
    if (SameName(description->name, name)) return description;
  return nullptr;
}

Value ReadRecord(const RecordDescription& description, const void* record) {
  RecordValue value{&description, {}};
  for (const FieldDescription& field : description.fields)
    value.fields.push_back(field.read(field.member, record));
  return value;
}

void WriteRecord(const RecordDescription& description, void* record, const Value& value) {
  const auto& fields = value.As<RecordValue>()->fields;
  for (std::size_t i = 0; i < description.fields.size(); ++i) {
    const FieldDescription& field = description.fields[i];
    Value storage;
    field.write(field.member, record, Coerce(fields[i], field.type, storage));
  }
}

std::vector<ArgumentDescription> DescribeArguments(std::string_view member, const ArgumentNames& names,
                                                   const std::vector<Type>& types) {
  if (names.size() != types.size())
    throw std::logic_error(std::string(member) + ": the number of argument names is wrong");
  std::vector<ArgumentDescription> arguments;
  for (std::size_t i = 0; i < names.size(); ++i) {
    ArgumentDescription argument{names[i].name, types[i], {}, names[i].byReference};
    if (names[i].defaultValue) {
      Value storage;
      argument.defaultValue = Coerce(*names[i].defaultValue, types[i], storage);
    } else if (i > 0 && arguments.back().defaultValue) {
      throw std::logic_error(std::string(member) + ": an optional argument stands before one that isn't");
    }
    arguments.push_back(std::move(argument));
  }
  return arguments;
}

void IndexMembers(ClassDescription& description) {
  for (std::size_t i = 0; i < description.members.size(); ++i) {
    std::string name(description.members[i].name);
    std::transform(name.begin(), name.end(), name.begin(), LowerCase);
    description.byName.emplace_back(std::move(name), i);
  }
  std::sort(description.byName.begin(), description.byName.end());
}

}  // namespace orve::automation
