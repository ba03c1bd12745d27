#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "sizewright/embedded/design_criteria.h"

namespace sizewright {
namespace {

constexpr double kAtmosphere = 14.695948775513;  // PSI

class CriteriaTest : public testing::Test {
 protected:
  void set(std::string_view model, std::string_view name, CvdSlot value) {
    store.set(store.add(store.database(kDesignCriteria), model), name, std::move(value));
  }
  double number(std::string_view model, std::string_view name, std::string_view unit) {
    double value = -1.0;
    return criteria.number(model, name, unit, value) ? value : -1.0;
  }
  std::string text(std::string_view model, std::string_view name) {
    CriterionText value("untouched");
    const bool found = criteria.text(model, name, value);
    return found ? std::string(value.view()) : std::string("none, ") + value.c_str();
  }

  MemoryStore store;
  UnitTable units{0};
  DesignRules rules;
  DesignCriteria criteria{store, rules, units};
};

TEST_F(CriteriaTest, A_number_comes_in_the_unit_asked_for) {
  set("DCP CENTRIF", "Minimum Design Pressure", CvdSlot::ofNumber(101.325, "KPA"));
  EXPECT_NEAR(number("DCP CENTRIF", "Minimum Design Pressure", "PSI"), kAtmosphere, 1e-9);
}

TEST_F(CriteriaTest, A_number_without_unit_is_taken_to_be_in_the_unit_asked_for) {
  set("DCP CENTRIF", "Residence Time", CvdSlot::ofNumber(7.5));
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", "MINUTE"), 7.5);
}

TEST_F(CriteriaTest, Without_a_unit_asked_for_the_number_comes_as_it_stands) {
  set("DCP CENTRIF", "Residence Time", CvdSlot::ofNumber(7.5, "HOUR"));
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", ""), 7.5);
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", " "), 7.5);
}

TEST_F(CriteriaTest, Names_compare_without_regard_to_case) {
  set("DCP CENTRIF", "Pump overdesign factor", CvdSlot::ofNumber(1.1));
  EXPECT_EQ(number("dcp centrif", "PUMP OVERDESIGN FACTOR", ""), 1.1);
}

TEST_F(CriteriaTest, The_object_for_every_model_serves_criterion_by_criterion) {
  set("*", "Pump overdesign factor", CvdSlot::ofNumber(1.2));
  set("*", "Residence Time", CvdSlot::ofNumber(5.0, "MINUTE"));
  set("DCP CENTRIF", "Pump overdesign factor", CvdSlot::ofNumber(1.1));
  EXPECT_EQ(number("DCP CENTRIF", "Pump overdesign factor", ""), 1.1);
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", "MINUTE"), 5.0);
  EXPECT_EQ(number("DVT CYLINDER", "Pump overdesign factor", ""), 1.2);
}

TEST_F(CriteriaTest, Blanks_around_the_model_do_not_hide_its_criteria) {
  set("DDD", "Residence Time", CvdSlot::ofNumber(5.0));
  EXPECT_EQ(number("DDD ", "Residence Time", ""), 5.0);
}

TEST_F(CriteriaTest, The_models_own_criterion_hides_that_of_every_model_whatever_it_holds) {
  set("*", "Residence Time", CvdSlot::ofNumber(5.0));
  set("DCP CENTRIF", "Residence Time", CvdSlot::ofText("long"));
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", ""), -1.0);
}

TEST_F(CriteriaTest, A_text_is_no_number_and_a_number_no_text) {
  set("DCP CENTRIF", "Driver Type", CvdSlot::ofText("12.5"));
  set("DCP CENTRIF", "Residence Time", CvdSlot::ofNumber(5.0));
  EXPECT_EQ(number("DCP CENTRIF", "Driver Type", ""), -1.0);
  EXPECT_EQ(text("DCP CENTRIF", "Driver Type"), "12.5");
  EXPECT_EQ(text("DCP CENTRIF", "Residence Time"), "none, untouched");
}

TEST_F(CriteriaTest, What_is_not_there_leaves_the_value) {
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", "MINUTE"), -1.0);
  EXPECT_EQ(text("DCP CENTRIF", "Driver Type"), "none, untouched");
  set("DCP CENTRIF", "Residence Time", CvdSlot::ofNumber(5.0, "MINUTE"));
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", "PSI"), -1.0);
}

TEST_F(CriteriaTest, A_criterion_that_is_written_later_is_seen) {
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", ""), -1.0);
  set("DCP CENTRIF", "Residence Time", CvdSlot::ofNumber(5.0));
  EXPECT_EQ(number("DCP CENTRIF", "Residence Time", ""), 5.0);
}

// --- Design rules -------------------------------------------------------------------------------

DesignRule row(std::optional<double> from, double factor, double add, double atLeast) {
  return {from, {}, factor, add, atLeast};
}
DesignRule outright(double value) {
  DesignRule rule;
  rule.value = value;
  return rule;
}

class DesignRuleTest : public testing::Test {
 protected:
  // -1234 where the rules leave the value.
  double pressure(double operating, std::string_view unit = "PSIG") {
    const DesignCriteria criteria(store, rules, units);
    double design = -1234.0;
    const bool done = criteria.designPressure("DCP CENTRIF", operating, unit, design);
    EXPECT_EQ(done, design != -1234.0);
    return design;
  }
  double temperature(double operating, std::string_view unit = "DEG F") {
    const DesignCriteria criteria(store, rules, units);
    double design = -1234.0;
    criteria.designTemperature("DCP CENTRIF", operating, unit, design);
    return design;
  }

