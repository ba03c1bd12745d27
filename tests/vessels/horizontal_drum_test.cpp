#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

using Plant = PlantJson;
using Boxes = std::vector<std::pair<std::string, int>>;

constexpr double kHeld = 200;  // CF of liquid in ten minutes
constexpr double kFull = 250;  // CF of the drum, a fifth of it vapor
constexpr double kRatio = 3;

constexpr const char* kNoLiquid =
    "Both total_exit_light_liq_vol_flow and total_inlet_liq_vol_flow were found to be not > 0.  No "
    "liquid flow.";
constexpr const char* kByLiquid =
    " Veslength calc using LRT,RatioVapArea/crosssecArea(capacity=liq_vol/(1-Rvc), Dcalc";
constexpr const char* kTooShort =
    " VesHt calc using (LRT,RatioVapArea/crosssecArea(capacity=liq_vol/(1-Rvc), Dcalc) is <= "
    "DiaCalc; Possibly low liquid flow; Check process conditions and consider using Vertical "
    "vessel.";
constexpr const char* kTooShortWarning =
    " Veslength calc using LRT <= Dia; Possibly low liquid flow; Check process conditions and "
    "consider using Vertical vessel.";
constexpr const char* kInvalidRatio = "Invalid input for r_vc (should be <1.0)";
constexpr const char* kNoSize =
    "Vessel Capacity could not be calculated.\nPlease check design information.";
constexpr const char* kDiameterRounded = "Calc vessel dia rounded up by 1/2 ft";
constexpr const char* kHeightRounded = "Calc vessel ht rounded up by 1/2 ft";
constexpr const char* kNoBoot = "No Heavy Liquid Flow found.  Boot not sized";

double liquidDiameter(double volume, double ratio) {
  return std::pow(volume * 4 / (kCirclePi * ratio), 0.33);
}
std::string byRatio(double length, double diameter, double ratio) {
  return formatText(
      " So Veslength calc using L/D*Dcalc: Veslength(%5.2f ft) = Dcalc(%5.2f ft)*L/D(%3.2f ft).",
      length, diameter, ratio);
}

TEST(HorizontalDrum, Holds_the_liquid_of_the_residence_time_beside_its_vapor) {
  SizedVessel drum(horizontalDrum());
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_NEAR(liquidDiameter(kFull, kRatio), 4.66, 0.005);
  EXPECT_EQ(drum.values().ves_dia, 5);
  EXPECT_NEAR(kFull / cylinderOf(4.6611, 1), 14.65, 0.005);
  EXPECT_EQ(drum.values().ves_height, 15);
  expectClose(drum.values().capacity, cylinderOf(5, 15));
  EXPECT_EQ(drum.errors(), Texts{});
  EXPECT_EQ(drum.warningsBeforeRatio(), Texts{});
  EXPECT_EQ(drum.calculations(),
            (Texts{"ves_dia(based on vapor flow) =  0.93 ft; ves_dia(based on L/D and Liq.flow) =  "
                   "4.66 ft; Max chosen.",
                   kByLiquid, kNoBoot, kDiameterRounded, kHeightRounded}));
}

TEST(HorizontalDrum, Reports_its_progress) {
  SizedVessel drum(horizontalDrum());
  EXPECT_EQ(drum.sizingProgress(),
            (SizedVessel::Progress{
                {51, "Checking user specifications."},
                {53, "Checking vessel configuration."},
                {53, "Beginning horizontal vessel design."},
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
                {70, "Obtaining vessel length."},
                {73, "Calculating vessel length."},
                {75, "Estimating L/D."},
                {80, "Obtained vessel capacity, length and diameter for horizontal vessel."},
                {66, "Completed sizing of main vessel."},
                {67, "Checking for bootleg."},
                {70, "Checking design criteria file for bootleg sizing parameters."},
                {72, "Checking for heavy liquid phase volume."},
                {74, "Determining boot diameter."},
                {80, "Rounding up main vessel dimensions."},
                {85, "Rounding up diameter."},
                {85, "Rounding up height."},
                {87, "Determining vessel capacity."},
                {85, "Rounding up boot dimensions."},
                {90, "Completed vessel sizing..."},
            }));
}

