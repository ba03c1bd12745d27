#include <gtest/gtest.h>

#include "vessels/vessel_plant.h"

namespace sizewright {
namespace {

using D = VesselData;

// --- User dimensions
// ------------------------------------------------------------------------------

struct SourceCase {
  const char* item;
  const char* where;  // "record" or "block"
  const char* slot;
  PlantJson value;
  double D::*field;
  double expected;
};

void PrintTo(const SourceCase& row, std::ostream* out) {
  *out << row.item << ' ' << row.where << ' ' << row.slot;
}

class VesselDimension : public testing::TestWithParam<SourceCase> {};

constexpr double kCubicFootPerGallon = 231.0 / 1728.0;

INSTANTIATE_TEST_SUITE_P(
    EverySource, VesselDimension,
    testing::Values(
        SourceCase{"GAS HOLDER", "record", "CpGasVolume", {100, "CF"}, &D::capacity, 100},
        SourceCase{"GAS HOLDER", "block", "CAPACITY", {100, "CF"}, &D::capacity, 100},
        SourceCase{"CYLINDER", "record", "CpLiquidVolume", {100, "CF"}, &D::capacity, 100},
        SourceCase{"CYLINDER", "block", "CAPACITY", {100, "CF"}, &D::capacity, 100},
        SourceCase{"CYLINDER",
                   "record",
                   "CAPACITY (SIM)",
                   {10, "GALLONS"},
                   &D::capacity,
                   10 * kCubicFootPerGallon},
        SourceCase{"CYLINDER", "block", "CAPACITY (SIM)", {100, "CF"}, &D::capacity, 100},
        SourceCase{
            "CYLINDER", "record", "CpVesselDiameter", {3, "M"}, &D::ves_dia, 3 * kFeetPerMetre},
        SourceCase{"CYLINDER", "block", "Diameter", {7, "FEET"}, &D::ves_dia, 7},
        SourceCase{"CYLINDER", "record", "DIAMETER (SIM)", {7, "FEET"}, &D::ves_dia, 7},
        SourceCase{"CYLINDER", "block", "DIAMETER (SIM)", {7, "FEET"}, &D::ves_dia, 7},
        SourceCase{"CYLINDER", "record", "CpTangentTangentHeight", {9, "FEET"}, &D::ves_height, 9},
        SourceCase{"CYLINDER", "block", "vessel t-t height", {9, "FEET"}, &D::ves_height, 9},
        SourceCase{"CYLINDER", "record", "CpTangentTangentLength", {9, "FEET"}, &D::ves_height, 9},
        SourceCase{"CYLINDER", "block", "vessel t-t length", {9, "FEET"}, &D::ves_height, 9},
        SourceCase{"CYLINDER", "record", "CpVesselHeight", {9, "FEET"}, &D::ves_height, 9},
        SourceCase{"CYLINDER", "block", "height", {9, "FEET"}, &D::ves_height, 9},
        SourceCase{"CYLINDER", "record", "CpDripLegDiameter", {2, "FEET"}, &D::boot_dia, 2},
        SourceCase{"CYLINDER", "block", "Diameter of drip leg", {2, "FEET"}, &D::boot_dia, 2},
        SourceCase{"CYLINDER", "record", "CpDripLegLength", {4, "FEET"}, &D::boot_ht, 4},
        SourceCase{"CYLINDER", "block", "Length of drip leg", {4, "FEET"}, &D::boot_ht, 4}));

TEST_P(VesselDimension, Is_read) {
  const SourceCase& row = GetParam();
  PlantJson plant = vesselPlant("DVT", row.item);
  (std::string(row.where) == "block" ? blockOf(plant) : recordOf(plant))[row.slot] = row.value;
  VesselAtHand vessel(plant);
  EXPECT_EQ(vessel->GetLastInfo(), 1);
  EXPECT_NEAR(vessel.values().*row.field, row.expected, 1e-9 * row.expected);
}

TEST(VesselIntake, An_earlier_source_of_a_dimension_outranks_a_later_one) {
  PlantJson plant = drumPlant();
  recordOf(plant)["CpVesselHeight"] = {9, "FEET"};
  blockOf(plant)["vessel t-t length"] = {8, "FEET"};
  recordOf(plant)["CpTangentTangentLength"] = {7, "FEET"};
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  EXPECT_EQ(vessel.values().ves_height, 7);
}

struct TankCase {
  const char* plantUnits;
  PlantJson record;
  PlantJson block;
  double cubicFeet;
};

class TankCapacity : public testing::TestWithParam<TankCase> {};
constexpr double kCubicFeetPerM3 = 1 / 0.028316846592;
INSTANTIATE_TEST_SUITE_P(EverySource, TankCapacity,
                         testing::Values(TankCase{"customary",
                                                  {{"CpLiquidVolumeGallonsBarrels", 1000}},
                                                  PlantJson::object(),
                                                  1000 * kCubicFootPerGallon},
                                         TankCase{"metric",
                                                  {{"CpLiquidVolumeGallonsBarrels", 1000}},
                                                  PlantJson::object(),
                                                  1000 * kCubicFeetPerM3},
                                         TankCase{"customary",
                                                  {{"CpLiquidVolumeGallonsBarrels", 1000},
                                                   {"CpVolumeUnits", "M3"}},
                                                  {{"Capacity units", "GALLONS"}},
                                                  1000 * kCubicFeetPerM3},
                                         TankCase{"customary",
                                                  PlantJson::object(),
                                                  {{"CAPACITY", 50}, {"Capacity units", "M3"}},
                                                  50 * kCubicFeetPerM3},
                                         // The number's own unit does not count.
                                         TankCase{"customary",
                                                  {{"CpLiquidVolumeGallonsBarrels", {1000, "M3"}}},
                                                  PlantJson::object(),
                                                  1000 * kCubicFootPerGallon}));

TEST_P(TankCapacity, Has_its_unit_in_another_slot) {
  PlantJson plant = vesselPlant("DVT", "STORAGE");
  plant["units"] = GetParam().plantUnits;
  recordOf(plant) = GetParam().record;
  blockOf(plant).update(GetParam().block);
  VesselAtHand tank(plant);
  tank->GetLastInfo();
  EXPECT_NEAR(tank.values().capacity, GetParam().cubicFeet, 1e-9 * GetParam().cubicFeet);
  tank->GetLastInfo();  // is not converted once more
  EXPECT_NEAR(tank.values().capacity, GetParam().cubicFeet, 1e-9 * GetParam().cubicFeet);
}

// --- Process information and criteria
// ---------------------------------------------------------------

struct QuantityCase {
  const char* category;
  const char* item;
  const char* name;
  double D::*field;
  const char* units;
  double missing;  // value without project entry and criterion
  bool fromProject = true;
  bool fromCriteria = true;
};

void PrintTo(const QuantityCase& row, std::ostream* out) {
  *out << row.category << ' ' << row.item << ' ' << row.name;
}

class VesselQuantity : public testing::TestWithParam<QuantityCase> {
 protected:
  static constexpr double kGiven = 0.75;
  static PlantJson given() {
    const char* units = GetParam().units;
    if (*units == '\0') return kGiven;
    return {kGiven, units};
  }
  static double sizeOf(const VesselAtHand& vessel) { return vessel.values().*GetParam().field; }
};

const char* const kRatio = "Process Vessel Height to Diameter Ratio";
const char* const kStorageRatio = "Storage Vessel Height to Diameter Ratio";
const char* const kFactor = "Design factor multiplier for disengagement velocity";

INSTANTIATE_TEST_SUITE_P(
    EveryRow, VesselQuantity,
    testing::Values(
        QuantityCase{"DVT", "CYLINDER", "CpDesignGaugePressure", &D::design_press, "PSI", 0, true,
                     false},
        QuantityCase{"DVT", "CYLINDER", kRatio, &D::ht_dia_ratio, "", 3.0},
        QuantityCase{"DVT", "CYLINDER", "Residence Time", &D::res_time, "MINUTE", 10.0},
        QuantityCase{"DVT", "CYLINDER", "Separation factor", &D::kv_factor, "", 0.0},
        QuantityCase{"DVT", "CYLINDER", "Minimum vessel diameter", &D::min_ves_dia, "FEET", 0.0},
        QuantityCase{"DVT", "CYLINDER", kFactor, &D::disengage_factor, "", 0.5},
        QuantityCase{"DHT", "HORIZ DRUM", kFactor, &D::disengage_factor, "", 0.0},
        QuantityCase{"DVT", "CYLINDER", "Average liquid particle diameter", &D::particle_dia,
                     "FEET", 0.0125},
        QuantityCase{"DHT", "HORIZ DRUM", "Vapor area / cross sectional area", &D::r_vc, "", 0.2},
        QuantityCase{"DVT", "CYLINDER", "Vapor area / cross sectional area", &D::r_vc, "", 1.0,
                     false, false},
        QuantityCase{"DHT", "HORIZ DRUM", "Separation factor multiplier", &D::sep_factor_mult, "",
                     1.25},
        QuantityCase{"DVT", "CYLINDER", "Separation factor multiplier", &D::sep_factor_mult, "",
                     1.0, false, false},
        QuantityCase{"DHT", "HORIZ DRUM", "Minimum bootleg length", &D::min_boot_ht, "FEET", 3.0},
        QuantityCase{"DVT", "CYLINDER", "Minimum bootleg length", &D::min_boot_ht, "FEET", 3.0,
                     false},
        QuantityCase{"DHT", "HORIZ DRUM", "Minimum bootleg diameter", &D::min_boot_dia, "FEET",
                     1.5},
        QuantityCase{"DHT", "HORIZ DRUM", "Bootleg liquid velocity", &D::boot_liq_velocity, "FPM",
                     0.5},
        QuantityCase{"DVT", "CYLINDER", "Minimum disengagement height", &D::ht_dis, "FEET", 0.0},
        QuantityCase{"DHT", "HORIZ DRUM", "Minimum disengagement height", &D::ht_dis, "FEET", 0.0,
                     false},
        QuantityCase{"DVT", "CYLINDER", "Minimum height above the mist eliminator", &D::ht_hll,
                     "FEET", 0.0},
        QuantityCase{"DVT", "CYLINDER", "Height of mist eliminator", &D::ht_me, "FEET", 0.0},
        QuantityCase{"DVT", "CYLINDER", "Minimum Ht. Btw Low and High Liquid Level Taps",
                     &D::min_liq_ht, "FEET", 4.0},
        QuantityCase{"DVT", "CYLINDER", "Ht. Btw Inlet Nozzle and High Liquid Level Tap",
                     &D::ht_btw_InNozz_HLLTap, "FEET", 2.0},
        QuantityCase{"DVT", "CYLINDER", "Ht. Btw Low Liquid Level Tap and Tangent Line",
                     &D::ht_LLL_tangent, "FEET", 0.5},
        QuantityCase{"DVT", "STORAGE", "CpDesignGaugePressure", &D::design_press, "PSI", 0, true,
                     false},
        QuantityCase{"DVT", "STORAGE", kStorageRatio, &D::ht_dia_ratio, "", 0.5},
        QuantityCase{"DVT", "SPHERE", kStorageRatio, &D::ht_dia_ratio, "", 0.5},
        QuantityCase{"DVT", "SPHEROID", kStorageRatio, &D::ht_dia_ratio, "", 0.4},
        QuantityCase{"DVT", "STORAGE", "Holding Hours in a Day", &D::holding_hours, "", 24.0},
        QuantityCase{"DVT", "STORAGE", "Number of Holding Days", &D::holding_days, "", 30.0},
        QuantityCase{"DVT", "STORAGE", "Vapor Free Space (% of Total Storage Vessel Volume)",
                     &D::vapor_free_space, "", 10.0},
        QuantityCase{"DAT", "OFF MACH", "CpDesignGaugePressure", &D::design_press, "PSI", 0, true,
                     false},
        QuantityCase{"DAT", "OFF MACH", kRatio, &D::ht_dia_ratio, "", 3.0},
        QuantityCase{"EAT", "OFF MACH", "Residence Time", &D::res_time, "MINUTE", 10.0},
        QuantityCase{"DAT", "OFF MACH", "Minimum disengagement height", &D::ht_dis, "FEET", 1.0}));

TEST_P(VesselQuantity, Has_a_default) {
  VesselAtHand vessel(vesselPlant(GetParam().category, GetParam().item));
  vessel->GetLastInfo();
  EXPECT_DOUBLE_EQ(sizeOf(vessel), GetParam().missing);
}

TEST_P(VesselQuantity, Comes_from_the_project) {
  PlantJson plant = vesselPlant(GetParam().category, GetParam().item);
  projectOf(plant)[GetParam().name] = given();
  criteriaOf(plant)[GetParam().name] = 5.0;
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  const double otherwise = GetParam().fromCriteria ? 5.0 : GetParam().missing;
  EXPECT_DOUBLE_EQ(sizeOf(vessel), GetParam().fromProject ? kGiven : otherwise);
}

TEST_P(VesselQuantity, Comes_from_the_criteria) {
  PlantJson plant = vesselPlant(GetParam().category, GetParam().item);
  criteriaOf(plant)[GetParam().name] = given();
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  EXPECT_DOUBLE_EQ(sizeOf(vessel), GetParam().fromCriteria ? kGiven : GetParam().missing);
}

TEST_P(VesselQuantity, Is_not_read_from_the_project_for_a_spreadsheet) {
  PlantJson plant = vesselPlant(GetParam().category, GetParam().item);
  projectOf(plant)[GetParam().name] = given();
  VesselAtHand vessel(plant, 0, "Spreadsheet");
  vessel->GetLastInfo();
  EXPECT_DOUBLE_EQ(sizeOf(vessel), GetParam().missing);
}

TEST(VesselIntake, Metric_projects_have_level_defaults_of_their_own) {
  PlantJson plant = drumPlant();
  plant["units"] = "metric";
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  EXPECT_NEAR(vessel.values().min_liq_ht, 1.25 * kFeetPerMetre, 1e-12);
  EXPECT_NEAR(vessel.values().ht_btw_InNozz_HLLTap, 0.6 * kFeetPerMetre, 1e-12);
  EXPECT_NEAR(vessel.values().ht_LLL_tangent, 0.15 * kFeetPerMetre, 1e-12);
}

TEST(VesselIntake, The_ratio_follows_the_design_pressure) {
  for (const auto& [pressure, ratio] : {std::pair(250.0, 3.0), std::pair(250.1, 4.0),
                                        std::pair(500.0, 4.0), std::pair(500.1, 5.0)}) {
    for (const char* category : {"DVT", "DAT"}) {
      PlantJson plant = vesselPlant(category, "CYLINDER");
      projectOf(plant)["CpDesignGaugePressure"] = {pressure, "PSI"};
      VesselAtHand vessel(plant);
      vessel->GetLastInfo();
      EXPECT_EQ(vessel.values().ht_dia_ratio, ratio) << pressure;
    }
  }
}

TEST(VesselIntake, A_negative_ratio_of_a_process_vessel_stands_until_sizing) {
  PlantJson plant = drumPlant();
  projectOf(plant)[kRatio] = -2.0;
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  EXPECT_EQ(vessel.values().ht_dia_ratio, -2.0);  // the criterion is read at exactly 0 only
  vessel->Size();
  EXPECT_EQ(vessel.values().ht_dia_ratio, 3.0);
}

TEST(VesselIntake, The_separation_method_comes_from_project_criterion_or_default) {
  const char* const slot = "Vapor/Liquid Separator Sizing Method";
  PlantJson plant = drumPlant();
  const auto method = [&plant] {
    VesselAtHand vessel(plant);
    vessel->GetLastInfo();
    return std::string(vessel.values().sep_method.view());
  };
  EXPECT_EQ(method(), "Liquid Entrainment Method");
  criteriaOf(plant)[slot] = "by criterion";
  EXPECT_EQ(method(), "by criterion");
  projectOf(plant)[slot] = "by project";
  EXPECT_EQ(method(), "by project");
}

// --- Agitators
// --------------------------------------------------------------------------------------

struct AgitatorCase {
  const char* type;
  double upper;
  double lower;
  double third;
  const char* description;
};

class Agitator : public testing::TestWithParam<AgitatorCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryType, Agitator,
    testing::Values(
        AgitatorCase{"DIRECT", 3.0, 0.25, 1800, "Portable Direct Drive Agitator"},
        AgitatorCase{"fixed prop", 100, 2, 1800, "Fixed Propeller Gear Motor Type Agitator"},
        AgitatorCase{"GEAR DRIVE", 5, 0.25, 400, "Portable Gear Drive Agitator"},
        AgitatorCase{" MECH SEAL ", 200, 2, 0, "Agitator, Mech-Seal, Variable Diameter"},
        AgitatorCase{"PORT PROP", 7.5, 0.33, 1800, "Portable Propeller Agitator"},
        AgitatorCase{"ANCHOR", 5, 0.75, 400, "Agitator-Fixed, Geared, Anchor, Stuff. Box"},
        AgitatorCase{"whatever", 5, 0.75, 400, "Agitator-Fixed, Geared, Anchor, Stuff. Box"}));

TEST_P(Agitator, Is_described_by_its_type) {
  PlantJson plant = vesselPlant("DAT", "OFF MACH");
  projectOf(plant)["Agitator Type"] = GetParam().type;
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  const AgitatorData& agitator = vessel.values().agitator;
  EXPECT_EQ(agitator.agitator_upper_value, GetParam().upper);
  EXPECT_EQ(agitator.agitator_lower_value, GetParam().lower);
  EXPECT_EQ(agitator.agitator_third_value, GetParam().third);
  EXPECT_EQ(agitator.agitator_desc.view(), GetParam().description);
}

TEST(AgitatorDefaults, Stand_where_nothing_is_given) {
  VesselAtHand vessel(vesselPlant("DAT", "OFF MACH"));
  vessel->GetLastInfo();
  const AgitatorData& agitator = vessel.values().agitator;
  EXPECT_EQ(agitator.num_impellers, 1);
  EXPECT_EQ(agitator.driver_type.view(), "STD");
  EXPECT_EQ(agitator.impeller_type.view(), "T6FB");
  EXPECT_EQ(agitator.agitator_type.view(), "ANCHOR");
}

TEST(AgitatorDefaults, Give_way_to_project_and_criterion) {
  PlantJson plant = vesselPlant("EAT", "OFF MACH");
  projectOf(plant) = {
      {"CpNumberImpellers", 2.9}, {"CpDriverType", "VFD"}, {"CpImpellerType", "PBT"}};
  criteriaOf(plant)["Agitator Type"] = "DIRECT";
  VesselAtHand vessel(plant);
  vessel->GetLastInfo();
  const AgitatorData& agitator = vessel.values().agitator;
  EXPECT_EQ(agitator.num_impellers, 2);
  EXPECT_EQ(agitator.driver_type.view(), "VFD");
  EXPECT_EQ(agitator.impeller_type.view(), "PBT");
  EXPECT_EQ(agitator.agitator_type.view(), "DIRECT");
}

}  // namespace
}  // namespace sizewright
