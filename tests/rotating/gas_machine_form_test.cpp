#include <cmath>
#include <sstream>

#include "rotating/gas_machine_plant.h"

namespace sizewright {
namespace {

using Form = std::vector<std::pair<std::string, std::string>>;

template <class Machine>
struct GasMachineForm : testing::Test {
  using AtHand = GasMachineAtHand<Machine>;
};
TYPED_TEST_SUITE(GasMachineForm, GasMachines, GasMachineName);

/// Gives every field that a form shows a value.
void fill(GasMachineData& data) {
  data.capacity = 6000;
  data.overdesignFactor = 1.25;
  data.driverPower = 100;
  data.inletCompressibility = 0.75;
  data.exitCompressibility = 0.5;
  data.specificHeatRatio = 1.375;
  data.minInletTemperature = 68;
  data.maxExitTemperature = -40;
  data.maxExitPressure = 80;
  data.fluidType = std::string_view("Air");
}

struct ShownRow {
  const char* label;
  double customary;
  double metric;
  const char* customaryUnit;  // empty for a plain number
  const char* metricUnit;
};
// In the order of the form, after the streams and before the fluid. 1 CF is 0.028316846592 M3, 1 HP
// 0.74569987158227 KW, 1 PSI 6.894757293168 KPA.
constexpr ShownRow kShown[] = {
    {"CpActualGasFlowrateInlet", 100, 6000 * 0.028316846592, "CFM", "M3/H"},
    {"Capacity Overdesign Factor", 1.25, 1.25, "", ""},
    {"CpDriverPower", 100, 74.569987158227, "HP", "KW"},
    {"CpCompressibilityFactorInlet", 0.75, 0.75, "", ""},
    {"CpCompressibilityFactorOutlet", 0.5, 0.5, "", ""},
    {"CpSpecificHeatRatio", 1.375, 1.375, "", ""},
    {"Minimum Inlet Temperature", 68, 20, "DEG F", "DEG C"},
    {"Maximum Exit Temperature", -40, -40, "DEG F", "DEG C"},
    {"Maximum Exit Pressure", 80, 80 * 6.894757293168, "PSI", "KPA"},
};

void expectShown(const std::pair<std::string, std::string>& row, const char* label, double number,
                 const std::string& unit) {
  EXPECT_EQ(row.first, label);
  std::istringstream text(row.second);
  double shown = 0.0;
  text >> shown;
  std::string rest;
  std::getline(text, rest);
  std::getline(text, rest);
  EXPECT_NEAR(shown, number, 1e-9 * std::abs(number)) << label;
  EXPECT_EQ(row.second.find('\n') != std::string::npos, !unit.empty()) << label;
  EXPECT_EQ(unit.empty() ? "" : rest, unit) << label;
}

TYPED_TEST(GasMachineForm, The_form_shows_streams_numbers_and_fluid_in_the_projects_units) {
  for (const bool metric : {false, true}) {
    PlantJson plant = gasPlant();
    plant["units"] = metric ? "metric" : "customary";
    typename TestFixture::AtHand machine(plant);
    machine->GetStreamInfo();
    fill(machine->data());
    const Form form = formOf(*machine.object);
    ASSERT_EQ(form.size(), 2 + std::size(kShown) + 1);
    EXPECT_EQ(form[0], (std::pair<std::string, std::string>("Inlet Stream", "S1")));
    EXPECT_EQ(form[1], (std::pair<std::string, std::string>("Outlet Stream", "S2")));
    for (std::size_t i = 0; i < std::size(kShown); ++i) {
      const ShownRow& row = kShown[i];
      expectShown(form[2 + i], row.label, metric ? row.metric : row.customary,
                  metric ? row.metricUnit : row.customaryUnit);
    }
    EXPECT_EQ(form.back(), (std::pair<std::string, std::string>("Fluid", "Air")));
  }
}

TYPED_TEST(GasMachineForm, The_form_leaves_out_what_is_0_or_empty) {
  typename TestFixture::AtHand machine(gasPlant());
  CStrList names = {"old"};
  CStrList texts = {"old"};
  EXPECT_EQ(machine->ReturnValues(names, texts), 1);
  EXPECT_TRUE(names.IsEmpty());
  EXPECT_TRUE(texts.IsEmpty());
}

TEST(CompressorForm, The_intercooler_temperature_comes_last) {
  for (const bool metric : {false, true}) {
    PlantJson plant = gasPlant();
    plant["units"] = metric ? "metric" : "customary";
    CompressorAtHand compressor(plant);
    compressor->data().fluidType = std::string_view("Air");
    compressor->data().intercoolerTemperature = 104;
    const Form form = formOf(*compressor.object);
    ASSERT_EQ(form.size(), 2U);
    EXPECT_EQ(form[0].first, "Fluid");
    expectShown(form[1], "CpIntercoolerOutletTemperature", metric ? 40 : 104,
                metric ? "DEG C" : "DEG F");
  }
}

TEST(CompressorForm, The_labels_go_with_the_category) {
  CompressorAtHand expander(gasPlant("DTUR", "TURBOEXP"));
  fill(expander->data());
  EXPECT_EQ(formValue(*expander.object, "CpPowerOutput"), "100\nHP");
  EXPECT_EQ(formValue(*expander.object, "CpDriverPower"), "");
  CompressorAtHand fan(gasPlant("EFN", "CENTRIF"));
  fill(fan->data());
  EXPECT_EQ(formValue(*fan.object, "CpActualGasFlowrate"), "100\nCFM");
}

// --- Several streams ----------------------------------------------------------------------------

constexpr const char* kInletDialog =
    "WARNING COMPRESSOR SIZING: Multiple Inlet Streams Found \nThe Interactive Sizer has selected "
    "Cold gas as the inlet stream based on the criteria \nthat this is the stream with the maximum "
    "total mass flow rate \nPlease verify inlet stream selection.";
constexpr const char* kExitDialog =
    "WARNING COMPRESSOR SIZING: Multiple Exit Streams Found \nThe Interactive Sizer has selected "
    "S4 as the outlet stream based on the criteria \nthat this is the stream with the maximum "
    "total mass flow rate \nPlease verify outlet stream selection.";

TYPED_TEST(GasMachineForm, Of_several_streams_the_one_of_the_greatest_mass_flow_is_shown) {
  for (const int interactive : {0, 1}) {
    PlantJson plant = twoGasInlets();
    plant["streams"]["S4"] = plant["streams"]["S2"];
    gasItem(plant)["exits"]["OUTLET"] = {"S2", "S4"};
    plant["streams"]["S3"]["display"] = "Cold gas";
    gasStream(plant, "S3")["TOTAL MASS FLOW"] = {1501, "LB/H"};
    gasStream(plant, "S4")["TOTAL MASS FLOW"] = {1501, "LB/H"};
    typename TestFixture::AtHand machine(plant, interactive);
    machine->GetStreamInfo();
    EXPECT_EQ(formValue(*machine.object, "Inlet Stream"), "S3");
    EXPECT_STREQ(list2_get_item(machine->inlets(), 0, nullptr), "S3");
    EXPECT_STREQ(list2_get_item(machine->exits(), 0, nullptr), "S4");
    EXPECT_EQ(machine.plant.dialogTexts(),
              interactive != 0 ? (std::vector<std::string>{kInletDialog, kExitDialog})
                               : std::vector<std::string>{});
    EXPECT_TRUE(machine->Warnings().IsEmpty());  // shown only
  }
}

// --- Form in ------------------------------------------------------------------------------------

struct TakenRow {
  const char* label;
  const char* text;
  double GasMachineData::*field;
  double expected;
};
constexpr TakenRow kTaken[] = {
    {"Capacity Overdesign Factor", "1.5", &GasMachineData::overdesignFactor, 1.5},
    {"CpActualGasFlowrateInlet", "100\nCFM", &GasMachineData::capacity, 6000},
    {"CpActualGasFlowrateInlet", "700", &GasMachineData::capacity, 700},
    {"CpDriverPower", "74.569987158227\nKW", &GasMachineData::driverPower, 100},
    {"CpSpecificHeatRatio", "1.5", &GasMachineData::specificHeatRatio, 1.5},
    {"CpSpecificHeatRatio", "1.001", &GasMachineData::specificHeatRatio, 1.001},
    {"CpCompressibilityFactorInlet", "0.875", &GasMachineData::inletCompressibility, 0.875},
    {"CpCompressibilityFactorOutlet", "0.625", &GasMachineData::exitCompressibility, 0.625},
};

TYPED_TEST(GasMachineForm, Positive_numbers_are_taken) {
  for (const TakenRow& row : kTaken) {
    typename TestFixture::AtHand machine(gasPlant());
    fill(machine->data());
    EXPECT_EQ(setForm(*machine.object, {{row.label, row.text}}), 1);
    EXPECT_NEAR(machine.values().*row.field, row.expected, 1e-9 * row.expected) << row.label;
    EXPECT_TRUE(machine->Warnings().IsEmpty());
  }
}

TYPED_TEST(GasMachineForm, Numbers_that_are_absent_or_not_positive_or_no_numbers_change_nothing) {
  for (const TakenRow& row : kTaken) {
    for (const char* text : {"0", "-3", "many", ""}) {
      typename TestFixture::AtHand machine(gasPlant());
      fill(machine->data());
      const double before = machine.values().*row.field;
      setForm(*machine.object, {{row.label, text}});
      EXPECT_EQ(machine.values().*row.field, before) << row.label << ' ' << text;
      setForm(*machine.object, {{"Other", "1"}});
      EXPECT_EQ(machine.values().*row.field, before) << row.label;
    }
  }
}

TYPED_TEST(GasMachineForm, A_ratio_of_1_or_less_is_refused) {
  const std::pair<const char*, const char*> rows[] = {
      {"1.0", "1.00"}, {"0.456", "0.46"}, {"0", "0.00"}, {"-2", "-2.00"}};
  for (const auto& [given, shown] : rows) {
    typename TestFixture::AtHand machine(gasPlant(), 1);
    setForm(*machine.object, {{"CpSpecificHeatRatio", given}});
    const std::string text = std::string("Input Cp/Cv (") + shown +
                             ") is <= 1.00 . This input is invalid and hence ignored. Cp/Cv is "
                             "estimated by the sizing expert.";
    EXPECT_EQ(machine->Warnings().GetTextList('\n'), text);
    EXPECT_EQ(machine->Calculations().GetTextList('\n'), text);
    EXPECT_TRUE(machine.plant.dialogTexts().empty());
    EXPECT_EQ(machine.values().specificHeatRatio, 0.0);
    machine->Size();
    EXPECT_DOUBLE_EQ(machine.values().specificHeatRatio, 1.25);  // of Test Gas
  }
}

TYPED_TEST(GasMachineForm, The_streams_of_a_form_replace_those_at_hand) {
  typename TestFixture::AtHand machine(twoGasInlets());
  machine->GetStreamInfo();
  setForm(*machine.object, {{"Inlet Stream", "S3"}, {"Outlet Stream", "S1"}});
  ASSERT_EQ(list2_length(machine->inlets()), 1);
  EXPECT_STREQ(list2_get_item(machine->inlets(), 0, nullptr), "S3");
  ASSERT_EQ(list2_length(machine->exits()), 1);
  EXPECT_STREQ(list2_get_item(machine->exits(), 0, nullptr), "S1");
  setForm(*machine.object, {{"Other", "1"}});
  EXPECT_EQ(list2_length(machine->inlets()), 0);
  EXPECT_EQ(list2_length(machine->exits()), 0);
}

TYPED_TEST(GasMachineForm, An_empty_form_changes_nothing) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->GetStreamInfo();
  CStrList some = {"Inlet Stream"};
  CStrList none;
  EXPECT_EQ(machine->SetValues(none, none), 0);
  EXPECT_EQ(machine->SetValues(some, none), 0);
  EXPECT_EQ(machine->SetValues(none, some), 0);
  EXPECT_EQ(list2_length(machine->inlets()), 1);
}

TYPED_TEST(GasMachineForm, A_form_that_comes_back_as_it_went_out_sizes_the_same) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->GetLastInfo();
  machine->Size();
  const double capacity = machine.values().capacity;
  setForm(*machine.object, formOf(*machine.object));
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_NEAR(machine.values().capacity, capacity, 1e-9 * capacity);
  EXPECT_DOUBLE_EQ(machine.values().specificHeatRatio, 1.25);
  EXPECT_TRUE(machine->Warnings().IsEmpty());
}

