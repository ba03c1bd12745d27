#include <gtest/gtest.h>

#include "rotating/pump_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

Plant& recordOf(Plant& plant) {
  return itemOf(plant)["component"];
}
Plant& projectOf(Plant& plant) {
  return itemOf(plant)["project"];
}

// --- Record and project
// ---------------------------------------------------------------------------

struct RecordCase {
  const char* slot;
  double value;
  const char* units;
  double PumpData::*field;
  double expected;
};

class PumpRecord : public testing::TestWithParam<RecordCase> {};

constexpr double kCubicFootPerGallon = 231.0 / 1728.0;

INSTANTIATE_TEST_SUITE_P(
    EveryField, PumpRecord,
    testing::Values(RecordCase{"CpLiquidFlowrate", 100, "GPM", &PumpData::capacity,
                               100 * 60 * kCubicFootPerGallon},
                    RecordCase{"CpFluidHead", 30, "M", &PumpData::fluidHead, 30 / 0.3048},
                    RecordCase{"CpFluidViscosity", 2, "CPOISE", &PumpData::viscosity, 2},
                    RecordCase{"CpDriverPower", 15, "HP", &PumpData::driverPower, 15},
                    RecordCase{"CpFluidSpecificGravity", 0.8, "", &PumpData::specificGravity, 0.8},
                    RecordCase{"CpPumpEfficiencyPercent", 65, "PERCENT",
                               &PumpData::efficiencyPercent, 65},
                    RecordCase{"PUMP % EFFICIENCY", 60, "", &PumpData::efficiencyPercent, 60}));

Plant::value_type slotValue(const RecordCase& row) {
  if (*row.units == '\0') return row.value;
  return {row.value, row.units};
}

TEST_P(PumpRecord, Is_read_from_the_component_record) {
  Plant plant = pumpPlant();
  recordOf(plant)[GetParam().slot] = slotValue(GetParam());
  PumpAtHand pump(plant);
  EXPECT_EQ(pump->GetLastInfo(), 1);
  EXPECT_NEAR(pump.values().*GetParam().field, GetParam().expected, 1e-9 * GetParam().expected);
}

TEST_P(PumpRecord, Is_read_from_the_project_object) {
  Plant plant = pumpPlant();
  projectOf(plant)[GetParam().slot] = slotValue(GetParam());
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  EXPECT_NEAR(pump.values().*GetParam().field, GetParam().expected, 1e-9 * GetParam().expected);
}

TEST_P(PumpRecord, Is_not_read_from_the_project_object_for_a_spreadsheet) {
  Plant plant = pumpPlant();
  projectOf(plant)[GetParam().slot] = slotValue(GetParam());
  PumpAtHand pump(plant, 0, "spreadsheet");
  pump->GetLastInfo();
  EXPECT_EQ(pump.values().*GetParam().field, 0.0);
}

TEST_P(PumpRecord, Of_the_component_outranks_the_project) {
  Plant plant = pumpPlant();
  recordOf(plant)[GetParam().slot] = slotValue(GetParam());
  projectOf(plant)[GetParam().slot] = 1e6;
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  EXPECT_NEAR(pump.values().*GetParam().field, GetParam().expected, 1e-9 * GetParam().expected);
}

TEST(PumpSources, A_stock_pump_reads_its_capacity_as_a_mass_flow) {
  Plant plant = pumpPlant();
  itemOf(plant)["item"] = "HD STOCK";
  recordOf(plant)["CpStockFlowrateAD"] = {1000, "KG/H"};
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  EXPECT_NEAR(pump.values().capacity, 1000 / 0.45359237, 1e-8);
}

TEST(PumpSources, The_overdesign_factor_comes_from_the_project_then_the_criterion_then_is_1) {
  Plant plant = pumpPlant();
  EXPECT_EQ(
      [&] {
        PumpAtHand pump(plant);
        pump->GetLastInfo();
        return pump.values().overdesignFactor;
      }(),
      1.0);
  plant["criteria"]["*"]["Pump overdesign factor"] = 1.1;
  EXPECT_EQ(
      [&] {
        PumpAtHand pump(plant);
        pump->GetLastInfo();
        return pump.values().overdesignFactor;
      }(),
      1.1);
  projectOf(plant)["Pump overdesign factor"] = 1.3;
  EXPECT_EQ(
      [&] {
        PumpAtHand pump(plant);
        pump->GetLastInfo();
        return pump.values().overdesignFactor;
      }(),
      1.3);
}

