#include <gtest/gtest.h>

#include <cmath>

#include "sizewright/separation/filter.h"

namespace sizewright {
namespace {

using D = FilterData;

double tenTo(double exponent) {
  return std::pow(10.0, exponent);
}

// --- Correlations
// ---------------------------------------------------------------------------------

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

// --- Every row at, below and above its limit
// --------------------------------------------------------

struct RowCase {
  const char* item;
  double D::*load;
  double limit;
  double (*diameter)(double);
  double least;
};

void PrintTo(const RowCase& row, std::ostream* out) {
  *out << row.item;
}

class CentrifugeRow : public testing::TestWithParam<RowCase> {
 protected:
  static D sized(double load, double units = 1.0) {
    D data;
    data.*GetParam().load = load;
    data.num_units = units;
    sizeCentrifuge(GetParam().item, data);
    return data;
  }
};

INSTANTIATE_TEST_SUITE_P(
    EveryItem, CentrifugeRow,
    testing::Values(RowCase{"TUBULAR", &D::liquid_flow, 30, tubularDiameter, 4},
                    RowCase{"DISK", &D::liquid_flow, 160, diskDiameter, 10},
                    RowCase{"BATCH TOP", &D::solid_mass_flow, 14000, basketDiameter, 20},
                    RowCase{"BATCH BOTM", &D::solid_mass_flow, 13000, basketDiameter, 20},
                    RowCase{"BATCH AUTO", &D::solid_mass_flow, 15000, basketDiameter, 24},
                    RowCase{"INVERTING", &D::solid_mass_flow, 15000, basketDiameter, 12},
                    RowCase{"BOT UNLOAD", &D::solid_mass_flow, 15500, basketDiameter, 12},
                    RowCase{"TOP UNLOAD", &D::solid_mass_flow, 15500, basketDiameter, 18},
                    RowCase{"SOLID BOWL", &D::liquid_flow, 500, bowlDiameter, 18},
                    RowCase{"SCREEN BWL", &D::liquid_flow, 500, bowlDiameter, 18},
                    RowCase{"RECIP CONV", &D::liquid_flow, 500, bowlDiameter, 18},
                    RowCase{"SCROLL CON", &D::liquid_flow, 475, bowlDiameter, 18},
                    RowCase{"VIBRATORY", &D::liquid_flow, 35000, vibratoryDiameter, 48}));

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

TEST_P(CentrifugeRow, Has_a_diameter_by_load_and_no_less_than_its_least) {
  const double limit = GetParam().limit;
  for (const double load : {0.01 * limit, 0.5 * limit, limit}) {
    EXPECT_DOUBLE_EQ(sized(load).flt_diameter,
                     std::max(GetParam().diameter(load), GetParam().least));
  }
}

TEST_P(CentrifugeRow, Leaves_a_given_diameter_but_for_two_kinds) {
  D data;
  data.*GetParam().load = 1;
  data.flt_diameter = 2.5;
  sizeCentrifuge(GetParam().item, data);
  const std::string item = GetParam().item;
  const bool raised = item == "TUBULAR" || item == "DISK";
  EXPECT_EQ(data.flt_diameter, raised ? GetParam().least : 2.5);
}

TEST_P(CentrifugeRow, Takes_a_negative_diameter_as_missing_or_as_given) {
  D data;
  data.*GetParam().load = 1;
  data.flt_diameter = -2.5;
  sizeCentrifuge(GetParam().item, data);
  const bool given =
      GetParam().diameter == bowlDiameter || GetParam().diameter == vibratoryDiameter;
  EXPECT_EQ(data.flt_diameter == -2.5, given);
}

TEST(DiskCentrifuge, Of_several_given_units_is_not_split) {
  for (const auto& [units, expected] : {std::pair(1.0, 2.0), std::pair(3.0, 3.0)}) {
    D data;
    data.liquid_flow = 320;
    data.num_units = units;
    sizeCentrifuge("DISK", data);
    EXPECT_EQ(data.num_units, expected);
    EXPECT_EQ(data.liquid_flow, units == 1.0 ? 160 : 320);
  }
}

// --- Baskets and bowls
// ------------------------------------------------------------------------------

TEST(BatchCentrifuge, That_unloads_at_the_top_has_a_usual_length_and_a_least_capacity) {
  D data;
  data.solid_mass_flow = 100;
  sizeCentrifuge("TOP UNLOAD", data);
  EXPECT_EQ(data.flt_length, 14);
  EXPECT_DOUBLE_EQ(data.basket_capacity, std::max(basketCapacity(data.flt_diameter, 14), 2.0));
  D given;
  given.flt_length = 3;
  given.solid_mass_flow = 100;
  sizeCentrifuge("TOP UNLOAD", given);
  EXPECT_EQ(given.flt_length, 3);
  EXPECT_EQ(given.basket_capacity, 2.0);
}

TEST(BatchCentrifuge, Of_given_sizes_has_their_capacity_without_a_minimum) {
  D data;
  data.flt_diameter = 12;
  data.flt_length = 6;
  sizeCentrifuge("BATCH TOP", data);
  EXPECT_NEAR(data.basket_capacity, 0.7853981634 * 0.5, 1e-9);
  data.basket_capacity = 7;
  sizeCentrifuge("BATCH TOP", data);
  EXPECT_EQ(data.basket_capacity, 7);
  D withoutLength;
  withoutLength.solid_mass_flow = 100;
  sizeCentrifuge("BATCH AUTO", withoutLength);
  EXPECT_EQ(withoutLength.basket_capacity, 0);
}

TEST(BowlCentrifuge, Has_a_usual_length_below_200_GPM) {
  for (const auto& [flow, length] :
       {std::pair(199.0, 40.0), std::pair(200.0, 0.0), std::pair(250.0, 0.0)}) {
    D data;
    data.liquid_flow = flow;
    sizeCentrifuge("SOLID BOWL", data);
    EXPECT_EQ(data.flt_length, length) << flow;
  }
}

TEST(BowlCentrifuge, Of_a_straight_length_has_a_cone_added) {
  for (const char* item : {"SOLID BOWL", "SCREEN BWL"}) {
    D data;
    data.liquid_flow = 250;
    data.bowl_extra_length = 30;
    sizeCentrifuge(item, data);
    EXPECT_DOUBLE_EQ(data.flt_length, bowlLength(30, data.flt_diameter));
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
}

}  // namespace
}  // namespace sizewright
