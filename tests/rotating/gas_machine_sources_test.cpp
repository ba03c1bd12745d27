#include "rotating/gas_machine_plant.h"

// Where values come from before the streams are looked at.

namespace sizewright {
namespace {

template <class Machine>
struct GasMachineSources : testing::Test {
  using AtHand = GasMachineAtHand<Machine>;
};
TYPED_TEST_SUITE(GasMachineSources, GasMachines, GasMachineName);

enum class Of { record, project, block };

struct Source {
  Of of;
  const char* slot;
};
struct Chain {
  double GasMachineData::*field;
  const char* unit;  // that the slots are given in; null for none
  double scale;      // from that unit to the field's
  std::vector<Source> sources;
};

// Every value in order of priority. PSIA and PSI are the same.
std::vector<Chain> chains() {
  using D = GasMachineData;
  using enum Of;
  return {
      {&D::capacity,
       "CFM",
       60.0,
       {{record, "CpActualGasFlowrateInlet"}, {project, "CpActualGasFlowrateInlet"}}},
      {&D::driverPower,
       "HP",
       1.0,
       {{record, "CpDriverPower"},
        {project, "CpDriverPower"},
        {record, "DRIVER POWER (SIM)"},
        {block, "DRIVER POWER"},
        {block, "DRIVER POWER (SIM)"}}},
      {&D::specificHeatRatio,
       nullptr,
       1.0,
       {{record, "CpSpecificHeatRatio"},
        {project, "CpSpecificHeatRatio"},
        {block, "Specific heat ratio"},
        {block, "INLET HEAT CAPACITY RATIO (SIM)"}}},
      {&D::inletCompressibility,
       nullptr,
       1.0,
       {{record, "CpCompressibilityFactorInlet"},
        {record, "INLET COMPR. FACTOR"},
        {project, "CpCompressibilityFactorInlet"},
        {project, "INLET COMPR. FACTOR"},
        {block, "INLET COMPR. FACTOR"},
        {block, "INLET COMPRESSIBILITY FACTOR (SIM)"}}},
      {&D::exitCompressibility,
       nullptr,
       1.0,
       {{record, "CpCompressibilityFactorOutlet"},
        {record, "OUTLET COMPR. FACTOR"},
        {project, "CpCompressibilityFactorOutlet"},
        {project, "OUTLET COMPR. FACTOR"},
        {block, "OUTLET COMPR. FACTOR"},
        {block, "OUTLET COMPRESSIBILITY FACTOR (SIM)"}}},
      {&D::designInletTemperature,
       "DEG F",
       1.0,
       {{record, "CpDesignTemperatureInlet"}, {project, "CpDesignTemperatureInlet"}}},
      {&D::designExitTemperature,
       "DEG F",
       1.0,
       {{record, "CpDesignTemperatureOutlet"}, {project, "CpDesignTemperatureOutlet"}}},
      {&D::designInletPressure,
       "PSIA",
       1.0,
       {{record, "CpDesignGaugePressureInlet"}, {project, "CpDesignGaugePressureInlet"}}},
      {&D::designExitPressure,
       "PSIA",
       1.0,
       {{record, "CpDesignGaugePressureOutlet"}, {project, "CpDesignGaugePressureOutlet"}}},
  };
}

PlantJson& sourceOf(PlantJson& plant, Of of) {
  if (of == Of::block) return gasBlock(plant);
  return of == Of::record ? gasRecord(plant) : gasProject(plant);
}

void give(PlantJson& plant, const Source& source, const char* unit, double value) {
  PlantJson& slot = sourceOf(plant, source.of)[source.slot];
  if (unit != nullptr) {
    slot = {value, unit};
  } else {
    slot = value;
  }
}

TYPED_TEST(GasMachineSources, The_first_source_that_has_a_value_gives_it) {
  for (const Chain& chain : chains()) {
    for (std::size_t first = 0; first < chain.sources.size(); ++first) {
      PlantJson plant = gasPlant();
      for (std::size_t i = first; i < chain.sources.size(); ++i) {
        give(plant, chain.sources[i], chain.unit, 1.5 + static_cast<double>(i));
      }
      typename TestFixture::AtHand machine(plant);
      EXPECT_EQ(machine->GetLastInfo(), 1);
      const double expected = (1.5 + static_cast<double>(first)) * chain.scale;
      EXPECT_NEAR(machine.values().*chain.field, expected, 1e-9 * expected)
          << chain.sources[first].slot;
    }
  }
}

TYPED_TEST(GasMachineSources, Without_any_source_every_value_stays_unset) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->GetLastInfo();
  for (const Chain& chain : chains()) EXPECT_EQ(machine.values().*chain.field, 0.0);
}

TYPED_TEST(GasMachineSources, A_number_without_unit_is_in_the_internal_one) {
  PlantJson plant = gasPlant();
  gasRecord(plant)["CpActualGasFlowrateInlet"] = 700;
  gasRecord(plant)["CpDesignGaugePressureInlet"] = 33;
  typename TestFixture::AtHand machine(plant);
  machine->GetLastInfo();
  EXPECT_DOUBLE_EQ(machine.values().capacity, 700);
  EXPECT_DOUBLE_EQ(machine.values().designInletPressure, 33);
}

TYPED_TEST(GasMachineSources, Gauge_pressures_become_absolute) {
  PlantJson plant = gasPlant();
  gasRecord(plant)["CpDesignGaugePressureInlet"] = {10, "PSIG"};
  gasProject(plant)["CpDesignGaugePressureOutlet"] = {90, "PSIG"};
  typename TestFixture::AtHand machine(plant);
  machine->GetLastInfo();
  EXPECT_NEAR(machine.values().designInletPressure, 10 + kAtmosphere, 1e-9);
  EXPECT_NEAR(machine.values().designExitPressure, 90 + kAtmosphere, 1e-9);
}

TYPED_TEST(GasMachineSources, A_negative_design_temperature_is_kept) {
  PlantJson plant = gasPlant();
  for (const char* slot : {"CpDesignTemperatureInlet", "CpDesignTemperatureOutlet"}) {
    gasRecord(plant)[slot] = {-20, "DEG F"};
    gasProject(plant)[slot] = {70, "DEG F"};
  }
  typename TestFixture::AtHand machine(plant);
  machine->GetLastInfo();
  EXPECT_DOUBLE_EQ(machine.values().designInletTemperature, -20);
  EXPECT_DOUBLE_EQ(machine.values().designExitTemperature, -20);
}

TYPED_TEST(GasMachineSources, An_inherited_compressibility_stands_behind_the_other_slot) {
  for (const bool otherSlot : {true, false}) {
    PlantJson plant = gasPlant();
    plant["databases"]["VPECOMP"]["TYPICAL"] = {{"CpCompressibilityFactorInlet", 0.8},
                                                {"CpCompressibilityFactorOutlet", 0.7}};
    if (otherSlot) {
      gasRecord(plant)["INLET COMPR. FACTOR"] = 0.95;
      gasRecord(plant)["OUTLET COMPR. FACTOR"] = 0.85;
    }
    typename TestFixture::AtHand machine(plant);
    MemoryStore& store = machine.plant.plant().store;
    StoredDatabase& records = store.database("VPECOMP");
    store.find(records, "C-101")->parent = store.find(records, "TYPICAL");
    machine->GetLastInfo();
    EXPECT_DOUBLE_EQ(machine.values().inletCompressibility, otherSlot ? 0.95 : 0.8);
    EXPECT_DOUBLE_EQ(machine.values().exitCompressibility, otherSlot ? 0.85 : 0.7);
  }
}

TYPED_TEST(GasMachineSources, In_a_spreadsheet_the_project_is_not_read) {
  PlantJson plant = gasPlant();
  gasProject(plant)["CpSpecificHeatRatio"] = 1.7;
  gasProject(plant)["CpActualGasFlowrateInlet"] = {700, "CFH"};
  typename TestFixture::AtHand machine(plant);
  machine.object = machine.plant.template make<Opened<TypeParam>>("C-101", 0, "Spreadsheet");
  machine->GetLastInfo();
  EXPECT_EQ(machine.values().specificHeatRatio, 0.0);
  EXPECT_EQ(machine.values().capacity, 0.0);
}

TYPED_TEST(GasMachineSources, A_machine_without_project_and_block_reads_on) {
  PlantJson plant = gasPlant();
  gasItem(plant)["project"] = nullptr;
  gasItem(plant).erase("block");
  plant["simulator"] = 0;
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->GetLastInfo(), 1);
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_DOUBLE_EQ(machine.values().capacity, 15000 * 1.1);
}

