#include <gtest/gtest.h>

#include <cmath>

#include "sizewright/host/text.h"
#include "vessels/vessel_plant.h"

namespace sizewright {
namespace {

constexpr double kPi = 3.1415926536;
constexpr const char* kNoLiquid =
    "Both total_exit_light_liq_vol_flow and total_inlet_liq_vol_flow were found to be not > 0.  No "
    "liquid flow.";
constexpr const char* kNoVelocity =
    "Vapor velocity cannot be calculated. Diameter will be based on liquid flow.";
constexpr const char* kDryDensity =
    "Exit liquid flow is not present. Exit light liquid density assumed to be 62.4 lb/cf.";
constexpr const char* kNoSize =
    "Vessel Capacity could not be calculated.\nPlease check design information.";

double upToHalf(double feet) {
  return std::ceil(feet * 2) / 2;
}
int countOf(const CStrList& list, std::string_view text) {
  int count = 0;
  for (const std::string& entry : list.texts()) count += entry == text ? 1 : 0;
  return count;
}
PlantJson horizontalPlant() {
  return vesselPlant("DHT", "HORIZ DRUM");
}
void takeLiquidAway(PlantJson& plant) {
  slotsOf(plant, "F").erase("LIQUID MASS FLOW");
  slotsOf(plant, "L").erase("LIQUID MASS FLOW");
}

// Kv and velocity (FT/H) of the plant's drum.
double velocityOfPlant(double multiplier) {
  const double factor = 30000.0 / 20000.0 * std::sqrt(0.5 / 50.0);
  const double x = std::log(factor);
  const double kv = std::exp(-1.877478097 - 0.8145804597 * x - 0.1870744085 * x * x -
                             0.0145228667 * std::pow(x, 3) - 0.0010148518 * std::pow(x, 4));
  return kv * multiplier * std::sqrt((50 - 0.5) / 0.5) * 3600;
}

// --- Vertical drums -----------------------------------------------------------------------------

TEST(VerticalDrum, Is_as_wide_as_the_vapor_asks_and_as_high_as_its_levels) {
  VesselAtHand drum(drumPlant());
  ASSERT_EQ(drum->Size(), 1);
  const double byVapor = std::sqrt(40000 / velocityOfPlant(1.0) * 4 / kPi);
  // 10 minutes of 600 CF/H: D^3 of pi/4 L/D, less the vapor height of 2 FEET, holds 100 CF.
  const double byLiquid = findRoot({0.7853981634 * 3, -0.7853981634 * 2, 0, -100}, 0, 50).x;
  const double diameter = std::max(byVapor, byLiquid);
  const double liquid = std::max(100 * 4 / (kPi * diameter * diameter), 4.0);
  EXPECT_DOUBLE_EQ(drum.values().ves_dia, upToHalf(diameter));
  EXPECT_DOUBLE_EQ(drum.values().ves_height, upToHalf(liquid + 0.5 + 2.0));
  EXPECT_NEAR(drum.values().capacity,
              kPi / 4 * std::pow(drum.values().ves_dia, 2) * drum.values().ves_height, 1e-6);
  EXPECT_EQ(drum.values().r_vc, 1.0);
  EXPECT_EQ(drum.values().sep_factor_mult, 1.0);
  EXPECT_TRUE(noted(*drum.object, "Calc vessel dia rounded up by 1/2 ft"));
  EXPECT_TRUE(noted(*drum.object, "Calc vessel ht rounded up by 1/2 ft"));
  EXPECT_TRUE(
      noted(*drum.object, "Liq. ht calculated based on liq vol(res time) and ves dia calculated."));
}

TEST(VerticalDrum, Warns_of_its_slenderness_in_any_case) {
  VesselAtHand drum(drumPlant(), 1);
  drum->Size();
  const std::vector<std::string> warnings = drum->Warnings().texts();
  ASSERT_GE(warnings.size(), 2u);
  EXPECT_TRUE(warnings[warnings.size() - 2].starts_with("Actual L/D ratio is "));
  EXPECT_EQ(warnings.back(), "User defined L/D ratio from design criteria is 3");
  EXPECT_TRUE(drum.plant.dialogTexts().back().starts_with("Actual L/D ratio is "));
}

TEST(VerticalDrum, Without_any_liquid_has_the_least_level) {
  PlantJson plant = drumPlant();
  takeLiquidAway(plant);
  VesselAtHand drum(plant);
  ASSERT_EQ(drum->Size(), 1);
  EXPECT_DOUBLE_EQ(drum.values().ves_height, 4.0 + 0.5 + 2.0);
  EXPECT_TRUE(warned(*drum.object,
                     "Calculated liquid level (  0.00 ft) is less than the minimum specified in "
                     "the design criteria (  4.00 ft).\nMinimum liquid level used."));
  EXPECT_EQ(countOf(drum->Calculations(), kNoLiquid), 1);
  EXPECT_TRUE(noted(*drum.object,
                    "Added the height between the LowLiqLevel(LowLiqLevel Tap) and the Tangent "
                    "Line (this is to provide space for welding) =  0.50 ft"));
  EXPECT_TRUE(noted(*drum.object,
                    "vapht( 2.00 ft) = ht_btw_InNozz_HLLTap( 2.00 ft) + ht_dis( 0.00 ft) + ht_hll( "
                    "0.00 ft) + ht_me( 0.00 ft)"));
  EXPECT_TRUE(noted(*drum.object, "Totvesht( 6.50 ft)=htliq( 4.50 ft)+ht_vap( 2.00 ft)"));
}

TEST(VerticalDrum, Of_a_user_diameter_is_not_rounded_there) {
  PlantJson plant = drumPlant();
  recordOf(plant)["CpVesselDiameter"] = {5.3, "FEET"};
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  EXPECT_EQ(drum.values().ves_dia, 5.3);
  EXPECT_FALSE(noted(*drum.object, "Calc vessel dia rounded up by 1/2 ft"));
  EXPECT_EQ(drum.values().ves_height, upToHalf(std::max(100 * 4 / (kPi * 5.3 * 5.3), 4.0) + 2.5));
}

TEST(VerticalDrum, Of_a_user_height_is_not_rounded_there) {
  PlantJson plant = drumPlant();
  recordOf(plant)["CpVesselHeight"] = {20.2, "FEET"};
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  EXPECT_EQ(drum.values().ves_height, 20.2);
  EXPECT_FALSE(noted(*drum.object, "Calc vessel ht rounded up by 1/2 ft"));
}

TEST(VerticalDrum, Of_given_capacity_and_height_follows_from_geometry) {
  PlantJson plant = drumPlant();
  recordOf(plant) = {{"CpLiquidVolume", {500, "CF"}}, {"CpVesselHeight", {20, "FEET"}}};
  criteriaOf(plant)["Minimum vessel diameter"] = {30, "FEET"};
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  const double diameter = std::sqrt(500 * 4 / (kPi * 20));
  EXPECT_EQ(drum.values().ves_dia, upToHalf(diameter));  // the minimum is not applied
  EXPECT_NEAR(drum.values().capacity, kPi / 4 * std::pow(upToHalf(diameter), 2) * 20, 1e-6);
  EXPECT_TRUE(noted(*drum.object,
                    "proc_vs_determine_diameter: 1st estim. using capacity and height =  5.64 ft"));
}

TEST(VerticalDrum, Of_a_given_capacity_has_no_vapor_height_added) {
  PlantJson plant = drumPlant();
  recordOf(plant)["CpLiquidVolume"] = {2000, "CF"};
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  const double byLiquid = std::cbrt(2000 * 4 / (kPi * 3));
  const double byVapor = std::sqrt(40000 / velocityOfPlant(1.0) * 4 / kPi);
  const double diameter = std::max(byLiquid, byVapor);
  EXPECT_EQ(drum.values().ves_dia, upToHalf(diameter));
  EXPECT_EQ(drum.values().ves_height, upToHalf(2000 * 4 / (kPi * diameter * diameter)));
}

TEST(VerticalDrum, Is_no_narrower_than_the_minimum) {
  PlantJson plant = drumPlant();
  criteriaOf(plant)["Minimum vessel diameter"] = {30, "FEET"};
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_EQ(drum.values().ves_dia, 30);
  bool told = false;
  for (const std::string& text : drum->Warnings().texts()) {
    told = told || text.ends_with("feet. User specified minimum value 30.00 feet is used.");
  }
  EXPECT_TRUE(told);
}

TEST(VerticalDrum, Too_wide_for_the_cubic_has_no_liquid_diameter) {
  PlantJson plant = drumPlant();
  criteriaOf(plant)["Residence Time"] = {1e6, "MINUTE"};
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_TRUE(warned(*drum.object, "Diameter is outside range 0 to 1000 feet."));
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::sqrt(40000 / velocityOfPlant(1.0) * 4 / kPi)));
}

