#include <gtest/gtest.h>

#include "separation/dust_collector_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;
using Progress = CollectorAtHand::Progress;

constexpr const char* kNoFlow = "No inlet vapor flow specified.";

TEST(CollectorStreams, Gas_collectors_are_read_by_vapor_and_others_by_liquid) {
  struct Case {
    const char* category;
    double flow;
  };
  for (const auto& [category, flow] :
       {Case{"EDC", 540000}, Case{"DDC", 540000}, Case{"ddc", 540000}, Case{"ESE", 1000},
        Case{"DSE", 1000}, Case{"EXX", 1000}}) {
    CollectorAtHand collector(collectorPlant(category, "WASHERS"));
    EXPECT_EQ(collector->Size(), 1) << category;
    EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, flow) << category;
    EXPECT_DOUBLE_EQ(collector.values().flow_per_unit, flow) << category;
  }
}

TEST(CollectorStreams, A_density_that_is_missing_is_that_of_air_or_water) {
  for (const auto& [category, flow] :
       {std::pair("EDC", 54000 / 0.081), std::pair("ESE", 50000 / 62.4)}) {
    Plant plant = collectorPlant(category, "WASHERS");
    slotsOf(plant, "RAW").erase("VAPOR MASS DENSITY");
    slotsOf(plant, "RAW").erase("LIQUID MASS DENSITY");
    CollectorAtHand collector(plant);
    collector->Size();
    EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, flow);
  }
}

TEST(CollectorStreams, Flows_of_the_inlets_are_summed_where_flow_and_density_are_positive) {
  Plant plant = collectorPlant("EDC", "WASHERS");
  plant["streams"]["MORE"]["slots"] = {{"VAPOR MASS FLOW", {45359.237, "KG/H"}},
                                       {"VAPOR MASS DENSITY", {0.5, "PCF"}}};
  plant["streams"]["BACK"]["slots"] = {{"VAPOR MASS FLOW", {-500, "LB/H"}}};
  plant["streams"]["ODD"]["slots"] = {{"VAPOR MASS FLOW", {500, "LB/H"}},
                                      {"VAPOR MASS DENSITY", {-1, "PCF"}}};
  itemOf(plant)["inlets"]["INLET"] = {"RAW", "MORE", "BACK", "ODD", "GHOST"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_NEAR(collector.values().total_gas_flow, 540000 + 200000, 1e-6);
}

TEST(CollectorStreams, Names_that_are_blank_or_begin_with_none_are_skipped) {
  Plant plant = collectorPlant("EDC", "WASHERS");
  plant["streams"]["none too hot"]["slots"] = {{"VAPOR MASS FLOW", {500, "LB/H"}},
                                               {"LIQUID MASS DENSITY", {31.2, "PCF"}}};
  CollectorAtHand collector(plant);
  void* streams = list2_create();
  for (const char* name : {"   ", "NONE", "none too hot", "RAW  "}) {
    list2_append_to_end(streams, name);
  }
  EXPECT_EQ(collector->SetInletStreams(streams), 1);
  EXPECT_EQ(collector->SetExitStreams(streams), 1);
  list2_delete(streams);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, 540000);
  EXPECT_DOUBLE_EQ(collector.values().oil_gravity, 50 / 62.4);
}

TEST(CollectorStreams, Without_flow_sizing_is_refused) {
  for (const char* item : {"CYCLONE", "CLOTH BAY", "ELC H VOLT", "WASHERS"}) {
    Plant plant = collectorPlant("EDC", item);
    slotsOf(plant, "RAW").erase("VAPOR MASS FLOW");
    CollectorAtHand collector(plant, 1);
    EXPECT_EQ(collector->Size(), 0) << item;
    EXPECT_EQ(collector->Errors().GetLength(), 1);
    EXPECT_TRUE(holds(collector->Errors(), kNoFlow)) << item;
    EXPECT_EQ(collector.plant.dialogTexts(), std::vector<std::string>{kNoFlow});
    EXPECT_EQ(collector.plant.host().log().dialogs().front().title, "");  // plain text, no box
    EXPECT_EQ(collector.values().flow_per_unit, 0.0);
    EXPECT_EQ(collector.values().cyclone_dia, 0.0);
    EXPECT_EQ(collector.values().air_temp, 87.0);  // the stream's temperature is not reached
    EXPECT_TRUE(collector->Warnings().IsEmpty());
  }
}

