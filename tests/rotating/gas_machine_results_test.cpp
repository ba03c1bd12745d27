#include <algorithm>

#include "rotating/gas_machine_plant.h"

namespace sizewright {
namespace {

template <class Machine>
struct GasMachineResults : testing::Test {
  using AtHand = GasMachineAtHand<Machine>;
};
TYPED_TEST_SUITE(GasMachineResults, GasMachines, GasMachineName);

struct ResultCase {
  const char* slot;
  double GasMachineData::*field;
  double value;
  double customary;
  double metric;
  const char* customaryUnit;
  const char* metricUnit;
};
// 1 CF is 0.028316846592 M3, 1 HP 0.74569987158227 KW, 1 PSI 6.894757293168 KPA.
constexpr ResultCase kResults[] = {
    {"Compressor Overdesign Factor", &GasMachineData::overdesignFactor, 1.25, 1.25, 1.25, "", ""},
    {"CpActualGasFlowrateInlet", &GasMachineData::capacity, 6000, 6000, 6000 * 0.028316846592,
     "CFH", "M3/H"},
    {"CpDesignGaugePressureInlet", &GasMachineData::designInletPressure, 45, 45 - kAtmosphere,
     45 * 6.894757293168, "PSIG", "KPA"},
    {"CpDesignGaugePressureOutlet", &GasMachineData::designExitPressure, 85, 85 - kAtmosphere,
     85 * 6.894757293168, "PSIG", "KPA"},
    {"CpDesignTemperatureInlet", &GasMachineData::designInletTemperature, 150, 150, 590.0 / 9,
     "DEG F", "DEG C"},
    {"CpDesignTemperatureOutlet", &GasMachineData::designExitTemperature, 350, 350, 1590.0 / 9,
     "DEG F", "DEG C"},
    {"CpMolecularWeight", &GasMachineData::molecularWeight, 29, 29, 29, "", ""},
    {"CpSpecificHeatRatio", &GasMachineData::specificHeatRatio, 1.4, 1.4, 1.4, "", ""},
    {"CpDriverPower", &GasMachineData::driverPower, 100, 100, 74.569987158227, "HP", "KW"},
    {"CpCompressibilityFactorInlet", &GasMachineData::inletCompressibility, 0.75, 0.75, 0.75, "",
     ""},
    {"CpCompressibilityFactorOutlet", &GasMachineData::exitCompressibility, 0.5, 0.5, 0.5, "", ""},
};

TYPED_TEST(GasMachineResults, Every_positive_result_is_written_in_the_projects_unit) {
  for (const ResultCase& row : kResults) {
    for (const bool metric : {false, true}) {
      PlantJson plant = gasPlant();
      plant["units"] = metric ? "metric" : "customary";
      typename TestFixture::AtHand machine(plant);
      machine->data().*row.field = row.value;
      EXPECT_EQ(machine->SaveParameters(), 1);
      const double expected = metric ? row.metric : row.customary;
      EXPECT_NEAR(machine.number(row.slot), expected, 1e-9 * expected) << row.slot;
      EXPECT_EQ(machine.units(row.slot), metric ? row.metricUnit : row.customaryUnit) << row.slot;
    }
  }
}

TYPED_TEST(GasMachineResults, A_result_of_0_or_less_is_not_written) {
  for (const ResultCase& row : kResults) {
    for (const double value : {0.0, -1.0}) {
      typename TestFixture::AtHand machine(gasPlant());
      machine->data().*row.field = value;
      machine->SaveParameters();
      EXPECT_FALSE(machine.has(row.slot)) << row.slot;
    }
  }
}

TYPED_TEST(GasMachineResults, Several_items_are_written_as_a_whole_number) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->data().numberItems = 3;
  machine->SaveParameters();
  EXPECT_EQ(machine.text("CpNumberItems"), "3");
}

TYPED_TEST(GasMachineResults, A_driver_is_written_unless_there_is_none) {
  const std::pair<const char*, bool> rows[] = {
      {"MOTOR", true}, {"NONE", false}, {"none", false}, {"", false}};
  for (const auto& [driver, written] : rows) {
    typename TestFixture::AtHand machine(gasPlant());
    machine->data().driverType = std::string_view(driver);
    machine->SaveParameters();
    EXPECT_EQ(machine.has("CpDriverType"), written) << driver;
    EXPECT_EQ(machine.text("CpDriverType"), written ? driver : "") << driver;
  }
}

TYPED_TEST(GasMachineResults, Without_capacity_the_record_tells_of_an_error) {
  constexpr const char* kError =
      "This item cannot be sized because of incomplete information.\n"
      "Volumetric flow cannot be calculated";
  constexpr const char* kShown =
      "This item cannot be sized because of incomplete information.\nNo inlet flow specified.";
  for (const int interactive : {0, 1}) {
    typename TestFixture::AtHand machine(gasPlant(), interactive);
    machine->SaveParameters();
    EXPECT_EQ(machine.text("Error"), kError);
    EXPECT_EQ(machine->Errors().GetTextList('\n'), kError);
    EXPECT_EQ(machine->Errors().GetLength(), 2);
    EXPECT_EQ(machine.plant.dialogTexts(),
              interactive != 0 ? std::vector<std::string>{kShown} : std::vector<std::string>{});
  }
}

TYPED_TEST(GasMachineResults, With_capacity_there_is_no_error) {
  typename TestFixture::AtHand machine(gasPlant(), 1);
  machine->Size();
  EXPECT_EQ(machine->Commit(), 1);
  EXPECT_FALSE(machine.has("Error"));
  EXPECT_TRUE(machine->Errors().IsEmpty());
  EXPECT_TRUE(machine.plant.dialogTexts().empty());
  EXPECT_NEAR(machine.number("CpActualGasFlowrateInlet"), 16500, 1e-9);
  EXPECT_NEAR(machine.number("CpDesignGaugePressureOutlet"), 85 - kAtmosphere, 1e-9);
}

TYPED_TEST(GasMachineResults, Progress_ends_with_the_closing_line) {
  typename TestFixture::AtHand machine(gasPlant());
  const auto progress = machine.progressOf([](auto& object) { object.SaveParameters(); });
  ASSERT_GE(progress.size(), 2U);
  const std::pair<int, std::string> capacity = {90, "Writing compressor capacity field."};
  EXPECT_NE(std::find(progress.begin(), progress.end(), capacity), progress.end());
  EXPECT_EQ(progress.back().first, 95);
  EXPECT_EQ(progress.back().second, "Completed writing results for compressor.");
  for (std::size_t i = 0; i + 1 < progress.size(); ++i) EXPECT_EQ(progress[i].first, 90);
}

TYPED_TEST(GasMachineResults, A_fan_writes_its_flow_and_exit_pressure_under_their_own_names) {
  typename TestFixture::AtHand machine(gasPlant("EFN", "CENTRIF"));
  machine->Size();
  machine->SaveParameters();
  EXPECT_NEAR(machine.number("CpActualGasFlowrate"), 16500, 1e-9);
  EXPECT_NEAR(machine.number("CpFanOutletGaugePressure"), 85 - kAtmosphere, 1e-9);
  EXPECT_FALSE(machine.has("CpActualGasFlowrateInlet"));
  EXPECT_FALSE(machine.has("CpDesignGaugePressureOutlet"));
}

TEST(CompressorResults, A_single_item_is_not_counted) {
  const std::pair<double, bool> rows[] = {{0, false}, {1, false}, {1.5, true}, {2, true}};
  for (const auto& [number, written] : rows) {
    CompressorAtHand compressor(gasPlant());
    compressor->data().numberItems = number;
    compressor->SaveParameters();
    EXPECT_EQ(compressor.has("CpNumberItems"), written) << number;
  }
}

// --- Expander -----------------------------------------------------------------------------------

TEST(CompressorResults, An_expander_writes_its_power_under_its_own_name) {
  CompressorAtHand expander(gasPlant("DTUR", "TURBOEXP"));
  expander->data().driverPower = 100;
  expander->SaveParameters();
  EXPECT_DOUBLE_EQ(expander.number("CpPowerOutput"), 100);
  EXPECT_FALSE(expander.has("CpDriverPower"));
}

TEST(CompressorResults, An_expanders_efficiency_is_the_records_or_one_of_the_blocks) {
  PlantJson plant = gasPlant("DTUR", "TURBOEXP");
  gasRecord(plant)["CpIsentropicEfficiency"] = {81, "PERCENT"};
  gasBlock(plant)["ISENTROPIC EFF. (SIM)"] = 72;
  gasBlock(plant)["ADIABATIC EFFICIENCY (SIM)"] = {63, "PERCENT"};
  const auto efficiency = [](const PlantJson& json) {
    CompressorAtHand expander(json);
    expander->SaveParameters();
    EXPECT_EQ(expander.units("CpIsentropicEfficiency"), "PERCENT");
    return expander.number("CpIsentropicEfficiency");
  };
  EXPECT_DOUBLE_EQ(efficiency(plant), 81);
  gasRecord(plant)["CpIsentropicEfficiency"] = {-1, "PERCENT"};
  EXPECT_DOUBLE_EQ(efficiency(plant), 72);
  gasBlock(plant).erase("ISENTROPIC EFF. (SIM)");
  EXPECT_DOUBLE_EQ(efficiency(plant), 63);
}

TEST(CompressorResults, An_expander_without_efficiency_writes_none) {
  CompressorAtHand expander(gasPlant("DTUR", "TURBOEXP"));
  expander->SaveParameters();
  EXPECT_FALSE(expander.has("CpIsentropicEfficiency"));
}

TEST(CompressorResults, An_efficiency_in_hand_is_not_read_again) {
  PlantJson plant = gasPlant("DTUR", "TURBOEXP");
  gasRecord(plant)["CpIsentropicEfficiency"] = {81, "PERCENT"};
  CompressorAtHand expander(plant);
  expander->data().isentropicEfficiency = 77;
  expander->SaveParameters();
  EXPECT_DOUBLE_EQ(expander.number("CpIsentropicEfficiency"), 77);
}

TEST(CompressorResults, A_compressor_has_no_isentropic_efficiency) {
  PlantJson plant = gasPlant();
  gasBlock(plant)["ISENTROPIC EFF. (SIM)"] = 72;
  CompressorAtHand compressor(plant);
  compressor->SaveParameters();
  EXPECT_FALSE(compressor.has("CpIsentropicEfficiency"));
}

// --- Intercooler --------------------------------------------------------------------------------

struct IntercoolerRow {
  const char* category;
  const char* item;
  double temperature;
  bool writesTemperature;
  bool writesFlag;
};

TEST(CompressorResults, The_intercooler_goes_with_category_and_item) {
  const IntercoolerRow rows[] = {
      {"DGC", "CENTRIF", 104, true, true},     {"dgc", "centrif", 104, true, true},
      {"DGCX", "CENTRIF IG", 104, true, true}, {"DGC", "THE CENTRIF", 104, true, true},
      {"DGC", "RECIP", 104, true, false},      {"DGC", "CENTRI", 104, true, false},
      {"EGC", "CENTRIF", 104, false, false},   {"DG", "CENTRIF", 104, false, false},
      {"DGC", "CENTRIF", 0, false, false},     {"DGC", "CENTRIF", -5, false, false},
  };
  for (const IntercoolerRow& row : rows) {
    CompressorAtHand compressor(gasPlant(row.category, row.item));
    compressor->data().intercoolerTemperature = row.temperature;
    compressor->SaveParameters();
    EXPECT_EQ(compressor.has("CpIntercoolerOutletTemperature"), row.writesTemperature)
        << row.category << ' ' << row.item << ' ' << row.temperature;
    EXPECT_EQ(compressor.text("CpInterCoolerYN"), row.writesFlag ? "YES" : "") << row.item;
  }
}

TEST(CompressorResults, The_intercooler_temperature_is_in_the_projects_unit) {
  PlantJson plant = gasPlant();
  plant["units"] = "metric";
  CompressorAtHand compressor(plant);
  compressor->data().intercoolerTemperature = 104;
  compressor->SaveParameters();
  EXPECT_NEAR(compressor.number("CpIntercoolerOutletTemperature"), 40, 1e-9);
  EXPECT_EQ(compressor.units("CpIntercoolerOutletTemperature"), "DEG C");
}

// --- Ports --------------------------------------------------------------------------------------

TYPED_TEST(GasMachineResults, Exits_are_connected_by_whether_they_carry_vapor) {
  PlantJson plant = gasPlant();
  for (const char* name : {"S4", "S5"}) plant["streams"][name] = plant["streams"]["S2"];
  gasStream(plant, "S4")["VAPOR MASS FLOW"] = {-1, "LB/H"};
  gasStream(plant, "S5")["VAPOR MASS FLOW"] = {0.01, "LB/H"};
  gasItem(plant)["exits"] = {{"OUTLET", {"S4", "GHOST", "S2"}}, {"DRAIN", {"S5"}}};
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_EQ(machine->UpdateConnectivity(), 1);
  EXPECT_EQ(machine.text("__STREAMS__EX"), "_ex__0\n_ex__1\n_ex__2");
  EXPECT_EQ(machine.text("_ex__0"), "S4\nPROCESS\nDRAIN");
  EXPECT_EQ(machine.text("_ex__1"), "S2\nPROCESS\nOUTLET");
  EXPECT_EQ(machine.text("_ex__2"), "S5\nPROCESS\nOUTLET");
  EXPECT_FALSE(machine.has("_ex_1"));
}

TYPED_TEST(GasMachineResults, Inlets_are_connected_from_number_1) {
  typename TestFixture::AtHand machine(twoGasInlets());
  machine->Size();
  machine->UpdateConnectivity();
  EXPECT_EQ(machine.text("__STREAMS__IN"), "_in__1\n_in__2");
  EXPECT_EQ(machine.text("_in__1"), "S1\nPROCESS\nINLET");
  EXPECT_EQ(machine.text("_in__2"), "S3\nPROCESS\nINLET");
  EXPECT_FALSE(machine.has("_in_1"));
}

TYPED_TEST(GasMachineResults, Without_lists_the_old_ports_stay) {
  typename TestFixture::AtHand machine(gasPlant());
  EXPECT_EQ(machine->UpdateConnectivity(), 1);
  EXPECT_EQ(machine.text("__STREAMS__IN"), "_in_1");
  EXPECT_EQ(machine.text("__STREAMS__EX"), "_ex_1");
}

TYPED_TEST(GasMachineResults, An_empty_exit_list_removes_the_old_ports) {
  typename TestFixture::AtHand machine(gasPlant());
  void* none = list2_create();
  machine->SetExitStreams(none);
  machine->UpdateConnectivity();
  EXPECT_FALSE(machine.has("__STREAMS__EX"));
  EXPECT_FALSE(machine.has("_ex_1"));
}

TYPED_TEST(GasMachineResults, Ports_that_were_written_are_found_again) {
  PlantJson plant = twoGasExits();
  gasStream(plant, "S2").erase("VAPOR MASS FLOW");
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  machine->Commit();
  machine->Initialize();
  EXPECT_EQ(machine->GetStreamInfo(), 1);
  ASSERT_EQ(list2_length(machine->exits()), 2);
  EXPECT_STREQ(list2_get_item(machine->exits(), 0, nullptr), "S4");  // the outlet, then the drain
  EXPECT_STREQ(list2_get_item(machine->exits(), 1, nullptr), "S2");
}

}  // namespace
}  // namespace sizewright