TYPED_TEST(GasMachineSources, The_last_information_includes_streams_and_ends_the_first_run) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->GetLastInfo();
  EXPECT_EQ(list2_length(machine->inlets()), 1);
  EXPECT_EQ(list2_length(machine->exits()), 1);
  EXPECT_DOUBLE_EQ(machine.values().overdesignFactor, 1.1);
  void* none = list2_create();
  machine->SetInletStreams(none);
  EXPECT_EQ(machine->Size(), 1);  // the inlets are not looked for again
  EXPECT_EQ(list2_length(machine->inlets()), 0);
}

TYPED_TEST(GasMachineSources, Initialize_restores_the_fresh_state) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->GetLastInfo();
  machine->Size();
  EXPECT_EQ(machine->Initialize(), 1);
  EXPECT_EQ(machine.values().capacity, 0.0);
  EXPECT_TRUE(machine.values().fluidType.empty());
  EXPECT_TRUE(machine.values().driverType.empty());
  EXPECT_EQ(machine.values().numberItems, 1.0);
  EXPECT_EQ(machine->Size(), 1);
  EXPECT_DOUBLE_EQ(machine.values().capacity, 15000 * 1.1);
}

TYPED_TEST(GasMachineSources, Initialize_leaves_the_exit_list_to_the_host) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->GetStreamInfo();
  void* inlets = machine->inlets();
  void* exits = machine->exits();
  machine->Initialize();
  ListPool& pool = machine.plant.host().lists();
  EXPECT_EQ(pool.find(inlets), nullptr);
  EXPECT_NE(pool.find(exits), nullptr);
  EXPECT_EQ(machine->exits(), nullptr);
}

