#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr double kKv = 0.221281748966819;     // of the plant's separation factor, 0.6
constexpr double kDryKv = 0.257424466046143;  // of the smallest separation factor, 0.006
constexpr double kVapor = 20000;              // CF/H
constexpr double kHeld = 200;                 // CF of liquid in ten minutes
constexpr double kRatio = 3;
constexpr double kVaporHeight = 2;  // inlet nozzle above the high level tap, no other criterion

constexpr const char* kNoLiquid =
    "Both total_exit_light_liq_vol_flow and total_inlet_liq_vol_flow were found to be not > 0.  No "
    "liquid flow.";
constexpr const char* kLiquidHeight =
    "Liq. ht calculated based on liq vol(res time) and ves dia calculated.";
constexpr const char* kTangent =
    "Added the height between the LowLiqLevel(LowLiqLevel Tap) and the Tangent Line (this is to "
    "provide space for welding) =  0.50 ft";
constexpr const char* kDiameterRounded = "Calc vessel dia rounded up by 1/2 ft";
constexpr const char* kHeightRounded = "Calc vessel ht rounded up by 1/2 ft";

// A plant in which ten minutes of liquid fill 4 ft of a drum of 5 ft, and the vapor needs less.
Plant drumWithLiquid(double height) {
  Plant plant = verticalDrum();
  setLiquid(plant, cylinderOf(5, height) * 6 * 50, 50);
  return plant;
}

TEST(VerticalDrum, Holds_the_liquid_of_the_residence_time_below_its_vapor_space) {
  SizedVessel drum(verticalDrum());
  EXPECT_EQ(drum->Size(), 1);
  // pi/4 (3 D^3 - 2 D^2) = 200 has its root at 4.62864
  const double unrounded = 4.62864;
  EXPECT_NEAR(cylinderOf(unrounded, kRatio * unrounded - kVaporHeight), kHeld, 0.01);
  EXPECT_EQ(drum.values().ves_dia, 5);
  // 200 CF in the diameter before rounding are 11.89 ft, to which come 0.5 and 2 ft
  EXPECT_NEAR(kHeld / cylinderOf(unrounded, 1), 11.89, 0.005);
  EXPECT_EQ(drum.values().ves_height, 14.5);
  expectClose(drum.values().capacity, cylinderOf(5, 14.5));
  EXPECT_TRUE(drum.told(kDiameterRounded));
  EXPECT_TRUE(drum.told(kHeightRounded));
}

TEST(VerticalDrum, Reports_each_step_of_its_calculation) {
  SizedVessel drum(verticalDrum());
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.calculations(),
            (Texts{"ves_dia(based on vapor flow) =  1.79 ft; ves_dia(based on L/D and Liq.flow) =  "
                   "4.63 ft; Max chosen.",
                   kLiquidHeight, kTangent,
                   "vapht( 2.00 ft) = ht_btw_InNozz_HLLTap( 2.00 ft) + ht_dis( 0.00 ft) + ht_hll( "
                   "0.00 ft) + ht_me( 0.00 ft)",
                   "Totvesht(14.39 ft)=htliq(12.39 ft)+ht_vap( 2.00 ft)", kDiameterRounded,
                   kHeightRounded}));
  EXPECT_EQ(drum.errors(), Texts{});
  EXPECT_EQ(drum.warningsBeforeRatio(), Texts{});
  EXPECT_EQ(drum.warnings()[1], "User defined L/D ratio from design criteria is 3");
  const std::string actual = drum.warnings()[0];
  ASSERT_EQ(actual.rfind("Actual L/D ratio is ", 0), 0U);
  EXPECT_NEAR(std::stod(actual.substr(20)), 3.10802, 1e-4);
}

