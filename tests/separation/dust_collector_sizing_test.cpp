#include <gtest/gtest.h>

#include <cmath>

#include "separation/dust_collector_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;
using Texts = std::vector<std::string>;

constexpr double kFlow = 540000;  // CFH of the plant's inlet, 150 CFS
// The library's power has a constant of ten digits: relative 1e-9 for its square roots.
constexpr double kPowerTolerance = 1e-8;

constexpr const char* kRecalculated =
    "Cyclone diameter will be recalculated for linear velocity of 100 ft/sec.";
constexpr const char* kNumberChanged =
    "Number of cyclones changed to number of identical items given by user.";
constexpr const char* kNoDiameter = "Diameter has to be provided.";

TEST(CollectorCorrelations, A_cyclone_has_the_diameter_that_gives_its_inlet_a_velocity) {
  EXPECT_NEAR(cycloneDiameter(150, 2.5, 150), std::sqrt(6.4), kPowerTolerance);
  EXPECT_NEAR(cycloneDiameter(100, 1, 100), 4, kPowerTolerance);
  EXPECT_NEAR(cycloneDiameter(400, 1, 100), 8, kPowerTolerance);
  EXPECT_NEAR(cycloneFlow(8, 1, 100), 400, 400 * kPowerTolerance);
  EXPECT_NEAR(cycloneFlow(cycloneDiameter(77, 3, 90), 3, 90), 77, 77 * kPowerTolerance);
}

TEST(CollectorCorrelations, A_cloth_ratio_is_gas_a_minute_over_area) {
  EXPECT_DOUBLE_EQ(clothRatio(6000, 10), 10);
  EXPECT_DOUBLE_EQ(clothArea(6000, 10), 10);
}

TEST(CollectorCorrelations, An_efficiency_above_1_is_a_percentage) {
  EXPECT_EQ(efficiencyFraction(1), 1);
  EXPECT_DOUBLE_EQ(efficiencyFraction(1.5), 0.015);
  EXPECT_DOUBLE_EQ(efficiencyFraction(85), 0.85);
  EXPECT_EQ(efficiencyFraction(0.5), 0.5);
}

// --- Gas cyclones -------------------------------------------------------------------------------

TEST(Cyclone, Without_user_values_is_sized_for_150_FPS_and_an_inlet_ratio_of_2_5) {
  for (const char* item : {"CYCLONE", "MULT CYCLO", "cyclone "}) {
    for (const char* category : {"EDC", "DDC"}) {
      CollectorAtHand collector(collectorPlant(category, item));
      EXPECT_EQ(collector->Size(), 1);
      EXPECT_EQ(collector.values().inlet_ratio, 2.5);
      EXPECT_EQ(collector.values().inlet_velocity, 150);
      EXPECT_NEAR(collector.values().cyclone_dia, std::sqrt(6.4), kPowerTolerance);
      EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow);
      EXPECT_EQ(collector.values().num_cyclones, 1);
      EXPECT_EQ(collector.values().note_text.view(),
                "The diameter is sized to produce an inlet velocity\nof 150 ft/s.");
      EXPECT_EQ(collector.warnings(), Texts{});
      EXPECT_TRUE(collector->Notes().IsEmpty());
    }
  }
}

TEST(Cyclone, The_remark_tells_150_whatever_velocity_is_in_force) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  plant["criteria"]["*"]["Cyclone Inlet Linear Velocity"] = {37.5, "FPS"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_NEAR(collector.values().cyclone_dia, std::sqrt(6.4 * 4), kPowerTolerance);
  EXPECT_EQ(collector.values().note_text.view(),
            "The diameter is sized to produce an inlet velocity\nof 150 ft/s.");
}

TEST(Cyclone, A_criterion_without_sense_gives_way_to_150_FPS) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  plant["criteria"]["*"]["Cyclone Inlet Linear Velocity"] = {-5, "FPS"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().inlet_velocity, 150);
}

