#include <gtest/gtest.h>

#include <cmath>

#include "separation/screen_plant.h"

namespace sizewright {
namespace {

// --- Area
// -----------------------------------------------------------------------------------------

struct DeckCase {
  const char* item;
  double decks;
  double factor;
};
class DeckCapacity : public testing::TestWithParam<DeckCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryCount, DeckCapacity,
    testing::Values(DeckCase{"RECTANGLE", 0, 1}, DeckCase{"RECTANGLE", 1, 1},
                    DeckCase{"RECTANGLE", 1.9, 1}, DeckCase{"RECTANGLE", 2, 1.9},
                    DeckCase{"RECTANGLE", 2.1, 1}, DeckCase{"RECTANGLE", 2.9, 1},
                    DeckCase{"RECTANGLE", 3, 2.7}, DeckCase{"RECTANGLE", 4, 2.7},
                    DeckCase{"CIRCULAR", 1, 1}, DeckCase{"CIRCULAR", 2, 1.9},
                    DeckCase{"CIRCULAR", 3, 2.7}, DeckCase{"CIRCULAR", 4, 2.7},
                    DeckCase{"HIGH CAP", 2, 1}, DeckCase{"HIGH CAP", 3, 1}));

TEST_P(DeckCapacity, Grows_with_the_decks_of_shaped_screens) {
  PlantJson plant = screenPlant(GetParam().item);
  slotsOf(plant, "F")["SOLID MASS FLOW"] = {30 * kTon, "LB/H"};
  recordOf(plant)["CpNumberDecks"] = GetParam().decks;
  Screen screen(plant);
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().deckCapacity, 3 * GetParam().factor);
  EXPECT_DOUBLE_EQ(screen.values().surfaceArea, 30 / (3 * GetParam().factor));
}

TEST(ScreenArea, Is_multiplied_by_the_items) {
  PlantJson plant = screenPlant("RECTANGLE");  // 20 SF by flow
  recordOf(plant)["CpNumberItems"] = 3;
  Screen byFlow(plant);
  byFlow->Size();
  EXPECT_DOUBLE_EQ(byFlow.values().surfaceArea, 60);
  EXPECT_EQ(byFlow.values().numberItems, 3);
  recordOf(plant)["CpSurfaceArea"] = {40, "SF"};
  Screen given(plant);
  given->Size();
  EXPECT_DOUBLE_EQ(given.values().surfaceArea, 120);
  EXPECT_EQ(given.values().deckCapacity, 0);  // not needed
}

TEST(ScreenArea, Without_a_capacity_is_one_and_a_half) {
  EXPECT_DOUBLE_EQ(screenArea(60, 4), 15);
  EXPECT_EQ(screenArea(60, 0), 1.5);
  EXPECT_EQ(screenArea(60, -4), 1.5);
}

/// A screen that a test can set values on.
class ScreenUnderTest : public CScObj {
 public:
  using CScObj::CScObj;
  using CScObj::data;
};

TEST(ScreenArea, Follows_a_given_capacity_of_the_decks) {
  SolidsItem<ScreenUnderTest> screen(screenPlant("RECTANGLE"));
  screen->data().deckCapacity = 6;
  screen->Size();
  EXPECT_DOUBLE_EQ(screen.values().surfaceArea, 10);
}

// --- Circular ------------------------------------------------------------------------------------

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
  EXPECT_EQ(screenDiameter(0), 18);
  EXPECT_EQ(screenDiameter(1.76), 18);  // 17.96
  EXPECT_NEAR(screenDiameter(1.77), 18.0145, 1e-3);
  EXPECT_NEAR(screenDiameter(19.6), 59.947, 1e-3);
  EXPECT_EQ(screenDiameter(19.7), 60);  // 60.1
}

TEST(CircularScreens, Are_as_wide_as_their_area_asks) {
  for (const auto& [area, diameter] : {std::pair(10.0, 42.8192), std::pair(20.0, 54.1624)}) {
    Screen screen(screenOf("CIRCULAR", area));
    screen->Size();
    EXPECT_NEAR(screen.values().screenDiameter, diameter, 1e-3) << area;
  }
}

