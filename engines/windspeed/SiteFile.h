// Sites by reference: one text file of profile form for each, in the component's data folder.
#pragma once

#include <string>

#include "windspeed/Inputs.h"

namespace orve::windspeed {

/// What a site file gives: the values, or why there are none.
struct SiteFile {
  SiteValues values;
  bool edited = false;  ///< The file asks that each case keeps the site's values (key `Wizard`).
  std::string fault;    ///< Empty if the values are good; else file, key and reason.
};

/// Reads "<reference>.site" in the data folder or in its folder "sites". A reference is a plain file name:
/// one that would lead out of the folder is not found. Raises nothing for a missing or faulty file.
SiteFile ReadSite(const std::string& dataFolder, const std::string& reference);

/// The values that a site file's text gives; `name` is the file's name for the fault's text.
SiteFile ParseSite(const std::string& text, const std::string& name);

}  // namespace orve::windspeed
