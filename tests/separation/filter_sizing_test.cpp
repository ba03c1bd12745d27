#include <gtest/gtest.h>

#include "separation/filter_plant.h"

namespace sizewright {
namespace {

TEST(FilterFormulas, Follow_flows_and_dimensions) {
  EXPECT_DOUBLE_EQ(plateFrameVolume(100), 25);
  EXPECT_NEAR(plateFrameVolume(2, 10), 10 * kQuarterPi * (4 - 1.94 * 1.94), 1e-12);
  EXPECT_NEAR(cakeArea(0.33, 0.5), 5, 1e-12);
  EXPECT_NEAR(drumArea(2, 3), 6 * 3.1415926536, 1e-12);
}

// --- Limits of the area -------------------------------------------------------------------------

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
                    LimitCase{"LEAF DRY", 50.1, 50.1, 1}, LimitCase{"LEAF DRY", 599.9, 599.9, 1},
                    LimitCase{"LEAF DRY", 600, 600, 1}, LimitCase{"LEAF DRY", 600.1, 600, 2},
                    LimitCase{"LEAF WET", 49.9, 50, 1}, LimitCase{"LEAF WET", 50, 50, 1},
                    LimitCase{"LEAF WET", 50.1, 50.1, 1}, LimitCase{"LEAF WET", 599.9, 599.9, 1},
                    LimitCase{"LEAF WET", 600, 600, 1}, LimitCase{"LEAF WET", 600.1, 600, 2},
                    LimitCase{"LEAF WET", 1200, 600, 2}, LimitCase{"LEAF WET", 1200.1, 600, 3},
                    LimitCase{"ROTY DISK", 99.9, 100, 1}, LimitCase{"ROTY DISK", 100, 100, 1},
                    LimitCase{"ROTY DISK", 100.1, 100.1, 1},
                    LimitCase{"ROTY DISK", 1999.9, 1999.9, 1},
                    LimitCase{"ROTY DISK", 2000, 2000, 1}, LimitCase{"ROTY DISK", 2000.1, 2000, 2},
                    LimitCase{"ROTY DRUM", 99.9, 100, 1}, LimitCase{"ROTY DRUM", 100, 100, 1},
                    LimitCase{"ROTY DRUM", 100.1, 100.1, 1},
                    LimitCase{"ROTY DRUM", 1999.9, 1999.9, 1},
                    LimitCase{"ROTY DRUM", 2000, 2000, 1}, LimitCase{"ROTY DRUM", 2000.1, 2000, 2},
                    LimitCase{"SEWAGE", 99.9, 100, 1}, LimitCase{"SEWAGE", 100, 100, 1},
                    LimitCase{"SEWAGE", 100.1, 100.1, 1}, LimitCase{"SEWAGE", 599.9, 599.9, 1},
                    LimitCase{"SEWAGE", 600, 600, 1}, LimitCase{"SEWAGE", 600.1, 600, 2},
                    LimitCase{"SPARKLER", 7.9, 8, 1}, LimitCase{"SPARKLER", 8, 8, 1},
                    LimitCase{"SPARKLER", 8.1, 8.1, 1}, LimitCase{"SPARKLER", 109.9, 109.9, 1},
                    LimitCase{"SPARKLER", 110, 110, 1}, LimitCase{"SPARKLER", 110.1, 110, 2},
                    LimitCase{"SPARKLER", 220, 110, 2}, LimitCase{"sparkler ", 220, 110, 2},
                    LimitCase{"TUBULAR", 1e6, 1e6, 1}, LimitCase{"PLATE FRAM", 1e6, 1e6, 2},
                    LimitCase{"OTHER", 1e6, 1e6, 1}, LimitCase{"OTHER", 0.1, 0.1, 1}));

TEST_P(FilterArea, Is_held_within_one_unit) {
  PlantJson plant = filterPlant(GetParam().item);
  slotsOf(plant, "F")["SOLID MASS FLOW"] = {400, "LB/H"};  // two plate and frame filters
  recordOf(plant)["CpSurfaceArea"] = {GetParam().area, "SF"};
  Filter filter(plant);
  ASSERT_EQ(filter->Size(), 1);
  EXPECT_DOUBLE_EQ(filter.values().filter_area, GetParam().limited);
  EXPECT_EQ(filter.values().num_units, GetParam().units);
}

TEST(RotaryFilter, Of_the_blocks_area_is_left_alone) {
  for (const char* item : {"ROTY DISK", "ROTY DRUM"}) {
    for (const auto& [area, block, limited] :
         {std::tuple(50.0, 50.0, 50.0), std::tuple(50.0, 50.09, 50.0),
          std::tuple(50.0, 49.91, 50.0), std::tuple(50.0, 50.11, 100.0),
          std::tuple(50.0, 49.89, 100.0), std::tuple(5000.0, 5000.0, 5000.0),
          std::tuple(5000.0, 4999.0, 2000.0)}) {
      PlantJson plant = filterPlant(item);
      recordOf(plant)["CpSurfaceArea"] = {area, "SF"};
      blockOf(plant)["FILTER AREA"] = {block * 0.09290304, "M2"};
      Filter filter(plant);
      filter->Size();
      EXPECT_DOUBLE_EQ(filter.values().filter_area, limited) << area << " " << block;
    }
  }
}

