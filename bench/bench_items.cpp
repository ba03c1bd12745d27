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
  const char* member = "";  // further member of the item, as JSON
};

constexpr Model kModels[] = {
    {"Pump", "DCP", "CENTRIF"},
    {"VerticalDrum", "DVT", "CYLINDER"},
    {"DrumWithBoot", "DHT", "HORIZ DRUM"},
    {"Tank", "DVT", "STORAGE"},
    {"Compressor", "DGC", "CENTRIF"},
    {"Turbine", "ETUR", "GAS"},
    {"CoolingTower", "ECTWR", "COOLING", R"("class": "CCoolTwObj", )"},
    {"PlainItem", "C", "PLAIN"},
    {"Crusher", "ECR", "CONE"},
    {"Crystallizer", "ECRY", "BATCH VAC"},
    {"DustCollector", "EDC", "CYCLONE"},
    {"Dryer", "ERD", "DIRECT"},
    {"Filter", "EF", "ROTY DRUM"},
    {"Centrifuge", "ECT", "SOLID BOWL"},
    {"Screen", "EVS", "RECTANGLE"},
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
      "SOLID MASS FLOW": [3000, "LB/H"], "LIQUID MASS DENSITY": [50, "PCF"]}},
    "heavy": {"slots": {"LIQUID MASS FLOW": [2000, "LB/H"], "LIQUID MASS DENSITY": [65, "PCF"]}}},
  "blocks": {"B1": {"slots": {"ITEM MODEL": "BLOCK"}}}, "items": {)";
  for (int i = 0; i < kItems; ++i) {
    text += (i > 0 ? ", " : "") + ("\"X" + std::to_string(i)) + R"(": {"category": ")" +
            model.category + R"(", "item": ")" + model.itemCode + R"(", )" + model.member +
            R"("block": "B1", "inlets": {"INLET": ["feed"], "STEAM SUPPLY": ["feed"]},
            "exits": {"OUTLET": ["gas"], "VAPOR OUTLET": ["gas"], "LIQUID OUTLET": ["liquid"],
            "HEAVY LIQUID OUTLET": ["heavy"], "SOLIDS OUTLET": ["liquid"]}})";
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
