// A host that calls back from its handlers and from its components: at every event of a run of calls, and at
// calls on the components, one after the other.
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "common/HostCalls.h"
#include "core/Required.h"
#include "support/FakeComponents.h"

namespace orve {

struct Callbacks : testing::Test {
  test::PrivateFolder folder;
  std::shared_ptr<test::CallLog> log = std::make_shared<test::CallLog>();
  std::shared_ptr<clsCurrentCase> root;
  std::vector<Connection> connections;
  int eventsToGo = 0;  // The action runs at the event at which none is left.
  bool acted = false;
  std::function<void(Callbacks&)> action;

  Callbacks() {
    // Every root has components of its own, so that a second root lets go of those of the first.
    ComponentClasses().Register("BVe2XControl4.BVe2X", [log = log]() -> std::shared_ptr<BVe2X> {
      const auto wind = std::make_shared<test::FakeWindSpeed>(log);
      wind->wizard = 1, wind->dialogSite = "NZ10";
      wind->bsGust.fill(600), wind->hybridCa.fill(0.9f);
      return wind;
    });
    ComponentClasses().Register("BreCp2_2XControl3.BreCp2_2X", [log = log]() -> std::shared_ptr<BreCpX> {
      const auto coefficients = std::make_shared<test::FakeCoefficients>(log);
      for (int zone = 0; zone < 32; ++zone)
        coefficients->zones.push_back(
            {zone / 8, zone / 2 % 4 * 90.0, zone % 2, zone % 2 ? "B" : "A", 0.5f, -0.8f});
      return coefficients;
    });
    Host().OpenFileDialog = Host().SaveFileDialog = [this](clsCommonDialog& dialog) {
      dialog.FileName = folder.Path("Shed.WLC");
      return Event(), true;
    };
    Host().MsgBox = [this](const std::string&, std::int32_t, const std::string&) { return Event(), 6; };
  }
  ~Callbacks() override {
    connections.clear(), root.reset();
    test::ReleaseProcess();
  }

  void Event() {
    if (acted || eventsToGo-- > 0) return;
    acted = true;
    action(*this);
  }

  void Run() {
    root = CreateCurrentCase();
    connections.clear();
    connections.push_back(root->DirtyUpdated.Connect([this](bool) { Event(); }));
    connections.push_back(root->LocationUpdated.Connect([this](const std::string&) { Event(); }));
    connections.push_back(root->WindCaseListUpdated.Connect([this] { Event(); }));
    connections.push_back(root->WindCaseOpened.Connect([this](const std::string&) { Event(); }));
    connections.push_back(root->WindCaseSaved.Connect([this](const std::string&) { Event(); }));
    const auto present = [] { return Required(basBS6399_2::CurrentCase, "root"); };
    // Plain pointers: what runs holds its objects by itself.
    const auto building = [&] { return Required(present()->BuildingDimensions(), "building").get(); };
    const auto site = [&] { return Required(present()->DynamicPressure(), "site").get(); };
    const auto external = [&] { return Required(present()->ExternalCoefficients(), "external").get(); };
    const auto internal = [&] { return Required(present()->InternalCoefficients(), "internal").get(); };
    const auto loads = [&] { return Required(present()->OverallAppliedLoads(), "loads").get(); };
    // With the wizard's mark every load of the site by its reference raises an event in the middle of a read.
    const auto unload = [&] { site()->SiteEdited(false), site()->SiteDirty(true); };
    const std::function<void()> calls[] = {
        [&] { present()->Parent_Type(ParentTypes::Cantilever_Design_Single); },
        [&] {
          building()->Face1And3_Length(30), building()->Face2And4_Width(20), building()->Roof_Height(6);
        },
        [&] { site()->GridReference("SU12"), site()->DynamicPressure_q(); },
        [&] { unload(), site()->SizeEffectFactor_Ca(); },
        [&] { unload(), site()->EffectiveWindSpeed_Ve(); },
        [&] { unload(), site()->DynamicPressure_q(); },
        [&] { unload(), site()->SiteWindSpeed_Vs(); },
        [&] {
          unload(), external()->Hybrid_ExternalAppliedLoad_Pressure(BuildingAreas::baRoof, Faces::Face_1, 0);
        },
        [&] { unload(), external()->Hybrid_ExternalAppliedLoads(BuildingAreas::baWalls, Faces::Face_1, 0); },
        [&] { unload(), internal()->Hybrid_InternalAppliedLoad_Suction(Faces::Face_1); },
        [&] { unload(), internal()->Hybrid_InternalAppliedLoads(Faces::Face_1); },
        [&] { unload(), loads()->Hybrid_OverallAppliedLoads(BuildingAreas::baRoof, Faces::Face_1, 0); },
        [&] { present()->Initialize_BreApps(); },
        [&] { internal()->EnclosedBuilding_GeneralCase(true); },
        [&] { internal()->DominantOpening_Ratio2(Faces::Face_1, true); },
        [&] { site()->CrestHeight_Z(WindSectors(0), 3); },
        [&] { site()->SelectSite(); },
        [&] { site()->EditSite(); },
        [&] {
          building()->ConsiderCantilever(true), building()->CantileverFace1Or2_Length(2);
          unload(), loads()->ResetCantileverResults();
          loads()->CantileverValues(BuildingAreas::baRoof, Faces::Face_1, true);
        },
        [&] { present()->Description("Shed"), present()->SaveAs(); },
        [&] { present()->IsDirty(true), present()->Browse(); },
        [&] { present()->Clear(); },
    };
    for (const auto& call : calls) {
      try {
        call();
      } catch (const Error&) {
      } catch (int) {
      }
      ASSERT_EQ(HostMousePointer(), 0) << "the wait cursor is gone";
    }
  }
};

TEST_F(Callbacks, AnyEventAndAnyComponentMayRunAnyCall) {
  const std::pair<const char*, std::function<void(Callbacks&)>> actions[] = {
      {"a new case", [](Callbacks& host) { host.root->Clear(); }},
      {"another file", [](Callbacks& host) { host.root->OpenExisting(host.folder.Path("Shed.WLC")); }},
      {"a second root", [](Callbacks& host) { host.root = nullptr, CreateCurrentCase(); }},
      {"objects set to nothing",
       [](Callbacks& host) {
         host.root->BuildingDimensions(nullptr), host.root->DynamicPressure(nullptr);
         host.root->ExternalCoefficients(nullptr), host.root->InternalCoefficients(nullptr);
         host.root->OverallAppliedLoads(nullptr), host.root->CantileverWindloads(nullptr);
       }},
      {"an exception", [](Callbacks&) { throw 42; }},
  };
  const bool longRun = std::getenv("ORVE_LONG_TESTS") != nullptr;
  for (const auto& [name, act] : actions) {
    action = act;
    int event = 0;
    for (acted = true; acted; event += longRun ? 1 : 3) {
      SCOPED_TRACE(std::string(name) + " at event " + std::to_string(event));
      acted = false, eventsToGo = event;
      Run();
    }
    EXPECT_GT(event, 50) << "the run raises that many events";
    // The same out of the components, whose calls may run the host's messages: there are thousands.
    const int step = longRun ? 211 : 1511;
    log->onCall = [this] { Event(); };
    for (acted = true, event = 0; acted; event += step) {
      SCOPED_TRACE(std::string(name) + " at call " + std::to_string(event));
      acted = false, eventsToGo = event;
      Run();
    }
    log->onCall = nullptr;
    EXPECT_GT(event, 10 * step);
  }
}

}  // namespace orve