TEST(CollectorStreams, Without_dialogs_the_refusal_is_an_error_only) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  slotsOf(plant, "RAW").erase("VAPOR MASS FLOW");
  CollectorAtHand collector(plant, 0);
  EXPECT_EQ(collector->Size(), 0);
  EXPECT_TRUE(holds(collector->Errors(), kNoFlow));
  EXPECT_TRUE(collector.plant.dialogTexts().empty());
}

TEST(CollectorStreams, A_liquid_separator_without_liquid_is_refused_in_the_same_words) {
  Plant plant = collectorPlant("ESE", "WATER CYCL");
  slotsOf(plant, "RAW").erase("LIQUID MASS FLOW");
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 0);
  EXPECT_TRUE(holds(collector->Errors(), kNoFlow));
}

TEST(CollectorStreams, Without_an_inlet_or_without_an_exit_there_is_no_sizing) {
  for (const char* end : {"inlets", "exits"}) {
    Plant plant = collectorPlant("EDC", "CYCLONE");
    itemOf(plant).erase(end);
    CollectorAtHand collector(plant);
    EXPECT_EQ(collector->Size(), 0) << end;
    EXPECT_TRUE(collector->Errors().IsEmpty());
    EXPECT_EQ(collector.values().inlet_velocity, 150.0);  // criteria are read first
    EXPECT_EQ(collector.values().total_gas_flow, 0.0);
  }
}

TEST(CollectorStreams, Exits_come_from_outlets_and_then_vapor_outlets) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  itemOf(plant)["exits"] = {{"VAPOR OUTLET", {"CLEAN"}}, {"DRAIN", {"RAW"}}, {"OUTLET", {"DUST"}}};
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->GetStreamInfo(), 1);
  void* exits = list2_create();
  EXPECT_EQ(collector->GetExitStreams(exits), 1);
  ASSERT_EQ(list2_length(exits), 2);
  EXPECT_STREQ(list2_get_item(exits, 0, nullptr), "DUST");
  EXPECT_STREQ(list2_get_item(exits, 1, nullptr), "CLEAN");
  list2_delete(exits);
}

TEST(CollectorStreams, Streams_named_in_slots_count_where_none_is_connected) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  itemOf(plant).erase("inlets");
  itemOf(plant).erase("exits");
  recordOf(plant) = {{"Inlet stream", "RAW"}, {"Exit stream", "CLEAN"}};
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_DOUBLE_EQ(collector.values().total_gas_flow, 540000);
}

TEST(CollectorStreams, Lists_are_set_unless_they_are_empty) {
  CollectorAtHand collector(collectorPlant("EDC", "CYCLONE"));
  void* streams = list2_create();
  EXPECT_EQ(collector->SetInletStreams(streams), 0);
  EXPECT_EQ(collector->SetExitStreams(streams), 0);
  EXPECT_EQ(collector->SetInletStreams(nullptr), 0);
  EXPECT_EQ(collector->SetExitStreams(nullptr), 0);
  EXPECT_EQ(collector->GetInletStreams(streams), 0);  // there is no list yet
  list2_append_to_end(streams, "DUST");
  EXPECT_EQ(collector->SetInletStreams(streams), 1);
  EXPECT_EQ(collector->SetExitStreams(streams), 1);
  void* copy = list2_create();
  EXPECT_EQ(collector->GetInletStreams(copy), 1);
  EXPECT_STREQ(list2_get_item(copy, 0, nullptr), "DUST");
  EXPECT_EQ(collector->GetExitStreams(nullptr), 0);
  EXPECT_EQ(collector->GetStreamInfo(), 1);
  EXPECT_EQ(collector->GetInletStreams(copy), 1);
  EXPECT_EQ(list2_length(copy), 1);  // RAW is not added
  list2_delete(streams);
  list2_delete(copy);
}

// --- Air temperature ----------------------------------------------------------------------------

TEST(CollectorTemperature, The_hottest_inlet_is_the_air_temperature_with_a_warning) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  plant["streams"]["HOT"]["slots"] = {{"TEMPERATURE", {204.5, "DEG C"}}};
  plant["streams"]["COLD"]["slots"] = {{"TEMPERATURE", {-40, "DEG F"}}};
  itemOf(plant)["inlets"]["INLET"] = {"RAW", "HOT", "COLD"};
  recordOf(plant)["CpAirTemperature"] = {120, "DEG F"};
  CollectorAtHand collector(plant, 1);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_NEAR(collector.values().air_temp, 400.1, 1e-9);
  ASSERT_EQ(collector->Warnings().GetLength(), 1);
  EXPECT_STREQ(collector->Warnings().GetTextAt(0),
               "Max Inlet Stream's Temp.(400.100000) used as Air Temperature");
  EXPECT_TRUE(collector.plant.dialogTexts().empty());
}