// --- Intercooler --------------------------------------------------------------------------------

constexpr const char* kIntercooler = "CpIntercoolerOutletTemperature";

PlantJson cooledPlant() {
  PlantJson plant = gasPlant();
  gasProject(plant)[kIntercooler] = {30, "DEG C"};
  gasBlock(plant)["INTERCOOLER TEMPERATURE (SIM)"] = {40, "DEG C"};
  return plant;
}

TEST(CompressorForm, The_intercooler_temperature_is_the_forms_the_projects_or_the_blocks) {
  PlantJson plant = cooledPlant();
  CompressorAtHand ofForm(plant);
  setForm(*ofForm.object, {{kIntercooler, "20\nDEG C"}});
  EXPECT_NEAR(ofForm.values().intercoolerTemperature, 68, 1e-9);

  CompressorAtHand plain(plant);
  setForm(*plain.object, {{kIntercooler, "-4"}});
  EXPECT_DOUBLE_EQ(plain.values().intercoolerTemperature, -4);

  CompressorAtHand ofProject(plant);
  setForm(*ofProject.object, {{"Other", "1"}});
  EXPECT_NEAR(ofProject.values().intercoolerTemperature, 86, 1e-9);

  gasProject(plant).erase(kIntercooler);
  CompressorAtHand ofBlock(plant);
  setForm(*ofBlock.object, {{kIntercooler, "0"}});
  EXPECT_NEAR(ofBlock.values().intercoolerTemperature, 104, 1e-9);

  CompressorAtHand missing(gasPlant());
  setForm(*missing.object, {{"Other", "1"}});
  EXPECT_EQ(missing.values().intercoolerTemperature, 0.0);
}

TEST(CompressorForm, An_intercooler_temperature_in_hand_outranks_the_form) {
  CompressorAtHand compressor(cooledPlant());
  compressor->data().intercoolerTemperature = -5;
  setForm(*compressor.object, {{kIntercooler, "20\nDEG C"}});
  EXPECT_DOUBLE_EQ(compressor.values().intercoolerTemperature, -5);
}

}  // namespace
}  // namespace sizewright
