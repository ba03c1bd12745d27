#include "sizewright/separation/screen.h"

#include <gtest/gtest.h>

#include <cmath>

#include "separation/solids_plant.h"

namespace sizewright {
namespace {

using Screen = SolidsItem<CScObj>;

constexpr double kTon = 2000;  // LB

// 60 TPH of solids; 3 TPH/SF unless the property database tells otherwise.
PlantJson screenPlant(const char* item) {
  PlantJson plant = solidsPlant("EVS", item, "SOLIDS OUTLET");
  slotsOf(plant, "F")["SOLID MASS FLOW"] = {60 * kTon, "LB/H"};
  plant["criteria"]["*"]["Vibrating screen feed material"] = "Nothing Known";
  return plant;
}

PlantJson screenOf(const char* item, double area) {
  PlantJson plant = screenPlant(item);
  recordOf(plant)["CpSurfaceArea"] = {area, "SF"};
  return plant;
}

// --- Capacity
// -------------------------------------------------------------------------------------

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

struct DeckCase {
  const char* item;
  double decks;
  double factor;
};
class DeckCapacity : public testing::TestWithParam<DeckCase> {};
INSTANTIATE_TEST_SUITE_P(EveryCount, DeckCapacity,
                         testing::Values(DeckCase{"RECTANGLE", 1, 1}, DeckCase{"RECTANGLE", 2, 1.9},
                                         DeckCase{"CIRCULAR", 3, 2.7}, DeckCase{"CIRCULAR", 4, 2.7},
                                         DeckCase{"HIGH CAP", 3, 1}));

TEST_P(DeckCapacity, Grows_with_the_decks_of_shaped_screens) {
  PlantJson plant = screenPlant(GetParam().item);
  recordOf(plant)["CpNumberDecks"] = GetParam().decks;
  Screen screen(plant);
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().deckCapacity, 3 * GetParam().factor);
}

// --- Solids
// ---------------------------------------------------------------------------------------

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

// --- Circular
// -------------------------------------------------------------------------------------

struct CircularCase {
  double area;
  double unit;
  double items;
};
class CircularScreen : public testing::TestWithParam<CircularCase> {};
INSTANTIATE_TEST_SUITE_P(AroundTheLimit, CircularScreen,
                         testing::Values(CircularCase{17.9, 17.9, 1}, CircularCase{18, 18, 1},
                                         CircularCase{18.1, 16, 2}, CircularCase{20, 16, 2},
                                         CircularCase{36, 16, 2}, CircularCase{36.1, 16, 3}));

TEST_P(CircularScreen, Is_split_above_18_into_units_of_16) {
  Screen screen(screenOf("CIRCULAR", GetParam().area));
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().surfaceArea, GetParam().unit);
  EXPECT_EQ(screen.values().numberItems, GetParam().items);
}

TEST(CircularScreens, Are_from_18_to_60_inches_wide) {
  EXPECT_NEAR(screenDiameter(10), 12 * std::sqrt(10 * 1.273239544731026), 1e-9);
  EXPECT_EQ(screenDiameter(1), 18);
  EXPECT_EQ(screenDiameter(30), 60);
}

TEST(CircularScreens, Of_a_given_diameter_keep_it_and_the_area) {
  PlantJson plant = screenOf("CIRCULAR", 50);
  recordOf(plant)["CpScreenDiameter"] = {70, "INCHES"};
  Screen screen(plant);
  screen->Size();
  EXPECT_EQ(screen.values().screenDiameter, 70);
  EXPECT_EQ(screen.values().surfaceArea, 50);
}

// --- Rectangular
// ----------------------------------------------------------------------------------

struct RectangleCase {
  double area;
  double length;  // given
  double width;
  double expectedLength;
  double expectedWidth;
  double items;
};
class RectangularScreen : public testing::TestWithParam<RectangleCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryBranch, RectangularScreen,
    testing::Values(RectangleCase{100, 0, 0, 20, 5, 1}, RectangleCase{120, 0, 0, 24, 5, 1},
                    RectangleCase{150, 0, 0, 18.75, 8, 1}, RectangleCase{192, 0, 0, 24, 8, 1},
                    RectangleCase{193, 0, 0, 24, 8, 2}, RectangleCase{100, 25, 0, 25, 4, 1},
                    RectangleCase{100, 0, 10, 10, 10, 1}, RectangleCase{100, 50, 10, 50, 3, 1},
                    RectangleCase{10, 0, 0, 6, 5, 1}, RectangleCase{10, 4, 0, 6, 3, 1}));