TEST(RotaryFilter, Within_a_tenth_of_the_blocks_area_is_left_alone) {
  // in numbers that the machine holds exactly: the difference of 0.125 is above 0.1
  for (const auto& [block, limited] : {std::pair(50.0625, 50.0), std::pair(50.125, 100.0)}) {
    double area = 50;
    double units = 1;
    limitFilterArea("ROTY DRUM", block, area, units);
    EXPECT_EQ(area, limited);
  }
  double area = 0.0;
  double units = 1;
  limitFilterArea("ROTY DRUM", 0.1, area, units);  // the difference is exactly 0.1
  EXPECT_EQ(area, 0.0);
}

TEST(RotaryFilter, Of_the_upper_limit_is_one_unit_whatever_was_given) {
  for (const auto& [item, units] :
       {std::pair("ROTY DRUM", 1.0), std::pair("ROTY DISK", 1.0), std::pair("OTHER", 3.0)}) {
    PlantJson plant = filterPlant(item);
    recordOf(plant) = {{"CpSurfaceArea", {2000, "SF"}}, {"CpNumberItems", 3}};
    Filter filter(plant);
    filter->Size();
    EXPECT_EQ(filter.values().num_units, units) << item;
  }
  PlantJson plant = filterPlant("SEWAGE");  // at its upper limit others are not split
  recordOf(plant) = {{"CpSurfaceArea", {600, "SF"}}, {"CpNumberItems", 3}};
  Filter filter(plant);
  filter->Size();
  EXPECT_EQ(filter.values().num_units, 3);
}

TEST(SeveralFilters, Are_split_as_one_is) {
  PlantJson plant = filterPlant("SPARKLER");
  recordOf(plant) = {{"CpSurfaceArea", {220, "SF"}}, {"CpNumberItems", 7}};
  Filter filter(plant);
  filter->Size();
  EXPECT_EQ(filter.values().filter_area, 110);
  EXPECT_EQ(filter.values().num_units, 2);
}

TEST(SeveralFilters, Are_at_least_one) {
  for (const auto& [given, units] :
       {std::pair(-2.0, 1.0), std::pair(0.5, 1.0), std::pair(1.0, 1.0), std::pair(1.5, 1.5)}) {
    PlantJson plant = filterPlant("OTHER");
    recordOf(plant)["CpNumberItems"] = given;
    Filter filter(plant);
    filter->Size();
    EXPECT_EQ(filter.values().num_units, units) << given;
  }
}

TEST(SeveralFilters, Set_below_one_are_one) {
  for (const double units : {-2.0, 0.0, 0.5}) {
    SetFilter filter(filterPlant("OTHER"));
    filter->data().num_units = units;
    filter->Size();
    EXPECT_EQ(filter.values().num_units, 1) << units;
  }
}

// --- Area by cake or by dimensions --------------------------------------------------------------

struct AreaCase {
  double diameter;  // INCHES
  double length;
  double cake;  // FEET
  double area;
};
class FilterAreaFrom : public testing::TestWithParam<AreaCase> {};
// 10 CFH of solids
INSTANTIATE_TEST_SUITE_P(CakeOrDimensions, FilterAreaFrom,
                         testing::Values(AreaCase{0, 0, 0, 10 / 0.033 * 0.0833},
                                         AreaCase{24, 0, 0, 10 / 0.033 * 0.0833},
                                         AreaCase{0, 36, 0, 10 / 0.033 * 0.0833},
                                         AreaCase{-24, 36, 0, 10 / 0.033 * 0.0833},
                                         AreaCase{0, 0, 0.05, 10 / 0.033 * 0.05},
                                         AreaCase{24, 36, 0.05, 2 * 3.1415926536 * 3}));

TEST_P(FilterAreaFrom, Is_found_unless_given) {
  PlantJson plant = filterPlant("OTHER");
  recordOf(plant) = {{"CpDiameter", {GetParam().diameter, "INCHES"}},
                     {"CpLength", {GetParam().length, "INCHES"}},
                     {"CpCakeThickness", {GetParam().cake, "FEET"}}};
  Filter filter(plant);
  filter->Size();
  EXPECT_NEAR(filter.values().filter_area, GetParam().area, 1e-9);
  EXPECT_EQ(filter.values().cake_thickness, GetParam().cake > 0    ? GetParam().cake
                                            : GetParam().area > 20 ? 0.0833
                                                                   : 0.0);
  recordOf(plant)["CpSurfaceArea"] = {77, "SF"};
  Filter given(plant);
  given->Size();
  EXPECT_EQ(given.values().filter_area, 77);
}

