// Asks a coefficient engine as the library does.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "coefficients/CoefficientEngine.h"
#include "coefficients/CoefficientSources.h"
#include "common/Error.h"
#include "external/BreCpX.h"

namespace orve::test {

// Shapes by `TypeIndex`.
inline constexpr int Walls = 0, Flat = 2, Mono = 3, Duo = 4, Hipped = 5, Parapet = 8, Curved = 11;

/// One engine with a building of 30 by 15 m, 10 m high; the members of the fixture change single inputs.
class CoefficientAsking : public ::testing::Test {
 protected:
  CoefficientAsking() { Building(30, 15, 10); }

  void Building(float length, float width, float height) {
    engine->Dim_L(length);
    engine->Dim_W(width);
    engine->Dim_H(height);
  }

  void Look(int shape, double theta, int zone = 0) {
    engine->TypeIndex(shape);
    engine->Solidity(shape == Parapet ? 1 : 0);
    engine->Theta(theta);
    engine->ZoneIndex(static_cast<std::int16_t>(zone));
  }

  /// Selects a zone by its letters; false if there is none.
  bool LookAt(int shape, double theta, const std::string& letters) {
    for (int zone = 0; zone <= 25; ++zone) {
      Look(shape, theta, zone);
      if (engine->Valid() && engine->ZoneString() == letters) return true;
    }
    return false;
  }

  float Suction() {
    engine->Suction(true);
    return engine->Cpe();
  }

  float Pressure() {
    engine->Suction(false);
    return engine->Cpe();
  }

  /// Text of the refusal of `Cpe`; empty if it isn't refused.
  std::string Refusal() {
    try {
      engine->Cpe();
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), static_cast<int>(ErrorNumber::InvalidArgument));
      return error.what();
    }
    return {};
  }

  SourceRecord Source() { return dynamic_cast<CoefficientSources&>(*engine).Source(); }

  std::shared_ptr<BreCpX> engine = CreateCoefficientEngine();
};

}  // namespace orve::test