TEST(Cyclone, Both_sides_of_the_inlet_make_its_ratio) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  blockOf(plant)["HEIGHT OF GAS INLET (SIM)"] = {3, "FEET"};
  CollectorAtHand one(plant);
  one->Size();
  EXPECT_EQ(one.values().inlet_ratio, 2.5);
  blockOf(plant)["WIDTH OF GAS INLET (SIM)"] = {0.75, "FEET"};
  CollectorAtHand both(plant);
  both->Size();
  EXPECT_DOUBLE_EQ(both.values().inlet_ratio, 4);
  EXPECT_NEAR(both.values().cyclone_dia, 2, kPowerTolerance);
}

TEST(Cyclone, A_diameter_that_is_given_stays) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  recordOf(plant)["CpCycloneDiameter"] = {7, "FEET"};
  blockOf(plant)["EFFICIENCY OF CYCLONE (SIM)"] = 85;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().cyclone_dia, 7);
}

TEST(Cyclone, An_efficiency_below_1_widens_it) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  blockOf(plant)["EFFICIENCY OF CYCLONE (SIM)"] = 85;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().efficiency, 0.85);
  EXPECT_NEAR(collector.values().cyclone_dia, std::sqrt(6.4) / 0.85, kPowerTolerance);
}

TEST(Cyclone, A_negative_efficiency_does_nothing) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  blockOf(plant)["EFFICIENCY OF CYCLONE (SIM)"] = -3;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_NEAR(collector.values().cyclone_dia, std::sqrt(6.4), kPowerTolerance);
}

struct GivenFlowCase {
  double share;  // of the flow that the streams tell
  bool recalculated;
};
class CycloneOfGivenFlow : public testing::TestWithParam<GivenFlowCase> {};
INSTANTIATE_TEST_SUITE_P(Tolerance, CycloneOfGivenFlow,
                         testing::Values(GivenFlowCase{1.0, false}, GivenFlowCase{1.09, false},
                                         GivenFlowCase{0.91, false}, GivenFlowCase{1.11, true},
                                         GivenFlowCase{0.89, true}));

TEST_P(CycloneOfGivenFlow, Is_resized_when_the_flow_is_more_than_a_tenth_away) {
  const auto& [share, recalculated] = GetParam();
  for (const bool ofRecord : {true, false}) {
    Plant plant = collectorPlant("EDC", "MULT CYCLO");
    recordOf(plant)["CpCycloneDiameter"] = {7, "FEET"};
    if (ofRecord) {
      recordOf(plant)["CpGasFlowrate"] = {kFlow * share, "CFH"};
      blockOf(plant)["FLOW RATE"] = {1, "CFH"};
    } else {
      blockOf(plant)["FLOW RATE"] = {kFlow * share, "CFH"};
    }
    CollectorAtHand collector(plant, 1);
    EXPECT_EQ(collector->Size(), 1);
    EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow * share);
    EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, kFlow);
    const double diameter = recalculated ? std::sqrt(6.4 * share) : 7;
    EXPECT_NEAR(collector.values().cyclone_dia, diameter, kPowerTolerance);
    EXPECT_EQ(collector.warnings(), recalculated ? Texts{kRecalculated} : Texts{});
    EXPECT_TRUE(collector.plant.dialogTexts().empty());
  }
}

TEST(Cyclone, A_flow_a_tenth_away_from_the_volumetric_one_is_near_enough) {
  for (const auto& [given, warnings] :
       {std::pair(1100.0, Texts{}), std::pair(1101.0, Texts{kRecalculated})}) {
    Plant plant = collectorPlant("EDC", "CYCLONE");
    recordOf(plant) = {{"VOLUMETRIC FLOW RATE", {1000, "CFH"}}, {"CpGasFlowrate", {given, "CFH"}}};
    CollectorAtHand collector(plant);
    collector->Size();
    EXPECT_EQ(collector.warnings(), warnings) << given;
  }
}

