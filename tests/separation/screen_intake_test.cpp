#include <gtest/gtest.h>

#include "separation/screen_plant.h"

namespace sizewright {
namespace {

// --- Capacity ------------------------------------------------------------------------------------

struct KeyCase {
  double opening;
  const char* key;
};
class OpeningKey : public testing::TestWithParam<KeyCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryRow, OpeningKey,
    testing::Values(KeyCase{0.1, "0.375"}, KeyCase{0.375, "0.375"}, KeyCase{0.376, "0.5"},
                    KeyCase{0.5, "0.5"}, KeyCase{0.6, "0.75"}, KeyCase{0.75, "0.75"},
                    KeyCase{0.8, "0.875"}, KeyCase{0.875, "0.875"}, KeyCase{0.9, "1."},
                    KeyCase{1.0, "1."}, KeyCase{1.1, "1.125"}, KeyCase{1.125, "1.125"},
                    KeyCase{1.2, "1.25"}, KeyCase{1.25, "1.25"}, KeyCase{1.3, "1.5"},
                    KeyCase{1.5, "1.5"}, KeyCase{1.6, "1.75"}, KeyCase{1.75, "1.75"},
                    KeyCase{1.8, "2."}, KeyCase{2.0, "2."}, KeyCase{2.1, "2.5"},
                    KeyCase{2.5, "2.5"}, KeyCase{2.51, "3."}, KeyCase{3.0, "3."}));

TEST_P(OpeningKey, Is_that_of_the_next_opening) {
  EXPECT_EQ(screenOpeningKey(GetParam().opening), GetParam().key);
}

TEST(ScreenCapacity, Comes_from_the_property_database_by_material_and_opening) {
  PlantJson plant = screenPlant("RECTANGLE");
  plant["criteria"]["*"] = {{"Vibrating screen feed material", "Test Gravel"},
                            {"Screen opening size", {0.6, "INCHES"}}};
  plant["property database"] = {{"Test Gravel", {{"0.75", 2.5}}}};
  Screen screen(plant);
  screen->Size();
  EXPECT_EQ(screen.values().materialCapacity, 2.5);
  EXPECT_DOUBLE_EQ(screen.values().surfaceArea, 60 / 2.5);
}

TEST(ScreenCapacity, Has_defaults) {
  PlantJson plant = screenPlant("RECTANGLE");
  Screen unknown(plant);
  unknown->Size();
  EXPECT_EQ(unknown.values().materialCapacity, 3.0);
  EXPECT_EQ(unknown.values().screenOpening, 1.0);
  plant["criteria"]["*"] = PlantJson::object();
  Screen usual(plant);
  usual->Size();
  EXPECT_EQ(usual.values().feedMaterial.view(), "Sand and Gravel");
}

TEST(ScreenCapacity, Of_a_slurry_simulator_has_an_opening_of_its_own) {
  PlantJson plant = screenPlant("RECTANGLE");
  plant["simulator"] = 7;
  recordOf(plant)["Screen opening size"] = {2, "INCHES"};
  Screen given(plant);
  given->Size();
  EXPECT_EQ(given.values().screenOpening, 2);
  recordOf(plant).erase("Screen opening size");
  blockOf(plant)["Screen opening size"] = {2, "INCHES"};
  Screen preset(plant);
  preset->Size();
  EXPECT_EQ(preset.values().screenOpening, 1);  // the preset is positive: the block is not asked
  plant["simulator"] = 1;
  recordOf(plant)["Screen opening size"] = {2, "INCHES"};
  Screen other(plant);
  other->Size();
  EXPECT_EQ(other.values().screenOpening, 1);
}

TEST(ScreenCapacity, Of_sand_and_gravel_is_bundled) {
  for (const auto& [opening, capacity] :
       {std::pair(0.3, 2.39), std::pair(0.5, 2.84), std::pair(1.0, 4.09), std::pair(2.4, 6.35),
        std::pair(9.0, 7.1)}) {
    PlantJson plant = screenPlant("RECTANGLE");
    plant["criteria"]["*"] = {{"Screen opening size", {opening, "INCHES"}}};
    Screen screen(plant);
    screen->Size();
    EXPECT_EQ(screen.values().materialCapacity, capacity) << opening;
    EXPECT_NEAR(screen.values().surfaceArea, 60 / capacity, 1e-9);
  }
}

TEST(ScreenCapacity, Of_the_plant_lies_over_the_bundled_one) {
  PlantJson plant = screenPlant("RECTANGLE");
  plant["criteria"]["*"] = PlantJson::object();
  plant["property database"] = {{"Sand and Gravel", {{"1.", 2.5}}}};
  Screen screen(plant);
  screen->Size();
  EXPECT_EQ(screen.values().materialCapacity, 2.5);
}

TEST(ScreenCapacity, Is_3_where_the_database_gives_nothing) {
  for (const PlantJson& given : {PlantJson(0), PlantJson(-2), PlantJson("much")}) {
    PlantJson plant = screenPlant("RECTANGLE");
    plant["property database"] = {{"Nothing Known", {{"1.", given}, {"0.875", 9}}}};
    Screen screen(plant);
    screen->Size();
    EXPECT_EQ(screen.values().materialCapacity, 3.0) << given;
  }
}

TEST(ScreenOpening, Of_the_criterion_is_read_in_inches) {
  PlantJson plant = screenPlant("RECTANGLE");
  for (const auto& [opening, units, inches] :
       {std::tuple(50.8, "MM", 2.0), std::tuple(0.25, "INCHES", 0.25),
        std::tuple(0.0, "INCHES", 1.0), std::tuple(-2.0, "INCHES", 1.0)}) {
    plant["criteria"]["*"]["Screen opening size"] = {opening, units};
    Screen screen(plant);
    screen->Size();
    EXPECT_NEAR(screen.values().screenOpening, inches, 1e-12) << opening;
  }
}

TEST(ScreenOpening, Of_the_block_counts_where_the_record_holds_a_negative_one) {
  PlantJson plant = screenPlant("RECTANGLE");
  plant["simulator"] = 7;
  recordOf(plant)["Screen opening size"] = {-2, "INCHES"};
  Screen alone(plant);
  alone->Size();
  EXPECT_EQ(alone.values().screenOpening, 1);
  blockOf(plant)["Screen opening size"] = {50.8, "MM"};
  Screen block(plant);
  block->Size();
  EXPECT_NEAR(block.values().screenOpening, 2, 1e-12);
  plant["criteria"]["*"]["Screen opening size"] = {1.5, "INCHES"};
  Screen criterion(plant);
  criterion->Size();
  EXPECT_EQ(criterion.values().screenOpening, 1.5);  // only one of exactly 1 is looked for anew
}

// --- Solids --------------------------------------------------------------------------------------

TEST(ScreenSolids, Are_told_or_a_fraction_or_by_the_liquor) {
  PlantJson plant = screenPlant("RECTANGLE");
  Screen told(plant);
  told->Size();
  EXPECT_DOUBLE_EQ(told.values().solidFlowTPH, 60);
  slotsOf(plant, "F") = {{"SOLID FRACTION", 0.25}, {"TOTAL MASS FLOW", {1000, "LB/H"}}};
  Screen fraction(plant);
  fraction->Size();
  EXPECT_DOUBLE_EQ(fraction.values().solidFlow, 250);
  plant["simulator"] = 7;
  slotsOf(plant, "F") = {{"SUSPENDED SOLID TO LIQUOR RATIO", {0.5, "RATIO"}},
                         {"LIQUID MASS FLOW", {1000, "LB/H"}}};
  Screen liquor(plant);
  liquor->Size();
  EXPECT_DOUBLE_EQ(liquor.values().solidFlow, 500);
}

TEST(ScreenSolids, Of_the_item_serve_without_those_of_streams) {
  PlantJson plant = screenPlant("RECTANGLE");
  slotsOf(plant, "F") = PlantJson::object();
  blockOf(plant)["Rate"] = {4000, "LB/H"};
  Screen block(plant);
  block->Size();
  EXPECT_EQ(block.values().solidFlow, 4000);
  recordOf(plant)["CpFlowrate"] = {6000, "LB/H"};
  Screen record(plant);
  record->Size();
  EXPECT_EQ(record.values().solidFlow, 6000);
}

TEST(ScreenSolids, Missing_are_an_error_and_sizing_goes_on) {
  PlantJson plant = screenPlant("RECTANGLE");
  slotsOf(plant, "F") = PlantJson::object();
  Screen screen(plant, 1);
  EXPECT_EQ(screen->Size(), 1);
  EXPECT_TRUE(holds(screen->Errors(), "No inlet solid flow specified."));
  EXPECT_EQ(screen.plant.dialogTexts(), std::vector<std::string>{"No inlet solid flow specified."});
  EXPECT_EQ(screen.values().surfaceArea, 0);
  EXPECT_EQ(screen.values().screenLength, 6);
  EXPECT_EQ(screen.values().screenWidth, 3);
}

TEST(ScreenStreams, Are_needed_at_both_ends) {
  expectBothEndsNeeded<CScObj>(screenPlant("CIRCULAR"));
}

TEST(ScreenForm, Does_not_exist) {
  expectNoForm<CScObj>(screenPlant("CIRCULAR"));
}

TEST(ScreenSolids, Of_all_inlets_are_added) {
  PlantJson plant = screenPlant("RECTANGLE");
  plant["streams"]["F2"]["slots"] = {{"SOLID FRACTION", 0.5}, {"TOTAL MASS FLOW", {1000, "LB/H"}}};
  plant["streams"]["F3"]["slots"] = {{"SOLID FRACTION", 0.5}, {"TOTAL MASS FLOW", {-100, "LB/H"}}};
  itemOf(plant)["inlets"]["INLET"] = {"F", "F2", "NOWHERE", "F3"};
  Screen screen(plant);
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().solidFlow, 60 * kTon + 500);
  EXPECT_DOUBLE_EQ(screen.values().solidFlowTPH, 60.25);
}

