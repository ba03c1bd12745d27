#include "sizewright/separation/crystallizer.h"

#include <gtest/gtest.h>

#include "separation/solids_plant.h"

namespace sizewright {
namespace {

using Crystallizer = SolidsItem<CCryObj>;

// An exit whose flows leave `solid` LB/H to the solids, and that tells so.
PlantJson exitOf(double solid) {
  return {{"SOLID MASS FLOW", {1, "LB/H"}},  // thrown away
          {"TOTAL MASS FLOW", {solid + 300, "LB/H"}},
          {"LIQUID MASS FLOW", {200, "LB/H"}},
          {"VAPOR MASS FLOW", {100, "LB/H"}}};
}

PlantJson crystallizerPlant(const char* item, double solid = 936) {
  PlantJson plant = solidsPlant("ECRY", item, "OUTLET");
  slotsOf(plant, "P") = exitOf(solid);
  return plant;
}

TEST(CrystallizerSolids, Are_the_balance_where_the_stream_tells_them) {
  Crystallizer item(crystallizerPlant("OTHER"));
  ASSERT_EQ(item->Size(), 1);
  EXPECT_DOUBLE_EQ(item.values().crystalRate, 936);
  EXPECT_DOUBLE_EQ(item.values().solidVolumeFlow, 936 / 93.6);
}

TEST(CrystallizerSolids, Told_beside_an_even_balance_count_as_0) {
  PlantJson plant = crystallizerPlant("OTHER");
  slotsOf(plant, "P") = {{"SOLID MASS FLOW", {500, "LB/H"}},
                         {"TOTAL MASS FLOW", {300, "LB/H"}},
                         {"LIQUID MASS FLOW", {300, "LB/H"}}};
  Crystallizer item(plant);
  item->Size();
  EXPECT_EQ(item.values().crystalRate, 0.0);
}

TEST(CrystallizerSolids, Of_an_exit_that_does_not_tell_are_those_of_the_exit_before) {
  PlantJson plant = crystallizerPlant("OTHER");
  plant["streams"]["P2"]["slots"] = {{"TOTAL MASS FLOW", {5000, "LB/H"}},
                                     {"SOLID MASS DENSITY", {46.8, "PCF"}}};
  itemOf(plant)["exits"]["OUTLET"] = {"P", "P2"};
  Crystallizer item(plant);
  item->Size();
  EXPECT_DOUBLE_EQ(item.values().crystalRate, 2 * 936);
  EXPECT_DOUBLE_EQ(item.values().solidVolumeFlow, 936 / 93.6 + 936 / 46.8);
  itemOf(plant)["exits"]["OUTLET"] = {"P2", "P"};
  Crystallizer first(plant);
  first->Size();
  EXPECT_DOUBLE_EQ(first.values().crystalRate, 936);  // nothing came before
}

TEST(CrystallizerSolids, Follow_the_liquor_in_simulator_7) {
  PlantJson plant = crystallizerPlant("OTHER");
  plant["simulator"] = 7;
  slotsOf(plant, "P") = {{"SUSPENDED SOLID TO LIQUOR RATIO", {0.5, "RATIO"}},
                         {"LIQUID MASS FLOW", {1872, "LB/H"}},
                         {"SOLID MASS DENSITY", {1, "PCF"}}};
  Crystallizer item(plant);
  item->Size();
  EXPECT_DOUBLE_EQ(item.values().crystalRate, 936);
  EXPECT_DOUBLE_EQ(item.values().solidVolumeFlow, 10);  // of 93.6 PCF whatever the stream says
}

TEST(CrystallizerStreams, Are_needed_at_both_ends) {
  expectBothEndsNeeded<CCryObj>(crystallizerPlant("OSLO"));
}

TEST(CrystallizerForm, Does_not_exist) {
  expectNoForm<CCryObj>(crystallizerPlant("OSLO"));
}

// --- Batch
// ----------------------------------------------------------------------------------------

struct BatchCase {
  double given;  // CF
  double volume;
  double items;
};
class BatchCrystallizer : public testing::TestWithParam<BatchCase> {};
INSTANTIATE_TEST_SUITE_P(AroundTheLimits, BatchCrystallizer,
                         testing::Values(BatchCase{114.9, 115, 1}, BatchCase{115, 115, 1},
                                         BatchCase{115.1, 115.1, 1}, BatchCase{1095, 1095, 1},
                                         BatchCase{1095.5, 1095, 2}, BatchCase{2190, 1095, 2},
                                         BatchCase{2190.5, 1095, 3}));

TEST_P(BatchCrystallizer, Is_held_within_one_unit) {
  PlantJson plant = crystallizerPlant("BATCH VAC");
  recordOf(plant)["CpLiquidVolume"] = {GetParam().given, "CF"};
  Crystallizer item(plant);
  item->Size();
  EXPECT_DOUBLE_EQ(item.values().liquidVolume, GetParam().volume);
  EXPECT_DOUBLE_EQ(item.values().numberItems, GetParam().items);
}

struct SourceCase {
  const char* where;
  const char* slot;
};
class BatchVolume : public testing::TestWithParam<SourceCase> {};
INSTANTIATE_TEST_SUITE_P(EverySource, BatchVolume,
                         testing::Values(SourceCase{"record", "CpLiquidVolume"},
                                         SourceCase{"block", "CAPACITY"},
                                         SourceCase{"record", "CAPACITY (SIM)"},
                                         SourceCase{"block", "CAPACITY (SIM)"}));

TEST_P(BatchVolume, Is_read) {
  PlantJson plant = crystallizerPlant("BATCH VAC");
  (std::string(GetParam().where) == "block" ? blockOf(plant) : recordOf(plant))[GetParam().slot] = {
      500, "CF"};
  Crystallizer item(plant);
  item->Size();
  EXPECT_EQ(item.values().liquidVolume, 500);
}

TEST(BatchCrystallizers, Hold_the_crystals_while_they_grow) {
  EXPECT_DOUBLE_EQ(crystalHoldTime(0.833, 0.36), 0.833 / 1.08);
  PlantJson plant = crystallizerPlant("BATCH VAC", 93600);
  Crystallizer usual(plant);
  usual->Size();
  EXPECT_DOUBLE_EQ(usual.values().liquidVolume, 1000 * 0.833 / 1.08);
  blockOf(plant)["PRODUCT SIZE"] = {0.5, "MM"};
  Crystallizer fine(plant);
  fine->Size();
  EXPECT_DOUBLE_EQ(fine.values().liquidVolume, 1000 * 0.5 / 1.08);
  recordOf(plant)["PRODUCT SIZE"] = {0.6, "MM"};
  Crystallizer coarse(plant);
  coarse->Size();
  EXPECT_DOUBLE_EQ(coarse.values().liquidVolume, 1000 * 0.6 / 1.08);
}

TEST(BatchCrystallizers, Without_anything_are_the_least) {
  PlantJson plant = crystallizerPlant("BATCH VAC");
  slotsOf(plant, "P") = PlantJson::object();
  Crystallizer item(plant);
  EXPECT_EQ(item->Size(), 1);
  EXPECT_EQ(item.values().liquidVolume, 115);
}

// --- Oslo and mechanical
// --------------------------------------------------------------------------

TEST(OsloCrystallizer, Takes_the_solids_before_a_given_rate) {
  PlantJson plant = crystallizerPlant("OSLO");
  recordOf(plant)["CpCrystallizerRate"] = {5000, "LB/H"};
  Crystallizer item(plant);
  item->Size();
  EXPECT_EQ(item.values().crystalRate, 936);
}

class OsloRate : public testing::TestWithParam<SourceCase> {};
INSTANTIATE_TEST_SUITE_P(EverySource, OsloRate,
                         testing::Values(SourceCase{"record", "CpCrystallizerRate"},
                                         SourceCase{"block", "Rate"},
                                         SourceCase{"record", "RATE (SIM)"},
                                         SourceCase{"block", "RATE (SIM)"}));

TEST_P(OsloRate, Is_read_without_solids) {
  PlantJson plant = crystallizerPlant("OSLO");
  slotsOf(plant, "P") = PlantJson::object();
  (std::string(GetParam().where) == "block" ? blockOf(plant) : recordOf(plant))[GetParam().slot] = {
      5000, "LB/H"};
  Crystallizer item(plant);
  item->Size();
  EXPECT_EQ(item.values().crystalRate, 5000);
}

TEST(OsloCrystallizer, Above_its_limit_is_split) {
  for (const auto& [rate, items] : {std::pair(572000.0, 1.0), std::pair(572000.5, 2.0),
                                    std::pair(1144000.0, 2.0), std::pair(1144001.0, 3.0)}) {
    Crystallizer item(crystallizerPlant("OSLO", rate));
    item->Size();
    EXPECT_EQ(item.values().numberItems, items) << rate;
    EXPECT_EQ(item.values().crystalRate, 572000) << rate;
  }
}

TEST(MechanicalCrystallizer, Is_30_feet_long_unless_given) {
  PlantJson plant = crystallizerPlant("MECHANICAL");
  Crystallizer usual(plant);
  usual->Size();
  EXPECT_EQ(usual.values().length, 30);
  blockOf(plant)["Length"] = {40, "FEET"};
  Crystallizer ofBlock(plant);
  ofBlock->Size();
  EXPECT_EQ(ofBlock.values().length, 40);
  recordOf(plant)["CpLength"] = {50, "FEET"};
  Crystallizer ofRecord(plant);
  ofRecord->Size();
  EXPECT_EQ(ofRecord.values().length, 50);
}

// --- Results
// --------------------------------------------------------------------------------------

struct ResultCase {
  const char* item;
  const char* slot;
  double value;
  const char* units;
  double metric;
  const char* metricUnits;
};
class CrystallizerResult : public testing::TestWithParam<ResultCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryItem, CrystallizerResult,
    testing::Values(
        ResultCase{"BATCH VAC", "CpLiquidVolume", 115, "CF", 115 * 0.028316846592, "M3"},
        ResultCase{"MECHANICAL", "CpLength", 30, "FEET", 9.144, "M"},
        ResultCase{"OSLO", "CpCrystallizerRate", 936, "LB/H", 936 * 0.45359237, "KG/H"},
        ResultCase{"UNKNOWN", "CpCrystallizerRate", 936, "LB/H", 936 * 0.45359237, "KG/H"}));

TEST_P(CrystallizerResult, Is_written_with_the_count) {
  PlantJson plant = crystallizerPlant(GetParam().item);
  for (const bool metric : {false, true}) {
    plant["units"] = metric ? "metric" : "customary";
    Crystallizer item(plant);
    item->Size();
    EXPECT_EQ(item->SaveParameters(), 1);
    EXPECT_EQ(item.text("CpNumberItems"), "1");
    EXPECT_NEAR(item.number(GetParam().slot), metric ? GetParam().metric : GetParam().value, 1e-9);
    EXPECT_EQ(item.units(GetParam().slot), metric ? GetParam().metricUnits : GetParam().units);
  }
}

TEST(CrystallizerProgress, Tells_the_report) {
  Crystallizer item(crystallizerPlant("OSLO"));
  item->Size();
  const auto lines = item.progressOf([](CCryObj& object) { object.SaveParameters(); });
  EXPECT_EQ(lines, (std::vector<std::pair<int, std::string>>{
                       {75, "Preparing the design report. Please Wait ..."},
                       {79, "Writing preliminary information."},
                       {80, "Writing design parameters"},
                       {95, "Completed sizing of VPE component"}}));
}

TEST(CrystallizerPorts, Are_rewritten) {
  Crystallizer item(crystallizerPlant("OSLO"));
  item->Size();
  EXPECT_EQ(item->UpdateConnectivity(), 1);
  EXPECT_EQ(item.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(item.text("_ex__1"), "P\nPROCESS\nOUTLET");
}

}  // namespace
}  // namespace sizewright
