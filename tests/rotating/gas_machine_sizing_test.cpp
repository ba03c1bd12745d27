#include <algorithm>

#include "rotating/gas_machine_plant.h"

// Compressibility, Cp/Cv, capacity and driver.

namespace sizewright {
namespace {

template <class Machine>
struct GasMachineSizing : testing::Test {
  using AtHand = GasMachineAtHand<Machine>;
};
TYPED_TEST_SUITE(GasMachineSizing, GasMachines, GasMachineName);

constexpr double kelvin(double fahrenheit) {
  return (fahrenheit + 459.67) / 1.8;
}

TYPED_TEST(GasMachineSizing, Compressibility_at_each_end_is_that_of_the_fluid_class_as_a_gas) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S2")["PRIMARY FLUID COMPONENT"] = "Steam";
  gasStream(plant, "S1")["TEMPERATURE"] = {400, "DEG F"};
  gasStream(plant, "S2")["TEMPERATURE"] = {600, "DEG F"};
  gasStream(plant, "S1")["PRESSURE"] = {100, "PSI"};
  gasStream(plant, "S2")["PRESSURE"] = {400, "PSI"};
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  const PropertyService& fluids = machine.plant.host().properties();
  const double inlet =
      fluids.compressibility("Steam", kelvin(400), 100 / kAtmosphere, PropertyService::Phase::gas);
  const double exit =
      fluids.compressibility("Steam", kelvin(600), 400 / kAtmosphere, PropertyService::Phase::gas);
  ASSERT_GT(inlet, exit);  // so that the ends cannot be confused
  EXPECT_NEAR(machine.values().inletCompressibility, inlet, 1e-9);
  EXPECT_NEAR(machine.values().exitCompressibility, exit, 1e-9);
  // Steam tables: 4.934 CF/LB at 400 DEG F and 100 PSIA, 1.476 CF/LB at 600 DEG F and 400 PSIA;
  // Z = P v M / (10.7316 T) with T in DEG R.
  EXPECT_NEAR(inlet, 100 * 4.934 * 18.015 / (10.7316 * 859.67), 0.01);
  EXPECT_NEAR(exit, 400 * 1.476 * 18.015 / (10.7316 * 1059.67), 0.01);
}

TYPED_TEST(GasMachineSizing, Compressibility_of_an_unknown_fluid_is_1) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S2")["PRIMARY FLUID COMPONENT"] = "Unobtainable";
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_EQ(machine.values().inletCompressibility, 1.0);
  EXPECT_EQ(machine.values().exitCompressibility, 1.0);
}

TYPED_TEST(GasMachineSizing, Compressibility_in_hand_is_kept) {
  PlantJson plant = gasPlant();
  gasRecord(plant)["CpCompressibilityFactorInlet"] = 0.7;
  typename TestFixture::AtHand machine(plant);
  machine->GetLastInfo();
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().inletCompressibility, 0.7);
  EXPECT_DOUBLE_EQ(machine.values().exitCompressibility, 0.9);  // of Test Gas
}

TYPED_TEST(GasMachineSizing, Cp_over_Cv_of_the_fluid_class_is_taken_at_the_exit) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S2")["PRIMARY FLUID COMPONENT"] = "Steam";
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  const PropertyService& fluids = machine.plant.host().properties();
  const double expected = fluids.heatCapacityRatio("Steam", kelvin(300), 60 / kAtmosphere);
  EXPECT_NEAR(machine.values().specificHeatRatio, expected, 1e-9);
  EXPECT_NE(expected, fluids.heatCapacityRatio("Steam", kelvin(100), 20 / kAtmosphere));
  // Ideal gas at 422 K: 34.47 J/mol K, between 34.26 at 400 K and 35.23 at 500 K in the NIST-JANAF
  // tables.
  EXPECT_NEAR(expected, 34.47 / (34.47 - 8.314), 0.01);
}

TYPED_TEST(GasMachineSizing, Cp_over_Cv_in_hand_is_kept) {
  PlantJson plant = gasPlant();
  gasRecord(plant)["CpSpecificHeatRatio"] = 1.41;
  typename TestFixture::AtHand machine(plant);
  machine->GetLastInfo();
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().specificHeatRatio, 1.41);
}

TYPED_TEST(GasMachineSizing, Cp_over_Cv_of_an_unknown_fluid_stays_unset) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S2")["PRIMARY FLUID COMPONENT"] = "Unobtainable";
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_EQ(machine.values().specificHeatRatio, 0.0);
  EXPECT_EQ(machine->comp_stp_calculate_specific_heat_ratio("Test Gas", 300, 60), 1.25);
}

// --- Capacity -----------------------------------------------------------------------------------

TYPED_TEST(GasMachineSizing, Capacity_is_the_flow_with_overdesign) {
  PlantJson plant = gasPlant();
  gasCriteria(plant)["Compressor Overdesign Factor"] = 1.25;
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().capacity, 15000 * 1.25);
  EXPECT_DOUBLE_EQ(machine.values().inletVolumeFlow, 15000);
}

TYPED_TEST(GasMachineSizing, Capacity_in_hand_is_kept) {
  PlantJson plant = gasPlant();
  gasRecord(plant)["CpActualGasFlowrateInlet"] = {9000, "CFH"};
  typename TestFixture::AtHand machine(plant);
  machine->GetLastInfo();
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().capacity, 9000);
}

