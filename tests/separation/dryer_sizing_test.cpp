#include <gtest/gtest.h>

#include <cmath>

#include "separation/dryer_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr double kPi = 3.1415926536;

// The library's power has a constant of ten digits: relative 1e-9 for its square roots.
constexpr double kPowerTolerance = 1e-8;

TEST(DryerCorrelations, Give_the_size_of_a_solid_volume_flow) {
  EXPECT_DOUBLE_EQ(dryerCapacity(10, 0.75, 25), 30);
  EXPECT_DOUBLE_EQ(dryerCapacity(10, 0.5, 50), 10);
  EXPECT_NEAR(panDiameter(kPi / 4 * 16 * 2.25, 2.25), 4, kPowerTolerance);
  EXPECT_NEAR(trayLength(16.7, 0.167), 10, kPowerTolerance);
  EXPECT_EQ(trayLength(0, 0.167), 0.0);
  EXPECT_DOUBLE_EQ(shellArea(2, 3), 6 * kPi);
}

TEST(DryerSizing, An_air_dryer_has_no_gas_rate_as_no_stream_fills_its_air_flow) {
  DryerAtHand dryer(dryerPlant("EAD", "TRAY"));
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_EQ(dryer.values().airMassFlow, 0.0);
  EXPECT_EQ(dryer.values().gasFlowrate, 0.0);
  EXPECT_EQ(dryer.values().surfaceArea, 0.0);
  EXPECT_EQ(dryer.values().capacity, 0.0);
}

TEST(DryerSizing, The_gas_rate_of_an_air_dryer_is_its_air_flow_over_0_0808) {
  DryerAtHand dryer(dryerPlant("ead", "VACUUM"));
  dryer->data().airMassFlow = 80.8;
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().gasFlowrate, 1000);
  EXPECT_EQ(dryer.values().capacity, 0.0);
}

TEST(DryerSizing, The_category_of_an_air_dryer_goes_before_the_spray_item) {
  Plant plant = dryerPlant("EAD", "SPRAY");
  itemOf(plant)["component"]["CpEvaporationRate"] = {100, "LB/H"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_EQ(dryer.values().evaporationRate, 100);  // not raised to 700
}

// --- Spray --------------------------------------------------------------------------------------

struct LimitCase {
  double given;
  double size;
  double items;
};

class SprayDryer : public testing::TestWithParam<LimitCase> {};
INSTANTIATE_TEST_SUITE_P(Limits, SprayDryer,
                         testing::Values(LimitCase{699.9, 700, 1}, LimitCase{700, 700, 1},
                                         LimitCase{700.1, 700.1, 1}, LimitCase{8999.9, 8999.9, 1},
                                         LimitCase{9000, 9000, 1}, LimitCase{9000.1, 9000.1, 2},
                                         LimitCase{18000, 18000, 2},
                                         LimitCase{18000.1, 18000.1, 3}));

TEST_P(SprayDryer, Is_split_by_its_evaporation_rate_which_is_not_divided) {
  Plant plant = dryerPlant("ETDS", "SPRAY");
  itemOf(plant)["component"]["CpEvaporationRate"] = {GetParam().given, "LB/H"};
  DryerAtHand dryer(plant);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_DOUBLE_EQ(dryer.values().evaporationRate, GetParam().size);
  EXPECT_EQ(dryer.values().numberItems, GetParam().items);
  EXPECT_EQ(dryer.values().surfaceArea, 0.0);
}

TEST(SprayDryers, Take_the_rate_of_the_streams_where_none_is_given) {
  DryerAtHand dryer(dryerPlant("ED", "SPRAY"));
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().evaporationRate, 800);
}

TEST(SprayDryers, Of_a_given_number_are_neither_raised_nor_split) {
  for (const double rate : {100.0, 20000.0}) {
    Plant plant = dryerPlant("ED", "SPRAY");
    itemOf(plant)["component"]["CpEvaporationRate"] = {rate, "LB/H"};
    DryerAtHand dryer(plant);
    dryer->data().numberItems = 2;
    dryer->Size();
    EXPECT_EQ(dryer.values().evaporationRate, rate);
    EXPECT_EQ(dryer.values().numberItems, 2);
  }
}

