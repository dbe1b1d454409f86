#include "storage/CaseFileQueries.h"

#include "common/FileLayer.h"
#include "common/PutAside.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "storage/clsSaveFile.h"

namespace orve {

std::string ResolveFileName(const std::string& name) {
  return ResolvedPath(name);
}

bool CaseFileExists(const std::string& name) {
  return IsPlainFile(name);
}

std::string CopyPutAside(const std::string& name) {
  return FindPutAside(name);
}

bool CaseFileChanged() {
  const auto root = basBS6399_2::CurrentCase;
  return root != nullptr && root->m_iclsSaveFile != nullptr && root->m_iclsSaveFile->FileChanged();
}

}  // namespace orve
