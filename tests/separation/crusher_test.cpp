#include "sizewright/separation/crusher.h"

#include <gtest/gtest.h>

#include <cmath>

#include "separation/solids_plant.h"

namespace sizewright {
namespace {

using D = CrusherData;
using Crusher = SolidsItem<CCrshObj>;

constexpr double kTon = 2000;  // LB

// 60,000 LB/H of solids: 30 TPH, half a ton a minute.
PlantJson crusherPlant(const char* item = "JAW", const char* category = "ECR") {
  PlantJson plant = solidsPlant(category, item, "OUTLET");
  slotsOf(plant, "P")["SOLID MASS FLOW"] = {30 * kTon, "LB/H"};
  return plant;
}

double bond(double tonsPerMinute, double outlet) {
  return tonsPerMinute * 1.46 * 13.81 * (1 / std::sqrt(outlet) - 1 / std::sqrt(4 * outlet));
}

TEST(GrindingPower, Is_that_of_Bond) {
  EXPECT_NEAR(grindingPower(0.5, 13.81, 0.25, 1.0), 0.5 * 1.46 * 13.81 * (2 - 1), 1e-9);
}

TEST(CrusherSizing, Grinds_down_from_four_times_the_outlet) {
  PlantJson plant = crusherPlant();
  recordOf(plant)["OUTLET DIAMETER"] = {0.25, "FEET"};
  Crusher crusher(plant);
  ASSERT_EQ(crusher->Size(), 1);
  EXPECT_DOUBLE_EQ(crusher.values().flowTPH, 30);
  EXPECT_DOUBLE_EQ(crusher.values().flowPerMinute, 0.5);
  EXPECT_DOUBLE_EQ(crusher.values().feedDiameter, 1.0);
  EXPECT_DOUBLE_EQ(crusher.values().workIndex, 13.81);
  EXPECT_NEAR(crusher.values().driverPower, bond(0.5, 0.25), 1e-9);
}

TEST(CrusherSizing, Of_a_given_power_skips_the_formula) {
  PlantJson plant = crusherPlant();
  recordOf(plant)["CpDriverPower"] = {40, "HP"};
  Crusher crusher(plant);
  crusher->Size();
  EXPECT_EQ(crusher.values().driverPower, 40);
  EXPECT_EQ(crusher.values().flowTPH, 0.0);
}

TEST(CrusherSizing, Without_an_outlet_size_warns) {
  Crusher crusher(crusherPlant());
  EXPECT_EQ(crusher->Size(), 1);
  EXPECT_EQ(crusher->Warnings().texts(),
            std::vector<std::string>{"Outlet diameter not available."});
  EXPECT_EQ(crusher.values().driverPower, 0.0);
}

TEST(CrusherSizing, Without_solids_has_no_power_and_no_message) {
  PlantJson plant = crusherPlant();
  slotsOf(plant, "P") = PlantJson::object();
  recordOf(plant)["OUTLET DIAMETER"] = {0.25, "FEET"};
  Crusher crusher(plant);
  crusher->Size();
  EXPECT_EQ(crusher.values().driverPower, 0.0);
  EXPECT_TRUE(crusher->Warnings().IsEmpty());
}

TEST(CrusherSizing, Needs_both_ends) {
  expectBothEndsNeeded<CCrshObj>(crusherPlant());
}

TEST(CrusherForm, Does_not_exist) {
  expectNoForm<CCrshObj>(crusherPlant());
}

// --- Solids
// ---------------------------------------------------------------------------------------

TEST(CrusherSolids, Are_the_balance_of_a_stream_that_does_not_tell) {
  PlantJson plant = crusherPlant();
  slotsOf(plant, "P") = {{"TOTAL MASS FLOW", {500, "LB/H"}},
                         {"LIQUID MASS FLOW", {100, "LB/H"}},
                         {"VAPOR MASS FLOW", {50, "LB/H"}}};
  Crusher balance(plant);
  balance->Size();
  EXPECT_DOUBLE_EQ(balance.values().solidFlow, 350);
  slotsOf(plant, "P")["LIQUID MASS FLOW"] = {600, "LB/H"};
  Crusher negative(plant);
  negative->Size();
  EXPECT_EQ(negative.values().solidFlow, 0.0);
}

TEST(CrusherSolids, Of_all_exits_count) {
  PlantJson plant = crusherPlant();
  plant["streams"]["P2"] = plant["streams"]["P"];
  itemOf(plant)["exits"]["OUTLET"] = {"P", "P2", "nowhere"};
  Crusher crusher(plant);
  crusher->Size();
  EXPECT_DOUBLE_EQ(crusher.values().solidFlow, 60 * kTon);
}

TEST(CrusherSolids, Follow_the_liquor_in_simulator_7) {
  PlantJson plant = crusherPlant();
  plant["simulator"] = 7;
  slotsOf(plant, "P") = {{"SUSPENDED SOLID TO LIQUOR RATIO", {0.25, "RATIO"}},
                         {"LIQUID MASS FLOW", {1000, "KG/H"}},
                         {"SOLID MASS FLOW", {9, "LB/H"}}};
  Crusher crusher(plant);
  crusher->Size();
  EXPECT_NEAR(crusher.values().solidFlow, 250 / 0.45359237, 1e-9);
  slotsOf(plant, "P")["SUSPENDED SOLID TO LIQUOR RATIO"] = {-1, "RATIO"};
  Crusher none(plant);
  none->Size();
  EXPECT_EQ(none.values().solidFlow, 0.0);
}

// --- Sources
// --------------------------------------------------------------------------------------

struct SourceCase {
  const char* item;
  const char* where;
  const char* slot;
  double value;
  const char* units;
  double D::*field;
  bool read;
};

void PrintTo(const SourceCase& row, std::ostream* out) {
  *out << row.item << ' ' << row.where << ' ' << row.slot;
}

class CrusherSource : public testing::TestWithParam<SourceCase> {};
INSTANTIATE_TEST_SUITE_P(
    EverySource, CrusherSource,
    testing::Values(
        SourceCase{"JAW", "record", "CpDriverPower", 9, "HP", &D::driverPower, true},
        SourceCase{"JAW", "block", "DRIVER POWER", 9, "HP", &D::driverPower, true},
        SourceCase{"JAW", "record", "DRIVER POWER (SIM)", 9, "HP", &D::driverPower, true},
        SourceCase{"JAW", "block", "DRIVER POWER (SIM)", 9, "HP", &D::driverPower, true},
        SourceCase{"CONE", "record", "CpMantleDiameter", 2, "FEET", &D::outletDiameter, true},
        SourceCase{"GYRATORY", "record", "CpMantleDiameter", 2, "FEET", &D::outletDiameter, true},
        SourceCase{"JAW", "record", "CpMantleDiameter", 2, "FEET", &D::outletDiameter, false},
        SourceCase{"BALL MILL", "record", "CpDiameterInside", 2, "FEET", &D::outletDiameter, true},
        SourceCase{"ROD MILL", "block", "MILL DIAMETER", 2, "FEET", &D::outletDiameter, true},
        SourceCase{"JAW", "block", "MILL DIAMETER", 2, "FEET", &D::outletDiameter, false},
        SourceCase{"JAW", "record", "OUTLET DIAMETER", 2, "FEET", &D::outletDiameter, true},
        SourceCase{"CONE", "record", "OUTLET DIAMETER", 2, "FEET", &D::outletDiameter, true},
        SourceCase{"JAW", "record", "CpDiameterInside", 2, "FEET", &D::outletDiameter, true},
        SourceCase{"JAW", "block", ">80% OUTLET DIAMETER", 2, "FEET", &D::productSize, true}));

TEST_P(CrusherSource, Is_read) {
  PlantJson plant = crusherPlant(GetParam().item);
  (std::string(GetParam().where) == "block" ? blockOf(plant) : recordOf(plant))[GetParam().slot] = {
      GetParam().value, GetParam().units};
  Crusher crusher(plant);
  crusher->Size();
  EXPECT_EQ(crusher.values().*GetParam().field == GetParam().value, GetParam().read);
}

// --- Mills
// ----------------------------------------------------------------------------------------

TEST(Mill, Is_half_as_long_again_as_wide) {
  PlantJson plant = crusherPlant("ROD MILL", "EM");
  recordOf(plant)["CpDiameterInside"] = {6, "FEET"};
  Crusher mill(plant);
  mill->Size();
  EXPECT_DOUBLE_EQ(mill.values().insideLength, 9);
}

TEST(Mill, Without_a_diameter_warns_in_one_text_and_shows_another) {
  Crusher mill(crusherPlant("BALL MILL", "EM"), 1);
  mill->Size();
  EXPECT_TRUE(holdsLines(mill->Warnings(),
                         "Mill diameter not specified.\n Some parameters may not be calculated."));
  EXPECT_EQ(mill.plant.dialogTexts(),
            std::vector<std::string>{
                "Outlet diameter not specified.\n Some parameters may not be calculated."});
  EXPECT_TRUE(holds(mill->Warnings(), "Outlet diameter not available."));
}

// --- Results
// --------------------------------------------------------------------------------------

TEST(CrusherResults, Are_written_in_both_unit_systems) {
  PlantJson plant = crusherPlant("BALL MILL", "EM");
  recordOf(plant) = {{"CpDiameterInside", {6, "FEET"}}, {"DRIVER POWER (SIM)", {100, "HP"}}};
  blockOf(plant)[">80% OUTLET DIAMETER"] = {0.5, "FEET"};
  struct Row {
    const char* slot;
    double customary;
    const char* units;
    double metric;
    const char* metricUnits;
  };
  for (const bool metric : {false, true}) {
    plant["units"] = metric ? "metric" : "customary";
    Crusher mill(plant);
    mill->Size();
    EXPECT_EQ(mill->SaveParameters(), 1);
    for (const Row& row : {Row{"CpCrusherFlowrate", 60000, "LB/H", 60000 * 0.45359237, "KG/H"},
                           Row{"CpMantleDiameter", 6, "FEET", 1.8288, "M"},
                           Row{"CpProductSize", 0.5, "FEET", 0.1524, "M"},
                           Row{"CpDriverPower", 100, "HP", 74.5699871582270, "KW"},
                           Row{"CpInsideLength", 9, "FEET", 2.7432, "M"},
                           Row{"CpDiameterInside", 6, "FEET", 1.8288, "M"}}) {
      EXPECT_NEAR(mill.number(row.slot), metric ? row.metric : row.customary, 1e-6) << row.slot;
      EXPECT_EQ(mill.units(row.slot), metric ? row.metricUnits : row.units) << row.slot;
    }
  }
}

TEST(CrusherResults, Of_a_crusher_have_no_inside_and_no_missing_mantle) {
  Crusher crusher(crusherPlant());
  crusher->Size();
  crusher->SaveParameters();
  EXPECT_EQ(crusher.number("CpDriverPower"), 0.0);
  EXPECT_EQ(crusher.number("CpProductSize"), 0.0);
  for (const char* absent : {"CpMantleDiameter", "CpInsideLength", "CpDiameterInside"}) {
    EXPECT_FALSE(crusher.has(absent)) << absent;
  }
}

TEST(CrusherPorts, Are_rewritten) {
  Crusher crusher(crusherPlant());
  crusher->Size();
  EXPECT_EQ(crusher->UpdateConnectivity(), 1);
  EXPECT_EQ(crusher.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(crusher.text("_ex__1"), "P\nPROCESS\nOUTLET");
}

}  // namespace
}  // namespace sizewright
