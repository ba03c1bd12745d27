#include <gtest/gtest.h>

#include <cmath>

#include "separation/filter_plant.h"

namespace sizewright {
namespace {

using D = FilterData;

double tenTo(double exponent) {
  return std::pow(10.0, exponent);
}

// --- Correlations --------------------------------------------------------------------------------

TEST(CentrifugeFormulas, Follow_the_loads) {
  EXPECT_DOUBLE_EQ(tubularDiameter(30), 6);
  EXPECT_NEAR(diskDiameter(140), tenTo(0.5), 1e-9);
  EXPECT_NEAR(basketDiameter(10000), tenTo(34307.688 / 23076.92), 1e-7);
  EXPECT_NEAR(bowlDiameter(300), tenTo(1375.0 / 928.57), 1e-7);
  EXPECT_NEAR(vibratoryDiameter(10000), tenTo((4 - 1.265) / 1.875), 1e-7);
  EXPECT_NEAR(basketCapacity(24, 18), 4 * 0.7853981634 * 1.5, 1e-9);
  EXPECT_NEAR(bowlLength(10, 20), 10 + 20 / (2 * std::tan(0.2617993878)), 1e-12);
}

struct LengthCase {
  double length;
  double flow;
  double expected;
};
class UsualBowlLength : public testing::TestWithParam<LengthCase> {};
INSTANTIATE_TEST_SUITE_P(EveryBranch, UsualBowlLength,
                         testing::Values(LengthCase{55, 100, 55}, LengthCase{0, 199.9, 40},
                                         LengthCase{0, 200, 0}, LengthCase{0, 250, 0},
                                         LengthCase{0, 400, 0}, LengthCase{-5, 100, -5},
                                         LengthCase{-5, 250, -5}, LengthCase{-5, 349.9, -5},
                                         LengthCase{-5, 350, 96}));

TEST_P(UsualBowlLength, Is_nested_as_it_is) {
  EXPECT_EQ(usualBowlLength(GetParam().length, GetParam().flow), GetParam().expected);
}

// --- Every row at, below and above its limit -----------------------------------------------------

constexpr bool kRaised = true;  // a given diameter is raised to the least, too

struct RowCase {
  const char* item;
  double D::*load;
  double limit;
  double (*diameter)(double);
  double least;
  bool raisesGiven = false;
};

void PrintTo(const RowCase& row, std::ostream* out) {
  *out << row.item;
}

// The diameters once more, apart from those of the program.
double tubular(double load) {
  return 3.0 + 0.1 * load;
}
double disk(double load) {
  return tenTo((load + 160.0) / 600.0);
}
double basket(double load) {
  return tenTo((load + 24307.688) / 23076.92);
}
double bowl(double load) {
  return tenTo((load + 1075.0) / 928.57);
}
double vibrating(double load) {
  return tenTo((std::log10(load) - 1.265) / 1.875);
}

class CentrifugeRow : public testing::TestWithParam<RowCase> {
 protected:
  static D sized(double load, double units = 1.0, double diameter = 0.0) {
    D data;
    data.*GetParam().load = load;
    data.num_units = units;
    data.flt_diameter = diameter;
    sizeCentrifuge(GetParam().item, data);
    return data;
  }
};

INSTANTIATE_TEST_SUITE_P(
    EveryItem, CentrifugeRow,
    testing::Values(RowCase{"TUBULAR", &D::liquid_flow, 30, tubular, 4, kRaised},
                    RowCase{"DISK", &D::liquid_flow, 160, disk, 10, kRaised},
                    RowCase{"BATCH TOP", &D::solid_mass_flow, 14000, basket, 20},
                    RowCase{"BATCH BOTM", &D::solid_mass_flow, 13000, basket, 20},
                    RowCase{"BATCH AUTO", &D::solid_mass_flow, 15000, basket, 24},
                    RowCase{"INVERTING", &D::solid_mass_flow, 15000, basket, 12},
                    RowCase{"BOT UNLOAD", &D::solid_mass_flow, 15500, basket, 12},
                    RowCase{"TOP UNLOAD", &D::solid_mass_flow, 15500, basket, 18},
                    RowCase{"SOLID BOWL", &D::liquid_flow, 500, bowl, 18},
                    RowCase{"SCREEN BWL", &D::liquid_flow, 500, bowl, 18},
                    RowCase{"RECIP CONV", &D::liquid_flow, 500, bowl, 18},
                    RowCase{"SCROLL CON", &D::liquid_flow, 475, bowl, 18},
                    RowCase{"VIBRATORY", &D::liquid_flow, 35000, vibrating, 48}));

TEST_P(CentrifugeRow, Is_split_from_its_limit_up) {
  const double limit = GetParam().limit;
  EXPECT_EQ(sized(limit - 0.5).num_units, 1);
  EXPECT_EQ(sized(limit - 0.5).*GetParam().load, limit - 0.5);
  EXPECT_EQ(sized(limit).num_units, 1);
  EXPECT_EQ(sized(limit + 0.5).num_units, 2);
  EXPECT_EQ(sized(limit + 0.5).*GetParam().load, limit);
  EXPECT_EQ(sized(2 * limit).num_units, 2);
  EXPECT_EQ(sized(2 * limit + 0.5).num_units, 3);
}

TEST_P(CentrifugeRow, Of_several_given_units_is_split_anew_from_its_limit_up_but_for_disks) {
  const double limit = GetParam().limit;
  const bool isDisk = std::string_view(GetParam().item) == "DISK";
  EXPECT_EQ(sized(limit - 0.5, 3).num_units, 3);
  EXPECT_EQ(sized(limit, 3).num_units, isDisk ? 3 : 1);
  EXPECT_EQ(sized(2 * limit, 3).num_units, isDisk ? 3 : 2);
  EXPECT_EQ(sized(2 * limit, 3).*GetParam().load, isDisk ? 2 * limit : limit);
}

TEST_P(CentrifugeRow, Has_a_diameter_by_load_and_no_less_than_its_least) {
  const double limit = GetParam().limit;
  for (const double load : {0.01 * limit, 0.3 * limit, 0.5 * limit, 0.8 * limit, limit}) {
    const double expected = std::max(GetParam().diameter(load), GetParam().least);
    EXPECT_NEAR(sized(load).flt_diameter, expected, 1e-9 * expected) << load;
  }
  EXPECT_EQ(sized(limit + 0.5).flt_diameter, sized(limit).flt_diameter);
}

TEST_P(CentrifugeRow, Keeps_a_given_diameter_or_raises_it) {
  const double least = GetParam().least;
  EXPECT_EQ(sized(1, 1, least + 1).flt_diameter, least + 1);
  EXPECT_EQ(sized(1, 1, least).flt_diameter, least);
  EXPECT_EQ(sized(1, 1, 2.5).flt_diameter, GetParam().raisesGiven ? least : 2.5);
}

TEST_P(CentrifugeRow, Takes_a_negative_diameter_as_missing_or_as_given) {
  const bool given = GetParam().diameter == bowl || GetParam().diameter == vibrating;
  const double computed = std::max(GetParam().diameter(1), GetParam().least);
  EXPECT_NEAR(sized(1, 1, -2.5).flt_diameter, given ? -2.5 : computed, 1e-9);
}

TEST(DiskCentrifuge, Of_less_than_one_given_unit_is_split) {
  D data;
  data.liquid_flow = 320;
  data.num_units = 0.5;
  sizeCentrifuge("DISK", data);
  EXPECT_EQ(data.num_units, 2);
}

// --- Baskets and bowls ---------------------------------------------------------------------------

TEST(BatchCentrifuge, That_unloads_at_the_top_has_a_usual_length_and_a_least_capacity) {
  D data;
  data.solid_mass_flow = 10000;
  data.basket_capacity = 99;  // does not stand where the diameter is computed
  sizeCentrifuge("TOP UNLOAD", data);
  EXPECT_EQ(data.flt_length, 14);
  const double feet = basket(10000) / 12;
  EXPECT_NEAR(data.basket_capacity, feet * feet * kQuarterPi * 14 / 12, 1e-7);
  for (const double length : {3.0, -3.0}) {
    D given;
    given.flt_length = length;
    given.solid_mass_flow = 100;
    sizeCentrifuge("TOP UNLOAD", given);
    EXPECT_EQ(given.flt_length, length);
    EXPECT_EQ(given.basket_capacity, 2.0);
  }
}

TEST(BatchCentrifuge, That_unloads_at_the_top_with_a_given_diameter_has_no_usual_length) {
  D data;
  data.flt_diameter = 12;
  sizeCentrifuge("TOP UNLOAD", data);
  EXPECT_EQ(data.flt_length, 0);
  EXPECT_EQ(data.basket_capacity, 0);
  data.flt_length = 6;
  sizeCentrifuge("TOP UNLOAD", data);
  EXPECT_NEAR(data.basket_capacity, kQuarterPi * 0.5, 1e-9);  // not raised to 2
}

TEST(BatchCentrifuge, Of_any_kind_has_the_capacity_of_its_length_without_a_minimum) {
  for (const char* item : {"BATCH TOP", "BATCH BOTM", "BATCH AUTO", "INVERTING", "BOT UNLOAD"}) {
    D given;
    given.flt_diameter = 12;
    given.flt_length = 6;
    sizeCentrifuge(item, given);
    EXPECT_NEAR(given.basket_capacity, kQuarterPi * 0.5, 1e-9) << item;
    given.basket_capacity = 7;
    sizeCentrifuge(item, given);
    EXPECT_EQ(given.basket_capacity, 7) << item;

    D computed;
    computed.solid_mass_flow = 10000;
    computed.flt_length = 6;
    sizeCentrifuge(item, computed);
    const double feet = computed.flt_diameter / 12;
    EXPECT_NEAR(computed.basket_capacity, feet * feet * kQuarterPi * 0.5, 1e-7) << item;

    D withoutLength;
    withoutLength.solid_mass_flow = 10000;
    sizeCentrifuge(item, withoutLength);
    EXPECT_EQ(withoutLength.flt_length, 0) << item;
    EXPECT_EQ(withoutLength.basket_capacity, 0) << item;
  }
}

TEST(Centrifuge, Other_than_a_batch_one_has_no_basket) {
  for (const char* item : {"TUBULAR", "DISK", "SOLID BOWL", "RECIP CONV", "VIBRATORY"}) {
    D data;
    data.liquid_flow = 10;
    data.flt_length = 6;
    sizeCentrifuge(item, data);
    EXPECT_EQ(data.basket_capacity, 0) << item;
    EXPECT_EQ(data.flt_length, 6) << item;
  }
}

TEST(BowlCentrifuge, Has_a_usual_length_below_200_GPM) {
  for (const auto& [flow, length] : {std::pair(199.9, 40.0), std::pair(200.0, 0.0),
                                     std::pair(250.0, 0.0), std::pair(600.0, 0.0)}) {
    for (const char* item : {"SOLID BOWL", "SCREEN BWL"}) {
      D data;
      data.liquid_flow = flow;
      sizeCentrifuge(item, data);
      EXPECT_EQ(data.flt_length, length) << item << flow;
    }
    for (const char* item : {"RECIP CONV", "SCROLL CON"}) {
      D data;
      data.liquid_flow = flow;
      sizeCentrifuge(item, data);
      EXPECT_EQ(data.flt_length, 0) << item << flow;
    }
  }
}

TEST(BowlCentrifuge, Of_a_straight_length_has_a_cone_added) {
  for (const char* item : {"SOLID BOWL", "SCREEN BWL"}) {
    for (const double diameter : {0.0, 20.0}) {
      D data;
      data.liquid_flow = 250;
      data.flt_length = 99;  // does not stand
      data.flt_diameter = diameter;
      data.bowl_extra_length = 30;
      sizeCentrifuge(item, data);
      const double wide = diameter > 0 ? diameter : bowl(250);
      EXPECT_NEAR(data.flt_length, 30 + wide / (std::tan(0.2617993878) * 2), 1e-7);
    }
    D negative;
    negative.liquid_flow = 250;
    negative.flt_diameter = -20;
    negative.bowl_extra_length = 30;
    sizeCentrifuge(item, negative);
    EXPECT_EQ(negative.flt_length, 0);
  }
  D conveyor;
  conveyor.liquid_flow = 250;
  conveyor.bowl_extra_length = 30;
  sizeCentrifuge("RECIP CONV", conveyor);
  EXPECT_EQ(conveyor.flt_length, 0);
}

TEST(OtherCentrifuge, Is_left_alone) {
  D data;
  data.liquid_flow = 1e6;
  data.solid_mass_flow = 1e6;
  sizeCentrifuge("UNKNOWN", data);
  EXPECT_EQ(data.num_units, 1);
  EXPECT_EQ(data.flt_diameter, 0);
  EXPECT_EQ(data.liquid_flow, 1e6);
}

// --- In a plant ---------------------------------------------------------------------------------

TEST(CentrifugeInAPlant, Is_sized_by_liquid_in_GPM) {
  for (const auto& [gpm, diameter, units] :
       {std::tuple(5.0, 4.0, 1.0), std::tuple(29.0, 5.9, 1.0), std::tuple(30.0, 6.0, 1.0),
        std::tuple(31.0, 6.0, 2.0), std::tuple(61.0, 6.0, 3.0)}) {
    Filter centrifuge(centrifugePlant("TUBULAR", gpm));
    ASSERT_EQ(centrifuge->Size(), 1);
    EXPECT_NEAR(centrifuge.values().flt_diameter, diameter, 1e-9) << gpm;
    EXPECT_EQ(centrifuge.values().num_units, units) << gpm;
    EXPECT_NEAR(centrifuge.values().liquid_flow, std::min(gpm, 30.0), 1e-9) << gpm;
  }
}

TEST(CentrifugeInAPlant, Is_sized_by_solids) {
  Filter centrifuge(centrifugePlant("BATCH AUTO", 10, 31000));
  ASSERT_EQ(centrifuge->Size(), 1);
  EXPECT_EQ(centrifuge.values().num_units, 3);
  EXPECT_EQ(centrifuge.values().solid_mass_flow, 15000);
  EXPECT_NEAR(centrifuge.values().flt_diameter, basket(15000), 1e-7);
}

TEST(CentrifugeInAPlant, Of_a_bowl_without_a_length_has_none_from_200_GPM_up) {
  for (const auto& [gpm, length] : {std::pair(150.0, 40.0), std::pair(250.0, 0.0)}) {
    Filter centrifuge(centrifugePlant("SOLID BOWL", gpm));
    centrifuge->Size();
    centrifuge->SaveParameters();
    EXPECT_EQ(centrifuge.values().flt_length, length);
    EXPECT_EQ(centrifuge.has("CpBowlLength"), length > 0);
    EXPECT_NEAR(centrifuge.number("CpBowlDiameter"), bowl(gpm), 1e-7);
  }
}

TEST(CentrifugeInAPlant, Of_any_flow_is_survived) {
  for (const double gpm : {1e-300, 1e290}) {
    for (const char* item : {"DISK", "VIBRATORY", "SOLID BOWL"}) {
      PlantJson plant = centrifugePlant(item, 1);
      recordOf(plant) = {{"CpLiquidFlowrate", {gpm, "CFH"}}, {"CpNumberItems", 3}};
      Filter centrifuge(plant);
      EXPECT_EQ(centrifuge->Size(), 1) << item << gpm;
      EXPECT_EQ(centrifuge->SaveParameters(), 1);
    }
  }
}

}  // namespace
}  // namespace sizewright