TEST(VerticalDrum, Takes_the_larger_vapor_flow) {
  PlantJson plant = drumPlant();
  slotsOf(plant, "V")["VAPOR MASS FLOW"] = {80000, "LB/H"};
  VesselAtHand drum(plant);
  drum->Size();
  const double factor = 30000.0 / 80000.0 * std::sqrt(0.5 / 50.0);
  const double velocity = vaporLoadFactor(factor) * std::sqrt(99.0) * 3600;
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::sqrt(160000 / velocity * 4 / kPi)));
}

TEST(VerticalDrum, Of_another_category_than_DVT_has_the_ratio_in_its_vapor_diameter) {
  PlantJson plant = drumPlant();
  itemOf(plant)["category"] = "EVT";
  criteriaOf(plant)["Residence Time"] = {0.001, "MINUTE"};
  criteriaOf(plant)["Ht. Btw Inlet Nozzle and High Liquid Level Tap"] = {0.001, "FEET"};
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_EQ(drum.values().ves_dia,
            upToHalf(std::sqrt(40000 / (kPi / 4 * velocityOfPlant(1.0) * 3))));
}

// --- Vapor velocity
// ---------------------------------------------------------------------------------

struct FactorCase {
  double liquid;  // LB/H of the exit, with equal densities of 0.5 and 50 PCF and 20,000 LB/H vapor
  bool low;
  bool high;
};