TEST(HorizontalDrum, Is_told_by_its_category_without_regard_to_case) {
  for (const char* category : {"DHT", "dht", "Dht"}) {
    SizedVessel drum(sizingPlant(category, "HORIZ DRUM"));
    drum->Size();
    EXPECT_TRUE(drum.told(kByLiquid)) << category;
  }
}

TEST(HorizontalDrum, Compares_its_slenderness_with_the_criterion_always) {
  for (const int interactive : {1, 0}) {
    SizedVessel drum(horizontalDrum(), interactive);
    drum.data().ves_dia = 4;
    drum.data().ves_height = 10;
    drum->Size();
    EXPECT_EQ(drum.warnings(), (Texts{"Actual L/D ratio is 2.5",
                                      "User defined L/D ratio from design criteria is 3"}));
    const Boxes shown = {
        {"Actual L/D ratio is 2.5\nUser defined L/D ratio from design criteria is 3", 48}};
    EXPECT_EQ(drum.boxes(), interactive != 0 ? shown : Boxes{});
  }
}

// --- Little or no liquid ------------------------------------------------------------------------

TEST(HorizontalDrum, Without_liquid_has_the_length_of_its_slenderness) {
  Plant plant = horizontalDrum();
  removeLiquid(plant);
  setVapor(plant, 1e6, 0.5);
  SizedVessel drum(plant);
  EXPECT_EQ(drum->Size(), 1);
  const double velocity = 0.257424466046143 * 1.25 * std::sqrt(61.9 / 0.5) * 3600;
  const double diameter = std::sqrt(2e6 / (kCirclePi / 4 * velocity * kRatio));  // 8.12
  EXPECT_EQ(drum.timesTold(kNoLiquid), 2);
  EXPECT_TRUE(drum.told(byRatio(kRatio * diameter, diameter, kRatio)));
  EXPECT_NEAR(diameter, 8.12, 0.01);
  EXPECT_EQ(drum.values().ves_dia, 8.5);
  EXPECT_EQ(drum.values().ves_height, 24.5);
  expectClose(drum.values().capacity, cylinderOf(8.5, 24.5));
}

TEST(HorizontalDrum, Of_a_user_diameter_without_liquid_tells_so_once) {
  Plant plant = horizontalDrum();
  removeLiquid(plant);
  SizedVessel drum(plant);
  drum.data().ves_dia = 3.3;
  drum->Size();
  EXPECT_EQ(drum.timesTold(kNoLiquid), 1);
  EXPECT_TRUE(
      drum.told(" So Veslength calc using L/D*Dcalc: Veslength( 9.90 ft) = Dcalc( 3.30 "
                "ft)*L/D(3.00 ft)."));
  EXPECT_EQ(drum.values().ves_dia, 3.3);
  EXPECT_EQ(drum.values().ves_height, 10);
}

TEST(HorizontalDrum, That_its_liquid_would_leave_shorter_than_wide_takes_its_slenderness) {
  struct Row {
    double length;  // of the liquid and its vapor in a drum of 6 ft
    bool tooShort;
  };
  for (const Row& row : {Row{5.999, true}, Row{6.001, false}, Row{3.0, true}}) {
    Plant plant = horizontalDrum();
    setLiquid(plant, cylinderOf(6, row.length) * 0.8 * 6 * 50, 50);
    SizedVessel drum(plant);
    drum.data().ves_dia = 6;
    EXPECT_EQ(drum->Size(), 1);
    EXPECT_EQ(drum.told(kByLiquid), !row.tooShort);
    EXPECT_EQ(drum.told(kTooShort), row.tooShort);
    EXPECT_EQ(drum.warned(kTooShortWarning), row.tooShort);
    EXPECT_EQ(drum.told(byRatio(18, 6, kRatio)), row.tooShort);
    EXPECT_EQ(drum.values().ves_height, row.tooShort ? 18 : 6.5);
  }
}

TEST(HorizontalDrum, Does_not_show_the_warning_of_a_short_drum) {
  Plant plant = horizontalDrum();
  setLiquid(plant, 600, 50);
  SizedVessel drum(plant, 1);
  drum.data().ves_dia = 6;
  drum->Size();
  EXPECT_TRUE(drum.warned(kTooShortWarning));
  EXPECT_EQ(drum.boxes().size(), 1U);  // the slenderness
}