TEST(VerticalDrum, Reports_its_progress) {
  SizedVessel drum(verticalDrum());
  EXPECT_EQ(drum.sizingProgress(),
            (SizedVessel::Progress{
                {51, "Checking user specifications."},
                {53, "Checking vessel configuration."},
                {53, "Beginning vertical vessel design."},
                {55, "Obtaining disengagement height from design criteria file."},
                {60, "Obtained sizing parameters from design criteria file."},
                {60, "Determining vessel diameter."},
                {62, "Estimating diameter based on geometry."},
                {62, "Estimating maximum vapor flow in the vessel."},
                {64, "Calculating vessel diameter based on vapor flow."},
                {65, "Checking user specified method for estimating design vapor velocity."},
                {65, "Calculating vapor velocity based on liquid entrainment method."},
                {67, "Calculating vessel diameter based on vapor velocity."},
                {68, "Calculating vessel diameter based on L/D."},
                {69, "Choosing the maximum value as vessel diameter."},
                {70, "Obtained vessel diameter."},
                {70, "Obtaining vessel height."},
                {73, "Obtaining vapor disengagement height."},
                {74, "Calculating overall height of the vessel."},
                {75, "Estimating L/D."},
                {80, "Obtained vessel capacity, length and diameter for vertical vessel."},
                {80, "Rounding up main vessel dimensions."},
                {85, "Rounding up diameter."},
                {85, "Rounding up height."},
                {87, "Determining vessel capacity."},
                {90, "Completed vessel sizing..."},
            }));
}

TEST(VerticalDrum, Without_liquid_is_sized_by_its_vapor_and_the_least_liquid_height) {
  Plant plant = verticalDrum();
  removeLiquid(plant);
  setVapor(plant, 100000, 0.5);
  SizedVessel drum(plant);
  EXPECT_EQ(drum->Size(), 1);
  const double velocity = kDryKv * std::sqrt((62.4 - 0.5) / 0.5) * 3600;
  const double diameter = std::sqrt(200000 / velocity * 4 / kCirclePi);
  EXPECT_EQ(formatText("%5.2f", diameter), " 4.97");
  EXPECT_EQ(drum.values().ves_dia, 5);
  EXPECT_EQ(drum.values().ves_height, 4 + 0.5 + kVaporHeight);
  expectClose(drum.values().capacity, cylinderOf(5, 6.5));
  const Texts low = {
      "Calculated liquid level (  0.00 ft) is less than the minimum specified in the design "
      "criteria (  4.00 ft).",
      "Minimum liquid level used."};
  EXPECT_EQ(drum.timesTold(kNoLiquid), 1);
  EXPECT_EQ(drum.timesTold(low[0]), 1);
  EXPECT_TRUE(drum.told(low[0] + "\n" + low[1]));
  EXPECT_TRUE(drum.warned(low[0] + "\n" + low[1]));
  EXPECT_TRUE(
      drum.told("ves_dia(based on vapor flow) =  4.97 ft; ves_dia(based on L/D and Liq.flow) =  "
                "0.00 ft; Max chosen."));
}

TEST(VerticalDrum, Takes_its_diameter_from_the_vapor_velocity_when_that_needs_more) {
  Plant plant = verticalDrum();
  setVapor(plant, 1e6, 0.5);
  setLiquid(plant, 6e6, 50);
  criteriaOf(plant)["Residence Time"] = Plant::array({0.01, "MINUTE"});
  SizedVessel drum(plant);
  drum->Size();
  const double velocity = kKv * std::sqrt(99) * 3600;
  const double diameter = std::sqrt(100 * kVapor / velocity * 4 / kCirclePi);
  EXPECT_EQ(drum.values().ves_dia, roundedUp(diameter));
  EXPECT_TRUE(
      drum.told(formatText("ves_dia(based on vapor flow) = %5.2f ft; ves_dia(based on L/D "
                           "and Liq.flow) =  2.29 ft; Max chosen.",
                           diameter)));
}

