#include "sizewright/embedded/fluid_service.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "sizewright/embedded/bundled_data.h"
#include "sizewright/embedded/memory_store.h"
#include "sizewright/embedded/unit_table.h"
#include "sizewright/host/host.h"

namespace sizewright {
namespace {

using Phase = PropertyService::Phase;

constexpr double kBar = 1.0 / 1.01325;  // ATM

FluidService bundledService() {
  return {bundledData().fluids, bundledData().charts};
}

// --- What holds for every fluid -----------------------------------------------------------------

TEST(FluidService, The_saturated_utilities_are_at_the_boiling_points_of_their_fluids) {
  const FluidService service = bundledService();
  const UnitTable units(0);
  int saturated = 0;
  for (const DataObject& utility : bundledData().utilities) {
    std::string fluid;
    double inlet = 0.0;
    double exit = 0.0;
    double pressure = 0.0;
    for (const auto& [slot, value] : utility.slots) {
      if (slot == "Fluid") fluid = value.Text();
      if (slot == "Inlet temperature") inlet = value.Number();
      if (slot == "Exit temperature") exit = value.Number();
      if (slot == "Pressure") pressure = value.Number();
    }
    if (inlet != exit) continue;
    ++saturated;
    ASSERT_TRUE(units.convert("DEG F", "DEG K", inlet) && units.convert("PSI", "ATM", pressure));
    EXPECT_NEAR(service.boilingPoint(fluid, pressure), inlet, 0.4) << utility.name;
  }
  EXPECT_EQ(saturated, 9);
}

TEST(FluidService, Every_bundled_fluid_answers_every_property_at_ordinary_conditions) {
  const FluidService service = bundledService();
  for (const auto& [name, fluid] : bundledData().fluids) {
    const double liquid = *fluid.boilingPoint * 0.95;
    const double gas = *fluid.boilingPoint * 1.2;
    EXPECT_GT(service.molecularWeight(name), 2.0) << name;
    for (const Phase phase : {Phase::gas, Phase::liquid}) {
      const double temperature = phase == Phase::gas ? gas : liquid;
      EXPECT_GT(service.heatCapacity(name, temperature, 1.0, phase), 0.05) << name;
      EXPECT_GT(service.viscosity(name, temperature, 1.0, phase), 1e-6) << name;
      EXPECT_GT(service.conductivity(name, temperature, 1.0, phase), 1e-6) << name;
      EXPECT_GT(service.compressibility(name, temperature, 1.0, phase), 0.0001) << name;
    }
    EXPECT_GT(service.density(name, liquid, 1.0, Phase::liquid), 0.05) << name;
    EXPECT_GT(service.density(name, gas, 1.0, Phase::gas), 1e-5) << name;
    EXPECT_LT(service.density(name, gas, 1.0, Phase::gas), 0.05) << name;
    EXPECT_GT(service.heatCapacityRatio(name, gas, 1.0), 1.0) << name;
    EXPECT_LT(service.heatCapacityRatio(name, gas, 1.0), 1.7) << name;
    EXPECT_DOUBLE_EQ(service.latentHeat(name, *fluid.boilingPoint, 1.0), *fluid.latentHeat) << name;
    EXPECT_NEAR(service.boilingPoint(name, 1.0), *fluid.boilingPoint, 1e-6) << name;
    EXPECT_NEAR(service.compressibility(name, gas, 1.0, Phase::gas), 0.97, 0.04) << name;
  }
}

TEST(FluidService, No_argument_gives_anything_but_a_finite_number_from_0_up) {
  const FluidService service = bundledService();
  const double infinity = std::numeric_limits<double>::infinity();
  const double arguments[] = {-infinity, -300.0, -1e-300, 0.0,   1e-300,   1e-6,
                              20.0,      300.0,  1e6,     1e300, infinity, std::nan("")};
  for (const auto& [name, fluid] : bundledData().fluids) {
    for (const double t : arguments) {
      for (const double p : arguments) {
        for (const Phase phase : {Phase::gas, Phase::liquid}) {
          for (const double value :
               {service.heatCapacity(name, t, p, phase), service.density(name, t, p, phase),
                service.viscosity(name, t, p, phase), service.conductivity(name, t, p, phase),
                service.compressibility(name, t, p, phase), service.heatCapacityRatio(name, t, p),
                service.latentHeat(name, t, p), service.boilingPoint(name, p)}) {
            ASSERT_TRUE(std::isfinite(value) && value >= 0.0) << name << " " << t << " " << p;
          }
        }
      }
    }
  }
}

TEST(FluidService, Survives_a_pressure_of_0) {
  const FluidService service = bundledService();
  EXPECT_GT(service.heatCapacity("Steam", 400.0, 0.0, Phase::gas), 0.4);
  EXPECT_DOUBLE_EQ(service.compressibility("Steam", 400.0, 0.0, Phase::gas), 1.0);
  EXPECT_EQ(service.density("Steam", 400.0, 0.0, Phase::gas), 0.0);
  EXPECT_EQ(service.boilingPoint("Steam", 0.0), 0.0);
}

TEST(FluidService, A_gas_below_its_boiling_point_counts_as_at_its_vapor_pressure) {
  const FluidService service = bundledService();
  // Propane at 300 K: vapor pressure 9.978 bar.
  const double saturated = service.compressibility("Propane", 300.0, 9.978 * kBar, Phase::gas);
  EXPECT_NEAR(service.compressibility("Propane", 300.0, 40.0, Phase::gas), saturated, 0.003);
  EXPECT_GT(saturated, 0.78);
}

// --- Names --------------------------------------------------------------------------------------

TEST(FluidService, A_fluid_is_found_without_regard_to_case_and_blanks_and_as_compound) {
  const FluidService service = bundledService();
  EXPECT_EQ(service.molecularWeight("Water"), 18.015);
  EXPECT_EQ(service.molecularWeight("  WATER "), 18.015);
  EXPECT_EQ(service.molecularWeight("Heavy Hydrocarbon Liquid "), 226.446);
  EXPECT_EQ(service.molecularWeight("propane"), 44.096);
  EXPECT_EQ(service.molecularWeight(" Ethylene "), 28.054);
  EXPECT_EQ(service.molecularWeight("Compound - Ethylene"), 28.054);
}

TEST(FluidService, An_unknown_fluid_answers_0_to_everything) {
  const FluidService service = bundledService();
  for (const std::string& name : {std::string(), std::string("  "), std::string("Unobtainium"),
                                  std::string("Compound - "), std::string(500, 'x')}) {
    EXPECT_EQ(service.molecularWeight(name), 0.0);
    EXPECT_EQ(service.heatCapacity(name, 300.0, 1.0, Phase::gas), 0.0);
    EXPECT_EQ(service.density(name, 300.0, 1.0, Phase::liquid), 0.0);
    EXPECT_EQ(service.viscosity(name, 300.0, 1.0, Phase::liquid), 0.0);
    EXPECT_EQ(service.conductivity(name, 300.0, 1.0, Phase::liquid), 0.0);
    EXPECT_EQ(service.compressibility(name, 300.0, 1.0, Phase::gas), 0.0);
    EXPECT_EQ(service.heatCapacityRatio(name, 300.0, 1.0), 0.0);
    EXPECT_EQ(service.latentHeat(name, 300.0, 1.0), 0.0);
    EXPECT_EQ(service.boilingPoint(name, 1.0), 0.0);
    FluidName companion("untouched");
    EXPECT_FALSE(service.inPhase(name, Phase::gas, companion));
    EXPECT_EQ(companion.view(), "untouched");
  }
}

TEST(FluidService, Classes_have_companions_in_the_other_phase) {
  const FluidService service = bundledService();
  struct PhaseRow {
    const char* fluid;
    const char* gas;
    const char* liquid;
  };
  const PhaseRow rows[] = {
      {"Water", "Steam", "Water"},
      {"STEAM", "STEAM", "Water"},
      {"Gas", "Gas", "Liquid"},
      {"Liquid", "Gas", "Liquid"},
      {"Hydrocarbon Gas", "Hydrocarbon Gas", "Light Hydrocarbon Liquid"},
      {"Light Hydrocarbon Liquid", "Hydrocarbon Gas", "Light Hydrocarbon Liquid"},
      {"Halogenated Liquid", "Halogenated Gas", "Halogenated Liquid"},
      {"Inorganic Gas", "Inorganic Gas", "Inorganic Liquid"},
      {"miscellaneous organic gas", "miscellaneous organic gas", "Miscellaneous Organic Liquid"},
      {" Alcohol ", "Alcohol", "Alcohol"},
      {"Air", "Air", "Air"},
      {"Propane", "Propane", "Propane"},
  };
  for (const PhaseRow& row : rows) {
    FluidName name;
    EXPECT_TRUE(service.inPhase(row.fluid, Phase::gas, name));
    EXPECT_EQ(name.view(), row.gas) << row.fluid;
    EXPECT_TRUE(service.inPhase(row.fluid, Phase::liquid, name));
    EXPECT_EQ(name.view(), row.liquid) << row.fluid;
  }
}

TEST(FluidService, A_companion_that_has_no_data_is_passed_over) {
  Fluid water;
  water.molecularWeight = 18.0;
  const FluidService service({{"Water", water}}, {});
  FluidName name;
  EXPECT_TRUE(service.inPhase("Water", Phase::gas, name));
  EXPECT_EQ(name.view(), "Water");
}

// --- A fluid class of one's own -----------------------------------------------------------------

Fluid plainFluid() {
  Fluid fluid;
  fluid.molecularWeight = 50.0;
  fluid.boilingPoint = 350.0;
  fluid.latentHeat = 150.0;
  fluid.liquidDensity = 0.8;
  fluid.gasHeatCapacity = Fit{0.1, 0.001, {}};
  fluid.liquidViscosity = Fit{-10.0, 1500.0, {}};
  fluid.gasViscosity = Fit{2e-7, 1.0, {}};
  return fluid;
}

FluidService serviceWith(Fluid fluid) {
  return {{{"Mine", std::move(fluid)}}, {}};
}

TEST(FluidClass, The_equations_are_those_of_the_plant_file) {
  const FluidService service = serviceWith(plainFluid());
  EXPECT_DOUBLE_EQ(service.heatCapacity("Mine", 400.0, 1.0, Phase::gas), 0.5);
  EXPECT_DOUBLE_EQ(service.viscosity("Mine", 300.0, 1.0, Phase::liquid), std::exp(-5.0));
  EXPECT_DOUBLE_EQ(service.viscosity("Mine", 300.0, 1.0, Phase::gas), 6e-5);
  EXPECT_DOUBLE_EQ(service.density("Mine", 300.0, 1.0, Phase::liquid), 0.8);
}

TEST(FluidClass, What_is_not_given_cannot_be_answered) {
  const FluidService service = serviceWith(plainFluid());
  EXPECT_EQ(service.heatCapacity("Mine", 300.0, 1.0, Phase::liquid), 0.0);
  EXPECT_EQ(service.conductivity("Mine", 300.0, 1.0, Phase::gas), 0.0);
  EXPECT_EQ(service.compressibility("Mine", 300.0, 1.0, Phase::gas), 0.0);
  EXPECT_EQ(service.density("Mine", 300.0, 1.0, Phase::gas), 0.0);
}

TEST(FluidClass, Without_a_critical_temperature_latent_heat_and_boiling_point_are_constant) {
  const FluidService service = serviceWith(plainFluid());
  for (const double pressure : {0.0, 0.1, 1.0, 50.0}) {
    EXPECT_EQ(service.boilingPoint("Mine", pressure), 350.0);
    EXPECT_EQ(service.latentHeat("Mine", 500.0, pressure), 150.0);
  }
}

TEST(FluidClass, A_critical_temperature_below_the_boiling_point_is_disregarded) {
  Fluid fluid = plainFluid();
  fluid.criticalTemperature = 340.0;
  const FluidService service = serviceWith(fluid);
  EXPECT_EQ(service.boilingPoint("Mine", 10.0), 350.0);
  EXPECT_EQ(service.latentHeat("Mine", 300.0, 10.0), 150.0);
}

TEST(FluidClass, Without_a_critical_pressure_the_boiling_point_follows_the_latent_heat) {
  Fluid fluid = plainFluid();
  fluid.criticalTemperature = 550.0;
  const FluidService service = serviceWith(fluid);
  // H = 150 / 1.8 x 50 = 4166.67 CAL/MOL; 1/T = 1/350 - 1.98588 ln 2 / 4166.67
  EXPECT_NEAR(service.boilingPoint("Mine", 2.0), 1.0 / (1.0 / 350.0 - 0.000330363), 0.001);
  EXPECT_EQ(service.boilingPoint("Mine", 1e6), 550.0);
  // 150 ((1 - 450/550) / (1 - 350/550))^0.38 = 150 x 0.5^0.38
  EXPECT_NEAR(service.latentHeat("Mine", 450.0, 1.0), 115.266, 0.001);
}

TEST(FluidClass, The_two_constants_are_used_as_they_stand) {
  Fluid fluid = plainFluid();
  fluid.z = 0.85;
  fluid.heatCapacityRatio = 1.23;
  const FluidService service = serviceWith(fluid);
  EXPECT_EQ(service.compressibility("Mine", 300.0, 7.0, Phase::gas), 0.85);
  EXPECT_EQ(service.compressibility("Mine", 0.0, 0.0, Phase::gas), 0.85);
  EXPECT_EQ(service.heatCapacityRatio("Mine", 300.0, 7.0), 1.23);
  // 2 x 50 / (0.85 x 82.057366 x 300)
  EXPECT_NEAR(service.density("Mine", 300.0, 2.0, Phase::gas), 0.00477906, 1e-8);
}

TEST(FluidClass, A_fit_is_held_at_its_ends) {
  Fluid fluid = plainFluid();
  fluid.gasHeatCapacity->validTemperatures = {300.0, 500.0};
  const FluidService service = serviceWith(fluid);
  EXPECT_DOUBLE_EQ(service.heatCapacity("Mine", 100.0, 1.0, Phase::gas), 0.4);
  EXPECT_DOUBLE_EQ(service.heatCapacity("Mine", 400.0, 1.0, Phase::gas), 0.5);
  EXPECT_DOUBLE_EQ(service.heatCapacity("Mine", 900.0, 1.0, Phase::gas), 0.6);
}

TEST(FluidClass, The_ends_of_a_fit_may_come_in_any_order) {
  Fluid fluid = plainFluid();
  fluid.gasHeatCapacity->validTemperatures = {500.0, 300.0};
  const FluidService service = serviceWith(fluid);
  EXPECT_DOUBLE_EQ(service.heatCapacity("Mine", 400.0, 1.0, Phase::gas), 0.5);
  EXPECT_DOUBLE_EQ(service.heatCapacity("Mine", 900.0, 1.0, Phase::gas), 0.6);
}

TEST(FluidClass, A_fit_that_goes_below_0_cannot_answer) {
  Fluid fluid = plainFluid();
  fluid.gasHeatCapacity = Fit{-1.0, 0.001, {}};
  const FluidService service = serviceWith(fluid);
  EXPECT_EQ(service.heatCapacity("Mine", 300.0, 1.0, Phase::gas), 0.0);
  EXPECT_EQ(service.heatCapacityRatio("Mine", 300.0, 1.0), 0.0);
}

TEST(FluidClass, Liquid_density_moves_only_when_its_temperature_is_given) {
  Fluid fluid = plainFluid();
  fluid.criticalTemperature = 550.0;
  fluid.criticalPressure = 40.0;
  EXPECT_EQ(serviceWith(fluid).density("Mine", 450.0, 1.0, Phase::liquid), 0.8);
  fluid.liquidDensityTemperature = 300.0;
  EXPECT_DOUBLE_EQ(serviceWith(fluid).density("Mine", 300.0, 1.0, Phase::liquid), 0.8);
  EXPECT_LT(serviceWith(fluid).density("Mine", 450.0, 1.0, Phase::liquid), 0.7);
}

TEST(FluidClass, The_acentric_factor_is_worked_out_when_it_is_not_given) {
  Fluid fluid = bundledData().fluids.at("Compound - Propane");
  fluid.acentricFactor.reset();
  const double z = serviceWith(fluid).compressibility("Mine", 350.0, 15.0, Phase::gas);
  EXPECT_NEAR(z, bundledService().compressibility("Propane", 350.0, 15.0, Phase::gas), 0.001);
}

// --- Charts -------------------------------------------------------------------------------------

TEST(FluidService, Charts_are_found_by_object_and_variable) {
  const FluidService service = bundledService();
  EXPECT_DOUBLE_EQ(service.chart("Vapor Capacity Factor", "TS", 24.0, 1.0), 0.4198);
  EXPECT_DOUBLE_EQ(service.chart("vapor capacity factor", "ts", 24.0, 1.0), 0.4198);
  EXPECT_EQ(service.chart("Vapor Capacity Factor", "other", 24.0, 1.0), 0.0);
  EXPECT_EQ(service.chart("other", "TS", 24.0, 1.0), 0.0);
}

// --- Streams ------------------------------------------------------------------------------------

class StreamHost : public Host {
 public:
  explicit StreamHost(int unitType) : unitTable(unitType) {}
  ObjectStore& store() override { return objects; }
  UnitService& units() override { return unitTable; }

