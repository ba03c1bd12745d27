#include <gtest/gtest.h>

#include <sstream>

#include "rotating/pump_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;
using Rows = std::vector<std::pair<std::string, std::string>>;

std::vector<std::string> labelsOf(const Rows& rows) {
  std::vector<std::string> labels;
  for (const auto& [label, value] : rows) labels.push_back(label);
  return labels;
}

/// Number and unit of a form's value.
std::pair<double, std::string> measure(const std::string& value) {
  std::istringstream text(value);
  double number = 0.0;
  text >> number;
  text.get();
  std::string unit;
  std::getline(text, unit);
  return {number, unit};
}

Plant fullPump() {
  Plant plant = pumpPlant();
  itemOf(plant)["component"]["CpDriverPower"] = {10, "HP"};
  return plant;
}

constexpr double kGallonsPerCubicFoot = 1728.0 / 231.0;
constexpr double kLitresPerCubicFoot = 28.316846592;

TEST(PumpForm, Shows_every_field_in_order_with_customary_units) {
  PumpAtHand pump(fullPump());
  pump->GetLastInfo();
  pump->Size();
  const Rows rows = formOf(*pump.object);
  EXPECT_EQ(
      labelsOf(rows),
      (std::vector<std::string>{
          "Inlet Stream", "Outlet Stream", "Capacity Overdesign Factor", "CpFluidViscosity",
          "CpLiquidFlowrate", "CpDriverPower", "Design Pressure", "CpDesignTemperature",
          "CpFluidHead", "CpNumberItems", "CpPumpEfficiencyPercent", "CpFluidSpecificGravity"}));
  EXPECT_EQ(rows[0].second, "S1");
  EXPECT_EQ(rows[1].second, "S2");
  EXPECT_EQ(rows[2].second, "1");
  EXPECT_EQ(rows[3].second, "0.5\nCPOISE");
  EXPECT_EQ(measure(rows[4].second).second, "GPM");
  EXPECT_NEAR(measure(rows[4].second).first, 200 * kGallonsPerCubicFoot / 60, 1e-9);
  EXPECT_EQ(rows[5].second, "10\nHP");
  EXPECT_EQ(measure(rows[6].second).second, "PSI");
  EXPECT_NEAR(measure(rows[6].second).first, 145, 1e-9);
  EXPECT_EQ(rows[7].second, "160\nDEG F");
  EXPECT_EQ(measure(rows[8].second).second, "FEET");
  EXPECT_NEAR(measure(rows[8].second).first, 100 * 2.31 / (50 / kWater), 1e-9);
  EXPECT_EQ(rows[9].second, "1");
  EXPECT_EQ(rows[10].second, "70");
  EXPECT_NEAR(measure(rows[11].second).first, 50 / kWater, 1e-12);
}

TEST(PumpForm, Shows_metric_units_in_a_metric_project) {
  Plant plant = fullPump();
  plant["units"] = "metric";
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  pump->Size();
  struct Row {
    const char* label;
    double number;
    const char* units;
  };
  for (const Row& row : {Row{"CpFluidViscosity", 0.5, "MPA-S"},
                         Row{"CpLiquidFlowrate", 200 * kLitresPerCubicFoot / 3600, "L/S"},
                         Row{"CpDriverPower", 10 * 0.745699871582270, "KW"},
                         Row{"Design Pressure", 145 * 6.894757293168361, "KPA"},
                         Row{"CpDesignTemperature", (160 - 32) / 1.8, "DEG C"},
                         Row{"CpFluidHead", 100 * 2.31 / (50 / kWater) * 0.3048, "M"}}) {
    const auto [number, units] = measure(formValue(*pump.object, row.label));
    EXPECT_EQ(units, row.units) << row.label;
    EXPECT_NEAR(number, row.number, 1e-9 * row.number) << row.label;
  }
}

TEST(PumpForm, Leaves_out_what_is_0) {
  PumpAtHand pump(pumpPlant());
  pump->GetLastInfo();
  EXPECT_EQ(labelsOf(formOf(*pump.object)),
            (std::vector<std::string>{"Inlet Stream", "Outlet Stream", "Capacity Overdesign Factor",
                                      "CpNumberItems"}));
}

TEST(PumpForm, Shows_the_mass_of_a_stock_pump_as_if_it_were_a_volume) {
  Plant plant = pumpPlant();
  itemOf(plant)["item"] = "HD STOCK";
  PumpAtHand pump(plant);
  pump->Size();
  const auto [number, units] = measure(formValue(*pump.object, "CpStockFlowrateAD"));
  EXPECT_EQ(units, "GPM");
  EXPECT_NEAR(number, 10000 * kGallonsPerCubicFoot / 60, 1e-8);
}

