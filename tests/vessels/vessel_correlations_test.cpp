#include "sizewright/vessels/vessel_correlations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace sizewright {
namespace {

TEST(VesselVolumes, Are_those_of_the_solids) {
  EXPECT_NEAR(cylinderVolume(4, 10), 40 * std::numbers::pi, 1e-7);
  EXPECT_NEAR(sphereVolume(6), 36 * std::numbers::pi, 1e-7);
  EXPECT_NEAR(spheroidVolume(10, 4), std::numbers::pi / 6 * 160, 1e-7);
  EXPECT_NEAR(cylinderHeight(40 * std::numbers::pi, 16), 10, 1e-8);
  EXPECT_DOUBLE_EQ(heldVolume(90, 40), 60);
}

TEST(VaporLoadFactor, Follows_the_polynomial_in_the_logarithm_of_the_factor) {
  EXPECT_NEAR(vaporLoadFactor(1.0), std::exp(-1.877478097), 1e-15);
  const double e = std::numbers::e;  // ln F = 1
  EXPECT_NEAR(vaporLoadFactor(e),
              std::exp(-1.877478097 - 0.8145804597 - 0.1870744085 - 0.0145228667 - 0.0010148518),
              1e-15);
  EXPECT_NEAR(vaporLoadFactor(1 / e),
              std::exp(-1.877478097 + 0.8145804597 - 0.1870744085 + 0.0145228667 - 0.0010148518),
              1e-15);
}

// Watkins' curve: about 0.4 FT/S near F = 0.1, falling to 0.04 at F = 3.
TEST(VaporLoadFactor, Stays_near_the_published_curve) {
  EXPECT_NEAR(vaporLoadFactor(0.1), 0.42, 0.03);
  EXPECT_NEAR(vaporLoadFactor(3.0), 0.045, 0.01);
}

TEST(EntrainmentVelocity, Is_that_of_Souders_and_Brown_an_hour) {
  EXPECT_NEAR(entrainmentVelocity(0.35, 1.25, 50, 0.5), 0.35 * 1.25 * std::sqrt(99.0) * 3600, 1e-5);
}

TEST(SeparationFactor, Is_the_flow_ratio_times_the_root_of_the_density_ratio) {
  EXPECT_NEAR(separationFactor(300, 100, 0.5, 50), 0.3, 1e-10);
}

constexpr double kGravity = 4.17118e8;

double particleOf(double k, double vapor, double liquid) {
  return k / std::pow(kGravity * vapor * (liquid - vapor) / (0.05 * 0.05), 0.33);
}

TEST(SettlingVelocity, Is_viscous_below_3_turbulent_above_70_and_intermediate_between) {
  const double vapor = 0.2;
  const double liquid = 50;
  struct Row {
    double k;
    SettlingRegime regime;
  };
  for (const Row& row :
       {Row{2.999, SettlingRegime::viscous}, Row{3.001, SettlingRegime::intermediate},
        Row{69.99, SettlingRegime::intermediate}, Row{70.01, SettlingRegime::turbulent}}) {
    const double particle = particleOf(row.k, vapor, liquid);
    const SettlingVelocity settling = settlingVelocity(particle, vapor, liquid);
    EXPECT_EQ(settling.regime, row.regime) << row.k;
    const double expected = row.regime == SettlingRegime::viscous
                                ? kGravity * (liquid - vapor) * particle * particle / 0.9
                                : 1.74 * std::sqrt(kGravity * particle * (liquid - vapor) / vapor);
    EXPECT_NEAR(settling.velocity, expected, 1e-8 * expected) << row.k;
  }
}

TEST(SettlingVelocity, Is_not_a_number_in_a_lighter_liquid) {
  const SettlingVelocity settling = settlingVelocity(0.0125, 0.5, 0.0);
  EXPECT_TRUE(std::isnan(settling.velocity));
  EXPECT_EQ(settling.regime, SettlingRegime::intermediate);
}

// --- Cubic --------------------------------------------------------------------------------------

TEST(CubicValue, Comes_with_its_slope) {
  double value = 7;
  double slope = 7;
  evaluate({2, -3, 4, -5}, 2, value, slope);
  EXPECT_DOUBLE_EQ(value, 16 - 12 + 8 - 5);
  EXPECT_DOUBLE_EQ(slope, 24 - 12 + 4);
}

TEST(CubicValue, Without_a_cubic_term_adds_to_what_was_there) {
  double value = 100;
  double slope = 10;
  evaluate({0, 1, 0, -4}, 3, value, slope);
  EXPECT_DOUBLE_EQ(value, 105);
  EXPECT_DOUBLE_EQ(slope, 16);
}

/// The real root of a x^3 + b x^2 + d = 0 for a > 0, b <= 0, d < 0, by Cardano's formula.
double closedForm(double a, double b, double d) {
  const double shift = b / (3 * a);
  const double p = -3 * shift * shift;
  const double q = 2 * shift * shift * shift + d / a;
  const double root = std::sqrt(q * q / 4 + p * p * p / 27);
  return std::cbrt(-q / 2 + root) + std::cbrt(-q / 2 - root) - shift;
}

TEST(CubicRoot, Is_the_closed_form_root_over_a_wide_range) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> ratio(0.2, 8.0);
  std::uniform_real_distribution<double> height(0.0, 30.0);
  std::uniform_real_distribution<double> volume(-3.0, 5.0);
  int found = 0;
  for (int i = 0; i < 20'000; ++i) {
    const double a = 0.7853981634 * ratio(random);
    const double b = -0.7853981634 * height(random);
    const double d = -std::pow(10.0, volume(random));
    const double expected = closedForm(a, b, d);
    const CubicRoot root = findRoot({a, b, 0, d}, 0, 50);
    if (expected >= 50) {
      EXPECT_EQ(root.outcome, CubicRoot::Outcome::notBracketed);
      continue;
    }
    ++found;
    ASSERT_EQ(root.outcome, CubicRoot::Outcome::found);
    // The last step is below 1e-5; Newton's last step is far better than that.
    ASSERT_NEAR(root.x, expected, 1e-4) << a << ' ' << b << ' ' << d;
  }
  EXPECT_GT(found, 15'000);
}

TEST(CubicRoot, Outside_or_on_a_bound_is_not_bracketed) {
  for (const double root : {-1.0, 0.0, 50.0, 51.0}) {
    const CubicRoot result = findRoot({1, 0, 0, -root * root * root}, 0, 50);
    EXPECT_EQ(result.outcome, CubicRoot::Outcome::notBracketed) << root;
    EXPECT_EQ(result.x, 0.0);
  }
}

TEST(CubicRoot, Is_found_whichever_bound_is_negative) {
  EXPECT_NEAR(findRoot({-1, 0, 0, 27}, 0, 50).x, 3, 1e-9);
  EXPECT_NEAR(findRoot({1, 0, 0, -27}, 0, 50).x, 3, 1e-9);
}

TEST(CubicRoot, Of_what_is_no_number_is_not_bracketed) {
  EXPECT_EQ(findRoot({1, 0, 0, std::nan("")}, 0, 50).outcome, CubicRoot::Outcome::notBracketed);
}

// A staircase around the root lets Newton's steps leave the bracket: bisection takes over.
TEST(CubicRoot, Is_found_next_to_a_flat_place) {
  const CubicRoot root = findRoot({1, -30, 300, -1000.001}, 0, 50);  // (x - 10)^3 = 0.001
  EXPECT_EQ(root.outcome, CubicRoot::Outcome::found);
  EXPECT_NEAR(root.x, 10.1, 1e-4);
}

}  // namespace
}  // namespace sizewright