TEST(ScreenSolids, Of_streams_come_before_those_of_the_item) {
  PlantJson plant = screenPlant("RECTANGLE");
  recordOf(plant)["CpFlowrate"] = {6000, "LB/H"};
  Screen screen(plant);
  screen->Size();
  EXPECT_EQ(screen.values().solidFlow, 60 * kTon);
}

TEST(ScreenSolids, By_the_liquor_need_both_numbers) {
  for (const auto& [ratio, liquid] : {std::pair(-0.5, 1000.0), std::pair(0.5, -1000.0)}) {
    PlantJson plant = screenPlant("RECTANGLE");
    plant["simulator"] = 7;
    slotsOf(plant, "F") = {{"SUSPENDED SOLID TO LIQUOR RATIO", {ratio, "RATIO"}},
                           {"LIQUID MASS FLOW", {liquid, "LB/H"}},
                           {"SOLID MASS FLOW", {77, "LB/H"}}};
    Screen screen(plant);
    screen->Size();
    EXPECT_EQ(screen.values().solidFlow, 0);
  }
}

TEST(ScreenSolids, Below_0_are_an_error_too_and_count_as_none) {
  for (const auto& [item, area] :
       {std::pair("CIRCULAR", 0.0), std::pair("RECTANGLE", 0.0), std::pair("HIGH CAP", 10.0)}) {
    PlantJson plant = screenPlant(item);
    slotsOf(plant, "F") = PlantJson::object();
    recordOf(plant)["CpFlowrate"] = {-6000, "LB/H"};
    Screen screen(plant);
    EXPECT_EQ(screen->Size(), 1);
    EXPECT_TRUE(holds(screen->Errors(), "No inlet solid flow specified."));
    EXPECT_TRUE(screen.plant.dialogTexts().empty());
    EXPECT_EQ(screen.values().surfaceArea, area) << item;
  }
}