TEST(LeafFilter, Found_by_its_cake_is_held_within_one_unit) {
  PlantJson plant = filterPlant("LEAF DRY");
  slotsOf(plant, "F")["SOLID MASS FLOW"] = {9.36, "LB/H"};
  Filter small(plant);
  small->Size();
  EXPECT_EQ(small.values().filter_area, 50);
  slotsOf(plant, "F")["SOLID MASS FLOW"] = {93600, "LB/H"};  // 2524.2 SF
  Filter large(plant);
  large->Size();
  EXPECT_EQ(large.values().filter_area, 600);
  EXPECT_EQ(large.values().num_units, 5);
}

// --- Filters by flow and by volume --------------------------------------------------------------

TEST(CartridgeFilter, Is_held_within_one_unit_by_flow) {
  for (const auto& [flow, limited, units] :
       {std::tuple(100.0, 241.1, 1.0), std::tuple(240.9, 241.1, 1.0), std::tuple(241.0, 241.0, 1.0),
        std::tuple(241.05, 241.05, 1.0), std::tuple(9623.9, 9623.9, 1.0),
        std::tuple(9624.0, 9624.0, 1.0), std::tuple(9624.1, 9624.0, 2.0),
        std::tuple(19248.0, 9624.0, 2.0), std::tuple(19248.1, 9624.0, 3.0)}) {
    PlantJson plant = filterPlant("CARTRIDGE");
    recordOf(plant)["CpLiquidFlowrate"] = {flow, "CFH"};
    recordOf(plant)["CpTubeFlowrate"] = {55, "CFH"};
    Filter filter(plant);
    filter->Size();
    EXPECT_EQ(filter.values().liquid_flow, limited) << flow;
    EXPECT_EQ(filter.values().num_units, units) << flow;
    EXPECT_EQ(filter.values().filter_area, 0.0);  // nothing else runs
  }
}

TEST(TubularFilter, Takes_the_flow_of_its_tubes) {
  for (const auto& [item, tubes, flow] :
       {std::tuple("TUBULAR", 55.0, 55.0), std::tuple("TUBULAR", 0.0, 1000.0),
        std::tuple("TUBULAR", -5.0, 1000.0), std::tuple("OTHER", 55.0, 1000.0)}) {
    PlantJson plant = filterPlant(item);
    recordOf(plant)["CpTubeFlowrate"] = {tubes, "CFH"};
    Filter filter(plant);
    filter->Size();
    EXPECT_EQ(filter.values().liquid_flow, flow) << item << tubes;
    EXPECT_GT(filter.values().filter_area, 0.0);
  }
}

TEST(PlateFrameFilter, Is_held_within_one_unit_by_volume) {
  for (const auto& [solids, volume, units] :
       {std::tuple(39.0, 10.0, 1.0), std::tuple(40.0, 10.0, 1.0), std::tuple(42.0, 10.5, 1.0),
        std::tuple(199.0, 49.75, 1.0), std::tuple(200.0, 50.0, 1.0), std::tuple(201.0, 50.0, 2.0),
        std::tuple(400.0, 50.0, 2.0), std::tuple(401.0, 50.0, 3.0)}) {
    PlantJson plant = filterPlant("PLATE FRAM");
    slotsOf(plant, "F")["SOLID MASS FLOW"] = {solids, "LB/H"};
    recordOf(plant)["CpDiameter"] = {24, "INCHES"};  // without a length it tells no volume
    Filter filter(plant);
    filter->Size();
    EXPECT_DOUBLE_EQ(filter.values().filter_volume, volume) << solids;
    EXPECT_EQ(filter.values().num_units, units) << solids;
    EXPECT_DOUBLE_EQ(filter.values().filter_area, solids / 93.6 / 0.033 * 0.0833);
  }
}

TEST(PlateFrameFilter, Of_given_dimensions_has_their_volume) {
  // a frame of 24 INCHES: pi/4 x (576 - 23.94^2) = 2.2591 for each of its length
  const double ofLength = kQuarterPi * (576 - 23.94 * 23.94);
  for (const auto& [length, volume, units] :
       {std::tuple(4.0, 10.0, 1.0), std::tuple(10.0, 10 * ofLength, 1.0),
        std::tuple(22.0, 22 * ofLength, 1.0), std::tuple(23.0, 50.0, 2.0)}) {
    PlantJson plant = filterPlant("PLATE FRAM");
    recordOf(plant) = {{"CpDiameter", {24, "INCHES"}}, {"CpLength", {length, "INCHES"}}};
    Filter filter(plant);
    filter->Size();
    EXPECT_NEAR(filter.values().filter_volume, volume, 1e-9 * volume) << length;
    EXPECT_EQ(filter.values().num_units, units) << length;
    EXPECT_NEAR(filter.values().filter_area, 2 * 3.1415926536 * length / 12, 1e-9);
  }
}

TEST(FilterOfOtherCategories, Takes_the_filter_road) {
  Filter filter(filterPlant("TUBULAR", "DF"));
  filter->Size();
  EXPECT_EQ(filter.values().liquid_flow, 1000);  // CFH
  EXPECT_GT(filter.values().filter_area, 0);
  Filter centrifuge(filterPlant("TUBULAR", "ECT"));
  centrifuge->Size();
  EXPECT_EQ(centrifuge.values().filter_area, 0);
}

}  // namespace
}  // namespace sizewright
