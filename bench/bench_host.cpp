// The calls that every item makes hundreds of times.
#include <benchmark/benchmark.h>

#include "allocations.h"
#include "sizewright/embedded/embedded_host.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/registry.h"

namespace sizewright {
namespace {

std::unique_ptr<Plant> pumpPlant() {
  return readPlant(R"({"sizewright": 1, "items": {"P-101": {"category": "DCP", "item": "CENTRIF",
    "component": {"A": 1, "B": "text", "CpFluidHead": [120, "FEET"], "C": 2}}}})",
                   "bench", equipmentClassNames());
}

void ASlotRead(benchmark::State& state) {
  const auto plant = pumpPlant();
  EmbeddedHost host(*plant);
  const HostScope scope(host);
  const CvdGenericObject record(*host.project(), "VPECOMP", "P-101");
  double number = 0.0;
  UnitText units;
  const std::size_t before = allocationCount();
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        record.GetValueWithInheritance("CpFluidHead", number, units.data(), nullptr));
  }
  state.counters["allocations"] = static_cast<double>(allocationCount() - before);
}
BENCHMARK(ASlotRead);

void AUnitConversion(benchmark::State& state) {
  const auto plant = pumpPlant();
  EmbeddedHost host(*plant);
  const HostScope scope(host);
  double pressure = 14.7;
  const std::size_t before = allocationCount();
  for (auto _ : state) benchmark::DoNotOptimize(pressure = converted(pressure, "PSI", "PSIG") + 14);
  state.counters["allocations"] = static_cast<double>(allocationCount() - before);
}
BENCHMARK(AUnitConversion);

}  // namespace
}  // namespace sizewright
