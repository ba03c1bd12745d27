#include <gtest/gtest.h>

#include "vessels/vessel_plant.h"

namespace sizewright {
namespace {

constexpr const char* kInletFlowsOnly = "Vessel capacity will be based on inlet flows only.";

// --- Finding the streams ------------------------------------------------------------------------

TEST(VesselStreams, Without_inlets_the_item_is_refused) {
  PlantJson plant = drumPlant();
  itemOf(plant).erase("inlets");
  VesselAtHand vessel(plant, 1);
  EXPECT_EQ(vessel->GetStreamInfo(), 0);
  const std::string text =
      "Stream Selection may be incorrect. Please verify.\nNo Inlet streams found. \n(Please check "
      "process information loaded and/or PFD to see connected streams)\n\n";
  EXPECT_EQ(vessel->Errors().GetTextList('\n'), text);
  EXPECT_EQ(vessel.plant.dialogTexts(), std::vector<std::string>{"Error(s): " + text});
  EXPECT_EQ(vessel->Size(), 0);
}

TEST(VesselStreams, More_than_three_exits_are_refused_and_counted) {
  PlantJson plant = drumPlant();
  itemOf(plant)["exits"] = {
      {"VAPOR OUTLET", {"V"}}, {"LIQUID OUTLET", {"L", "A"}}, {"HEAVY LIQUID OUTLET", {"H"}}};
  VesselAtHand vessel(plant);
  EXPECT_EQ(vessel->Size(), 0);
  EXPECT_TRUE(
      holdsLines(vessel->Errors(),
                 "Stream Selection may be incorrect. Please verify.\nMaximum number of "
                 "Exit Streams allowed = 3. Number of Exit Streams Available = 4. \n(Please "
                 "check process information loaded and/or PFD to see connected streams)"));
  EXPECT_TRUE(vessel.plant.dialogTexts().empty());
  EXPECT_EQ(vessel.values().total_inlet_vap_mass_flow, 0.0);  // nothing was read
}

TEST(VesselStreams, Both_faults_stand_in_one_text) {
  PlantJson plant = drumPlant();
  itemOf(plant).erase("inlets");
  itemOf(plant)["exits"] = {{"VAPOR OUTLET", {"V", "L", "H", "A"}}};
  VesselAtHand vessel(plant, 1);
  vessel->GetStreamInfo();
  ASSERT_EQ(vessel.plant.dialogTexts().size(), 1u);
  const std::string text = vessel.plant.dialogTexts().front();
  EXPECT_LT(text.find("No Inlet streams found."), text.find("Maximum number of Exit Streams"));
}

TEST(VesselStreams, Exits_come_by_tag_in_the_order_vapor_liquid_heavy) {
  PlantJson plant = drumPlant();
  itemOf(plant)["exits"] = {
      {"HEAVY LIQUID OUTLET", {"H"}}, {"LIQUID OUTLET", {"L"}}, {"VAPOR OUTLET", {"V"}}};
  VesselAtHand vessel(plant);
  vessel->GetStreamInfo();
  EXPECT_EQ(formValue(*vessel.object, "OUTLET STREAM 1"), "V");
  EXPECT_EQ(formValue(*vessel.object, "OUTLET STREAM 2"), "L");
  EXPECT_EQ(formValue(*vessel.object, "OUTLET STREAM 3"), "H");
}

TEST(VesselStreams, Streams_named_in_slots_serve_without_connections) {
  PlantJson plant = drumPlant();
  itemOf(plant).erase("inlets");
  itemOf(plant).erase("exits");
  recordOf(plant) = {{"Inlet stream", "F"}, {"Exit stream", {"V", "L"}}};
  VesselAtHand vessel(plant);
  EXPECT_EQ(vessel->Size(), 1);
  EXPECT_EQ(vessel.values().vap_stream.view(), "V");
}

TEST(VesselStreams, Lists_are_taken_unless_null_or_empty) {
  VesselAtHand vessel(drumPlant());
  void* list = list2_create();
  EXPECT_EQ(vessel->SetInletStreams(nullptr), 0);
  EXPECT_EQ(vessel->SetInletStreams(list), 0);
  EXPECT_EQ(vessel->SetExitStreams(list), 0);
  list2_append_to_end(list, "F");
  EXPECT_EQ(vessel->SetInletStreams(list), 1);
  void* own = list2_create();
  EXPECT_EQ(vessel->GetInletStreams(own), 1);
  EXPECT_STREQ(list2_get_item(own, 0, nullptr), "F");
  EXPECT_EQ(vessel->GetExitStreams(own), 0);
  list2_delete(list);
  list2_delete(own);
}

// --- Flows
// ----------------------------------------------------------------------------------------

TEST(VesselFlows, Are_those_of_the_phases) {
  VesselAtHand vessel(drumPlant());
  EXPECT_EQ(vessel->Size(), 1);
  const VesselData& data = vessel.values();
  EXPECT_DOUBLE_EQ(data.total_inlet_vap_mass_flow, 20000);
  EXPECT_DOUBLE_EQ(data.total_inlet_vap_vol_flow, 40000);
  EXPECT_DOUBLE_EQ(data.total_inlet_liq_mass_flow, 30000);
  EXPECT_DOUBLE_EQ(data.total_inlet_liq_vol_flow, 600);
  EXPECT_EQ(data.vap_stream.view(), "V");
  EXPECT_DOUBLE_EQ(data.total_exit_vap_vol_flow, 40000);
  EXPECT_EQ(data.light_liq_stream.view(), "L");
  EXPECT_DOUBLE_EQ(data.total_exit_light_liq_vol_flow, 600);
  EXPECT_DOUBLE_EQ(data.light_liq_density, 50);
  EXPECT_TRUE(data.heavy_liq_stream.empty());
  EXPECT_TRUE(noted(*vessel.object,
                    "***Assigning heavy and light liquid streams: (estimated based on densities)***"
                    "\nLight liquid stream = L (den= 50.0000)\nHeavy liquid stream = (den= "
                    "0.0000)"));
}

TEST(VesselFlows, Add_up_again_in_a_second_run_until_initialized) {
  VesselAtHand vessel(drumPlant());
  vessel->Size();
  vessel->Size();
  EXPECT_DOUBLE_EQ(vessel.values().total_inlet_vap_mass_flow, 40000);
  EXPECT_EQ(vessel->Initialize(), 1);
  EXPECT_EQ(vessel.values().total_inlet_vap_mass_flow, 0.0);
  vessel->Size();
  EXPECT_DOUBLE_EQ(vessel.values().total_inlet_vap_mass_flow, 20000);
}

TEST(VesselFlows, Count_default_densities_where_a_stream_has_none) {
  PlantJson plant = drumPlant();
  slotsOf(plant, "F").erase("LIQUID MASS DENSITY");
  slotsOf(plant, "F")["VAPOR MASS DENSITY"] = {-1, "PCF"};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_DOUBLE_EQ(vessel.values().total_inlet_liq_vol_flow, 30000 / 62.4);
  EXPECT_DOUBLE_EQ(vessel.values().total_inlet_vap_vol_flow, 20000 / 0.075);
}

TEST(VesselFlows, Skip_streams_that_stand_for_none) {
  for (const char* none : {"NONE", "none at all", "Nonesuch  "}) {
    PlantJson plant = drumPlant();
    plant["streams"][none] = plant["streams"]["F"];
    itemOf(plant)["inlets"]["INLET"] = {none, "F"};
    VesselAtHand vessel(plant);
    vessel->Size();
    EXPECT_DOUBLE_EQ(vessel.values().total_inlet_vap_mass_flow, 20000) << none;
  }
}

TEST(VesselFlows, Of_a_stream_with_as_much_vapor_as_liquid_are_those_of_a_liquid) {
  PlantJson plant = drumPlant();
  slotsOf(plant, "V")["LIQUID MASS FLOW"] = {20000, "LB/H"};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_TRUE(vessel.values().vap_stream.empty());
  EXPECT_EQ(vessel.values().total_exit_vap_mass_flow, 0.0);
}

TEST(VesselFlows, Of_the_last_of_several_vapor_exits_count) {
  PlantJson plant = drumPlant();
  plant["streams"]["V2"] = plant["streams"]["V"];
  plant["streams"]["V2"]["slots"]["VAPOR MASS FLOW"] = {100, "LB/H"};
  itemOf(plant)["exits"]["VAPOR OUTLET"] = {"V", "V2"};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_EQ(vessel.values().vap_stream.view(), "V2");
  EXPECT_DOUBLE_EQ(vessel.values().total_exit_vap_mass_flow, 100);
}

struct LiquidCase {
  PlantJson density1;  // null: none
  PlantJson density2;
  const char* light;
  const char* heavy;
};

class VesselLiquids : public testing::TestWithParam<LiquidCase> {};
INSTANTIATE_TEST_SUITE_P(EveryCase, VesselLiquids,
                         testing::Values(LiquidCase{50, 62, "L", "H"}, LiquidCase{62, 50, "H", "L"},
                                         LiquidCase{50, 50, "H", "L"},
                                         LiquidCase{50, nullptr, "L", ""},
                                         LiquidCase{nullptr, 50, "H", ""},
                                         LiquidCase{nullptr, nullptr, "L", "H"}));

TEST_P(VesselLiquids, Are_told_apart_by_density) {
  PlantJson plant = drumPlant();
  const auto give = [&plant](const char* stream, const PlantJson& density) {
    PlantJson& slots = slotsOf(plant, stream);
    if (density.is_null()) {
      slots.erase("LIQUID MASS FLOW");  // no liquid, no density
    } else {
      slots["LIQUID MASS DENSITY"] = {density, "PCF"};
    }
  };
  give("L", GetParam().density1);
  give("H", GetParam().density2);
  itemOf(plant)["exits"]["HEAVY LIQUID OUTLET"] = {"H"};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_EQ(vessel.values().light_liq_stream.view(), GetParam().light);
  EXPECT_EQ(vessel.values().heavy_liq_stream.view(), GetParam().heavy);
}

TEST(VesselLiquidMerge, Below_5_percent_of_difference_two_liquids_are_one) {
  struct Row {
    double heavy;
    bool merged;
  };
  for (const Row& row : {Row{50, true}, Row{51, true}, Row{52.4, true}, Row{52.6, false}}) {
    PlantJson plant = drumPlant();
    slotsOf(plant, "H")["LIQUID MASS DENSITY"] = {row.heavy, "PCF"};
    itemOf(plant)["category"] = "DHT";
    itemOf(plant)["exits"]["HEAVY LIQUID OUTLET"] = {"H"};
    VesselAtHand vessel(plant);
    EXPECT_EQ(vessel->Size(), 1);
    EXPECT_EQ(vessel.values().total_exit_heavy_liq_mass_flow == 0.0, row.merged) << row.heavy;
    EXPECT_EQ(vessel.values().boot_dia == 0.0, row.merged) << row.heavy;
  }
}

// --- Input check
// ------------------------------------------------------------------------------------

TEST(VesselInput, Without_inlet_flow_nothing_is_sized) {
  PlantJson plant = drumPlant();
  slotsOf(plant, "F").erase("LIQUID MASS FLOW");
  slotsOf(plant, "F").erase("VAPOR MASS FLOW");
  VesselAtHand vessel(plant, 1);
  EXPECT_EQ(vessel->Size(), 0);
  const std::string text = "This item cannot be sized. Inlet flows are not present.";
  EXPECT_TRUE(holds(vessel->Errors(), text));
  EXPECT_EQ(vessel.plant.dialogTexts(), std::vector<std::string>{text});
  EXPECT_EQ(vessel.values().ves_dia, 0.0);
}

TEST(VesselInput, Without_exits_the_inlet_totals_stand_in) {
  PlantJson plant = drumPlant();
  itemOf(plant).erase("exits");
  VesselAtHand vessel(plant, 1);
  EXPECT_EQ(vessel->Size(), 1);
  const VesselData& data = vessel.values();
  EXPECT_DOUBLE_EQ(data.total_exit_vap_mass_flow, 20000);
  EXPECT_DOUBLE_EQ(data.total_exit_vap_vol_flow, 40000);
  EXPECT_DOUBLE_EQ(data.total_exit_light_liq_mass_flow, 30000);
  EXPECT_DOUBLE_EQ(data.total_exit_light_liq_vol_flow, 600);
  EXPECT_DOUBLE_EQ(data.light_liq_density, 50);
  EXPECT_TRUE(warned(*vessel.object, kInletFlowsOnly));
  EXPECT_EQ(vessel.plant.dialogTexts().front(), kInletFlowsOnly);
}

TEST(VesselInput, An_exit_that_does_not_exist_counts_as_a_liquid_without_flow) {
  PlantJson plant = drumPlant();
  itemOf(plant)["exits"] = {{"LIQUID OUTLET", {"nowhere"}}};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_EQ(vessel.values().light_liq_stream.view(), "nowhere");
  EXPECT_EQ(vessel.values().total_exit_light_liq_mass_flow, 0.0);
  EXPECT_FALSE(warned(*vessel.object, kInletFlowsOnly));
}

// --- Design conditions
// ------------------------------------------------------------------------------

TEST(VesselDesign, Starts_from_the_highest_stream_conditions) {
  VesselAtHand vessel(drumPlant());
  vessel->Size();
  EXPECT_DOUBLE_EQ(vessel.values().oper_press, 50);
  EXPECT_DOUBLE_EQ(vessel.values().oper_temp, 150);
  EXPECT_NEAR(vessel.values().design_press, 75, 1e-9);  // 25 PSI above, more than a tenth
  EXPECT_NEAR(vessel.values().design_temp, 200, 1e-9);
}

TEST(VesselDesign, Missing_conditions_of_a_stream_are_77_DEG_F_and_15_PSI) {
  PlantJson plant = drumPlant();
  for (const char* stream : {"F", "V", "L"}) {
    slotsOf(plant, stream).erase("PRESSURE");
    slotsOf(plant, stream).erase("TEMPERATURE");
  }
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_DOUBLE_EQ(vessel.values().oper_press, 15);
  EXPECT_DOUBLE_EQ(vessel.values().oper_temp, 77);
}

TEST(VesselDesign, A_user_pressure_passes_through_the_rule_from_record_or_block) {
  PlantJson plant = drumPlant();
  blockOf(plant)["GAUGE PRESSURE"] = {200, "PSI"};
  VesselAtHand fromBlock(plant);
  fromBlock->Size();
  EXPECT_NEAR(fromBlock.values().design_press, 225, 1e-9);
  recordOf(plant)["GAUGE PRESSURE"] = {100, "PSI"};
  VesselAtHand fromRecord(plant);
  fromRecord->Size();
  EXPECT_NEAR(fromRecord.values().design_press, 125, 1e-9);
}

TEST(VesselDesign, A_user_temperature_at_or_above_the_streams_stands) {
  for (const auto& [given, design] :
       {std::pair(300.0, 300.0), std::pair(150.0, 150.0), std::pair(149.0, 200.0)}) {
    PlantJson plant = drumPlant();
    blockOf(plant)["Design temperature"] = {given, "DEG F"};
    VesselAtHand vessel(plant);
    vessel->Size();
    EXPECT_NEAR(vessel.values().design_temp, design, 1e-9) << given;
    recordOf(plant)["CpDesignTemperature"] = {400, "DEG F"};
    VesselAtHand fromRecord(plant);
    fromRecord->Size();
    EXPECT_NEAR(fromRecord.values().design_temp, 400, 1e-9);
  }
}

TEST(VesselDesign, Minimum_criteria_are_floors) {
  PlantJson plant = drumPlant();
  criteriaOf(plant) = {{"Minimum Design Pressure", {165, "PSI"}},
                       {"Minimum Design Temperature", {650, "DEG F"}}};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_DOUBLE_EQ(vessel.values().design_press, 165);
  EXPECT_DOUBLE_EQ(vessel.values().design_temp, 650);
}

TEST(VesselDesign, Without_leave_to_resize_both_given_conditions_stand) {
  PlantJson plant = drumPlant();
  projectOf(plant) = {{"CpAllowResize", "no"},
                      {"CpDesignGaugePressure", {40, "PSI"}},
                      {"CpDesignTemperature", {99, "DEG F"}}};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_TRUE(vessel.values().design_from_user);
  EXPECT_EQ(vessel.values().design_press, 40);
  EXPECT_EQ(vessel.values().design_temp, 99);
}

TEST(VesselDesign, Without_leave_to_resize_one_condition_is_not_enough) {
  PlantJson plant = drumPlant();
  projectOf(plant) = {{"CpAllowResize", "No"}, {"CpDesignTemperature", {99, "DEG F"}}};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_FALSE(vessel.values().design_from_user);
  EXPECT_NEAR(vessel.values().design_temp, 200, 1e-9);  // not read without a pressure
  projectOf(plant) = {{"CpAllowResize", "No"}, {"CpDesignGaugePressure", {40, "PSI"}}};
  VesselAtHand other(plant);
  other->Size();
  EXPECT_EQ(other.values().design_press, 40);
  EXPECT_NEAR(other.values().design_temp, 200, 1e-9);
}

// --- Connections
// --------------------------------------------------------------------------------------

TEST(VesselPorts, Are_written_by_phase_from_number_0) {
  PlantJson plant = drumPlant();
  itemOf(plant)["exits"]["HEAVY LIQUID OUTLET"] = {"H"};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_EQ(vessel->UpdateConnectivity(), 1);
  EXPECT_EQ(vessel.text("__STREAMS__IN"), "_in__1");
  EXPECT_EQ(vessel.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(vessel.text("__STREAMS__EX"), "_vap_ex__0\n_ll_ex__0\n_hl_ex__0");
  EXPECT_EQ(vessel.text("_vap_ex__0"), "V\nPROCESS\nVAPOR OUTLET");
  EXPECT_EQ(vessel.text("_ll_ex__0"), "L\nPROCESS\nLIQUID OUTLET");
  EXPECT_EQ(vessel.text("_hl_ex__0"), "H\nPROCESS\nHEAVY LIQUID OUTLET");
  EXPECT_FALSE(vessel.has("_ex_1"));
}

TEST(VesselPorts, Stay_without_lists) {
  VesselAtHand vessel(drumPlant());
  EXPECT_EQ(vessel->UpdateConnectivity(), 1);
  EXPECT_EQ(vessel.text("__STREAMS__EX"), "_ex_1\n_ex_2");
}

TEST(VesselPorts, All_inlets_and_the_first_exit_of_each_tag_are_cut_loose) {
  PlantJson plant = drumPlant();
  plant["streams"]["F2"] = plant["streams"]["F"];
  itemOf(plant)["inlets"]["INLET"] = {"F", "F2"};
  itemOf(plant)["exits"] = {{"LIQUID OUTLET", {"L", "H"}}, {"VAPOR OUTLET", {"V"}}};
  VesselAtHand vessel(plant);
  EXPECT_EQ(vessel->GetConnectedStreams(), 1);
  vessel->DisconnectStreams();
  EXPECT_FALSE(vessel.has("_in_1"));
  EXPECT_FALSE(vessel.has("_in_2"));
  EXPECT_FALSE(vessel.has("_ex_1"));                             // L
  EXPECT_EQ(vessel.text("_ex_2"), "H\nPROCESS\nLIQUID OUTLET");  // not the first of its tag
  EXPECT_FALSE(vessel.has("_ex_3"));                             // V
}

}  // namespace
}  // namespace sizewright