TEST(VerticalDrum, Counts_every_height_above_the_liquid) {
  Plant plant = verticalDrum();
  criteriaOf(plant) = {{"Minimum disengagement height", {1.5, "FEET"}},
                       {"Minimum height above the mist eliminator", {0.75, "FEET"}},
                       {"Height of mist eliminator", {0.25, "FEET"}},
                       {"Ht. Btw Inlet Nozzle and High Liquid Level Tap", {3, "FEET"}},
                       {"Ht. Btw Low Liquid Level Tap and Tangent Line", {1, "FEET"}},
                       {"Minimum Ht. Btw Low and High Liquid Level Taps", {30, "FEET"}}};
  SizedVessel drum(plant);
  drum.data().ves_dia = 5;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().ves_height, 30 + 1 + 5.5);
  EXPECT_TRUE(
      drum.told("vapht( 5.50 ft) = ht_btw_InNozz_HLLTap( 3.00 ft) + ht_dis( 1.50 ft) + ht_hll( "
                "0.75 ft) + ht_me( 0.25 ft)"));
  EXPECT_TRUE(drum.told("Totvesht(36.50 ft)=htliq(31.00 ft)+ht_vap( 5.50 ft)"));
}

TEST(VerticalDrum, Lifts_its_liquid_to_the_least_height_only_when_that_is_greater) {
  struct Row {
    double liquid;
    bool lifted;
    double height;
  };
  for (const Row& row : {Row{3.9, true, 6.5}, Row{4.0 + 1e-6, false, 7}, Row{4.4, false, 7}}) {
    Plant plant = drumWithLiquid(row.liquid);
    SizedVessel drum(plant);
    drum.data().ves_dia = 5;
    EXPECT_EQ(drum->Size(), 1);
    EXPECT_EQ(drum.values().ves_height, row.height) << row.liquid;
    EXPECT_EQ(drum.warningsBeforeRatio().empty(), !row.lifted) << row.liquid;
    EXPECT_EQ(drum.told("Calculated liquid level (  3.90 ft) is less than the minimum specified in "
                        "the design criteria (  4.00 ft).\nMinimum liquid level used."),
              row.lifted);
  }
}

TEST(VerticalDrum, Uses_the_inlet_liquid_when_no_liquid_leaves) {
  Plant plant = verticalDrum();
  plant["streams"]["L"]["slots"] = Plant::object();
  SizedVessel drum(plant);
  drum.data().ves_dia = 5;
  drum->Size();
  const double height = kHeld / cylinderOf(5, 1) + 2.5;
  EXPECT_EQ(drum.values().ves_height, roundedUp(height));
  EXPECT_EQ(drum.timesTold(kNoLiquid), 0);
}

TEST(VerticalDrum, Prefers_the_leaving_liquid_even_where_more_comes_in) {
  Plant plant = verticalDrum();
  setPhase(plant, "L", "LIQUID", 30000, 50);
  SizedVessel drum(plant);
  drum.data().ves_dia = 5;
  drum->Size();
  EXPECT_TRUE(drum.told(formatText("Totvesht(%5.2f ft)=htliq(%5.2f ft)+ht_vap( 2.00 ft)",
                                   kHeld / 2 / cylinderOf(5, 1) + 2.5,
                                   kHeld / 2 / cylinderOf(5, 1) + 0.5)));
}

// --- What the user gives ------------------------------------------------------------------------

TEST(VerticalDrum, Of_a_user_diameter_keeps_it_unrounded_and_rounds_the_height) {
  SizedVessel drum(verticalDrum());
  drum.data().ves_dia = 4.3;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().ves_dia, 4.3);
  const double height = kHeld / cylinderOf(4.3, 1) + 2.5;  // 16.27
  EXPECT_EQ(drum.values().ves_height, 16.5);
  EXPECT_NEAR(height, 16.27, 0.005);
  expectClose(drum.values().capacity, cylinderOf(4.3, 16.5));
  EXPECT_EQ(drum.timesTold(kDiameterRounded), 0);
  EXPECT_EQ(drum.timesTold(kHeightRounded), 1);
}

