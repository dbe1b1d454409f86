// The two components as the library looks for them in a Windows process.
#pragma once

namespace orve::com {

/// For each component: an outside class that is registered under the first name, else one under the fallback
/// name; where neither is registered the built-in engine serves, under the first name. An outside class that
/// is there but can't be created isn't replaced by an engine in silence: the component stays away.
void RegisterComponentClasses();

}  // namespace orve::com