TEST(Cyclone, The_velocity_used_is_not_the_100_of_the_warning) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  plant["criteria"]["*"]["Cyclone Inlet Linear Velocity"] = {75, "FPS"};
  recordOf(plant) = {{"CpGasFlowrate", {kFlow / 2, "CFH"}}, {"CpCycloneDiameter", {7, "FEET"}}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.warnings(), Texts{kRecalculated});
  EXPECT_NEAR(collector.values().cyclone_dia, std::sqrt(6.4), kPowerTolerance);
}

struct CountCase {
  double share;  // of one unit in the flow of all
  double units;
};
class CycloneCount : public testing::TestWithParam<CountCase> {};
INSTANTIATE_TEST_SUITE_P(Thresholds, CycloneCount,
                         testing::Values(CountCase{2, 1}, CountCase{1, 1}, CountCase{0.5, 1},
                                         CountCase{0.51, 1}, CountCase{0.49, 3}, CountCase{0.25, 4},
                                         CountCase{0.24, 5}));

TEST_P(CycloneCount, Is_raised_when_the_flows_need_more_than_one_unit_more) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  recordOf(plant)["CpGasFlowrate"] = {kFlow * GetParam().share, "CFH"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().num_cyclones, GetParam().units);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow * GetParam().share);
}

TEST_P(CycloneCount, Of_a_multiple_cyclone_stays) {
  Plant plant = collectorPlant("EDC", "MULT CYCLO");
  recordOf(plant)["CpGasFlowrate"] = {kFlow * GetParam().share, "CFH"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().num_cyclones, 1);
}

TEST(Cyclone, Several_share_the_flow) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  blockOf(plant)["NUMBER OF CYCLONE"] = 4;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow / 4);
  EXPECT_NEAR(collector.values().cyclone_dia, std::sqrt(1.6), kPowerTolerance);
  EXPECT_EQ(collector.values().num_cyclones, 4);
}

TEST(Cyclone, A_flow_too_small_to_count_follows_from_the_diameter) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  slotsOf(plant, "RAW")["VAPOR MASS FLOW"] = {1e-200, "LB/H"};
  recordOf(plant) = {{"NUMBER OF CYCLONE", 1e200}, {"CpCycloneDiameter", {2, "FEET"}}};
  CollectorAtHand collector(plant);
  collector->Size();
  // 4 x 2.5 x 150 / 16 CFS
  EXPECT_NEAR(collector.values().flow_per_unit, 93.75 * 3600, 1);
  EXPECT_EQ(collector.values().num_cyclones, 1e200);
}

// --- The number of identical items --------------------------------------------------------------

class CollectorItems : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Roads, CollectorItems,
                         testing::Values("CYCLONE", "MULT CYCLO", "PULSE SHKR", "CLOTH BAY",
                                         "SOME OTHER"));

TEST_P(CollectorItems, Override_the_number_of_cyclones_with_a_warning) {
  Plant plant = collectorPlant("EDC", GetParam());
  recordOf(plant) = {{"CpNumberItems", 3}, {"NUMBER OF CYCLONE", 2}};
  CollectorAtHand collector(plant, 1);
  collector->Size();
  EXPECT_EQ(collector.values().num_cyclones, 3);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow / 3);
  EXPECT_EQ(collector.warnings(), Texts{kNumberChanged});
  EXPECT_TRUE(collector.plant.dialogTexts().empty());
}

TEST_P(CollectorItems, Give_the_number_without_a_warning_where_there_was_none) {
  Plant plant = collectorPlant("EDC", GetParam());
  recordOf(plant)["CpNumberItems"] = 3;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().num_cyclones, 3);
  EXPECT_EQ(collector.warnings(), Texts{});
}

TEST_P(CollectorItems, Up_to_1_leave_the_number_of_cyclones) {
  Plant plant = collectorPlant("EDC", GetParam());
  recordOf(plant) = {{"CpNumberItems", 1}, {"NUMBER OF CYCLONE", 2}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().num_cyclones, 2);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow / 2);
  EXPECT_EQ(collector.warnings(), Texts{});
}

TEST_P(CollectorItems, A_flow_of_one_unit_that_is_given_is_taken) {
  Plant plant = collectorPlant("EDC", GetParam());
  recordOf(plant) = {{"CpNumberItems", 2}, {"CpGasFlowrate", {250000, "CFH"}}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, 250000);
  EXPECT_EQ(collector.values().num_cyclones, 2);
}

