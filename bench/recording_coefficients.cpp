#include "recorder.h"

namespace bench {

namespace {

using orve::BreCpX;

// Dialogs and texts aren't part of a sheet; they are passed on without a note.
class CoefficientRecorder final : public BreCpX, private Recorder<BreCpX> {
 public:
  using Recorder::Recorder;

  std::string TypeName() const override { return m_inner->TypeName(); }
  void datapath(const std::string& value) override { m_inner->datapath(value); }
  void AutoBreadth(bool value) override { Set<bool, &BreCpX::AutoBreadth>(value); }
  void Reporting(std::int32_t value) override { Set<std::int32_t, &BreCpX::Reporting>(value); }
  void Method(std::int32_t value) override { Set<std::int32_t, &BreCpX::Method>(value); }
  std::int32_t TypeIndex() const override { return Get<std::int32_t, &BreCpX::TypeIndex>(); }
  void TypeIndex(std::int32_t value) override { Set<std::int32_t, &BreCpX::TypeIndex>(value); }
  void Barrel_r(float value) override { Set<float, &BreCpX::Barrel_r>(value); }
  void Eaves_Pitch(float value) override { Set<float, &BreCpX::Eaves_Pitch>(value); }
  void Eaves_Radius(float value) override { Set<float, &BreCpX::Eaves_Radius>(value); }
  void Parapet_H(float value) override { Set<float, &BreCpX::Parapet_H>(value); }
  void Roof_Pitch(float value) override { Set<float, &BreCpX::Roof_Pitch>(value); }
  float Dim_L() const override { return Get<float, &BreCpX::Dim_L>(); }
  void Dim_L(float value) override { Set<float, &BreCpX::Dim_L>(value); }
  float Dim_W() const override { return Get<float, &BreCpX::Dim_W>(); }
  void Dim_W(float value) override { Set<float, &BreCpX::Dim_W>(value); }
  float Dim_H() const override { return Get<float, &BreCpX::Dim_H>(); }
  void Dim_H(float value) override { Set<float, &BreCpX::Dim_H>(value); }
  float Dim_gap() const override { return Get<float, &BreCpX::Dim_gap>(); }
  void Dim_gap(float value) override { Set<float, &BreCpX::Dim_gap>(value); }
  void Solidity(std::int32_t value) override { Set<std::int32_t, &BreCpX::Solidity>(value); }
  double Theta() const override { return Get<double, &BreCpX::Theta>(); }
  void Theta(double value) override { Set<double, &BreCpX::Theta>(value); }
  void ZoneIndex(std::int16_t value) override { Set<std::int16_t, &BreCpX::ZoneIndex>(value); }
  void Suction(bool value) override { Set<bool, &BreCpX::Suction>(value); }
  bool Valid() const override { return Get<bool, &BreCpX::Valid>(); }
  std::string ZoneString() const override { return Get<std::string, &BreCpX::ZoneString>(); }
  float Breadth() const override { return Get<float, &BreCpX::Breadth>(); }
  float Depth() const override { return Get<float, &BreCpX::Depth>(); }
  float Scale_b() const override { return Get<float, &BreCpX::Scale_b>(); }
  float Cpe() const override { return Get<float, &BreCpX::Cpe>(); }
};

}  // namespace

std::shared_ptr<BreCpX> RecordingCoefficients(std::shared_ptr<BreCpX> inner, CallLog& log) {
  return std::make_shared<CoefficientRecorder>(std::move(inner), log);
}

}  // namespace bench
