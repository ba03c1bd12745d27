#include <array>

#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

using Plant = PlantJson;

constexpr double kHeld = 864000;  // CF: 1,200 CF/H for thirty days
constexpr double kTank = 960000;  // CF, a tenth of it free

Plant storagePlant(const char* item = "STORAGE") {
  return sizingPlant("DVT", item);
}
double sphereOf(double diameter) {
  return kCirclePi / 6 * diameter * diameter * diameter;
}
double spheroidOf(double diameter, double height) {
  return kCirclePi / 6 * diameter * height * height;
}
void expectRefusal(const Plant& plant, const char* text, const VesselData& given) {
  for (const int interactive : {1, 0}) {
    SizedVessel tank(plant, interactive);
    tank.data() = given;
    tank.expectRefusal(text, interactive != 0);
  }
}

// --- Cylindrical tanks --------------------------------------------------------------------------

TEST(Tank, Holds_thirty_days_of_liquid_below_a_tenth_of_vapor) {
  for (const char* item :
       {"STORAGE", "GAS HOLDER", "PLAST TANK", "WOOD TANK", "CONE BTM", "LIVE BTM", " storage "}) {
    SizedVessel tank(storagePlant(item));
    EXPECT_EQ(tank->Size(), 1);
    const double diameter = std::pow(kTank * 4 / (0.5 * kCirclePi), 0.33);  // 128.3
    EXPECT_EQ(tank.values().ves_dia, roundedUp(diameter)) << item;
    EXPECT_EQ(tank.values().ves_height, roundedUp(kTank / cylinderOf(diameter, 1))) << item;
    expectClose(tank.values().capacity, cylinderOf(128.5, tank.values().ves_height));
    EXPECT_EQ(tank.values().ves_dia, 128.5);
    EXPECT_EQ(tank.values().res_time, 43200);
    EXPECT_EQ(tank.errors(), Texts{});
    EXPECT_EQ(tank.warnings(), Texts{});
    EXPECT_EQ(tank.calculations(), Texts{});
  }
}

TEST(Tank, Reports_its_progress) {
  SizedVessel tank(storagePlant());
  EXPECT_EQ(tank.sizingProgress(), (SizedVessel::Progress{
                                       {51, "Checking user specifications."},
                                       {53, "Obtaining holding time."},
                                       {55, "Determining vapor free space."},
                                       {60, "Beginning detailed sizing of the equipment."},
                                       {61, "Determining vessel volume."},
                                       {65, "Obtaining height and diameter of the equipment."},
                                       {66, "Obtaining diameter."},
                                       {67, "Obtaining height."},
                                       {68, "Checking height over diameter ratio for vessel."},
                                       {75, "Rounding up height and diameter."},
                                       {80, "Calculating vessel capacity."},
                                   }));
}

TEST(Tank, Follows_the_criteria) {
  Plant plant = storagePlant();
  criteriaOf(plant) = {{"Storage Vessel Height to Diameter Ratio", 0.8},
                       {"Holding Hours in a Day", 8},
                       {"Number of Holding Days", 5},
                       {"Vapor Free Space (% of Total Storage Vessel Volume)", 20}};
  SizedVessel tank(plant);
  EXPECT_EQ(tank->Size(), 1);
  EXPECT_EQ(tank.values().res_time, 2400);
  const double diameter = std::pow(60000 * 4 / (0.8 * kCirclePi), 0.33);  // 1,200 x 40 / 0.8
  EXPECT_EQ(tank.values().ves_dia, roundedUp(diameter));
  EXPECT_EQ(tank.values().ves_height, roundedUp(60000 / cylinderOf(diameter, 1)));
}

TEST(Tank, Guards_against_criteria_that_are_not_positive) {
  for (const char* item : {"STORAGE", "SPHEROID", "SPHERE"}) {
    Plant plant = storagePlant(item);
    criteriaOf(plant) = {{"Storage Vessel Height to Diameter Ratio", -1},
                         {"Holding Hours in a Day", -1},
                         {"Number of Holding Days", -1},
                         {"Vapor Free Space (% of Total Storage Vessel Volume)", -1}};
    SizedVessel tank(plant);
    EXPECT_EQ(tank->Size(), 1);
    EXPECT_EQ(tank.values().holding_days, 30) << item;
    EXPECT_EQ(tank.values().holding_hours, 24) << item;
    const bool cylinder = std::string(item) == "STORAGE";
    EXPECT_EQ(tank.values().vapor_free_space, cylinder ? 10 : -1) << item;
    // a sphere asks for no slenderness
    EXPECT_EQ(tank.values().ht_dia_ratio,
              cylinder ? 0.5 : (std::string(item) == "SPHEROID" ? 0.4 : -1))
        << item;
  }
}

