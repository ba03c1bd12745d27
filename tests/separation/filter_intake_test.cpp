#include <gtest/gtest.h>

#include "separation/filter_plant.h"
#include "sizewright/host/list2.h"

namespace sizewright {
namespace {

using D = FilterData;

// --- Streams ------------------------------------------------------------------------------------

TEST(FilterStreams, Of_all_inlets_are_added) {
  PlantJson plant = filterPlant("OTHER");
  plant["streams"]["F2"]["slots"] = {{"LIQUID MASS FLOW", {624, "LB/H"}},
                                     {"SOLID MASS FLOW", {100, "LB/H"}},
                                     {"SOLID MASS DENSITY", {50, "PCF"}}};
  itemOf(plant)["inlets"]["INLET"] = {"F", "F2"};
  Filter filter(plant);
  ASSERT_EQ(filter->Size(), 1);
  EXPECT_DOUBLE_EQ(filter.values().liquid_flow, 1010);  // 62.4 PCF where the stream tells none
  EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, 1036);
  EXPECT_DOUBLE_EQ(filter.values().solid_vol_flow, 12);  // 93.6 PCF likewise
}

TEST(FilterStreams, That_do_not_exist_are_passed_over) {
  PlantJson plant = filterPlant("OTHER");
  itemOf(plant)["inlets"]["INLET"] = {"NOWHERE", "F"};
  Filter filter(plant);
  ASSERT_EQ(filter->Size(), 1);
  EXPECT_DOUBLE_EQ(filter.values().liquid_flow, 1000);
}

TEST(FilterStreams, Without_a_solid_flow_tell_it_by_balance) {
  struct Row {
    double total;
    double vapor;
    double solids;
  };
  for (const Row& row : {Row{50936, 0, 936}, Row{51036, 100, 936}, Row{50000, 0, 0},
                         Row{50000.00005, 0, 0}, Row{50001, 0, 1}, Row{49000, 0, 0}}) {
    PlantJson plant = filterPlant("OTHER");
    slotsOf(plant, "F").erase("SOLID MASS FLOW");
    slotsOf(plant, "F")["TOTAL MASS FLOW"] = {row.total, "LB/H"};
    slotsOf(plant, "F")["VAPOR MASS FLOW"] = {row.vapor, "LB/H"};
    Filter filter(plant);
    filter->Size();
    EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, row.solids) << row.total;
    EXPECT_DOUBLE_EQ(filter.values().solid_vol_flow, row.solids / 93.6) << row.total;
  }
}

TEST(FilterStreams, Of_a_centrifuge_are_told_by_a_positive_balance_first) {
  for (const auto& [category, total, solids] :
       {std::tuple("EF", 51872.0, 936.0), std::tuple("ECT", 51872.0, 1872.0),
        std::tuple("ECT", 50000.0, 936.0), std::tuple("ECT", 40000.0, 936.0)}) {
    PlantJson plant = filterPlant("OTHER", category);
    slotsOf(plant, "F")["TOTAL MASS FLOW"] = {total, "LB/H"};
    Filter filter(plant);
    filter->Size();
    EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, solids) << category << total;
    EXPECT_DOUBLE_EQ(filter.values().solid_vol_flow, solids / 93.6) << category << total;
  }
}

TEST(FilterStreams, Of_simulator_7_tell_solids_by_the_liquor) {
  PlantJson plant = filterPlant("OTHER", "ECT");
  plant["simulator"] = 7;
  slotsOf(plant, "F")["SUSPENDED SOLID TO LIQUOR RATIO"] = {0.03744, "RATIO"};
  slotsOf(plant, "F")["SOLID MASS DENSITY"] = {50, "PCF"};
  slotsOf(plant, "F")["TOTAL MASS FLOW"] = {60000, "LB/H"};
  Filter filter(plant);
  filter->Size();
  EXPECT_DOUBLE_EQ(filter.values().liquid_flow, 1000 / kCfhInGpm);
  EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, 1872);
  EXPECT_DOUBLE_EQ(filter.values().solid_vol_flow, 20);  // always of 93.6 PCF
}

