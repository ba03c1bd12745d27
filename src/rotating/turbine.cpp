#include "sizewright/rotating/turbine.h"

#include <algorithm>
#include <array>

#include "sizewright/frame/stream_values.h"
#include "sizewright/host/criteria.h"
#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

constexpr double kNoTemperature = -10000.0;  // DEG F, below any stream's
constexpr double kNotSpecified = -999.0;     // DEG F
constexpr double kNoPressure = -1.0;         // PSI
constexpr double kWaterDensity = 62.43;      // PCF
constexpr double kGasConstant = 1.98719;     // CAL/MOL/DEG C
constexpr double kExpansionEfficiency = 0.5;
constexpr int kCompressorBlocks = 1;  // simulator whose compressors report work the other way round
constexpr const char* kCpUnits = "BTU/LB/DEG F";

using D = TurbineData;
using enum From;

constexpr auto kPowerSources = std::to_array<SourceRow<D>>({
    {&D::powerOutput, component, "CpPowerOutput", "HP"},
    {&D::powerOutput, simObject, "POWER OUTPUT", "HP"},
    {&D::powerOutput, component, "CpDriverPower", "HP"},
    {&D::powerOutput, simObject, "DRIVER POWER", "HP"},
    {&D::powerOutput, component, "WORK", "HP"},
    {&D::powerOutput, simObject, "WORK", "HP"},
    {&D::powerOutput, simObject, "DRIVER POWER (SIM)", "HP"},
});