TEST(Tank, Replaces_a_vapor_space_of_all_its_volume_by_a_tenth_without_a_word) {
  struct Row {
    double given;
    double used;
  };
  for (const Row& row : {Row{99.9, 99.9}, Row{100, 10}, Row{150, 10}, Row{0.1, 0.1}}) {
    SizedVessel tank(storagePlant(), 1);
    tank.data().vapor_free_space = row.given;
    tank.data().ves_dia = 100;
    EXPECT_EQ(tank->Size(), 1);
    EXPECT_EQ(tank.values().vapor_free_space, row.used);
    expectClose(tank.values().capacity, kHeld * 100 / (100 - row.used));
    EXPECT_EQ(tank.warnings(), Texts{});
    EXPECT_TRUE(tank.prints().empty());
    EXPECT_TRUE(tank.boxes().empty());
  }
}

TEST(Tank, Holds_the_greater_of_what_comes_and_what_leaves) {
  struct Row {
    double leaves;  // CF/H, where 1,200 come
    double counts;
  };
  for (const char* item : {"STORAGE", "SPHERE", "SPHEROID"}) {
    for (const Row& row : {Row{600, 1200}, Row{1200, 1200}, Row{3000, 3000}}) {
      Plant plant = storagePlant(item);
      setPhase(plant, "L", "LIQUID", row.leaves * 50, 50);
      SizedVessel tank(plant);
      tank.data().ves_dia = 100;  // so that the volume stays
      EXPECT_EQ(tank->Size(), 1);
      const bool cylinder = std::string(item) == "STORAGE";
      const double held = std::string(item) == "SPHERE" ? sphereOf(100) : row.counts * 720;
      expectClose(tank.values().capacity, cylinder ? held / 0.9 : held);
    }
  }
}

TEST(Tank, Of_a_user_capacity_and_diameter_has_the_height_of_them_and_nothing_rounded) {
  SizedVessel tank(storagePlant());
  tank.data().capacity = 1000;
  tank.data().ves_dia = 10.3;
  EXPECT_EQ(tank->Size(), 1);
  EXPECT_EQ(tank.values().ves_dia, 10.3);
  expectClose(tank.values().ves_height, 1000 / cylinderOf(10.3, 1));
  EXPECT_EQ(tank.values().capacity, 1000);
  for (const auto& [percent, text] : tank.plant.progress()) EXPECT_LT(percent, 75) << text;
}

TEST(Tank, Of_a_user_height_has_the_diameter_of_the_volume_and_nothing_rounded) {
  SizedVessel tank(storagePlant());
  tank.data().ves_height = 40.2;
  EXPECT_EQ(tank->Size(), 1);
  EXPECT_EQ(tank.values().ves_height, 40.2);
  expectClose(tank.values().ves_dia, std::sqrt(kTank * 4 / kCirclePi / 40.2));
  expectClose(tank.values().capacity, kTank);
}

TEST(Tank, Of_both_user_dimensions_has_their_volume) {
  SizedVessel tank(storagePlant());
  tank.data().ves_dia = 20.3;
  tank.data().ves_height = 10.2;
  EXPECT_EQ(tank->Size(), 1);
  EXPECT_EQ(tank.values().ves_dia, 20.3);
  EXPECT_EQ(tank.values().ves_height, 10.2);
  expectClose(tank.values().capacity, cylinderOf(20.3, 10.2));
}

TEST(Tank, Of_a_user_capacity_alone_is_rounded_and_has_the_volume_of_that) {
  SizedVessel tank(storagePlant());
  tank.data().capacity = 1000;
  EXPECT_EQ(tank->Size(), 1);
  const double diameter = std::pow(1000 * 4 / (0.5 * kCirclePi), 0.33);  // 13.3
  EXPECT_EQ(tank.values().ves_dia, 13.5);
  EXPECT_EQ(tank.values().ves_height, roundedUp(1000 / cylinderOf(diameter, 1)));
  expectClose(tank.values().capacity, cylinderOf(13.5, tank.values().ves_height));
}

TEST(Tank, Of_everything_from_the_user_stays_as_given) {
  SizedVessel tank(storagePlant());
  tank.data().capacity = 1000;
  tank.data().ves_dia = 7.1;
  tank.data().ves_height = 3.3;
  EXPECT_EQ(tank->Size(), 1);
  EXPECT_EQ(tank.values().capacity, 1000);
  EXPECT_EQ(tank.values().ves_dia, 7.1);
  EXPECT_EQ(tank.values().ves_height, 3.3);
}

