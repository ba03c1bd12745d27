#include "sizewright/separation/filter.h"

#include <gtest/gtest.h>

#include "separation/solids_plant.h"

namespace sizewright {
namespace {

using Filter = SolidsItem<CFltObj>;

constexpr double kCfhInGpm = 60 * 231.0 / 1728.0;

// 1,000 CFH of liquid and 10 CFH (936 LB/H) of solids.
PlantJson filterPlant(const char* item, const char* category = "EF") {
  PlantJson plant = solidsPlant(category, item, "OUTLET");
  slotsOf(plant, "F") = {{"LIQUID MASS FLOW", {50000, "LB/H"}},
                         {"LIQUID MASS DENSITY", {50, "PCF"}},
                         {"SOLID MASS FLOW", {936, "LB/H"}}};
  return plant;
}

// --- Intake
// ---------------------------------------------------------------------------------------

TEST(FilterIntake, Reads_liquid_and_solids_of_all_inlets) {
  PlantJson plant = filterPlant("OTHER");
  plant["streams"]["F2"]["slots"] = {{"LIQUID MASS FLOW", {624, "LB/H"}},
                                     {"SOLID MASS FLOW", {100, "LB/H"}},
                                     {"SOLID MASS DENSITY", {50, "PCF"}}};
  itemOf(plant)["inlets"]["INLET"] = {"F", "F2"};
  Filter filter(plant);
  ASSERT_EQ(filter->Size(), 1);
  EXPECT_DOUBLE_EQ(filter.values().liquid_flow, 1010);  // 62.4 PCF where the stream tells none
  EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, 1036);
  EXPECT_DOUBLE_EQ(filter.values().solid_vol_flow, 12);
}

TEST(FilterIntake, Takes_the_balance_for_a_centrifuge_and_where_solids_are_missing) {
  PlantJson plant = filterPlant("OTHER");
  slotsOf(plant, "F")["TOTAL MASS FLOW"] = {50000 + 1872, "LB/H"};
  Filter filter(plant);
  filter->Size();
  EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, 936);
  itemOf(plant)["category"] = "ECT";
  Filter centrifuge(plant);
  centrifuge->Size();
  EXPECT_DOUBLE_EQ(centrifuge.values().solid_mass_flow, 1872);
  EXPECT_DOUBLE_EQ(centrifuge.values().solid_vol_flow, 20);
  itemOf(plant)["category"] = "EF";
  slotsOf(plant, "F").erase("SOLID MASS FLOW");
  Filter balance(plant);
  balance->Size();
  EXPECT_DOUBLE_EQ(balance.values().solid_mass_flow, 1872);
}

TEST(FilterIntake, Follows_the_liquor_in_simulator_7) {
  PlantJson plant = filterPlant("OTHER");
  plant["simulator"] = 7;
  slotsOf(plant, "F")["SUSPENDED SOLID TO LIQUOR RATIO"] = {0.01872, "RATIO"};
  Filter filter(plant);
  filter->Size();
  EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, 936);
  EXPECT_DOUBLE_EQ(filter.values().solid_vol_flow, 10);
}

TEST(FilterIntake, Lets_user_values_stand) {
  PlantJson plant = filterPlant("OTHER");
  recordOf(plant) = {{"CpLiquidFlowrate", {77, "CFH"}}, {"CpFlowrate", {88, "LB/H"}}};
  Filter filter(plant);
  filter->Size();
  EXPECT_EQ(filter.values().liquid_flow, 77);
  EXPECT_EQ(filter.values().solid_mass_flow, 88);
}

TEST(FilterIntake, Without_liquid_is_refused) {
  PlantJson plant = filterPlant("OTHER");
  slotsOf(plant, "F").erase("LIQUID MASS FLOW");
  Filter filter(plant, 1);
  EXPECT_EQ(filter->Size(), 0);
  EXPECT_TRUE(holds(filter->Errors(), "No inlet liquid flow specified."));
  itemOf(plant).erase("inlets");
  EXPECT_EQ(Filter(plant)->Size(), 0);
}

TEST(FilterIntake, Tells_its_progress) {
  Filter filter(filterPlant("OTHER"));
  std::vector<std::string> texts;
  for (const auto& [percent, text] : filter.progressOf([](CFltObj& object) { object.Size(); })) {
    if (percent > 35 || text.starts_with("Obtaining")) texts.push_back(text);
  }
  texts.resize(7);
  EXPECT_EQ(texts, (std::vector<std::string>{
                       "Obtaining inlet streams...", "Obtained inlet streams.",
                       "Obtaining inlet stream flows..",
                       "Completed writing inlet stream connectivity information.",
                       "Obtained solid and liquid flows from inlet streams.",
                       "Obtained simulator data", "Performing sizing calculations"}));
}

TEST(FilterForm, Does_not_exist) {
  expectNoForm<CFltObj>(filterPlant("OTHER"));
}

