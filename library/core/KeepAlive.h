// Objects stay alive while one of their members runs.
#pragma once

#include <memory>

namespace orve {

/// Holds an object for the length of a public member: a handler or a component may let go of it meanwhile. Of
/// an object that no shared pointer owns it holds nothing.
class KeepAlive {
 public:
  template <class Object>
  explicit KeepAlive(const Object& object) : m_object(object.weak_from_this().lock()) {}

 private:
  std::shared_ptr<const void> m_object;
};

}  // namespace orve