TEST(PumpForm, Empties_the_lists_first) {
  PumpAtHand pump(pumpPlant());
  CStrList names;
  CStrList values;
  names.Append("old");
  values.Append("old");
  pump->ReturnValues(names, values);
  EXPECT_EQ(names.IsMember("old"), 0);
  EXPECT_EQ(names.GetLength(), values.GetLength());
}

Plant severalStreams() {
  Plant plant = pumpPlant();
  plant["streams"]["S3"] = plant["streams"]["S1"];
  plant["streams"]["S3"]["slots"]["TOTAL MASS FLOW"] = {12000, "LB/H"};
  plant["streams"]["S3"]["display"] = "Big feed";
  plant["streams"]["S4"] = plant["streams"]["S2"];
  plant["streams"]["S4"]["slots"]["TOTAL MASS FLOW"] = {1, "LB/H"};
  itemOf(plant)["inlets"]["INLET"] = {"S1", "S3"};
  itemOf(plant)["exits"]["OUTLET"] = {"S2", "S4"};
  return plant;
}

TEST(PumpForm, Selects_the_stream_of_the_greatest_mass_flow_among_several) {
  PumpAtHand pump(severalStreams(), 1);
  pump->GetLastInfo();
  const Rows rows = formOf(*pump.object);
  EXPECT_EQ(rows[0].second, "S3");
  EXPECT_EQ(rows[1].second, "S4");
  EXPECT_EQ(pump.plant.dialogTexts(),
            (std::vector<std::string>{
                "PUMP SIZING: Multiple Inlet Streams Found \nThe Interactive Sizer has selected "
                "Big feed as the inlet stream based on the criteria \nthat this is the stream with "
                "the maximum total mass flow rate \nPlease verify inlet stream selection.",
                "PUMP SIZING: Multiple Exit Streams Found \nThe Interactive Sizer has selected S4 "
                "as the outlet stream based on the criteria \nthat this is the stream with the "
                "maximum total mass flow rate \nPlease verify outlet stream selection."}));
  EXPECT_TRUE(pump->Warnings().IsEmpty());  // shown only
  void* inlets = list2_create();
  pump->GetInletStreams(inlets);
  EXPECT_STREQ(list2_get_item(inlets, 0, nullptr), "S3");  // the first entry is replaced
  EXPECT_STREQ(list2_get_item(inlets, 1, nullptr), "S3");
  list2_delete(inlets);
}

TEST(PumpForm, Selects_without_a_dialog_when_unattended) {
  PumpAtHand pump(severalStreams(), 0);
  pump->GetLastInfo();
  EXPECT_EQ(formOf(*pump.object)[0].second, "S3");
  EXPECT_TRUE(pump.plant.dialogTexts().empty());
}

struct FormCase {
  const char* label;
  const char* given;
  double PumpData::*field;
  double expected;
};

class PumpFormIn : public testing::TestWithParam<FormCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryLabel, PumpFormIn,
    testing::Values(
        FormCase{"Capacity Overdesign Factor", "1.25", &PumpData::overdesignFactor, 1.25},
        FormCase{"Total Mass Flow", "1000\nKG/H", &PumpData::totalMassFlow, 1000 / 0.45359237},
        FormCase{"Total Volume Flow", "10\nM3/H", &PumpData::totalVolumeFlow,
                 10000 / kLitresPerCubicFoot},
        FormCase{"Minimum Fluid Density", "40\nPCF", &PumpData::minFluidDensity, 40},
        FormCase{"Minimum Fluid Molecular Weight", "18", &PumpData::minMolecularWeight, 18},
        FormCase{"Minimum Inlet Pressure", "30\nPSI", &PumpData::minInletPressure, 30},
        FormCase{"Maximum Exit Pressure", "90\nPSI", &PumpData::maxExitPressure, 90},
        FormCase{"Minimum Inlet Temperature", "50\nDEG C", &PumpData::minInletTemperature, 122},
        FormCase{"Maximum Exit Temperature", "60\nDEG F", &PumpData::maxExitTemperature, 60},
        FormCase{"Design Pressure", "200\nPSI", &PumpData::designPressure, 200},
        FormCase{"CpDesignTemperature", "300\nDEG F", &PumpData::designTemperature, 300},
        FormCase{"Fluid Density", "51\nPCF", &PumpData::fluidDensity, 51},
        FormCase{"CpLiquidFlowrate", "60\nGPM", &PumpData::capacity, 3600 / kGallonsPerCubicFoot},
        FormCase{"CpDriverPower", "7\nHP", &PumpData::driverPower, 7},
        FormCase{"CpFluidHead", "30.48\nM", &PumpData::fluidHead, 100},
        FormCase{"CpNumberItems", "3", &PumpData::numberItems, 3},
        FormCase{"CpPumpEfficiencyPercent", "66", &PumpData::efficiencyPercent, 66},
        FormCase{"CpFluidSpecificGravity", "0.77", &PumpData::specificGravity, 0.77},
        FormCase{"CpFluidViscosity", "4\nCPOISE", &PumpData::viscosity, 4}));

