#include "coefficients/CoefficientEngine.h"

#include <cmath>
#include <limits>
#include <span>
#include <string_view>

#include "coefficients/CoefficientSources.h"
#include "coefficients/Refusal.h"
#include "coefficients/Rules.h"
#include "coefficients/SourceText.h"
#include "coefficients/Zones.h"
#include "common/HostCalls.h"
#include "external/BreCpX.h"

namespace orve {

namespace {

using coefficients::Inputs;
using coefficients::Reading;
using coefficients::Shape;
using coefficients::WindAngle;

/// A length to 32 bits; what is too large becomes infinite, since reads of lengths never raise.
float LengthToSingle(double value) {
  constexpr double largest = std::numeric_limits<float>::max();
  constexpr float infinity = std::numeric_limits<float>::infinity();
  if (std::isgreater(value, largest)) return infinity;
  if (std::isless(value, -largest)) return -infinity;
  return static_cast<float>(value);
}

constexpr std::string_view kDirectionalNote =
    "figures of the standard method, served with directional wind speeds (3.4, recalled)";

class CoefficientEngine final : public BreCpX, public CoefficientSources {
 public:
  CoefficientEngine() {
    SelectZones();
    m_tables.ReadFolder(HostSystemDirectory() + "\\wzfdata");
  }

  std::string TypeName() const override { return "BreCp2_2X"; }

  // The engine finds its data folder by itself; the automatic breadth and the reporting have nothing to act
  // on.
  void datapath(const std::string&) override {}
  void AutoBreadth(bool) override {}
  void Reporting(std::int32_t) override {}
  // The figures of the standard method serve both methods (3.4); only their source tells the difference.
  void Method(std::int32_t value) override { m_directional = value == 1; }

  std::int32_t TypeIndex() const override { return m_inputs.typeIndex; }
  void TypeIndex(std::int32_t value) override {
    m_inputs.typeIndex = value;
    SelectZones();
  }

  void Barrel_r(float value) override { m_inputs.barrelRise = value; }
  void Eaves_Pitch(float value) override { m_inputs.eavesPitch = value; }
  void Eaves_Radius(float value) override { m_inputs.eavesRadius = value; }
  void Parapet_H(float value) override { m_inputs.parapetHeight = value; }
  void Roof_Pitch(float value) override { m_inputs.roofPitch = value; }

  float Dim_L() const override { return m_inputs.length; }
  void Dim_L(float value) override { m_inputs.length = value; }
  float Dim_W() const override { return m_inputs.width; }
  void Dim_W(float value) override { m_inputs.width = value; }
  float Dim_H() const override { return m_inputs.height; }
  void Dim_H(float value) override { m_inputs.height = value; }
  float Dim_gap() const override { return m_inputs.gap; }
  void Dim_gap(float value) override { m_inputs.gap = value; }
  void Solidity(std::int32_t value) override { m_inputs.solidity = value; }

  double Theta() const override { return m_inputs.theta; }
  void Theta(double value) override {
    m_inputs.theta = value;
    SelectZones();
  }
  void ZoneIndex(std::int16_t value) override { m_inputs.zoneIndex = value; }
  void Suction(bool value) override { m_inputs.suction = value; }

  bool Valid() const override {
    return m_inputs.zoneIndex >= 0 && static_cast<std::size_t>(m_inputs.zoneIndex) < m_zones.size();
  }
  std::string ZoneString() const override { return Valid() ? std::string(Letters()) : std::string(); }
  float Breadth() const override { return LengthToSingle(Plan().breadth); }
  float Depth() const override { return LengthToSingle(Plan().depth); }
  float Scale_b() const override { return LengthToSingle(Plan().scale); }

  float Cpe() const override {
    // Adding 0 turns a negative zero into a zero.
    return static_cast<float>(Read().value) + 0.0F;
  }

  SourceRecord Source() const override {
    if (!Valid()) coefficients::RefuseZone(m_inputs, m_shape, m_angle);
    const coefficients::Request request = MakeRequest();
    SourceRecord record = coefficients::SourceOf(request, coefficients::ReadCoefficient(request));
    if (m_directional) record.note.append(record.note.empty() ? "" : "; ").append(kDirectionalNote);
    return record;
  }

 private:
  void SelectZones() {
    m_shape = coefficients::ShapeOf(m_inputs.typeIndex);
    m_angle = coefficients::WindAngleOf(m_inputs.theta);
    m_zones = coefficients::ZonesOf(m_shape, m_angle);
  }

  std::string_view Letters() const { return m_zones[static_cast<std::size_t>(m_inputs.zoneIndex)]; }

  coefficients::Plan Plan() const { return coefficients::PlanOf(m_inputs, m_shape, m_angle); }

  coefficients::Request MakeRequest() const {
    return {m_inputs,  m_shape, m_angle, static_cast<std::size_t>(m_inputs.zoneIndex),
            Letters(), Plan(),  m_tables};
  }

  Reading Read() const {
    if (!Valid()) coefficients::RefuseZone(m_inputs, m_shape, m_angle);
    return coefficients::ReadCoefficient(MakeRequest());
  }

  Inputs m_inputs;
  bool m_directional = false;
  Shape m_shape = Shape::None;
  WindAngle m_angle = WindAngle::None;
  std::span<const std::string_view> m_zones;
  coefficients::TableSet m_tables;
};

}  // namespace

std::shared_ptr<BreCpX> CreateCoefficientEngine() {
  return std::make_shared<CoefficientEngine>();
}

}  // namespace orve