// --- Areas and volumes
// ----------------------------------------------------------------------------

TEST(FilterFormulas, Follow_flows_and_dimensions) {
  EXPECT_DOUBLE_EQ(plateFrameVolume(100), 25);
  EXPECT_NEAR(plateFrameVolume(2, 10), 10 * 0.7853981634 * (4 - 1.94 * 1.94), 1e-12);
  EXPECT_NEAR(cakeArea(0.33, 0.5), 5, 1e-12);
  EXPECT_NEAR(drumArea(2, 3), 6 * 3.1415926536, 1e-12);
}

struct LimitCase {
  const char* item;
  double area;
  double limited;
  double units;
};
class FilterArea : public testing::TestWithParam<LimitCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryRow, FilterArea,
    testing::Values(LimitCase{"LEAF DRY", 49.9, 50, 1}, LimitCase{"LEAF DRY", 50, 50, 1},
                    LimitCase{"LEAF DRY", 50.1, 50.1, 1}, LimitCase{"LEAF DRY", 600, 600, 1},
                    LimitCase{"LEAF WET", 600.1, 600, 2}, LimitCase{"LEAF WET", 49, 50, 1},
                    LimitCase{"LEAF WET", 1200.1, 600, 3}, LimitCase{"ROTY DISK", 99.9, 100, 1},
                    LimitCase{"ROTY DISK", 1999, 1999, 1}, LimitCase{"ROTY DRUM", 2000, 2000, 1},
                    LimitCase{"ROTY DRUM", 2000.5, 2000, 2}, LimitCase{"ROTY DRUM", 100, 100, 1},
                    LimitCase{"SEWAGE", 99, 100, 1}, LimitCase{"SEWAGE", 600, 600, 1},
                    LimitCase{"SEWAGE", 601, 600, 2}, LimitCase{"SPARKLER", 7.9, 8, 1},
                    LimitCase{"SPARKLER", 8, 8, 1}, LimitCase{"SPARKLER", 110, 110, 1},
                    LimitCase{"SPARKLER", 110.1, 110, 2}, LimitCase{"SPARKLER", 220, 110, 2},
                    LimitCase{"OTHER", 1e6, 1e6, 1}));

TEST_P(FilterArea, Is_held_within_one_unit) {
  PlantJson plant = filterPlant(GetParam().item);
  recordOf(plant)["CpSurfaceArea"] = {GetParam().area, "SF"};
  Filter filter(plant);
  filter->Size();
  EXPECT_DOUBLE_EQ(filter.values().filter_area, GetParam().limited);
  EXPECT_EQ(filter.values().num_units, GetParam().units);
}

TEST(RotaryFilter, Of_the_blocks_area_is_left_alone) {
  for (const auto& [block, limited] : {std::pair(50.05, false), std::pair(50.2, true)}) {
    PlantJson plant = filterPlant("ROTY DRUM");
    recordOf(plant)["CpSurfaceArea"] = {50, "SF"};
    blockOf(plant)["FILTER AREA"] = {block, "SF"};
    Filter filter(plant);
    filter->Size();
    EXPECT_EQ(filter.values().filter_area, limited ? 100 : 50);
  }
}

TEST(FilterSizing, Finds_the_area_by_cake_or_by_dimensions) {
  Filter cake(filterPlant("OTHER"));
  cake->Size();
  EXPECT_DOUBLE_EQ(cake.values().filter_area, 10 / 0.033 * 0.0833);
  PlantJson plant = filterPlant("OTHER");
  recordOf(plant) = {{"CpDiameter", {24, "INCHES"}}, {"CpLength", {36, "INCHES"}}};
  Filter drum(plant);
  drum->Size();
  EXPECT_NEAR(drum.values().filter_area, 6 * 3.1415926536, 1e-9);
}

TEST(CartridgeFilter, Is_held_within_one_unit_by_flow) {
  for (const auto& [flow, limited, units] :
       {std::tuple(100.0, 241.1, 1.0), std::tuple(240.9, 241.1, 1.0), std::tuple(241.0, 241.0, 1.0),
        std::tuple(9624.0, 9624.0, 1.0), std::tuple(9624.5, 9624.0, 2.0)}) {
    PlantJson plant = filterPlant("CARTRIDGE");
    recordOf(plant)["CpLiquidFlowrate"] = {flow, "CFH"};
    Filter filter(plant);
    filter->Size();
    EXPECT_EQ(filter.values().liquid_flow, limited) << flow;
    EXPECT_EQ(filter.values().num_units, units) << flow;
    EXPECT_EQ(filter.values().filter_area, 0.0);  // nothing else runs
  }
}

TEST(TubularFilter, Takes_the_flow_of_its_tubes) {
  PlantJson plant = filterPlant("TUBULAR");
  recordOf(plant)["CpTubeFlowrate"] = {55, "CFH"};
  Filter filter(plant);
  filter->Size();
  EXPECT_EQ(filter.values().liquid_flow, 55);
}

