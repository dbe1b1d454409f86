// The wait cursor as a scope object.
#pragma once

#include <cstdint>

namespace orve {

/// Remembers the screen's cursor when constructed and puts it back when destroyed, also after an error.
class clsMousePointer {
 public:
  /// The wait cursor's pointer type.
  static constexpr std::int16_t Wait = 11;

  clsMousePointer();
  /// Shows a pointer type for as long as the object lives.
  explicit clsMousePointer(std::int16_t pointerType);
  ~clsMousePointer();
  clsMousePointer(const clsMousePointer&) = delete;
  clsMousePointer& operator=(const clsMousePointer&) = delete;

  /// What was last set; 0 before the first let.
  std::int16_t PointerType() const { return m_PointerType; }
  void PointerType(std::int16_t value);

 private:
  std::int16_t m_remembered;
  std::int16_t m_PointerType = 0;
};

}  // namespace orve
