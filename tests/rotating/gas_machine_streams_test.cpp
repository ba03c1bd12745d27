#include "rotating/gas_machine_plant.h"

namespace sizewright {
namespace {

template <class Machine>
struct GasMachineStreams : testing::Test {
  using AtHand = GasMachineAtHand<Machine>;
};
TYPED_TEST_SUITE(GasMachineStreams, GasMachines, GasMachineName);

TYPED_TEST(GasMachineStreams, One_inlet_and_one_exit_give_flow_conditions_and_fluid) {
  typename TestFixture::AtHand machine(gasPlant());
  EXPECT_EQ(machine->Size(), 1);
  const GasMachineData& data = machine.values();
  EXPECT_DOUBLE_EQ(data.inletVolumeFlow, 1500 / 0.1);
  EXPECT_DOUBLE_EQ(data.minInletPressure, 20);
  EXPECT_DOUBLE_EQ(data.maxExitPressure, 60);
  EXPECT_DOUBLE_EQ(data.minInletTemperature, 100);
  EXPECT_DOUBLE_EQ(data.maxExitTemperature, 300);
  EXPECT_DOUBLE_EQ(data.molecularWeight, 29);
  EXPECT_EQ(data.fluidType.view(), "Test Gas");
  EXPECT_TRUE(machine->Warnings().IsEmpty());
  EXPECT_TRUE(machine->Errors().IsEmpty());
}

TYPED_TEST(GasMachineStreams,
           Of_two_inlets_the_greater_flow_the_least_conditions_and_a_mean_count) {
  PlantJson plant = twoGasInlets();
  PlantJson& second = gasStream(plant, "S3");
  second["VAPOR MASS FLOW"] = {3000, "LB/H"};
  second["PRESSURE"] = {15, "PSI"};
  second["TEMPERATURE"] = {-40, "DEG F"};
  second["MOLECULAR WEIGHT"] = 31;
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_DOUBLE_EQ(machine.values().inletVolumeFlow, 30000);  // not 45,000
  EXPECT_DOUBLE_EQ(machine.values().minInletPressure, 15);
  EXPECT_DOUBLE_EQ(machine.values().minInletTemperature, -40);
  EXPECT_DOUBLE_EQ(machine.values().molecularWeight, 30);
}

TYPED_TEST(GasMachineStreams, The_mean_molecular_weight_runs_over_the_positive_ones) {
  PlantJson plant = twoGasInlets();
  for (const char* name : {"S4", "S5", "S6"}) plant["streams"][name] = plant["streams"]["S1"];
  gasItem(plant)["inlets"]["INLET"] = {"S1", "S3", "S4", "S5", "S6"};
  gasStream(plant, "S3")["MOLECULAR WEIGHT"] = 31;
  gasStream(plant, "S4")["MOLECULAR WEIGHT"] = -4;
  gasStream(plant, "S5").erase("MOLECULAR WEIGHT");
  gasStream(plant, "S6")["MOLECULAR WEIGHT"] = 36;
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_NEAR(machine.values().molecularWeight, (29 + 31 + 36) / 3.0, 1e-12);
}

TYPED_TEST(GasMachineStreams, A_vapor_without_density_counts_at_0_075) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S1").erase("VAPOR MASS DENSITY");
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().inletVolumeFlow, 1500 / 0.075);
}

TYPED_TEST(GasMachineStreams, A_negative_flow_or_density_is_no_flow) {
  for (const char* slot : {"VAPOR MASS FLOW", "VAPOR MASS DENSITY"}) {
    PlantJson plant = gasPlant();
    gasStream(plant, "S1")[slot] = -1;
    typename TestFixture::AtHand machine(plant);
    EXPECT_EQ(machine->Size(), 1);
    EXPECT_EQ(machine.values().inletVolumeFlow, 0.0) << slot;
  }
}

TYPED_TEST(GasMachineStreams, A_missing_or_negative_inlet_pressure_is_not_the_least) {
  PlantJson plant = twoGasInlets();
  gasStream(plant, "S3")["PRESSURE"] = {-3, "PSI"};
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().minInletPressure, 20);
}

TYPED_TEST(GasMachineStreams, An_inlet_temperature_counts_above_minus_10000) {
  const std::pair<double, double> rows[] = {{-10001, 100}, {-10000, 100}, {-9999.5, -9999.5}};
  for (const auto& [given, expected] : rows) {
    PlantJson plant = twoGasInlets();
    gasStream(plant, "S3")["TEMPERATURE"] = {given, "DEG F"};
    typename TestFixture::AtHand machine(plant);
    machine->Size();
    EXPECT_DOUBLE_EQ(machine.values().minInletTemperature, expected);
  }
}

