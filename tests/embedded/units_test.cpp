#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include "sizewright/embedded/message_log.h"
#include "sizewright/embedded/unit_table.h"
#include "sizewright/host/host.h"

namespace sizewright {
namespace {

class LoggingHost : public Host {
 public:
  UserInterface& user() override { return log; }
  MessageLog log;
};

double convertedValue(double value, const char* from, const char* to) {
  const UnitTable units(0);
  EXPECT_TRUE(units.convert(from, to, value)) << from << " to " << to;
  return value;
}

// One value of a unit in another, from the exact definitions: inch 0.0254 m, pound 0.45359237 kg,
// gallon 231 in3, g 9.80665 m/s2, IT calorie 4.1868 J and BTU 1055.05585262 J, atmosphere 101325
// Pa.
struct Row {
  double value;
  const char* from;
  double expected;
  const char* to;
};

constexpr Row kRows[] = {
    // temperature
    {32.0, "DEG F", 0.0, "DEG C"},
    {77.0, "DEG F", 25.0, "DEG C"},
    {212.0, "DEG F", 373.15, "DEG K"},
    {0.0, "DEG F", 459.67, "DEG R"},
    {-40.0, "DEG C", -40.0, "DEG F"},
    {300.0, "DEG K", 540.0, "DEG R"},
    // pressure
    {14.695948775513, "PSI", 1.0, "ATM"},
    {1.0, "PSI", 6.894757293168361, "KPA"},
    {0.0, "PSIG", 14.695948775513, "PSIA"},
    {100.0, "PSIG", 114.695948775513, "PSI"},
    {0.0, "PSIG", 101.325, "KPA"},
    {0.0, "KPAG", 101.325, "KPA"},
    {1.0, "BAR", 100.0, "KPA"},
    {1.0, "BARG", 2.01325, "BAR"},
    {1.0, "MPA", 1e6, "PA"},
    {760.0, "TORR", 1.0, "ATM"},
    {1.0, "MMHG", 133.322387415, "PA"},  // 13595.1 kg/m3
    {1.0, "INHG", 25.4, "MMHG"},
    {1.0, "IN H2O", 0.24908891, "KPA"},
    {1.0, "KG/CM2", 98.0665, "KPA"},
    {0.0, "KG/CM2G", 1.0332274528, "KG/CM2"},
    {144.0, "PSF", 1.0, "PSI"},
    {1.0, "IN H2O/FT", 817.2208333, "PA/M"},
    // mass flow
    {1.0, "LB/H", 0.45359237, "KG/H"},
    {3600.0, "KG/H", 1.0, "KG/S"},
    {2000.0, "LB/H", 1.0, "TPH"},
    {1000.0, "KG/H", 1.0, "T/H"},
    {1.0, "TONNE/H", 1.0, "MEGAG/H"},
    {1.0, "LB/S", 3600.0, "LB/HR"},
    {1.0, "G/S", 3.6, "KG/H"},
    // molar flow
    {1.0, "LBMOL/H", 0.45359237, "KGMOL/H"},
    {1.0, "KMOL/H", 1.0, "KGMOL/H"},
    // volume flow
    {3600.0, "CFH", 1.0, "CFS"},
    {60.0, "CFH", 1.0, "CFM"},
    {60.0 * 231.0 / 1728.0, "CFH", 1.0, "GPM"},
    {1.0, "CF/H", 1.0, "CFH"},
    {1.0, "CFH", 0.028316846592, "M3/H"},
    {3.6, "M3/H", 1.0, "L/S"},
    {1.0, "L/S", 60.0, "L/MIN"},
    {1.0, "M3/S", 1000.0, "L/S"},
    {24.0 * 60.0 / 42.0, "BBL/DAY", 1.0, "GPM"},
    {1.0, "CFM", 1.69901079552, "M3/H"},
    // velocity
    {1.0, "FPS", 3600.0, "FPH"},
    {1.0, "FPS", 60.0, "FPM"},
    {1.0, "FPM", 0.3048, "M/MIN"},
    {1.0, "FT/S", 0.3048, "M/S"},
    // length, area, volume
    {1.0, "FEET", 12.0, "INCHES"},
    {1.0, "FT", 0.3048, "M"},
    {1.0, "INCHES", 25.4, "MM"},
    {1.0, "FEET", 304.8, "MM"},
    {1.0, "M", 100.0, "CM"},
    {1.0, "SF", 0.09290304, "M2"},
    {1.0, "FT2", 144.0, "IN2"},
    {1.0, "CF", 0.028316846592, "M3"},
    {1728.0 / 231.0, "GALLONS", 1.0, "CF"},
    {1.0, "BARRELS", 42.0, "GALLONS"},
    {1000.0, "L", 1.0, "M3"},
    {12.0, "SF/CF", 1.0, "1/IN"},
    {1.0, "M2/M3", 0.3048, "SF/CF"},
    // density, viscosity
    {1.0, "GM/CC", 62.42796057614462, "PCF"},
    {1.0, "GM/CC", 1000.0, "KG/M3"},
    {1.0, "CPOISE", 1.0, "MPA-S"},
    {1.0, "POISE", 241.9088310502225, "LB/FT/H"},
    {1.0, "CPOISE", 3.6, "KG/M/H"},
    {1.0, "PA-S", 10.0, "POISE"},
    {1.0, "CST", 1.0, "MM2/S"},
    // power and heat rate
    {1.0, "HP", 0.74569987158227022, "KW"},
    {1.0, "HP", 2544.433577, "BTU/H"},
    {1.0, "MMBTU/H", 0.29307107017222, "MEGAW"},
    {1.0, "BTU/H", 0.29307107017222, "W"},
    {1.0, "KCAL/H", 1.163, "W"},
    {1.0, "GCAL/H", 1.163, "MW"},
    {3600.0, "KJ/H", 1.0, "KW"},
    {1.0, "GJ/H", 1000.0, "MJ/H"},
    // specific energy and heat capacity
    {1.0, "BTU/LB", 2.326, "KJ/KG"},
    {1.8, "BTU/LB", 1.0, "CAL/G"},
    {1.0, "KCAL/KG", 1.0, "CAL/G"},
    {1.0, "CAL/G/DEG C", 1.0, "BTU/LB/DEG F"},
    {1.0, "CAL/G/DEG K", 1.0, "BTU/LB/DEG F"},
    {1.0, "CAL/G/DEG K", 4.1868, "KJ/KG/DEG K"},
    // conductivity, coefficients, resistances
    {1.0, "CAL/CM/S/DEG K", 241.9088310502225, "BTU/H/FT/DEG F"},
    {1.0, "CAL/CM/S/DEG K", 418.68, "W/M/DEG K"},
    {1.0, "BTU/H/SF/DEG F", 4.88242763638305, "KCAL/H/M2/DEG C"},
    {1.0, "BTU/H/SF/DEG F", 5.678263341113488, "W/M2/DEG K"},
    {1.0, "BTU/H/DEG F", 453.59237, "CAL/H/DEG C"},
    {1.0, "H SF DEG F/BTU", 0.20481614362, "H M2 DEG C/KCAL"},
    {1.0, "M2 DEG K/W", 5.678263341113488, "H SF DEG F/BTU"},
    // time, fractions, others
    {1.0, "HOUR", 60.0, "MINUTE"},
    {60.0, "SECOND", 1.0, "MINUTES"},
    {1.0, "DAY", 24.0, "HOUR"},
    {70.0, "PERCENT", 0.7, "FRACTION"},
    {1.0, "DYNE/CM", 0.001, "N/M"},
    {3600.0, "RPM", 60.0, "HZ"},
};

TEST(UnitTable, A_value_converts_both_ways) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::string(row.from) + " to " + row.to);
    const auto near = [](double actual, double expected) {
      EXPECT_NEAR(actual, expected, 2e-9 * std::fabs(expected) + 1e-10);
    };
    near(convertedValue(row.value, row.from, row.to), row.expected);
    near(convertedValue(row.expected, row.to, row.from), row.value);
  }
}