// --- Values of the item -------------------------------------------------------------------------

struct SourceCase {
  const char* ofRecord;
  const char* ofBlock;
  double ScreenData::*field;
  const char* units;
  double factor;  // of the slot's number
};
class ScreenSource : public testing::TestWithParam<SourceCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryField, ScreenSource,
    testing::Values(SourceCase{"CpSurfaceArea", "Area", &ScreenData::surfaceArea, "M2", 0.09290304},
                    SourceCase{"CpScreenDiameter", "Diameter", &ScreenData::screenDiameter, "MM",
                               25.4},
                    SourceCase{"CpLength", "Length", &ScreenData::screenLength, "M", 0.3048},
                    SourceCase{"CpWidth", "WIDTH", &ScreenData::screenWidth, "M", 0.3048}));

TEST_P(ScreenSource, Is_the_record_and_then_the_block) {
  // a screen of given diameter keeps its area and its sides
  PlantJson plant = screenPlant("CIRCULAR");
  recordOf(plant)["CpScreenDiameter"] = {20, "INCHES"};
  blockOf(plant)[GetParam().ofBlock] = {31 * GetParam().factor, GetParam().units};
  for (const double record : {-1.0, 0.0, 30.0}) {
    recordOf(plant)[GetParam().ofRecord] = {record * GetParam().factor, GetParam().units};
    Screen screen(plant);
    screen->Size();
    EXPECT_NEAR(screen.values().*GetParam().field, record > 0 ? record : 31, 1e-9) << record;
  }
}

