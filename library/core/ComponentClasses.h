// The registry of component classes: where the root object finds its two components.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace orve {

class BVe2X;
class BreCpX;

/// Maps a class name, such as "BVe2XControl4.BVe2X", to the factory that makes one component of it. A name
/// without a factory fails with error 429 when it is created. A factory's own error passes to the caller.
class ComponentClassRegistry {
 public:
  using WindSpeedFactory = std::function<std::shared_ptr<BVe2X>()>;
  using CoefficientFactory = std::function<std::shared_ptr<BreCpX>()>;

  /// Adds or replaces the factory of a class name.
  void Register(const std::string& className, WindSpeedFactory factory);
  void Register(const std::string& className, CoefficientFactory factory);
  /// Takes a class name out of the registry.
  void Unregister(const std::string& className);
  /// Empties the registry.
  void Clear();

  /// Creates a component by class name. Errors: 429 for a name without a factory.
  std::shared_ptr<BVe2X> CreateWindSpeed(const std::string& className) const;
  std::shared_ptr<BreCpX> CreateCoefficients(const std::string& className) const;

 private:
  std::map<std::string, WindSpeedFactory> m_windSpeed;
  std::map<std::string, CoefficientFactory> m_coefficients;
};

/// The process-wide registry.
ComponentClassRegistry& ComponentClasses();

}  // namespace orve
