// An object of the case that a member can't do without.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "common/Error.h"

namespace orve {

/// The object, held for as long as the caller works on it: a host's handler may replace it meanwhile. Errors:
/// 91 if a host has set it to nothing.
template <class Object>
std::shared_ptr<Object> Required(std::shared_ptr<Object> object, const char* name) {
  if (!object) throw Error(ErrorNumber::ObjectNotSet, std::string("Object not set: ") + name);
  return object;
}

}  // namespace orve