// --- Process block
// --------------------------------------------------------------------------------

struct EfficiencyCase {
  const char* where;  // "component" or "block"
  const char* slot;
  double value;
  double percent;
};

class PumpEfficiency : public testing::TestWithParam<EfficiencyCase> {};

INSTANTIATE_TEST_SUITE_P(
    EverySource, PumpEfficiency,
    testing::Values(EfficiencyCase{"block", "PUMP % EFFICIENCY", 61, 61},
                    EfficiencyCase{"component", "PUMP FRACTIONAL EFFICIENCY", 0.62, 62},
                    EfficiencyCase{"block", "PUMP FRACTIONAL EFFICIENCY", 0.63, 63},
                    EfficiencyCase{"component", "PUMP EFFICIENCY", 0.64, 64},
                    EfficiencyCase{"block", "PUMP EFFICIENCY", 0.65, 65},
                    EfficiencyCase{"block", "PUMP EFFICIENCY", 66, 66},
                    EfficiencyCase{"block", "PUMP EFFICIENCY", 1, 100}));

TEST_P(PumpEfficiency, Is_taken_as_a_percentage) {
  Plant plant = pumpPlant();
  const EfficiencyCase& row = GetParam();
  (std::string(row.where) == "block" ? blockOf(plant) : recordOf(plant))[row.slot] = row.value;
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  EXPECT_NEAR(pump.values().efficiencyPercent, row.percent, 1e-12);
}

TEST(PumpSources, The_first_efficiency_in_order_counts) {
  Plant plant = pumpPlant();
  blockOf(plant)["PUMP EFFICIENCY"] = 0.1;
  recordOf(plant)["PUMP EFFICIENCY"] = 0.2;
  blockOf(plant)["PUMP FRACTIONAL EFFICIENCY"] = 0.3;
  PumpAtHand fraction(plant);
  fraction->GetLastInfo();
  EXPECT_NEAR(fraction.values().efficiencyPercent, 30, 1e-12);
  blockOf(plant)["PUMP % EFFICIENCY"] = 40;
  PumpAtHand percent(plant);
  percent->GetLastInfo();
  EXPECT_EQ(percent.values().efficiencyPercent, 40);
}

struct ProcessCase {
  const char* where;
  const char* slot;
  double value;
  const char* units;
  double PumpData::*field;
  double expected;
};

class PumpProcess : public testing::TestWithParam<ProcessCase> {};

INSTANTIATE_TEST_SUITE_P(
    EverySource, PumpProcess,
    testing::Values(
        ProcessCase{"block", "liquid specif. grav.", 0.7, "", &PumpData::specificGravity, 0.7},
        ProcessCase{"component", "DRIVER POWER (SIM)", 8, "HP", &PumpData::driverPower, 8},
        ProcessCase{"block", "DRIVER POWER (SIM)", 9, "HP", &PumpData::driverPower, 9},
        ProcessCase{"block", "HEAD", 55, "FEET", &PumpData::fluidHead, 55},
        ProcessCase{"block", "Viscosity", 3, "CPOISE", &PumpData::viscosity, 3}));

TEST_P(PumpProcess, Is_read_when_the_record_has_none) {
  Plant plant = pumpPlant();
  const ProcessCase& row = GetParam();
  Plant& slots = std::string(row.where) == "block" ? blockOf(plant) : recordOf(plant);
  if (*row.units != '\0') {
    slots[row.slot] = {row.value, row.units};
  } else {
    slots[row.slot] = row.value;
  }
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  EXPECT_NEAR(pump.values().*row.field, row.expected, 1e-12);
}

