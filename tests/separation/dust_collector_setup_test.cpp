#include <gtest/gtest.h>

#include <tuple>

#include "separation/dust_collector_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

TEST(CollectorSetup, Without_user_values_has_its_defaults) {
  CollectorAtHand collector(collectorPlant("EDC", "WASHERS"));
  EXPECT_EQ(collector->Size(), 1);
  const DustCollectorData& values = collector.values();
  EXPECT_EQ(values.name.view(), "DC-1");
  EXPECT_EQ(values.material.view(), "");
  EXPECT_EQ(values.gas_name.view(), "Air");
  EXPECT_EQ(values.note_text.view(), "");
  EXPECT_EQ(values.inlet_velocity, 150);
  EXPECT_EQ(values.num_items, 1);
  EXPECT_EQ(values.num_cyclones, 1);
  EXPECT_EQ(values.efficiency, 1);
  EXPECT_EQ(values.filter_area, 0);
}

TEST(CollectorSetup, The_inlet_velocity_is_a_criterion) {
  Plant plant = collectorPlant("EDC", "WASHERS");
  plant["criteria"]["COLLECTOR"]["Cyclone Inlet Linear Velocity"] = {6000, "FPM"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_NEAR(collector.values().inlet_velocity, 100, 1e-9);
}

struct NumberCase {
  const char* slot;
  const char* units;
  double DustCollectorData::*field;
};
using D = DustCollectorData;

class CollectorNumber : public testing::TestWithParam<NumberCase> {};
INSTANTIATE_TEST_SUITE_P(
    Slots, CollectorNumber,
    testing::Values(NumberCase{"CpNumberItems", nullptr, &D::num_items},
                    NumberCase{"NUMBER OF CYCLONE", nullptr, &D::num_cyclones},
                    NumberCase{"CpSurfaceArea", "SF", &D::filter_area},
                    NumberCase{"SURFACE AREA", "SF", &D::filter_area},
                    NumberCase{"FILTER AREA", "SF", &D::filter_area},
                    NumberCase{"CpCycloneDiameter", "FEET", &D::cyclone_dia},
                    NumberCase{"Diameter", "FEET", &D::cyclone_dia},
                    NumberCase{"HEIGHT OF GAS INLET (SIM)", "FEET", &D::inlet_height},
                    NumberCase{"WIDTH OF GAS INLET (SIM)", "FEET", &D::inlet_width},
                    NumberCase{"INLET LIQUID VELOCITY (SIM)", "FPS", &D::liquid_velocity},
                    NumberCase{"LENGTH OF CYCLONE (SIM)", "FEET", &D::cyclone_length},
                    NumberCase{"VOLUMETRIC FLOW RATE", "CFH", &D::flow_per_unit}));

TEST_P(CollectorNumber, Comes_from_the_record_and_then_from_the_block) {
  const auto& [slot, units, field] = GetParam();
  const auto value = [&](double number) {
    return units != nullptr ? Plant{number, units} : Plant(number);
  };
  Plant plant = collectorPlant("EDC", "WASHERS");
  blockOf(plant)[slot] = value(7);
  CollectorAtHand ofBlock(plant);
  ofBlock->Size();
  EXPECT_DOUBLE_EQ(ofBlock.values().*field, 7);
  recordOf(plant)[slot] = value(5);
  CollectorAtHand ofRecord(plant);
  ofRecord->Size();
  EXPECT_DOUBLE_EQ(ofRecord.values().*field, 5);
  recordOf(plant)[slot] = value(0);
  CollectorAtHand unset(plant);
  unset->Size();
  EXPECT_DOUBLE_EQ(unset.values().*field, 7);
}

TEST(CollectorSetup, Slots_of_one_quantity_have_an_order) {
  Plant plant = collectorPlant("EDC", "WASHERS");
  recordOf(plant) = {{"FILTER AREA", {1, "SF"}},      {"SURFACE AREA", {2, "SF"}},
                     {"CpSurfaceArea", {3, "SF"}},    {"Diameter", {4, "FEET"}},
                     {"CpCycloneDiameter", {5, "M"}}, {"mat'l of construction", "brass"},
                     {"CpMaterial", "A 285C"}};
  CollectorAtHand first(plant);
  first->Size();
  EXPECT_DOUBLE_EQ(first.values().filter_area, 3);
  EXPECT_NEAR(first.values().cyclone_dia, 5 / 0.3048, 1e-9);
  EXPECT_EQ(first.values().material.view(), "A 285C");
  recordOf(plant).erase("CpSurfaceArea");
  CollectorAtHand second(plant);
  second->Size();
  EXPECT_DOUBLE_EQ(second.values().filter_area, 2);
}

TEST(CollectorSetup, A_number_of_cyclones_up_to_1_counts_as_1) {
  for (const auto& [record, block, number] :
       {std::tuple(1.0, 4.0, 4.0), std::tuple(0.5, 0.5, 1.0), std::tuple(-2.0, 1.0, 1.0),
        std::tuple(2.0, 4.0, 2.0)}) {
    Plant plant = collectorPlant("EDC", "WASHERS");
    recordOf(plant)["NUMBER OF CYCLONE"] = record;
    blockOf(plant)["NUMBER OF CYCLONE"] = block;
    CollectorAtHand collector(plant);
    collector->Size();
    EXPECT_EQ(collector.values().num_cyclones, number);
    EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, 540000 / number);
  }
}