TEST(DryerSizing, A_number_of_items_below_1_becomes_1) {
  for (const double number : {0.0, -3.0, 0.99}) {
    DryerAtHand dryer(dryerPlant("EAD", ""));
    dryer->data().numberItems = number;
    dryer->Size();
    EXPECT_EQ(dryer.values().numberItems, 1.0);
  }
}

// --- Vacuum -------------------------------------------------------------------------------------

// Hold factor 0.75 and 25 percent filled: capacity is 3 times the solid volume flow.
class VacuumDryer : public testing::TestWithParam<LimitCase> {};
INSTANTIATE_TEST_SUITE_P(Limits, VacuumDryer,
                         testing::Values(LimitCase{7.9, 8, 1}, LimitCase{8, 8, 1},
                                         LimitCase{8.1, 8.1, 1}, LimitCase{399.9, 399.9, 1},
                                         LimitCase{400.5 - 0.5, 400, 1}, LimitCase{401, 400, 2},
                                         LimitCase{800, 400, 2}, LimitCase{801, 400, 3}));

TEST_P(VacuumDryer, Is_split_by_its_capacity) {
  for (const char* item : {"VACUUM", "JAC VACUUM", "jac vacuum"}) {
    Plant plant = dryerPlant("ERD", item);
    setSolidVolume(plant, GetParam().given / 4);
    DryerAtHand dryer(plant);
    dryer->data().holdFactor = 1.0;  // capacity is 4 times the volume flow, exactly
    dryer->Size();
    EXPECT_DOUBLE_EQ(dryer.values().capacity, GetParam().size) << item;
    EXPECT_EQ(dryer.values().numberItems, GetParam().items) << item;
    EXPECT_EQ(dryer.values().surfaceArea, 0.0) << item;
  }
}

TEST(VacuumDryers, Hold_three_quarters_of_an_hour_and_are_a_quarter_full) {
  DryerAtHand dryer(dryerPlant("ED", "VACUUM"));
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().holdFactor, 0.75);
  EXPECT_DOUBLE_EQ(dryer.values().fillPercent, 25);
  EXPECT_DOUBLE_EQ(dryer.values().capacity, 300);
}

TEST(VacuumDryers, Are_worked_out_whatever_capacity_is_there) {
  DryerAtHand dryer(dryerPlant("ED", "VACUUM"));
  dryer->data().capacity = 55;
  dryer->data().fillPercent = 50;
  dryer->data().holdFactor = 0.5;
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().capacity, 100);
}

TEST(VacuumDryers, Of_a_given_number_are_raised_but_not_split) {
  Plant plant = dryerPlant("ED", "VACUUM");
  for (const auto& [volume, capacity] : {std::pair(1000.0, 3000.0), std::pair(1.0, 8.0)}) {
    setSolidVolume(plant, volume);
    DryerAtHand dryer(plant);
    dryer->data().numberItems = 2;
    dryer->Size();
    EXPECT_DOUBLE_EQ(dryer.values().capacity, capacity);
    EXPECT_EQ(dryer.values().numberItems, 2);
  }
}

// --- Areas --------------------------------------------------------------------------------------

struct AreaRule {
  const char* category;
  const char* item;
  double bedFactor;
  double lower;
  double upper;
  /// The solid volume flow that needs an area.
  double (*volume)(double area);
};

double panVolume(double area) {
  const double diameter = area / (kPi * 2.25);
  return diameter * diameter * 2.25 * kPi / 4;
}
double trayVolume(double area) {
  return area * 0.167;
}
double drumVolume(double area) {
  return area * 0.0208;
}

const AreaRule kAreaRules[] = {
    {"ED", "PAN", 2.25, 12, 180, panVolume},
    {"ETDS", "pan", 2.25, 12, 180, panVolume},
    {"ED", "TRAY", 0.167, 40, 200, trayVolume},
    {"ETDS", "TURBO", 0.167, 40, 200, trayVolume},
    {"ED", "", 0.167, 40, 200, trayVolume},
    {"EDD", "SINGLE ATM", 0.0208, 10, 200, drumVolume},
    {"EDD", "SINGLE VAC", 0.0208, 10, 200, drumVolume},
    {"EDD", "DOUBLE ATM", 0.0208, 25, 400, drumVolume},
    {"EDD", "PAN", 0.0208, 25, 400, drumVolume},
};