TEST(CircularScreens, Of_a_given_diameter_keep_it_and_the_area) {
  PlantJson plant = screenOf("CIRCULAR", 50);
  recordOf(plant)["CpScreenDiameter"] = {70, "INCHES"};
  Screen screen(plant);
  screen->Size();
  EXPECT_EQ(screen.values().screenDiameter, 70);
  EXPECT_EQ(screen.values().surfaceArea, 50);
  EXPECT_EQ(screen.values().numberItems, 1);
}

// --- Rectangular ---------------------------------------------------------------------------------

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
                    RectangleCase{120.8, 0, 0, 15.1, 8, 1}, RectangleCase{150, 0, 0, 18.75, 8, 1},
                    RectangleCase{191.2, 0, 0, 23.9, 8, 1}, RectangleCase{192, 0, 0, 24, 8, 1},
                    RectangleCase{192.1, 0, 0, 24, 8, 2}, RectangleCase{384, 0, 0, 24, 8, 2},
                    RectangleCase{385, 0, 0, 24, 8, 3}, RectangleCase{100, 25, 0, 25, 4, 1},
                    RectangleCase{100, 0, 10, 10, 10, 1}, RectangleCase{100, 50, 10, 50, 3, 1},
                    RectangleCase{29.5, 0, 0, 6, 5, 1}, RectangleCase{30, 0, 0, 6, 5, 1},
                    RectangleCase{30.5, 0, 0, 6.1, 5, 1}, RectangleCase{10, 4, 0, 6, 3, 1},
                    RectangleCase{29, 10, 0, 10, 3, 1}, RectangleCase{30, 10, 0, 10, 3, 1},
                    RectangleCase{31, 10, 0, 10, 3.1, 1}, RectangleCase{12, 0, 2, 6, 3, 1},
                    RectangleCase{500, 20, 0, 20, 9.6, 3}));

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

TEST(RectangularScreens, Of_no_area_have_the_least_sides_or_the_given_one) {
  for (const auto& [length, width, expectedLength, expectedWidth] :
       {std::tuple(0.0, 0.0, 6.0, 3.0), std::tuple(10.0, 0.0, 10.0, 3.0),
        std::tuple(0.0, 4.0, 6.0, 4.0), std::tuple(10.0, 4.0, 10.0, 3.0)}) {
    double foundLength = length;
    double foundWidth = width;
    setScreenSides(0, foundLength, foundWidth);
    EXPECT_EQ(foundLength, expectedLength);
    EXPECT_EQ(foundWidth, expectedWidth);
  }
}

// --- Plain ---------------------------------------------------------------------------------------

struct PlainCase {
  double area;
  double decks;
  double expectedArea;
  double expectedDecks;
  double items;
};
class PlainScreen : public testing::TestWithParam<PlainCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryBranch, PlainScreen,
    testing::Values(PlainCase{9.9, 1, 10, 1, 1}, PlainCase{10, 1, 10, 1, 1},
                    PlainCase{10.1, 1, 10.1, 1, 1}, PlainCase{79.9, 0, 79.9, 1, 1},
                    PlainCase{80, 3, 80, 1, 1}, PlainCase{80.1, 1, 160, 1, 2},
                    PlainCase{81, 0, 160, 1, 2}, PlainCase{150, 2, 160, 2, 1},
                    PlainCase{160, 2, 160, 2, 1}, PlainCase{160.1, 2, 240, 1, 3},
                    PlainCase{81, 1.5, 120, 1.5, 1}, PlainCase{390, 5, 400, 5, 1},
                    PlainCase{401, 5, 480, 1, 6}, PlainCase{3999, 1, 4000, 1, 50},
                    PlainCase{4000, 1, 4000, 1, 50}, PlainCase{4000.1, 1, 4000.1, 1, 50},
                    PlainCase{4000.1, 51, 4080, 51, 1}, PlainCase{1e7, 9, 1e7, 1, 50}));

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

TEST(PlainScreens, Up_to_80_keep_their_given_count) {
  PlantJson plant = screenOf("HIGH CAP", 30);
  recordOf(plant)["CpNumberItems"] = 2;
  Screen screen(plant);
  screen->Size();
  EXPECT_EQ(screen.values().surfaceArea, 60);
  EXPECT_EQ(screen.values().numberItems, 2);
}

}  // namespace
}  // namespace sizewright