TYPED_TEST(GasMachineSizing, Sizing_twice_gives_the_same_as_once) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->Size();
  const GasMachineData once = machine.values();
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_EQ(machine.values().capacity, once.capacity);
  EXPECT_EQ(machine.values().designExitPressure, once.designExitPressure);
  EXPECT_EQ(machine.values().specificHeatRatio, once.specificHeatRatio);
}

TYPED_TEST(GasMachineSizing, Without_flow_there_is_a_warning_and_no_capacity) {
  constexpr const char* kText =
      "Volumetric flow cannot be calculated. Please check inlet and exit stream(s)";
  PlantJson plant = gasPlant();
  gasStream(plant, "S1").erase("VAPOR MASS FLOW");
  for (const int interactive : {0, 1}) {
    typename TestFixture::AtHand machine(plant, interactive);
    EXPECT_EQ(machine->Size(), 1);
    EXPECT_EQ(machine.values().capacity, 0.0);
    EXPECT_TRUE(machine.warned(kText));
    EXPECT_EQ(machine.plant.dialogTexts(),
              interactive != 0 ? std::vector<std::string>{kText} : std::vector<std::string>{});
  }
}

TYPED_TEST(GasMachineSizing, Driver_power_is_only_what_was_read) {
  PlantJson plant = gasPlant();
  gasBlock(plant)["DRIVER POWER"] = {50, "KW"};
  typename TestFixture::AtHand read(plant);
  read->GetLastInfo();
  read->Size();
  EXPECT_NEAR(read.values().driverPower, 50 * 1000 / 745.69987158227, 1e-6);
  typename TestFixture::AtHand unread(gasPlant());
  unread->Size();
  EXPECT_EQ(unread.values().driverPower, 0.0);
}

// --- Driver -------------------------------------------------------------------------------------

struct DriverRow {
  const char* category;
  const char* item;
  const char* driver;
  const char* expected;
  bool warns;
};
constexpr DriverRow kDrivers[] = {
    {"DGC", "CENTRIF", "GAS ENGINE", "GAS ENGINE", false},
    {"EAC", "CENTRIF", "GAS ENGINE", "", false},
    {"eac", "CENTRIF", "MOTOR", "", false},
    {"DGC", "RECIP GAS", "GAS ENGINE", "", false},
    {"DGC", "recip gas", "MOTOR", "", false},
    {"DGC", "RECIP MOTR", "GAS ENGINE", "NONE", true},
    {"DGC", "RECIP MOTR", "gas engine", "NONE", true},
    {"DGC", "RECIP MOTR", "MOTOR", "MOTOR", false},
    {"EAC", "RECIP MOTR", "GAS ENGINE", "", false},  // cleared before it is looked at
    {"EAC", "RECIP GAS", "NONE", "", false},
};
constexpr const char* kDriverWarning =
    "Driver type in design criteria cannot be used. No driver provided";

TYPED_TEST(GasMachineSizing, The_driver_goes_with_the_kind_of_machine) {
  for (const DriverRow& row : kDrivers) {
    PlantJson plant = gasPlant(row.category, row.item);
    gasCriteria(plant)["Driver Type"] = row.driver;
    for (const int interactive : {0, 1}) {
      typename TestFixture::AtHand machine(plant, interactive);
      EXPECT_EQ(machine->Size(), 1);
      EXPECT_EQ(machine.values().driverType.view(), row.expected)
          << row.category << ' ' << row.item << ' ' << row.driver;
      EXPECT_EQ(machine.warned(kDriverWarning), row.warns) << row.item;
      EXPECT_EQ(machine.showed(kDriverWarning), row.warns && interactive != 0) << row.item;
    }
  }
}

// --- Progress -----------------------------------------------------------------------------------

TYPED_TEST(GasMachineSizing, Progress_rises_and_names_the_steps) {
  typename TestFixture::AtHand machine(gasPlant());
  const auto progress = machine.progressOf([](auto& object) { object.Size(); });
  const std::pair<int, std::string> expected[] = {
      {65, "Obtained all stream information. Beginning equipment design"},
      {65, "Checking user inputs for design parameters."},
      {80, "Checking driver power value."},
      {80, "Checking equipment minimum and maximum requirements."},
  };
  for (const auto& line : expected) {
    EXPECT_NE(std::find(progress.begin(), progress.end(), line), progress.end()) << line.second;
  }
  for (const char* text : {"Obtaining specific heat ratio.", "Obtaining inlet compression factor.",
                           "Obtaining exit compression factor.", "Obtaining Capacity..."}) {
    EXPECT_TRUE(std::any_of(progress.begin(), progress.end(), [text](const auto& line) {
      return line.second == text;
    })) << text;
  }
  EXPECT_GE(progress.front().first, 30);
  EXPECT_LE(progress.back().first, 88);
  // The search for streams reports its own 35 before the setup begins at 30.
  const auto setup = std::find_if(progress.begin(), progress.end(),
                                  [](const auto& line) { return line.first == 30; });
  ASSERT_NE(setup, progress.end());
  EXPECT_TRUE(std::is_sorted(setup, progress.end(),
                             [](const auto& a, const auto& b) { return a.first < b.first; }));
}

}  // namespace
}  // namespace sizewright