TEST(CollectorSetup, Material_and_gas_come_from_the_record_and_then_from_the_block) {
  Plant plant = collectorPlant("EDC", "WASHERS");
  blockOf(plant) = {{"CpMaterial", "SS304"}, {"gas", "Flue gas"}};
  CollectorAtHand ofBlock(plant);
  ofBlock->Size();
  EXPECT_EQ(ofBlock.values().material.view(), "SS304");
  EXPECT_EQ(ofBlock.values().gas_name.view(), "Flue gas");
  recordOf(plant) = {{"mat'l of construction", "brass"}, {"gas", "Steam"}};
  CollectorAtHand ofRecord(plant);
  ofRecord->Size();
  EXPECT_EQ(ofRecord.values().material.view(), "brass");
  EXPECT_EQ(ofRecord.values().gas_name.view(), "Steam");
}

TEST(CollectorSetup, A_volumetric_flow_of_one_unit_outranks_the_streams) {
  Plant plant = collectorPlant("EDC", "WASHERS");
  recordOf(plant) = {{"VOLUMETRIC FLOW RATE", {1000, "CFM"}}, {"NUMBER OF CYCLONE", 3}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_NEAR(collector.values().flow_per_unit, 60000, 1e-6);
  EXPECT_NEAR(collector.values().total_gas_flow, 180000, 1e-6);
}

TEST(CollectorSetup, A_gas_flow_that_is_given_stands_in_for_streams_without_flow) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  slotsOf(plant, "RAW").erase("VAPOR MASS FLOW");
  recordOf(plant) = {{"CpGasFlowrate", {180000, "CFH"}}, {"NUMBER OF CYCLONE", 3}};
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, 540000);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, 180000);
  EXPECT_EQ(collector.values().num_cyclones, 3);
  EXPECT_TRUE(collector.warnings().empty());
}

struct EfficiencyCase {
  double cyclone;  // "EFFICIENCY OF CYCLONE (SIM)", 0: missing
  double other;    // "EFFICIENCY (SIM)"
  double fraction;
};
class CollectorEfficiency : public testing::TestWithParam<EfficiencyCase> {};
INSTANTIATE_TEST_SUITE_P(
    Values, CollectorEfficiency,
    testing::Values(EfficiencyCase{0, 0, 1}, EfficiencyCase{85, 0, 0.85},
                    EfficiencyCase{0.85, 0.5, 0.85}, EfficiencyCase{1, 0.5, 1},
                    EfficiencyCase{1.1, 0.5, 0.011}, EfficiencyCase{0.011, 0.5, 0.011},
                    EfficiencyCase{0.01, 0.5, 0.5}, EfficiencyCase{0.009, 90, 0.9},
                    EfficiencyCase{0.009, 0, 0.009}, EfficiencyCase{0, 0.5, 1}));