TEST(VerticalDrum, Of_a_user_height_keeps_it_and_fits_the_liquid_below_the_vapor_space) {
  SizedVessel drum(verticalDrum());
  drum.data().ves_height = 12.3;
  EXPECT_EQ(drum->Size(), 1);
  const double diameter = std::sqrt(kHeld / (12.3 - kVaporHeight) * 4 / kCirclePi);  // 4.97
  EXPECT_TRUE(
      drum.told(formatText("ves_dia(based on vapor flow) =  1.79 ft; ves_dia(based on L/D "
                           "and Liq.flow) = %5.2f ft; Max chosen.",
                           diameter)));
  EXPECT_EQ(drum.values().ves_dia, 5);
  EXPECT_EQ(drum.values().ves_height, 12.3);
  expectClose(drum.values().capacity, cylinderOf(5, 12.3));
  EXPECT_EQ(drum.timesTold(kHeightRounded), 0);
}

TEST(VerticalDrum, Of_a_user_height_within_the_vapor_space_has_no_liquid_diameter) {
  for (const double height : {2.0, 1.0}) {
    SizedVessel drum(verticalDrum());
    drum.data().ves_height = height;
    drum->Size();
    EXPECT_TRUE(
        drum.told("ves_dia(based on vapor flow) =  1.79 ft; ves_dia(based on L/D and "
                  "Liq.flow) =  0.00 ft; Max chosen."));
    EXPECT_EQ(drum.values().ves_dia, 2);
  }
}

TEST(VerticalDrum, Of_a_user_capacity_and_height_is_geometry_without_a_least_diameter) {
  Plant plant = verticalDrum();
  criteriaOf(plant)["Minimum vessel diameter"] = Plant::array({9, "FEET"});
  SizedVessel drum(plant);
  drum.data().capacity = 300;
  drum.data().ves_height = 12;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.calculations(), (Texts{"proc_vs_determine_diameter: 1st estim. using capacity and "
                                        "height =  5.64 ft",
                                        kDiameterRounded}));
  EXPECT_NEAR(std::sqrt(300 / 12.0 * 4 / kCirclePi), 5.64, 0.005);
  EXPECT_EQ(drum.values().ves_dia, 6);
  EXPECT_EQ(drum.values().ves_height, 12);
  expectClose(drum.values().capacity, cylinderOf(6, 12));
}

TEST(VerticalDrum, Of_a_user_capacity_has_no_vapor_space_above_it) {
  SizedVessel drum(verticalDrum());
  drum.data().capacity = cylinderOf(4.2, kRatio * 4.2);
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_TRUE(
      drum.told("ves_dia(based on vapor flow) =  1.79 ft; ves_dia(based on L/D and "
                "Liq.flow) =  4.20 ft; Max chosen."));
  EXPECT_EQ(drum.values().ves_dia, 4.5);
  EXPECT_EQ(drum.values().ves_height, 13);  // 12.6 rounded
  expectClose(drum.values().capacity, cylinderOf(4.5, 13));
  EXPECT_EQ(drum.timesTold(kLiquidHeight), 0);
}

TEST(VerticalDrum, Of_a_user_capacity_but_no_liquid_is_sized_by_its_vapor) {
  Plant plant = verticalDrum();
  removeLiquid(plant);
  SizedVessel drum(plant);
  drum.data().capacity = 400;
  drum->Size();
  EXPECT_EQ(drum.timesTold(kNoLiquid), 1);
  EXPECT_TRUE(
      drum.told("ves_dia(based on vapor flow) =  1.57 ft; ves_dia(based on L/D and "
                "Liq.flow) =  0.00 ft; Max chosen."));
}

TEST(VerticalDrum, Ignores_area_ratio_and_multiplier) {
  SizedVessel drum(verticalDrum());
  drum.data().r_vc = 0.2;
  drum.data().sep_factor_mult = 4;
  drum->Size();
  EXPECT_EQ(drum.values().r_vc, 1);
  EXPECT_EQ(drum.values().sep_factor_mult, 1);
  EXPECT_TRUE(
      drum.told("ves_dia(based on vapor flow) =  1.79 ft; ves_dia(based on L/D and "
                "Liq.flow) =  4.63 ft; Max chosen."));
}

