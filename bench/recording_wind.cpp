#include "recorder.h"

namespace bench {

namespace {

using orve::BVe2X;

// Dialogs and texts aren't part of a sheet; they are passed on without a note.
class WindRecorder final : public BVe2X, private Recorder<BVe2X> {
 public:
  using Recorder::Recorder;

  std::string TypeName() const override { return m_inner->TypeName(); }
  std::string datapath() const override { return Get<std::string, &BVe2X::datapath>(); }
  void datapath(const std::string& value) override { m_inner->datapath(value); }
  bool AutoWizard() const override { return Get<bool, &BVe2X::AutoWizard>(); }
  void AutoWizard(bool value) override { Set<bool, &BVe2X::AutoWizard>(value); }
  void AutoSite(bool value) override { Set<bool, &BVe2X::AutoSite>(value); }
  void SiteAltWarn(bool value) override { Set<bool, &BVe2X::SiteAltWarn>(value); }
  void Tick(std::int32_t value) override { Set<std::int32_t, &BVe2X::Tick>(value); }
  bool Browse() override { return m_inner->Browse(); }
  bool SelectDlg() override { return m_inner->SelectDlg(); }
  bool Edit() override { return m_inner->Edit(); }
  std::string SiteID() const override { return Get<std::string, &BVe2X::SiteID>(); }
  void SiteID(const std::string& value) override { m_inner->SiteID(value); }
  void GBSite() override { Do<&BVe2X::GBSite>(); }
  std::int32_t Wizard() const override { return Get<std::int32_t, &BVe2X::Wizard>(); }
  void Risk(float value) override { Set<float, &BVe2X::Risk>(value); }
  void Season(std::int32_t value) override { Set<std::int32_t, &BVe2X::Season>(value); }
  void StartMonth(std::int32_t value) override { Set<std::int32_t, &BVe2X::StartMonth>(value); }
  void TopogMode(std::int32_t value) override { Set<std::int32_t, &BVe2X::TopogMode>(value); }
  float SiteAltitude() const override { return Get<float, &BVe2X::SiteAltitude>(); }
  void SiteAltitude(float value) override { Set<float, &BVe2X::SiteAltitude>(value); }
  float BaseV() const override { return Get<float, &BVe2X::BaseV>(); }
  void BaseV(float value) override { Set<float, &BVe2X::BaseV>(value); }
  float CrestHt(orve::WindSectors sector) const override { return Read<&BVe2X::CrestHt>(sector); }
  float CrestX(orve::WindSectors sector) const override { return Read<&BVe2X::CrestX>(sector); }
  float UpwLen(orve::WindSectors sector) const override { return Read<&BVe2X::UpwLen>(sector); }
  float DnwLen(orve::WindSectors sector) const override { return Read<&BVe2X::DnwLen>(sector); }
  float BaseAlt(orve::WindSectors sector) const override { return Read<&BVe2X::BaseAlt>(sector); }
  float ObsHt(orve::WindSectors sector) const override { return Read<&BVe2X::ObsHt>(sector); }
  float ObsSep(orve::WindSectors sector) const override { return Read<&BVe2X::ObsSep>(sector); }
  float ToSea(orve::WindSectors sector) const override { return Read<&BVe2X::ToSea>(sector); }
  float InTown(orve::WindSectors sector) const override { return Read<&BVe2X::InTown>(sector); }
  void setCrestHt(orve::WindSectors sector, float value) override {
    Write<&BVe2X::setCrestHt>(sector, value);
  }
  void setCrestX(orve::WindSectors sector, float value) override { Write<&BVe2X::setCrestX>(sector, value); }
  void setUpwLen(orve::WindSectors sector, float value) override { Write<&BVe2X::setUpwLen>(sector, value); }
  void setDnwLen(orve::WindSectors sector, float value) override { Write<&BVe2X::setDnwLen>(sector, value); }
  void setBaseAlt(orve::WindSectors sector, float value) override {
    Write<&BVe2X::setBaseAlt>(sector, value);
  }
  void setObsHt(orve::WindSectors sector, float value) override { Write<&BVe2X::setObsHt>(sector, value); }
  void setObsSep(orve::WindSectors sector, float value) override { Write<&BVe2X::setObsSep>(sector, value); }
  void setToSea(orve::WindSectors sector, float value) override { Write<&BVe2X::setToSea>(sector, value); }
  void setInTown(orve::WindSectors sector, float value) override { Write<&BVe2X::setInTown>(sector, value); }
  float H() const override { return Get<float, &BVe2X::H>(); }
  void H(float value) override { Set<float, &BVe2X::H>(value); }
  float A() const override { return Get<float, &BVe2X::A>(); }
  void A(float value) override { Set<float, &BVe2X::A>(value); }
  std::int32_t Units() const override { return Get<std::int32_t, &BVe2X::Units>(); }
  void Units(std::int32_t value) override { Set<std::int32_t, &BVe2X::Units>(value); }
  void Calculate() override { Do<&BVe2X::Calculate>(); }
  float Sp() const override { return Get<float, &BVe2X::Sp>(); }
  float Ss() const override { return Get<float, &BVe2X::Ss>(); }
  float Sd(orve::WindSectors sector) const override { return Read<&BVe2X::Sd>(sector); }
  float Sa(orve::WindSectors sector) const override { return Read<&BVe2X::Sa>(sector); }
  float Zd(orve::WindSectors sector) const override { return Read<&BVe2X::Zd>(sector); }
  float He(orve::WindSectors sector) const override { return Read<&BVe2X::He>(sector); }
  float Sh(orve::WindSectors sector) const override { return Read<&BVe2X::Sh>(sector); }
  float Sc(orve::WindSectors sector) const override { return Read<&BVe2X::Sc>(sector); }
  float St(orve::WindSectors sector) const override { return Read<&BVe2X::St>(sector); }
  float Tc(orve::WindSectors sector) const override { return Read<&BVe2X::Tc>(sector); }
  float Tt(orve::WindSectors sector) const override { return Read<&BVe2X::Tt>(sector); }
  float gt(orve::WindSectors sector) const override { return Read<&BVe2X::gt>(sector); }
  float Sb(orve::WindSectors sector) const override { return Read<&BVe2X::Sb>(sector); }
  float DirVal(orve::WindSectors sector) const override { return Read<&BVe2X::DirVal>(sector); }
  float BSGust(orve::WindSectors sector) const override { return Read<&BVe2X::BSGust>(sector); }
  float HybridCa(orve::WindSectors sector) const override { return Read<&BVe2X::HybridCa>(sector); }
};

}  // namespace

std::shared_ptr<BVe2X> RecordingWind(std::shared_ptr<BVe2X> inner, CallLog& log) {
  return std::make_shared<WindRecorder>(std::move(inner), log);
}

}  // namespace bench