class DrumSeparationFactor : public testing::TestWithParam<FactorCase> {};
// F = liquid / 20000 x 0.1
INSTANTIATE_TEST_SUITE_P(AroundTheLimits, DrumSeparationFactor,
                         testing::Values(FactorCase{1190, true, false},
                                         FactorCase{1210, false, false},
                                         FactorCase{1199000, false, false},
                                         FactorCase{1201000, false, true}));

TEST_P(DrumSeparationFactor, Is_held_within_its_range_with_a_warning) {
  PlantJson plant = drumPlant();
  slotsOf(plant, "L")["LIQUID MASS FLOW"] = {GetParam().liquid, "LB/H"};
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_EQ(warned(*drum.object,
                   "Separation factor(less than 0.006) is outside the range. Defaulted to 0.006. "
                   "Kv value maybe incorrect."),
            GetParam().low);
  EXPECT_EQ(warned(*drum.object,
                   "Separation factor(greater than 6) is outside the range. Defaulted to 6. Kv "
                   "value maybe incorrect."),
            GetParam().high);
}

TEST(DrumVelocity, A_positive_Kv_of_the_criteria_is_taken_without_the_factor) {
  PlantJson plant = drumPlant();
  criteriaOf(plant)["Separation factor"] = 0.2;
  slotsOf(plant, "L")["LIQUID MASS FLOW"] = {100, "LB/H"};
  VesselAtHand drum(plant);
  drum->Size();
  const double velocity = 0.2 * std::sqrt(99.0) * 3600;
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::sqrt(40000 / velocity * 4 / kPi)));
  EXPECT_EQ(drum->Warnings().IsMember("Separation factor(less than 0.006) is outside the range. "
                                      "Defaulted to 0.006. Kv value maybe incorrect."),
            0);
}

