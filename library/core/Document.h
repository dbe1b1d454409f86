// Which document is open: a handler, a component or a service of the host may put another one in its place.
#pragma once

#include <cstdint>

#include "common/Error.h"

namespace orve {

class clsSaveFile;

/// Error 5 of an operation whose document has been replaced meanwhile.
class DocumentReplaced : public Error {
 public:
  DocumentReplaced()
      : Error(ErrorNumber::InvalidArgument, "The case was replaced by another one meanwhile") {}
};

/// The document that was open when the object was made. `Clear`, an opening and another root object end it.
class Document {
 public:
  /// The current case's document.
  Document() : m_number(Present()) {}
  /// The document of a manager, which needn't be the current case's.
  explicit Document(const clsSaveFile& manager);

  bool IsOpen() const { return Present() == m_number; }
  /// Errors: `DocumentReplaced` if it isn't open any more.
  void RequireOpen() const;

 private:
  static std::uint64_t Present();

  std::uint64_t m_number;
};

}  // namespace orve