TEST(PumpSources, The_record_outranks_the_block) {
  Plant plant = pumpPlant();
  recordOf(plant)["CpFluidHead"] = {10, "FEET"};
  blockOf(plant)["HEAD"] = {55, "FEET"};
  recordOf(plant)["DRIVER POWER (SIM)"] = {8, "HP"};
  blockOf(plant)["DRIVER POWER (SIM)"] = {9, "HP"};
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  EXPECT_EQ(pump.values().fluidHead, 10);
  EXPECT_EQ(pump.values().driverPower, 8);
}

TEST(PumpSources, Streams_do_not_replace_what_the_record_gives) {
  Plant plant = pumpPlant();
  recordOf(plant)["CpFluidViscosity"] = {2, "CPOISE"};
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  pump->Size();
  EXPECT_EQ(pump.values().viscosity, 2);
}

// --- Design conditions
// ------------------------------------------------------------------------------

TEST(PumpDesign, The_rules_of_the_project_give_both_conditions) {
  Plant plant = pumpPlant();
  plant["design rules"] = {{"pressure", {{{"from", 0}, {"factor", 1.1}, {"at least", 25}}}},
                           {"temperature", {{{"add", 50}}}}};
  PumpAtHand pump(plant);
  pump->Size();
  const double operating = 120 - kStandardAtmosphere;
  EXPECT_NEAR(pump.values().designPressure,
              std::max(operating * 1.1, operating + 25) + kStandardAtmosphere, 1e-9);
  EXPECT_NEAR(pump.values().designTemperature, 110 + 50, 1e-9);
}