TEST(DrumVelocity, A_negative_Kv_becomes_0_227) {
  PlantJson plant = drumPlant();
  criteriaOf(plant) = {{"Separation factor", -1.0},
                       {"Residence Time", {0.001, "MINUTE"}},
                       {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", {0.001, "FEET"}}};
  VesselAtHand drum(plant);
  drum->Size();
  const double velocity = 0.227 * std::sqrt(99.0) * 3600;
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::sqrt(40000 / velocity * 4 / kPi)));
}

TEST(DrumVelocity, Without_a_liquid_density_counts_62_4) {
  PlantJson plant = drumPlant();
  takeLiquidAway(plant);
  itemOf(plant)["exits"] = {{"VAPOR OUTLET", {"V"}}};
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_TRUE(warned(*drum.object, kDryDensity));
  EXPECT_EQ(drum.values().light_liq_density, 62.4);
  const double velocity = vaporLoadFactor(0.006) * std::sqrt((62.4 - 0.5) / 0.5) * 3600;
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::sqrt(40000 / velocity * 4 / kPi)));
}

PlantJson bubblePlant() {
  PlantJson plant = drumPlant();
  criteriaOf(plant)["Vapor/Liquid Separator Sizing Method"] = "Bubbles";
  return plant;
}

TEST(DrumVelocity, By_bubbles_takes_the_multiplier) {
  VesselAtHand drum(bubblePlant());
  drum->Size();
  const double velocity = 0.5 * settlingVelocity(0.0125, 0.5, 50).velocity;
  const double byVapor = std::sqrt(40000 / velocity * 4 / kPi);
  const double byLiquid = findRoot({0.7853981634 * 3, -0.7853981634 * 2, 0, -100}, 0, 50).x;
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::max(byVapor, byLiquid)));
}

TEST(DrumVelocity, By_bubbles_warns_of_the_intermediate_region_and_of_large_bubbles) {
  VesselAtHand drum(bubblePlant(), 1);
  drum->Size();
  const double k = 0.0125 * std::pow(4.17118e8 * 0.5 * 49.5 / 0.0025, 0.33);
  EXPECT_EQ(warned(*drum.object,
                   "Reynolds number predicts flow is in intermediate region. Please check stream "
                   "flows."),
            k >= 3 && k <= 70);
  for (const auto& [size, told] : {std::pair(0.3125, false), std::pair(0.313, true)}) {
    PlantJson plant = bubblePlant();
    criteriaOf(plant)["Average liquid particle diameter"] = {size, "FEET"};
    VesselAtHand other(plant);
    other->Size();
    EXPECT_EQ(warned(*other.object,
                     "Bubble diameter is outside the range. Terminal settling velocity calculated "
                     "may be incorrect."),
              told);
  }
}

TEST(DrumVelocity, By_bubbles_in_a_dry_drum_is_not_found) {
  PlantJson plant = bubblePlant();
  takeLiquidAway(plant);
  itemOf(plant)["exits"] = {{"VAPOR OUTLET", {"V"}}};
  VesselAtHand drum(plant, 1);
  drum->Size();
  EXPECT_TRUE(warned(*drum.object, kDryDensity));
  EXPECT_TRUE(noted(*drum.object, std::string(kDryDensity) + "(Dry Drum condition)."));
  EXPECT_TRUE(warned(*drum.object, kNoVelocity));
  EXPECT_EQ(drum.values().light_liq_density, 62.4);
  EXPECT_EQ(drum.values().ves_dia, 0.0);
  const std::vector<std::string> dialogs = drum.plant.dialogTexts();
  EXPECT_NE(
      std::find(dialogs.begin(), dialogs.end(), std::string(kDryDensity) + "(Dry Drum condition)."),
      dialogs.end());
}

// --- Horizontal drums
// -------------------------------------------------------------------------------