TEST(FilterStreams, Are_needed_at_the_inlet_only) {
  PlantJson plant = filterPlant("OTHER");
  itemOf(plant).erase("exits");
  Filter open(plant);
  EXPECT_EQ(open->GetStreamInfo(), 1);
  EXPECT_EQ(open->Size(), 1);
  itemOf(plant).erase("inlets");
  Filter bare(plant);
  EXPECT_EQ(bare->GetStreamInfo(), 0);
  EXPECT_EQ(bare->Size(), 0);
  EXPECT_TRUE(bare->Errors().IsEmpty());
}

TEST(FilterStreams, May_be_named_by_the_record) {
  PlantJson plant = filterPlant("OTHER");
  itemOf(plant).erase("inlets");
  itemOf(plant).erase("exits");
  recordOf(plant) = {{"Inlet stream", "F"}, {"Exit stream", "P"}};
  Filter filter(plant);
  EXPECT_EQ(filter->Size(), 1);
  EXPECT_DOUBLE_EQ(filter.values().liquid_flow, 1000);
  filter->UpdateConnectivity();
  EXPECT_EQ(filter.text("_ex__0"), "P\nPROCESS\nOUTLET");
}

TEST(FilterStreams, Are_taken_from_lists_but_not_from_empty_ones) {
  PlantJson plant = filterPlant("OTHER");
  plant["streams"]["F2"]["slots"] = {{"LIQUID MASS FLOW", {624, "LB/H"}}};
  Filter filter(plant);
  void* list = list2_create();
  EXPECT_EQ(filter->SetInletStreams(nullptr), 0);
  EXPECT_EQ(filter->SetInletStreams(list), 0);
  EXPECT_EQ(filter->SetExitStreams(nullptr), 0);
  EXPECT_EQ(filter->SetExitStreams(list), 0);
  list2_append_to_end(list, "F2");
  EXPECT_EQ(filter->SetInletStreams(list), 1);
  EXPECT_EQ(filter->SetExitStreams(list), 1);
  filter->Size();
  EXPECT_DOUBLE_EQ(filter.values().liquid_flow, 10);
  void* inlets = list2_create();
  void* exits = list2_create();
  EXPECT_EQ(filter->GetInletStreams(inlets), 1);
  EXPECT_EQ(filter->GetExitStreams(exits), 1);
  EXPECT_STREQ(list2_get_item(inlets, 0, nullptr), "F2");
  EXPECT_STREQ(list2_get_item(exits, 0, nullptr), "F2");
  list2_delete(exits);
  list2_delete(inlets);
  list2_delete(list);
}

// --- Values of the user and the simulator -------------------------------------------------------

enum class Holder : std::uint8_t { record, block };

struct Slot {
  Holder holder;
  const char* name;
};

// A value of one field and all slots that tell it, the first that does wins. A slot's number is
// `factor` times the field's value, in `units`.
struct SourceCase {
  const char* category;
  const char* item;
  double D::*field;
  const char* units;
  double factor;
  std::vector<Slot> slots;
};

void PrintTo(const SourceCase& source, std::ostream* out) {
  *out << source.category << " " << source.item << " " << source.slots.front().name;
}

constexpr double kKilogram = 0.45359237;  // LB
constexpr double kCubicMetre = 0.028316846592;
constexpr double kSquareMetre = 0.09290304;
constexpr Holder kRecord = Holder::record;
constexpr Holder kBlock = Holder::block;

class FilterSource : public testing::TestWithParam<SourceCase> {};

std::vector<Slot> onBoth(const char* name) {
  return {{kRecord, name}, {kBlock, name}};
}
std::vector<Slot> onBoth(const char* name, const char* ofBlock) {
  return {{kRecord, name}, {kBlock, name}, {kBlock, ofBlock}};
}

