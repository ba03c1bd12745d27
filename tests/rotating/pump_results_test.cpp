#include <gtest/gtest.h>

#include "rotating/pump_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

TEST(PumpResults, Are_written_in_customary_units) {
  Plant plant = pumpPlant();
  plant["criteria"]["*"]["Pump overdesign factor"] = 1.25;
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_EQ(pump->SaveParameters(), 1);
  EXPECT_NEAR(pump.number("CpDesignGaugePressure"), 145 - kStandardAtmosphere, 1e-9);
  EXPECT_EQ(pump.units("CpDesignGaugePressure"), "PSIG");
  EXPECT_NEAR(pump.number("CpDesignTemperature"), 160, 1e-9);
  EXPECT_EQ(pump.units("CpDesignTemperature"), "DEG F");
  EXPECT_EQ(pump.number("Pump overdesign factor"), 1.25);
  EXPECT_EQ(pump.number("CpPumpEfficiencyPercent"), 70);
  EXPECT_EQ(pump.units("CpPumpEfficiencyPercent"), "PERCENT");
  EXPECT_EQ(pump.number("PUMP FRACTIONAL EFFICIENCY"), 0.7);
  EXPECT_DOUBLE_EQ(pump.number("CpLiquidFlowrate"), 250);
  EXPECT_EQ(pump.units("CpLiquidFlowrate"), "CFH");
  EXPECT_DOUBLE_EQ(pump.number("CpFluidHead"), 100 * 2.31 / (50 / kWater));
  EXPECT_EQ(pump.units("CpFluidHead"), "FEET");
  EXPECT_DOUBLE_EQ(pump.number("CpFluidSpecificGravity"), 50 / kWater);
  EXPECT_EQ(pump.number("CpFluidViscosity"), 0.5);
  EXPECT_EQ(pump.units("CpFluidViscosity"), "CPOISE");
  for (const char* absent : {"CpDriverPower", "CpNumberItems", "Error"}) {
    EXPECT_FALSE(pump.has(absent)) << absent;
  }
  EXPECT_NEAR(pump.values().designPressure, 145, 1e-9);  // back in PSI
}

TEST(PumpResults, Are_written_in_metric_units_in_a_metric_project) {
  Plant plant = pumpPlant();
  plant["units"] = "metric";
  PumpAtHand pump(plant);
  pump->Size();
  pump->SaveParameters();
  EXPECT_EQ(pump.units("CpDesignGaugePressure"), "KPA");
  EXPECT_NEAR(pump.number("CpDesignGaugePressure"), 145 * 6.894757293168361, 1e-6);
  EXPECT_EQ(pump.units("CpDesignTemperature"), "DEG C");
  EXPECT_NEAR(pump.number("CpDesignTemperature"), (160 - 32) / 1.8, 1e-9);
  EXPECT_EQ(pump.units("CpLiquidFlowrate"), "M3/H");
  EXPECT_NEAR(pump.number("CpLiquidFlowrate"), 200 * 0.028316846592, 1e-9);
  EXPECT_EQ(pump.units("CpFluidHead"), "M");
  EXPECT_EQ(pump.units("CpFluidViscosity"), "MPA-S");
  EXPECT_NEAR(pump.number("CpFluidViscosity"), 0.5, 1e-12);
}

TEST(PumpResults, A_stock_pump_is_written_with_its_mass_flow) {
  Plant plant = pumpPlant();
  itemOf(plant)["item"] = "HD STOCK";
  PumpAtHand customary(plant);
  customary->Size();
  customary->SaveParameters();
  EXPECT_DOUBLE_EQ(customary.number("CpStockFlowrateAD"), 10000);
  EXPECT_EQ(customary.units("CpStockFlowrateAD"), "LB/H");
  EXPECT_FALSE(customary.has("CpLiquidFlowrate"));

  plant["units"] = "metric";
  PumpAtHand metric(plant);
  metric->Size();
  metric->SaveParameters();
  EXPECT_NEAR(metric.number("CpStockFlowrateAD"), 4535.9237, 1e-6);
  EXPECT_EQ(metric.units("CpStockFlowrateAD"), "KG/H");
}

