#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr const char* kNoBoot = "No Heavy Liquid Flow found.  Boot not sized";
constexpr const char* kRounded = "Calc boot ht and dia rounded up by 1/2 ft.";
constexpr double kBootVelocity = 0.5 * 60;  // FT/H

// A horizontal drum with a heavy liquid of a volume flow (CF/H); a sixth of it stays ten minutes.
Plant drumWithWater(double flow) {
  Plant plant = horizontalDrum();
  addHeavyLiquid(plant, flow * 62.4, 62.4);
  return plant;
}

TEST(Boot, Holds_the_heavy_liquid_of_the_residence_time_at_its_velocity) {
  SizedVessel drum(drumWithWater(1000));
  EXPECT_EQ(drum->Size(), 1);
  const double diameter = std::sqrt(1000 / 6.0 / kBootVelocity * 4 / kCirclePi);  // 2.66
  EXPECT_EQ(drum.values().boot_dia, roundedUp(diameter));
  EXPECT_EQ(drum.values().boot_dia, 3);
  EXPECT_EQ(drum.values().boot_ht, 30);  // the velocity times an hour
  EXPECT_EQ(drum.timesTold(kRounded), 2);
  EXPECT_EQ(drum.timesTold(kNoBoot), 0);
}

TEST(Boot, Reports_its_progress) {
  SizedVessel drum(drumWithWater(1000));
  const auto lines = drum.sizingProgress();
  const auto expected = SizedVessel::Progress{
      {66, "Completed sizing of main vessel."},
      {67, "Checking for bootleg."},
      {70, "Checking design criteria file for bootleg sizing parameters."},
      {72, "Checking for heavy liquid phase volume."},
      {74, "Determining boot diameter."},
      {74, "Determining boot height."},
      {75, "Obtained boot dimensions."},
      {80, "Rounding up main vessel dimensions."},
  };
  EXPECT_NE(std::search(lines.begin(), lines.end(), expected.begin(), expected.end()), lines.end());
}

TEST(Boot, Follows_the_criteria_of_velocity_and_least_dimensions) {
  Plant plant = drumWithWater(1000);
  criteriaOf(plant) = {{"Bootleg liquid velocity", {0.2, "FPM"}},
                       {"Minimum bootleg diameter", {4.7, "FEET"}},
                       {"Minimum bootleg length", {11.2, "FEET"}}};
  SizedVessel drum(plant);
  drum->Size();
  // 166.7 CF at 12 FT/H take 4.21 ft, in 4.7 ft they stand 9.61 ft high
  EXPECT_NEAR(std::sqrt(1000 / 6.0 / 12 * 4 / kCirclePi), 4.21, 0.005);
  EXPECT_NEAR(1000 / 6.0 / cylinderOf(4.7, 1), 9.61, 0.005);
  EXPECT_EQ(drum.values().boot_dia, 5);
  EXPECT_EQ(drum.values().boot_ht, 11.5);
}

TEST(Boot, Is_at_least_1_5_feet_wide_and_3_feet_long) {
  SizedVessel wide(drumWithWater(100));
  wide->Size();
  EXPECT_EQ(wide.values().boot_dia, 1.5);
  EXPECT_NEAR(100 / 6.0 / cylinderOf(1.5, 1), 9.43, 0.005);
  EXPECT_EQ(wide.values().boot_ht, 9.5);

  SizedVessel both(drumWithWater(1));
  both->Size();
  EXPECT_EQ(both.values().boot_dia, 1.5);
  EXPECT_EQ(both.values().boot_ht, 3);
}

TEST(Boot, Is_not_there_without_a_heavy_liquid_even_when_the_user_gave_a_height) {
  SizedVessel drum(horizontalDrum());
  drum.data().boot_ht = 4.2;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().boot_ht, 0);
  EXPECT_EQ(drum.values().boot_dia, 0);
  EXPECT_EQ(drum.timesTold(kNoBoot), 1);
  EXPECT_EQ(drum.timesTold(kRounded), 0);
}

TEST(Boot, Of_a_user_diameter_without_heavy_liquid_has_the_least_length_without_a_word) {
  SizedVessel drum(horizontalDrum());
  drum.data().boot_dia = 2;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().boot_dia, 2);
  EXPECT_EQ(drum.values().boot_ht, 3);
  EXPECT_EQ(drum.timesTold(kNoBoot), 0);
}

TEST(Boot, Of_a_user_diameter_is_rounded_up_all_the_same_but_not_raised) {
  SizedVessel drum(drumWithWater(100));
  drum.data().boot_dia = 1.2;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().boot_dia, 1.5);
  EXPECT_NEAR(100 / 6.0 / cylinderOf(1.2, 1), 14.74, 0.005);
  EXPECT_EQ(drum.values().boot_ht, 15);
  EXPECT_EQ(drum.timesTold(kRounded), 2);

  SizedVessel narrow(drumWithWater(100));
  narrow.data().boot_dia = 0.4;
  narrow->Size();
  EXPECT_EQ(narrow.values().boot_dia, 0.5);
}

TEST(Boot, Of_a_user_length_is_rounded_up_all_the_same_but_not_raised) {
  SizedVessel drum(drumWithWater(1000));
  drum.data().boot_ht = 2.2;
  EXPECT_EQ(drum->Size(), 1);
  EXPECT_EQ(drum.values().boot_ht, 2.5);
  EXPECT_EQ(drum.values().boot_dia, 3);
}

TEST(Boot, Of_user_dimensions_needs_no_heavy_liquid) {
  SizedVessel drum(horizontalDrum());
  drum.data().boot_dia = 1.2;
  drum.data().boot_ht = 4;
  drum->Size();
  EXPECT_EQ(drum.values().boot_dia, 1.5);
  EXPECT_EQ(drum.values().boot_ht, 4);
  EXPECT_EQ(drum.timesTold(kRounded), 2);
}

TEST(Boot, Is_not_sized_for_two_liquids_of_nearly_the_same_density) {
  for (const double density : {51.0, 52.4, 52.6}) {
    Plant plant = horizontalDrum();
    addHeavyLiquid(plant, 1000 * density, density);
    SizedVessel drum(plant);
    drum->Size();
    const bool same = (density - 50) / 50 < 0.05;
    EXPECT_EQ(drum.values().boot_dia, same ? 0 : 3) << density;
    EXPECT_EQ(drum.timesTold(kNoBoot), same ? 1 : 0) << density;
  }
}

TEST(Boot, Is_written_to_the_record) {
  SizedVessel drum(drumWithWater(1000));
  drum->Size();
  drum->Commit();
  EXPECT_EQ(drum.number("CpDripLegDiameter"), 3);
  EXPECT_EQ(drum.units("CpDripLegDiameter"), "FEET");
  EXPECT_EQ(drum.number("CpDripLegLength"), 30);
  EXPECT_EQ(drum.number("CpVesselDiameter"), 5);
  EXPECT_EQ(drum.number("CpTangentTangentLength"), 15);
  expectClose(drum.number("CpLiquidVolume"), cylinderOf(5, 15));
}

}  // namespace
}  // namespace sizewright