TYPED_TEST(GasMachineStreams, An_exit_temperature_counts_below_10000) {
  const std::pair<double, double> rows[] = {{10001, 300}, {10000, 300}, {9999.5, 9999.5}};
  for (const auto& [given, expected] : rows) {
    PlantJson plant = twoGasExits();
    gasStream(plant, "S4")["TEMPERATURE"] = {given, "DEG F"};
    typename TestFixture::AtHand machine(plant);
    machine->Size();
    EXPECT_DOUBLE_EQ(machine.values().maxExitTemperature, expected);
  }
}

TYPED_TEST(GasMachineStreams, Over_the_exits_the_greatest_pressure_and_temperature_count) {
  PlantJson plant = twoGasExits();
  gasStream(plant, "S4")["PRESSURE"] = {75, "PSI"};
  gasStream(plant, "S2")["TEMPERATURE"] = {-20, "DEG F"};
  gasStream(plant, "S4")["TEMPERATURE"] = {-50, "DEG F"};
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().maxExitPressure, 75);
  EXPECT_DOUBLE_EQ(machine.values().maxExitTemperature, -20);
}

TYPED_TEST(GasMachineStreams, Temperatures_stay_unset_when_no_stream_has_one) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S1").erase("TEMPERATURE");
  gasStream(plant, "S2").erase("TEMPERATURE");
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_EQ(machine.values().minInletTemperature, 0.0);
  EXPECT_EQ(machine.values().maxExitTemperature, 0.0);
  EXPECT_EQ(machine.values().designInletTemperature, 0.0);
  EXPECT_EQ(machine.values().designExitTemperature, 0.0);
}

TYPED_TEST(GasMachineStreams, The_fluid_is_that_of_the_last_exit) {
  PlantJson plant = twoGasExits();
  gasStream(plant, "S4")["PRIMARY FLUID COMPONENT"] = "Steam";
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_EQ(machine.values().fluidType.view(), "Steam");
}

TYPED_TEST(GasMachineStreams, A_last_exit_without_fluid_gives_inorganic_gas) {
  PlantJson plant = twoGasExits();
  gasStream(plant, "S4").erase("PRIMARY FLUID COMPONENT");
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_EQ(machine.values().fluidType.view(), "Inorganic Gas");
}

TYPED_TEST(GasMachineStreams, Without_an_exit_there_is_no_fluid_and_nothing_to_ask_of_it) {
  PlantJson plant = gasPlant();
  gasItem(plant)["exits"] = PlantJson::object();
  gasBlock(plant)["Exit pressure -gauge"] = {60, "PSI"};
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_TRUE(machine.values().fluidType.empty());
  EXPECT_EQ(machine.values().inletCompressibility, 0.0);
  EXPECT_EQ(machine.values().exitCompressibility, 0.0);
  EXPECT_EQ(machine.values().specificHeatRatio, 0.0);
}

TYPED_TEST(GasMachineStreams, A_stream_that_cannot_be_opened_is_passed_over) {
  PlantJson plant = twoGasInlets();
  gasItem(plant)["inlets"]["INLET"] = {"GHOST", "NONE", "S1"};
  gasItem(plant)["exits"]["OUTLET"] = {"S2", "GHOST"};
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_DOUBLE_EQ(machine.values().inletVolumeFlow, 15000);
  EXPECT_EQ(machine.values().fluidType.view(), "Test Gas");
}

// --- Phases that do not belong ------------------------------------------------------------------

struct PhaseRow {
  const char* stream;
  const char* slot;
  const char* warning;
  const char* shown;
};
constexpr PhaseRow kPhases[] = {
    {"S1", "LIQUID MASS FLOW",
     "Inlet stream(s) may contain liquid phase. Please check inlet stream(s)",
     "Inlet streams(s) may contain liquid phase. Please check inlet stream(s)"},
    {"S1", "SOLID MASS FLOW",
     "Inlet stream(s) may contain solid phase. Please check inlet stream(s)",
     "Inlet stream(s) may contain solid phase. Please check inlet stream(s)"},
    {"S2", "LIQUID MASS FLOW",
     "Exit stream(s) may contain liquid phase. Please check exit stream(s)",
     "Exit stream(s) may contain liquid phase. Please check exit stream(s)"},
    {"S2", "SOLID MASS FLOW", "Exit stream(s) may contain solid phase. Please check exit stream(s)",
     "Exit stream(s) may contain solid phase. Please check exit stream(s)"},
};

