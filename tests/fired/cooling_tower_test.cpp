#include <algorithm>

#include "rotating/gas_machine_plant.h"
#include "sizewright/embedded/registry.h"

// Where a cooling tower differs from a compressor. What the two share is tested on both, with the
// gas machines.

namespace sizewright {
namespace {

TEST(CoolingTower, Is_made_by_its_name) {
  EXPECT_EQ(equipmentClassName("CCoolTwObj", "ECT", ""), "CCoolTwObj");
  const EquipmentClass* found = findEquipmentClass("CCoolTwObj");
  ASSERT_NE(found, nullptr);
  TestPlant plant(gasPlant().dump());
  plant.select("C-101");
  DesignForm form;
  form.project = plant.host().project();
  form.simCase = plant.host().simCase();
  const std::unique_ptr<CSizeEquip> object = found->design(form);
  ASSERT_NE(dynamic_cast<CCoolTwObj*>(object.get()), nullptr);
  EXPECT_EQ(object->Size(), 1);
  EXPECT_DOUBLE_EQ(dynamic_cast<CCoolTwObj&>(*object).values().capacity, 15000 * 1.1);
  EXPECT_EQ(found->initialize(*object), 1);
  EXPECT_EQ(dynamic_cast<CCoolTwObj&>(*object).values().capacity, 0.0);
}

TEST(CoolingTower, Knows_no_expander) {
  PlantJson plant = gasPlant("DTUR", "TURBOEXP");
  gasBlock(plant)["ISENTROPIC EFF. (SIM)"] = 72;
  gasBlock(plant)["INLET COMPR. FACTOR"] = 0.8;
  CoolingTowerAtHand rising(plant);
  rising->GetLastInfo();
  EXPECT_DOUBLE_EQ(rising.values().inletCompressibility, 0.8);
  EXPECT_EQ(rising->Size(), 1);
  rising->SaveParameters();
  EXPECT_FALSE(rising.has("CpIsentropicEfficiency"));

  gasStream(plant, "S2")["PRESSURE"] = {10, "PSI"};
  CoolingTowerAtHand falling(plant, 1);
  EXPECT_EQ(falling->Size(), 0);
  ASSERT_EQ(falling.plant.host().log().dialogs().size(), 1U);
  EXPECT_FALSE(falling.plant.host().log().dialogs()[0].isBox);
  EXPECT_TRUE(holds(falling->Errors(), "Compressor cannot be sized with these inputs."));
}

TEST(CoolingTower, Reads_no_stream_type) {
  for (const char* type : {"HEAT", "WORK"}) {
    PlantJson plant = gasPlant();
    gasStream(plant, "S1")["Stream Type"] = type;
    gasStream(plant, "S2")["Stream Type"] = type;
    CoolingTowerAtHand tower(plant);
    EXPECT_EQ(tower->Size(), 1);
    EXPECT_DOUBLE_EQ(tower.values().inletVolumeFlow, 15000);
    EXPECT_DOUBLE_EQ(tower.values().maxExitPressure, 60);
  }
}

TEST(CoolingTower, Takes_compressibility_and_Cp_over_Cv_from_the_fluid_not_the_streams) {
  PlantJson plant = gasPlant();
  for (const char* stream : {"S1", "S2"}) {
    gasStream(plant, stream)["Z_TOTAL (SIM)"] = 0.5;
    gasStream(plant, stream)["Z_VAPOR (SIM)"] = 0.6;
    gasStream(plant, stream)["Specific heat ratio"] = 1.6;
  }
  CoolingTowerAtHand tower(plant);
  tower->Size();
  EXPECT_DOUBLE_EQ(tower.values().inletCompressibility, 0.9);  // of Test Gas
  EXPECT_DOUBLE_EQ(tower.values().exitCompressibility, 0.9);
  EXPECT_DOUBLE_EQ(tower.values().specificHeatRatio, 1.25);
}

TEST(CoolingTower, Reports_nothing_of_stream_averages) {
  const auto textsOf = [](auto&& machine) {
    std::vector<std::string> texts;
    for (const auto& [percent, text] : machine.progressOf([](auto& o) { o.Size(); })) {
      texts.push_back(text);
    }
    return texts;
  };
  const std::vector<std::string> tower = textsOf(CoolingTowerAtHand(gasPlant()));
  const std::vector<std::string> compressor = textsOf(CompressorAtHand(gasPlant()));
  EXPECT_LT(tower.size(), compressor.size());
  for (const std::string& text : tower) {
    EXPECT_NE(std::find(compressor.begin(), compressor.end(), text), compressor.end()) << text;
  }
}

TEST(CoolingTower, Does_not_warn_of_several_inlets) {
  CoolingTowerAtHand tower(twoGasInlets(), 1);
  EXPECT_EQ(tower->Size(), 1);
  EXPECT_TRUE(tower->Warnings().IsEmpty());
  EXPECT_TRUE(tower.plant.dialogTexts().empty());
}

TEST(CoolingTower, Has_no_intercooler) {
  PlantJson plant = gasPlant("DGC", "CENTRIF");
  gasProject(plant)["CpIntercoolerOutletTemperature"] = {30, "DEG C"};
  gasBlock(plant)["INTERCOOLER TEMPERATURE (SIM)"] = {40, "DEG C"};
  CoolingTowerAtHand tower(plant);
  tower->GetLastInfo();
  setForm(*tower.object, {{"Inlet Stream", "S1"},
                          {"Outlet Stream", "S2"},
                          {"CpIntercoolerOutletTemperature", "20\nDEG C"}});
  EXPECT_EQ(tower->Size(), 1);
  EXPECT_EQ(tower.values().intercoolerTemperature, 0.0);
  EXPECT_EQ(formValue(*tower.object, "CpIntercoolerOutletTemperature"), "");
  tower->SaveParameters();
  EXPECT_FALSE(tower.has("CpIntercoolerOutletTemperature"));
  EXPECT_FALSE(tower.has("CpInterCoolerYN"));
}

TEST(CoolingTower, Writes_the_number_of_a_single_item) {
  const std::pair<double, const char*> rows[] = {{1, "1"}, {2, "2"}, {0, ""}, {-1, ""}};
  for (const auto& [number, text] : rows) {
    CoolingTowerAtHand tower(gasPlant());
    tower->data().numberItems = number;
    tower->SaveParameters();
    EXPECT_EQ(tower.text("CpNumberItems"), text) << number;
  }
  CoolingTowerAtHand sized(gasPlant());
  sized->Size();
  sized->SaveParameters();
  EXPECT_EQ(sized.text("CpNumberItems"), "1");
}

TEST(CoolingTower, Reads_and_writes_driver_power_in_its_plain_slot_whatever_the_category) {
  PlantJson plant = gasPlant("DTUR", "TURBOEXP");
  gasRecord(plant)["CpDriverPower"] = {200, "HP"};
  gasRecord(plant)["CpPowerOutput"] = {300, "HP"};
  CoolingTowerAtHand tower(plant);
  tower->GetLastInfo();
  EXPECT_DOUBLE_EQ(tower.values().driverPower, 200);
  tower->data().driverPower = 250;
  tower->SaveParameters();
  EXPECT_DOUBLE_EQ(tower.number("CpDriverPower"), 250);
  EXPECT_DOUBLE_EQ(tower.number("CpPowerOutput"), 300);
}

}  // namespace
}  // namespace sizewright