class DryerArea : public testing::TestWithParam<AreaRule> {
 protected:
  void expectArea(double needed, double area, double items, double given = 1.0) {
    Plant plant = dryerPlant(GetParam().category, GetParam().item);
    setSolidVolume(plant, GetParam().volume(needed));
    DryerAtHand dryer(plant);
    dryer->data().numberItems = given;
    EXPECT_EQ(dryer->Size(), 1);
    EXPECT_EQ(dryer.values().bedFactor, GetParam().bedFactor);
    EXPECT_NEAR(dryer.values().surfaceArea, area, area * kPowerTolerance) << needed;
    EXPECT_EQ(dryer.values().numberItems, items) << needed;
  }
};
INSTANTIATE_TEST_SUITE_P(Rules, DryerArea, testing::ValuesIn(kAreaRules));

TEST_P(DryerArea, Is_raised_to_the_lower_limit) {
  const double lower = GetParam().lower;
  expectArea(0, lower, 1);
  expectArea(lower * 0.999, lower, 1);
  expectArea(lower, lower, 1);
  expectArea(lower * 1.001, lower * 1.001, 1);
}

TEST_P(DryerArea, Is_split_above_the_upper_limit) {
  const double upper = GetParam().upper;
  expectArea(upper * 0.999, upper * 0.999, 1);
  expectArea(upper * 1.001, upper, 2);
  expectArea(upper * 1.999, upper, 2);
  expectArea(upper * 2.001, upper, 3);
}

TEST_P(DryerArea, Of_several_items_stays_above_the_upper_limit) {
  expectArea(GetParam().upper * 3, GetParam().upper * 3, 2, 2);
  expectArea(GetParam().lower / 2, GetParam().lower, 2, 2);
}

TEST(DryerAreas, The_upper_limit_itself_is_one_item) {
  // A drum's area is a plain quotient, so the limit is reached exactly.
  Plant plant = dryerPlant("EDD", "DOUBLE ATM");
  setSolidVolume(plant, 400);
  DryerAtHand dryer(plant);
  dryer->data().bedFactor = 1;
  dryer->Size();
  EXPECT_EQ(dryer.values().surfaceArea, 400);
  EXPECT_EQ(dryer.values().numberItems, 1);

  setSolidVolume(plant, std::nextafter(400.0, 401.0));
  DryerAtHand above(plant);
  above->data().bedFactor = 1;
  above->Size();
  EXPECT_EQ(above.values().surfaceArea, 400);
  EXPECT_EQ(above.values().numberItems, 2);
}

TEST(DryerAreas, A_pan_follows_from_its_diameter) {
  DryerAtHand dryer(dryerPlant("ED", "PAN"));
  dryer->Size();
  const double diameter = std::sqrt(100 * 4 / kPi / 2.25);
  EXPECT_NEAR(dryer.values().diameter, diameter, kPowerTolerance);
  EXPECT_NEAR(dryer.values().surfaceArea, diameter * kPi * 2.25, 1e-7);

  DryerAtHand given(dryerPlant("ED", "PAN"));
  given->data().diameter = 3;
  given->data().bedFactor = 2;
  given->Size();
  EXPECT_DOUBLE_EQ(given.values().surfaceArea, 6 * kPi);
}