TEST(UnitTable, Ratios_that_are_whole_numbers_are_exact) {
  EXPECT_EQ(convertedValue(7.0, "FEET", "INCHES"), 84.0);
  EXPECT_EQ(convertedValue(24.0, "INCHES", "FEET"), 2.0);
  EXPECT_EQ(convertedValue(3.0, "M", "MM"), 3000.0);
  EXPECT_EQ(convertedValue(3000.0, "MM", "M"), 3.0);
  EXPECT_EQ(convertedValue(2.5, "FPS", "FPH"), 9000.0);
  EXPECT_EQ(convertedValue(5.0, "LB/H", "TPH"), 0.0025);
  EXPECT_EQ(convertedValue(212.0, "DEG F", "DEG C"), 100.0);
  EXPECT_EQ(convertedValue(25.0, "DEG C", "DEG F"), 77.0);
  EXPECT_EQ(convertedValue(0.37, "CAL/G/DEG K", "BTU/LB/DEG F"), 0.37);
}

TEST(UnitTable, Gauge_pressure_is_less_by_exactly_the_standard_atmosphere) {
  EXPECT_EQ(convertedValue(0.0, "PSI", "PSIG"), -14.695948775513);
  EXPECT_EQ(convertedValue(100.0, "PSI", "PSIG"), 100.0 - 14.695948775513);
  EXPECT_EQ(convertedValue(-14.695948775513, "PSIG", "PSIA"), 0.0);
  // 14.695948775513 PSI in KPA: x 0.45359237 x 9.80665 / 0.0254^2 / 1000
  EXPECT_NEAR(convertedValue(0.0, "KPA", "KPAG"), -101.32499999999686, 1e-12);
}

