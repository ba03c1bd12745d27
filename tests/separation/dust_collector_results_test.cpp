#include <gtest/gtest.h>

#include <cmath>

#include "separation/dust_collector_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;
using Progress = CollectorAtHand::Progress;

constexpr double kMetre = 0.3048;
constexpr double kCubicMetre = kMetre * kMetre * kMetre;

struct Written {
  const char* slot;
  double value;
  const char* units;
  double metric;
  const char* metricUnits;
};

// What a collector with every value set writes.
const Written kDiameter = {"CpCycloneDiameter", 2, "FEET", 2 * kMetre, "M"};
const Written kWidth = {"CpDiameterWidth", 2, "FEET", 2 * kMetre, "M"};
const Written kLength = {"CpLength", 20, "FEET", 20 * kMetre, "M"};
const Written kArea = {"CpSurfaceArea", 300, "SF", 300 * kMetre* kMetre, "M2"};
const Written kRatio = {"CpAirToClothRatio", 3, "", 3, ""};
const Written kEfficiency = {"CpRemovalEfficiencyPercent", 0.5, "", 0.5, ""};
const Written kMigration = {"CpMigrationVelocity", 4, "FPS", 4 * kMetre, "M/S"};
const Written kGas = {"CpGasFlowrate", 1000, "CFH", 1000 * kCubicMetre, "M3/H"};
const Written kLiquid = {"CpLiquidFlowrate", 1000, "CFH", 1000 * kCubicMetre, "M3/H"};
const Written kSolid = {"CpSolidFlowrate", 62400, "LB/H", 62400 * 0.45359237, "KG/H"};
const Written kTemperature = {"CpAirTemperature", 212, "DEG F", 100, "DEG C"};
const Written kGravity = {"CpOilSpecificGravity", 0.9, "", 0.9, ""};
const Written kManifold = {"CpNumberCyclonesPerManifold", 5, "", 5, ""};

const std::vector<const char*> kSlots = {"CpCycloneDiameter",
                                         "CpDiameterWidth",
                                         "CpLength",
                                         "CpSurfaceArea",
                                         "CpAirToClothRatio",
                                         "CpRemovalEfficiencyPercent",
                                         "CpMigrationVelocity",
                                         "CpGasFlowrate",
                                         "CpLiquidFlowrate",
                                         "CpSolidFlowrate",
                                         "CpAirTemperature",
                                         "CpOilSpecificGravity",
                                         "CpNumberItems",
                                         "CpNumberCyclonesPerManifold"};

struct ReportCase {
  const char* category;
  const char* item;
  std::vector<Written> written;
};
const ReportCase kReports[] = {
    {"EDC", "CYCLONE", {kDiameter, kGas, kTemperature}},
    {"DDC", "MULT CYCLO", {kDiameter, kGas, kTemperature}},
    {"EDC", "CLOTH BAY", {kDiameter, kArea, kRatio, kGas, kTemperature}},
    {"EDC", "PULSE SHKR", {kDiameter, kArea, kRatio, kGas, kTemperature}},
    {"EDC", "ELC L VOLT", {kDiameter, kGas, kTemperature}},
    {"EDC", "ELC H VOLT", {kDiameter, kEfficiency, kMigration, kGas, kTemperature}},
    {"EDC", "WASHERS", {kDiameter, kGas, kTemperature}},
    {"ESE", "WATER CYCL", {kDiameter, kLength, kManifold, kSolid}},
    {"DSE", "PULP STOCK", {kDiameter, kLength, kManifold, kLiquid}},
    {"ESE", "OIL WATER", {kWidth, kLength, kManifold, kLiquid, kGravity}},
    {"ESE", "SKIMMER", {kLength, kManifold, kLiquid}},
    {"EXX", "CYCLONE", {kLength, kManifold, kLiquid}},
};

void fill(DustCollectorData& values) {
  values.cyclone_dia = 2;
  values.cyclone_length = 20;
  values.filter_area = 300;
  values.air_to_cloth = 3;
  values.efficiency = 0.5;
  values.migration_velocity = 4;
  values.total_gas_flow = 5000;
  values.flow_per_unit = 1000;
  values.air_temp = 212;
  values.oil_gravity = 0.9;
  values.num_cyclones = 5;
}

