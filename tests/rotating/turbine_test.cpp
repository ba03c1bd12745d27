#include "sizewright/rotating/turbine.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/item_at_hand.h"

namespace sizewright {
namespace {

using D = TurbineData;

constexpr double kStandardAtmosphere = 14.695948775513;  // PSI
constexpr double kBtuPerHourOfHorsepower = 2544.43357764;
constexpr double kKelvinPerRankine = 1 / 1.8;

// A turbine T-1 from S1 (18,000 LB/H of vapor, 600 PSI, 700 DEG F) to S2 (150 PSI, 450 DEG F).
PlantJson turbinePlant() {
  return PlantJson::parse(R"({
    "sizewright": 1, "simulator": 1,
    "streams": {
      "S1": {"slots": {"TEMPERATURE": [700, "DEG F"], "PRESSURE": [600, "PSI"],
                       "VAPOR MASS FLOW": [18000, "LB/H"], "VAPOR MASS DENSITY": [0.9, "PCF"],
                       "MOLECULAR WEIGHT": 18, "PRIMARY FLUID COMPONENT": "TEST GAS"}},
      "S2": {"slots": {"TEMPERATURE": [450, "DEG F"], "PRESSURE": [150, "PSI"],
                       "VAPOR MASS FLOW": [18000, "LB/H"]}},
      "S3": {"slots": {"TEMPERATURE": [300, "DEG F"], "PRESSURE": [100, "PSI"],
                       "LIQUID MASS FLOW": [10, "LB/H"]}}
    },
    "blocks": {"B1": {"class": 405, "slots": {"ITEM MODEL": "TURB"}}},
    "items": {"T-1": {"category": "ETUR", "item": "GAS", "block": "B1",
                      "inlets": {"STEAM SUPPLY": ["S1"]}, "exits": {"OUTLET": ["S2"]},
                      "component": {}, "project": {}}},
    "criteria": {"*": {}},
    "fluids": {"TEST GAS": {"gas heat capacity": [0.5, 0], "molecular weight": 18,
                            "boiling point": 100}}
  })");
}

struct TurbineAtHand : ItemAtHand<CTurbObj> {
  explicit TurbineAtHand(const PlantJson& json) : ItemAtHand(json, "T-1", 0) {}
};

PlantJson& itemOf(PlantJson& plant) {
  return plant["items"]["T-1"];
}
PlantJson& recordOf(PlantJson& plant) {
  return itemOf(plant)["component"];
}
PlantJson& blockOf(PlantJson& plant) {
  return plant["blocks"]["B1"]["slots"];
}
PlantJson& slotsOf(PlantJson& plant, const char* stream) {
  return plant["streams"][stream]["slots"];
}

// --- Correlations
// ---------------------------------------------------------------------------------

TEST(TurbineFormulas, Follow_the_isentropic_expansion_of_an_ideal_gas) {
  EXPECT_NEAR(gasHeatCapacityRatio(0.5, 18), 0.5 / (0.5 - 1.98719 / 18), 1e-15);
  const double k = 1.3;
  EXPECT_NEAR(expansionPower(0.5, 1160, 0.25, k, 18000),
              0.5 * 1160 * (1 - std::pow(0.25, 0.3 / 1.3)) * 0.5 * 18000, 1e-4);
}

// --- Streams
// --------------------------------------------------------------------------------------

TEST(TurbineStreams, Give_flows_and_conditions) {
  TurbineAtHand turbine(turbinePlant());
  ASSERT_EQ(turbine->Size(), 1);
  const D& data = turbine.values();
  EXPECT_DOUBLE_EQ(data.gasMassFlow, 18000);
  EXPECT_DOUBLE_EQ(data.gasVolumeFlow, 20000);
  EXPECT_DOUBLE_EQ(data.gasDensity, 0.9);
  EXPECT_DOUBLE_EQ(data.fluidDensity, 0.9);
  EXPECT_DOUBLE_EQ(data.molecularWeight, 18);
  EXPECT_EQ(data.fluidType.view(), "TEST GAS");
  EXPECT_DOUBLE_EQ(data.inletPressure, 600);
  EXPECT_DOUBLE_EQ(data.exitPressure, 150);
  EXPECT_DOUBLE_EQ(data.inletTemperature, 700);
  EXPECT_DOUBLE_EQ(data.exitTemperature, 450);
}

TEST(TurbineStreams, Of_several_ends_count_by_the_least_inlet_and_the_greatest_exit) {
  PlantJson plant = turbinePlant();
  plant["streams"]["S4"] = plant["streams"]["S1"];
  slotsOf(plant, "S4")["PRESSURE"] = {550, "PSI"};
  slotsOf(plant, "S4")["TEMPERATURE"] = {710, "DEG F"};
  slotsOf(plant, "S4")["MOLECULAR WEIGHT"] = 17;
  slotsOf(plant, "S4")["VAPOR MASS DENSITY"] = {0.6, "PCF"};
  itemOf(plant)["inlets"]["STEAM SUPPLY"] = {"S1", "S4"};
  itemOf(plant)["exits"] = {{"OUTLET", {"S2"}}, {"DRAIN", {"S3"}}};
  TurbineAtHand turbine(plant);
  turbine->Size();
  const D& data = turbine.values();
  EXPECT_DOUBLE_EQ(data.gasMassFlow, 36000);
  EXPECT_DOUBLE_EQ(data.gasVolumeFlow, 20000 + 30000);
  EXPECT_DOUBLE_EQ(data.gasDensity, 0.6);
  EXPECT_DOUBLE_EQ(data.molecularWeight, 17);
  EXPECT_DOUBLE_EQ(data.inletPressure, 550);
  EXPECT_DOUBLE_EQ(data.inletTemperature, 700);
  EXPECT_DOUBLE_EQ(data.exitPressure, 150);
  EXPECT_DOUBLE_EQ(data.exitTemperature, 450);
}

TEST(TurbineStreams, Both_ends_must_be_there) {
  PlantJson plant = turbinePlant();
  itemOf(plant).erase("exits");
  TurbineAtHand withoutExit(plant);
  EXPECT_EQ(withoutExit->GetStreamInfo(), 0);
  EXPECT_EQ(withoutExit->Size(), 0);
  EXPECT_EQ(withoutExit.values().overdesignFactor, 1.0);
  EXPECT_EQ(withoutExit.values().gasMassFlow, 0.0);
  recordOf(plant)["Exit stream"] = "S2";
  EXPECT_EQ(TurbineAtHand(plant)->Size(), 1);
  itemOf(plant).erase("inlets");
  EXPECT_EQ(TurbineAtHand(plant)->Size(), 0);
}

TEST(TurbineStreams, Without_volume_flow_the_density_is_that_of_water) {
  PlantJson plant = turbinePlant();
  slotsOf(plant, "S1").erase("VAPOR MASS DENSITY");
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_EQ(turbine.values().fluidDensity, 62.43);
}

// --- Pressures and temperatures
// -------------------------------------------------------------------

struct ConditionCase {
  const char* where;
  const char* slot;
  double given;
  const char* units;
  double D::*field;
  double expected;
};

void PrintTo(const ConditionCase& row, std::ostream* out) {
  *out << row.where << ' ' << row.slot << ' ' << row.given;
}

class TurbineCondition : public testing::TestWithParam<ConditionCase> {};
INSTANTIATE_TEST_SUITE_P(
    EverySource, TurbineCondition,
    testing::Values(
        ConditionCase{"record", "EXIT PRESSURE", 200, "PSI", &D::exitPressure, 200},
        ConditionCase{"block", "EXIT PRESSURE", 200, "PSI", &D::exitPressure, 200},
        ConditionCase{"block", "EXIT PRESSURE", 100, "PSI", &D::exitPressure, 150},
        ConditionCase{"record", "INLET PRESSURE", 500, "PSI", &D::inletPressure, 500},
        ConditionCase{"block", "INLET PRESSURE", 500, "PSI", &D::inletPressure, 500},
        ConditionCase{"block", "INLET PRESSURE", 700, "PSI", &D::inletPressure, 600},
        ConditionCase{"record", "CpSteamGaugePressure", 800, "PSI", &D::inletPressure, 800},
        ConditionCase{"block", "STEAM PRESSURE-GAUGE", 800, "PSI", &D::inletPressure, 800},
        ConditionCase{"record", "CpDesignTemperatureOutlet", 500, "DEG F", &D::exitTemperature,
                      500},
        ConditionCase{"block", "EXIT TEMPERATURE", 500, "DEG F", &D::exitTemperature, 500},
        ConditionCase{"block", "EXIT TEMPERATURE", 400, "DEG F", &D::exitTemperature, 450},
        ConditionCase{"record", "CpDesignTemperatureInlet", 650, "DEG F", &D::inletTemperature,
                      650},
        ConditionCase{"block", "Inlet temperature", 650, "DEG F", &D::inletTemperature, 650},
        ConditionCase{"block", "Inlet temperature", 750, "DEG F", &D::inletTemperature, 700}));

TEST_P(TurbineCondition, Is_weighed_against_the_streams) {
  PlantJson plant = turbinePlant();
  const ConditionCase& row = GetParam();
  (std::string(row.where) == "block" ? blockOf(plant) : recordOf(plant))[row.slot] = {row.given,
                                                                                      row.units};
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_DOUBLE_EQ(turbine.values().*row.field, row.expected);
}

TEST(TurbineConditions, Of_the_item_serve_without_those_of_streams) {
  PlantJson plant = turbinePlant();
  for (const char* stream : {"S1", "S2"}) {
    slotsOf(plant, stream).erase("PRESSURE");
    slotsOf(plant, stream).erase("TEMPERATURE");
  }
  recordOf(plant) = {{"INLET PRESSURE", {500, "PSI"}},
                     {"CpDesignTemperatureInlet", {650, "DEG F"}}};
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_DOUBLE_EQ(turbine.values().inletPressure, 500);
  EXPECT_DOUBLE_EQ(turbine.values().inletTemperature, 650);
  EXPECT_EQ(turbine.values().exitTemperature, 0.0);
}

// --- Design conditions
// ----------------------------------------------------------------------------

TEST(TurbineDesign, Follows_the_rule_from_the_greater_end) {
  TurbineAtHand turbine(turbinePlant());
  turbine->Size();
  EXPECT_NEAR(turbine.values().designPressure,
              (600 - kStandardAtmosphere) * 1.1 + kStandardAtmosphere, 1e-9);
  EXPECT_NEAR(turbine.values().designTemperature, 750, 1e-9);
}

TEST(TurbineDesign, Of_the_project_stands_without_leave_to_resize) {
  PlantJson plant = turbinePlant();
  itemOf(plant)["project"] = {{"CpAllowResize", "NO"}, {"CpDesignGaugePressure", {50, "PSI"}}};
  TurbineAtHand half(plant);
  half->Size();
  EXPECT_EQ(half.values().designPressure, 50);
  EXPECT_NEAR(half.values().designTemperature, 750, 1e-9);
  itemOf(plant)["project"]["CpDesignTemperature"] = {60, "DEG F"};
  TurbineAtHand whole(plant);
  whole->Size();
  EXPECT_EQ(whole.values().designTemperature, 60);
}

// --- Sizing
// ---------------------------------------------------------------------------------------

struct PowerCase {
  const char* where;
  const char* slot;
};
class TurbinePower : public testing::TestWithParam<PowerCase> {};
INSTANTIATE_TEST_SUITE_P(EverySource, TurbinePower,
                         testing::Values(PowerCase{"record", "CpPowerOutput"},
                                         PowerCase{"block", "POWER OUTPUT"},
                                         PowerCase{"record", "CpDriverPower"},
                                         PowerCase{"block", "DRIVER POWER"},
                                         PowerCase{"record", "WORK"}, PowerCase{"block", "WORK"},
                                         PowerCase{"block", "DRIVER POWER (SIM)"}));

TEST_P(TurbinePower, Is_taken_with_the_overdesign_factor) {
  PlantJson plant = turbinePlant();
  (std::string(GetParam().where) == "block" ? blockOf(plant) : recordOf(plant))[GetParam().slot] = {
      300, "HP"};
  plant["criteria"]["*"]["Turbine overdesign factor"] = 1.2;
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_DOUBLE_EQ(turbine.values().powerOutput, 360);
  turbine->Size();  // a power that is there is not multiplied again
  EXPECT_DOUBLE_EQ(turbine.values().powerOutput, 360);
}

TEST(TurbinePowers, Come_in_order) {
  PlantJson plant = turbinePlant();
  blockOf(plant)["DRIVER POWER (SIM)"] = {7, "HP"};
  blockOf(plant)["WORK"] = {6, "HP"};
  recordOf(plant)["WORK"] = {5, "HP"};
  recordOf(plant)["CpDriverPower"] = {-4, "HP"};  // not positive
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_DOUBLE_EQ(turbine.values().powerOutput, 5);
}

struct SignCase {
  int simulator;
  const char* model;
  bool turned;
};
class TurbineSign : public testing::TestWithParam<SignCase> {};
INSTANTIATE_TEST_SUITE_P(EveryBranch, TurbineSign,
                         testing::Values(SignCase{1, "COMPR", true}, SignCase{2, "COMPR", false},
                                         SignCase{1, "TURB", false}));

TEST_P(TurbineSign, Of_a_compressor_blocks_work_is_turned) {
  PlantJson plant = turbinePlant();
  plant["simulator"] = GetParam().simulator;
  blockOf(plant) = {{"ITEM MODEL", GetParam().model}, {"WORK", {-500, "HP"}}};
  plant["criteria"]["*"]["Turbine overdesign factor"] = 1.1;
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_EQ(std::abs(turbine.values().powerOutput - 550) < 1e-9, GetParam().turned);
}

TEST(TurbineExpansion, Gives_the_power_where_nothing_else_does) {
  PlantJson plant = turbinePlant();
  plant["criteria"]["*"]["Turbine overdesign factor"] = 1.1;
  TurbineAtHand turbine(plant);
  turbine->Size();
  const double k = 0.5 / (0.5 - 1.98719 / 18);
  const double power = 0.5 * (700 + 459.67) * (1 - std::pow(0.25, (k - 1) / k)) * 0.5 * 18000;
  EXPECT_NEAR(turbine.values().fluidCp, 0.5, 1e-6);
  EXPECT_NEAR(turbine.values().heatCapacityRatio, k, 1e-6);
  EXPECT_NEAR(turbine.values().powerOutput, 1.1 * power / kBtuPerHourOfHorsepower, 1e-3);
  EXPECT_DOUBLE_EQ(turbine.values().inletTemperature, 700);  // back in DEG F
}

TEST(TurbineExpansion, Asks_for_the_heat_capacity_at_the_exit) {
  PlantJson plant = turbinePlant();
  plant["fluids"]["TEST GAS"]["gas heat capacity"] = {0.3, 0.0004};
  TurbineAtHand turbine(plant);
  turbine->Size();
  const double kelvin = (450 + 459.67) * kKelvinPerRankine;
  EXPECT_NEAR(turbine.values().fluidCp, 0.3 + 0.0004 * kelvin, 1e-6);
}

struct DensityCase {
  double density;  // GM/CC
  const char* fluid;
};
class TurbineFluid : public testing::TestWithParam<DensityCase> {};
INSTANTIATE_TEST_SUITE_P(AroundTheLimits, TurbineFluid,
                         testing::Values(DensityCase{0.24999, "Miscellaneous Organic Gas"},
                                         DensityCase{0.25001, "Hydrocarbon Gas"},
                                         DensityCase{0.49999, "Hydrocarbon Gas"},
                                         DensityCase{0.50001, "Inorganic Gas"}));

TEST_P(TurbineFluid, Is_chosen_by_density_where_no_stream_tells) {
  PlantJson plant = turbinePlant();
  slotsOf(plant, "S1").erase("PRIMARY FLUID COMPONENT");
  slotsOf(plant, "S1")["VAPOR MASS DENSITY"] = {GetParam().density, "GM/CC"};
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_EQ(turbine.values().fluidType.view(), GetParam().fluid);
}

TEST(TurbineExpansion, That_cannot_be_worked_out_leaves_no_power) {
  PlantJson plant = turbinePlant();
  slotsOf(plant, "S1").erase("PRESSURE");
  TurbineAtHand turbine(plant);
  EXPECT_EQ(turbine->Size(), 1);
  turbine->SaveParameters();
  EXPECT_FALSE(turbine.has("CpPowerOutput"));
}

TEST(TurbineEfficiency, Is_a_number_with_a_unit_or_1) {
  PlantJson plant = turbinePlant();
  recordOf(plant)["EFFICIENCY"] = 0.6;  // without unit it does not count
  blockOf(plant)["EFFICIENCY"] = {0.7, "FRACTION"};
  TurbineAtHand ofBlock(plant);
  ofBlock->Size();
  EXPECT_EQ(ofBlock.values().fractionalEfficiency, 0.7);
  blockOf(plant).erase("EFFICIENCY");
  TurbineAtHand none(plant);
  none->Size();
  EXPECT_EQ(none.values().fractionalEfficiency, 1.0);
}

TEST(TurbineCount, Comes_from_the_record_then_from_the_block) {
  PlantJson plant = turbinePlant();
  const auto count = [&plant] {
    TurbineAtHand turbine(plant);
    turbine->Size();
    return turbine.values().numberItems;
  };
  EXPECT_EQ(count(), 1.0);
  blockOf(plant)["CpNumberItems"] = 3;
  EXPECT_EQ(count(), 3.0);
  recordOf(plant)["CpNumberItems"] = 2;
  EXPECT_EQ(count(), 2.0);
}

// --- Form and results
// -----------------------------------------------------------------------------

TEST(TurbineForm, Takes_and_shows_nothing) {
  TurbineAtHand turbine(turbinePlant());
  EXPECT_EQ(turbine->GetLastInfo(), 0);
  EXPECT_EQ(setForm(*turbine.object, {{"CpPowerOutput", "5\nHP"}}), 1);
  EXPECT_EQ(setForm(*turbine.object, {}), 0);
  EXPECT_TRUE(formOf(*turbine.object).empty());
  EXPECT_EQ(turbine.values().powerOutput, 0.0);
}

TEST(TurbineResults, Are_written_in_both_unit_systems) {
  PlantJson plant = turbinePlant();
  recordOf(plant) = {{"CpPowerOutput", {300, "HP"}}, {"CpNumberItems", 2}};
  struct Row {
    const char* slot;
    double customary;
    const char* units;
    double metric;
    const char* metricUnits;
  };
  const double design = (600 - kStandardAtmosphere) * 1.1;  // PSIG
  constexpr double kKpa = 6.894757293168361;
  const Row rows[] = {
      {"CpDesignGaugePressure", design, "PSIG", (design + kStandardAtmosphere) * kKpa, "KPA"},
      {"CpDesignTemperature", 750, "DEG F", (750 - 32) / 1.8, "DEG C"},
      {"CpTemperature", 750, "DEG F", (750 - 32) / 1.8, "DEG C"},
      {"CpPowerOutput", 300, "HP", 300 * 0.745699871582270, "KW"},
      {"Gas rate", 18000, "LB/H", 18000 * 0.45359237, "KG/H"},
      {"Gas inlet temperature", 700, "DEG F", (700 - 32) / 1.8, "DEG C"},
      {"Gas outlet temperature", 450, "DEG F", (450 - 32) / 1.8, "DEG C"},
      {"Gas inlet pressure", 600, "PSIA", 600 * kKpa, "KPA"},
      {"Gas outlet pressure", 150, "PSIA", 150 * kKpa, "KPA"}};
  for (const bool metric : {false, true}) {
    plant["units"] = metric ? "metric" : "customary";
    TurbineAtHand turbine(plant);
    turbine->Size();
    EXPECT_EQ(turbine->SaveParameters(), 1);
    for (const Row& row : rows) {
      EXPECT_NEAR(turbine.number(row.slot), metric ? row.metric : row.customary, 1e-6) << row.slot;
      EXPECT_EQ(turbine.units(row.slot), metric ? row.metricUnits : row.units) << row.slot;
    }
    EXPECT_EQ(turbine.number("FRACTIONAL EFFICIENCY"), 1.0);
    EXPECT_EQ(turbine.text("CpNumberItems"), "2");
    EXPECT_FALSE(turbine.has("Heat capacity ratio"));  // not needed
  }
}

TEST(TurbineResults, Leave_out_an_efficiency_above_1_and_a_count_of_1) {
  PlantJson plant = turbinePlant();
  recordOf(plant)["EFFICIENCY"] = {80, "PERCENT"};
  TurbineAtHand turbine(plant);
  turbine->Size();
  turbine->SaveParameters();
  EXPECT_FALSE(turbine.has("FRACTIONAL EFFICIENCY"));
  EXPECT_FALSE(turbine.has("CpNumberItems"));
  EXPECT_TRUE(turbine.has("Heat capacity ratio"));
}

TEST(TurbinePorts, Of_exits_are_told_by_vapor) {
  PlantJson plant = turbinePlant();
  itemOf(plant)["exits"] = {{"OUTLET", {"S2", "S3"}}};
  TurbineAtHand turbine(plant);
  turbine->Size();
  EXPECT_EQ(turbine->UpdateConnectivity(), 1);
  EXPECT_EQ(turbine.text("_in__1"), "S1\nPROCESS\nSTEAM SUPPLY");
  EXPECT_EQ(turbine.text("__STREAMS__EX"), "_ex__0\n_ex__1");
  EXPECT_EQ(turbine.text("_ex__0"), "S2\nPROCESS\nOUTLET");
  EXPECT_EQ(turbine.text("_ex__1"), "S3\nPROCESS\nDRAIN");
}

}  // namespace
}  // namespace sizewright