TEST(PumpDesign, A_pressure_below_the_minimum_is_raised_to_it) {
  Plant plant = pumpPlant();
  plant["criteria"]["*"]["Minimum Design Pressure"] = {500, "PSI"};
  plant["criteria"]["*"]["Minimum Design Temperature"] = {250, "DEG F"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_EQ(pump.values().designPressure, 500);
  EXPECT_EQ(pump.values().designTemperature, 250);
}

struct DesignCase {
  const char* where;
  const char* slot;
};

class PumpSpecifiedPressure : public testing::TestWithParam<DesignCase> {};
INSTANTIATE_TEST_SUITE_P(EverySource, PumpSpecifiedPressure,
                         testing::Values(DesignCase{"component", "CpDesignGaugePressure"},
                                         DesignCase{"block", "Design press. -gauge"}));

TEST_P(PumpSpecifiedPressure, Is_taken_from_the_operating_pressure_up) {
  for (const auto& [given, expected] :
       {std::pair(120.0, 120.0), std::pair(300.0, 300.0), std::pair(119.9, 145.0)}) {
    Plant plant = pumpPlant();
    Plant& slots = std::string(GetParam().where) == "block" ? blockOf(plant) : recordOf(plant);
    slots[GetParam().slot] = {given, "PSI"};
    PumpAtHand pump(plant);
    pump->Size();
    EXPECT_NEAR(pump.values().designPressure, expected, 1e-9) << given;
  }
}

class PumpExitPressure : public testing::TestWithParam<DesignCase> {};
INSTANTIATE_TEST_SUITE_P(EverySource, PumpExitPressure,
                         testing::Values(DesignCase{"component", "EXIT PRESSURE"},
                                         DesignCase{"block", "EXIT PRESSURE"}));

TEST_P(PumpExitPressure, Above_the_exit_stream_is_the_operating_pressure) {
  Plant plant = pumpPlant();
  (std::string(GetParam().where) == "block" ? blockOf(plant) : recordOf(plant))["EXIT PRESSURE"] = {
      200, "PSI"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_NEAR(pump.values().designPressure, 225, 1e-9);  // 25 PSI above, more than a tenth of 185
}

class PumpOperatingTemperature : public testing::TestWithParam<DesignCase> {};
INSTANTIATE_TEST_SUITE_P(EverySource, PumpOperatingTemperature,
                         testing::Values(DesignCase{"component", "CpDesignTemperatureOutlet"},
                                         DesignCase{"block", "EXIT TEMPERATURE"},
                                         DesignCase{"component", "CpTemperature"},
                                         DesignCase{"block", "TEMPERATURE"}));

TEST_P(PumpOperatingTemperature, Above_the_exit_stream_is_the_operating_temperature) {
  Plant plant = pumpPlant();
  (std::string(GetParam().where) == "block" ? blockOf(plant) : recordOf(plant))[GetParam().slot] = {
      300, "DEG F"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_NEAR(pump.values().designTemperature, 350, 1e-9);
}

class PumpSpecifiedTemperature : public testing::TestWithParam<DesignCase> {};
INSTANTIATE_TEST_SUITE_P(EverySource, PumpSpecifiedTemperature,
                         testing::Values(DesignCase{"component", "CpDesignTemperature"},
                                         DesignCase{"block", "Design temperature"}));

TEST_P(PumpSpecifiedTemperature, Is_taken_from_the_operating_temperature_up) {
  for (const auto& [given, expected] :
       {std::pair(110.0, 110.0), std::pair(400.0, 400.0), std::pair(109.0, 160.0)}) {
    Plant plant = pumpPlant();
    (std::string(GetParam().where) == "block"
         ? blockOf(plant)
         : recordOf(plant))[GetParam().slot] = {given, "DEG F"};
    PumpAtHand pump(plant);
    pump->Size();
    EXPECT_NEAR(pump.values().designTemperature, expected, 1e-9) << given;
  }
}

TEST(PumpDesign, The_blocks_temperature_counts_only_without_that_of_the_record) {
  Plant plant = pumpPlant();
  recordOf(plant)["CpTemperature"] = {90, "DEG F"};
  blockOf(plant)["TEMPERATURE"] = {300, "DEG F"};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_NEAR(pump.values().designTemperature, 160, 1e-9);  // 50 above the exit's 110
}

TEST(PumpDesign, A_temperature_of_exactly_0_counts_as_unset) {
  Plant plant = pumpPlant();
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  setForm(*pump.object, {{"Inlet Stream", "S1"},
                         {"Outlet Stream", "S2"},
                         {"CpDesignTemperature", "0\nDEG F"},
                         {"Minimum Inlet Temperature", "0\nDEG F"}});
  pump->Size();
  EXPECT_NEAR(pump.values().designTemperature, 160, 1e-9);
  EXPECT_EQ(pump.values().minInletTemperature, 100);
}

TEST(PumpDesign, Without_leave_to_resize_both_given_conditions_stand) {
  Plant plant = pumpPlant();
  projectOf(plant) = {{"CpAllowResize", "no"},
                      {"CpDesignGaugePressure", {50, "PSI"}},
                      {"CpDesignTemperature", {75, "DEG F"}}};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_EQ(pump.values().designPressure, 50);
  EXPECT_EQ(pump.values().designTemperature, 75);
}

TEST(PumpDesign, Without_leave_to_resize_a_missing_condition_is_calculated) {
  Plant plant = pumpPlant();
  projectOf(plant) = {{"CpAllowResize", "No"}, {"CpDesignGaugePressure", {50, "PSI"}}};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_EQ(pump.values().designPressure, 50);  // read, and positive
  EXPECT_NEAR(pump.values().designTemperature, 160, 1e-9);
}

TEST(PumpDesign, With_leave_to_resize_given_conditions_of_the_project_do_not_count) {
  Plant plant = pumpPlant();
  projectOf(plant) = {{"CpAllowResize", "Yes"},
                      {"CpDesignGaugePressure", {50, "PSI"}},
                      {"CpDesignTemperature", {75, "DEG F"}}};
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_NEAR(pump.values().designPressure, 145, 1e-9);
  EXPECT_NEAR(pump.values().designTemperature, 160, 1e-9);
}

TEST(PumpDesign, Without_a_project_object_the_conditions_are_calculated) {
  Plant plant = pumpPlant();
  itemOf(plant)["project"] = nullptr;
  PumpAtHand pump(plant);
  EXPECT_EQ(pump->Size(), 1);
  EXPECT_GT(pump.values().designPressure, 120);
}

}  // namespace
}  // namespace sizewright