TEST(UnitTable, A_value_in_the_same_unit_under_any_name_is_not_touched) {
  const double awkward[] = {0.1, 1.0 / 3.0, -0.0, 1e300, std::numeric_limits<double>::denorm_min()};
  const char* const pairs[][2] = {{"PSI", "PSIA"},     {"DEG F", "deg f"},   {"LB/H", "LB/HR"},
                                  {"CPOISE", "MPA-S"}, {"PSIG", "PSIG"},     {"SF/CF", "1/FT"},
                                  {"FEET", "FT"},      {"MINUTE", "MINUTES"}};
  for (const auto& [from, to] : pairs) {
    for (const double value : awkward) {
      const double result = convertedValue(value, from, to);
      EXPECT_EQ(result, value) << from << " to " << to;
      EXPECT_EQ(std::signbit(result), std::signbit(value));
    }
  }
}

TEST(UnitTable, Degrees_inside_a_compound_unit_are_differences) {
  EXPECT_EQ(convertedValue(0.0, "BTU/LB/DEG F", "KJ/KG/DEG K"), 0.0);
  EXPECT_EQ(convertedValue(0.0, "BTU/H/SF/DEG F", "KCAL/H/M2/DEG C"), 0.0);
  EXPECT_EQ(convertedValue(0.0, "H SF DEG F/BTU", "H M2 DEG C/KCAL"), 0.0);
}

TEST(UnitTable, Case_and_surrounding_blanks_do_not_matter) {
  EXPECT_EQ(convertedValue(1.0, "  feet\t", "Inches "), 12.0);
  EXPECT_EQ(convertedValue(1.0, "btu/h/sf/deg f", "BTU/H/FT2/DEG F"), 1.0);
  EXPECT_EQ(convertedValue(1.0, "mPa-s", "cPoise"), 1.0);
}

// Every text that the library converts from or to, in the pairs in which it writes them.
TEST(UnitTable, Knows_what_the_library_reads_and_writes) {
  const char* const pairs[][2] = {
      {"CFH", "M3/H"},
      {"LB/H", "KG/H"},
      {"FEET", "M"},
      {"FEET", "MM"},
      {"INCHES", "MM"},
      {"INCHES", "M"},
      {"SF", "M2"},
      {"CF", "M3"},
      {"HP", "KW"},
      {"CPOISE", "MPA-S"},
      {"DEG F", "DEG C"},
      {"DEG F", "DEG K"},
      {"DEG F", "DEG R"},
      {"PSIG", "KPA"},
      {"PSIA", "PSIG"},
      {"PSIA", "KPA"},
      {"PSI", "ATM"},
      {"FPM", "M/MIN"},
      {"MINUTE", "MINUTES"},
      {"BTU/H/SF/DEG F", "KCAL/H/M2/DEG C"},
      {"BTU/H/DEG F", "CAL/H/DEG C"},
      {"H SF DEG F/BTU", "H M2 DEG C/KCAL"},
      {"CFM", "M3/H"},
      {"GPM", "L/S"},
      {"PSI", "KPA"},
      {"BTU/H", "MMBTU/H"},
      {"BTU/H", "MEGAW"},
      {"LB/H", "TPH"},
      {"CFH", "CFS"},
      {"CFH", "GPM"},
      {"FPS", "FPH"},
      {"GM/CC", "PCF"},
      {"KG/M3", "PCF"},
      {"POISE", "LB/FT/H"},
      {"POISE", "CPOISE"},
      {"CPOISE", "KG/M/H"},
      {"BTU/H", "HP"},
      {"BTU/LB", "CAL/G"},
      {"CAL/G/DEG C", "BTU/LB/DEG F"},
      {"CAL/G/DEG K", "BTU/LB/DEG F"},
      {"CAL/CM/S/DEG K", "BTU/H/FT/DEG F"},
      {"SF/CF", "1/IN"},
      {"GALLONS", "BARRELS"},
      {"PERCENT", "PERCENT"},
      {"LBMOL/H", "KGMOL/H"},
      {"DYNE/CM", "N/M"},
  };
  const UnitTable units(0);
  for (const auto& [a, b] : pairs) {
    double value = 1.0;
    EXPECT_TRUE(units.convert(a, b, value)) << a << " to " << b;
    EXPECT_TRUE(units.convert(b, a, value)) << b << " to " << a;
    EXPECT_NEAR(value, 1.0, 1e-12);
  }
}

