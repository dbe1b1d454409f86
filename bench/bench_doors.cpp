// What a door costs over a direct C++ call: a plain property, an indexed read and a text, by name and through
// C. The C library holds a case of its own.
#include <BuiltInEngines.h>
#include <Dispatch.h>
#include <benchmark/benchmark.h>
#include <orve3_bs6399_2.h>
#include <orve3_bs6399_2_c.h>
#include <string>

#include "private_folder.h"

namespace {

using namespace orve;
using automation::ObjectReference;
using automation::Value;

constexpr auto Area = WindAreas::waRoof;
constexpr auto Sector = WindSectors::Degrees_90;

/// One case through C++ and by name, and one in the C library.
struct Doors {
  examples::PrivateFolder folder;
  std::string path = folder.Path().string();
  std::shared_ptr<clsCurrentCase> windCase;
  std::shared_ptr<clsBuildingDimensions> building;
  std::shared_ptr<clsDynamicPressure> wind;
  ObjectReference named, namedWind;
  orve_clsCurrentCase root = nullptr;
  orve_clsBuildingDimensions cBuilding = nullptr;
  orve_clsDynamicPressure cWind = nullptr;

  Doors() {
    RegisterBuiltInEngines();
    windCase = CreateCurrentCase();
    building = windCase->BuildingDimensions();
    wind = windCase->DynamicPressure();
    named = {building, automation::FindClass("clsBuildingDimensions")};
    namedWind = {wind, automation::FindClass("clsDynamicPressure")};
    orve_host_LibraryFolder(
        [](orve_reply* reply, void* text) { orve_reply_text(reply, static_cast<const char*>(text)); },
        path.data());
    orve_register_built_in_engines();
    orve_clsCurrentCase_create(&root);
    orve_clsCurrentCase_get_BuildingDimensions(root, &cBuilding);
    orve_clsCurrentCase_get_DynamicPressure(root, &cWind);
    wind->ManualResults(true);
    orve_clsDynamicPressure_let_ManualResults(cWind, true);
  }
};

Doors& The() {
  static auto* doors = new Doors;
  return *doors;
}

template <class Call>
void Run(benchmark::State& state, Call call) {
  Doors& doors = The();
  for (auto step : state) {
    (void)step;
    call(doors);
  }
}

void PropertyDirect(benchmark::State& state) {
  Run(state, [](Doors& d) { benchmark::DoNotOptimize(d.building->Roof_Pitch()); });
}
void PropertyByName(benchmark::State& state) {
  Run(state, [](Doors& d) { benchmark::DoNotOptimize(automation::Invoke(d.named, "Roof_Pitch", {})); });
}
void PropertyThroughC(benchmark::State& state) {
  Run(state, [](Doors& d) {
    float pitch;
    orve_clsBuildingDimensions_get_Roof_Pitch(d.cBuilding, &pitch);
    benchmark::DoNotOptimize(pitch);
  });
}

void IndexedDirect(benchmark::State& state) {
  Run(state, [](Doors& d) { benchmark::DoNotOptimize(d.wind->DynamicPressure_q(Area, Sector)); });
}
void IndexedByName(benchmark::State& state) {
  const Value arguments[] = {static_cast<std::int32_t>(Area), static_cast<std::int32_t>(Sector)};
  Run(state, [&](Doors& d) {
    benchmark::DoNotOptimize(automation::Invoke(d.namedWind, "DynamicPressure_q", arguments));
  });
}
void IndexedThroughC(benchmark::State& state) {
  Run(state, [](Doors& d) {
    float q;
    orve_clsDynamicPressure_get_DynamicPressure_q(d.cWind, orve_WindAreas_waRoof, orve_WindSectors_Degrees_90,
                                                  &q);
    benchmark::DoNotOptimize(q);
  });
}

void TextDirect(benchmark::State& state) {
  Run(state, [](Doors& d) { benchmark::DoNotOptimize(std::string(d.windCase->Description())); });
}
void TextByName(benchmark::State& state) {
  const ObjectReference root{The().windCase, automation::FindClass("clsCurrentCase")};
  Run(state, [&](Doors&) { benchmark::DoNotOptimize(automation::Invoke(root, "Description", {})); });
}
void TextThroughC(benchmark::State& state) {
  Run(state, [](Doors& d) {
    char* text;
    orve_clsCurrentCase_get_Description(d.root, &text);
    benchmark::DoNotOptimize(text);
    orve_free_text(text);
  });
}

BENCHMARK(PropertyDirect);
BENCHMARK(PropertyByName);
BENCHMARK(PropertyThroughC);
BENCHMARK(IndexedDirect);
BENCHMARK(IndexedByName);
BENCHMARK(IndexedThroughC);
BENCHMARK(TextDirect);
BENCHMARK(TextByName);
BENCHMARK(TextThroughC);

}  // namespace

BENCHMARK_MAIN();
