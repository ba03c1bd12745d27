#include <gtest/gtest.h>

#include <algorithm>

#include "separation/dryer_plant.h"

namespace sizewright {
namespace {

using Plant = PlantJson;
using Progress = DryerAtHand::Progress;

const std::vector<const char*> kSlots = {"CpEvaporationRate", "CpFlowrate",   "CpGasFlowrate",
                                         "CpDryerCapacity",   "CpTrayArea",   "CpSurfaceArea",
                                         "CpTraySurfaceArea", "CpNumberItems"};

struct Written {
  const char* slot;
  double value;  // customary
  const char* customary;
  double metric;
  const char* metricUnits;
};
struct ReportCase {
  const char* category;
  const char* item;
  std::vector<Written> written;
};

constexpr double kSquareMetres = 0.09290304;
constexpr double kKilograms = 0.45359237;

Written area(const char* slot) {
  return {slot, 123, "SF", 123 * kSquareMetres, "M2"};
}
const Written kVapor = {"CpFlowrate", 700, "LB/H", 700 * kKilograms, "KG/H"};
const Written kRate = {"CpEvaporationRate", 800, "LB/H", 800 * kKilograms, "KG/H"};
const Written kGas = {"CpGasFlowrate", 0, "CFH", 0, "M3/H"};
const Written kCapacity = {"CpDryerCapacity", 300, "CF", 300 * 0.028316846592, "M3"};

const ReportCase kReports[] = {
    {"ED", "SPRAY", {kRate, kVapor}},
    {"EAD", "SPRAY", {kRate, kVapor}},
    {"EAD", "", {kGas}},
    {"EAD", "VACUUM", {kGas}},
    {"ED", "VACUUM", {kCapacity}},
    {"ETDS", "JAC VACUUM", {kCapacity}},
    {"ETDS", "TURBO", {area("CpTraySurfaceArea")}},
    {"ETDS", "PAN", {area("CpTraySurfaceArea")}},
    {"EDD", "SINGLE ATM", {area("CpTrayArea")}},
    {"EDD", "PAN", {area("CpTrayArea")}},
    {"ERD", "DIRECT", {area("CpSurfaceArea")}},
    {"ED", "PAN", {area("CpSurfaceArea")}},
    {"ED", "ATMOS TRAY", {area("CpTrayArea"), kVapor}},
    {"EXX", "PAN", {area("CpTrayArea"), kVapor}},
};

class DryerReport : public testing::TestWithParam<ReportCase> {
 protected:
  void expectWritten(const char* units) {
    Plant plant = dryerPlant(GetParam().category, GetParam().item);
    plant["units"] = units;
    const bool metric = std::string(units) == "metric";
    DryerAtHand dryer(plant);
    dryer->Size();
    dryer->data().surfaceArea = 123;
    dryer->data().numberItems = 1;
    EXPECT_EQ(dryer->SaveParameters(), 1);
    for (const char* slot : kSlots) {
      const auto& rows = GetParam().written;
      const auto row = std::find_if(rows.begin(), rows.end(), [&](const Written& candidate) {
        return std::string(candidate.slot) == slot;
      });
      ASSERT_EQ(dryer.has(slot), row != rows.end()) << slot;
      if (row == rows.end()) continue;
      EXPECT_NEAR(dryer.number(slot), metric ? row->metric : row->value, 1e-9) << slot;
      EXPECT_EQ(dryer.units(slot), metric ? row->metricUnits : row->customary) << slot;
    }
  }
};
INSTANTIATE_TEST_SUITE_P(Rows, DryerReport, testing::ValuesIn(kReports));

TEST_P(DryerReport, Writes_its_slots_in_customary_units) {
  expectWritten("customary");
}
TEST_P(DryerReport, Writes_its_slots_in_metric_units) {
  expectWritten("metric");
}

TEST(DryerResults, Several_items_are_counted) {
  for (const auto& [number, text] :
       {std::pair(1.0, ""), std::pair(2.0, "2"), std::pair(13.0, "13")}) {
    DryerAtHand dryer(dryerPlant("EAD", ""));
    dryer->data().numberItems = number;
    dryer->SaveParameters();
    EXPECT_EQ(dryer.text("CpNumberItems"), text);
  }
}

TEST(DryerResults, The_report_tells_its_progress) {
  DryerAtHand dryer(dryerPlant("ED", "TRAY"));
  EXPECT_EQ(dryer.progressOf([](auto& object) { object.SaveParameters(); }),
            (Progress{{75, "Preparing the design report. Please Wait ..."},
                      {79, "Writing preliminary information."},
                      {80, "Writing design parameters"},
                      {95, "Completed sizing of VPE component"}}));
}

TEST(DryerForm, There_is_none) {
  DryerAtHand dryer(dryerPlant("ED", "TRAY"));
  dryer->Size();
  CStrList names = {"CpNumberItems"};
  CStrList values = {"5"};
  CStrList none;
  EXPECT_EQ(dryer->SetValues(names, values), 1);
  EXPECT_EQ(dryer->SetValues(none, values), 0);
  EXPECT_EQ(dryer->SetValues(names, none), 0);
  EXPECT_EQ(dryer.values().numberItems, 3);  // 100 CFH / 0.167 / 200 SF, not the 5 of the form
  dryer->ReturnValues(names, values);
  EXPECT_TRUE(names.IsEmpty());
  EXPECT_TRUE(values.IsEmpty());
}

TEST(DryerPorts, Exits_are_sorted_by_what_they_carry) {
  Plant plant = dryerPlant("ED", "TRAY");
  plant["streams"]["DUST"]["slots"] = {{"SOLID MASS FLOW", {1, "LB/H"}},
                                       {"VAPOR MASS FLOW", {9, "LB/H"}}};
  plant["streams"]["WATER"]["slots"] = {{"LIQUID MASS FLOW", {9, "LB/H"}}};
  plant["streams"]["DRY"] = Plant::object();
  itemOf(plant)["exits"] = {{"OUTLET", {"CAKE", "FUMES", "DUST", "WATER", "DRY"}}};
  DryerAtHand dryer(plant);
  dryer->GetStreamInfo();
  EXPECT_EQ(dryer->UpdateConnectivity(), 1);
  EXPECT_EQ(dryer.text("__STREAMS__IN"), "_in__1");
  EXPECT_EQ(dryer.text("_in__1"), "FEED\nPROCESS\nINLET");
  EXPECT_EQ(dryer.text("__STREAMS__EX"), "_ex__0\n_ex__1\n_ex__2\n_ex__3\n_ex__4");
  EXPECT_EQ(dryer.text("_ex__0"), "CAKE\nPROCESS\nSOLIDS OUTLET");
  EXPECT_EQ(dryer.text("_ex__1"), "FUMES\nPROCESS\nTUBE OUTLET");
  EXPECT_EQ(dryer.text("_ex__2"), "DUST\nPROCESS\nSOLIDS OUTLET");
  EXPECT_EQ(dryer.text("_ex__3"), "WATER\nPROCESS\nOUTLET");
  EXPECT_EQ(dryer.text("_ex__4"), "DRY\nPROCESS\nOUTLET");
  EXPECT_FALSE(dryer.has("_in_1"));  // the host's ports are gone
  EXPECT_FALSE(dryer.has("_ex_1"));
}

TEST(DryerPorts, Stay_while_the_streams_are_not_read) {
  DryerAtHand dryer(dryerPlant("ED", "TRAY"));
  EXPECT_EQ(dryer->UpdateConnectivity(), 1);
  EXPECT_EQ(dryer.text("__STREAMS__IN"), "_in_1");
  EXPECT_EQ(dryer.text("_ex_1"), "CAKE\nPROCESS\nSOLIDS OUTLET");
}

TEST(DryerResults, A_commit_writes_results_and_ports) {
  DryerAtHand dryer(dryerPlant("ED", "TRAY"));
  dryer->Size();
  EXPECT_EQ(dryer->Commit(), 1);
  EXPECT_DOUBLE_EQ(dryer.number("CpTrayArea"), 200);
  EXPECT_EQ(dryer.text("CpNumberItems"), "3");
  EXPECT_EQ(dryer.text("_ex__0"), "CAKE\nPROCESS\nSOLIDS OUTLET");
}

TEST(DryerState, Initialize_restores_the_fresh_state) {
  DryerAtHand dryer(dryerPlant("ED", "TRAY"));
  dryer->Size();
  EXPECT_EQ(dryer->Initialize(), 1);
  EXPECT_EQ(dryer.values().solidFlow, 0.0);
  EXPECT_EQ(dryer.values().surfaceArea, 0.0);
  EXPECT_EQ(dryer.values().numberItems, 1.0);
  void* streams = list2_create();
  EXPECT_EQ(dryer->GetInletStreams(streams), 0);
  list2_delete(streams);
  EXPECT_EQ(dryer->Size(), 1);
  EXPECT_DOUBLE_EQ(dryer.values().solidFlow, 4680);
}

}  // namespace
}  // namespace sizewright