// --- Criteria -----------------------------------------------------------------------------------

TYPED_TEST(GasMachineSources, The_overdesign_factor_is_the_criterion_or_1_1) {
  PlantJson plant = gasPlant();
  gasCriteria(plant)["Compressor Overdesign Factor"] = 1.3;
  typename TestFixture::AtHand given(plant);
  given->Size();
  EXPECT_DOUBLE_EQ(given.values().overdesignFactor, 1.3);
  EXPECT_DOUBLE_EQ(given.values().capacity, 15000 * 1.3);
  typename TestFixture::AtHand missing(gasPlant());
  missing->Size();
  EXPECT_DOUBLE_EQ(missing.values().overdesignFactor, 1.1);
}

TYPED_TEST(GasMachineSources, A_factor_in_hand_is_kept) {
  PlantJson plant = gasPlant();
  gasCriteria(plant)["Compressor Overdesign Factor"] = 1.3;
  typename TestFixture::AtHand machine(plant);
  machine->data().overdesignFactor = 1.6;
  machine->Size();
  EXPECT_DOUBLE_EQ(machine.values().overdesignFactor, 1.6);
}

TYPED_TEST(GasMachineSources, The_driver_is_the_projects_or_the_criterions_or_none) {
  PlantJson plant = gasPlant();
  gasProject(plant)["CpDriverType"] = "MOTOR";
  gasCriteria(plant)["Driver Type"] = "TURBINE";
  typename TestFixture::AtHand ofProject(plant);
  ofProject->Size();
  EXPECT_EQ(ofProject.values().driverType.view(), "MOTOR");

  gasProject(plant).erase("CpDriverType");
  typename TestFixture::AtHand ofCriteria(plant);
  ofCriteria->Size();
  EXPECT_EQ(ofCriteria.values().driverType.view(), "TURBINE");

  typename TestFixture::AtHand missing(gasPlant());
  missing->Size();
  EXPECT_EQ(missing.values().driverType.view(), "NONE");
}

TYPED_TEST(GasMachineSources, A_driver_in_hand_is_kept) {
  PlantJson plant = gasPlant();
  gasProject(plant)["CpDriverType"] = "MOTOR";
  typename TestFixture::AtHand machine(plant);
  machine->data().driverType = std::string_view("TURBINE");
  machine->Size();
  EXPECT_EQ(machine.values().driverType.view(), "TURBINE");
}

// --- Intercooler and expander -------------------------------------------------------------------

TEST(CompressorSources, The_intercooler_temperature_comes_from_the_block) {
  PlantJson plant = gasPlant();
  gasBlock(plant)["INTERCOOLER TEMPERATURE (SIM)"] = {50, "DEG C"};
  CompressorAtHand compressor(plant);
  compressor->GetLastInfo();
  EXPECT_NEAR(compressor.values().intercoolerTemperature, 122, 1e-9);
}

