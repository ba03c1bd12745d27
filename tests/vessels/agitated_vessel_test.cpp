#include <gtest/gtest.h>

#include <cmath>

#include "vessels/vessel_plant.h"

namespace sizewright {
namespace {

constexpr double kPi = 3.1415926536;

double upToHalf(double feet) {
  return std::ceil(feet * 2) / 2;
}
PlantJson mixerPlant(const char* item = "MIX TANK") {
  return vesselPlant("DAT", item);
}

TEST(AgitatedVessel, Holds_the_residence_time_with_room_above_and_is_rounded_up) {
  VesselAtHand vessel(mixerPlant());
  ASSERT_EQ(vessel->Size(), 1);
  const double diameter = std::pow(100 * 4 / (3 * kPi), 0.33);
  const double height = 100 * 4 / (kPi * diameter * diameter) + 1.0;
  EXPECT_EQ(vessel.values().ves_dia, upToHalf(diameter));
  EXPECT_EQ(vessel.values().ves_height, upToHalf(height));
  EXPECT_NEAR(vessel.values().capacity,
              kPi / 4 * std::pow(upToHalf(diameter), 2) * upToHalf(height), 1e-6);
}

TEST(AgitatedVessel, Takes_the_larger_liquid_flow) {
  PlantJson plant = mixerPlant();
  slotsOf(plant, "L")["LIQUID MASS FLOW"] = {90000, "LB/H"};
  VesselAtHand vessel(plant);
  vessel->Size();
  EXPECT_EQ(vessel.values().ves_dia, upToHalf(std::pow(300 * 4 / (3 * kPi), 0.33)));
}

TEST(AgitatedVessel, Of_a_user_height_has_neither_room_above_nor_rounding) {
  PlantJson plant = mixerPlant();
  recordOf(plant) = {{"CpVesselHeight", {11.3, "FEET"}}, {"CpLiquidVolume", {777, "CF"}}};
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  vessel->Size();
  const double diameter = std::pow(777 * 4 / (3 * kPi), 0.33);
  EXPECT_NEAR(vessel.values().ves_dia, diameter, 1e-8);
  EXPECT_EQ(vessel.values().ves_height, 11.3);
  EXPECT_NEAR(vessel.values().capacity, kPi / 4 * diameter * diameter * 11.3, 1e-6);  // replaced
}

TEST(AgitatedVessel, Of_a_user_diameter_has_room_above_and_no_rounding) {
  PlantJson plant = mixerPlant();
  recordOf(plant)["CpVesselDiameter"] = {4.3, "FEET"};
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  vessel->Size();
  EXPECT_EQ(vessel.values().ves_dia, 4.3);
  EXPECT_NEAR(vessel.values().ves_height, 100 * 4 / (kPi * 4.3 * 4.3) + 1.0, 1e-8);
}

TEST(AgitatedResults, Of_a_tank_are_its_dimensions) {
  VesselAtHand vessel(mixerPlant());
  vessel->Size();
  vessel->SaveParameters();
  EXPECT_EQ(vessel.number("CpVesselDiameter"), vessel.values().ves_dia);
  EXPECT_EQ(vessel.number("CpTangentTangentHeight"), vessel.values().ves_height);
  EXPECT_EQ(vessel.number("CpLiquidVolume"), vessel.values().capacity);
  EXPECT_EQ(vessel.number("Residence Time"), 10);
  EXPECT_EQ(vessel.units("Residence Time"), "MINUTE");
  EXPECT_EQ(vessel.number("Minimum disengagement height"), 1);
  EXPECT_NEAR(vessel.number("CpDesignTemperature"), 200, 1e-9);
  EXPECT_NEAR(vessel.number("CpDesignGaugePressure"), 75 - kStandardAtmosphere, 1e-9);
  EXPECT_FALSE(vessel.has("CpOperatingTemperature"));
}

TEST(AgitatedResults, Of_the_user_leave_design_conditions_out) {
  PlantJson plant = mixerPlant();
  projectOf(plant) = {{"CpAllowResize", "No"},
                      {"CpDesignGaugePressure", {40, "PSI"}},
                      {"CpDesignTemperature", {99, "DEG F"}}};
  VesselAtHand vessel(plant);
  vessel->Size();
  vessel->SaveParameters();
  EXPECT_FALSE(vessel.has("CpDesignTemperature"));
  EXPECT_FALSE(vessel.has("CpDesignGaugePressure"));
}

TEST(AgitatedResults, Below_14_6_PSI_there_is_a_vacuum_rating_without_margin) {
  for (const auto& [pressure, rated] : {std::pair(14.599, true), std::pair(14.6, false)}) {
    PlantJson plant = mixerPlant();
    for (const char* stream : {"F", "V", "L"})
      slotsOf(plant, stream)["PRESSURE"] = {pressure, "PSI"};
    VesselAtHand vessel(plant);
    vessel->Size();
    vessel->SaveParameters();
    EXPECT_EQ(vessel.has("CpVacuumDesignGaugePressure"), rated);
  }
}

struct CellCase {
  double capacity;
  double cell;
  const char* count;
};

class Cells : public testing::TestWithParam<CellCase> {};
INSTANTIATE_TEST_SUITE_P(AroundTheLimit, Cells,
                         testing::Values(CellCase{1499, 1499, "1"}, CellCase{1500, 1500, "1"},
                                         CellCase{1501, 750.5, "2"}, CellCase{3000, 1500, "2"},
                                         CellCase{3001, 3001 / 3.0, "3"}));

// The capacity is that of the given cylinder, to the last digit and not above.
PlantJson cellPlant(const char* item, double capacity) {
  PlantJson plant = mixerPlant(item);
  double height = capacity / 0.7853981634;
  while (0.7853981634 * height > capacity) height = std::nextafter(height, 0.0);
  recordOf(plant) = {{"CpVesselDiameter", {1, "FEET"}}, {"CpVesselHeight", {height, "FEET"}}};
  return plant;
}

TEST_P(Cells, Of_a_flotation_divide_the_volume) {
  VesselAtHand cells(cellPlant("FLOAT CELL", GetParam().capacity));
  cells->GetLastInfo();
  cells->Size();
  cells->SaveParameters();
  EXPECT_NEAR(cells.number("CpVolumePerCell"), GetParam().cell, 1e-6);
  EXPECT_EQ(cells.units("CpVolumePerCell"), "CF");
  EXPECT_EQ(cells.text("CpNumberCells"), GetParam().count);
  EXPECT_FALSE(cells.has("CpLiquidVolume"));
  EXPECT_FALSE(cells.has("CpCellVolume"));
}

TEST_P(Cells, Of_a_conditioner_divide_the_volume) {
  VesselAtHand cells(cellPlant("COND CELL", GetParam().capacity));
  cells->GetLastInfo();
  cells->Size();
  cells->SaveParameters();
  EXPECT_NEAR(cells.number("CpCellVolume"), GetParam().cell, 1e-6);
  EXPECT_EQ(cells.text("CpNumberItems"), GetParam().count);
}

TEST(CellResults, Have_neither_diameter_nor_height) {
  PlantJson plant = mixerPlant("FLOAT CELL");
  VesselAtHand cells(plant);
  cells->Size();
  cells->SaveParameters();
  EXPECT_FALSE(cells.has("CpVesselDiameter"));
  EXPECT_FALSE(cells.has("CpTangentTangentHeight"));
  EXPECT_FALSE(cells.has("CpVesselHeight"));
}

}  // namespace
}  // namespace sizewright
