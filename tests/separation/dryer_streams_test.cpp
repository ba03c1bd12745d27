#include <gtest/gtest.h>

#include "separation/dryer_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;
using Progress = DryerAtHand::Progress;

TEST(DryerStreams, Flows_are_summed_over_inlets_and_exits) {
  Plant plant = dryerPlant("ED", "TRAY");
  plant["streams"]["FEED2"]["slots"]["LIQUID MASS FLOW"] = {50, "LB/H"};
  plant["streams"]["CAKE2"]["slots"] = {{"SOLID MASS FLOW", {936, "LB/H"}},
                                        {"LIQUID MASS FLOW", {30, "LB/H"}},
                                        {"VAPOR MASS FLOW", {5, "LB/H"}}};
  itemOf(plant)["inlets"]["INLET"] = {"FEED", "FEED2"};
  itemOf(plant)["exits"]["SOLIDS OUTLET"] = {"CAKE", "CAKE2"};
  DryerAtHand dryer(plant);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_DOUBLE_EQ(dryer.values().inletLiquidFlow, 1050);
  EXPECT_DOUBLE_EQ(dryer.values().exitLiquidFlow, 230);
  EXPECT_DOUBLE_EQ(dryer.values().evaporationRate, 820);
  EXPECT_DOUBLE_EQ(dryer.values().solidFlow, 5616);
  EXPECT_DOUBLE_EQ(dryer.values().productFlow, 5616);
  EXPECT_DOUBLE_EQ(dryer.values().solidVolumeFlow, 110);  // 100 and 936 / 93.6
  EXPECT_DOUBLE_EQ(dryer.values().dryVaporFlow, 700);     // not that of the wet cake
}