TEST(Washers, Are_left_alone) {
  Plant plant = collectorPlant("EDC", "WASHERS");
  recordOf(plant) = {{"CpNumberItems", 3}, {"CpGasFlowrate", {250000, "CFH"}}};
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_EQ(collector.values().num_cyclones, 1);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow);
}

TEST(CollectorSizing, A_second_run_finds_the_same) {
  for (const char* item : {"CYCLONE", "MULT CYCLO", "PULSE SHKR", "ELC L VOLT", "SOME OTHER"}) {
    Plant plant = collectorPlant("EDC", item);
    recordOf(plant)["CpNumberItems"] = 3;
    CollectorAtHand collector(plant);
    collector->Size();
    const DustCollectorData first = collector.values();
    EXPECT_EQ(collector->Size(), 1);
    EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, kFlow) << item;
    EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, first.flow_per_unit) << item;
    EXPECT_DOUBLE_EQ(collector.values().cyclone_dia, first.cyclone_dia) << item;
    EXPECT_DOUBLE_EQ(collector.values().filter_area, first.filter_area) << item;
    EXPECT_EQ(collector.values().num_cyclones, first.num_cyclones) << item;
  }
}

// --- Bag houses ---------------------------------------------------------------------------------

TEST(BagHouse, Without_areas_has_the_ratio_of_its_item) {
  for (const auto& [item, ratio] : {std::pair("PULSE SHKR", 10.0), std::pair("CLOTH BAY", 2.5)}) {
    CollectorAtHand collector(collectorPlant("EDC", item));
    EXPECT_EQ(collector->Size(), 1);
    EXPECT_EQ(collector.values().air_to_cloth, ratio);
    EXPECT_DOUBLE_EQ(collector.values().filter_area, kFlow / (ratio * 60));
    EXPECT_EQ(collector.values().num_cyclones, 1);
    EXPECT_EQ(collector.values().cyclone_dia, 0.0);
  }
}

TEST(BagHouse, An_area_of_the_fixed_ratio_is_divided_by_the_efficiency) {
  Plant plant = collectorPlant("EDC", "PULSE SHKR");
  blockOf(plant)["EFFICIENCY OF CYCLONE (SIM)"] = 80;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().filter_area, 900 / 0.8);
}

TEST(BagHouse, A_given_area_tells_the_ratio_and_stays) {
  Plant plant = collectorPlant("EDC", "PULSE SHKR");
  recordOf(plant)["CpSurfaceArea"] = {3000, "SF"};
  blockOf(plant)["EFFICIENCY OF CYCLONE (SIM)"] = 80;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().air_to_cloth, 3);
  EXPECT_EQ(collector.values().filter_area, 3000);
}

TEST(BagHouse, Bags_and_cells_make_the_area) {
  Plant plant = collectorPlant("EDC", "CLOTH BAY");
  recordOf(plant) = {
      {"BAGHOUSE FILTER AREA/BAG", {15, "SF"}}, {"NUMBER OF BAGS/CELL", 50}, {"CpNumberCells", 5}};
  blockOf(plant) = {{"NUMBER OF CELLS BEING CLEANED", 1}, {"EFFICIENCY OF CYCLONE (SIM)", 80}};
  CollectorAtHand collector(plant);
  collector->Size();
  // 15 x 50 SF a cell, 4 cells at work of 5 that share the flow
  EXPECT_DOUBLE_EQ(collector.values().air_to_cloth, 3);
  EXPECT_DOUBLE_EQ(collector.values().filter_area, 600);  // not divided by the efficiency
  EXPECT_EQ(collector.values().num_cyclones, 5);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow / 5);
}

TEST(BagHouse, The_net_area_goes_before_a_given_one_for_the_ratio) {
  Plant plant = collectorPlant("EDC", "CLOTH BAY");
  recordOf(plant) = {{"BAGHOUSE FILTER AREA/BAG", {1500, "SF"}}, {"FILTER AREA", {100, "SF"}}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().air_to_cloth, 6);
  EXPECT_EQ(collector.values().filter_area, 100);
}