TEST(DryerAreas, A_tray_follows_from_its_length) {
  Plant plant = dryerPlant("ED", "TRAY");
  itemOf(plant)["project"]["Tray Length"] = {12, "FEET"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_NEAR(dryer.values().surfaceArea, 144, 144 * kPowerTolerance);
}

TEST(DryerAreas, A_given_area_of_a_pan_or_tray_is_neither_raised_nor_split) {
  for (const char* item : {"PAN", "TRAY"}) {
    for (const double area : {1.0, 5000.0}) {
      Plant plant = dryerPlant("ED", item);
      itemOf(plant)["project"]["CpTrayArea"] = {area, "SF"};
      DryerAtHand dryer(plant);
      dryer->Size();
      EXPECT_EQ(dryer.values().surfaceArea, area) << item;
      EXPECT_EQ(dryer.values().numberItems, 1) << item;
    }
  }
}

TEST(DryerAreas, A_given_area_of_a_drum_is_raised_and_split) {
  for (const auto& [given, area, items] :
       {std::tuple(1.0, 25.0, 1.0), std::tuple(300.0, 300.0, 1.0),
        std::tuple(1000.0, 400.0, 3.0)}) {
    Plant plant = dryerPlant("EDD", "DOUBLE VAC");
    itemOf(plant)["project"]["CpTrayArea"] = {given, "SF"};
    DryerAtHand dryer(plant);
    dryer->Size();
    EXPECT_EQ(dryer.values().surfaceArea, area);
    EXPECT_EQ(dryer.values().numberItems, items);
  }
}

// --- Rotary -------------------------------------------------------------------------------------

TEST(RotaryDryers, Without_a_diameter_get_the_lower_limit) {
  for (const char* item : {"DIRECT", "INDIRECT", "indirect"}) {
    DryerAtHand dryer(dryerPlant("ERD", item));
    dryer->Size();
    EXPECT_DOUBLE_EQ(dryer.values().diameter, 0.33);
    EXPECT_DOUBLE_EQ(dryer.values().lengthToDiameter, 4);
    EXPECT_DOUBLE_EQ(dryer.values().length, 1.32);
    EXPECT_DOUBLE_EQ(dryer.values().capacity, 300);
    EXPECT_EQ(dryer.values().surfaceArea, 100) << item;
    EXPECT_EQ(dryer.values().numberItems, 1) << item;
  }
}

TEST(RotaryDryers, Other_items_keep_their_area) {
  for (const char* category : {"ERD", "EXX"}) {
    DryerAtHand dryer(dryerPlant(category, "ROTARY"));
    dryer->Size();
    EXPECT_DOUBLE_EQ(dryer.values().surfaceArea, 0.33 * kPi * 1.32);
    DryerAtHand large(dryerPlant(category, "ROTARY"));
    large->data().diameter = 30;
    large->Size();
    EXPECT_DOUBLE_EQ(large.values().surfaceArea, 30 * kPi * 120);
    EXPECT_EQ(large.values().numberItems, 1);
  }
}

TEST(RotaryDryers, A_given_area_is_worked_out_anew) {
  Plant plant = dryerPlant("ERD", "ROTARY");
  itemOf(plant)["project"]["CpTrayArea"] = {777, "SF"};
  DryerAtHand dryer(plant);
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().surfaceArea, 0.33 * kPi * 1.32);
}

class RotaryDryer : public testing::TestWithParam<LimitCase> {};
INSTANTIATE_TEST_SUITE_P(Limits, RotaryDryer,
                         testing::Values(LimitCase{99.9, 100, 1}, LimitCase{100.1, 100.1, 1},
                                         LimitCase{1999, 1999, 1}, LimitCase{2001, 2000, 2},
                                         LimitCase{3999, 2000, 2}, LimitCase{4001, 2000, 3}));

TEST_P(RotaryDryer, Is_split_by_its_area) {
  DryerAtHand dryer(dryerPlant("ERD", "DIRECT"));
  dryer->data().diameter = 2;
  dryer->data().lengthToDiameter = GetParam().given / (4 * kPi);
  dryer->Size();
  EXPECT_NEAR(dryer.values().surfaceArea, GetParam().size, 1e-9);
  EXPECT_EQ(dryer.values().numberItems, GetParam().items);
}

TEST(RotaryDryers, Of_a_given_number_are_not_split) {
  DryerAtHand dryer(dryerPlant("ERD", "DIRECT"));
  dryer->data().diameter = 30;
  dryer->data().numberItems = 2;
  dryer->Size();
  EXPECT_DOUBLE_EQ(dryer.values().surfaceArea, 30 * kPi * 120);
}

TEST(RotaryDryers, A_given_capacity_stays) {
  DryerAtHand dryer(dryerPlant("ERD", "DIRECT"));
  dryer->data().capacity = 55;
  dryer->Size();
  EXPECT_EQ(dryer.values().capacity, 55);
}

}  // namespace
}  // namespace sizewright
