#include "rotating/gas_machine_plant.h"

// What a compressor makes of its streams beyond what all gas machines do.

namespace sizewright {
namespace {

constexpr const char* kSeveralInlets =
    "Multiple Inlet Streams found.Sizing will use the inlet stream with max flow rate";

TEST(CompressorStreams, Several_inlets_are_warned_of_in_two_wordings) {
  const std::string shown = std::string(kSeveralInlets) + ". Please check the flow rate";
  for (const int interactive : {0, 1}) {
    CompressorAtHand compressor(twoGasInlets(), interactive);
    compressor->Size();
    ASSERT_EQ(compressor->Warnings().GetLength(), 1);
    EXPECT_STREQ(compressor->Warnings().GetTextAt(0), kSeveralInlets);
    EXPECT_EQ(compressor.plant.dialogTexts(),
              interactive != 0 ? std::vector<std::string>{shown} : std::vector<std::string>{});
  }
}

TEST(CompressorStreams, One_inlet_is_not_warned_of) {
  CompressorAtHand compressor(gasPlant(), 1);
  compressor->Size();
  EXPECT_TRUE(compressor->Warnings().IsEmpty());
  EXPECT_TRUE(compressor.plant.dialogTexts().empty());
}

TEST(CompressorStreams, Streams_of_heat_and_work_are_left_out) {
  for (const char* type : {"HEAT", "Heat", "WORK", "work"}) {
    PlantJson plant = twoGasInlets();
    plant["streams"]["S4"] = plant["streams"]["S2"];
    gasItem(plant)["exits"]["OUTLET"] = {"S2", "S4"};
    PlantJson& inlet = gasStream(plant, "S3");
    inlet["Stream Type"] = type;
    inlet["VAPOR MASS FLOW"] = {90000, "LB/H"};
    inlet["LIQUID MASS FLOW"] = {1, "LB/H"};
    inlet["PRESSURE"] = {1, "PSI"};
    inlet["MOLECULAR WEIGHT"] = 400;
    PlantJson& exit = gasStream(plant, "S4");
    exit["Stream Type"] = type;
    exit["SOLID MASS FLOW"] = {1, "LB/H"};
    exit["PRESSURE"] = {9000, "PSI"};
    exit["PRIMARY FLUID COMPONENT"] = "Steam";
    exit["Specific heat ratio"] = 9;
    CompressorAtHand compressor(plant);
    EXPECT_EQ(compressor->Size(), 1);
    EXPECT_DOUBLE_EQ(compressor.values().inletVolumeFlow, 15000) << type;
    EXPECT_DOUBLE_EQ(compressor.values().minInletPressure, 20) << type;
    EXPECT_DOUBLE_EQ(compressor.values().maxExitPressure, 60) << type;
    EXPECT_DOUBLE_EQ(compressor.values().molecularWeight, 29) << type;
    EXPECT_DOUBLE_EQ(compressor.values().specificHeatRatio, 1.25) << type;
    EXPECT_EQ(compressor.values().fluidType.view(), "Test Gas") << type;
    EXPECT_EQ(compressor->Warnings().GetLength(), 1) << type;  // of two inlets
  }
}

TEST(CompressorStreams, A_stream_of_any_other_type_counts) {
  for (const char* type : {"MATERIAL", "HEATED", "WOR"}) {
    PlantJson plant = gasPlant();
    gasStream(plant, "S1")["Stream Type"] = type;
    CompressorAtHand compressor(plant);
    EXPECT_EQ(compressor->Size(), 1);
    EXPECT_DOUBLE_EQ(compressor.values().inletVolumeFlow, 15000) << type;
  }
}

// --- Compressibility of the streams -------------------------------------------------------------

TEST(CompressorStreams, Compressibility_is_that_of_all_phases_or_else_of_the_vapor) {
  PlantJson plant = gasPlant();
  gasStream(plant, "S1")["Z_TOTAL (SIM)"] = 0.95;
  gasStream(plant, "S1")["Z_VAPOR (SIM)"] = 0.7;
  gasStream(plant, "S2")["Z_VAPOR (SIM)"] = 0.85;
  CompressorAtHand compressor(plant);
  compressor->Size();
  EXPECT_DOUBLE_EQ(compressor.values().inletCompressibility, 0.95);
  EXPECT_DOUBLE_EQ(compressor.values().exitCompressibility, 0.85);
}

TEST(CompressorStreams, Compressibility_is_the_mean_of_the_positive_ones_at_each_end) {
  PlantJson plant = twoGasInlets();
  plant["streams"]["S5"] = plant["streams"]["S1"];
  plant["streams"]["S4"] = plant["streams"]["S2"];
  gasItem(plant)["inlets"]["INLET"] = {"S1", "S3", "S5"};
  gasItem(plant)["exits"]["OUTLET"] = {"S2", "S4"};
  gasStream(plant, "S1")["Z_TOTAL (SIM)"] = 0.95;
  gasStream(plant, "S3")["Z_TOTAL (SIM)"] = -1;
  gasStream(plant, "S5")["Z_VAPOR (SIM)"] = 0.85;
  gasStream(plant, "S2")["Z_TOTAL (SIM)"] = 0.6;
  gasStream(plant, "S4")["Z_TOTAL (SIM)"] = 0.5;
  CompressorAtHand compressor(plant);
  compressor->Size();
  EXPECT_NEAR(compressor.values().inletCompressibility, 0.9, 1e-12);
  EXPECT_NEAR(compressor.values().exitCompressibility, 0.55, 1e-12);
}

// --- Cp/Cv of the streams -----------------------------------------------------------------------

struct RatioRow {
  double inlet;  // 0 for none
  double exit;
  double expected;
};

TEST(CompressorStreams, Cp_over_Cv_is_the_average_of_the_ends_that_tell_it) {
  const RatioRow rows[] = {
      {1.4, 1.3, 1.35}, {1.4, 0, 1.4}, {0, 1.3, 1.3}, {0, 0, 1.25},  // the property service's
      {-1, 1.3, 1.3},
  };
  for (const RatioRow& row : rows) {
    PlantJson plant = gasPlant();
    if (row.inlet != 0) gasStream(plant, "S1")["Specific heat ratio"] = row.inlet;
    if (row.exit != 0) gasStream(plant, "S2")["Specific heat ratio"] = row.exit;
    CompressorAtHand compressor(plant);
    compressor->Size();
    EXPECT_NEAR(compressor.values().specificHeatRatio, row.expected, 1e-12)
        << row.inlet << " and " << row.exit;
  }
}

TEST(CompressorStreams, Cp_over_Cv_averages_the_ends_not_the_streams) {
  PlantJson plant = twoGasInlets();
  gasStream(plant, "S1")["Specific heat ratio"] = 1.2;
  gasStream(plant, "S3")["Specific heat ratio"] = 1.4;
  gasStream(plant, "S2")["Specific heat ratio"] = 1.6;
  CompressorAtHand compressor(plant);
  compressor->Size();
  EXPECT_NEAR(compressor.values().specificHeatRatio, (1.3 + 1.6) / 2, 1e-12);
}

TEST(CompressorStreams, Values_in_hand_outrank_those_of_the_streams) {
  PlantJson plant = gasPlant();
  gasRecord(plant)["CpSpecificHeatRatio"] = 1.5;
  gasRecord(plant)["CpCompressibilityFactorInlet"] = 0.8;
  gasRecord(plant)["CpCompressibilityFactorOutlet"] = 0.81;
  for (const char* stream : {"S1", "S2"}) {
    gasStream(plant, stream)["Specific heat ratio"] = 1.1;
    gasStream(plant, stream)["Z_TOTAL (SIM)"] = 0.5;
  }
  CompressorAtHand compressor(plant);
  compressor->GetLastInfo();
  compressor->Size();
  EXPECT_DOUBLE_EQ(compressor.values().specificHeatRatio, 1.5);
  EXPECT_DOUBLE_EQ(compressor.values().inletCompressibility, 0.8);
  EXPECT_DOUBLE_EQ(compressor.values().exitCompressibility, 0.81);
}

}  // namespace
}  // namespace sizewright
