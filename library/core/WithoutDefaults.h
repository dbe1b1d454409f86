// How a new case makes its objects.
#pragma once

namespace orve {

/// Tag of the constructors that leave the defaults to the caller, so that the object is there even if a
/// handler raises at one of them.
struct WithoutDefaults {};

}  // namespace orve