TEST(BagHouse, Without_a_cell_at_work_there_is_no_net_area) {
  Plant plant = collectorPlant("EDC", "CLOTH BAY");
  recordOf(plant)["BAGHOUSE FILTER AREA/BAG"] = {1500, "SF"};
  blockOf(plant)["NUMBER OF CELLS BEING CLEANED"] = 1;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().air_to_cloth, 2.5);
  EXPECT_DOUBLE_EQ(collector.values().filter_area, 3600);
}

struct BagSourceCase {
  Plant record;
  Plant block;
  double area;   // SF of one unit
  double cells;  // that share it
};
class BagSources : public testing::TestWithParam<BagSourceCase> {};
INSTANTIATE_TEST_SUITE_P(
    Slots, BagSources,
    testing::Values(
        BagSourceCase{
            {{"CpNumberCells", 4}, {"NUMBER OF CELLS", 9}}, {{"AREA PER BAG", 20}}, 20, 4},
        BagSourceCase{
            {{"NUMBER OF CELLS", 9}}, {{"NUMBER OF CELLS", 7}, {"AREA PER BAG", 20}}, 20, 9},
        BagSourceCase{{}, {{"NUMBER OF CELLS", 7}, {"AREA PER BAG", 20}}, 20, 7},
        BagSourceCase{{{"CpNumberCells", 0.5}}, {{"AREA PER BAG", 20}}, 20, 1},
        BagSourceCase{{{"BAGHOUSE FILTER AREA/BAG", 11}},
                      {{"BAGHOUSE FILTER AREA/BAG", 12}, {"AREA PER BAG", 20}},
                      11,
                      1},
        BagSourceCase{{}, {{"BAGHOUSE FILTER AREA/BAG", 12}, {"AREA PER BAG", 20}}, 12, 1},
        BagSourceCase{{{"NUMBER OF BAGS/CELL", 3}},
                      {{"NUMBER BAGS PER CELL", 5}, {"AREA PER BAG", 20}},
                      60,
                      1},
        BagSourceCase{{}, {{"NUMBER BAGS PER CELL", 5}, {"AREA PER BAG", 20}}, 100, 1},
        // names that count on the other object only
        BagSourceCase{{{"NUMBER BAGS PER CELL", 5}, {"NUMBER OF CELLS BEING CLEANED", 1}},
                      {{"NUMBER OF BAGS/CELL", 3}, {"CpNumberCells", 4}, {"AREA PER BAG", 20}},
                      20,
                      1}));

TEST_P(BagSources, Tell_cells_and_bags_in_order) {
  Plant plant = collectorPlant("EDC", "CLOTH BAY");
  if (!GetParam().record.is_null()) recordOf(plant) = GetParam().record;
  blockOf(plant) = GetParam().block;
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().filter_area, GetParam().area);
  EXPECT_EQ(collector.values().num_cyclones, GetParam().cells);
}

TEST(BagHouse, Cells_do_not_replace_a_number_of_units) {
  Plant plant = collectorPlant("EDC", "CLOTH BAY");
  recordOf(plant) = {{"NUMBER OF CYCLONE", 2}, {"CpNumberCells", 6}};
  blockOf(plant)["AREA PER BAG"] = {20, "SF"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().filter_area, 60);
  EXPECT_EQ(collector.values().num_cyclones, 2);
}

struct InjectedCase {
  double flow;  // CFH
  double area;
  double units;
};
class InjectedGasBagHouse : public testing::TestWithParam<InjectedCase> {};
INSTANTIATE_TEST_SUITE_P(Limit, InjectedGasBagHouse,
                         testing::Values(InjectedCase{3599400, 5999, 2},
                                         InjectedCase{3600000, 6000, 2},
                                         InjectedCase{3600600, 6000, 4},
                                         InjectedCase{7200600, 6000, 6}));

