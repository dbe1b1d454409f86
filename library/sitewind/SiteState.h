// What a wind-speed component may know of the site beside its contract.
#pragma once

#include <string>

namespace orve {

/// Reached from the component by dynamic_cast. The library then keeps each case's site to itself: the case
/// keeps its own values where a reference has no usable site, and says with every refresh whether the results
/// that depend on the site are refused. A component without this interface gets the calls of its contract
/// alone.
class SiteState {
 public:
  virtual ~SiteState() = default;

  /// A new case begins: no reference, all values of the site 0, nothing refused.
  virtual void ForgetSite() = 0;

  /// Why the results that depend on the site are refused; empty if they aren't. After `GBSite` it says
  /// whether the site was found. A let holds for the reads from then on.
  virtual std::string SiteFault() const = 0;
  virtual void SiteFault(const std::string& value) = 0;
};

}  // namespace orve