INSTANTIATE_TEST_SUITE_P(
    EveryField, FilterSource,
    testing::Values(
        SourceCase{"EF",
                   "OTHER",
                   &D::solid_mass_flow,
                   "KG/H",
                   kKilogram,
                   {{kRecord, "CpFlowrate"},
                    {kBlock, "CpFlowrate"},
                    {kRecord, "SOLID MASS FLOW"},
                    {kBlock, "SOLID MASS FLOW"}}},
        SourceCase{"EF", "OTHER", &D::liquid_flow, "M3/H", kCubicMetre, onBoth("CpLiquidFlowrate")},
        SourceCase{"EF", "OTHER", &D::liquid_flow, "KG/H", kKilogram * 62.4,
                   onBoth("LIQUID MASS FLOW")},
        SourceCase{"EF", "OTHER", &D::solid_vol_flow, "KG/H", kKilogram * 93.6,
                   onBoth("SOLID MASS FLOW")},
        SourceCase{"EF", "OTHER", &D::basket_capacity, "M3", kCubicMetre,
                   onBoth("CpCentrifugeCapacity")},
        SourceCase{"EF",
                   "OTHER",
                   &D::driver_power,
                   "KW",
                   0.745699871582270,
                   {{kRecord, "CpDriverPower"},
                    {kBlock, "CpDriverPower"},
                    {kBlock, "DRIVER POWER"},
                    {kRecord, "DRIVER POWER (SIM)"},
                    {kBlock, "DRIVER POWER (SIM)"}}},
        SourceCase{"EF", "OTHER", &D::filter_area, "M2", kSquareMetre,
                   onBoth("CpSurfaceArea", "FILTER AREA")},
        SourceCase{"EF", "OTHER", &D::cake_thickness, "M", 0.3048, onBoth("CpCakeThickness")},
        SourceCase{"EF", "OTHER", &D::bowl_extra_length, "MM", 25.4,
                   onBoth("CpBowlStraightLength")},
        SourceCase{"EF", "OTHER", &D::tube_flow, "M3/H", kCubicMetre, onBoth("CpTubeFlowrate")},
        SourceCase{"EF", "OTHER", &D::flt_diameter, "MM", 25.4, onBoth("CpDiameter", "Diameter")},
        SourceCase{"EF", "OTHER", &D::flt_length, "MM", 25.4, onBoth("CpLength", "Length")},
        SourceCase{"ECT", "SOLID BOWL", &D::flt_diameter, "MM", 25.4,
                   onBoth("CpBowlDiameter", "Diameter")},
        SourceCase{"ECT", "SOLID BOWL", &D::flt_length, "MM", 25.4,
                   onBoth("CpBowlLength", "Length")},
        SourceCase{"ECT", "TOP UNLOAD", &D::flt_length, "MM", 25.4,
                   onBoth("CpBowlLength", "Length")},
        SourceCase{"ECT", "VIBRATORY", &D::flt_diameter, "MM", 25.4,
                   onBoth("CpScreenDiameter", "Diameter")},
        SourceCase{"ECT", "BATCH TOP", &D::flt_diameter, "MM", 25.4,
                   onBoth("CpCentrifugeDiameter", "Diameter")},
        SourceCase{"ECT",
                   "DISK",
                   &D::liquid_flow,  // in GPM
                   "M3/H",
                   kCubicMetre* kCfhInGpm,
                   {{kRecord, "CpCentrifugeFlowrate"},
                    {kRecord, "CpLiquidFlowrate"},
                    {kBlock, "CpCentrifugeFlowrate"},
                    {kBlock, "CpLiquidFlowrate"}}},
        SourceCase{"EF", "OTHER", &D::num_units, nullptr, 1, onBoth("CpNumberItems")}));

TEST_P(FilterSource, Is_read_from_the_first_slot_that_tells_it) {
  const SourceCase& source = GetParam();
  for (std::size_t first = 0; first < source.slots.size(); ++first) {
    PlantJson plant = filterPlant(source.item, source.category);
    for (std::size_t i = first; i < source.slots.size(); ++i) {
      const Slot& slot = source.slots[i];
      const double number = static_cast<double>(101 + i) * source.factor;
      PlantJson& holder = slot.holder == Holder::record ? recordOf(plant) : blockOf(plant);
      if (source.units != nullptr) {
        holder[slot.name] = {number, source.units};
      } else {
        holder[slot.name] = number;
      }
    }
    Filter filter(plant);
    ASSERT_EQ(filter->Size(), 1);
    const double expected = static_cast<double>(101 + first);
    EXPECT_NEAR(filter.values().*source.field, expected, 1e-9 * expected) << first;
  }
}

