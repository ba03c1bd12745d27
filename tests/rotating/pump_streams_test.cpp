#include <gtest/gtest.h>

#include "rotating/pump_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr const char* kSeveralInlets =
    "Identified more than one inlet stream.  The sum of the liquid (and solid) flowrates of all "
    "inlet streams is used in capacity calculations.";
constexpr const char* kSeveralExits =
    "Identified more than one exit stream(Exit streams used only for Pressure and Temperature "
    "determination).";
constexpr const char* kInletVapor =
    "Inlet stream(s) may contain vapor phase. Please check inlet stream(s) \n(Any vapor flow "
    "present, will not be used in estimation of pump capacity)";
constexpr const char* kExitVapor =
    "Exit stream(s) may contain vapor phase. Please check exit stream(s)";

Plant twoInlets() {
  Plant plant = pumpPlant();
  plant["streams"]["S3"] = plant["streams"]["S1"];
  itemOf(plant)["inlets"]["INLET"] = {"S1", "S3"};
  return plant;
}

TEST(PumpStreams, One_inlet_gives_flow_density_and_conditions) {
  PumpAtHand pump(pumpPlant());
  EXPECT_EQ(pump->Size(), 1);
  const PumpData& data = pump.values();
  EXPECT_DOUBLE_EQ(data.totalMassFlow, 10000);
  EXPECT_DOUBLE_EQ(data.totalVolumeFlow, 10000 / 50.0);
  EXPECT_DOUBLE_EQ(data.fluidDensity, 50);
  EXPECT_DOUBLE_EQ(data.minMolecularWeight, 92);
  EXPECT_DOUBLE_EQ(data.minInletPressure, 20);
  EXPECT_DOUBLE_EQ(data.maxExitPressure, 120);
  EXPECT_DOUBLE_EQ(data.minInletTemperature, 100);
  EXPECT_DOUBLE_EQ(data.maxExitTemperature, 110);
  EXPECT_DOUBLE_EQ(data.viscosity, 0.5);
  EXPECT_EQ(data.minFluidDensity, 0.0);  // never filled from streams
  EXPECT_TRUE(pump->Warnings().IsEmpty());
}

TEST(PumpStreams, Two_inlets_with_the_same_data_add_their_flows_and_keep_the_least_pressure) {
  PumpAtHand pump(twoInlets());
  EXPECT_EQ(pump->Size(), 1);
  EXPECT_DOUBLE_EQ(pump.values().totalMassFlow, 20000);
  EXPECT_DOUBLE_EQ(pump.values().totalVolumeFlow, 400);
  EXPECT_DOUBLE_EQ(pump.values().minInletPressure, 20);
  EXPECT_TRUE(holds(pump->Warnings(), kSeveralInlets));
  EXPECT_TRUE(holds(pump->Calculations(), kSeveralInlets));
}

TEST(PumpStreams, Over_the_inlets_the_least_conditions_and_the_greatest_viscosity_count) {
  Plant plant = twoInlets();
  Plant& second = slotsOf(plant, "S3");
  second["PRESSURE"] = {15, "PSI"};
  second["TEMPERATURE"] = {-40, "DEG F"};
  second["MOLECULAR WEIGHT"] = 18;
  second["LIQUID VISCOSITY"] = {0.9, "CPOISE"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().minInletPressure, 15);
  EXPECT_DOUBLE_EQ(pump.values().minInletTemperature, -40);
  EXPECT_DOUBLE_EQ(pump.values().minMolecularWeight, 18);
  EXPECT_DOUBLE_EQ(pump.values().viscosity, 0.9);
}

TEST(PumpStreams, A_pressure_that_is_missing_or_negative_does_not_count_as_the_least) {
  Plant plant = twoInlets();
  slotsOf(plant, "S3")["PRESSURE"] = {-3, "PSI"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().minInletPressure, 20);
}

TEST(PumpStreams, Solids_count_at_their_own_density) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S1")["SOLID MASS FLOW"] = {1872, "LB/H"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().totalMassFlow, 11872);
  EXPECT_DOUBLE_EQ(pump.values().totalVolumeFlow, 200 + 1872 / 93.6);

  slotsOf(plant, "S1")["SOLID MASS DENSITY"] = {117, "PCF"};
  PumpAtHand dense(plant);
  dense->Size();
  EXPECT_DOUBLE_EQ(dense.values().totalVolumeFlow, 200 + 1872 / 117.0);
}

TEST(PumpStreams, A_liquid_without_a_density_counts_62_4) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S1").erase("LIQUID MASS DENSITY");
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().totalVolumeFlow, 10000 / 62.4);
  EXPECT_NEAR(pump.values().fluidDensity, 62.4, 1e-12);
}

TEST(PumpStreams, Without_any_flow_the_density_is_that_of_water) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S1").erase("LIQUID MASS FLOW");
  PumpAtHand pump(plant);
  EXPECT_EQ(pump->Size(), 1);
  EXPECT_DOUBLE_EQ(pump.values().fluidDensity, 62.43);
  EXPECT_EQ(pump.values().totalVolumeFlow, 0.0);
}

TEST(PumpStreams, Vapor_in_an_inlet_is_left_out_and_warned_of) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S1")["VAPOR MASS FLOW"] = {500, "LB/H"};
  PumpAtHand pump(plant, 1);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().totalMassFlow, 10000);
  EXPECT_TRUE(holdsLines(pump->Warnings(), kInletVapor));
  EXPECT_EQ(pump.plant.dialogTexts(), std::vector<std::string>{kInletVapor});
}

