#include "sizewright/vessels/vessel_correlations.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <random>

#include "vessels/sized_vessel.h"

namespace sizewright {
namespace {

constexpr double kGravityOfRule = 4.17118e8;  // FT/H2
constexpr double kStep = 1e-5;                // the root finder stops below this step

// --- Volumes ------------------------------------------------------------------------------------

TEST(VesselVolumes, Follow_the_figures_of_the_solids) {
  expectClose(cylinderVolume(5, 10), 196.34954085);
  expectClose(sphereVolume(10), 523.5987756);
  expectClose(spheroidVolume(10, 6), 188.495559216);
  expectClose(spheroidVolume(7, 7), sphereVolume(7));
  EXPECT_DOUBLE_EQ(heldVolume(10, 1200), 200);
  EXPECT_DOUBLE_EQ(heldVolume(0, 1200), 0);
}

TEST(VesselVolumes, A_cylinder_of_a_volume_has_the_height_that_gives_it_back) {
  for (const double diameter : {0.5, 1.0, 4.5, 50.0}) {
    for (const double volume : {0.1, 200.0, 1e6}) {
      const double height = cylinderHeight(volume, diameter * diameter);
      expectClose(cylinderVolume(diameter, height), volume);
    }
  }
}

TEST(VesselVolumes, Of_nothing_are_nothing_and_of_a_negative_diameter_no_number) {
  EXPECT_EQ(cylinderVolume(0, 10), 0);
  EXPECT_EQ(sphereVolume(0), 0);
  EXPECT_EQ(spheroidVolume(10, 0), 0);
  EXPECT_TRUE(std::isnan(cylinderVolume(-5, 10)));
  EXPECT_TRUE(std::isnan(sphereVolume(-5)));
}

TEST(VesselVolumes, Stand_on_the_class_under_their_own_names) {
  using V = VesselUnderTest;
  expectClose(V::determine_cylinder_capacity(5, 10), 196.34954085);
  expectClose(V::st_sp_calculate_sphere_volume(10), 523.5987756);
  expectClose(V::spheroid_cal_vol(10, 6), 188.495559216);
  EXPECT_DOUBLE_EQ(V::proc_ves_determine_liq_vol(10, 1200), 200);
}

TEST(VesselSlenderness, Is_compared_with_a_limit) {
  using V = VesselUnderTest;
  EXPECT_EQ(V::proc_vs_check_hd_ratio(3, 4, 12), 0);
  EXPECT_EQ(V::proc_vs_check_hd_ratio(3, 4, 11.999), -1);
  EXPECT_EQ(V::proc_vs_check_hd_ratio(3, 4, 12.001), 1);
}

// --- Vapor velocity -----------------------------------------------------------------------------

struct KvRow {
  double factor;
  double kv;  // FT/S
};
// Worked out with thirty digits from the published polynomial.
constexpr auto kLoadFactors = std::to_array<KvRow>({
    {0.006, 0.257424466046143},
    {0.01, 0.322495386884888},
    {0.1, 0.429592523188124},
    {0.6, 0.221281748966819},
    {1.0, 0.152975408846661},
    {6.0, 0.0177460276733265},
});

TEST(VaporLoadFactor, Follows_the_published_curve) {
  for (const KvRow& row : kLoadFactors) expectClose(vaporLoadFactor(row.factor), row.kv, 1e-13);
}

// Read off the curve in print: about 0.4 FT/S near a factor of 0.1, a tenth of it at 3.
TEST(VaporLoadFactor, Stays_near_the_drawn_curve) {
  EXPECT_NEAR(vaporLoadFactor(0.1), 0.42, 0.03);
  EXPECT_NEAR(vaporLoadFactor(3.0), 0.045, 0.01);
}

TEST(VaporLoadFactor, Has_one_maximum_between_the_ends_of_its_range) {
  double last = vaporLoadFactor(0.006);
  bool falls = false;
  int turns = 0;
  for (double factor = 0.007; factor <= 6.0; factor *= 1.02) {
    const double kv = vaporLoadFactor(factor);
    if ((kv < last) != falls) ++turns;
    falls = kv < last;
    last = kv;
  }
  EXPECT_EQ(turns, 1);
  EXPECT_TRUE(falls);
}

TEST(SeparationFactor, Is_a_flow_ratio_times_the_root_of_a_density_ratio) {
  expectClose(separationFactor(60000, 10000, 0.5, 50), 0.6);
  EXPECT_EQ(separationFactor(0, 10000, 0.5, 50), 0);
}

TEST(EntrainmentVelocity, Follows_Souders_and_Brown) {
  expectClose(entrainmentVelocity(0.35, 1, 50.5, 0.5), 12600);
  expectClose(entrainmentVelocity(0.35, 1.25, 50.5, 0.5), 15750);
  EXPECT_EQ(entrainmentVelocity(0.35, 1, 0.5, 0.5), 0);
  EXPECT_TRUE(std::isnan(entrainmentVelocity(0.35, 1, 0.4, 0.5)));
}

// The number that tells the regime, of a particle of one foot.
double regimeNumber(double vapor, double liquid) {
  return std::pow(kGravityOfRule * vapor * (liquid - vapor) / squareOf(0.05), 0.33);
}

TEST(SettlingVelocity, Obeys_Stokes_below_3_and_Newton_from_3_on) {
  const double one = regimeNumber(0.5, 50);
  const auto stokes = [](double d) { return kGravityOfRule * 49.5 * d * d / 0.9; };
  const auto newton = [](double d) { return 1.74 * std::sqrt(kGravityOfRule * d * 49.5 / 0.5); };
  struct Row {
    double k;
    SettlingRegime regime;
  };
  constexpr auto kRows = std::to_array<Row>({
      {0.1, SettlingRegime::viscous},
      {3.0 * (1 - 1e-7), SettlingRegime::viscous},
      {3.0 * (1 + 1e-7), SettlingRegime::intermediate},
      {20.0, SettlingRegime::intermediate},
      {70.0 * (1 - 1e-7), SettlingRegime::intermediate},
      {70.0 * (1 + 1e-7), SettlingRegime::turbulent},
      {1000.0, SettlingRegime::turbulent},
  });
  for (const Row& row : kRows) {
    const double diameter = row.k / one;
    const SettlingVelocity settling = settlingVelocity(diameter, 0.5, 50);
    EXPECT_EQ(settling.regime, row.regime) << row.k;
    expectClose(settling.velocity,
                row.regime == SettlingRegime::viscous ? stokes(diameter) : newton(diameter));
  }
  // by hand: 4.17118 x 49.5 / 0.9
  expectClose(settlingVelocity(1e-4, 0.5, 50).velocity, 229.4149);
}

TEST(SettlingVelocity, Of_a_liquid_lighter_than_the_vapor_is_no_number) {
  const SettlingVelocity settling = settlingVelocity(0.0125, 0.5, 0.0);
  EXPECT_TRUE(std::isnan(settling.velocity));
  EXPECT_EQ(settling.regime, SettlingRegime::intermediate);
}

// --- Cubics -------------------------------------------------------------------------------------

double valueAt(const Cubic& cubic, double x) {
  return ((cubic.a3 * x + cubic.a2) * x + cubic.a1) * x + cubic.a0;
}

// The real roots in closed form: Cardano's, or Viete's where there are three.
std::vector<double> closedFormRoots(const Cubic& cubic) {
  const long double b = static_cast<long double>(cubic.a2) / cubic.a3;
  const long double c = static_cast<long double>(cubic.a1) / cubic.a3;
  const long double d = static_cast<long double>(cubic.a0) / cubic.a3;
  const long double p = c - b * b / 3;
  const long double q = 2 * b * b * b / 27 - b * c / 3 + d;
  const long double discriminant = q * q / 4 + p * p * p / 27;
  if (discriminant > 0) {
    const long double root = std::sqrt(discriminant);
    const long double u = std::cbrt(q > 0 ? -q / 2 - root : -q / 2 + root);
    return {static_cast<double>(u - p / (3 * u) - b / 3)};
  }
  const long double radius = 2 * std::sqrt(-p / 3);
  const long double angle = std::acos(3 * q / (p * radius)) / 3;
  std::vector<double> roots;
  for (int i = 0; i < 3; ++i) {
    const long double turn = 2 * static_cast<long double>(kCirclePi) * i / 3;
    roots.push_back(static_cast<double>(radius * std::cos(angle - turn) - b / 3));
  }
  return roots;
}

TEST(CubicRoots, Known_by_hand_are_found) {
  const CubicRoot two = findRoot({1, 0, 0, -8}, 0, 50);
  EXPECT_EQ(two.outcome, CubicRoot::Outcome::found);
  EXPECT_NEAR(two.x, 2, kStep);
  EXPECT_NEAR(findRoot({-1, 0, 0, 8}, 0, 50).x, 2, kStep);
  EXPECT_NEAR(findRoot({1, 0, 0, 8}, -50, 0).x, -2, kStep);
  EXPECT_NEAR(findRoot({1, 0, 0, -8}, 50, 0).x, 2, kStep);
  // (x - 1)(x - 4)(x - 9)
  EXPECT_NEAR(findRoot({1, -14, 49, -36}, 0, 3).x, 1, kStep);
  EXPECT_NEAR(findRoot({1, -14, 49, -36}, 2, 7).x, 4, kStep);
  EXPECT_NEAR(findRoot({1, -14, 49, -36}, 6, 50).x, 9, kStep);
}

TEST(CubicRoots, Next_to_a_flat_place_are_found) {
  // (x - 10)^3 = 0.001
  EXPECT_NEAR(findRoot({1, -30, 300, -1000.001}, 0, 50).x, 10.1, 1e-4);
}

TEST(CubicRoots, Of_a_drum_agree_with_the_closed_form_over_a_wide_range) {
  std::mt19937_64 random(20240711);
  std::uniform_real_distribution<double> decades(-3, 3);
  std::uniform_real_distribution<double> heights(0, 40);
  int bracketed = 0;
  for (int i = 0; i < 20000; ++i) {
    const double slope = std::pow(10, decades(random));
    const Cubic cubic = {slope, -0.7853981634 * heights(random), 0,
                         -std::pow(10, decades(random) + 2)};
    const CubicRoot root = findRoot(cubic, 0, 50);
    if (!(valueAt(cubic, 50) > 0)) {
      EXPECT_EQ(root.outcome, CubicRoot::Outcome::notBracketed);
      EXPECT_EQ(root.x, 0);
      continue;
    }
    ++bracketed;
    EXPECT_EQ(root.outcome, CubicRoot::Outcome::found);
    const std::vector<double> roots = closedFormRoots(cubic);
    const double expected = *std::max_element(roots.begin(), roots.end());
    EXPECT_NEAR(root.x, expected, 1.01 * kStep) << cubic.a3 << ' ' << cubic.a2 << ' ' << cubic.a0;
  }
  EXPECT_GT(bracketed, 10000);
}

TEST(CubicRoots, Of_any_cubic_agree_with_the_closed_form_in_their_bracket) {
  std::mt19937_64 random(19620704);
  std::uniform_real_distribution<double> places(-40, 40);
  std::uniform_real_distribution<double> decades(-3, 3);
  std::uniform_real_distribution<double> share(0.05, 0.95);
  int tried = 0;
  while (tried < 10000) {
    std::array<double, 3> r = {places(random), places(random), places(random)};
    std::sort(r.begin(), r.end());
    if (r[1] - r[0] < 1 || r[2] - r[1] < 1) continue;
    ++tried;
    const double a3 = std::pow(10, decades(random)) * (tried % 2 == 0 ? 1 : -1);
    const Cubic cubic = {a3, -a3 * (r[0] + r[1] + r[2]),
                         a3 * (r[0] * r[1] + r[0] * r[2] + r[1] * r[2]), -a3 * r[0] * r[1] * r[2]};
    const double lower = r[0] + share(random) * (r[1] - r[0]);
    const double upper = r[1] + share(random) * (r[2] - r[1]);
    const CubicRoot root = findRoot(cubic, lower, upper);
    EXPECT_EQ(root.outcome, CubicRoot::Outcome::found);
    std::vector<double> roots = closedFormRoots(cubic);
    ASSERT_EQ(roots.size(), 3U);
    std::sort(roots.begin(), roots.end());
    EXPECT_NEAR(roots[1], r[1], 1e-6);
    EXPECT_NEAR(root.x, roots[1], 1.01 * kStep) << r[0] << ' ' << r[1] << ' ' << r[2];
  }
}

TEST(CubicRoots, Outside_the_bounds_or_on_one_of_them_are_not_found) {
  struct Row {
    Cubic cubic;
    double lower;
    double upper;
  };
  const auto rows = std::to_array<Row>({
      {{1, 0, 0, -200000}, 0, 50},                // 58.5
      {{1, 0, 0, 8}, 0, 50},                      // -2
      {{1, 0, 0, -125000}, 0, 50},                // on the upper bound
      {{1, 0, 0, 0}, 0, 50},                      // on the lower bound
      {{1, -14, 49, -36}, 2, 10},                 // two of them
      {{1, 0, 0, std::nan("")}, 0, 50},           // no number
      {{1, 0, 0, -125000 * (1 + 1e-12)}, 0, 50},  // just above the upper bound
  });
  for (const Row& row : rows) {
    const CubicRoot root = findRoot(row.cubic, row.lower, row.upper);
    EXPECT_EQ(root.outcome, CubicRoot::Outcome::notBracketed) << row.cubic.a0;
    EXPECT_EQ(root.x, 0);
  }
  EXPECT_NEAR(findRoot({1, 0, 0, -125000 * (1 - 1e-12)}, 0, 50).x, 50, kStep);
}

// The bracket keeps the cubic negative at one end and positive at the other: a falling root between
// two rising ones is never taken.
TEST(CubicRoots, Of_three_in_a_bracket_are_found_where_the_cubic_rises_through_it) {
  std::mt19937_64 random(271828);
  std::uniform_real_distribution<double> places(-40, 40);
  int tried = 0;
  while (tried < 10000) {
    std::array<double, 3> r = {places(random), places(random), places(random)};
    std::sort(r.begin(), r.end());
    if (r[1] - r[0] < 1 || r[2] - r[1] < 1) continue;
    ++tried;
    const Cubic cubic = {1, -(r[0] + r[1] + r[2]), r[0] * r[1] + r[0] * r[2] + r[1] * r[2],
                         -r[0] * r[1] * r[2]};
    const CubicRoot root = findRoot(cubic, r[0] - 20 - places(random) / 4, r[2] + 30);
    EXPECT_EQ(root.outcome, CubicRoot::Outcome::found);
    const double nearest = root.x < r[1] ? r[0] : r[2];
    EXPECT_NEAR(root.x, nearest, 1.01 * kStep) << r[0] << ' ' << r[1] << ' ' << r[2];
  }
}

// Their last digit is greater than the step at which the search stops otherwise.
TEST(CubicRoots, Of_great_size_stop_when_a_step_changes_nothing) {
  for (const double size : {114206189822447.48, 22014004458747.863, 59e12, 117e12, 234e12}) {
    const CubicRoot root = findRoot({1, 0, 0, -(size * size * size)}, 0, 1e16);
    EXPECT_EQ(root.outcome, CubicRoot::Outcome::found) << size;
    EXPECT_NEAR(root.x, size, size * 1e-15);
  }
}

TEST(CubicRoots, That_100_rounds_do_not_reach_leave_the_last_estimate) {
  // 100 halvings of 1e60 leave a bracket of more than 1e29
  const CubicRoot root = findRoot({1, 0, 0, -8}, 0, 1e60);
  EXPECT_EQ(root.outcome, CubicRoot::Outcome::exhausted);
  EXPECT_GT(root.x, 2 + kStep);
  EXPECT_LT(root.x, 1e60);
}

TEST(CubicValue, Is_written_to_the_outputs_but_added_to_them_without_a_third_power) {
  double f = 1000;
  double df = 2000;
  VesselUnderTest::func_3rd_order_polynomial(2, -3, 5, -7, 4, &f, &df);
  EXPECT_EQ(f, 93);   // 128 - 48 + 20 - 7
  EXPECT_EQ(df, 77);  // 96 - 24 + 5
  f = 1000;
  df = 2000;
  VesselUnderTest::func_3rd_order_polynomial(0, -3, 5, -7, 4, &f, &df);
  EXPECT_EQ(f, 1000 - 48 + 20 - 7);
  EXPECT_EQ(df, 2000 - 24 + 5);
}

TEST(DrumRoot, Warns_where_the_bounds_hold_none_or_the_rounds_run_out) {
  constexpr const char* kOutside = "Diameter is outside range 0 to 1000 feet.";
  constexpr const char* kExhausted = "Maximum iteration exceeded.";
  SizedVessel drum(verticalDrum(), 1);
  const auto rootOf = [&](double upper, double a0) {
    return drum->proc_vs_cal_root_3rd_order_polynoimial_by_mnr(0, upper, 1, 0, 0, a0);
  };
  EXPECT_NEAR(rootOf(50, -27), 3, kStep);
  EXPECT_EQ(drum.warnings(), Texts{});
  EXPECT_EQ(rootOf(50, -200000), 0);
  EXPECT_EQ(drum.warnings(), Texts{kOutside});
  EXPECT_GT(rootOf(1e60, -8), 2);
  EXPECT_EQ(drum.warnings(), (Texts{kOutside, kExhausted}));
  const std::vector<std::pair<std::string, int>> shown = {{kOutside, 48}, {kExhausted, 48}};
  EXPECT_EQ(drum.boxes(), shown);

  SizedVessel silent(verticalDrum(), 0);
  EXPECT_EQ(silent->proc_vs_cal_root_3rd_order_polynoimial_by_mnr(0, 50, 1, 0, 0, -200000), 0);
  EXPECT_EQ(silent.warnings(), Texts{kOutside});
  EXPECT_TRUE(silent.boxes().empty());
}

}  // namespace
}  // namespace sizewright
