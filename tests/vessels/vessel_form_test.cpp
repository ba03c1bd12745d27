#include <gtest/gtest.h>

#include "vessels/vessel_plant.h"

namespace sizewright {
namespace {

using D = VesselData;
using Rows = std::vector<std::pair<std::string, std::string>>;

struct FormCase {
  const char* label;
  const char* given;
  double D::*field;
  double expected;
};

void PrintTo(const FormCase& row, std::ostream* out) {
  *out << row.label;
}

class VesselFormIn : public testing::TestWithParam<FormCase> {};

INSTANTIATE_TEST_SUITE_P(
    EveryLabel, VesselFormIn,
    testing::Values(
        FormCase{"Residence Time", "2\nHOUR", &D::res_time, 2},  // as entered
        FormCase{"Process Vessel Height to Diameter Ratio", "3.5", &D::ht_dia_ratio, 3.5},
        FormCase{"Minimum disengagement height", "304.8\nMM", &D::ht_dis, 1},
        FormCase{"Minimum height above the mist eliminator", "2\nFEET", &D::ht_hll, 2},
        FormCase{"Height of mist eliminator", "2\nFEET", &D::ht_me, 2},
        FormCase{"Minimum Ht. Btw Low and High Liquid Level Taps", "2\nFEET", &D::min_liq_ht, 2},
        FormCase{"Ht. Btw Inlet Nozzle and High Liquid Level Tap", "2\nFEET",
                 &D::ht_btw_InNozz_HLLTap, 2},
        FormCase{"Ht. Btw Low Liquid Level Tap and Tangent Line", "2\nFEET", &D::ht_LLL_tangent, 2},
        FormCase{"Separation factor", "0.3", &D::entered_sep_factor, 0.3},
        FormCase{"Minimum vessel diameter", "3.048\nM", &D::min_ves_dia, 10},
        FormCase{"Design factor multiplier for disengagement velocity", "0.4", &D::disengage_factor,
                 0.4},
        FormCase{"Vapor area / cross sectional area", "0.3", &D::r_vc, 0.3},
        FormCase{"Separation factor multiplier", "1.5", &D::sep_factor_mult, 1.5},
        FormCase{"Average liquid particle diameter", "0.01\nFEET", &D::particle_dia, 0.01},
        FormCase{"Minimum bootleg length", "2\nFEET", &D::min_boot_ht, 2},
        FormCase{"Minimum bootleg diameter", "2\nFEET", &D::min_boot_dia, 2},
        FormCase{"Bootleg liquid velocity", "0.3048\nM/MIN", &D::boot_liq_velocity, 1},
        FormCase{"CpVesselDiameter", "7\nFEET", &D::ves_dia, 7},
        FormCase{"CpTangentTangentHeight", "17\nFEET", &D::ves_height, 17},
        FormCase{"CpLiquidVolume", "1\nM3", &D::capacity, 1 / 0.028316846592},
        FormCase{"CpDripLegDiameter", "2\nFEET", &D::boot_dia, 2},
        FormCase{"CpDripLegLength", "2\nFEET", &D::boot_ht, 2},
        FormCase{"Holding Hours in a Day", "12", &D::holding_hours, 12},
        FormCase{"Number of Holding Days", "7", &D::holding_days, 7},
        FormCase{"Vapor Free Space (% of Total Storage Vessel Volume)", "20", &D::vapor_free_space,
                 20}));

TEST_P(VesselFormIn, Is_taken_in_the_fields_unit) {
  VesselAtHand vessel(drumPlant());
  EXPECT_EQ(setForm(*vessel.object, {{GetParam().label, GetParam().given}}), 1);
  EXPECT_NEAR(vessel.values().*GetParam().field, GetParam().expected, 1e-9 * GetParam().expected);
}

TEST_P(VesselFormIn, Zeroes_its_field_when_absent) {
  VesselAtHand vessel(drumPlant());
  setForm(*vessel.object, {{GetParam().label, GetParam().given}});
  setForm(*vessel.object, {{"INLET STREAM 1", "F"}});
  EXPECT_EQ(vessel.values().*GetParam().field, 0.0);
}

TEST_P(VesselFormIn, Without_a_unit_is_taken_as_it_stands) {
  VesselAtHand vessel(drumPlant());
  setForm(*vessel.object, {{GetParam().label, "0.25"}});
  EXPECT_EQ(vessel.values().*GetParam().field, 0.25);
}

TEST(VesselForm, The_ratio_has_one_label_for_drums_and_another_for_the_rest) {
  for (const auto& [item, process] :
       {std::pair("CYLINDER", true), std::pair("horiz drum", true), std::pair("STORAGE", false)}) {
    VesselAtHand vessel(vesselPlant("DVT", item));
    setForm(*vessel.object, {{"Process Vessel Height to Diameter Ratio", "4"},
                             {"Storage Vessel Height to Diameter Ratio", "0.6"}});
    EXPECT_EQ(vessel.values().ht_dia_ratio, process ? 4 : 0.6) << item;
  }
}

TEST(VesselForm, A_separation_factor_is_turned_into_Kv) {
  VesselAtHand vessel(drumPlant());
  setForm(*vessel.object, {{"Separation factor", "0.3"}});
  EXPECT_EQ(vessel.values().entered_sep_factor, 0.3);
  EXPECT_DOUBLE_EQ(vessel.values().kv_factor, vaporLoadFactor(0.3));
  for (const char* none : {"0", "-1"}) {
    setForm(*vessel.object, {{"Separation factor", none}});
    EXPECT_EQ(vessel.values().kv_factor, 0.0);
  }
}

TEST(VesselForm, The_method_is_trimmed) {
  VesselAtHand vessel(drumPlant());
  for (const char* method : {"Bubbles  ", "Bubbles\nmore"}) {
    setForm(*vessel.object, {{"Vapor/Liquid Separator Sizing Method", method}});
    EXPECT_EQ(vessel.values().sep_method.view(), "Bubbles");
  }
}

TEST(VesselForm, Streams_are_three_a_direction_with_NONE_for_the_missing) {
  VesselAtHand vessel(drumPlant());
  vessel->GetLastInfo();
  setForm(*vessel.object,
          {{"INLET STREAM 2", "F"}, {"OUTLET STREAM 1", ""}, {"OUTLET STREAM 3", "L"}});
  const Rows rows = formOf(*vessel.object);
  const Rows streams(rows.begin(), rows.begin() + 6);
  EXPECT_EQ(streams, (Rows{{"INLET STREAM 1", "NONE"},
                           {"INLET STREAM 2", "F"},
                           {"INLET STREAM 3", "NONE"},
                           {"OUTLET STREAM 1", "NONE"},
                           {"OUTLET STREAM 2", "NONE"},
                           {"OUTLET STREAM 3", "L"}}));
  EXPECT_EQ(vessel->Size(), 1);
  EXPECT_DOUBLE_EQ(vessel.values().total_inlet_vap_mass_flow, 20000);
}

TEST(VesselForm, An_empty_form_changes_nothing) {
  VesselAtHand vessel(drumPlant());
  setForm(*vessel.object, {{"CpVesselDiameter", "7\nFEET"}});
  EXPECT_EQ(setForm(*vessel.object, {}), 0);
  EXPECT_EQ(vessel.values().ves_dia, 7);
}

// Every field of a drum with a unit system's unit text beside its label.
struct OutCase {
  const char* label;
  double customary;
  const char* units;
  double metric;
  const char* metricUnits;
};

TEST(VesselForm, Shows_every_field_in_order) {
  const Rows given = {{"INLET STREAM 1", "F"},
                      {"Residence Time", "8"},
                      {"Process Vessel Height to Diameter Ratio", "3.5"},
                      {"Minimum disengagement height", "1\nFEET"},
                      {"Minimum height above the mist eliminator", "2\nFEET"},
                      {"Height of mist eliminator", "3\nFEET"},
                      {"Minimum Ht. Btw Low and High Liquid Level Taps", "4\nFEET"},
                      {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", "5\nFEET"},
                      {"Ht. Btw Low Liquid Level Tap and Tangent Line", "6\nFEET"},
                      {"Separation factor", "1"},
                      {"Minimum vessel diameter", "7\nFEET"},
                      {"Vapor/Liquid Separator Sizing Method", "Bubbles"},
                      {"Design factor multiplier for disengagement velocity", "0.25"},
                      {"Vapor area / cross sectional area", "0.5"},
                      {"Separation factor multiplier", "0.75"},
                      {"Average liquid particle diameter", "9\nFEET"},
                      {"Minimum bootleg length", "10\nFEET"},
                      {"Minimum bootleg diameter", "11\nFEET"},
                      {"Bootleg liquid velocity", "12\nFPM"},
                      {"CpVesselDiameter", "13\nFEET"},
                      {"CpTangentTangentHeight", "14\nFEET"},
                      {"CpLiquidVolume", "15\nCF"},
                      {"CpDripLegDiameter", "16\nFEET"},
                      {"CpDripLegLength", "17\nFEET"},
                      {"Holding Hours in a Day", "18"},
                      {"Number of Holding Days", "19"},
                      {"Vapor Free Space (% of Total Storage Vessel Volume)", "20"}};
  const double kv = vaporLoadFactor(1.0);
  const OutCase expected[] = {
      {"Residence Time", 8, "MINUTES", 8, "MINUTES"},
      {"Process Vessel Height to Diameter Ratio", 3.5, "", 3.5, ""},
      {"Storage Vessel Height to Diameter Ratio", 3.5, "", 3.5, ""},
      {"Minimum disengagement height", 1, "FEET", 304.8, "MM"},
      {"Minimum height above the mist eliminator", 2, "FEET", 609.6, "MM"},
      {"Height of mist eliminator", 3, "FEET", 914.4, "MM"},
      {"Minimum Ht. Btw Low and High Liquid Level Taps", 4, "FEET", 1219.2, "MM"},
      {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", 5, "FEET", 1524, "MM"},
      {"Ht. Btw Low Liquid Level Tap and Tangent Line", 6, "FEET", 1828.8, "MM"},
      {"Separation factor", kv, "", kv, ""},
      {"Minimum vessel diameter", 7, "FEET", 2133.6, "MM"},
      {"Vapor/Liquid Separator Sizing Method", 0, "Bubbles", 0, "Bubbles"},
      {"Design factor multiplier for disengagement velocity", 0.25, "", 0.25, ""},
      {"Vapor area / cross sectional area", 0.5, "", 0.5, ""},
      {"Separation factor multiplier", 0.75, "", 0.75, ""},
      {"Average liquid particle diameter", 9, "FEET", 2743.2, "MM"},
      {"Minimum bootleg length", 10, "FEET", 3048, "MM"},
      {"Minimum bootleg diameter", 11, "FEET", 3352.8, "MM"},
      {"Bootleg liquid velocity", 12, "FPM", 3.6576, "M/MIN"},
      {"CpVesselDiameter", 13, "FEET", 3962.4, "MM"},
      {"CpTangentTangentHeight", 14, "FEET", 4267.2, "MM"},
      {"CpLiquidVolume", 15, "CF", 15 * 0.028316846592, "M3"},
      {"CpDripLegDiameter", 16, "FEET", 4876.8, "MM"},
      {"CpDripLegLength", 17, "FEET", 5181.6, "MM"},
      {"Holding Hours in a Day", 18, "", 18, ""},
      {"Number of Holding Days", 19, "", 19, ""},
      {"Vapor Free Space (% of Total Storage Vessel Volume)", 20, "", 20, ""}};
  for (const bool metric : {false, true}) {
    PlantJson plant = drumPlant();
    plant["units"] = metric ? "metric" : "customary";
    VesselAtHand vessel(plant);
    setForm(*vessel.object, given);
    const Rows rows = formOf(*vessel.object);
    ASSERT_EQ(rows.size(), 6 + std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
      const OutCase& row = expected[i];
      const auto& [label, value] = rows[6 + i];
      EXPECT_EQ(label, row.label);
      const std::string units = metric ? row.metricUnits : row.units;
      const double number = metric ? row.metric : row.customary;
      if (number == 0) {
        EXPECT_EQ(value, units);
        continue;
      }
      const std::size_t line = value.find('\n');
      EXPECT_EQ(line == std::string::npos ? "" : value.substr(line + 1), units) << label;
      EXPECT_NEAR(std::stod(value), number, 1e-9 * number) << label;
    }
  }
}

TEST(VesselForm, Shows_the_method_even_when_it_is_empty_and_nothing_that_is_0) {
  VesselAtHand vessel(drumPlant());
  EXPECT_EQ(formOf(*vessel.object), (Rows{{"Vapor/Liquid Separator Sizing Method", ""}}));
}

}  // namespace
}  // namespace sizewright
