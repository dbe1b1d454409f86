#include "Dispatch.h"

#include <array>
#include <exception>
#include <new>

#include "common/Error.h"

namespace orve::automation {

namespace {

constexpr std::size_t MaxArguments = 9;

[[noreturn]] void Raise(DispatchError number, const std::string& text) {
  throw Error(static_cast<int>(number), text);
}

/// The object, held for as long as the call lasts.
std::shared_ptr<void> RequireObject(const ObjectReference& object) {
  if (!object.object) throw Error(ErrorNumber::ObjectNotSet, "Object is not set");
  return object.object;
}

std::string FullName(const ObjectReference& object, const MemberDescription& member) {
  return std::string(object.type->name) + "." + std::string(member.name);
}

/// The arguments of one call in their declared order, converted to their types.
class ArgumentRow {
 public:
  ArgumentRow(const ObjectReference& object, const MemberDescription& member)
      : m_object(object), m_member(member) {}

  void Fill(std::span<const Value> positional, std::span<const NamedArgument> named) {
    const std::size_t count = m_member.arguments.size();
    if (positional.size() > count)
      Raise(DispatchError::WrongArgumentCount,
            FullName(m_object, m_member) + " takes " + std::to_string(count) + " arguments at most");
    for (std::size_t i = 0; i < positional.size(); ++i) m_row[i] = &positional[i];
    for (const NamedArgument& argument : named) Place(argument);
    for (std::size_t i = 0; i < count; ++i) Settle(i);
  }

  /// The value of a let, behind the index arguments.
  void AppendValue(const Value& value) {
    const std::size_t last = m_member.arguments.size();
    m_row[last] = &Convert(value, m_member.type, "value", last);
  }

  const Value* const* Row() const { return m_row.data(); }

 private:
  void Place(const NamedArgument& argument) {
    for (std::size_t i = 0; i < m_member.arguments.size(); ++i) {
      if (!SameName(m_member.arguments[i].name, argument.name)) continue;
      if (m_row[i] != nullptr)
        Raise(DispatchError::WrongArgumentCount,
              FullName(m_object, m_member) + ": argument " + std::string(argument.name) + " is given twice");
      m_row[i] = &argument.value;
      return;
    }
    Raise(DispatchError::NamedArgumentNotFound,
          FullName(m_object, m_member) + " has no argument " + std::string(argument.name));
  }

  void Settle(std::size_t i) {
    const ArgumentDescription& argument = m_member.arguments[i];
    if (m_row[i] != nullptr && !m_row[i]->IsEmpty()) {
      m_row[i] = &Convert(*m_row[i], argument.type, argument.name, i);
    } else if (argument.defaultValue) {
      m_row[i] = &*argument.defaultValue;
    } else {
      Raise(DispatchError::ArgumentNotOptional,
            FullName(m_object, m_member) + ": argument " + std::string(argument.name) + " isn't optional");
    }
  }

  const Value& Convert(const Value& value, const Type& type, std::string_view name, std::size_t i) {
    try {
      return Coerce(value, type, m_converted[i]);
    } catch (const Error& error) {
      throw Error(error.Number(),
                  FullName(m_object, m_member) + ", " + std::string(name) + ": " + error.what());
    }
  }

  const ObjectReference& m_object;
  const MemberDescription& m_member;
  std::array<const Value*, MaxArguments> m_row{};
  std::array<Value, MaxArguments> m_converted;
};

}  // namespace

ObjectReference CreateObject(std::string_view className) {
  const ClassDescription* description = FindClass(className);
  if (description == nullptr || description->create == nullptr)
    throw Error(ErrorNumber::CannotCreateObject, "Class " + std::string(className) + " can't be created");
  return {description->create(), description};
}

const MemberDescription& RequireMember(const ObjectReference& object, std::string_view member) {
  RequireObject(object);
  if (const MemberDescription* found = object.type->Find(member)) return *found;
  Raise(DispatchError::MemberNotFound,
        std::string(object.type->name) + " has no member " + std::string(member));
}

const MemberDescription& RequireMember(const ObjectReference& object, int number) {
  RequireObject(object);
  if (const MemberDescription* found = object.type->Find(number)) return *found;
  Raise(DispatchError::MemberNotFound,
        std::string(object.type->name) + " has no member " + std::to_string(number));
}

Value Invoke(const ObjectReference& object, const MemberDescription& member, std::span<const Value> arguments,
             std::span<const NamedArgument> named) {
  const std::shared_ptr<void> self = RequireObject(object);
  ArgumentRow row(object, member);
  row.Fill(arguments, named);
  return member.get(self.get(), row.Row());
}

Value Invoke(const ObjectReference& object, std::string_view member, std::span<const Value> arguments,
             std::span<const NamedArgument> named) {
  return Invoke(object, RequireMember(object, member), arguments, named);
}

void Assign(const ObjectReference& object, const MemberDescription& member, std::span<const Value> arguments,
            const Value& value, std::span<const NamedArgument> named) {
  const std::shared_ptr<void> self = RequireObject(object);
  if (!member.let)
    Raise(DispatchError::MemberNotFound,
          FullName(object, member) + (member.isMethod ? " is a method" : " is read-only"));
  ArgumentRow row(object, member);
  row.Fill(arguments, named);
  row.AppendValue(value);
  member.let(self.get(), row.Row());
}

void Assign(const ObjectReference& object, std::string_view member, std::span<const Value> arguments,
            const Value& value, std::span<const NamedArgument> named) {
  Assign(object, RequireMember(object, member), arguments, value, named);
}

Connection ConnectEvent(const ObjectReference& object, std::string_view event, EventHandler handler) {
  const std::shared_ptr<void> self = RequireObject(object);
  const EventDescription* description = object.type->FindEvent(event);
  if (description == nullptr)
    Raise(DispatchError::MemberNotFound,
          std::string(object.type->name) + " has no event " + std::string(event));
  return description->connect(description->member, self.get(), std::move(handler));
}

ErrorReport CurrentError() {
  try {
    throw;
  } catch (const Error& error) {
    return {error.Number(), error.what()};
  } catch (const std::bad_alloc&) {
    return {static_cast<int>(DispatchError::OutOfMemory), "Out of memory"};
  } catch (const std::exception& error) {
    return {static_cast<int>(DispatchError::AutomationFailed), error.what()};
  } catch (...) {
    return {static_cast<int>(DispatchError::AutomationFailed), "Unknown exception"};
  }
}

}  // namespace orve::automation
