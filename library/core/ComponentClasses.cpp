#include "core/ComponentClasses.h"

#include <utility>

#include "common/Error.h"

namespace orve {

namespace {

template <class Factories>
auto Create(const Factories& factories, const std::string& className) {
  const auto found = factories.find(className);
  if (found == factories.end())
    throw Error(ErrorNumber::CannotCreateObject, "The component class " + className + " can't be created");
  const auto factory = found->second;  // A factory may take its own class out of the registry.
  return factory();
}

}  // namespace

void ComponentClassRegistry::Register(const std::string& className, WindSpeedFactory factory) {
  m_windSpeed[className] = std::move(factory);
}

void ComponentClassRegistry::Register(const std::string& className, CoefficientFactory factory) {
  m_coefficients[className] = std::move(factory);
}

void ComponentClassRegistry::Unregister(const std::string& className) {
  m_windSpeed.erase(className);
  m_coefficients.erase(className);
}

void ComponentClassRegistry::Clear() {
  m_windSpeed.clear();
  m_coefficients.clear();
}

std::shared_ptr<BVe2X> ComponentClassRegistry::CreateWindSpeed(const std::string& className) const {
  return Create(m_windSpeed, className);
}

std::shared_ptr<BreCpX> ComponentClassRegistry::CreateCoefficients(const std::string& className) const {
  return Create(m_coefficients, className);
}

ComponentClassRegistry& ComponentClasses() {
  static ComponentClassRegistry registry;
  return registry;
}

}  // namespace orve