TEST_P(RectangularScreen, Has_sides) {
  PlantJson plant = screenOf("RECTANGLE", GetParam().area);
  if (GetParam().length > 0) recordOf(plant)["CpLength"] = {GetParam().length, "FEET"};
  if (GetParam().width > 0) recordOf(plant)["CpWidth"] = {GetParam().width, "FEET"};
  Screen screen(plant);
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().screenLength, GetParam().expectedLength);
  EXPECT_DOUBLE_EQ(screen.values().screenWidth, GetParam().expectedWidth);
  EXPECT_EQ(screen.values().numberItems, GetParam().items);
}

// --- Plain
// ----------------------------------------------------------------------------------------

struct PlainCase {
  double area;
  double decks;
  double expectedArea;
  double expectedDecks;
  double items;
};
class PlainScreen : public testing::TestWithParam<PlainCase> {};
INSTANTIATE_TEST_SUITE_P(EveryBranch, PlainScreen,
                         testing::Values(PlainCase{9.9, 1, 10, 1, 1}, PlainCase{10, 1, 10, 1, 1},
                                         PlainCase{80, 3, 80, 1, 1}, PlainCase{80.1, 1, 160, 1, 2},
                                         PlainCase{81, 0, 160, 1, 2}, PlainCase{150, 2, 160, 2, 1},
                                         PlainCase{200, 2, 240, 1, 3},
                                         PlainCase{4000, 1, 4000, 1, 50},
                                         PlainCase{4001, 1, 4001, 1, 50}));

TEST_P(PlainScreen, Has_items_and_decks) {
  PlantJson plant = screenOf("HIGH CAP", GetParam().area);
  if (GetParam().decks > 0) blockOf(plant)["NUMBER OF DECKS"] = GetParam().decks;
  Screen screen(plant);
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().surfaceArea, GetParam().expectedArea);
  EXPECT_EQ(screen.values().numberDecks, GetParam().expectedDecks);
  EXPECT_EQ(screen.values().numberItems, GetParam().items);
}

TEST(PlainScreens, Of_a_given_count_have_their_area_multiplied) {
  PlantJson plant = screenOf("HIGH CAP", 60);
  recordOf(plant)["CpNumberItems"] = 2;
  Screen screen(plant);
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().surfaceArea, 160);  // 120 SF on two items of 80
}

// --- Results
// --------------------------------------------------------------------------------------

TEST(ScreenResults, Are_written_by_shape_in_both_unit_systems) {
  struct Row {
    const char* item;
    const char* slot;
    double customary;
    const char* units;
    double metric;
    const char* metricUnits;
  };
  for (const Row& row : {Row{"CIRCULAR", "CpScreenDiameter", 18, "INCHES", 457.2, "MM"},
                         Row{"CIRCULAR", "CpSurfaceArea", 1, "SF", 0.09290304, "M2"},
                         Row{"RECTANGLE", "CpLength", 6, "FEET", 1828.8, "MM"},
                         Row{"RECTANGLE", "CpWidth", 5, "FEET", 1524, "MM"},
                         Row{"RECTANGLE", "CpSurfaceArea", 1, "SF", 0.09290304, "M2"},
                         Row{"HIGH CAP", "CpSurfaceArea", 10, "SF", 0.9290304, "M2"}}) {
    PlantJson plant = screenOf(row.item, 1);
    for (const bool metric : {false, true}) {
      plant["units"] = metric ? "metric" : "customary";
      Screen screen(plant);
      screen->Size();
      EXPECT_EQ(screen->SaveParameters(), 1);
      EXPECT_NEAR(screen.number(row.slot), metric ? row.metric : row.customary, 1e-9) << row.slot;
      EXPECT_EQ(screen.units(row.slot), metric ? row.metricUnits : row.units) << row.slot;
      EXPECT_EQ(screen.text("CpNumberItems"), "1");
    }
  }
}

TEST(ScreenResults, Tell_at_most_3_decks_of_shaped_screens) {
  for (const auto& [item, decks] : {std::pair("CIRCULAR", "3"), std::pair("RECTANGLE", "3")}) {
    PlantJson plant = screenOf(item, 10);
    recordOf(plant)["CpNumberDecks"] = 5;
    Screen screen(plant);
    screen->Size();
    screen->SaveParameters();
    EXPECT_EQ(screen.text("CpNumberDecks"), decks);
  }
  PlantJson plant = screenOf("HIGH CAP", 390);
  recordOf(plant)["CpNumberDecks"] = 5;
  Screen plain(plant);
  plain->Size();
  plain->SaveParameters();
  EXPECT_EQ(plain.text("CpNumberDecks"), "5");
}

TEST(ScreenPorts, Are_rewritten_under_the_usual_tags) {
  Screen screen(screenPlant("CIRCULAR"));
  screen->Size();
  EXPECT_EQ(screen->UpdateConnectivity(), 1);
  EXPECT_EQ(screen.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(screen.text("_ex__1"), "P\nPROCESS\nOUTLET");
}

}  // namespace
}  // namespace sizewright
