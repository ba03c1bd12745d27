#include <gtest/gtest.h>

#include <cmath>

#include "vessels/vessel_plant.h"

namespace sizewright {
namespace {

constexpr double kPi = 3.1415926536;
constexpr double kHeldInAMonth = 600.0 * 24 * 30;  // CF of the plant's liquid
constexpr double kGallonsPerCubicFoot = 1728.0 / 231.0;
constexpr double kM3PerCubicFoot = 0.028316846592;

double upToHalf(double feet) {
  return std::ceil(feet * 2) / 2;
}
PlantJson tankPlant(const char* item = "STORAGE") {
  return vesselPlant("DVT", item);
}
void takeFlowsAway(PlantJson& plant) {
  slotsOf(plant, "F").erase("LIQUID MASS FLOW");
  slotsOf(plant, "L").erase("LIQUID MASS FLOW");
}

TEST(Tank, Holds_the_liquid_of_its_holding_time_and_the_vapor_space) {
  VesselAtHand tank(tankPlant("CONE BTM"));
  ASSERT_EQ(tank->Size(), 1);
  const double capacity = kHeldInAMonth * 100 / 90;
  const double diameter = std::pow(capacity * 4 / (0.5 * kPi), 0.33);
  const double height = capacity * 4 / (kPi * diameter * diameter);
  EXPECT_EQ(tank.values().ves_dia, upToHalf(diameter));
  EXPECT_EQ(tank.values().ves_height, upToHalf(height));
  EXPECT_NEAR(tank.values().capacity, kPi / 4 * std::pow(upToHalf(diameter), 2) * upToHalf(height),
              1e-2);
  EXPECT_DOUBLE_EQ(tank.values().res_time, 30 * 24 * 60);
}

TEST(Tank, Of_user_capacity_and_diameter_has_a_height_that_is_not_rounded) {
  PlantJson plant = tankPlant("CONE BTM");
  recordOf(plant) = {{"CpLiquidVolume", {5000, "CF"}}, {"CpVesselDiameter", {17.3, "FEET"}}};
  VesselAtHand tank(plant);
  tank->GetLastInfo();
  ASSERT_EQ(tank->Size(), 1);
  EXPECT_NEAR(tank.values().ves_height, 5000 * 4 / (kPi * 17.3 * 17.3), 1e-7);
  EXPECT_DOUBLE_EQ(tank.values().capacity, 5000);
}

TEST(Tank, Of_a_user_height_has_a_diameter_that_is_not_rounded) {
  PlantJson plant = tankPlant("CONE BTM");
  recordOf(plant)["CpVesselHeight"] = {40.3, "FEET"};
  VesselAtHand tank(plant);
  tank->GetLastInfo();
  ASSERT_EQ(tank->Size(), 1);
  const double capacity = kHeldInAMonth * 100 / 90;
  EXPECT_NEAR(tank.values().ves_dia, std::sqrt(capacity * 4 / (kPi * 40.3)), 1e-6);
  EXPECT_EQ(tank.values().ves_height, 40.3);
  EXPECT_NEAR(tank.values().capacity, capacity, 1e-6);
}

TEST(Tank, Of_two_user_dimensions_has_their_volume) {
  PlantJson plant = tankPlant("CONE BTM");
  recordOf(plant) = {{"CpVesselHeight", {12, "FEET"}}, {"CpVesselDiameter", {10, "FEET"}}};
  VesselAtHand tank(plant);
  tank->GetLastInfo();
  ASSERT_EQ(tank->Size(), 1);
  EXPECT_NEAR(tank.values().capacity, kPi / 4 * 1200, 1e-6);
}

TEST(Tank, A_vapor_space_outside_its_range_becomes_10_percent_in_silence) {
  for (const double space : {100.0, 150.0, -5.0}) {
    PlantJson plant = tankPlant();
    projectOf(plant)["Vapor Free Space (% of Total Storage Vessel Volume)"] = space;
    VesselAtHand tank(plant);
    tank->GetLastInfo();
    tank->Size();
    EXPECT_EQ(tank.values().vapor_free_space, 10) << space;
    EXPECT_TRUE(tank->Warnings().IsEmpty());
  }
}

struct RefusalCase {
  const char* category;
  const char* item;
  const char* text;
  PlantJson record;
};

class StorageRefusal : public testing::TestWithParam<RefusalCase> {};
const char* const kNoCapacity = "Vessel capacity cannot be calculated. Please check stream flows.";
const char* const kNoDiameter = "Vessel diameter cannot be calculated. Please check stream flows.";
INSTANTIATE_TEST_SUITE_P(
    EveryRoad, StorageRefusal,
    testing::Values(RefusalCase{"DVT", "STORAGE", kNoCapacity, PlantJson::object()},
                    RefusalCase{"DVT", "SPHERE", kNoCapacity, PlantJson::object()},
                    RefusalCase{"DVT", "SPHEROID", kNoCapacity, PlantJson::object()},
                    RefusalCase{"DAT", "OFF MACH", kNoCapacity, PlantJson::object()},
                    RefusalCase{
                        "DVT",
                        "CONE BTM",
                        kNoDiameter,
                        {{"CpLiquidVolume", {500, "CF"}}, {"CpVesselHeight", {-3, "FEET"}}}}));

TEST_P(StorageRefusal, Is_told) {
  PlantJson plant = vesselPlant(GetParam().category, GetParam().item);
  takeFlowsAway(plant);
  recordOf(plant) = GetParam().record;
  VesselAtHand tank(plant, 1);
  tank->GetLastInfo();
  EXPECT_EQ(tank->Size(), 0);
  EXPECT_TRUE(holds(tank->Errors(), GetParam().text));
  EXPECT_EQ(tank.plant.dialogTexts().back(), GetParam().text);
}

TEST(Sphere, Holds_the_liquid_without_vapor_space) {
  VesselAtHand sphere(tankPlant("SPHERE"));
  ASSERT_EQ(sphere->Size(), 1);
  const double diameter = std::pow(kHeldInAMonth * 6 / kPi, 0.33);
  EXPECT_EQ(sphere.values().ves_dia, upToHalf(diameter));
  EXPECT_NEAR(sphere.values().capacity, kPi / 6 * std::pow(upToHalf(diameter), 3), 1e-2);
  VesselAtHand tank(tankPlant("CONE BTM"));
  tank->Size();
  EXPECT_GT(tank.values().capacity, 1.05 * kHeldInAMonth);
}

TEST(Sphere, Of_a_user_diameter_has_its_volume_and_no_rounding) {
  PlantJson plant = tankPlant("SPHERE");
  recordOf(plant)["CpVesselDiameter"] = {21.3, "FEET"};
  VesselAtHand sphere(plant);
  sphere->GetLastInfo();
  ASSERT_EQ(sphere->Size(), 1);
  EXPECT_EQ(sphere.values().ves_dia, 21.3);
  EXPECT_NEAR(sphere.values().capacity, kPi / 6 * std::pow(21.3, 3), 1e-5);
}

TEST(Sphere, Of_a_negative_diameter_takes_it_as_present_and_rounds_it) {
  PlantJson plant = tankPlant("SPHERE");
  recordOf(plant)["CpVesselDiameter"] = {-5.3, "FEET"};
  VesselAtHand sphere(plant);
  sphere->GetLastInfo();
  EXPECT_EQ(sphere->Size(), 1);
  EXPECT_EQ(sphere.values().ves_dia, -5.0);
}

TEST(Spheroid, Holds_the_liquid_at_its_ratio) {
  VesselAtHand spheroid(tankPlant("SPHEROID"));
  ASSERT_EQ(spheroid->Size(), 1);
  const double diameter = std::pow(kHeldInAMonth * 6 / (0.16 * kPi), 0.33);
  const double height = std::sqrt(kHeldInAMonth * 6 / kPi / diameter);
  EXPECT_EQ(spheroid.values().ves_dia, upToHalf(diameter));
  EXPECT_EQ(spheroid.values().ves_height, upToHalf(height));
  EXPECT_NEAR(spheroid.values().capacity,
              kPi / 6 * std::pow(upToHalf(height), 2) * upToHalf(diameter), 1e-2);
}

TEST(Spheroid, Of_a_user_height_or_diameter_is_not_rounded) {
  PlantJson plant = tankPlant("SPHEROID");
  recordOf(plant) = {{"CpVesselHeight", {40.3, "FEET"}}, {"CpLiquidVolume", {50000, "CF"}}};
  VesselAtHand high(plant);
  high->GetLastInfo();
  high->Size();
  EXPECT_NEAR(high.values().ves_dia, 50000 / (40.3 * 40.3) * 6 / kPi, 1e-6);
  recordOf(plant) = {{"CpVesselDiameter", {60.3, "FEET"}}, {"CpLiquidVolume", {50000, "CF"}}};
  VesselAtHand wide(plant);
  wide->GetLastInfo();
  wide->Size();
  EXPECT_NEAR(wide.values().ves_height, std::sqrt(50000 * 6 / kPi / 60.3), 1e-6);
  recordOf(plant)["CpVesselHeight"] = {30, "FEET"};
  recordOf(plant).erase("CpLiquidVolume");
  VesselAtHand both(plant);
  both->GetLastInfo();
  both->Size();
  EXPECT_NEAR(both.values().capacity, kPi / 6 * 900 * 60.3, 1e-4);
}

TEST(Spheroid, Of_negative_dimensions_takes_them_as_present) {
  PlantJson plant = tankPlant("SPHEROID");
  recordOf(plant) = {{"CpVesselHeight", {-10.3, "FEET"}}, {"CpLiquidVolume", {5000, "CF"}}};
  VesselAtHand spheroid(plant);
  spheroid->GetLastInfo();
  EXPECT_EQ(spheroid->Size(), 1);
  EXPECT_EQ(spheroid.values().ves_height, -10.0);  // kept as given, and rounded up
}

// --- Results
// --------------------------------------------------------------------------------------

TEST(TankResults, Of_a_storage_tank_are_in_gallons_or_cubic_metres) {
  PlantJson plant = tankPlant();
  VesselAtHand tank(plant);
  tank->Size();
  const double capacity = tank.values().capacity;
  EXPECT_EQ(tank->SaveParameters(), 1);
  EXPECT_EQ(tank.text("CpVolumeUnits"), "GALLONS");
  EXPECT_NEAR(tank.number("CpLiquidVolume"), capacity * kGallonsPerCubicFoot, 1e-4);
  EXPECT_EQ(tank.units("CpLiquidVolume"), "");
  EXPECT_EQ(tank.number("CpVesselDiameter"), tank.values().ves_dia);
  EXPECT_EQ(tank.number("CpVesselHeight"), tank.values().ves_height);
  EXPECT_EQ(tank.number("Storage Vessel Height to Diameter Ratio"), 0.5);
  EXPECT_EQ(tank.number("Holding Hours in a Day"), 24);
  EXPECT_EQ(tank.number("Number of Holding Days"), 30);
  EXPECT_EQ(tank.number("Vapor Free Space (% of Total Storage Vessel Volume)"), 10);
  EXPECT_NEAR(tank.number("CpDesignGaugePressure"), 75 - kStandardAtmosphere, 1e-9);
  EXPECT_EQ(tank.number("CpOperatingTemperature"), 150);

  plant["units"] = "metric";
  VesselAtHand metric(plant);
  metric->Size();
  metric->SaveParameters();
  EXPECT_EQ(metric.text("CpVolumeUnits"), "M3");
  EXPECT_NEAR(metric.number("CpLiquidVolume"), capacity * kM3PerCubicFoot, 1e-4);
}

struct VolumeCase {
  const char* item;
  const char* slot;
};
class TankVolume : public testing::TestWithParam<VolumeCase> {};
INSTANTIATE_TEST_SUITE_P(EveryItem, TankVolume,
                         testing::Values(VolumeCase{"GAS HOLDER", "CpGasVolume"},
                                         VolumeCase{"LIVE BTM", "CpSolidVolume"},
                                         VolumeCase{"PLAST TANK", "CpLiquidVolume"},
                                         VolumeCase{"WOOD TANK", "CpLiquidVolume"},
                                         VolumeCase{"CONE BTM", "CpLiquidVolume"},
                                         VolumeCase{"SPHERE", "CpLiquidVolume"},
                                         VolumeCase{"SPHEROID", "CpLiquidVolume"}));

TEST_P(TankVolume, Has_a_slot_by_item) {
  PlantJson plant = tankPlant(GetParam().item);
  VesselAtHand tank(plant);
  tank->Size();
  tank->SaveParameters();
  EXPECT_DOUBLE_EQ(tank.number(GetParam().slot), tank.values().capacity);
  EXPECT_EQ(tank.units(GetParam().slot), "CF");
  EXPECT_EQ(tank.number("CpVesselDiameter"), tank.values().ves_dia);
  EXPECT_EQ(tank.has("CpVesselHeight"), std::string(GetParam().item) != "SPHERE");
  plant["units"] = "metric";
  VesselAtHand metric(plant);
  metric->Size();
  metric->SaveParameters();
  EXPECT_EQ(metric.units(GetParam().slot), "M3");
  EXPECT_EQ(metric.units("CpVesselDiameter"), "M");
}

TEST(TankResults, Keep_user_design_conditions_out_for_tanks_but_not_for_spheres) {
  for (const char* item : {"STORAGE", "SPHERE", "SPHEROID"}) {
    PlantJson plant = tankPlant(item);
    projectOf(plant) = {{"CpAllowResize", "No"},
                        {"CpDesignGaugePressure", {40, "PSI"}},
                        {"CpDesignTemperature", {99, "DEG F"}}};
    for (const char* stream : {"F", "V", "L"}) slotsOf(plant, stream)["PRESSURE"] = {5, "PSI"};
    VesselAtHand tank(plant);
    tank->Size();
    tank->SaveParameters();
    EXPECT_EQ(tank.has("CpDesignTemperature"), std::string(item) != "STORAGE") << item;
    EXPECT_FALSE(tank.has("CpVacuumDesignGaugePressure")) << item;
  }
}

TEST(TankResults, Below_14_6_PSI_there_is_a_vacuum_rating_without_margin) {
  for (const char* item : {"STORAGE", "SPHERE", "SPHEROID"}) {
    for (const auto& [pressure, rated] : {std::pair(14.599, true), std::pair(14.6, false)}) {
      PlantJson plant = tankPlant(item);
      for (const char* stream : {"F", "V", "L"}) {
        slotsOf(plant, stream)["PRESSURE"] = {pressure, "PSI"};
      }
      VesselAtHand tank(plant);
      tank->Size();
      tank->SaveParameters();
      EXPECT_EQ(tank.has("CpVacuumDesignGaugePressure"), rated) << item << pressure;
    }
  }
}

}  // namespace
}  // namespace sizewright