TEST(Tank, Is_refused_without_a_volume_a_diameter_or_a_height) {
  Plant dry = storagePlant();
  removeLiquid(dry);
  expectRefusal(dry, kNoCapacity, {});
  VesselData given;
  given.ves_height = -3;
  expectRefusal(storagePlant(), kNoDiameter, given);
  given = {};
  given.ves_dia = 1e200;  // its square is beyond all numbers
  expectRefusal(storagePlant(), kNoHeight, given);
}

TEST(Tank, That_is_refused_keeps_what_it_has_reached) {
  SizedVessel tank(storagePlant());
  tank.data().ves_height = -3;
  EXPECT_EQ(tank->Size(), 0);
  expectClose(tank.values().capacity, kTank);
  EXPECT_EQ(tank.values().ves_height, -3);
}

// --- Spheres ------------------------------------------------------------------------------------

TEST(Sphere, Holds_thirty_days_of_liquid_and_no_vapor) {
  for (const double space : {10.0, 50.0}) {
    SizedVessel sphere(storagePlant("SPHERE"));
    sphere.data().vapor_free_space = space;
    EXPECT_EQ(sphere->Size(), 1);
    EXPECT_EQ(sphere.values().ves_dia, roundedUp(std::pow(kHeld * 6 / kCirclePi, 0.33)));
    EXPECT_EQ(sphere.values().ves_dia, 113);
    expectClose(sphere.values().capacity, sphereOf(113));
    EXPECT_EQ(sphere.values().ves_height, 0);
    EXPECT_EQ(sphere.values().res_time, 0);
  }
}

TEST(Sphere, Reports_its_progress) {
  SizedVessel sphere(storagePlant("SPHERE"));
  EXPECT_EQ(sphere.sizingProgress(), (SizedVessel::Progress{
                                         {51, "Checking user specifications."},
                                         {55, "Determining liquid holding time."},
                                         {60, "Beginning detailed sizing of the equipment."},
                                         {61, "Determining vessel volume."},
                                         {65, "Obtaining diameter of the equipment."},
                                         {75, "Rounding up diameter."},
                                         {80, "Calculating vessel capacity."},
                                     }));
}

TEST(Sphere, Of_a_user_diameter_has_its_volume) {
  SizedVessel sphere(storagePlant("sphere"));
  sphere.data().ves_dia = 40.3;
  EXPECT_EQ(sphere->Size(), 1);
  EXPECT_EQ(sphere.values().ves_dia, 40.3);
  expectClose(sphere.values().capacity, sphereOf(40.3));
}

TEST(Sphere, Of_a_user_capacity_is_rounded_and_has_the_volume_of_that) {
  SizedVessel sphere(storagePlant("SPHERE"));
  sphere.data().capacity = 1000;
  EXPECT_EQ(sphere->Size(), 1);
  EXPECT_NEAR(std::pow(6000 / kCirclePi, 0.33), 12.1, 0.05);
  EXPECT_EQ(sphere.values().ves_dia, 12.5);
  expectClose(sphere.values().capacity, sphereOf(12.5));
}

TEST(Sphere, Of_a_user_capacity_and_diameter_stays_as_given) {
  SizedVessel sphere(storagePlant("SPHERE"));
  sphere.data().capacity = 1000;
  sphere.data().ves_dia = 40.3;
  EXPECT_EQ(sphere->Size(), 1);
  EXPECT_EQ(sphere.values().capacity, 1000);
  EXPECT_EQ(sphere.values().ves_dia, 40.3);
}

TEST(Sphere, Of_a_negative_diameter_keeps_it_though_it_does_not_count_as_given) {
  Plant plant = storagePlant("SPHERE");
  recordOf(plant)["CpVesselDiameter"] = Plant::array({-5, "FEET"});
  SizedVessel sphere(plant);
  sphere->GetLastInfo();
  EXPECT_EQ(sphere->Size(), 1);
  EXPECT_EQ(sphere.values().ves_dia, -5);
  EXPECT_TRUE(std::isnan(sphere.values().capacity));  // of a negative diameter
  sphere->Commit();
  EXPECT_FALSE(sphere.has("CpLiquidVolume"));
}

TEST(Sphere, Without_liquid_is_refused) {
  Plant dry = storagePlant("SPHERE");
  removeLiquid(dry);
  expectRefusal(dry, kNoCapacity, {});
}

// --- Spheroids ----------------------------------------------------------------------------------