TEST(CompressorSources, An_intercooler_temperature_in_hand_is_kept) {
  PlantJson plant = gasPlant();
  gasBlock(plant)["INTERCOOLER TEMPERATURE (SIM)"] = {120, "DEG F"};
  CompressorAtHand compressor(plant);
  compressor->data().intercoolerTemperature = -5;
  compressor->GetLastInfo();
  EXPECT_DOUBLE_EQ(compressor.values().intercoolerTemperature, -5);
}

TEST(CompressorSources, An_expander_takes_only_its_power_from_record_and_block) {
  PlantJson plant = gasPlant("DTUR", "TURBOEXP");
  gasBlock(plant)["DRIVER POWER"] = {400, "HP"};
  gasBlock(plant)["INLET COMPR. FACTOR"] = 0.8;
  gasBlock(plant)["OUTLET COMPR. FACTOR"] = 0.8;
  gasBlock(plant)["Specific heat ratio"] = 1.6;
  gasBlock(plant)["INTERCOOLER TEMPERATURE (SIM)"] = {120, "DEG F"};
  CompressorAtHand expander(plant);
  expander->comp_stp_get_proc_info();
  EXPECT_DOUBLE_EQ(expander.values().driverPower, 400);
  EXPECT_EQ(expander.values().inletCompressibility, 0.0);
  EXPECT_EQ(expander.values().exitCompressibility, 0.0);
  EXPECT_EQ(expander.values().specificHeatRatio, 0.0);
  EXPECT_EQ(expander.values().intercoolerTemperature, 0.0);
}

TEST(CompressorSources, The_record_holds_an_expanders_power_under_its_own_name) {
  PlantJson plant = gasPlant("DTUR", "TURBOEXP");
  gasRecord(plant)["CpPowerOutput"] = {300, "HP"};
  gasRecord(plant)["CpDriverPower"] = {200, "HP"};
  CompressorAtHand named(plant);
  named->GetLastInfo();
  EXPECT_DOUBLE_EQ(named.values().driverPower, 300);

  gasRecord(plant).erase("CpPowerOutput");
  CompressorAtHand plain(plant);
  plain->GetLastInfo();
  EXPECT_DOUBLE_EQ(plain.values().driverPower, 200);
}

TEST(CompressorSources, A_fan_holds_its_capacity_under_its_own_name) {
  PlantJson plant = gasPlant("EFN", "CENTRIF");
  gasRecord(plant)["CpActualGasFlowrate"] = {900, "CFH"};
  CompressorAtHand fan(plant);
  fan->GetLastInfo();
  EXPECT_DOUBLE_EQ(fan.values().capacity, 900);
}

// --- Constructor forms --------------------------------------------------------------------------

TEST(CompressorForms, A_copy_shares_the_values_of_its_source) {
  CompressorAtHand compressor(gasPlant());
  const Opened<CCompObj> copy(*compressor.object);
  compressor->Size();
  EXPECT_DOUBLE_EQ(copy.values().capacity, 15000 * 1.1);
}

TEST(CompressorForms, An_object_made_from_another_class_starts_fresh) {
  CoolingTowerAtHand tower(gasPlant());
  tower->Size();
  CCompObj compressor(*tower.object);
  EXPECT_EQ(compressor.IsValid(), 1);
  EXPECT_EQ(compressor.values().capacity, 0.0);
  EXPECT_EQ(compressor.Size(), 1);
  EXPECT_DOUBLE_EQ(compressor.values().capacity, 15000 * 1.1);
  CCoolTwObj back(static_cast<const CSizeEquip&>(compressor));
  EXPECT_EQ(back.values().capacity, 0.0);
}

TEST(CompressorForms, A_cooling_tower_is_no_compressor) {
  CoolingTowerAtHand tower(gasPlant());
  CSizeEquip* object = tower.object.get();
  EXPECT_EQ(dynamic_cast<CCompObj*>(object), nullptr);
}

TEST(CompressorForms, The_selection_form_looks_at_a_block) {
  TestPlant plant(gasPlant().dump());
  CCompObj compressor(plant.host().project(), plant.host().simCase(), "B1", "", "");
  EXPECT_EQ(compressor.IsValid(), 1);
  CCompObj missing(plant.host().project(), plant.host().simCase(), "B9", "", "");
  EXPECT_EQ(missing.IsValid(), 0);
}

}  // namespace
}  // namespace sizewright
