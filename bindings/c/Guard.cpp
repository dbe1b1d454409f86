#include "Guard.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <limits>
#include <new>
#include <utility>

#include "BuiltInEngines.h"
#include "common/NumberText.h"

namespace orve::c {

namespace {

/// A handle isn't an address: it holds a place in the table and how often that place has been used, so that a
/// handle that has been released is known as such and never followed.
class HandleTable {
 public:
  void* Add(std::shared_ptr<void> held, const void* tag) {
    std::size_t place = m_free;
    if (place == None) {
      place = m_slots.size();
      if (place >= MaxPlaces) throw std::bad_alloc();
      m_slots.emplace_back();
    } else {
      m_free = m_slots[place].next;
    }
    Slot& slot = m_slots[place];
    slot.held = std::move(held);
    slot.tag = tag;
    return reinterpret_cast<void*>(slot.use << PlaceBits | (place + 1));
  }

  const std::shared_ptr<void>* Find(const void* handle, const void* tag) const {
    const Slot* slot = SlotOf(handle);
    return slot == nullptr || slot->tag != tag ? nullptr : &slot->held;
  }

  bool Release(const void* handle) {
    Slot* slot = const_cast<Slot*>(SlotOf(handle));
    if (slot == nullptr) return false;
    slot->tag = nullptr;
    slot->use = (slot->use + 1) & MaxUse;
    slot->next = m_free;
    m_free = static_cast<std::size_t>(slot - m_slots.data());
    // What goes may call back in here, so the slot is in order before it does.
    const std::shared_ptr<void> last = std::move(slot->held);
    return true;
  }

 private:
  static constexpr unsigned PlaceBits = sizeof(std::uintptr_t) * 4;  // Half of the handle.
  static constexpr std::uintptr_t MaxPlaces = (std::uintptr_t{1} << PlaceBits) - 1;
  static constexpr std::uintptr_t MaxUse = std::numeric_limits<std::uintptr_t>::max() >> PlaceBits;
  static constexpr std::size_t None = std::numeric_limits<std::size_t>::max();

  struct Slot {
    std::shared_ptr<void> held;
    const void* tag = nullptr;  ///< Null while the place is free.
    std::uintptr_t use = 0;
    std::size_t next = None;
  };

  const Slot* SlotOf(const void* handle) const {
    const auto number = reinterpret_cast<std::uintptr_t>(handle);
    const std::uintptr_t place = number & MaxPlaces;
    if (place == 0 || place > m_slots.size()) return nullptr;
    const Slot& slot = m_slots[place - 1];
    return slot.tag == nullptr || slot.use != number >> PlaceBits ? nullptr : &slot;
  }

  std::vector<Slot> m_slots;
  std::size_t m_free = None;
};

/// Never destroyed: a host may hold handles to its very end.
HandleTable& Handles() {
  static auto* table = new HandleTable;
  return *table;
}

struct LastError {
  std::string text;
  std::string fromCallback;
};

LastError& Last() {
  static thread_local LastError last;
  return last;
}

orve_error KeepError(int number, const char* text) noexcept {
  try {
    Last().text = text;
  } catch (...) {
    Last().text.clear();
  }
  // A callback may raise number 0 by mistake; it is an error all the same.
  return number == 0 ? 440 : number;
}

}  // namespace

orve_error Succeeded() noexcept {
  Last().text.clear();
  return 0;
}

orve_error Failed() noexcept {
  try {
    throw;
  } catch (const Error& error) {
    return KeepError(error.Number(), error.what());
  } catch (const std::bad_alloc&) {
    return KeepError(7, "Out of memory");
  } catch (const std::exception& error) {
    return KeepError(440, error.what());
  } catch (...) {
    return KeepError(440, "Unknown exception");
  }
}

void* NewHandle(std::shared_ptr<void> held, const void* tag) {
  return Handles().Add(std::move(held), tag);
}

std::shared_ptr<void> Held(const void* handle, const void* tag) {
  const auto* held = Handles().Find(handle, tag);
  if (held == nullptr)
    throw Error(ErrorNumber::ObjectNotSet,
                handle == nullptr ? "Object is not set: the handle is null"
                                  : "Object is not set: the handle is released or of another class");
  return *held;
}

void RaiseNull(const char* what) {
  throw Error(ErrorNumber::InvalidArgument, std::string("Invalid argument: ") + what + " is null");
}

std::string TextArgument(const char* text, const char* name) {
  if (text == nullptr) RaiseNull(name);
  return text;
}

char* NewText(const std::string& text) {
  auto* copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (copy == nullptr) throw std::bad_alloc();
  std::memcpy(copy, text.c_str(), text.size() + 1);
  return copy;
}

void FreeText(const char*& text) {
  std::free(const_cast<char*>(text));
  text = nullptr;
}

const char* StaticText(std::string_view text) {
  return text.empty() ? nullptr : text.data();
}

void RaiseFromCallback(orve_error number) {
  if (number == 0) return;
  const std::string text = std::exchange(Last().fromCallback, {});
  throw Error(number, text.empty() ? "Error " + std::to_string(number) + " in a callback" : text);
}

void GiveConnection(orve_connection* result, Connection connection) {
  auto held = std::make_shared<Connection>(std::move(connection));
  *result = static_cast<orve_connection>(NewHandle(std::move(held), &TagOf<Connection>));
}

}  // namespace orve::c

using namespace orve::c;

const char* orve_error_text(void) {
  return Last().text.c_str();
}

void orve_set_error_text(const char* text) {
  try {
    Last().fromCallback = TextOrEmpty(text);
  } catch (...) {
    Last().fromCallback.clear();
  }
}

orve_error orve_release(const void* handle) {
  const orve::LibraryFloatState state;
  try {
    if (handle != nullptr && !Handles().Release(handle))
      throw orve::Error(orve::ErrorNumber::ObjectNotSet, "Object is not set: the handle is released");
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

void orve_free_text(char* text) {
  std::free(text);
}

void orve_register_built_in_engines(void) {
  const orve::LibraryFloatState state;
  try {
    orve::RegisterBuiltInEngines();
    Succeeded();
  } catch (...) {
    Failed();
  }
}

orve_error orve_app_version(char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::clsCommon().AppVersion());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

int32_t orve_version(void) {
  return ORVE_C_VERSION;
}

orve_error orve_native_path(const char* path, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::NativePath(TextArgument(path, "path")));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_resolve_file_name(const char* name, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::ResolveFileName(TextArgument(name, "name")));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_case_file_exists(const char* name, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::CaseFileExists(TextArgument(name, "name")));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_case_file_changed(bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::CaseFileChanged());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_copy_put_aside(const char* name, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::CopyPutAside(TextArgument(name, "name")));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_single_text(float value, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::ShortestText(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_double_text(double value, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    Give(result, orve::ShortestText(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