TEST(HorizontalDrum, Is_as_wide_as_the_liquid_asks_and_as_long_as_it_holds) {
  VesselAtHand drum(horizontalPlant());
  ASSERT_EQ(drum->Size(), 1);
  const double byVapor = std::sqrt(40000 / (kPi / 4 * velocityOfPlant(1.25) * 3));
  const double capacity = 100 / (1 - 0.2);
  const double byLiquid = std::pow(capacity * 4 / (kPi * 3), 0.33);
  const double diameter = std::max(byVapor, byLiquid);
  const double length = capacity * 4 / (kPi * diameter * diameter);
  ASSERT_GT(length, diameter);
  EXPECT_EQ(drum.values().ves_dia, upToHalf(diameter));
  EXPECT_EQ(drum.values().ves_height, upToHalf(length));
  EXPECT_TRUE(noted(*drum.object,
                    " Veslength calc using LRT,RatioVapArea/crosssecArea(capacity=liq_vol/(1-Rvc), "
                    "Dcalc"));
  EXPECT_TRUE(noted(*drum.object, "No Heavy Liquid Flow found.  Boot not sized"));
}

TEST(HorizontalDrum, Without_liquid_is_as_long_as_the_ratio_says) {
  PlantJson plant = horizontalPlant();
  takeLiquidAway(plant);
  VesselAtHand drum(plant);
  ASSERT_EQ(drum->Size(), 1);
  EXPECT_EQ(countOf(drum->Calculations(), kNoLiquid), 2);
  const double diameter = std::sqrt(
      40000 / (kPi / 4 * vaporLoadFactor(0.006) * 1.25 * std::sqrt((62.4 - 0.5) / 0.5) * 3600 * 3));
  EXPECT_EQ(drum.values().ves_dia, upToHalf(diameter));
  EXPECT_EQ(drum.values().ves_height, upToHalf(diameter * 3));
  EXPECT_TRUE(
      noted(*drum.object, formatText(" So Veslength calc using L/D*Dcalc: Veslength(%5.2f ft) = "
                                     "Dcalc(%5.2f ft)*L/D(3.00 ft).",
                                     diameter * 3, diameter)));
}

TEST(HorizontalDrum, No_longer_than_wide_is_as_long_as_the_ratio_says) {
  PlantJson plant = horizontalPlant();
  criteriaOf(plant)["Minimum vessel diameter"] = {12, "FEET"};
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_EQ(drum.values().ves_height, 36);
  EXPECT_TRUE(noted(*drum.object,
                    " VesHt calc using (LRT,RatioVapArea/crosssecArea(capacity=liq_vol/(1-Rvc), "
                    "Dcalc) is <= DiaCalc; Possibly low liquid flow; Check process conditions and "
                    "consider using Vertical vessel."));
  EXPECT_TRUE(warned(*drum.object,
                     " Veslength calc using LRT <= Dia; Possibly low liquid flow; Check process "
                     "conditions and consider using Vertical vessel."));
}

TEST(HorizontalDrum, All_filled_with_vapor_is_refused_with_dialogs_and_goes_on_without) {
  PlantJson plant = horizontalPlant();
  criteriaOf(plant)["Vapor area / cross sectional area"] = 1.0;
  VesselAtHand shown(plant, 1);
  EXPECT_EQ(shown->Size(), 0);
  EXPECT_TRUE(noted(*shown.object, "Invalid input for r_vc (should be <1.0)"));
  EXPECT_TRUE(holdsLines(shown->Errors(), kNoSize));
  const auto dialogs = shown.plant.host().log().dialogs();
  ASSERT_FALSE(dialogs.empty());
  EXPECT_EQ(dialogs.back().text, kNoSize);
  EXPECT_EQ(dialogs.back().flags, 0x10);

  VesselAtHand unattended(plant, 0);
  EXPECT_EQ(unattended->Size(), 1);
  EXPECT_TRUE(holdsLines(unattended->Errors(), kNoSize));
  EXPECT_EQ(unattended.values().ves_dia, 0.0);
  EXPECT_EQ(unattended.values().capacity, 0.0);
  EXPECT_TRUE(noted(*unattended.object, "No Heavy Liquid Flow found.  Boot not sized"));
}

