#include <gtest/gtest.h>

#include "separation/filter_plant.h"

namespace sizewright {
namespace {

using D = FilterData;

// --- Slots --------------------------------------------------------------------------------------

struct ResultCase {
  const char* category;
  const char* item;
  double D::*field;
  const char* slot;
  const char* units;
  double factor;  // of the metric unit
  const char* metric;
};

void PrintTo(const ResultCase& result, std::ostream* out) {
  *out << result.category << " " << result.item << " " << result.slot;
}

constexpr ResultCase diameterOf(const char* item, const char* slot) {
  return {"ECT", item, &D::flt_diameter, slot, "INCHES", 25.4, "MM"};
}

class FilterResult : public testing::TestWithParam<ResultCase> {};
INSTANTIATE_TEST_SUITE_P(
    EverySlot, FilterResult,
    testing::Values(
        ResultCase{"EF", "OTHER", &D::solid_mass_flow, "CpFlowrate", "LB/H", 0.45359237, "KG/H"},
        ResultCase{"EF", "OTHER", &D::basket_capacity, "CpCentrifugeCapacity", "CF", 0.028316846592,
                   "M3"},
        ResultCase{"EF", "OTHER", &D::driver_power, "CpDriverPower", "HP", 0.745699871582270, "KW"},
        ResultCase{"EF", "OTHER", &D::liquid_flow, "CpLiquidFlowrate", "CFH", 0.028316846592,
                   "M3/H"},
        ResultCase{"EF", "OTHER", &D::filter_area, "CpSurfaceArea", "SF", 0.09290304, "M2"},
        ResultCase{"ECT", "SOLID BOWL", &D::flt_length, "CpBowlLength", "INCHES", 25.4, "MM"},
        ResultCase{"ECT", "SCREEN BWL", &D::flt_length, "CpBowlLength", "INCHES", 25.4, "MM"},
        diameterOf("SOLID BOWL", "CpBowlDiameter"), diameterOf("SCREEN BWL", "CpBowlDiameter"),
        diameterOf("VIBRATORY", "CpScreenDiameter"), diameterOf("TUBULAR", "CpCentrifugeDiameter"),
        diameterOf("DISK", "CpCentrifugeDiameter"), diameterOf("BATCH TOP", "CpCentrifugeDiameter"),
        diameterOf("BATCH BOTM", "CpCentrifugeDiameter"),
        diameterOf("BATCH AUTO", "CpCentrifugeDiameter"),
        diameterOf("INVERTING", "CpCentrifugeDiameter"),
        diameterOf("BOT UNLOAD", "CpCentrifugeDiameter"),
        diameterOf("TOP UNLOAD", "CpCentrifugeDiameter"),
        diameterOf("RECIP CONV", "CpCentrifugeDiameter"),
        diameterOf("SCROLL CON", "CpCentrifugeDiameter"),
        diameterOf("OTHER", "CpCentrifugeDiameter")));

TEST_P(FilterResult, Is_written_above_0_in_the_plants_unit) {
  const ResultCase& result = GetParam();
  for (const bool metric : {false, true}) {
    PlantJson plant = filterPlant(result.item, result.category);
    plant["units"] = metric ? "metric" : "customary";
    for (const double value : {0.0, -1.0}) {
      SetFilter without(plant);
      without->data().*result.field = value;
      without->SaveParameters();
      EXPECT_FALSE(without.has(result.slot)) << value;
    }
    SetFilter filter(plant);
    filter->data().*result.field = 80;
    EXPECT_EQ(filter->SaveParameters(), 1);
    const double expected = metric ? 80 * result.factor : 80;
    EXPECT_NEAR(filter.number(result.slot), expected, 1e-9 * expected);
    EXPECT_EQ(filter.units(result.slot), metric ? result.metric : result.units);
  }
}

TEST(FilterResults, Of_a_filter_tell_no_bowl_screen_or_centrifuge) {
  for (const char* item : {"SOLID BOWL", "VIBRATORY", "TUBULAR", "OTHER"}) {
    SetFilter filter(filterPlant(item));
    filter->data().flt_diameter = 10;
    filter->data().flt_length = 10;
    filter->data().liquid_flow = 10;
    filter->SaveParameters();
    for (const char* slot : {"CpBowlDiameter", "CpBowlLength", "CpScreenDiameter",
                             "CpCentrifugeDiameter", "CpCentrifugeFlowrate"}) {
      EXPECT_FALSE(filter.has(slot)) << item << " " << slot;
    }
  }
}

TEST(FilterResults, Tell_the_bowl_of_bowl_centrifuges_only) {
  for (const char* item : {"VIBRATORY", "TUBULAR", "TOP UNLOAD", "RECIP CONV"}) {
    SetFilter centrifuge(filterPlant(item, "ECT"));
    centrifuge->data().flt_diameter = 10;
    centrifuge->data().flt_length = 10;
    centrifuge->SaveParameters();
    EXPECT_FALSE(centrifuge.has("CpBowlLength")) << item;
    EXPECT_FALSE(centrifuge.has("CpBowlDiameter")) << item;
  }
}

TEST(FilterResults, Tell_the_flow_of_tubular_and_disk_centrifuges) {
  for (const auto& [item, told] :
       {std::pair("TUBULAR", true), std::pair("DISK", true), std::pair("SOLID BOWL", false)}) {
    for (const bool metric : {false, true}) {
      PlantJson plant = centrifugePlant(item, 20);
      plant["units"] = metric ? "metric" : "customary";
      Filter centrifuge(plant);
      centrifuge->Size();
      centrifuge->SaveParameters();
      EXPECT_EQ(centrifuge.has("CpCentrifugeFlowrate"), told) << item;
      if (told) {
        const double litres = 20 * 231 * 0.016387064 / 60;
        EXPECT_NEAR(centrifuge.number("CpCentrifugeFlowrate"), metric ? litres : 20, 1e-9);
        EXPECT_EQ(centrifuge.units("CpCentrifugeFlowrate"), metric ? "L/S" : "GPM");
      }
      const double cfh = 20 * kCfhInGpm;
      EXPECT_NEAR(centrifuge.number("CpLiquidFlowrate"), metric ? cfh * 0.028316846592 : cfh, 1e-9);
    }
  }
}

TEST(FilterResults, Tell_how_many_units_there_are_above_one) {
  for (const auto& [area, count] : {std::pair(110.0, ""), std::pair(220.0, "2")}) {
    PlantJson plant = filterPlant("SPARKLER");
    recordOf(plant)["CpSurfaceArea"] = {area, "SF"};
    Filter filter(plant);
    filter->Size();
    filter->SaveParameters();
    EXPECT_EQ(filter.text("CpNumberItems"), count);
    EXPECT_NEAR(filter.number("CpSurfaceArea"), 110, 1e-9);
  }
}

TEST(FilterResults, Are_the_same_after_a_second_run) {
  for (const char* category : {"EF", "ECT"}) {
    Filter filter(filterPlant("TUBULAR", category));
    filter->Size();
    filter->SaveParameters();
    const double flow = filter.number("CpLiquidFlowrate");
    filter->Size();
    filter->SaveParameters();
    EXPECT_EQ(filter.number("CpLiquidFlowrate"), flow) << category;
    EXPECT_EQ(filter->Initialize(), 1);
    EXPECT_EQ(filter.values().liquid_flow, 0);
    EXPECT_EQ(filter.values().num_units, 1);
  }
}

TEST(FilterProgress, Is_told_while_sizing_and_writing) {
  Filter filter(filterPlant("OTHER"));
  filter->Size();
  using Progress = std::vector<std::pair<int, std::string>>;
  EXPECT_EQ(filter.progressOf([](CFltObj& object) { object.SaveParameters(); }),
            (Progress{{75, "Preparing the design report. Please Wait ..."},
                      {79, "Writing preliminary information."},
                      {80, "Writing design parameters"},
                      {95, "Completed sizing of VPE component"}}));
}

// --- Ports --------------------------------------------------------------------------------------

TEST(FilterPorts, Tell_solids_apart) {
  PlantJson plant = filterPlant("OTHER");
  plant["streams"]["P2"]["slots"] = {{"SOLID MASS FLOW", {9, "LB/H"}}};
  plant["streams"]["P3"]["slots"] = {{"SOLID MASS FLOW", {-9, "LB/H"}}};
  itemOf(plant)["exits"] = {{"LIQUID OUTLET", {"P"}}, {"ANY", {"P2", "P3"}}};
  Filter filter(plant);
  filter->Size();
  EXPECT_EQ(filter->UpdateConnectivity(), 1);
  EXPECT_EQ(filter.text("_in__1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(filter.text("__STREAMS__IN"), "_in__1");
  EXPECT_EQ(filter.text("_ex__0"), "P\nPROCESS\nOUTLET");
  EXPECT_EQ(filter.text("_ex__1"), "P2\nPROCESS\nSOLIDS OUTLET");
  EXPECT_EQ(filter.text("_ex__2"), "P3\nPROCESS\nOUTLET");
  EXPECT_FALSE(filter.has("_in_1"));
  EXPECT_FALSE(filter.has("_ex_1"));
}

TEST(FilterPorts, Without_a_run_are_left_alone) {
  Filter filter(filterPlant("OTHER"));
  EXPECT_EQ(filter->UpdateConnectivity(), 1);
  EXPECT_EQ(filter.text("_in_1"), "F\nPROCESS\nINLET");
  EXPECT_EQ(filter.text("_ex_1"), "P\nPROCESS\nOUTLET");
}

}  // namespace
}  // namespace sizewright