TEST(HorizontalDrum, Uses_the_inlet_liquid_when_no_liquid_leaves) {
  Plant plant = horizontalDrum();
  plant["streams"]["L"]["slots"] = Plant::object();
  SizedVessel drum(plant);
  drum->Size();
  EXPECT_TRUE(drum.told(kByLiquid));
  EXPECT_EQ(drum.values().ves_height, 15);
}

// --- The share of the vapor ---------------------------------------------------------------------

TEST(HorizontalDrum, Is_the_larger_the_more_of_it_is_vapor) {
  for (const double share : {0.1, 0.5, 0.99}) {
    Plant plant = horizontalDrum();
    criteriaOf(plant)["Vapor area / cross sectional area"] = share;
    SizedVessel drum(plant);
    EXPECT_EQ(drum->Size(), 1);
    const double diameter = liquidDiameter(kHeld / (1 - share), kRatio);
    EXPECT_EQ(drum.values().ves_dia, roundedUp(diameter)) << share;
    const double length = kHeld / (1 - share) / cylinderOf(diameter, 1);
    EXPECT_EQ(drum.values().ves_height, roundedUp(length)) << share;
  }
}

TEST(HorizontalDrum, All_of_it_vapor_is_an_error_that_ends_an_interactive_run) {
  for (const double share : {1.0, 1.5}) {
    Plant plant = horizontalDrum();
    addHeavyLiquid(plant, 6240, 62.4);
    criteriaOf(plant)["Vapor area / cross sectional area"] = share;
    SizedVessel drum(plant, 1);
    drum.data().boot_ht = 2.2;
    EXPECT_EQ(drum->Size(), 0);
    EXPECT_EQ(drum.calculations(), Texts{kInvalidRatio});
    EXPECT_TRUE(holdsLines(drum->Errors(), kNoSize));
    EXPECT_EQ(drum.errors().size(), 2U);
    EXPECT_EQ(drum.boxes(), (Boxes{{kNoSize, 16}}));
    EXPECT_EQ(drum.values().boot_dia, 0);
    EXPECT_EQ(drum.values().boot_ht, 2.2);
  }
}

TEST(HorizontalDrum, All_of_it_vapor_goes_on_to_the_boot_when_dialogs_are_off) {
  Plant plant = horizontalDrum();
  criteriaOf(plant)["Vapor area / cross sectional area"] = 1.0;
  SizedVessel drum(plant);
  const auto lines = drum.sizingProgress();
  EXPECT_EQ(lines.back(), (std::pair<int, std::string>{90, "Completed vessel sizing..."}));
  EXPECT_EQ(drum.calculations(), (Texts{kInvalidRatio, kNoBoot}));
  EXPECT_TRUE(holdsLines(drum->Errors(), kNoSize));
  EXPECT_EQ(drum.warnings(), Texts{});
  EXPECT_EQ(drum.values().ves_dia, 0);
  EXPECT_EQ(drum.values().ves_height, 0);
  EXPECT_EQ(drum.values().capacity, 0);
}

TEST(HorizontalDrum, All_of_it_vapor_keeps_what_stands_when_dialogs_are_off) {
  Plant plant = horizontalDrum();
  addHeavyLiquid(plant, 6240, 62.4);
  criteriaOf(plant)["Vapor area / cross sectional area"] = 1.0;
  SizedVessel drum(plant);
  drum.data().ves_dia = 4.2;
  drum.data().ves_height = 10.3;
  EXPECT_EQ(drum->Size(), 1);
  expectClose(drum.values().capacity, cylinderOf(4.2, 10.3));
  EXPECT_EQ(drum.values().boot_dia, 1.5);
}

// --- What the user gives ------------------------------------------------------------------------

TEST(HorizontalDrum, Of_a_user_diameter_keeps_it_unrounded_and_rounds_the_length) {
  SizedVessel drum(horizontalDrum());
  drum.data().ves_dia = 4.3;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().ves_dia, 4.3);
  EXPECT_NEAR(kFull / cylinderOf(4.3, 1), 17.2, 0.05);
  EXPECT_EQ(drum.values().ves_height, 17.5);
  EXPECT_EQ(drum.timesTold(kDiameterRounded), 0);
  EXPECT_EQ(drum.timesTold(kHeightRounded), 1);
  expectClose(drum.values().capacity, cylinderOf(4.3, 17.5));
}