TEST(Spheroid, Holds_thirty_days_of_liquid_and_no_vapor) {
  for (const double space : {10.0, 50.0}) {
    SizedVessel tank(storagePlant("SPHEROID"));
    tank.data().vapor_free_space = space;
    EXPECT_EQ(tank->Size(), 1);
    const double diameter = std::pow(kHeld * 6 / (0.16 * kCirclePi), 0.33);  // 206.3
    EXPECT_EQ(tank.values().ves_dia, 206.5);
    EXPECT_EQ(tank.values().ves_dia, roundedUp(diameter));
    EXPECT_EQ(tank.values().ves_height, roundedUp(std::sqrt(kHeld * 6 / kCirclePi / diameter)));
    EXPECT_EQ(tank.values().ves_height, 89.5);
    expectClose(tank.values().capacity, spheroidOf(206.5, 89.5));
  }
}

TEST(Spheroid, Reports_its_progress) {
  SizedVessel tank(storagePlant("SPHEROID"));
  EXPECT_EQ(tank.sizingProgress(), (SizedVessel::Progress{
                                       {51, "Checking user specifications."},
                                       {52, "Determining height over diameter ratio."},
                                       {55, "Determining liquid holding time."},
                                       {60, "Beginning detailed sizing of the equipment."},
                                       {61, "Determining vessel volume."},
                                       {65, "Obtaining height and diameter of the equipment."},
                                       {66, "Obtaining diameter."},
                                       {67, "Obtaining diameter."},
                                       {67, "Obtaining height."},
                                       {75, "Rounding up height and diameter."},
                                       {80, "Calculating vessel capacity."},
                                   }));
}

TEST(Spheroid, Of_one_user_dimension_has_the_other_from_the_volume_and_nothing_rounded) {
  SizedVessel wide(storagePlant("SPHEROID"));
  wide.data().ves_dia = 150.3;
  EXPECT_EQ(wide->Size(), 1);
  EXPECT_EQ(wide.values().ves_dia, 150.3);
  expectClose(wide.values().ves_height, std::sqrt(kHeld * 6 / kCirclePi / 150.3));
  expectClose(wide.values().capacity, kHeld);

  SizedVessel tall(storagePlant("SPHEROID"));
  tall.data().ves_height = 90.2;
  EXPECT_EQ(tall->Size(), 1);
  EXPECT_EQ(tall.values().ves_height, 90.2);
  expectClose(tall.values().ves_dia, kHeld / squareOf(90.2) * 6 / kCirclePi);
  expectClose(tall.values().capacity, kHeld);
}

TEST(Spheroid, Of_both_user_dimensions_has_their_volume) {
  SizedVessel tank(storagePlant("SPHEROID"));
  tank.data().ves_dia = 50.3;
  tank.data().ves_height = 20.2;
  EXPECT_EQ(tank->Size(), 1);
  EXPECT_EQ(tank.values().ves_dia, 50.3);
  EXPECT_EQ(tank.values().ves_height, 20.2);
  expectClose(tank.values().capacity, spheroidOf(50.3, 20.2));
}

TEST(Spheroid, Of_a_user_capacity_and_slenderness_follows_them) {
  Plant plant = storagePlant("SPHEROID");
  criteriaOf(plant)["Storage Vessel Height to Diameter Ratio"] = 0.6;
  SizedVessel tank(plant);
  tank.data().capacity = 20000;
  EXPECT_EQ(tank->Size(), 1);
  const double diameter = std::pow(120000 / (0.36 * kCirclePi), 0.33);
  EXPECT_EQ(tank.values().ves_dia, roundedUp(diameter));
  EXPECT_EQ(tank.values().ves_height, roundedUp(std::sqrt(120000 / kCirclePi / diameter)));
}

TEST(Spheroid, Of_a_negative_dimension_keeps_it_though_it_does_not_count_as_given) {
  SizedVessel tank(storagePlant("SPHEROID"));
  tank.data().ves_height = -20.2;
  EXPECT_EQ(tank->Size(), 1);
  EXPECT_EQ(tank.values().ves_height, -20);  // rounded up, as what is not given
  EXPECT_EQ(tank.values().ves_dia, roundedUp(kHeld / squareOf(20.2) * 6 / kCirclePi));
}

TEST(Spheroid, Is_refused_without_a_volume_a_diameter_or_a_height) {
  Plant dry = storagePlant("SPHEROID");
  removeLiquid(dry);
  expectRefusal(dry, kNoCapacity, {});
  VesselData given;
  given.ves_height = 1e200;  // its square is beyond all numbers
  expectRefusal(storagePlant("SPHEROID"), kNoDiameter, given);
  given = {};
  given.capacity = 1e-30;
  given.ves_dia = 1e300;
  expectRefusal(storagePlant("SPHEROID"), kNoHeight, given);
}

}  // namespace
}  // namespace sizewright
