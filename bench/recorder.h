// What the two recording components share: each forwards a call and notes how to make it again.
#pragma once

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "component_log.h"

namespace bench {

template <class Component>
Component& Pick(const Components& components) {
  if constexpr (std::is_same_v<Component, orve::BVe2X>)
    return *components.wind;
  else
    return *components.coefficients;
}

/// `Get`, `Set`, `Read` and `Write` stand for the forms of a member: a property's get and let, a result of a
/// sector, a value of a sector.
template <class Component>
class Recorder {
 public:
  Recorder(std::shared_ptr<Component> inner, CallLog& log) : m_inner(std::move(inner)), m_log(log) {}

 protected:
  template <class Value, Value (Component::*member)() const>
  Value Get() const {
    m_log.Add([](const Components& components,
                 const Argument&) { benchmark::DoNotOptimize((Pick<Component>(components).*member)()); },
              {0, {}});
    return (m_inner.get()->*member)();
  }

  template <class Value, void (Component::*member)(Value)>
  void Set(Value value) {
    m_log.Add(
        [](const Components& components, const Argument& argument) {
          (Pick<Component>(components).*member)(static_cast<Value>(argument.value));
        },
        {static_cast<double>(value), {}});
    (m_inner.get()->*member)(value);
  }

  template <float (Component::*member)(orve::WindSectors) const>
  float Read(orve::WindSectors sector) const {
    m_log.Add(
        [](const Components& components, const Argument& argument) {
          benchmark::DoNotOptimize((Pick<Component>(components).*member)(argument.sector));
        },
        {0, sector});
    return (m_inner.get()->*member)(sector);
  }

  template <void (Component::*member)(orve::WindSectors, float)>
  void Write(orve::WindSectors sector, float value) {
    m_log.Add(
        [](const Components& components, const Argument& argument) {
          (Pick<Component>(components).*member)(argument.sector, static_cast<float>(argument.value));
        },
        {value, sector});
    (m_inner.get()->*member)(sector, value);
  }

  template <void (Component::*member)()>
  void Do() {
    m_log.Add([](const Components& components, const Argument&) { (Pick<Component>(components).*member)(); },
              {0, {}});
    (m_inner.get()->*member)();
  }

  std::shared_ptr<Component> m_inner;
  CallLog& m_log;
};

}  // namespace bench