  MemoryStore store;
  UnitTable units{0};
  DesignRules rules{{outright(-kAtmosphere), row(0.0, 1.1, 0.0, 25.0)}, {row({}, 1.0, 50.0, 0.0)}};
};

TEST_F(DesignRuleTest, The_larger_of_the_two_formulas_serves) {
  EXPECT_EQ(pressure(100.0), 125.0);           // 110 against 125
  EXPECT_DOUBLE_EQ(pressure(250.0), 275.0);    // where both are the same
  EXPECT_DOUBLE_EQ(pressure(1000.0), 1100.0);  // 1100 against 1025
  EXPECT_EQ(temperature(300.0), 350.0);
}

TEST_F(DesignRuleTest, A_row_serves_from_its_own_value_on) {
  EXPECT_EQ(pressure(0.0), 25.0);
  EXPECT_EQ(pressure(-1e-9), -kAtmosphere);
  EXPECT_EQ(pressure(-5.0), -kAtmosphere);
}

TEST_F(DesignRuleTest, Both_values_are_in_the_callers_unit) {
  EXPECT_NEAR(pressure(kAtmosphere + 100.0, "PSI"), kAtmosphere + 125.0, 1e-9);
  EXPECT_EQ(pressure(5.0, "PSIA"), 0.0);  // full vacuum
  // 500 KPA absolute is 57.823 PSIG; 25 PSI more are 172.369 KPA more.
  EXPECT_NEAR(pressure(500.0, "KPA"), 500.0 + 25.0 * 6.894757293168361, 1e-9);
  EXPECT_NEAR(temperature(100.0, "DEG C"), 100.0 + 50.0 / 1.8, 1e-9);
}

TEST_F(DesignRuleTest, The_row_with_the_greatest_start_below_the_value_serves_in_any_order) {
  rules.temperature = {row(650.0, 1.0, 25.0, 0.0), row({}, 1.0, 10.0, 0.0),
                       row(100.0, 1.0, 50.0, 0.0)};
  EXPECT_EQ(temperature(0.0), 10.0);
  EXPECT_EQ(temperature(99.0), 109.0);
  EXPECT_EQ(temperature(100.0), 150.0);
  EXPECT_EQ(temperature(649.0), 699.0);
  EXPECT_EQ(temperature(650.0), 675.0);
}

TEST_F(DesignRuleTest, The_later_of_two_rows_with_one_start_serves) {
  rules.temperature = {row(0.0, 1.0, 10.0, 0.0), row(0.0, 1.0, 20.0, 0.0)};
  EXPECT_EQ(temperature(100.0), 120.0);
}

TEST_F(DesignRuleTest, A_value_below_every_row_is_left) {
  rules.pressure = {row(0.0, 1.1, 0.0, 0.0)};
  EXPECT_EQ(pressure(-1.0), -1234.0);
}

TEST_F(DesignRuleTest, Without_rules_the_value_is_left) {
  rules = {};
  EXPECT_EQ(pressure(100.0), -1234.0);
  EXPECT_EQ(temperature(100.0), -1234.0);
}

TEST_F(DesignRuleTest, A_unit_that_does_not_fit_leaves_the_value) {
  EXPECT_EQ(pressure(100.0, "FEET"), -1234.0);
  EXPECT_EQ(pressure(100.0, "no unit"), -1234.0);
  EXPECT_EQ(temperature(100.0, ""), -1234.0);
}

TEST_F(DesignRuleTest, A_value_that_is_no_number_is_left) {
  EXPECT_EQ(pressure(std::nan("")), -1234.0);
  EXPECT_EQ(pressure(std::numeric_limits<double>::infinity()), -1234.0);
}

TEST_F(DesignRuleTest, Operating_and_design_value_may_be_one_variable) {
  const DesignCriteria criteria(store, rules, units);
  double value = 100.0;
  EXPECT_TRUE(criteria.designPressure("", value, "PSIG", value));
  EXPECT_EQ(value, 125.0);
}

}  // namespace
}  // namespace sizewright
