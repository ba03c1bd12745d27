#include <gtest/gtest.h>

#include "rotating/pump_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr const char* kNoFlow =
    "No inlet flow specified. Cannot estimate pump capacity. Please check inlet stream.";
constexpr const char* kPowerNote =
    "Driver Power is not specified by the user, and will be estimated by the Vardex evaluation "
    "engine.";
constexpr const char* kHeadNote = "--------Calc. Pump head = (Pexit_max - Pin_min)*2.31/sp.grav)";

TEST(PumpHead, Is_2_31_feet_of_water_a_PSI_over_the_gravity) {
  EXPECT_DOUBLE_EQ(pumpHead(120, 20, 1.0), 231.0);
  EXPECT_DOUBLE_EQ(pumpHead(120, 20, 0.5), 462.0);
}

TEST(PumpSizing, A_pump_is_sized_from_its_streams) {
  PumpAtHand pump(pumpPlant());
  EXPECT_EQ(pump->Size(), 1);
  const double gravity = 50 / kWater;
  EXPECT_DOUBLE_EQ(pump.values().efficiencyPercent, 70);
  EXPECT_DOUBLE_EQ(pump.values().fractionalEfficiency, 0.7);
  EXPECT_DOUBLE_EQ(pump.values().specificGravity, gravity);
  EXPECT_DOUBLE_EQ(pump.values().fluidHead, 100 * 2.31 / gravity);
  EXPECT_DOUBLE_EQ(pump.values().capacity, 200);
  EXPECT_EQ(pump.values().driverPower, 0.0);
  EXPECT_TRUE(holds(pump->Calculations(), kHeadNote));
  EXPECT_TRUE(holds(pump->Calculations(),
                    "Calc Pump Capacity(      200.00 cuft/hr) = Vol Flowrate(      200.00 "
                    "cuft/hr)*OverDesignFactor((1.00 cuft/hr)"));
  EXPECT_TRUE(holds(pump->Notes(), kPowerNote));
}

TEST(PumpSizing, The_overdesign_factor_raises_the_capacity) {
  Plant plant = pumpPlant();
  plant["criteria"]["*"]["Pump overdesign factor"] = 1.25;
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().capacity, 250);
  EXPECT_TRUE(holds(pump->Calculations(),
                    "Calc Pump Capacity(      250.00 cuft/hr) = Vol Flowrate(      200.00 "
                    "cuft/hr)*OverDesignFactor((1.25 cuft/hr)"));
}

TEST(PumpSizing, A_stock_pump_is_rated_by_mass) {
  Plant plant = pumpPlant();
  itemOf(plant)["item"] = "HD STOCK";
  PumpAtHand pump(plant);
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().capacity, 10000);
}

struct PressureCase {
  double exit;
  const char* text;
};

class PumpWithoutHead : public testing::TestWithParam<PressureCase> {};
INSTANTIATE_TEST_SUITE_P(EqualAndBelow, PumpWithoutHead,
                         testing::Values(PressureCase{20, "\tMax. Exit pressure =  20.00PSI"},
                                         PressureCase{5.5, "\tMax. Exit pressure =   5.50PSI"}));

TEST_P(PumpWithoutHead, Is_warned_of) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S2")["PRESSURE"] = {GetParam().exit, "PSI"};
  PumpAtHand pump(plant, 1);
  EXPECT_EQ(pump->Size(), 1);
  EXPECT_EQ(pump.values().fluidHead, 0.0);
  const std::string text =
      "------Please check inlet and exit pressure conditions.------\n"
      "Exit P(max.) found to be <= Inlet P(min.)conditions. (Cannot estimate pump head)\n" +
      std::string(GetParam().text) + "\n\tMin. Inlet pressure =  20.00PSI";
  EXPECT_TRUE(holdsLines(pump->Warnings(), text));
  EXPECT_TRUE(holdsLines(pump->Calculations(), text));
  EXPECT_FALSE(holds(pump->Calculations(), kHeadNote));
  EXPECT_EQ(pump.plant.dialogTexts(), std::vector<std::string>{text});
}