TEST(HorizontalDrum, Of_a_user_length_has_the_diameter_that_holds_the_liquid) {
  SizedVessel drum(horizontalDrum());
  drum.data().ves_height = 10.3;
  EXPECT_EQ(drum->Size(), 1);
  const double diameter = std::sqrt(kFull * 4 / kCirclePi / 10.3);  // 5.56
  EXPECT_TRUE(
      drum.told(formatText("ves_dia(based on vapor flow) =  0.93 ft; ves_dia(based on L/D "
                           "and Liq.flow) = %5.2f ft; Max chosen.",
                           diameter)));
  EXPECT_EQ(drum.values().ves_dia, 6);
  EXPECT_EQ(drum.values().ves_height, 10.3);
  EXPECT_EQ(drum.timesTold(kHeightRounded), 0);
  expectClose(drum.values().capacity, cylinderOf(6, 10.3));
}

TEST(HorizontalDrum, Of_a_user_capacity_has_its_dimensions_from_that) {
  Plant plant = horizontalDrum();
  removeLiquid(plant);
  SizedVessel drum(plant);
  drum.data().capacity = 400;
  EXPECT_EQ(drum->Size(), 1);
  const double diameter = liquidDiameter(400, kRatio);  // 5.44
  EXPECT_EQ(drum.timesTold(kNoLiquid), 0);
  EXPECT_EQ(drum.values().ves_dia, 5.5);
  const double length = 400 / cylinderOf(diameter, 1);  // 17.2
  EXPECT_EQ(drum.values().ves_height, roundedUp(length));
  expectClose(drum.values().capacity, cylinderOf(5.5, drum.values().ves_height));
}

TEST(HorizontalDrum, Of_a_user_capacity_and_length_is_geometry_without_a_least_diameter) {
  Plant plant = horizontalDrum();
  criteriaOf(plant)["Minimum vessel diameter"] = Plant::array({9, "FEET"});
  SizedVessel drum(plant);
  drum.data().capacity = 300;
  drum.data().ves_height = 12;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.calculations()[0],
            "proc_vs_determine_diameter: 1st estim. using capacity and height =  5.64 ft");
  EXPECT_EQ(drum.values().ves_dia, 6);
  expectClose(drum.values().capacity, cylinderOf(6, 12));
}

TEST(HorizontalDrum, Of_a_least_diameter_is_as_wide_and_shorter) {
  Plant plant = horizontalDrum();
  criteriaOf(plant)["Minimum vessel diameter"] = Plant::array({5.8, "FEET"});
  SizedVessel drum(plant);
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_TRUE(
      drum.warned("Calculated Vessel Diameter is  4.66 feet. User specified minimum value  5.80 "
                  "feet is used."));
  EXPECT_EQ(drum.values().ves_dia, 6);
  EXPECT_EQ(drum.values().ves_height, 9.5);  // 250 CF in 5.8 ft are 9.46 ft
}

TEST(HorizontalDrum, Guards_against_a_ratio_and_a_residence_time_that_are_not_positive) {
  Plant plant = horizontalDrum();
  criteriaOf(plant)["Residence Time"] = Plant::array({-1, "MINUTE"});
  criteriaOf(plant)["Process Vessel Height to Diameter Ratio"] = -1;
  SizedVessel drum(plant);
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().res_time, 5);
  EXPECT_EQ(drum.values().ht_dia_ratio, 3);
  EXPECT_EQ(drum.values().ves_dia, roundedUp(liquidDiameter(kFull / 2, kRatio)));
}

TEST(HorizontalDrum, Without_a_diameter_has_no_length_and_is_not_refused) {
  Plant plant = horizontalDrum();
  removeLiquid(plant);
  criteriaOf(plant)["Separation factor"] = 0.3;  // no velocity without a liquid's density
  SizedVessel drum(plant);
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().ves_dia, 0);
  EXPECT_EQ(drum.values().ves_height, 0);
  EXPECT_EQ(drum.values().capacity, 0);
  EXPECT_EQ(drum.errors(), Texts{});
  EXPECT_EQ(drum.timesTold(kDiameterRounded), 0);
  EXPECT_EQ(drum.timesTold(kHeightRounded), 0);
  for (const auto& [percent, text] : drum.plant.progress()) EXPECT_NE(text, "Estimating L/D.");
}

}  // namespace
}  // namespace sizewright