TEST(FilterRecord, Tells_flows_and_densities_in_the_slots_of_a_stream) {
  for (const auto& [category, solids] : {std::pair("EF", 400.0), std::pair("ECT", 450.0)}) {
    PlantJson plant = filterPlant("OTHER", category);
    recordOf(plant) = {
        {"LIQUID MASS FLOW", {6000, "LB/H"}}, {"LIQUID MASS DENSITY", {60, "PCF"}},
        {"SOLID MASS FLOW", {400, "LB/H"}},   {"SOLID MASS DENSITY", {80, "PCF"}},
        {"TOTAL MASS FLOW", {6500, "LB/H"}},  {"VAPOR MASS FLOW", {50, "LB/H"}},
    };
    Filter filter(plant);
    filter->Size();
    const double liquid = 100 / (std::string_view(category) == "ECT" ? kCfhInGpm : 1);
    EXPECT_DOUBLE_EQ(filter.values().liquid_flow, liquid);
    EXPECT_DOUBLE_EQ(filter.values().solid_mass_flow, solids);
    EXPECT_DOUBLE_EQ(filter.values().solid_vol_flow, solids / 80);
  }
}

TEST(FilterRecord, May_hold_anything) {
  PlantJson plant = filterPlant("ROTY DRUM");
  recordOf(plant) = {{"CpSurfaceArea", "wide"},
                     {"CpDiameter", {"a", "list"}},
                     {"CpLength", {-5, "INCHES"}},
                     {"CpNumberItems", "three"},
                     {"CpLiquidFlowrate", ""}};
  Filter filter(plant);
  EXPECT_EQ(filter->Size(), 1);
  EXPECT_EQ(filter.values().num_units, 1);
  EXPECT_EQ(filter.values().filter_area, 100);
  EXPECT_DOUBLE_EQ(filter.values().liquid_flow, 1000);
}

TEST(FilterWithoutBlock, Is_sized_from_its_record) {
  PlantJson plant = filterPlant("ROTY DRUM");
  plant.erase("blocks");
  itemOf(plant).erase("block");
  recordOf(plant)["CpSurfaceArea"] = {50, "SF"};
  Filter filter(plant);
  EXPECT_EQ(filter->Size(), 1);
  EXPECT_EQ(filter.values().filter_area, 100);
}

// --- Refusal, progress, form --------------------------------------------------------------------

TEST(FilterWithoutLiquid, Is_refused_and_told_of_when_dialogs_are_on) {
  PlantJson plant = filterPlant("OTHER");
  slotsOf(plant, "F").erase("LIQUID MASS FLOW");
  for (const int interactive : {0, 1}) {
    Filter filter(plant, interactive);
    EXPECT_EQ(filter->Size(), 0);
    EXPECT_EQ(filter->Errors().GetLength(), 1);
    EXPECT_TRUE(holds(filter->Errors(), "No inlet liquid flow specified."));
    EXPECT_EQ(filter.plant.dialogTexts().size(), interactive == 1 ? 1 : 0);
    EXPECT_EQ(filter.values().filter_area, 0);
  }
}

TEST(FilterWithoutLiquid, Of_a_given_flow_is_sized) {
  PlantJson plant = filterPlant("OTHER");
  slotsOf(plant, "F").erase("LIQUID MASS FLOW");
  recordOf(plant)["CpLiquidFlowrate"] = {5, "CFH"};
  EXPECT_EQ(Filter(plant)->Size(), 1);
}

TEST(FilterProgress, Is_told_in_order) {
  const std::vector<std::pair<int, std::string>> intake = {
      {35, "Checking inlets.."},
      {35, "Checking exits..."},
      {35, "Obtaining inlet streams..."},
      {40, "Obtained inlet streams."},
      {41, "Obtaining inlet stream flows.."},
      {50, "Completed writing inlet stream connectivity information."},
      {55, "Obtained solid and liquid flows from inlet streams."},
      {60, "Obtained simulator data"},
      {60, "Performing sizing calculations"}};
  Filter filter(filterPlant("OTHER"));
  auto progress = filter.progressOf([](CFltObj& object) { object.Size(); });
  ASSERT_GT(progress.size(), intake.size());
  progress.resize(intake.size());
  EXPECT_EQ(progress, intake);
}

TEST(FilterForm, Does_not_exist) {
  expectNoForm<CFltObj>(filterPlant("OTHER"));
}

}  // namespace
}  // namespace sizewright