TEST(PumpResults, Without_capacity_there_is_an_error_and_no_flow) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S1").erase("LIQUID MASS FLOW");
  PumpAtHand pump(plant);
  pump->Size();
  pump->SaveParameters();
  EXPECT_EQ(pump.text("Error"),
            "This item cannot be sized because of incomplete information.\n"
            "Capacity cannot be calculated. Please check flow rates.");
  EXPECT_FALSE(pump.has("CpLiquidFlowrate"));
  EXPECT_TRUE(pump.has("CpDesignGaugePressure"));
}

TEST(PumpResults, Zero_head_and_viscosity_are_not_written) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S2")["PRESSURE"] = {20, "PSI"};
  slotsOf(plant, "S1").erase("LIQUID VISCOSITY");
  PumpAtHand pump(plant);
  pump->Size();
  pump->SaveParameters();
  EXPECT_FALSE(pump.has("CpFluidHead"));
  EXPECT_FALSE(pump.has("CpFluidViscosity"));
}

TEST(PumpResults, The_number_of_items_is_written_as_text_above_1) {
  struct Row {
    const char* given;
    const char* written;
  };
  for (const Row& row : {Row{"1", ""}, Row{"2", "2"}, Row{"3.9", "3"}}) {
    PumpAtHand pump(pumpPlant());
    pump->GetLastInfo();
    setForm(*pump.object, {{"Inlet Stream", "S1"}, {"CpNumberItems", row.given}});
    pump->Size();
    pump->SaveParameters();
    EXPECT_EQ(pump.text("CpNumberItems"), row.written);
    EXPECT_EQ(pump.has("CpNumberItems"), *row.written != '\0');
  }
}

TEST(PumpResults, Before_sizing_the_design_conditions_are_written_even_at_0) {
  PumpAtHand pump(pumpPlant());
  pump->SaveParameters();
  EXPECT_NEAR(pump.number("CpDesignGaugePressure"), -kStandardAtmosphere, 1e-9);
  EXPECT_EQ(pump.number("CpDesignTemperature"), 0.0);
  EXPECT_FALSE(pump.has("Pump overdesign factor"));
}

TEST(PumpResults, Progress_tells_the_end_of_writing) {
  PumpAtHand pump(pumpPlant());
  pump->SaveParameters();
  const auto lines = pump.plant.progress();
  ASSERT_GE(lines.size(), 2u);
  EXPECT_EQ(lines[lines.size() - 2],
            (std::pair<int, std::string>(90, "Completed writing results to the file.")));
  EXPECT_EQ(lines.back(), (std::pair<int, std::string>(95, "Closing pump expert sizing module.")));
}

TEST(PumpResults, Ports_are_rewritten_for_the_streams_of_the_form) {
  Plant plant = pumpPlant();
  plant["streams"]["S3"] = plant["streams"]["S1"];
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  setForm(*pump.object, {{"Inlet Stream", "S3"}, {"Outlet Stream", "S2"}});
  EXPECT_EQ(pump->UpdateConnectivity(), 1);
  EXPECT_EQ(pump.text("__STREAMS__IN"), "_in__1");  // kept: "_in_", then "_" and the number
  EXPECT_EQ(pump.text("__STREAMS__EX"), "_ex__1");
  EXPECT_EQ(pump.text("_in__1"), "S3\nPROCESS\nINLET");
  EXPECT_EQ(pump.text("_ex__1"), "S2\nPROCESS\nOUTLET");
  EXPECT_FALSE(pump.has("_in_1"));
}

TEST(PumpResults, Without_lists_the_ports_stay) {
  PumpAtHand pump(pumpPlant());
  EXPECT_EQ(pump->UpdateConnectivity(), 1);
  EXPECT_EQ(pump.text("__STREAMS__IN"), "_in_1");
  EXPECT_EQ(pump.text("_in_1"), "S1\nPROCESS\nINLET");
}

TEST(PumpResults, Commit_tells_whether_the_project_took_the_messages) {
  Plant plant = pumpPlant();
  PumpAtHand kept(plant);
  kept->Size();
  EXPECT_EQ(kept->Commit(), 1);
  itemOf(plant)["project"] = nullptr;
  PumpAtHand without(plant);
  without->Size();
  EXPECT_EQ(without->Commit(), 0);
  EXPECT_TRUE(without.has("CpLiquidFlowrate"));
}

}  // namespace
}  // namespace sizewright