TEST_P(PumpWithoutHead, Raises_no_warning_when_the_user_gives_one) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S2")["PRESSURE"] = {GetParam().exit, "PSI"};
  itemOf(plant)["component"]["CpFluidHead"] = {40, "FEET"};
  PumpAtHand pump(plant, 1);
  pump->GetLastInfo();
  pump->Size();
  EXPECT_EQ(pump.values().fluidHead, 40);
  EXPECT_TRUE(pump->Warnings().IsEmpty());
  EXPECT_TRUE(pump.plant.dialogTexts().empty());
}

TEST(PumpSizing, Without_flow_there_is_no_capacity) {
  Plant plant = pumpPlant();
  slotsOf(plant, "S1").erase("LIQUID MASS FLOW");
  PumpAtHand pump(plant, 1);
  EXPECT_EQ(pump->Size(), 1);
  EXPECT_EQ(pump.values().capacity, 0.0);
  EXPECT_TRUE(holds(pump->Warnings(), kNoFlow));
  EXPECT_TRUE(holds(pump->Calculations(), kNoFlow));
  EXPECT_EQ(pump.plant.dialogTexts(), std::vector<std::string>{kNoFlow});
}

TEST(PumpSizing, What_the_user_gives_stands) {
  Plant plant = pumpPlant();
  itemOf(plant)["component"] = {{"CpLiquidFlowrate", {321, "CFH"}},
                                {"CpDriverPower", {12, "HP"}},
                                {"CpFluidSpecificGravity", 0.9},
                                {"CpPumpEfficiencyPercent", 55}};
  PumpAtHand pump(plant);
  pump->GetLastInfo();
  pump->Size();
  EXPECT_DOUBLE_EQ(pump.values().capacity, 321);
  EXPECT_DOUBLE_EQ(pump.values().driverPower, 12);
  EXPECT_DOUBLE_EQ(pump.values().fractionalEfficiency, 0.55);
  EXPECT_DOUBLE_EQ(pump.values().fluidHead, 100 * 2.31 / 0.9);
  EXPECT_TRUE(pump->Notes().IsEmpty());
}

TEST(PumpSizing, Progress_tells_each_step) {
  PumpAtHand pump(pumpPlant());
  pump->Size();
  std::vector<std::string> sizing;
  for (const auto& [percent, text] : pump.plant.progress()) {
    if (percent >= 67) sizing.push_back(text);
  }
  EXPECT_EQ(sizing, (std::vector<std::string>{
                        "Checking process parameters.", "Obtaining liquid specific gravity.",
                        "Obtaining total head for pump.", "Calculating head.",
                        "Calculating pump capacity.", "Pump capacity calculated.",
                        "Checking driver power...", "Completed sizing of pump. "}));
}

TEST(PumpSizing, Initialize_restores_the_fresh_state) {
  PumpAtHand pump(pumpPlant());
  pump->GetLastInfo();
  pump->Size();
  EXPECT_EQ(pump->Initialize(), 1);
  EXPECT_EQ(pump.values().capacity, 0.0);
  EXPECT_EQ(pump.values().numberItems, 1.0);
  void* streams = list2_create();
  EXPECT_EQ(pump->GetInletStreams(streams), 0);  // the handle is cleared
  EXPECT_EQ(pump->GetExitStreams(streams), 0);
  list2_delete(streams);
  EXPECT_EQ(pump->Size(), 1);  // a first run again, which finds its streams
  EXPECT_DOUBLE_EQ(pump.values().capacity, 200);
}

TEST(PumpSizing, The_exit_list_stays_allocated_and_is_the_hosts_to_reclaim) {
  TestPlant plant(pumpPlant().dump());
  auto pump = plant.make<CPumpObj>("P-101");
  pump->Size();
  const std::size_t before = plant.host().lists().live();
  pump->Initialize();
  EXPECT_EQ(plant.host().lists().live(), before - 1);  // kept: only the inlet list goes
}

TEST(PumpSizing, A_copy_shares_data_streams_and_first_run) {
  TestPlant plant(pumpPlant().dump());
  const auto pump = plant.make<CPumpObj>("P-101");
  pump->Size();
  const CPumpObj copy(*pump);
  EXPECT_EQ(&copy.values(), &pump->values());
  const CPumpObj fresh(static_cast<const CSizeEquip&>(*pump));
  EXPECT_EQ(fresh.values().capacity, 0.0);
  EXPECT_EQ(fresh.values().numberItems, 1.0);
}

}  // namespace
}  // namespace sizewright
