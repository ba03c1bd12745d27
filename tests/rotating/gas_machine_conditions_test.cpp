#include "rotating/gas_machine_plant.h"

// Operating and design conditions at both ends.

namespace sizewright {
namespace {

template <class Machine>
struct GasMachineConditions : testing::Test {
  using AtHand = GasMachineAtHand<Machine>;
};
TYPED_TEST_SUITE(GasMachineConditions, GasMachines, GasMachineName);

// The default rule for 20 and 60 PSI, which are below 250 PSIG: 25 PSI more. For temperatures: 50
// DEG F more.
struct EndRow {
  const char* stream;
  const char* streamSlot;
  const char* blockSlot;
  const char* designSlot;
  double GasMachineData::*operating;
  double GasMachineData::*design;
  double ofStream;
  double designOfStream;
};
constexpr EndRow kPressures[] = {
    {"S1", "PRESSURE", "Inlet pressure-gauge", "CpDesignGaugePressureInlet",
     &GasMachineData::minInletPressure, &GasMachineData::designInletPressure, 20, 45},
    {"S2", "PRESSURE", "Exit pressure -gauge", "CpDesignGaugePressureOutlet",
     &GasMachineData::maxExitPressure, &GasMachineData::designExitPressure, 60, 85},
};
constexpr EndRow kTemperatures[] = {
    {"S1", "TEMPERATURE", "Inlet temperature", "CpDesignTemperatureInlet",
     &GasMachineData::minInletTemperature, &GasMachineData::designInletTemperature, 100, 150},
    {"S2", "TEMPERATURE", "EXIT TEMPERATURE", "CpDesignTemperatureOutlet",
     &GasMachineData::maxExitTemperature, &GasMachineData::designExitTemperature, 300, 350},
};

/// The operating and the design condition of one end after sizing.
template <class Machine>
void expectConditions(const PlantJson& plant, const EndRow& row, double operating, double design) {
  GasMachineAtHand<Machine> machine(plant);
  machine->Size();
  EXPECT_NEAR(machine.values().*row.operating, operating, 1e-9) << row.blockSlot;
  EXPECT_NEAR(machine.values().*row.design, design, 1e-9) << row.designSlot;
}

TYPED_TEST(GasMachineConditions, Design_conditions_follow_the_rules_of_the_project) {
  for (const EndRow& row : kPressures) {
    expectConditions<TypeParam>(gasPlant(), row, row.ofStream, row.designOfStream);
  }
  for (const EndRow& row : kTemperatures) {
    expectConditions<TypeParam>(gasPlant(), row, row.ofStream, row.designOfStream);
  }
}

TYPED_TEST(GasMachineConditions, The_block_outranks_the_streams) {
  for (const EndRow& row : kPressures) {
    PlantJson plant = gasPlant();
    gasBlock(plant)[row.blockSlot] = {25, "PSIG"};
    expectConditions<TypeParam>(plant, row, 25 + kAtmosphere, 50 + kAtmosphere);
  }
  for (const EndRow& row : kTemperatures) {
    PlantJson plant = gasPlant();
    gasBlock(plant)[row.blockSlot] = {-40, "DEG C"};
    expectConditions<TypeParam>(plant, row, -40, 10);
  }
}

TYPED_TEST(GasMachineConditions, A_negative_pressure_of_the_block_is_none) {
  for (const EndRow& row : kPressures) {
    PlantJson plant = gasPlant();
    gasBlock(plant)[row.blockSlot] = {-5, "PSI"};
    expectConditions<TypeParam>(plant, row, row.ofStream, row.designOfStream);
  }
}

TYPED_TEST(GasMachineConditions, A_temperature_of_the_block_counts_above_minus_10000) {
  const std::pair<double, bool> rows[] = {{-10001, false}, {-10000, false}, {-9999.5, true}};
  for (const EndRow& row : kTemperatures) {
    for (const auto& [given, counts] : rows) {
      PlantJson plant = gasPlant();
      gasBlock(plant)[row.blockSlot] = {given, "DEG F"};
      expectConditions<TypeParam>(plant, row, counts ? given : row.ofStream,
                                  counts ? given + 50 : row.designOfStream);
    }
  }
}

TYPED_TEST(GasMachineConditions, A_value_in_hand_keeps_its_design_value) {
  for (const EndRow& row : kPressures) {
    typename TestFixture::AtHand machine(gasPlant());
    machine->data().*row.operating = row.ofStream + 1;
    machine->Size();
    EXPECT_DOUBLE_EQ(machine.values().*row.operating, row.ofStream + 1);
    EXPECT_EQ(machine.values().*row.design, 0.0);
  }
  for (const EndRow& row : kTemperatures) {
    typename TestFixture::AtHand machine(gasPlant());
    machine->data().*row.operating = -1;
    machine->Size();
    EXPECT_DOUBLE_EQ(machine.values().*row.operating, -1);
    EXPECT_EQ(machine.values().*row.design, 0.0);
  }
}

TYPED_TEST(GasMachineConditions, The_record_outranks_the_rules) {
  for (const EndRow& row : kPressures) {
    PlantJson plant = gasPlant();
    gasRecord(plant)[row.designSlot] = {70, "PSIG"};
    expectConditions<TypeParam>(plant, row, row.ofStream, 70 + kAtmosphere);
  }
  for (const EndRow& row : kTemperatures) {
    PlantJson plant = gasPlant();
    gasRecord(plant)[row.designSlot] = {-70, "DEG F"};
    expectConditions<TypeParam>(plant, row, row.ofStream, -70);
  }
}

TYPED_TEST(GasMachineConditions, A_record_without_a_usable_value_leaves_it_to_the_rules) {
  for (const EndRow& row : kPressures) {
    PlantJson plant = gasPlant();
    gasRecord(plant)[row.designSlot] = {-70, "PSIA"};
    expectConditions<TypeParam>(plant, row, row.ofStream, row.designOfStream);
  }
  for (const EndRow& row : kTemperatures) {
    PlantJson plant = gasPlant();
    gasRecord(plant)[row.designSlot] = {-10000, "DEG F"};
    expectConditions<TypeParam>(plant, row, row.ofStream, row.designOfStream);
  }
}

TYPED_TEST(GasMachineConditions, Without_resizing_the_projects_values_stand) {
  for (const char* answer : {"No", "no"}) {
    for (const EndRow& row : kPressures) {
      PlantJson plant = gasPlant();
      gasProject(plant)["CpAllowResize"] = answer;
      gasProject(plant)[row.designSlot] = {200, "PSIG"};
      gasRecord(plant)[row.designSlot] = {70, "PSIG"};
      expectConditions<TypeParam>(plant, row, row.ofStream, 200 + kAtmosphere);
    }
    for (const EndRow& row : kTemperatures) {
      PlantJson plant = gasPlant();
      gasProject(plant)["CpAllowResize"] = answer;
      gasProject(plant)[row.designSlot] = {-200, "DEG F"};
      gasRecord(plant)[row.designSlot] = {70, "DEG F"};
      expectConditions<TypeParam>(plant, row, row.ofStream, -200);
    }
  }
}

TYPED_TEST(GasMachineConditions,
           Without_resizing_a_missing_value_comes_from_the_record_or_the_rules) {
  for (const EndRow* rows : {kPressures, kTemperatures}) {
    for (const EndRow& row : {rows[0], rows[1]}) {
      PlantJson plant = gasPlant();
      gasProject(plant)["CpAllowResize"] = "No";
      expectConditions<TypeParam>(plant, row, row.ofStream, row.designOfStream);
      gasRecord(plant)[row.designSlot] = 77;
      expectConditions<TypeParam>(plant, row, row.ofStream, 77);
    }
  }
}

TYPED_TEST(GasMachineConditions, With_resizing_the_projects_values_are_not_asked) {
  for (const EndRow* rows : {kPressures, kTemperatures}) {
    for (const EndRow& row : {rows[0], rows[1]}) {
      PlantJson plant = gasPlant();
      gasProject(plant)[row.designSlot] = 200;
      expectConditions<TypeParam>(plant, row, row.ofStream, row.designOfStream);
      gasProject(plant)["CpAllowResize"] = "Yes";
      expectConditions<TypeParam>(plant, row, row.ofStream, row.designOfStream);
    }
  }
}

TYPED_TEST(GasMachineConditions, Without_an_operating_value_there_is_no_design_value) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S1").erase("PRESSURE");
  gasStream(plant, "S1").erase("TEMPERATURE");
  typename TestFixture::AtHand machine(plant);
  machine->Size();
  EXPECT_EQ(machine.values().minInletPressure, 0.0);
  EXPECT_EQ(machine.values().designInletPressure, 0.0);
  EXPECT_EQ(machine.values().designInletTemperature, 0.0);
}

TYPED_TEST(GasMachineConditions, Without_a_rule_there_is_no_design_value) {
  PlantJson plant = gasPlant();
  plant["design rules"] = {{"pressure", PlantJson::array()}, {"temperature", PlantJson::array()}};
  for (const EndRow* rows : {kPressures, kTemperatures}) {
    for (const EndRow& row : {rows[0], rows[1]}) {
      expectConditions<TypeParam>(plant, row, row.ofStream, 0.0);
    }
  }
}

TYPED_TEST(GasMachineConditions, The_capacity_is_not_assigned_from_streams) {
  typename TestFixture::AtHand machine(gasPlant());
  machine->comp_stp_assign_capacity(5000.0);
  EXPECT_EQ(machine.values().capacity, 0.0);
}

// --- The pressure test --------------------------------------------------------------------------

struct PressureRow {
  const char* category;
  const char* item;
  bool isExpander;
};
constexpr PressureRow kMachines[] = {
    {"DGC", "CENTRIF", false},        {"DTUR", "TURBOEXP", true}, {"dtur", "turboexp", true},
    {"DTURX", "TURBOEXPANDER", true}, {"DTU", "TURBOEXP", false}, {"DTUR", "TURBOEX", false},
    {"EGC", "TURBOEXP", false},
};

PlantJson plantBetween(const PressureRow& row, double inlet, double exit) {
  PlantJson plant = gasPlant(row.category, row.item);
  gasStream(plant, "S1")["PRESSURE"] = {inlet, "PSI"};
  gasStream(plant, "S2")["PRESSURE"] = {exit, "PSI"};
  return plant;
}

TEST(CompressorPressures, A_compressor_must_raise_the_pressure_and_an_expander_lower_it) {
  for (const PressureRow& row : kMachines) {
    CompressorAtHand up(plantBetween(row, 59.999, 60));
    EXPECT_EQ(up->Size(), row.isExpander ? 0 : 1) << row.category << ' ' << row.item;
    CompressorAtHand level(plantBetween(row, 60, 60));
    EXPECT_EQ(level->Size(), 0) << row.category << ' ' << row.item;
    CompressorAtHand down(plantBetween(row, 60, 59.999));
    EXPECT_EQ(down->Size(), row.isExpander ? 1 : 0) << row.category << ' ' << row.item;
  }
}

constexpr const char* kCompressorError =
    "Maximum exit pressure found to be lesser than the minimum inlet pressure.\n"
    "Maximum exit P =   15.250 PSI;\n"
    "Minimum inlet P =   60.000 PSI;\n"
    "Compressor cannot be sized with these inputs.\n"
    "Please check/modify the corresponding stream(s) information and size again.";
constexpr const char* kExpanderError =
    "Minimum inlet pressure found to be lesser than the maximum exit pressure.\n"
    "Maximum exit P =   60.000 PSI;\n"
    "Minimum inlet P =   15.250 PSI;\n"
    "Expander cannot be sized with these inputs.\n"
    "Please check/modify the corresponding stream(s) information and size again.";

TYPED_TEST(GasMachineConditions, A_falling_pressure_is_an_error_shown_as_plain_text) {
  const PlantJson plant = plantBetween(kMachines[0], 60, 15.25);
  typename TestFixture::AtHand machine(plant, 1);
  EXPECT_EQ(machine->Size(), 0);
  EXPECT_EQ(machine->Errors().GetTextList('\n'), kCompressorError);
  EXPECT_EQ(machine->Errors().GetLength(), 5);
  ASSERT_EQ(machine.plant.host().log().dialogs().size(), 1U);
  EXPECT_EQ(machine.plant.host().log().dialogs()[0].text, kCompressorError);
  EXPECT_FALSE(machine.plant.host().log().dialogs()[0].isBox);

  typename TestFixture::AtHand silent(plant);
  EXPECT_EQ(silent->Size(), 0);
  EXPECT_EQ(silent->Errors().GetTextList('\n'), kCompressorError);
  EXPECT_TRUE(silent.plant.dialogTexts().empty());
}

TEST(CompressorPressures, A_rising_pressure_over_an_expander_is_an_error_shown_in_a_box) {
  const PlantJson plant = plantBetween(kMachines[1], 15.25, 60);
  CompressorAtHand expander(plant, 1);
  EXPECT_EQ(expander->Size(), 0);
  EXPECT_EQ(expander->Errors().GetTextList('\n'), kExpanderError);
  ASSERT_EQ(expander.plant.host().log().dialogs().size(), 1U);
  const MessageLog::Dialog& dialog = expander.plant.host().log().dialogs()[0];
  EXPECT_TRUE(dialog.isBox);
  EXPECT_EQ(dialog.text, kExpanderError);
  EXPECT_EQ(dialog.title, "Sizing");
  EXPECT_EQ(dialog.flags, 16);

  CompressorAtHand silent(plant);
  EXPECT_EQ(silent->Size(), 0);
  EXPECT_EQ(silent->Errors().GetTextList('\n'), kExpanderError);
  EXPECT_TRUE(silent.plant.dialogTexts().empty());
}

TYPED_TEST(GasMachineConditions, After_the_error_nothing_is_sized_and_the_record_says_so) {
  typename TestFixture::AtHand machine(plantBetween(kMachines[0], 60, 15));
  EXPECT_EQ(machine->Size(), 0);
  EXPECT_EQ(machine.values().capacity, 0.0);
  EXPECT_EQ(machine.values().exitCompressibility, 0.0);
  EXPECT_EQ(machine->Commit(), 1);
  EXPECT_EQ(machine.text("Error"),
            "This item cannot be sized because of incomplete information.\n"
            "Volumetric flow cannot be calculated");
}

TYPED_TEST(GasMachineConditions, Streams_without_pressures_are_equal_ones) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S1").erase("PRESSURE");
  gasStream(plant, "S2").erase("PRESSURE");
  typename TestFixture::AtHand machine(plant);
  EXPECT_EQ(machine->Size(), 0);
  EXPECT_FALSE(machine->Errors().IsEmpty());
}

}  // namespace
}  // namespace sizewright