TEST(ScreenCounts, Come_from_the_record_and_then_the_block) {
  PlantJson plant = screenPlant("CIRCULAR");
  recordOf(plant)["CpScreenDiameter"] = {20, "INCHES"};
  Screen none(plant);
  none->Size();
  EXPECT_EQ(none.values().numberItems, 1);
  EXPECT_EQ(none.values().numberDecks, 0);
  blockOf(plant) = {{"CpNumberItems", 4}, {"NUMBER OF DECKS", 5}};
  Screen block(plant);
  block->Size();
  EXPECT_EQ(block.values().numberItems, 4);
  EXPECT_EQ(block.values().numberDecks, 5);
  recordOf(plant)["NUMBER OF DECKS"] = 6;
  recordOf(plant)["CpNumberItems"] = 1;  // does not count as given
  Screen record(plant);
  record->Size();
  EXPECT_EQ(record.values().numberItems, 4);
  EXPECT_EQ(record.values().numberDecks, 6);
  recordOf(plant)["CpNumberItems"] = 1.5;
  recordOf(plant)["CpNumberDecks"] = 7;
  Screen first(plant);
  first->Size();
  EXPECT_EQ(first.values().numberItems, 1.5);
  EXPECT_EQ(first.values().numberDecks, 7);
}

TEST(ScreenProgress, Is_told_in_order) {
  const std::vector<std::pair<int, std::string>> intake = {
      {35, "Checking inlets.."},
      {35, "Checking exits..."},
      {35, "Obtaining process parameters. Please wait..."},
      {40, "Obtained inlet stream information."},
      {40, "Checking input information. Obtaining solid mass flow."},
      {45, "Obtained simulator data"},
      {45, "Performing design calculations"}};
  Screen screen(screenPlant("CIRCULAR"));
  auto progress = screen.progressOf([](CScObj& object) { object.Size(); });
  ASSERT_GT(progress.size(), intake.size());
  progress.resize(intake.size());
  EXPECT_EQ(progress, intake);
}

}  // namespace
}  // namespace sizewright