TYPED_TEST(GasMachineStreams, Liquid_or_solid_is_warned_of) {
  for (const PhaseRow& row : kPhases) {
    PlantJson plant = gasPlant();
    gasStream(plant, row.stream)[row.slot] = {0.5, "LB/H"};
    for (const int interactive : {0, 1}) {
      typename TestFixture::AtHand machine(plant, interactive);
      EXPECT_EQ(machine->Size(), 1);
      ASSERT_EQ(machine->Warnings().GetLength(), 1) << row.warning;
      EXPECT_STREQ(machine->Warnings().GetTextAt(0), row.warning);
      const std::vector<std::string> shown = machine.plant.dialogTexts();
      EXPECT_EQ(shown, interactive != 0 ? std::vector<std::string>{row.shown}
                                        : std::vector<std::string>{});
    }
  }
}

TYPED_TEST(GasMachineStreams, A_negative_liquid_or_solid_flow_is_none) {
  for (const PhaseRow& row : kPhases) {
    PlantJson plant = gasPlant();
    gasStream(plant, row.stream)[row.slot] = {-0.5, "LB/H"};
    typename TestFixture::AtHand machine(plant);
    machine->Size();
    EXPECT_TRUE(machine->Warnings().IsEmpty()) << row.warning;
  }
}

TYPED_TEST(GasMachineStreams, One_wet_stream_of_two_is_enough_for_one_warning) {
  PlantJson plant = twoGasExits();
  gasStream(plant, "S2")["LIQUID MASS FLOW"] = {1, "LB/H"};
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_EQ(machine->Warnings().GetLength(), 1);
  EXPECT_TRUE(machine.warned(kPhases[2].warning));
}

// --- Which streams ------------------------------------------------------------------------------

std::vector<std::string> namesIn(void* list) {
  std::vector<std::string> names;
  for (int i = 0; i < list2_length(list); ++i) names.emplace_back(list2_get_item(list, i, nullptr));
  return names;
}

TYPED_TEST(GasMachineStreams, Exits_are_those_of_the_outlet_and_then_those_of_the_drain) {
  PlantJson plant = twoGasExits();
  gasItem(plant)["exits"] = {{"DRAIN", {"S4"}}, {"OUTLET", {"S2"}}};
  gasRecord(plant)["Exit stream"] = "S1";
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->GetStreamInfo(), 1);
  EXPECT_EQ(namesIn(machine->exits()), (std::vector<std::string>{"S2", "S4"}));
}

TYPED_TEST(GasMachineStreams, Without_connections_the_slots_name_the_streams) {
  PlantJson plant = gasPlant();
  gasItem(plant)["inlets"] = PlantJson::object();
  gasItem(plant)["exits"] = {{"SIDE", {"S1"}}};
  gasRecord(plant)["Inlet stream"] = "S1";
  gasRecord(plant)["Exit stream"] = "S2";
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->GetStreamInfo(), 1);
  EXPECT_EQ(namesIn(machine->inlets()), (std::vector<std::string>{"S1"}));
  EXPECT_EQ(namesIn(machine->exits()), (std::vector<std::string>{"S2"}));
}

TYPED_TEST(GasMachineStreams, Lists_that_hold_streams_stay) {
  typename TestFixture::AtHand machine(twoGasInlets());
  void* given = list2_create();
  list2_append_to_end(given, "S3");
  EXPECT_EQ(machine->SetInletStreams(given), 1);
  EXPECT_EQ(machine->SetExitStreams(given), 1);
  EXPECT_EQ(machine->GetStreamInfo(), 1);
  EXPECT_EQ(namesIn(machine->inlets()), (std::vector<std::string>{"S3"}));
  EXPECT_EQ(namesIn(machine->exits()), (std::vector<std::string>{"S3"}));
}

TYPED_TEST(GasMachineStreams, Without_an_inlet_nothing_is_sized) {
  PlantJson plant = gasPlant();
  gasItem(plant)["inlets"] = PlantJson::object();
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->GetStreamInfo(), 0);
  EXPECT_EQ(machine->Size(), 0);
  EXPECT_EQ(machine.values().maxExitPressure, 0.0);
  EXPECT_TRUE(machine->Errors().IsEmpty());
}

}  // namespace
}  // namespace sizewright