  MemoryStore objects;
  UnitTable unitTable;
};

class StreamTest : public testing::Test {
 protected:
  void set(std::string_view slot, CvdSlot value) {
    host.objects.set(host.objects.add(host.objects.database(kProcessStream), "S1"), slot,
                     std::move(value));
  }
  CvdSlot get(std::string_view slot) {
    return host.objects.get(*host.objects.find(host.objects.database(kProcessStream), "S1"), slot);
  }
  bool complete() {
    return service.completeStream(
        MemoryStore::idOf(host.objects.find(host.objects.database(kProcessStream), "S1")));
  }

  StreamHost host{0};
  HostScope scope{host};
  FluidService service = bundledService();
};

TEST_F(StreamTest, A_liquid_stream_gets_the_liquid_properties_that_it_lacks) {
  set("PRIMARY FLUID COMPONENT", CvdSlot::ofText("Water"));
  set("TEMPERATURE", CvdSlot::ofNumber(25.0, "DEG C"));
  set("PRESSURE", CvdSlot::ofNumber(1.0, "ATM"));
  set("LIQUID MASS FLOW", CvdSlot::ofNumber(1000.0, "LB/H"));
  set("LIQUID VISCOSITY", CvdSlot::ofNumber(0.5, "CPOISE"));
  ASSERT_TRUE(complete());
  EXPECT_EQ(get("MOLECULAR WEIGHT").Number(), 18.015);
  EXPECT_STREQ(get("LIQUID MASS DENSITY").Units(), "PCF");
  EXPECT_NEAR(get("LIQUID MASS DENSITY").Number(), 62.24, 0.3);
  EXPECT_NEAR(get("LIQUID SPECIFIC HEAT CAPACITY").Number(), 0.999, 0.005);
  EXPECT_STREQ(get("LIQUID CONDUCTIVITY").Units(), "BTU/H/FT/DEG F");
  EXPECT_NEAR(get("LIQUID CONDUCTIVITY").Number(), 0.3505, 0.007);
  EXPECT_EQ(get("LIQUID VISCOSITY").Number(), 0.5);  // was there
  EXPECT_FALSE(get("VAPOR MASS DENSITY").IsValid());
  EXPECT_FALSE(get("Specific heat ratio").IsValid());
}

TEST_F(StreamTest, A_vapor_stream_gets_its_properties_in_metric_units_in_a_metric_project) {
  StreamHost metric(1);
  const HostScope inner(metric);
  StoredObject& stream = metric.objects.add(metric.objects.database(kProcessStream), "S1");
  metric.objects.set(stream, "PRIMARY FLUID COMPONENT", CvdSlot::ofText("Air"));
  metric.objects.set(stream, "TEMPERATURE", CvdSlot::ofNumber(300.0, "DEG K"));
  metric.objects.set(stream, "PRESSURE", CvdSlot::ofNumber(1.0, "BAR"));
  metric.objects.set(stream, "VAPOR MASS FLOW", CvdSlot::ofNumber(1000.0, "KG/H"));
  ASSERT_TRUE(service.completeStream(MemoryStore::idOf(&stream)));
  const CvdSlot density = metric.objects.get(stream, "VAPOR MASS DENSITY");
  EXPECT_STREQ(density.Units(), "KG/M3");
  EXPECT_NEAR(density.Number(), 1.1614, 0.005);
  EXPECT_NEAR(metric.objects.get(stream, "VAPOR VISCOSITY").Number(), 0.01846, 0.0004);
  EXPECT_NEAR(metric.objects.get(stream, "VAPOR SPECIFIC HEAT CAPACITY").Number(), 1.007, 0.01);
  EXPECT_NEAR(metric.objects.get(stream, "Specific heat ratio").Number(), 1.4, 0.01);
  EXPECT_FALSE(metric.objects.get(stream, "LIQUID VISCOSITY").IsValid());
}

TEST_F(StreamTest, A_number_without_unit_is_taken_in_customary_units) {
  set("PRIMARY FLUID COMPONENT", CvdSlot::ofText("Air"));
  set("TEMPERATURE", CvdSlot::ofNumber(80.33));
  set("PRESSURE", CvdSlot::ofNumber(14.5038));
  set("VAPOR MASS FLOW", CvdSlot::ofNumber(1000.0));
  ASSERT_TRUE(complete());
  EXPECT_NEAR(get("VAPOR MASS DENSITY").Number(), 0.0725, 0.0005);  // 1.1614 kg/m3
}

TEST_F(StreamTest, A_stream_without_fluid_temperature_or_flow_is_left_alone) {
  set("TEMPERATURE", CvdSlot::ofNumber(25.0, "DEG C"));
  EXPECT_FALSE(complete());
  set("PRIMARY FLUID COMPONENT", CvdSlot::ofText("Unobtainium"));
  set("LIQUID MASS FLOW", CvdSlot::ofNumber(1000.0, "LB/H"));
  EXPECT_FALSE(complete());
  set("PRIMARY FLUID COMPONENT", CvdSlot::ofText("Water"));
  set("LIQUID MASS FLOW", CvdSlot::ofNumber(0.0, "LB/H"));
  EXPECT_FALSE(complete());
  set("LIQUID MASS FLOW", CvdSlot::ofNumber(1000.0, "LB/H"));
  set("TEMPERATURE", CvdSlot::ofText("warm"));
  EXPECT_FALSE(complete());
  EXPECT_FALSE(get("MOLECULAR WEIGHT").IsValid());
}

TEST_F(StreamTest, Without_a_pressure_a_vapor_gets_everything_but_its_density) {
  set("PRIMARY FLUID COMPONENT", CvdSlot::ofText("Air"));
  set("TEMPERATURE", CvdSlot::ofNumber(300.0, "DEG K"));
  set("VAPOR MASS FLOW", CvdSlot::ofNumber(1000.0, "LB/H"));
  ASSERT_TRUE(complete());
  EXPECT_FALSE(get("VAPOR MASS DENSITY").IsValid());
  EXPECT_GT(get("VAPOR VISCOSITY").Number(), 0.0);
}

}  // namespace
}  // namespace sizewright