class CollectorReport : public testing::TestWithParam<ReportCase> {
 protected:
  void expectWritten(bool metric) {
    Plant plant = collectorPlant(GetParam().category, GetParam().item);
    plant["units"] = metric ? "metric" : "customary";
    CollectorAtHand collector(plant);
    fill(collector->data());
    EXPECT_EQ(collector->SaveParameters(), 1);
    const bool gas = collector.has("CpAirTemperature");
    for (const char* slot : kSlots) {
      if (std::string(slot) == "CpNumberItems") {
        EXPECT_EQ(collector.text(slot), gas ? "5" : "");
        continue;
      }
      const Written* row = nullptr;
      for (const Written& candidate : GetParam().written) {
        if (std::string(candidate.slot) == slot) row = &candidate;
      }
      ASSERT_EQ(collector.has(slot), row != nullptr) << slot;
      if (row == nullptr) continue;
      EXPECT_NEAR(collector.number(slot), metric ? row->metric : row->value, 1e-6) << slot;
      EXPECT_EQ(collector.units(slot), metric ? row->metricUnits : row->units) << slot;
    }
  }
};
INSTANTIATE_TEST_SUITE_P(Items, CollectorReport, testing::ValuesIn(kReports));

TEST_P(CollectorReport, Writes_its_slots_in_customary_units) {
  expectWritten(false);
}
TEST_P(CollectorReport, Writes_its_slots_in_metric_units) {
  expectWritten(true);
}

TEST_P(CollectorReport, Leaves_out_what_is_0) {
  CollectorAtHand collector(collectorPlant(GetParam().category, GetParam().item));
  EXPECT_EQ(collector->SaveParameters(), 1);
  const bool gas = GetParam().category[1] == 'D';
  for (const char* slot : kSlots) {
    EXPECT_EQ(collector.has(slot), gas && std::string(slot) == "CpAirTemperature") << slot;
  }
}

TEST(CollectorResults, A_precipitator_of_one_unit_tells_the_flow_of_all) {
  CollectorAtHand one(collectorPlant("EDC", "ELC H VOLT"));
  fill(one->data());
  one->data().flow_per_unit = 0;
  one->SaveParameters();
  EXPECT_DOUBLE_EQ(one.number("CpGasFlowrate"), 5000);
}

TEST(CollectorResults, Units_of_a_gas_collector_are_counted_above_1) {
  for (const auto& [number, text] :
       {std::pair(1.0, ""), std::pair(1.5, "1"), std::pair(2.0, "2")}) {
    CollectorAtHand collector(collectorPlant("EDC", "CYCLONE"));
    collector->data().num_cyclones = number;
    collector->SaveParameters();
    EXPECT_EQ(collector.text("CpNumberItems"), text);
  }
}

TEST(CollectorResults, Cyclones_of_a_liquid_separator_are_counted_from_1) {
  for (const double number : {0.9, 1.0, 2.5}) {
    CollectorAtHand collector(collectorPlant("ESE", "WATER CYCL"));
    collector->data().num_cyclones = number;
    collector->SaveParameters();
    EXPECT_EQ(collector.has("CpNumberCyclonesPerManifold"), number >= 1.0);
    if (number < 1.0) continue;
    EXPECT_EQ(collector.number("CpNumberCyclonesPerManifold"), number);
  }
}

TEST(CollectorResults, The_report_tells_its_progress) {
  CollectorAtHand collector(collectorPlant("EDC", "CYCLONE"));
  EXPECT_EQ(collector.progressOf([](auto& object) { object.SaveParameters(); }),
            (Progress{{75, "Preparing the design report. Please Wait ..."},
                      {78, "Created design report file."},
                      {79, "Writing preliminary information."},
                      {80, "Writing design parameters"},
                      {95, "Completed sizing of VPE component"}}));
}

TEST(CollectorPorts, An_exit_with_vapor_is_a_vapor_outlet) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  itemOf(plant)["inlets"]["INLET"] = {"RAW", "DUST"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector->UpdateConnectivity(), 1);
  EXPECT_EQ(collector.text("__STREAMS__IN"), "_in__1\n_in__2");
  EXPECT_EQ(collector.text("_in__1"), "RAW\nPROCESS\nINLET");
  EXPECT_EQ(collector.text("_in__2"), "DUST\nPROCESS\nINLET");
  EXPECT_EQ(collector.text("__STREAMS__EX"), "_ex__0\n_ex__1");
  EXPECT_EQ(collector.text("_ex__0"), "CLEAN\nPROCESS\nVAPOR OUTLET");
  EXPECT_EQ(collector.text("_ex__1"), "DUST\nPROCESS\nOUTLET");
  EXPECT_FALSE(collector.has("_in_1"));
  EXPECT_FALSE(collector.has("_ex_1"));
}

TEST(CollectorResults, A_commit_writes_results_ports_and_messages) {
  CollectorAtHand collector(collectorPlant("EDC", "CYCLONE"));
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_EQ(collector->Commit(), 1);
  EXPECT_NEAR(collector.number("CpCycloneDiameter"), std::sqrt(6.4), 1e-8);
  EXPECT_EQ(collector.text("_ex__0"), "CLEAN\nPROCESS\nVAPOR OUTLET");
  EXPECT_STREQ(collector.plant.project("DC-1", "Sizing Warning(s)").Text(),
               "Max Inlet Stream's Temp.(300.000000) used as Air Temperature");
}

}  // namespace
}  // namespace sizewright
