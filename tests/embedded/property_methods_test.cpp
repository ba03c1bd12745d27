#include "sizewright/embedded/property_methods.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sizewright {
namespace {

constexpr double kBar = 1.0 / 1.01325;  // ATM

// --- Compressibility ----------------------------------------------------------------------------

struct CompressibilityRow {
  double reducedTemperature;
  double reducedPressure;
  double acentricFactor;
  double expected;
};

TEST(GasCompressibility, Solves_the_equation_of_Lee_and_Kesler) {
  // The same equation solved apart from this code, by stepping and halving.
  const CompressibilityRow rows[] = {
      {1.2, 0.659, 0.2, 0.87232},  {2.0, 5.0, 0.1, 1.00536},  {0.8, 0.2, 0.3, 0.81910},
      {1.05, 1.2, 0.0, 0.44368},   {1.1, 8.0, 0.25, 0.97471}, {3.5, 10.0, 0.0, 1.18338},
      {0.65, 0.01, 0.35, 0.98327},
  };
  for (const CompressibilityRow& row : rows) {
    EXPECT_NEAR(gasCompressibility(row.reducedTemperature, row.reducedPressure, row.acentricFactor),
                row.expected, 2e-5)
        << "Tr " << row.reducedTemperature << " Pr " << row.reducedPressure;
  }
}

TEST(GasCompressibility, Agrees_with_the_published_tables_of_the_method) {
  // n-Butane at 510 K and 25 bar: Z = 0.865 + 0.200 x 0.038 = 0.873. Smith, Van Ness, Abbott,
  // Introduction to Chemical Engineering Thermodynamics, 6th ed., example 3.10.
  EXPECT_NEAR(gasCompressibility(510.0 / 425.1, 25.0 / 37.96, 0.200), 0.873, 0.001);
}

TEST(GasCompressibility, Is_close_to_air) {
  // Perry's Chemical Engineers' Handbook, compressibility factors for air; Tc 132.45 K, Pc 37.246
  // atm.
  struct AirRow {
    double temperature, bar, expected;
  };
  const AirRow rows[] = {{200.0, 40.0, 0.9100},  {250.0, 100.0, 0.9411}, {300.0, 10.0, 0.9974},
                         {300.0, 40.0, 0.9917},  {300.0, 100.0, 0.9930}, {300.0, 200.0, 1.0326},
                         {350.0, 100.0, 1.0183}, {500.0, 100.0, 1.0410}};
  for (const AirRow& row : rows) {
    EXPECT_NEAR(gasCompressibility(row.temperature / 132.45, row.bar * kBar / 37.246, -0.008),
                row.expected, 0.015)
        << row.temperature << " K, " << row.bar << " bar";
  }
}

TEST(GasCompressibility, Goes_to_1_at_low_pressure) {
  for (const double t : {0.4, 0.7, 1.0, 1.5, 4.0, 30.0}) {
    EXPECT_DOUBLE_EQ(gasCompressibility(t, 0.0, 0.3), 1.0);
    EXPECT_NEAR(gasCompressibility(t, 1e-9, 0.3), 1.0, 1e-6);
  }
}

TEST(GasCompressibility, Falls_smoothly_to_the_end_of_the_gas_branch_and_stays_there) {
  double previous = 1.0;
  for (double pressure = 0.001; pressure < 1.0; pressure += 0.001) {
    const double z = gasCompressibility(0.8, pressure, 0.0);
    EXPECT_LE(z, previous + 1e-9) << pressure;
    EXPECT_GT(z, 0.3) << pressure;
    previous = z;
  }
  EXPECT_EQ(gasCompressibility(0.8, 2.0, 0.0), gasCompressibility(0.8, 20.0, 0.0));
}

// --- Vapor pressure -----------------------------------------------------------------------------

struct Substance {
  const char* name;
  double boilingPoint, criticalTemperature, criticalPressure, acentricFactor;
};

// NIST Chemistry WebBook and its reference equations of state; pressures in ATM.
constexpr Substance kSubstances[] = {
    {"methane", 111.667, 190.564, 45.391, 0.0114}, {"propane", 231.036, 369.89, 41.956, 0.1521},
    {"n-octane", 398.77, 568.74, 24.6, 0.398},     {"benzene", 353.22, 562.02, 48.3, 0.211},
    {"toluene", 383.75, 591.75, 40.73, 0.266},     {"nitrogen", 77.355, 126.192, 33.514, 0.0372},
};

TEST(AcentricFactor, Comes_out_of_the_boiling_point) {
  for (const Substance& s : kSubstances) {
    EXPECT_NEAR(acentricFactorOf(s.boilingPoint, s.criticalTemperature, s.criticalPressure),
                s.acentricFactor, 0.006)
        << s.name;
  }
}

TEST(VaporPressure, Passes_the_boiling_and_critical_points) {
  for (const Substance& s : kSubstances) {
    for (const std::optional<double> acentric : {std::optional<double>(), {s.acentricFactor}}) {
      const auto curve =
          vaporPressureCurve(s.boilingPoint, s.criticalTemperature, s.criticalPressure, acentric);
      ASSERT_TRUE(curve) << s.name;
      EXPECT_NEAR(vaporPressure(*curve, s.boilingPoint), 1.0, 1e-12);
      EXPECT_NEAR(vaporPressure(*curve, s.criticalTemperature), s.criticalPressure, 1e-9);
      EXPECT_NEAR(boilingTemperature(*curve, 1.0), s.boilingPoint, 1e-9);
    }
  }
}

TEST(VaporPressure, Rises_with_temperature_and_is_inverted_by_the_boiling_temperature) {
  for (const Substance& s : kSubstances) {
    const auto curve = vaporPressureCurve(s.boilingPoint, s.criticalTemperature, s.criticalPressure,
                                          s.acentricFactor);
    double previous = 0.0;
    for (double t = 0.3; t < 1.0; t += 0.01) {
      const double pressure = vaporPressure(*curve, t * s.criticalTemperature);
      EXPECT_GT(pressure, previous) << s.name;
      EXPECT_NEAR(boilingTemperature(*curve, pressure), t * s.criticalTemperature, 1e-6) << s.name;
      previous = pressure;
    }
  }
}

TEST(VaporPressure, Of_ethylbenzene_is_as_measured) {
  // Poling, Prausnitz, O'Connell, The Properties of Gases and Liquids: Tb 409.3 K, Tc 617.1 K,
  // Pc 36.0 bar; 0.1333 bar at 347.2 K and 3.325 bar at 460 K.
  const auto curve = vaporPressureCurve(409.3, 617.1, 36.0 * kBar, std::nullopt);
  ASSERT_TRUE(curve);
  EXPECT_NEAR(vaporPressure(*curve, 347.2), 0.1333 * kBar, 0.03 * 0.1333);
  EXPECT_NEAR(vaporPressure(*curve, 460.0), 3.325 * kBar, 0.03 * 3.325);
}

TEST(VaporPressure, Of_water_needs_the_acentric_factor) {
  // IAPWS saturation temperatures.
  struct SteamRow {
    double bar, temperature;
  };
  const SteamRow rows[] = {{0.1, 318.96},  {1.0, 372.76},  {5.0, 424.98},  {10.0, 453.03},
                           {20.0, 485.53}, {40.0, 523.50}, {100.0, 584.15}};
  const auto curve = vaporPressureCurve(373.12, 647.1, 217.755, 0.3443);
  const auto plain = vaporPressureCurve(373.12, 647.1, 217.755, std::nullopt);
  ASSERT_TRUE(curve && plain);
  for (const SteamRow& row : rows) {
    EXPECT_NEAR(boilingTemperature(*curve, row.bar * kBar), row.temperature, 0.4) << row.bar;
    EXPECT_NEAR(boilingTemperature(*plain, row.bar * kBar), row.temperature, 2.6) << row.bar;
  }
}

TEST(VaporPressure, An_acentric_factor_at_the_boiling_point_itself_says_nothing) {
  // Tb = 0.7 Tc: the definition asks for a pressure there that contradicts 1 ATM.
  const auto with = vaporPressureCurve(350.0, 500.0, 30.0, 2.0);
  const auto without = vaporPressureCurve(350.0, 500.0, 30.0, std::nullopt);
  ASSERT_TRUE(with && without);
  EXPECT_NEAR(with->q, without->q, 1e-12);
}

TEST(VaporPressure, Is_held_at_the_critical_point) {
  const auto curve = vaporPressureCurve(231.036, 369.89, 41.956, 0.1521);
  ASSERT_TRUE(curve);
  EXPECT_EQ(vaporPressure(*curve, 1000.0), 41.956);
  EXPECT_EQ(boilingTemperature(*curve, 41.956), 369.89);
  EXPECT_EQ(boilingTemperature(*curve, 1e6), 369.89);
  EXPECT_EQ(boilingTemperature(*curve, 0.0), 0.0);
  EXPECT_EQ(boilingTemperature(*curve, -1.0), 0.0);
}

TEST(VaporPressure, Has_no_curve_without_sound_data) {
  EXPECT_FALSE(vaporPressureCurve(400.0, 400.0, 40.0, 0.2));
  EXPECT_FALSE(vaporPressureCurve(500.0, 400.0, 40.0, 0.2));
  EXPECT_FALSE(vaporPressureCurve(0.0, 400.0, 40.0, 0.2));
  EXPECT_FALSE(vaporPressureCurve(300.0, 400.0, 1.0, 0.2));
  EXPECT_FALSE(vaporPressureCurve(300.0, 400.0, std::nan(""), 0.2));
}

TEST(VaporPressure, An_absurd_acentric_factor_leaves_a_rising_curve) {
  for (const double acentric : {-50.0, -1.0, 3.0, 50.0}) {
    const auto curve = vaporPressureCurve(231.036, 369.89, 41.956, acentric);
    ASSERT_TRUE(curve) << acentric;
    EXPECT_LT(vaporPressure(*curve, 250.0), vaporPressure(*curve, 260.0)) << acentric;
    EXPECT_NEAR(vaporPressure(*curve, 231.036), 1.0, 1e-9) << acentric;
  }
}

TEST(BoilingTemperature, Of_Clausius_and_Clapeyron_is_as_by_hand) {
  // 1/T = 1/373.15 - 1.98588 ln 2 / 9717 = 0.00267989 - 0.00014166
  EXPECT_NEAR(boilingTemperature(373.15, 9717.0, 2.0), 393.975, 0.01);
  EXPECT_DOUBLE_EQ(boilingTemperature(373.15, 9717.0, 1.0), 373.15);
  EXPECT_EQ(boilingTemperature(373.15, 9717.0, 0.0), 0.0);
  EXPECT_EQ(boilingTemperature(373.15, 10.0, 1e6), 0.0);  // the formula has no temperature there
}

// --- Others -------------------------------------------------------------------------------------

TEST(LatentHeat, Follows_Watson) {
  // Water at 180 C: 970.3 (0.29991 / 0.42340)^0.38 = 851.2; the steam tables have 866.1 BTU/LB.
  EXPECT_NEAR(latentHeatAt(453.03, 970.3, 373.12, 647.1), 851.2, 0.2);
  EXPECT_DOUBLE_EQ(latentHeatAt(373.12, 970.3, 373.12, 647.1), 970.3);
  EXPECT_EQ(latentHeatAt(647.1, 970.3, 373.12, 647.1), 0.0);
  EXPECT_EQ(latentHeatAt(900.0, 970.3, 373.12, 647.1), 0.0);
  EXPECT_EQ(latentHeatAt(0.0, 970.3, 373.12, 647.1), 0.0);
  EXPECT_EQ(latentHeatAt(300.0, 970.3, 700.0, 647.1), 0.0);
}

TEST(HeatCapacityRatio, Is_that_of_an_ideal_gas) {
  // Nitrogen: 0.248 / (0.248 - 1.98588 / 28.014) = 0.248 / 0.177111
  EXPECT_NEAR(idealHeatCapacityRatio(0.248, 28.014), 1.40025, 1e-5);
  EXPECT_EQ(idealHeatCapacityRatio(0.05, 28.014), 0.0);  // below R/M
  EXPECT_EQ(idealHeatCapacityRatio(0.0, 28.014), 0.0);
  EXPECT_EQ(idealHeatCapacityRatio(0.248, 0.0), 0.0);
}

TEST(GasDensity, Follows_the_gas_law) {
  // 1 x 28.96 / (82.057366 x 300)
  EXPECT_NEAR(gasDensity(300.0, 1.0, 28.96, 1.0), 0.00117641, 1e-8);
  EXPECT_NEAR(gasDensity(300.0, 10.0, 28.96, 0.5), 0.0235282, 1e-6);
  EXPECT_EQ(gasDensity(0.0, 1.0, 28.96, 1.0), 0.0);
  EXPECT_EQ(gasDensity(300.0, 0.0, 28.96, 1.0), 0.0);
  EXPECT_EQ(gasDensity(300.0, 1.0, 28.96, 0.0), 0.0);
}

TEST(LiquidDensity, Follows_Yamada_and_Gunn) {
  // Propane, from 0.5058 at 288.71 K; base 0.29056 - 0.08775 x 0.152 = 0.277222. At 250 K:
  // (1 - 250/369.89)^(2/7) = 0.72477, at 288.71 K 0.64837; 0.277222^(0.64837 - 0.72477) = 1.10298.
  EXPECT_NEAR(liquidDensityAt(250.0, 0.5058, 288.71, 369.89, 0.152), 0.55789, 2e-5);
  EXPECT_DOUBLE_EQ(liquidDensityAt(288.71, 0.5058, 288.71, 369.89, 0.152), 0.5058);
}

TEST(LiquidDensity, Is_held_at_the_critical_temperature) {
  const double critical = liquidDensityAt(369.89, 0.5058, 288.71, 369.89, 0.152);
  EXPECT_GT(critical, 0.1);
  EXPECT_EQ(liquidDensityAt(900.0, 0.5058, 288.71, 369.89, 0.152), critical);
}

TEST(PropertyMethods, Never_answer_anything_but_a_finite_number_from_0_up) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double arguments[] = {-infinity, -1e308, -1.0,  -1e-308, 0.0,   1e-308,   1e-9,
                              0.5,       1.0,    300.0, 1e9,     1e308, infinity, std::nan("")};
  const auto expectSound = [](double value, const char* method) {
    EXPECT_TRUE(std::isfinite(value) && value >= 0.0) << method << " gave " << value;
  };
  for (const double a : arguments) {
    for (const double b : arguments) {
      expectSound(gasCompressibility(a, b, 0.2), "compressibility");
      expectSound(latentHeatAt(a, 100.0, b, 500.0), "latent heat");
      expectSound(latentHeatAt(300.0, a, 200.0, b), "latent heat");
      expectSound(idealHeatCapacityRatio(a, b), "heat capacity ratio");
      expectSound(gasDensity(a, b, 30.0, 0.9), "gas density");
      expectSound(gasDensity(300.0, 1.0, a, b), "gas density");
      expectSound(liquidDensityAt(a, 0.8, b, 500.0, 0.2), "liquid density");
      expectSound(liquidDensityAt(300.0, a, 280.0, b, 0.2), "liquid density");
      expectSound(boilingTemperature(a, 8000.0, b), "boiling temperature");
      expectSound(boilingTemperature(350.0, a, b), "boiling temperature");
      if (const auto curve = vaporPressureCurve(a, b, 40.0, 0.2)) {
        for (const double c : arguments) {
          expectSound(vaporPressure(*curve, c), "vapor pressure");
          expectSound(boilingTemperature(*curve, c), "boiling temperature");
        }
      }
    }
  }
}

}  // namespace
}  // namespace sizewright