TEST_P(PumpFormIn, Is_taken_in_the_fields_unit) {
  PumpAtHand pump(pumpPlant());
  EXPECT_EQ(setForm(*pump.object, {{GetParam().label, GetParam().given}}), 1);
  EXPECT_NEAR(pump.values().*GetParam().field, GetParam().expected, 1e-9 * GetParam().expected);
}

bool keepsItsFieldWhenAbsent(const std::string& label) {
  return label == "Capacity Overdesign Factor" || label == "CpNumberItems";
}
bool takesTheNumberAsItStands(const std::string& label) {
  return keepsItsFieldWhenAbsent(label) || label == "Minimum Fluid Molecular Weight" ||
         label == "CpPumpEfficiencyPercent" || label == "CpFluidSpecificGravity";
}

TEST_P(PumpFormIn, Zeroes_its_field_when_absent) {
  PumpAtHand pump(pumpPlant());
  setForm(*pump.object, {{GetParam().label, GetParam().given}});
  setForm(*pump.object, {{"Inlet Stream", "S1"}});
  const double expected = keepsItsFieldWhenAbsent(GetParam().label) ? GetParam().expected : 0.0;
  EXPECT_EQ(pump.values().*GetParam().field, expected);
}

TEST_P(PumpFormIn, Without_a_unit_keeps_the_field_unless_it_has_none) {
  PumpAtHand pump(pumpPlant());
  setForm(*pump.object, {{GetParam().label, GetParam().given}});
  setForm(*pump.object, {{GetParam().label, "55"}});
  const double expected = takesTheNumberAsItStands(GetParam().label) ? 55 : GetParam().expected;
  EXPECT_NEAR(pump.values().*GetParam().field, expected, 1e-9 * expected);
}

TEST(PumpForm, A_factor_that_is_not_positive_does_not_count) {
  PumpAtHand pump(pumpPlant());
  setForm(*pump.object, {{"Capacity Overdesign Factor", "1.2"}});
  setForm(*pump.object, {{"Capacity Overdesign Factor", "0"}});
  EXPECT_EQ(pump.values().overdesignFactor, 1.2);
  setForm(*pump.object, {{"Capacity Overdesign Factor", "-2"}});
  EXPECT_EQ(pump.values().overdesignFactor, 1.2);
}

TEST(PumpForm, An_empty_form_changes_nothing) {
  PumpAtHand pump(pumpPlant());
  setForm(*pump.object, {{"Total Mass Flow", "5\nLB/H"}});
  EXPECT_EQ(setForm(*pump.object, {}), 0);
  EXPECT_EQ(pump.values().totalMassFlow, 5);
}

TEST(PumpForm, Takes_one_stream_a_direction) {
  PumpAtHand pump(severalStreams());
  pump->GetLastInfo();
  setForm(*pump.object, {{"Inlet Stream", "S1"}, {"Outlet Stream", "S2"}});
  void* streams = list2_create();
  pump->GetInletStreams(streams);
  EXPECT_EQ(list2_length(streams), 1);
  EXPECT_STREQ(list2_get_item(streams, 0, nullptr), "S1");
  pump->GetExitStreams(streams);
  EXPECT_EQ(list2_length(streams), 1);
  EXPECT_STREQ(list2_get_item(streams, 0, nullptr), "S2");
  setForm(*pump.object, {{"CpFluidHead", "1\nFEET"}});  // names no stream
  pump->GetInletStreams(streams);
  EXPECT_EQ(list2_length(streams), 0);
  list2_delete(streams);
}

TEST(PumpForm, Goes_round_without_changing_the_results) {
  PumpAtHand pump(pumpPlant());
  pump->GetLastInfo();
  pump->Size();
  const Rows first = formOf(*pump.object);
  setForm(*pump.object, first);
  pump->Size();
  const Rows second = formOf(*pump.object);
  ASSERT_EQ(labelsOf(first), labelsOf(second));
  for (std::size_t i = 2; i < first.size(); ++i) {
    EXPECT_NEAR(measure(second[i].second).first, measure(first[i].second).first,
                1e-9 * measure(first[i].second).first)
        << first[i].first;
  }
}

}  // namespace
}  // namespace sizewright