TEST(DryerStreams, Flows_are_converted_to_pounds_an_hour) {
  Plant plant = dryerPlant("ED", "TRAY");
  slotsOf(plant, "FEED")["LIQUID MASS FLOW"] = {1, "KG/H"};
  slotsOf(plant, "CAKE")["SOLID MASS FLOW"] = {45.359237, "KG/H"};
  slotsOf(plant, "FUMES")["VAPOR MASS FLOW"] = {453.59237, "KG/H"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_NEAR(dryer.values().inletLiquidFlow, 1 / 0.45359237, 1e-12);
  EXPECT_NEAR(dryer.values().solidFlow, 100, 1e-9);
  EXPECT_NEAR(dryer.values().dryVaporFlow, 1000, 1e-9);
}

TEST(DryerStreams, Missing_flows_count_as_0_without_a_message) {
  Plant plant = dryerPlant("ED", "TRAY");
  for (const char* stream : {"FEED", "CAKE", "FUMES"}) slotsOf(plant, stream) = Plant::object();
  DryerAtHand dryer(plant, 1);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_EQ(dryer.values().evaporationRate, 0.0);
  EXPECT_EQ(dryer.values().solidVolumeFlow, 0.0);
  EXPECT_EQ(dryer.values().surfaceArea, 40.0);  // the lower limit of a tray dryer
  EXPECT_TRUE(dryer->Warnings().IsEmpty());
  EXPECT_TRUE(dryer->Errors().IsEmpty());
  EXPECT_TRUE(dryer.plant.dialogTexts().empty());
}

TEST(DryerStreams, More_liquid_out_than_in_evaporates_nothing) {
  Plant plant = dryerPlant("ED", "TRAY");
  slotsOf(plant, "FEED")["LIQUID MASS FLOW"] = {150, "LB/H"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_EQ(dryer.values().evaporationRate, 0.0);
}

TEST(DryerStreams, A_stream_that_does_not_exist_is_skipped) {
  Plant plant = dryerPlant("ED", "TRAY");
  itemOf(plant)["inlets"]["INLET"] = {"GHOST", "FEED"};
  DryerAtHand dryer(plant);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_DOUBLE_EQ(dryer.values().inletLiquidFlow, 1000);
}

TEST(DryerStreams, All_four_classes_of_streams_count) {
  for (const int classNumber : {3005, 3105, 3205, 3305}) {
    Plant plant = dryerPlant("ED", "TRAY");
    plant["streams"]["FEED"]["class"] = classNumber;
    DryerAtHand dryer(plant);
    dryer->Size();
    EXPECT_DOUBLE_EQ(dryer.values().inletLiquidFlow, 1000) << classNumber;
  }
}

TEST(DryerStreams, Without_an_inlet_or_without_an_exit_there_is_no_sizing) {
  for (const char* end : {"inlets", "exits"}) {
    Plant plant = dryerPlant("ED", "TRAY");
    itemOf(plant).erase(end);
    DryerAtHand dryer(plant);
    EXPECT_EQ(dryer->Size(), 0) << end;
    EXPECT_EQ(dryer->GetStreamInfo(), 0) << end;
    EXPECT_EQ(dryer.values().surfaceArea, 0.0) << end;
  }
}

TEST(DryerStreams, Exits_come_from_three_tags_in_order) {
  Plant plant = dryerPlant("ED", "TRAY");
  plant["streams"]["TUBES"] = Plant::object();
  itemOf(plant)["exits"] = {
      {"OUTLET", {"FUMES"}}, {"TUBE OUTLET", {"TUBES"}}, {"SOLIDS OUTLET", {"CAKE"}}};
  DryerAtHand dryer(plant);
  EXPECT_EQ(dryer->GetStreamInfo(), 1);
  void* exits = list2_create();
  EXPECT_EQ(dryer->GetExitStreams(exits), 1);
  ASSERT_EQ(list2_length(exits), 3);
  EXPECT_STREQ(list2_get_item(exits, 0, nullptr), "CAKE");
  EXPECT_STREQ(list2_get_item(exits, 1, nullptr), "TUBES");
  EXPECT_STREQ(list2_get_item(exits, 2, nullptr), "FUMES");
  list2_delete(exits);
}

TEST(DryerStreams, Streams_named_in_slots_count_where_none_is_connected) {
  Plant plant = dryerPlant("ED", "TRAY");
  itemOf(plant).erase("inlets");
  itemOf(plant).erase("exits");
  itemOf(plant)["component"] = {{"Inlet stream", "FEED"}, {"Exit stream", {"CAKE", "FUMES"}}};
  DryerAtHand dryer(plant);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_DOUBLE_EQ(dryer.values().evaporationRate, 800);
  EXPECT_DOUBLE_EQ(dryer.values().dryVaporFlow, 700);
}

TEST(DryerStreams, The_search_reports_progress) {
  DryerAtHand dryer(dryerPlant("ED", "TRAY"));
  EXPECT_EQ(dryer.progressOf([](auto& object) { object.GetStreamInfo(); }),
            (Progress{{35, "Checking inlets.."}, {35, "Checking exits..."}}));
}

// --- Solids -------------------------------------------------------------------------------------

struct DifferenceCase {
  double total;
  double liquid;
  double vapor;
  double solid;
};
class SolidsByDifference : public testing::TestWithParam<DifferenceCase> {};
INSTANTIATE_TEST_SUITE_P(
    Dryer, SolidsByDifference,
    testing::Values(DifferenceCase{1000, 600, 150, 250}, DifferenceCase{1000, 600, 0, 400},
                    DifferenceCase{1000, 0, 0, 1000}, DifferenceCase{0.0001, 0, 0, 0},
                    DifferenceCase{0.00011, 0, 0, 0.00011}, DifferenceCase{0.00005, 0, 0, 0},
                    DifferenceCase{500, 600, 0, 0}));

TEST_P(SolidsByDifference, Stand_in_for_a_missing_solid_flow) {
  const auto& [total, liquid, vapor, solid] = GetParam();
  Plant plant = dryerPlant("ED", "TRAY");
  slotsOf(plant, "CAKE") = {{"TOTAL MASS FLOW", {total, "LB/H"}}};
  if (liquid > 0) slotsOf(plant, "CAKE")["LIQUID MASS FLOW"] = {liquid, "LB/H"};
  if (vapor > 0) slotsOf(plant, "CAKE")["VAPOR MASS FLOW"] = {vapor, "LB/H"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().solidFlow, solid);
  EXPECT_DOUBLE_EQ(dryer.values().solidVolumeFlow, solid / 93.6);
}

TEST(DryerSolids, A_flow_of_its_own_outranks_the_difference) {
  Plant plant = dryerPlant("ED", "TRAY");
  slotsOf(plant, "CAKE")["TOTAL MASS FLOW"] = {99999, "LB/H"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().solidFlow, 4680);
}

TEST(DryerSolids, Without_a_positive_density_there_is_no_volume) {
  Plant plant = dryerPlant("ED", "TRAY");
  slotsOf(plant, "CAKE")["SOLID MASS DENSITY"] = {-1, "PCF"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().solidFlow, 4680);
  EXPECT_EQ(dryer.values().solidVolumeFlow, 0.0);
}

struct RatioCase {
  double ratio;
  const char* liquid;  // the slot as JSON
  double solid;
};
class SolidsByRatio : public testing::TestWithParam<RatioCase> {};
INSTANTIATE_TEST_SUITE_P(Dryer, SolidsByRatio,
                         testing::Values(RatioCase{0.25, R"([200, "LB/H"])", 50},
                                         RatioCase{0.25, R"([90.718474, "KG/H"])", 50},
                                         RatioCase{0.25, "200", 50},
                                         RatioCase{-0.25, R"([200, "LB/H"])", 0},
                                         RatioCase{0.25, R"([-200, "LB/H"])", 0},
                                         RatioCase{0, R"([200, "LB/H"])", 0}));

TEST_P(SolidsByRatio, Are_the_ratio_times_the_liquid_for_simulator_type_7) {
  Plant plant = dryerPlant("ED", "TRAY");
  plant["simulator"] = 7;
  slotsOf(plant, "CAKE")["SUSPENDED SOLID TO LIQUOR RATIO"] = GetParam().ratio;
  slotsOf(plant, "CAKE")["LIQUID MASS FLOW"] = Plant::parse(GetParam().liquid);
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_NEAR(dryer.values().solidFlow, GetParam().solid, 1e-9);
  // the density that the stream tells, 46.8, does not count
  EXPECT_NEAR(dryer.values().solidVolumeFlow, GetParam().solid / 93.6, 1e-12);
}

TEST(DryerSolids, The_ratio_counts_for_simulator_type_7_only) {
  for (const int type : {1, 6, 8}) {
    Plant plant = dryerPlant("ED", "TRAY");
    plant["simulator"] = type;
    slotsOf(plant, "CAKE")["SUSPENDED SOLID TO LIQUOR RATIO"] = 0.25;
    DryerAtHand dryer(plant);
    dryer->Size();
    EXPECT_DOUBLE_EQ(dryer.values().solidFlow, 4680) << type;
  }
}

// --- Given dimensions and rates -----------------------------------------------------------------

TEST(DryerGiven, The_evaporation_rate_of_a_spray_dryer_has_three_sources) {
  struct Case {
    const char* component;
    const char* project;
    const char* block;
    double rate;
  };
  for (const auto& [component, project, block, rate] : {
           Case{"[1100, \"LB/H\"]", "[2200, \"LB/H\"]", "[3300, \"LB/H\"]", 1100},
           Case{"[-5, \"LB/H\"]", "[2200, \"LB/H\"]", "[3300, \"LB/H\"]", 2200},
           Case{nullptr, nullptr, "[453.59237, \"KG/H\"]", 1000},
           Case{nullptr, nullptr, nullptr, 0},
       }) {
    Plant plant = dryerPlant("ED", "SPRAY");
    if (component) itemOf(plant)["component"]["CpEvaporationRate"] = Plant::parse(component);
    if (project) itemOf(plant)["project"]["CpEvaporationRate"] = Plant::parse(project);
    if (block) blockOf(plant)["Evaporation Rate"] = Plant::parse(block);
    DryerAtHand dryer(plant);
    EXPECT_EQ(dryer->GetLastInfo(), 1);
    EXPECT_NEAR(dryer.values().evaporationRate, rate, 1e-9);
  }
}

TEST(DryerGiven, Every_run_reads_the_rate_of_a_spray_dryer_anew) {
  Plant plant = dryerPlant("EDD", "spray ");
  itemOf(plant)["component"]["CpEvaporationRate"] = {1100, "LB/H"};
  DryerAtHand dryer(plant);
  dryer->data().evaporationRate = 5000;
  dryer->Size();
  EXPECT_EQ(dryer.values().evaporationRate, 1100);
}

TEST(DryerGiven, Other_items_read_no_rate) {
  Plant plant = dryerPlant("ED", "TRAY");
  itemOf(plant)["component"]["CpEvaporationRate"] = {1100, "LB/H"};
  DryerAtHand dryer(plant);
  dryer->data().evaporationRate = 5000;
  EXPECT_EQ(dryer->GetLastInfo(), 1);
  EXPECT_EQ(dryer.values().evaporationRate, 5000);
}

TEST(DryerGiven, Tray_dimensions_come_from_the_project_or_else_the_block) {
  Plant plant = dryerPlant("ED", "TRAY");
  blockOf(plant) = {{"Tray Area", {77, "SF"}}, {"Tray Length", {3.048, "M"}}};
  DryerAtHand ofBlock(plant);
  ofBlock->Size();
  EXPECT_DOUBLE_EQ(ofBlock.values().surfaceArea, 77);
  EXPECT_NEAR(ofBlock.values().length, 10, 1e-12);

  itemOf(plant)["project"] = {{"CpTrayArea", {9.290304, "M2"}}, {"Tray Length", {6, "FEET"}}};
  DryerAtHand ofProject(plant);
  ofProject->Size();
  EXPECT_NEAR(ofProject.values().surfaceArea, 100, 1e-9);
  EXPECT_DOUBLE_EQ(ofProject.values().length, 6);
}

TEST(DryerGiven, Without_a_project_object_the_block_tells_no_dimensions) {
  Plant plant = dryerPlant("ED", "TRAY");
  blockOf(plant)["Tray Area"] = {77, "SF"};
  itemOf(plant)["project"] = nullptr;
  DryerAtHand dryer(plant);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_NEAR(dryer.values().surfaceArea, 200, 1e-9);  // of the solids, in several items
}

TEST(DryerGiven, The_component_tells_no_tray_dimensions) {
  Plant plant = dryerPlant("ED", "TRAY");
  itemOf(plant)["component"]["CpTrayArea"] = {77, "SF"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_EQ(dryer.values().surfaceArea, 200);
}

TEST(DryerGiven, A_tray_area_that_nobody_tells_any_more_is_worked_out_anew) {
  Plant plant = dryerPlant("ED", "TRAY");
  setSolidVolume(plant, 16.7);
  DryerAtHand dryer(plant);
  dryer->data().surfaceArea = 77;
  dryer->data().length = 3;
  dryer->Size();
  EXPECT_NEAR(dryer.values().length, 10, 1e-8);
  EXPECT_NEAR(dryer.values().surfaceArea, 100, 1e-7);
}

TEST(DryerGiven, An_item_without_a_simulator_block_is_sized) {
  Plant plant = dryerPlant("ED", "TRAY");
  plant["simulator"] = 0;
  DryerAtHand dryer(plant);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_EQ(dryer.values().surfaceArea, 200);
}

}  // namespace
}  // namespace sizewright