TEST(VerticalDrum, Guards_against_a_ratio_and_a_residence_time_that_are_not_positive) {
  for (const double criterion : {-1.0, -0.001}) {
    Plant plant = verticalDrum();
    criteriaOf(plant)["Residence Time"] = Plant::array({criterion, "MINUTE"});
    criteriaOf(plant)["Process Vessel Height to Diameter Ratio"] = criterion;
    SizedVessel drum(plant);
    EXPECT_EQ(drum->Size(), 1);
    EXPECT_EQ(drum.values().res_time, 5);
    EXPECT_EQ(drum.values().ht_dia_ratio, 3);
    EXPECT_EQ(drum.warnings().back(), "User defined L/D ratio from design criteria is 3");
  }
}

TEST(VerticalDrum, Without_any_flow_to_size_by_has_no_size_and_is_not_refused) {
  Plant plant = verticalDrum();
  removeVapor(plant);
  SizedVessel drum(plant);
  drum.data().ves_height = 1;  // within the vapor space
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().ves_dia, 0);
  EXPECT_EQ(drum.values().ves_height, 1);
  EXPECT_EQ(drum.values().capacity, 0);
  EXPECT_EQ(drum.warnings(), Texts{});
  EXPECT_EQ(drum.errors(), Texts{});
  EXPECT_EQ(drum.calculations(),
            Texts{"ves_dia(based on vapor flow) =  0.00 ft; ves_dia(based on L/D and Liq.flow) =  "
                  "0.00 ft; Max chosen."});
  const Texts steps = [&] {
    Texts texts;
    for (const auto& [percent, text] : drum.plant.progress()) texts.push_back(text);
    return texts;
  }();
  EXPECT_EQ(std::count(steps.begin(), steps.end(), "Obtaining vessel height."), 0);
  EXPECT_EQ(std::count(steps.begin(), steps.end(), "Estimating L/D."), 0);
  EXPECT_EQ(std::count(steps.begin(), steps.end(), "Completed vessel sizing..."), 1);
}

TEST(VerticalDrum, Has_no_boot) {
  Plant plant = verticalDrum();
  addHeavyLiquid(plant, 6240, 62.4);
  SizedVessel drum(plant);
  drum.data().boot_dia = 1.2;
  drum.data().boot_ht = 2.2;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().boot_dia, 1.2);
  EXPECT_EQ(drum.values().boot_ht, 2.2);
}

TEST(VerticalDrum, Shows_its_warnings_when_it_may) {
  Plant plant = drumWithLiquid(3.5);
  for (const int interactive : {1, 0}) {
    SizedVessel drum(plant, interactive);
    drum.data().ves_dia = 5;
    drum->Size();
    EXPECT_EQ(drum.warnings().size(), 4U);
    if (interactive == 0) {
      EXPECT_TRUE(drum.boxes().empty());
      continue;
    }
    const auto boxes = drum.boxes();
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0].first, drum.warnings()[0] + "\n" + drum.warnings()[1]);
    EXPECT_EQ(boxes[1].first, drum.warnings()[2] + "\n" + drum.warnings()[3]);
    EXPECT_EQ(boxes[0].second, 48);
    EXPECT_EQ(boxes[1].second, 48);
  }
}

TEST(VerticalDrum, Is_every_vessel_that_no_other_rule_takes) {
  for (const char* category : {"DVT", "EVT", "dvt", "XYZ"}) {
    SizedVessel drum(sizingPlant(category, "WHATEVER"));
    EXPECT_EQ(drum->Size(), 1);
    EXPECT_TRUE(drum.told(kLiquidHeight)) << category;
  }
}

}  // namespace
}  // namespace sizewright
