#include <string>

#include "FuzzTargets.h"
#include "common/ProfileFile.h"

namespace orve::fuzz {

void ProfileFile(std::string_view input) {
  orve::ProfileFile profile{std::string(input)};
  const std::size_t half = input.size() / 2;
  profile.Value(input.substr(0, half), input.substr(half));
  for (const char* key : {"RecentFile1", "Other"}) {
    profile.Value("BS6399-2 Library", key, "C:\\cases\\shed.wlc");
    Require(profile.Value("bs6399-2 library", key) == "C:\\cases\\shed.wlc", "a stored value is found again");
  }
  const std::string before = profile.Text();
  profile.Value("BS6399-2 Library", "Other", "C:\\cases\\shed.wlc");
  Require(profile.Text() == before, "storing a value again changes nothing");
}

}  // namespace orve::fuzz