TEST(HorizontalDrum, By_bubbles_has_no_velocity_with_the_default_multiplier_of_0) {
  PlantJson plant = horizontalPlant();
  criteriaOf(plant)["Vapor/Liquid Separator Sizing Method"] = "Bubbles";
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_TRUE(warned(*drum.object, kNoVelocity));
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::pow(125 * 4 / (kPi * 3), 0.33)));
}

TEST(HorizontalDrum, Of_a_given_length_follows_from_its_capacity) {
  PlantJson plant = horizontalPlant();
  recordOf(plant)["CpTangentTangentLength"] = {14.2, "FEET"};
  criteriaOf(plant)["Separation factor"] = 10.0;  // leaves the vapor no say
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  EXPECT_EQ(drum.values().ves_height, 14.2);
  EXPECT_EQ(drum.values().ves_dia, upToHalf(std::sqrt(125 * 1.273239544731026 / 14.2)));
}

// --- Boots
// --------------------------------------------------------------------------------------------

PlantJson bootPlant() {
  PlantJson plant = horizontalPlant();
  itemOf(plant)["exits"]["HEAVY LIQUID OUTLET"] = {"H"};
  return plant;
}
// 6200 LB/H of 62 PCF: 100 CF/H, or 16.67 CF in 10 minutes.
constexpr double kHeavyVolume = 100 * 10 / 60.0;

TEST(Boot, Is_sized_by_the_heavy_liquid_and_rounded_up) {
  VesselAtHand drum(bootPlant());
  drum->Size();
  const double diameter = std::max(std::sqrt(kHeavyVolume / 30 * 4 / kPi), 1.5);
  EXPECT_EQ(drum.values().boot_dia, upToHalf(diameter));
  EXPECT_EQ(drum.values().boot_ht,
            upToHalf(std::max(kHeavyVolume * 4 / (kPi * diameter * diameter), 3.0)));
  EXPECT_EQ(countOf(drum->Calculations(), "Calc boot ht and dia rounded up by 1/2 ft."), 2);
}

TEST(Boot, Wider_than_the_minimum_is_as_the_velocity_asks) {
  PlantJson plant = bootPlant();
  criteriaOf(plant)["Bootleg liquid velocity"] = {0.05, "FPM"};
  VesselAtHand drum(plant);
  drum->Size();
  const double diameter = std::sqrt(kHeavyVolume / 3 * 4 / kPi);
  EXPECT_EQ(drum.values().boot_dia, upToHalf(diameter));
  EXPECT_EQ(drum.values().boot_ht, 3.0);  // not less than the minimum
}

TEST(Boot, Of_the_user_is_rounded_up_all_the_same) {
  PlantJson plant = bootPlant();
  recordOf(plant)["CpDripLegDiameter"] = {1.2, "FEET"};
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  EXPECT_EQ(drum.values().boot_dia, 1.5);
}

TEST(Boot, Of_a_user_diameter_without_heavy_liquid_has_the_minimum_length) {
  PlantJson plant = horizontalPlant();
  recordOf(plant)["CpDripLegDiameter"] = {2, "FEET"};
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  EXPECT_EQ(drum.values().boot_dia, 2);
  EXPECT_EQ(drum.values().boot_ht, 3);
  EXPECT_FALSE(noted(*drum.object, "No Heavy Liquid Flow found.  Boot not sized"));
}

TEST(Boot, Without_heavy_liquid_goes_with_the_users_height) {
  PlantJson plant = horizontalPlant();
  recordOf(plant)["CpDripLegLength"] = {5, "FEET"};
  VesselAtHand drum(plant);
  drum->GetLastInfo();
  drum->Size();
  EXPECT_EQ(drum.values().boot_dia, 0);
  EXPECT_EQ(drum.values().boot_ht, 0);
}

TEST(Boot, Is_for_horizontal_drums_alone) {
  PlantJson plant = drumPlant();
  itemOf(plant)["exits"]["HEAVY LIQUID OUTLET"] = {"H"};
  VesselAtHand drum(plant);
  drum->Size();
  EXPECT_EQ(drum.values().boot_dia, 0);
}

}  // namespace
}  // namespace sizewright
