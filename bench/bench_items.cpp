// One item of each class: construction, Size, Commit, UpdateSizeInfo, delete.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "sizewright/embedded/embedded_host.h"
#include "sizewright/embedded/item_run.h"
#include "sizewright/embedded/plant_file.h"

namespace sizewright {
namespace {

struct Model {
  const char* name;
  const char* category;
  const char* itemCode;
  const char* component;  // slots of its record, as JSON
};

constexpr Model kModels[] = {
    {"Pump", "DCP", "CENTRIF", "{}"},
};

// Fresh items, so that none finds the results of a run before.
constexpr int kItems = 500;

std::unique_ptr<Plant> plantOf(const Model& model) {
  std::string text = R"({"sizewright": 1, "simulator": 1, "streams": {
    "feed": {"slots": {"TEMPERATURE": [150, "DEG F"], "PRESSURE": [50, "PSI"],
      "TOTAL MASS FLOW": [30000, "LB/H"], "LIQUID MASS FLOW": [12000, "LB/H"],
      "VAPOR MASS FLOW": [15000, "LB/H"], "SOLID MASS FLOW": [3000, "LB/H"],
      "LIQUID MASS DENSITY": [50, "PCF"], "VAPOR MASS DENSITY": [0.3, "PCF"],
      "SOLID MASS DENSITY": [90, "PCF"], "LIQUID VISCOSITY": [0.5, "CPOISE"],
      "MOLECULAR WEIGHT": 40}},
    "gas": {"slots": {"TEMPERATURE": [250, "DEG F"], "PRESSURE": [150, "PSI"],
      "TOTAL MASS FLOW": [15000, "LB/H"], "VAPOR MASS FLOW": [15000, "LB/H"],
      "VAPOR MASS DENSITY": [0.8, "PCF"]}},
    "liquid": {"slots": {"TEMPERATURE": [150, "DEG F"], "PRESSURE": [150, "PSI"],
      "TOTAL MASS FLOW": [15000, "LB/H"], "LIQUID MASS FLOW": [12000, "LB/H"],
      "SOLID MASS FLOW": [3000, "LB/H"], "LIQUID MASS DENSITY": [50, "PCF"]}}},
  "blocks": {"B1": {"slots": {"ITEM MODEL": "BLOCK"}}}, "items": {)";
  for (int i = 0; i < kItems; ++i) {
    text +=
        (i > 0 ? ", " : "") + ("\"X" + std::to_string(i)) + R"(": {"category": ")" +
        model.category + R"(", "item": ")" + model.itemCode +
        R"(", "block": "B1", "inlets": {"INLET": ["feed"]}, "exits": {"OUTLET": ["gas", "liquid"]},
            "component": )" +
        model.component + "}";
  }
  return readPlant(text + "}}", model.name, equipmentClassNames());
}

void anItem(benchmark::State& state, const Model& model) {
  for (auto _ : state) {
    state.PauseTiming();
    const auto plant = plantOf(model);
    EmbeddedHost host(*plant);
    state.ResumeTiming();
    for (const PlantItem& item : plant->items) {
      if (!ItemRun(host, item).size()) state.SkipWithError("not sized");
    }
  }
  state.counters["per item"] = benchmark::Counter(
      kItems, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

const bool kRegistered = [] {
  for (const Model& model : kModels) {
    benchmark::RegisterBenchmark(model.name, anItem, model)->Unit(benchmark::kMicrosecond);
  }
  return true;
}();

}  // namespace
}  // namespace sizewright
