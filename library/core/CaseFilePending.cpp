// Opening and saving, refused until the case file is there.
#include "common/Error.h"
#include "core/clsCurrentCase.h"

namespace orve {

void clsCurrentCase::m_iclsSaveFile_OpenFile(const std::string&, bool&) {
  throw Error(ErrorNumber::InvalidArgument, "Opening a case isn't available yet");
}

void clsCurrentCase::m_iclsSaveFile_SaveFile(const std::string&) {
  throw Error(ErrorNumber::InvalidArgument, "Saving a case isn't available yet");
}

}  // namespace orve