constexpr auto kPowerResult = std::to_array<ResultRow<D>>({
    {"CpPowerOutput", &D::powerOutput, When::positive, Style::converted, "HP", "HP", "KW"},
});
constexpr auto kResults = std::to_array<ResultRow<D>>({
    {"CpNumberItems", &D::numberItems, When::aboveOne, Style::count},
    {"Gas rate", &D::gasMassFlow, When::positive, Style::converted, "LB/H", "LB/H", "KG/H"},
    {"Heat capacity ratio", &D::heatCapacityRatio},
    {"Gas inlet temperature", &D::inletTemperature, When::always, Style::converted, "DEG F",
     "DEG F", "DEG C"},
    {"Gas outlet temperature", &D::exitTemperature, When::always, Style::converted, "DEG F",
     "DEG F", "DEG C"},
    {"Gas inlet pressure", &D::inletPressure, When::always, Style::converted, "PSIA", "PSIA",
     "KPA"},
    {"Gas outlet pressure", &D::exitPressure, When::always, Style::converted, "PSIA", "PSIA",
     "KPA"},
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

const char* fluidOfDensity(double gramsPerCubicCentimetre) {
  if (gramsPerCubicCentimetre <= 0.25) return "Miscellaneous Organic Gas";
  return gramsPerCubicCentimetre <= 0.5 ? "Hydrocarbon Gas" : "Inorganic Gas";
}

}  // namespace

double gasHeatCapacityRatio(double cp, double molecularWeight) {
  return cp / (cp - kGasConstant / molecularWeight);
}

double expansionPower(double cp, double inletTemperature, double pressureRatio,
                      double heatCapacityRatio, double massFlow) {
  const double exponent = (heatCapacityRatio - 1.0) / heatCapacityRatio;
  return cp * inletTemperature * (1.0 - CSizeEquip::compiler_pow_double(pressureRatio, exponent)) *
         kExpansionEfficiency * massFlow;
}

int CTurbObj::Size() {
  GetDesCriteriaInfo();
  int result = GetStreamInfo();
  if (result != 0) result = turb_stp();
  if (result != 0) result = turb_siz();
  return result;
}

void CTurbObj::GetDesCriteriaInfo() {
  double& factor = data().overdesignFactor;
  if (factor > 0.0) return;
  if (GetValueFromDesCriteria("Turbine overdesign factor", factor, "") == 0) factor = 1.0;
}

int CTurbObj::GetStreamInfo() {
  checkInlets();
  findStreams(inlets(), kInlet, "Inlet stream", "STEAM SUPPLY");
  checkExits();
  findExits(exits(), {"OUTLET", "DRAIN"});
  return hasBothStreams();
}

// --- Setup --------------------------------------------------------------------------------------

int CTurbObj::turb_stp() {
  status(35, "Obtaining inlet stream information.");
  double inletPressure = 0.0;
  double inletTemperature = 0.0;
  turb_stp_get_inlets(inletPressure, inletTemperature);
  status(50, "Obtaining exit stream information.");
  double exitPressure = 0.0;
  double exitTemperature = 0.0;
  turb_stp_get_exits(exitPressure, exitTemperature);
  status(61, "Obtaining design conditions.");
  turb_assign_pressures(inletPressure, exitPressure);
  turb_assign_temperatures(inletTemperature, exitTemperature);
  const bool given =
      !allowsResize() && readDesignConditions(data().designPressure, data().designTemperature);
  if (!given && !(data().designPressure > 0.0)) turb_stp_get_design_pressure();
  if (!given && data().designTemperature == 0.0) turb_stp_get_design_temp();
  if (!(data().fluidDensity > 0.0)) {
    const bool flows = data().gasVolumeFlow > 0.0;
    // kept: the density of water stands in for that of a gas
    data().fluidDensity = flows ? data().gasMassFlow / data().gasVolumeFlow : kWaterDensity;
  }
  return 1;
}

void CTurbObj::turb_stp_get_inlets(double& pressure, double& temperature) {
  double massFlow = 0.0;
  double volumeFlow = 0.0;
  Least leastPressure(0.0);
  Least leastTemperature(kNoTemperature);
  Least molecularWeight(0.0);
  Least leastDensity(0.0);
  FluidName fluid;
  for (auto& [name, stream] : openStreams(inlets())) {
    const double flow = readOr(&stream, "VAPOR MASS FLOW", "LB/H", 0.0);
    if (flow > 0.0 && fluid.empty()) {
      SlotText primary;
      lib_get_value_c_api(&stream, "PRIMARY FLUID COMPONENT", primary.data(), "inherit");
      fluid = primary.view();
    }
    const double density = readOr(&stream, "VAPOR MASS DENSITY", "PCF", 0.0);
    if (flow > 0.0 && density > 0.0) volumeFlow += flow / density;
    massFlow += flow;
    leastDensity.take(density);
    leastPressure.take(readOr(&stream, "PRESSURE", "PSI", 0.0));
    leastTemperature.take(readSentinel(&stream, "TEMPERATURE", "DEG F", kNoTemperature));
    molecularWeight.take(readOr(&stream, "MOLECULAR WEIGHT", nullptr, 0.0));
  }
  setIfNotPositive(data().gasMassFlow, massFlow);
  setIfNotPositive(data().gasVolumeFlow, volumeFlow);
  setIfNotPositive(data().molecularWeight, molecularWeight.value());
  setIfNotPositive(data().gasDensity, leastDensity.value());
  if (data().fluidType.empty()) data().fluidType = fluid;
  pressure = leastPressure.value();
  temperature = leastTemperature.value();
}

void CTurbObj::turb_stp_get_exits(double& pressure, double& temperature) {
  Greatest greatestPressure(0.0);
  Greatest greatestTemperature(kNoTemperature);
  for (auto& [name, stream] : openStreams(exits())) {
    greatestPressure.take(readOr(&stream, "PRESSURE", "PSI", 0.0));
    greatestTemperature.take(readSentinel(&stream, "TEMPERATURE", "DEG F", kNoTemperature));
  }
  pressure = greatestPressure.value();
  temperature = greatestTemperature.value();
}

void CTurbObj::turb_assign_pressures(double inlet, double exit) {
  exit = std::max(readComponentOrBlock("EXIT PRESSURE", "EXIT PRESSURE", "PSI", kNoPressure), exit);
  const double given = readComponentOrBlock("INLET PRESSURE", "INLET PRESSURE", "PSI", kNoPressure);
  if (given > 0.0) inlet = inlet > 0.0 ? std::min(given, inlet) : given;
  const double steam =
      readComponentOrBlock("CpSteamGaugePressure", "STEAM PRESSURE-GAUGE", "PSI", kNoPressure);
  if (steam > 0.0) inlet = steam;
  setIfNotPositive(data().inletPressure, inlet);
  setIfNotPositive(data().exitPressure, exit);
}

// A stream's temperature of exactly 0 is one that no stream gave.
void CTurbObj::turb_assign_temperatures(double inlet, double exit) {
  const auto given = [this](const char* ofComponent, const char* ofBlock) {
    return readComponentOrBlock(ofComponent, ofBlock, "DEG F", kNotSpecified);
  };
  const double givenExit = given("CpDesignTemperatureOutlet", "EXIT TEMPERATURE");
  if (givenExit != kNotSpecified) exit = exit != 0.0 ? std::max(givenExit, exit) : givenExit;
  const double givenInlet = given("CpDesignTemperatureInlet", "Inlet temperature");
  if (givenInlet != kNotSpecified) inlet = inlet != 0.0 ? std::min(givenInlet, inlet) : givenInlet;
  setIfZero(data().inletTemperature, inlet);
  setIfZero(data().exitTemperature, exit);
}

void CTurbObj::turb_stp_get_design_pressure() {
  double& design = data().designPressure;
  design = std::max({design, data().inletPressure, data().exitPressure});
  pxl_calculate_design_press(equipFullCode, design, &design, "PSI");
}

void CTurbObj::turb_stp_get_design_temp() {
  double& design = data().designTemperature;
  design = std::max({design, data().inletTemperature, data().exitTemperature});
  pxl_calculate_design_temp(equipFullCode, design, &design, "DEG F");
}

// --- Sizing -------------------------------------------------------------------------------------

int CTurbObj::turb_siz() {
  turb_siz_number_items();
  status(70, "Obtaining efficiency.");
  turb_siz_efficiency();
  status(75, "Obtaining driver power.");
  if (!(data().powerOutput > 0.0)) turb_siz_power();
  return 1;
}

void CTurbObj::turb_siz_number_items() {
  double& count = data().numberItems;
  if (!(count > 1.0)) count = readOr(component.get(), "CpNumberItems", nullptr, 1.0);
  if (!(count > 1.0)) count = readOr(simObject.get(), "CpNumberItems", nullptr, 1.0);
}

void CTurbObj::turb_siz_efficiency() {
  double& efficiency = data().fractionalEfficiency;
  if (efficiency > 0.0) return;
  for (CvdValueObject* object : {source(From::component), source(From::simObject)}) {
    double value = 0.0;
    UnitText units;
    if (lib_get_number_and_units_api(object, "EFFICIENCY", &value, units.data()) != 0) {
      efficiency = value;
      return;
    }
  }
  efficiency = 1.0;
}

void CTurbObj::turb_siz_power() {
  double& power = data().powerOutput;
  read(kPowerSources);
  if (power < 0.0 && simulatorType == kCompressorBlocks && equalsIgnoringCase(itemModel, "COMPR")) {
    power = -power;
  }
  if (!(power > 0.0)) {
    status(80, "Calculating driver power.");
    turbine_calculate_power_output();
  }
  status(85, "Adding overdesign factor to driver power.");
  if (data().overdesignFactor > 0.0) power *= data().overdesignFactor;
}

void CTurbObj::turbine_calculate_power_output() {
  if (!(data().fluidCp > 0.0)) calculate_fluid_Cp();
  data().heatCapacityRatio = gasHeatCapacityRatio(
      converted(data().fluidCp, kCpUnits, "CAL/G/DEG C"), data().molecularWeight);
  const double power = expansionPower(
      data().fluidCp, converted(data().inletTemperature, "DEG F", "DEG R"),
      data().exitPressure / data().inletPressure, data().heatCapacityRatio, data().gasMassFlow);
  data().powerOutput = converted(power, "BTU/H", "HP");
}

void CTurbObj::calculate_fluid_Cp() {
  if (data().fluidType.empty()) {
    data().fluidType =
        std::string_view(fluidOfDensity(converted(data().gasDensity, "PCF", "GM/CC")));
  }
  const double cp =
      lib_cp_for_phase(data().fluidType, converted(data().exitTemperature, "DEG F", "DEG K"),
                       converted(data().exitPressure, "PSI", "ATM"), "Gas");
  data().fluidCp = converted(cp, "CAL/G/DEG C", kCpUnits);
}

// --- Results ------------------------------------------------------------------------------------

int CTurbObj::SaveParameters() {
  turbine_write_results();
  return 1;
}

void CTurbObj::turb_stp_write_design_pressure() {
  writeGaugePressure("CpDesignGaugePressure", data().designPressure);
}

void CTurbObj::turb_stp_write_design_temp() {
  for (const char* slot : {"CpDesignTemperature", "CpTemperature"}) {
    writeResult(slot, data().designTemperature, When::always, Style::converted, "DEG F", "DEG F",
                "DEG C");
  }
}

void CTurbObj::turbine_write_results() {
  status(90, "Writing turbine results.");
  turb_stp_write_design_pressure();
  turb_stp_write_design_temp();
  write(kPowerResult);
  if (data().fractionalEfficiency <= 1.0) {
    writeResult("FRACTIONAL EFFICIENCY", data().fractionalEfficiency, When::positive, Style::plain,
                nullptr, nullptr, nullptr);
  }
  write(kResults);
}

int CTurbObj::UpdateConnectivity() {
  rewritePorts(kInlet, inlets(), "STEAM SUPPLY", "_in_");
  rewriteGasExitPorts(exits());
  return 1;
}

}  // namespace sizewright