TEST(UnitTable, An_unknown_unit_leaves_the_value_and_is_told_to_the_host) {
  LoggingHost host;
  const HostScope scope(host);
  const UnitTable units(0);
  double value = 5.0;
  EXPECT_FALSE(units.convert("FURLONG/FORTNIGHT", "FPS", value));
  EXPECT_FALSE(units.convert("FPS", "FURLONG/FORTNIGHT", value));
  EXPECT_EQ(value, 5.0);
  ASSERT_EQ(host.log.diagnostics().size(), 1U);
  EXPECT_EQ(host.log.diagnostics()[0], "Unknown unit <FURLONG/FORTNIGHT>.");
}

TEST(UnitTable, Units_of_different_quantities_do_not_convert) {
  LoggingHost host;
  const HostScope scope(host);
  const UnitTable units(0);
  const char* const pairs[][2] = {{"PSI", "FEET"},
                                  {"FEET", "1/FT"},
                                  {"MINUTE", "HZ"},
                                  {"CPOISE", "CST"},
                                  {"LB/H", "CFH"},
                                  {"LB/H", "LBMOL/H"},
                                  {"BTU/H/SF/DEG F", "H SF DEG F/BTU"}};
  for (const auto& [from, to] : pairs) {
    double value = 5.0;
    EXPECT_FALSE(units.convert(from, to, value)) << from << " to " << to;
    EXPECT_EQ(value, 5.0);
  }
  EXPECT_EQ(host.log.diagnostics().size(), std::size(pairs));
  EXPECT_EQ(host.log.diagnostics().front(), "Unit <PSI> does not convert to <FEET>.");
}

TEST(UnitTable, A_blank_text_is_no_unit_and_no_reason_for_a_diagnostic) {
  LoggingHost host;
  const HostScope scope(host);
  const UnitTable units(0);
  double value = 5.0;
  EXPECT_FALSE(units.convert("", "PSI", value));
  EXPECT_FALSE(units.convert("PSI", "  ", value));
  EXPECT_EQ(value, 5.0);
  EXPECT_TRUE(host.log.diagnostics().empty());
}

TEST(UnitTable, Texts_of_any_length_and_content_are_looked_up_safely) {
  for (std::size_t length = 0; length < 200; ++length) {
    EXPECT_FALSE(UnitTable::knows(std::string(length, '\xC4')));
    EXPECT_FALSE(UnitTable::knows(std::string(length, '\0') + "#"));
  }
  // Characters that differ from a letter by the bit that tells capitals from small letters.
  EXPECT_TRUE(UnitTable::knows("1/IN"));
  EXPECT_FALSE(UnitTable::knows("\x11/IN"));
  EXPECT_TRUE(UnitTable::knows("%"));
  EXPECT_FALSE(UnitTable::knows("\x05"));
}

TEST(UnitTable, Answers_the_unit_type_and_counts_openings) {
  UnitTable customary(0);
  const UnitTable metric(1);
  EXPECT_EQ(customary.unitType(), 0);
  EXPECT_EQ(metric.unitType(), 1);
  EXPECT_EQ(customary.openCount(), 0);
  customary.open();
  customary.open();
  customary.close();
  EXPECT_EQ(customary.openCount(), 1);
  customary.close();
  customary.close();
  EXPECT_EQ(customary.openCount(), -1);
}

TEST(UnitTable, Serves_several_threads) {
  std::vector<std::thread> threads;
  std::vector<double> results(4);
  for (double& result : results) {
    threads.emplace_back([&result] {
      const UnitTable units(0);
      result = 1.0;
      for (int i = 0; i < 1000; ++i) {
        units.convert("FEET", "INCHES", result);
        units.convert("INCHES", "FEET", result);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const double result : results) EXPECT_EQ(result, 1.0);
}

}  // namespace
}  // namespace sizewright
