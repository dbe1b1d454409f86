#include "core/Document.h"

#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "storage/clsSaveFile.h"

namespace orve {

Document::Document(const clsSaveFile& manager) : m_number(manager.DocumentNumber()) {}

void Document::RequireOpen() const {
  if (!IsOpen()) throw DocumentReplaced();
}

std::uint64_t Document::Present() {
  const clsCurrentCase* const root = basBS6399_2::CurrentCase.get();
  return root && root->m_iclsSaveFile ? root->m_iclsSaveFile->DocumentNumber() : 0;
}

}  // namespace orve