TEST(CollectorTemperature, Of_cold_inlets_may_be_negative) {
  Plant plant = collectorPlant("EDC", "CYCLONE");
  slotsOf(plant, "RAW")["TEMPERATURE"] = {-300, "DEG F"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_EQ(collector.values().air_temp, -300);
}

struct AirCase {
  const char* criterion;
  const char* record;
  const char* block;
  double temperature;
};
class AirTemperature : public testing::TestWithParam<AirCase> {};
INSTANTIATE_TEST_SUITE_P(
    Sources, AirTemperature,
    testing::Values(AirCase{"", "", "", 87}, AirCase{"95", "", "", 95},
                    // a criterion of its own counts as given, one of 87 does not
                    AirCase{"95", "120", "130", 95}, AirCase{"87", "120", "130", 120},
                    AirCase{"", "120", "130", 120}, AirCase{"", "", "130", 130},
                    AirCase{"", "-998.9", "130", -998.9}, AirCase{"", "-1500", "130", 87},
                    AirCase{"", "0", "130", 130}, AirCase{"0", "", "", 87}));

TEST_P(AirTemperature, Without_stream_temperatures_comes_from_criterion_record_and_block) {
  const auto& [criterion, record, block, temperature] = GetParam();
  const auto degrees = [](const char* text) { return Plant{std::stod(text), "DEG F"}; };
  Plant plant = collectorPlant("EDC", "CYCLONE");
  slotsOf(plant, "RAW").erase("TEMPERATURE");
  if (*criterion) plant["criteria"]["*"]["Air Cooler Inlet Temperature"] = degrees(criterion);
  if (*record) recordOf(plant)["CpAirTemperature"] = degrees(record);
  if (*block) blockOf(plant)["air temperature"] = degrees(block);
  CollectorAtHand collector(plant);
  EXPECT_EQ(collector->Size(), 1);
  EXPECT_DOUBLE_EQ(collector.values().air_temp, temperature);
  EXPECT_TRUE(collector->Warnings().IsEmpty());
}

// --- Gravity of the oil -------------------------------------------------------------------------

TEST(OilGravity, Keeps_the_smaller_of_light_ones_and_takes_a_heavy_one) {
  EXPECT_DOUBLE_EQ(oilGravity(0, 49.92), 0.8);
  EXPECT_DOUBLE_EQ(oilGravity(0.9, 49.92), 0.8);
  EXPECT_DOUBLE_EQ(oilGravity(0.7, 49.92), 0.7);
  EXPECT_DOUBLE_EQ(oilGravity(0.7, 68.64), 1.1);  // kept: water behind oil takes its place
  EXPECT_DOUBLE_EQ(oilGravity(0.7, 62.4), 1.0);
  EXPECT_DOUBLE_EQ(oilGravity(1.1, 49.92), 0.8);
  EXPECT_DOUBLE_EQ(oilGravity(0.7, 0), 0.7);
  EXPECT_DOUBLE_EQ(oilGravity(0.7, -5), 0.7);
}

TEST(CollectorStreams, The_exits_tell_the_gravity_of_the_oil) {
  Plant plant = collectorPlant("ESE", "OIL WATER");
  slotsOf(plant, "CLEAN")["LIQUID MASS DENSITY"] = {56.16, "PCF"};
  slotsOf(plant, "DUST")["LIQUID MASS DENSITY"] = {49.92, "PCF"};
  CollectorAtHand collector(plant);
  collector->Size();
  EXPECT_DOUBLE_EQ(collector.values().oil_gravity, 0.8);
}

TEST(CollectorStreams, Progress_is_told_step_by_step) {
  CollectorAtHand collector(collectorPlant("EDC", "CYCLONE"));
  EXPECT_EQ(collector.progressOf([](auto& object) { object.Size(); }),
            (Progress{{35, "Checking inlets.."},
                      {35, "Checking exits..."},
                      {30, "Obtaining process parameters. Please wait..."},
                      {35, "Obtaining inlet streams."},
                      {45, "Obtaining total vapor volumetric flow."},
                      {45, "Obtaining inlet temperature."},
                      {50, "Completed writing inlet stream connectivity information."},
                      {50, "Obtained overall vapor flow."},
                      {50, "Obtaining exit liquid conditions"},
                      {55, "Beginning sizing calculations..."},
                      {55, "Checking input information."}}));
}

}  // namespace
}  // namespace sizewright
