// What a host's handlers may do to a case: raise, put another document in its place, raise events without
// end.
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;

struct Handlers : test::FakeCase {
  std::vector<Connection> connections;

  Handlers() {
    // Every load of a site by its reference raises an event in the middle of the reading.
    wind->wizard = 1;
    Host().MsgBox = [](const std::string&, std::int32_t, const std::string&) { return 6; };
  }

  void Make(const char* name, float height) {
    root->Clear();
    root->Description(name);
    root->BuildingDimensions()->Roof_Height(height);
    root->DynamicPressure()->GridReference("SU12");
    root->InternalCoefficients()->EnclosedBuilding_GeneralCase(true);
    root->Location(folder.Path(name));
    root->Save();
  }
  std::string Text(const char* name) const {
    std::ifstream file(folder.Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  bool Holds(const char* name, const std::string& line) const {
    return Text(name).find("\n" + line + "\r\n") != std::string::npos;
  }

  void OnEveryEvent(const std::function<void()>& handler) {
    connections.push_back(root->DirtyUpdated.Connect([=](bool) { handler(); }));
    connections.push_back(root->LocationUpdated.Connect([=](const std::string&) { handler(); }));
    connections.push_back(root->WindCaseListUpdated.Connect(handler));
    connections.push_back(root->WindCaseOpened.Connect([=](const std::string&) { handler(); }));
    connections.push_back(root->WindCaseSaved.Connect([=](const std::string&) { handler(); }));
  }

  /// What a host sees of the document.
  std::string State() const {
    std::ostringstream text;
    text << root->Location() << '|' << root->IsDirty() << '|' << root->Description() << '|'
         << root->BuildingDimensions()->Roof_Height() << '|'
         << root->BuildingDimensions()->OrientationUnknown() << '|'
         << root->BuildingDimensions()->Roof_Diagonal() << '|' << root->DynamicPressure()->AnnualRisk() << '|'
         << int(root->DynamicPressure()->Method()) << '|'
         << root->OverallAppliedLoads()->SteppedWind_Span(BuildingAreas::baRoof, Faces::Face_1);
    return text.str();
  }
};

TEST_F(Handlers, ADocumentPutInThePlaceOfAnotherGetsNeitherItsNameNorItsFile) {
  const std::pair<const char*, std::function<void()>> actions[] = {
      {"a new case", [this] { root->Clear(); }},
      {"another file", [this] { root->OpenExisting(folder.Path("b.wlc")); }},
  };
  for (const bool saving : {true, false})
    for (const auto& [name, act] : actions) {
      bool acted = true;
      for (int event = 0; acted; ++event) {
        SCOPED_TRACE(std::string(saving ? "saving, " : "opening, ") + name + " at event " +
                     std::to_string(event));
        Make("b.wlc", 2), Make("a.wlc", 1);
        if (saving) root->DynamicPressure()->SiteEdited(false), root->DynamicPressure()->SiteDirty(true);
        const std::string before = Text("a.wlc");
        int left = event;
        std::string leftBehind;
        acted = false;
        OnEveryEvent([&, &action = act] {
          if (acted || left-- > 0) return;
          acted = true;
          action();
          leftBehind = State();
        });
        bool opened = false;
        const int error =
            ErrorOf([&] { saving ? root->Save() : void(opened = root->OpenExisting(folder.Path("a.wlc"))); });
        connections.clear();
        if (!acted) break;
        EXPECT_EQ(State(), leftBehind) << "the state stays as the handler left it";
        EXPECT_FALSE(opened);
        if (error == 0)
          EXPECT_NE(root->WindCaseList()->Location(1) + root->WindCaseList()->Location(2), "");
        else
          EXPECT_TRUE(saving && error == 5 && Text("a.wlc") == before);
        root->Save();
        EXPECT_TRUE(Holds("a.wlc", "Description=a.wlc") && Holds("a.wlc", "Roof_Height=1"));
        EXPECT_TRUE(Holds("b.wlc", "Description=b.wlc") && Holds("b.wlc", "Roof_Height=2"));
      }
    }
}

TEST_F(Handlers, ANewCaseIsFinishedEvenIfAHandlerRaises) {
  root->Parent_Span(6), root->Parent_Centres(1.5f), root->Parent_Type(ParentTypes::Purlin_Single);
  std::string undisturbed;
  int events = 0;
  for (int raising = 0; raising <= events; ++raising) {
    SCOPED_TRACE(raising);
    Make("a.wlc", 1);
    const int before = events;
    events = 0;
    OnEveryEvent([&] {
      if (++events == raising) throw raising;
    });
    try {
      root->Clear();
      EXPECT_EQ(raising, 0);
      undisturbed = State();
    } catch (int raised) {
      EXPECT_EQ(raised, raising);
      EXPECT_EQ(events, before) << "the other events come as ever";
    }
    connections.clear();
    EXPECT_EQ(State(), undisturbed);
    EXPECT_TRUE(root->BreVe_Dirty() && root->BreCp_Dirty());
  }
  EXPECT_GT(events, 9) << "the prefill is part of it";
}

TEST_F(Handlers, AHalfMadeCaseIsNotSavedOverTheFormerOne) {
  Make("a.wlc", 1);
  const std::string before = Text("a.wlc");
  const auto autosave = root->DirtyUpdated.Connect([this](bool dirty) {
    if (dirty) root->Save();
  });
  EXPECT_EQ(ErrorOf([this] { root->Clear(); }), 5);
  EXPECT_EQ(Text("a.wlc"), before);
  EXPECT_EQ(root->Location(), "");
}

TEST_F(Handlers, EventsOfTheFileComeBeforeTheListIsUpdated) {
  Make("b.wlc", 2), Make("a.wlc", 1);
  std::string first;
  const auto note = [&](const std::string&) { first = root->WindCaseList()->Location(1); };
  const auto saved = root->WindCaseSaved.Connect(note);
  const auto opened = root->WindCaseOpened.Connect(note);
  root->Location(folder.Path("c.wlc"));
  root->Save();
  EXPECT_NE(first.find("A.WLC"), std::string::npos) << first;
  root->OpenExisting(folder.Path("b.wlc"));
  EXPECT_NE(first.find("C.WLC"), std::string::npos) << first;
}

TEST_F(Handlers, AListThatCannotBeKeptFailsNoSaveAndNoOpening) {
  Make("a.wlc", 1);
  std::ofstream(folder.Path("ORVE_BS6399_2.INI")) << "[BS6399-2 Library]\nRecentFileLimit=99999\n";
  root->Description("edited");
  root->Save();
  EXPECT_FALSE(root->IsDirty());
  EXPECT_TRUE(root->OpenExisting(folder.Path("a.wlc")));
}

TEST_F(Handlers, AFailedSaveKeepsItsErrorWhateverAHandlerRaises) {
  Make("a.wlc", 1);
  root->Location(folder.Path("nowhere/a.wlc"));
  const auto dirty = root->DirtyUpdated.Connect([this](bool) {
    if (std::filesystem::exists(folder.Path("a.wlc")) && !root->IsDirty()) throw 42;
  });
  EXPECT_EQ(ErrorOf([this] { root->Save(); }), 76);
  EXPECT_TRUE(root->IsDirty());
}

TEST_F(Handlers, AnEventRaisedWithoutEndFailsAndTheHostLives) {
  for (const bool swallowing : {false, true})
    for (const int scenario : {0, 1, 2, 3}) {
      SCOPED_TRACE(std::to_string(scenario) + (swallowing ? ", swallowed" : ""));
      Make("a.wlc", 1);
      int calls = 0, innermost = 0;
      const auto again = [&](const std::function<void()>& call) {
        ++calls;
        try {
          call();
        } catch (const Error& error) {
          if (innermost == 0) innermost = error.Number();
          if (!swallowing) throw;
        }
      };
      const auto clear = [this] { root->Clear(); };
      if (scenario < 2)
        connections.push_back(root->DirtyUpdated.Connect([&](bool) { again(clear); }));
      else if (scenario == 2)
        connections.push_back(root->LocationUpdated.Connect(
            [&](const std::string&) { again([this] { root->Location("x"); }); }));
      else
        connections.push_back(root->DirtyUpdated.Connect(
            [&](bool) { again([this] { root->Description(root->Description() + "x"); }); }));
      const std::function<void()> starts[] = {clear, [this] { root->Description("x"); },
                                              [this] { root->Location("y"); },
                                              [this] { root->IsDirty(true); }};
      const int error = ErrorOf(starts[scenario]);
      connections.clear();
      // A new case that failed raises once more, for its prefill.
      const int outermost = scenario == 0 && !swallowing ? 2 : 1;
      EXPECT_EQ(calls, 200 * outermost) << "no handler is called once the innermost raising has failed";
      EXPECT_EQ(innermost, 28);
      EXPECT_EQ(error, swallowing ? 0 : 28);
      root->BuildingDimensions()->Roof_Height(7);
      root->Location(folder.Path("c.wlc"));
      root->Save();
      EXPECT_TRUE(Holds("c.wlc", "Roof_Height=7"));
    }
}

TEST_F(Handlers, AStaleObjectLetsTheOpenCaseCalculateAnew) {
  root->DynamicPressure()->BasicWindSpeed(30);
  const auto stale = root->DynamicPressure();
  const auto staleExternal = root->ExternalCoefficients();
  stale->Method(Methods::Directional);
  root->Clear();
  const auto site = root->DynamicPressure();
  site->BasicWindSpeed(20);
  const std::pair<const char*, std::function<void()>> reads[] = {
      {"q", [&] { stale->DynamicPressure_q(); }},
      {"a site by its reference", [&] { stale->GridReference("SU1"), stale->ProbabilityFactor_Sp(); }},
      {"an edit", [&] { stale->EditSite(); }},
      {"an error in the middle",
       [&] {
         wind->onCalculate = [] { throw Error(ErrorNumber::InvalidArgument, "no figure"); };
         EXPECT_EQ(ErrorOf([&] { stale->DynamicPressure_q(); }), 5);
         wind->onCalculate = nullptr;
       }},
  };
  for (const auto& [name, read] : reads) {
    site->DynamicPressure_q();
    ASSERT_FALSE(root->BreVe_Dirty());
    read();
    EXPECT_TRUE(root->BreVe_Dirty()) << name;
    site->DynamicPressure_q();
    EXPECT_EQ(wind->baseV, 20) << name;
  }
  root->ExternalCoefficients()->ZoneIndexTo();
  ASSERT_FALSE(root->BreCp_Dirty());
  staleExternal->ZoneIndexTo();
  EXPECT_TRUE(root->BreCp_Dirty());
}

}  // namespace orve