TEST(PlateFrameFilter, Is_held_within_one_unit_by_volume) {
  for (const auto& [solids, volume, units] :
       {std::tuple(39.0, 10.0, 1.0), std::tuple(100.0, 25.0, 1.0), std::tuple(200.0, 50.0, 1.0),
        std::tuple(201.0, 50.0, 2.0)}) {
    PlantJson plant = filterPlant("PLATE FRAM");
    slotsOf(plant, "F")["SOLID MASS FLOW"] = {solids, "LB/H"};
    Filter filter(plant);
    filter->Size();
    EXPECT_DOUBLE_EQ(filter.values().filter_volume, volume) << solids;
    EXPECT_EQ(filter.values().num_units, units) << solids;
  }
}

// --- Centrifuges
// ----------------------------------------------------------------------------------

struct TubularCase {
  double gpm;
  double diameter;
  double units;
};
class TubularCentrifuge : public testing::TestWithParam<TubularCase> {};
INSTANTIATE_TEST_SUITE_P(AroundTheLimits, TubularCentrifuge,
                         testing::Values(TubularCase{5, 4, 1}, TubularCase{29, 5.9, 1},
                                         TubularCase{31, 6, 2}));

TEST_P(TubularCentrifuge, Is_sized_in_GPM) {
  PlantJson plant = filterPlant("TUBULAR", "ECT");
  recordOf(plant)["CpLiquidFlowrate"] = {GetParam().gpm * kCfhInGpm, "CFH"};
  Filter centrifuge(plant);
  centrifuge->Size();
  EXPECT_NEAR(centrifuge.values().flt_diameter, GetParam().diameter, 1e-9);
  EXPECT_EQ(centrifuge.values().num_units, GetParam().units);
}

// --- Results
// --------------------------------------------------------------------------------------

TEST(FilterResults, Are_written_in_both_unit_systems) {
  PlantJson plant = filterPlant("SPARKLER");
  recordOf(plant) = {{"CpSurfaceArea", {220, "SF"}}, {"CpDriverPower", {5, "HP"}}};
  for (const bool metric : {false, true}) {
    plant["units"] = metric ? "metric" : "customary";
    Filter filter(plant);
    filter->Size();
    EXPECT_EQ(filter->SaveParameters(), 1);
    EXPECT_NEAR(filter.number("CpSurfaceArea"), metric ? 110 * 0.09290304 : 110, 1e-9);
    EXPECT_NEAR(filter.number("CpFlowrate"), metric ? 936 * 0.45359237 : 936, 1e-9);
    EXPECT_NEAR(filter.number("CpLiquidFlowrate"), metric ? 28.316846592 : 1000, 1e-9);
    EXPECT_NEAR(filter.number("CpDriverPower"), metric ? 5 * 0.745699871582270 : 5, 1e-9);
    EXPECT_EQ(filter.text("CpNumberItems"), "2");
    EXPECT_FALSE(filter.has("CpCentrifugeCapacity"));
  }
}

struct SlotCase {
  const char* item;
  const char* slot;
};
class CentrifugeSlot : public testing::TestWithParam<SlotCase> {};
INSTANTIATE_TEST_SUITE_P(EveryItem, CentrifugeSlot,
                         testing::Values(SlotCase{"SOLID BOWL", "CpBowlDiameter"},
                                         SlotCase{"SCREEN BWL", "CpBowlDiameter"},
                                         SlotCase{"VIBRATORY", "CpScreenDiameter"},
                                         SlotCase{"TUBULAR", "CpCentrifugeDiameter"},
                                         SlotCase{"DISK", "CpCentrifugeDiameter"},
                                         SlotCase{"BATCH TOP", "CpCentrifugeDiameter"}));

TEST_P(CentrifugeSlot, Holds_the_diameter_in_inches) {
  Filter centrifuge(filterPlant(GetParam().item, "ECT"));
  centrifuge->Size();
  centrifuge->SaveParameters();
  EXPECT_DOUBLE_EQ(centrifuge.number(GetParam().slot), centrifuge.values().flt_diameter);
  EXPECT_EQ(centrifuge.units(GetParam().slot), "INCHES");
}

TEST(FilterPorts, Tell_solids_apart) {
  PlantJson plant = filterPlant("OTHER");
  plant["streams"]["P2"]["slots"] = {{"SOLID MASS FLOW", {9, "LB/H"}}};
  itemOf(plant)["exits"] = {{"LIQUID OUTLET", {"P"}}, {"ANY", {"P2"}}};
  Filter filter(plant);
  filter->Size();
  EXPECT_EQ(filter->UpdateConnectivity(), 1);
  EXPECT_EQ(filter.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(filter.text("_ex__0"), "P\nPROCESS\nOUTLET");
  EXPECT_EQ(filter.text("_ex__1"), "P2\nPROCESS\nSOLIDS OUTLET");
}

}  // namespace
}  // namespace sizewright