TEST(PumpStreams, Vapor_in_an_exit_is_warned_of_without_a_dialog_when_unattended) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S2")["VAPOR MASS FLOW"] = {500, "LB/H"};
  PumpAtHand pump(plant, 0);
  pump->Size();
  EXPECT_TRUE(holds(pump->Warnings(), kExitVapor));
  EXPECT_FALSE(holdsLines(pump->Warnings(), kInletVapor));
  EXPECT_TRUE(pump.plant.dialogTexts().empty());
}

TEST(PumpStreams, Over_the_exits_the_greatest_conditions_count) {
  Plant plant = pumpPlant();
  plant["streams"]["S4"]["slots"] = {{"TEMPERATURE", {90, "DEG F"}}, {"PRESSURE", {150, "PSI"}}};
  itemOf(plant)["exits"]["OUTLET"] = {"S2", "S4"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().maxExitPressure, 150);
  EXPECT_DOUBLE_EQ(pump.values().maxExitTemperature, 110);
  EXPECT_TRUE(holds(pump->Calculations(), kSeveralExits));
  EXPECT_FALSE(holds(pump->Warnings(), kSeveralExits));
}

TEST(PumpStreams, A_stream_that_does_not_exist_is_skipped) {
  Plant plant = pumpPlant();
  itemOf(plant)["inlets"]["INLET"] = {"missing", "S1"};
  PumpAtHand pump(plant);
  EXPECT_EQ(pump->Size(), 1);
  EXPECT_DOUBLE_EQ(pump.values().totalMassFlow, 10000);
  EXPECT_TRUE(holds(pump->Warnings(), kSeveralInlets));  // it counts as named
}

TEST(PumpStreams, Streams_in_other_units_are_converted) {
  Plant plant = pumpPlant();
  Plant& inlet = slotsOf(plant, "S1");
  inlet["PRESSURE"] = {200, "KPA"};
  inlet["TEMPERATURE"] = {40, "DEG C"};
  inlet["LIQUID MASS FLOW"] = {1000, "KG/H"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_NEAR(pump.values().minInletPressure, 200 / 6.894757293168361, 1e-9);
  EXPECT_NEAR(pump.values().minInletTemperature, 104, 1e-9);
  EXPECT_NEAR(pump.values().totalMassFlow, 1000 / 0.45359237, 1e-8);
}

TEST(PumpStreams, A_drawn_connection_outranks_the_slot_and_the_slot_serves_without_one) {
  Plant plant = pumpPlant();
  itemOf(plant)["component"]["Inlet stream"] = "S2";
  PumpAtHand drawn(plant);
  EXPECT_EQ(drawn->GetStreamInfo(), 1);
  drawn->Size();
  EXPECT_DOUBLE_EQ(drawn.values().minInletPressure, 20);

  itemOf(plant).erase("inlets");
  itemOf(plant)["component"]["Inlet stream"] = "S1";
  PumpAtHand named(plant);
  EXPECT_EQ(named->Size(), 1);
  EXPECT_DOUBLE_EQ(named.values().totalMassFlow, 10000);
}

TEST(PumpStreams, Without_an_inlet_a_first_run_ends_before_setup) {
  Plant plant = pumpPlant();
  itemOf(plant).erase("inlets");
  PumpAtHand pump(plant);
  EXPECT_EQ(pump->Size(), 0);
  EXPECT_EQ(pump.values().fluidDensity, 0.0);
  EXPECT_EQ(pump.values().overdesignFactor, 1.0);  // the criteria came first
}

TEST(PumpStreams, A_missing_exit_is_no_failure) {
  Plant plant = pumpPlant();
  itemOf(plant).erase("exits");
  PumpAtHand pump(plant);
  EXPECT_EQ(pump->GetStreamInfo(), 1);
  EXPECT_EQ(pump->Size(), 1);
}

TEST(PumpStreams, After_GetLastInfo_an_emptied_inlet_list_still_sizes) {
  Plant plant = pumpPlant();
  itemOf(plant).erase("inlets");
  PumpAtHand pump(plant);
  EXPECT_EQ(pump->GetLastInfo(), 1);
  EXPECT_EQ(pump->Size(), 1);
  EXPECT_DOUBLE_EQ(pump.values().fluidDensity, 62.43);
}

TEST(PumpStreams, Progress_tells_the_search_for_streams) {
  PumpAtHand pump(pumpPlant());
  pump->GetStreamInfo();
  const auto lines = pump.plant.progress();
  ASSERT_GE(lines.size(), 2u);
  EXPECT_EQ(lines[lines.size() - 2], (std::pair<int, std::string>(35, "Checking inlets..")));
  EXPECT_EQ(lines.back(), (std::pair<int, std::string>(35, "Checking exits...")));
}

TEST(PumpStreams, Stream_lists_are_given_and_taken_as_copies) {
  PumpAtHand pump(pumpPlant());
  void* given = list2_create();
  list2_append_to_end(given, "S2");
  EXPECT_EQ(pump->SetInletStreams(given), 1);
  list2_append_to_end(given, "S1");
  void* taken = list2_create();
  EXPECT_EQ(pump->GetInletStreams(taken), 1);
  ASSERT_EQ(list2_length(taken), 1);
  EXPECT_STREQ(list2_get_item(taken, 0, nullptr), "S2");
  EXPECT_EQ(pump->GetExitStreams(taken), 0);  // no exit list yet
  EXPECT_EQ(pump->GetInletStreams(nullptr), 0);
  EXPECT_EQ(pump->SetExitStreams(given), 1);
  EXPECT_EQ(pump->GetExitStreams(taken), 1);
  EXPECT_EQ(list2_length(taken), 2);
  list2_delete(given);
  list2_delete(taken);
}

}  // namespace
}  // namespace sizewright