TEST_P(InjectedGasBagHouse, Has_units_of_at_most_6000_SF) {
  CollectorAtHand collector(collectorPlant("EDC", "PULSE SHKR"));
  collector->data().num_cyclones = 2;
  collector->data().total_gas_flow = GetParam().flow * 2;
  collector->dc_bag_calc_inj_area();
  EXPECT_EQ(collector.values().air_to_cloth, 600);  // 10 CFM a SF, told by the hour
  EXPECT_DOUBLE_EQ(collector.values().filter_area, GetParam().area);
  EXPECT_EQ(collector.values().num_cyclones, GetParam().units);
}

TEST(InjectedGasBagHouses, Keep_a_ratio_that_is_given) {
  CollectorAtHand collector(collectorPlant("EDC", "PULSE SHKR"));
  collector->data().air_to_cloth = 5;
  collector->data().flow_per_unit = 3000;
  collector->dc_bag_calc_inj_area();
  EXPECT_DOUBLE_EQ(collector.values().filter_area, 10);
}

// --- Precipitators ------------------------------------------------------------------------------

TEST(Precipitator, Shares_the_flow_between_the_items) {
  for (const char* item : {"ELC L VOLT", "ELC H VOLT"}) {
    Plant plant = collectorPlant("EDC", item);
    recordOf(plant)["CpNumberItems"] = 3;
    CollectorAtHand collector(plant);
    EXPECT_EQ(collector->Size(), 1);
    EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow / 3);
    EXPECT_EQ(collector.warnings(), Texts{});
    recordOf(plant)["CpGasFlowrate"] = {7777, "CFH"};
    CollectorAtHand given(plant);
    given->Size();
    EXPECT_DOUBLE_EQ(given.values().flow_per_unit, 7777) << item;
  }
}

TEST(Precipitator, The_items_do_not_count_as_cyclones) {
  Plant plant = collectorPlant("EDC", "ELC L VOLT");
  recordOf(plant) = {{"CpNumberItems", 3}, {"NUMBER OF CYCLONE", 2}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().num_cyclones, 2);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow / 3);
}

TEST(Precipitator, One_of_low_voltage_takes_all_the_flow) {
  CollectorAtHand collector(collectorPlant("EDC", "ELC L VOLT"));
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, kFlow);
}

// --- Liquid separators --------------------------------------------------------------------------

TEST(LiquidSeparator, Without_a_diameter_there_is_a_warning) {
  for (const char* item : {"WATER CYCL", "OIL WATER", "PULP STOCK"}) {
    CollectorAtHand silent(collectorPlant("ESE", item), 0);
    EXPECT_EQ(silent->Size(), 1);
    EXPECT_EQ(silent.warnings(), Texts{kNoDiameter});
    EXPECT_EQ(silent.plant.dialogTexts(), Texts{});
    CollectorAtHand shown(collectorPlant("DSE", item), 1);
    EXPECT_EQ(shown->Size(), 1);
    EXPECT_EQ(shown.plant.dialogTexts(), Texts{kNoDiameter});
    EXPECT_EQ(shown.plant.host().log().dialogs().front().title, "");  // plain text, no box
  }
}

TEST(LiquidSeparator, Takes_the_flow_of_its_streams) {
  CollectorAtHand collector(collectorPlant("ESE", "WATER CYCL"));
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, 1000);
}