TEST_P(CollectorEfficiency, Is_a_fraction_of_what_the_block_or_the_record_tells) {
  const auto& [cyclone, other, fraction] = GetParam();
  for (const bool ofRecord : {false, true}) {
    Plant plant = collectorPlant("EDC", "WASHERS");
    Plant& slots = ofRecord ? recordOf(plant) : blockOf(plant);
    if (cyclone > 0) slots["EFFICIENCY OF CYCLONE (SIM)"] = cyclone;
    if (other > 0) slots["EFFICIENCY (SIM)"] = other;
    CollectorAtHand collector(plant);
    collector->Size();
    EXPECT_DOUBLE_EQ(collector.values().efficiency, fraction);
  }
}

// --- Precipitator of high voltage ---------------------------------------------------------------

TEST(HighVoltageSetup, Reads_efficiency_and_migration_velocity_only) {
  Plant plant = collectorPlant("EDC", "elc h volt");
  recordOf(plant) = {{"CpRemovalEfficiencyPercent", 98.5},
                     {"CpMigrationVelocity", {60, "FPM"}},
                     {"VOLUMETRIC FLOW RATE", {77, "CFH"}},
                     {"NUMBER OF CYCLONE", 4},
                     {"CpSurfaceArea", {99, "SF"}}};
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_EQ(collector.values().efficiency, 98.5);  // as it is given
  EXPECT_NEAR(collector.values().migration_velocity, 1, 1e-12);
  EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, 540000);
  EXPECT_EQ(collector.values().flow_per_unit, 0.0);
  EXPECT_EQ(collector.values().num_cyclones, 0.0);
  EXPECT_EQ(collector.values().filter_area, 0.0);
  EXPECT_EQ(collector.values().gas_name.view(), "");
  EXPECT_EQ(collector.values().name.view(), "DC-1");
}

TEST(HighVoltageSetup, The_block_tells_the_velocity_as_a_volume_ratio) {
  Plant plant = collectorPlant("EDC", "ELC H VOLT");
  blockOf(plant) = {{"OVERALL EFFICIENCY", 0.97}, {"VOLUME RATIO", {0.3048, "M/S"}}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().efficiency, 0.97);
  EXPECT_NEAR(collector.values().migration_velocity, 1, 1e-12);
}

TEST(HighVoltageSetup, Without_values_is_perfectly_efficient) {
  CollectorAtHand collector(collectorPlant("EDC", "ELC H VOLT"));
  collector->Size();
  EXPECT_EQ(collector.values().efficiency, 1);
  EXPECT_EQ(collector.values().migration_velocity, 0);
}

TEST(HighVoltageSetup, A_gas_flow_that_is_given_does_not_stand_in_for_the_streams) {
  Plant plant = collectorPlant("EDC", "ELC H VOLT");
  slotsOf(plant, "RAW").erase("VAPOR MASS FLOW");
  recordOf(plant)["CpGasFlowrate"] = {1000, "CFH"};
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 0);
}

// --- The rest of the class ----------------------------------------------------------------------

TEST(CollectorForm, There_is_none) {
  CollectorAtHand collector(collectorPlant("EDC", "CYCLONE"));
  EXPECT_EQ(collector->GetLastInfo(), 0);
  EXPECT_EQ(collector.values().inlet_velocity, 0.0);  // nothing was read
  CStrList names = {"CpNumberItems"};
  CStrList values = {"5"};
  CStrList none;
  EXPECT_EQ(collector->SetValues(names, values), 1);
  EXPECT_EQ(collector->SetValues(none, values), 0);
  EXPECT_EQ(collector.values().num_items, 0.0);
  collector->ReturnValues(names, values);
  EXPECT_TRUE(names.IsEmpty());
  EXPECT_TRUE(values.IsEmpty());
}

TEST(CollectorState, Initialize_restores_the_fresh_state) {
  CollectorAtHand collector(collectorPlant("EDC", "CYCLONE"));
  collector->Size();
  EXPECT_EQ(collector->Initialize(), 1);
  EXPECT_EQ(collector.values().cyclone_dia, 0.0);
  EXPECT_EQ(collector.values().note_text.view(), "");
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_GT(collector.values().cyclone_dia, 0.0);
}

}  // namespace
}  // namespace sizewright