struct LiquidCase {
  const char* item;
  const char* record;  // slots as JSON
  const char* block;
  double flow;
  double diameter;
  double length;
  double gravity;
  double cyclones;
};
class LiquidValues : public testing::TestWithParam<LiquidCase> {};
INSTANTIATE_TEST_SUITE_P(
    Slots, LiquidValues,
    testing::Values(
        LiquidCase{"WATER CYCL",
                   R"({"CpSolidFlowrate": [6240, "LB/H"], "CpNumberCyclonesPerManifold": 3.5,
                       "CpCycloneDiameter": [2, "FEET"]})",
                   R"({"CAPACITY": [624, "LB/H"], "NO. CYCLONE/MANIFOLD": 8})", 100, 2, 0, 0.5,
                   3.5},
        LiquidCase{"WATER CYCL", "{}",
                   R"J({"CAPACITY": [624, "LB/H"], "NO. CYCLONE/MANIFOLD": 8,
                       "LENGTH OF CYCLONE (SIM)": [9, "FEET"], "CpDiameterWidth": [1, "FEET"]})J",
                   10, 0, 9, 0.5, 8},
        LiquidCase{"OIL WATER",
                   R"({"CpLiquidFlowrate": [55, "CFH"], "CpDiameterWidth": [2, "FEET"],
                       "CpLength": [20, "FEET"], "CpOilSpecificGravity": 0.9,
                       "CpNumberCyclonesPerManifold": 3.5})",
                   R"({"FLOW RATE": [66, "CFH"], "DIAMETER OR WIDTH": [3, "FEET"],
                       "Length": [30, "FEET"], "OIL SPECIFIC GRAVITY": 0.8})",
                   55, 2, 20, 0.9, 4},
        LiquidCase{"OIL WATER", "{}",
                   R"({"FLOW RATE": [66, "CFH"], "DIAMETER OR WIDTH": [3, "FEET"],
                       "Length": [30, "FEET"], "OIL SPECIFIC GRAVITY": 0.8,
                       "NO. CYCLONE/MANIFOLD": 2.1})",
                   66, 3, 30, 0.8, 3},
        LiquidCase{"PULP STOCK",
                   R"({"CpLiquidFlowrate": [55, "CFH"], "CpCycloneDiameter": [2, "FEET"],
                       "CpLength": [20, "FEET"], "CpOilSpecificGravity": 0.9})",
                   R"({"CAPACITY": [66, "CFH"], "CYCLONE DIAMETER": [3, "FEET"]})", 55, 2, 0, 0.5,
                   1},
        LiquidCase{"PULP STOCK", R"({"CpNumberCyclonesPerManifold": 2.5})",
                   R"({"CAPACITY": [66, "CFH"], "CYCLONE DIAMETER": [3, "FEET"]})", 66, 3, 0, 0.5,
                   2.5},
        LiquidCase{"SKIMMER", R"({"CpLiquidFlowrate": [55, "CFH"]})", "{}", 1000, 0, 0, 0.5, 1}));

TEST_P(LiquidValues, Pass_through_from_the_record_and_the_block) {
  Plant plant = collectorPlant("ESE", GetParam().item);
  slotsOf(plant, "DUST")["LIQUID MASS DENSITY"] = {31.2, "PCF"};  // gravity 0.5
  recordOf(plant) = Plant::parse(GetParam().record);
  blockOf(plant) = Plant::parse(GetParam().block);
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, GetParam().flow);
  EXPECT_DOUBLE_EQ(collector.values().cyclone_dia, GetParam().diameter);
  EXPECT_DOUBLE_EQ(collector.values().cyclone_length, GetParam().length);
  EXPECT_DOUBLE_EQ(collector.values().oil_gravity, GetParam().gravity);
  EXPECT_EQ(collector.values().num_cyclones, GetParam().cyclones);
  EXPECT_EQ(collector.warnings(), GetParam().diameter > 0 ? Texts{} : Texts{kNoDiameter});
}

TEST(LiquidSeparator, A_flow_that_is_given_needs_no_flow_in_the_streams) {
  Plant plant = collectorPlant("ESE", "PULP STOCK");
  slotsOf(plant, "RAW").erase("LIQUID MASS FLOW");
  recordOf(plant)["CpLiquidFlowrate"] = {55, "CFH"};
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, 55);
}

TEST(LiquidSeparator, Is_not_split_into_identical_items) {
  Plant plant = collectorPlant("ESE", "CYCLONE");
  recordOf(plant) = {{"CpNumberItems", 3}, {"CpGasFlowrate", {5, "CFH"}}};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().num_cyclones, 1);
  EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, 1000);
  EXPECT_EQ(collector.values().note_text.view(), "");  // the category goes before the item
}

}  // namespace
}  // namespace sizewright
