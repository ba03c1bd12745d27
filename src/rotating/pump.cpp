#include "sizewright/rotating/pump.h"

#include <algorithm>
#include <array>
#include <string>

#include "sizewright/host/criteria.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

constexpr double kWaterDensity = 62.43;         // PCF
constexpr double kNoTemperature = -10000.0;     // DEG F, below any stream's
constexpr double kNotSpecified = -999.0;        // DEG F
constexpr double kNoPressure = -1.0;            // PSI
constexpr double kMissingLiquidDensity = 62.4;  // PCF
constexpr double kMissingSolidDensity = 93.6;   // PCF
constexpr double kDefaultEfficiency = 70.0;     // PERCENT

using D = PumpData;
using enum From;

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

// Sources outside the record, by priority.
constexpr auto kEfficiencyPercent = std::to_array<SourceRow<D>>({
    {&D::efficiencyPercent, component, "CpPumpEfficiencyPercent"},
    {&D::efficiencyPercent, simObject, "PUMP % EFFICIENCY"},
});
struct FractionRow {
  From from;
  const char* slot;
};
constexpr auto kEfficiencyFractions = std::to_array<FractionRow>({
    {component, "PUMP FRACTIONAL EFFICIENCY"},
    {simObject, "PUMP FRACTIONAL EFFICIENCY"},
    {component, "PUMP EFFICIENCY"},
    {simObject, "PUMP EFFICIENCY"},
});
constexpr auto kProcessSources = std::to_array<SourceRow<D>>({
    {&D::specificGravity, component, "CpFluidSpecificGravity"},
    {&D::specificGravity, simObject, "liquid specif. grav."},
    {&D::driverPower, component, "DRIVER POWER (SIM)", "HP"},
    {&D::driverPower, simObject, "DRIVER POWER (SIM)", "HP"},
    {&D::fluidHead, component, "CpFluidHead", "FEET"},
    {&D::fluidHead, simObject, "HEAD", "FEET"},
    {&D::viscosity, component, slotOf("Viscosity"), "CPOISE"},
    {&D::viscosity, simObject, "Viscosity", "CPOISE"},
});

constexpr auto kFormIn = std::to_array<FormInRow<D>>({
    {"Capacity Overdesign Factor", &D::overdesignFactor, nullptr, FormRule::ifPositive},
    {"Total Mass Flow", &D::totalMassFlow, "LB/H"},
    {"Total Volume Flow", &D::totalVolumeFlow, "CFH"},
    {"Minimum Fluid Density", &D::minFluidDensity, "PCF"},
    {"Minimum Fluid Molecular Weight", &D::minMolecularWeight, nullptr, FormRule::plain},
    {"Minimum Inlet Pressure", &D::minInletPressure, "PSI"},
    {"Maximum Exit Pressure", &D::maxExitPressure, "PSI"},
    {"Minimum Inlet Temperature", &D::minInletTemperature, "DEG F"},
    {"Maximum Exit Temperature", &D::maxExitTemperature, "DEG F"},
    {"Design Pressure", &D::designPressure, "PSI"},
    {"CpDesignTemperature", &D::designTemperature, "DEG F"},
    {"Fluid Density", &D::fluidDensity, "PCF"},
    {"CpDriverPower", &D::driverPower, "HP"},
    {"CpFluidHead", &D::fluidHead, "FEET"},
    {"CpNumberItems", &D::numberItems, nullptr, FormRule::plainOrKept},
    {"CpPumpEfficiencyPercent", &D::efficiencyPercent, nullptr, FormRule::plain},
    {"CpFluidSpecificGravity", &D::specificGravity, nullptr, FormRule::plain},
    {slotOf("Viscosity"), &D::viscosity, "CPOISE"},
});

// The capacity goes out as a volume even for a stock pump, which holds a mass flow.
constexpr auto kFormOut = std::to_array<FormOutRow<D>>({
    {"Capacity Overdesign Factor", &D::overdesignFactor},
    {slotOf("Viscosity"), &D::viscosity, "CPOISE", "CPOISE", "MPA-S"},
    {slotOf("CAPACITY"), &D::capacity, "CFH", "GPM", "L/S"},
    {"CpDriverPower", &D::driverPower, "HP", "HP", "KW"},
    {"Design Pressure", &D::designPressure, "PSI", "PSI", "KPA"},
    {"CpDesignTemperature", &D::designTemperature, "DEG F", "DEG F", "DEG C"},
    {"CpFluidHead", &D::fluidHead, "FEET", "FEET", "M"},
    {"CpNumberItems", &D::numberItems},
    {"CpPumpEfficiencyPercent", &D::efficiencyPercent},
    {"CpFluidSpecificGravity", &D::specificGravity},
});

constexpr auto kResultsBeforeCapacity = std::to_array<ResultRow<D>>({
    {"Pump overdesign factor", &D::overdesignFactor},
    {"CpNumberItems", &D::numberItems, When::aboveOne, Style::count},
    {"CpPumpEfficiencyPercent", &D::efficiencyPercent, When::positive, Style::plain, "PERCENT"},
    {"PUMP FRACTIONAL EFFICIENCY", &D::fractionalEfficiency},
});
constexpr auto kResultsAfterCapacity = std::to_array<ResultRow<D>>({
    {"CpFluidHead", &D::fluidHead, When::positive, Style::converted, "FEET", "FEET", "M"},
    {"CpFluidSpecificGravity", &D::specificGravity},
    {slotOf("Viscosity"), &D::viscosity, When::positive, Style::converted, "CPOISE", "CPOISE",
     "MPA-S"},
});

constexpr const char* kSeveralInlets =
    "PUMP SIZING: Multiple Inlet Streams Found \nThe Interactive Sizer has selected %s as the "
    "inlet stream based on the criteria \nthat this is the stream with the maximum total mass flow "
    "rate \nPlease verify inlet stream selection.";
constexpr const char* kSeveralExits =
    "PUMP SIZING: Multiple Exit Streams Found \nThe Interactive Sizer has selected %s as the "
    "outlet stream based on the criteria \nthat this is the stream with the maximum total mass "
    "flow rate \nPlease verify outlet stream selection.";

}  // namespace

double pumpHead(double exitPressure, double inletPressure, double specificGravity) {
  return (exitPressure - inletPressure) * 2.31 / specificGravity;
}

bool CPumpObj::isStockPump() const {
  return itemIs({"HD STOCK"});
}
const char* CPumpObj::capacityUnit() const {
  return isStockPump() ? "LB/H" : "CFH";
}

int CPumpObj::Size() {
  int result = 1;
  if (firstRun() != 0) {
    GetDesCriteriaInfo();
    result = GetStreamInfo();
  }
  if (result != 0) result = pump_stp();
  if (result != 0) result = pump_siz();
  return result;
}

int CPumpObj::GetLastInfo() {
  pump_stp_get_vpecomp_info();
  if (GetProjObjectInfo() != 0) pump_stp_get_block_info();
  pump_stp_get_proc_info();
  GetDesCriteriaInfo();
  GetStreamInfo();
  firstRun() = 0;
  return 1;
}

void CPumpObj::GetDesCriteriaInfo() {
  double& factor = data().overdesignFactor;
  if (factor > 0.0) return;
  if (GetValueFromDesCriteria("Pump overdesign factor", factor, "") == 0) factor = 1.0;
}

int CPumpObj::GetStreamInfo() {
  checkInlets();
  findStreams(inlets(), kInlet, "Inlet stream", "INLET");
  checkExits();
  findStreams(exits(), kExit, "Exit stream", "OUTLET");
  return list2_length(inlets()) > 0 ? 1 : 0;
}

// --- Setup --------------------------------------------------------------------------------------

void CPumpObj::readRecord(From from) {
  const auto rows = std::to_array<SourceRow<D>>({
      {&D::capacity, from, slotOf("CAPACITY"), capacityUnit()},
      {&D::fluidHead, from, "CpFluidHead", "FEET"},
      {&D::viscosity, from, slotOf("Viscosity"), "CPOISE"},
      {&D::driverPower, from, "CpDriverPower", "HP"},
      {&D::specificGravity, from, "CpFluidSpecificGravity"},
      {&D::efficiencyPercent, from, "CpPumpEfficiencyPercent", nullptr, Lookup::own},
      {&D::efficiencyPercent, from, "PUMP % EFFICIENCY"},
  });
  read(rows);
}

void CPumpObj::pump_stp_get_vpecomp_info() {
  readRecord(From::component);
}

void CPumpObj::pump_stp_get_block_info() {
  readSource(data().overdesignFactor, From::projectObject, "Pump overdesign factor", nullptr);
  readRecord(From::projectObject);
}

void CPumpObj::pump_stp_get_proc_info() {
  read(kEfficiencyPercent);
  if (!(data().efficiencyPercent > 0.0)) {
    double fraction = 0.0;
    for (const auto& [from, slot] : kEfficiencyFractions) readSource(fraction, from, slot, nullptr);
    if (fraction > 1.0) fraction /= 100.0;
    if (fraction > 0.0) data().efficiencyPercent = fraction * 100.0;
  }
  read(kProcessSources);
}

int CPumpObj::pump_stp() {
  status(30, "Obtaining process information.");
  pump_stp_get_inlets();
  pump_stp_get_exits();
  pump_stp_get_design_conditions();
  if (!(data().fluidDensity > 0.0)) {
    const bool flows = data().totalVolumeFlow > 0.0;
    data().fluidDensity = flows ? data().totalMassFlow / data().totalVolumeFlow : kWaterDensity;
  }
  status(65, "Obtained process information.");
  return 1;
}

void CPumpObj::pump_stp_get_inlets() {
  status(35, "Obtaining inlet stream information.");
  if (list2_length(inlets()) > 1) {
    constexpr const char* kText =
        "Identified more than one inlet stream.  The sum of the liquid (and solid) flowrates of "
        "all inlet streams is used in capacity calculations.";
    tell(calculations, kText);
    tell(warnings, kText);
  }
  double massFlow = 0.0;
  double volumeFlow = 0.0;
  bool vapor = false;
  Least pressure(0.0);
  Least temperature(kNoTemperature);
  Least molecularWeight(0.0);
  Greatest viscosity(0.0);
  for (auto& [name, stream] : openStreams(inlets())) {
    const double liquid = readOr(&stream, "LIQUID MASS FLOW", "LB/H", 0.0);
    const double solid = readOr(&stream, "SOLID MASS FLOW", "LB/H", 0.0);
    massFlow += liquid + solid;
    volumeFlow += liquid / readOr(&stream, "LIQUID MASS DENSITY", "PCF", kMissingLiquidDensity) +
                  solid / readOr(&stream, "SOLID MASS DENSITY", "PCF", kMissingSolidDensity);
    vapor = readOr(&stream, "VAPOR MASS FLOW", "LB/H", 0.0) > 0.0 || vapor;
    viscosity.take(readOr(&stream, "LIQUID VISCOSITY", "CPOISE", 0.0));
    pressure.take(readOr(&stream, "PRESSURE", "PSI", 0.0));
    temperature.take(readSentinel(&stream, "TEMPERATURE", "DEG F", kNoTemperature));
    molecularWeight.take(readOr(&stream, "MOLECULAR WEIGHT", nullptr, 0.0));
  }
  if (vapor) {
    warn(
        "Inlet stream(s) may contain vapor phase. Please check inlet stream(s) \n(Any vapor flow "
        "present, will not be used in estimation of pump capacity)");
  }
  setIfNotPositive(data().minFluidDensity, 0.0);  // kept: no stream fills it
  setIfNotPositive(data().totalMassFlow, massFlow);
  setIfNotPositive(data().totalVolumeFlow, volumeFlow);
  setIfNotPositive(data().minMolecularWeight, molecularWeight.value());
  setIfNotPositive(data().minInletPressure, pressure.value());
  setIfNotPositive(data().viscosity, viscosity.value());
  setIfZero(data().minInletTemperature, temperature.value());
}

void CPumpObj::pump_stp_get_exits() {
  status(50, "Obtaining exit stream information.");
  if (list2_length(exits()) > 1) {
    tell(calculations,
         "Identified more than one exit stream(Exit streams used only for Pressure and Temperature "
         "determination).");
  }
  bool vapor = false;
  Greatest pressure(0.0);
  Greatest temperature(kNoTemperature);
  for (auto& [name, stream] : openStreams(exits())) {
    vapor = readOr(&stream, "VAPOR MASS FLOW", "LB/H", 0.0) > 0.0 || vapor;
    pressure.take(readOr(&stream, "PRESSURE", "PSI", 0.0));
    temperature.take(readSentinel(&stream, "TEMPERATURE", "DEG F", kNoTemperature));
  }
  if (vapor) warn("Exit stream(s) may contain vapor phase. Please check exit stream(s)");
  setIfNotPositive(data().maxExitPressure, pressure.value());
  setIfZero(data().maxExitTemperature, temperature.value());
}

void CPumpObj::pump_stp_get_design_conditions() {
  status(61, "Obtaining design conditions.");
  const bool given =
      !allowsResize() && readDesignConditions(data().designPressure, data().designTemperature);
  if (given) return;
  if (!(data().designPressure > 0.0)) pump_stp_get_design_pressure();
  if (data().designTemperature == 0.0) pump_stp_get_design_temp();
}

void CPumpObj::pump_stp_get_design_pressure() {
  double floor = 0.0;
  GetValueFromDesCriteria("Minimum Design Pressure", floor, "PSI");
  const double exit = readComponentOrBlock("EXIT PRESSURE", "EXIT PRESSURE", "PSI", kNoPressure);
  const double specified =
      readComponentOrBlock("CpDesignGaugePressure", "Design press. -gauge", "PSI", kNoPressure);
  const double operating = std::max(data().maxExitPressure, exit);
  double& design = data().designPressure;
  if (specified >= operating) {
    design = specified;
  } else {
    pxl_calculate_design_press(equipFullCode, operating, &design, "PSI");
  }
  design = std::max(design, floor);
}

void CPumpObj::pump_stp_get_design_temp() {
  double floor = 0.0;
  GetValueFromDesCriteria("Minimum Design Temperature", floor, "DEG F");
  const double outlet =
      readComponentOrBlock("CpDesignTemperatureOutlet", "EXIT TEMPERATURE", "DEG F", kNotSpecified);
  const double specified =
      readComponentOrBlock("CpDesignTemperature", "Design temperature", "DEG F", kNotSpecified);
  double temperature = kNotSpecified - 0.9;
  if (lib_get_and_adjust_api(component.get(), "CpTemperature", &temperature, "DEG F") == 0) {
    temperature = readSentinel(simObject.get(), "TEMPERATURE", "DEG F", kNotSpecified);
  }
  const double operating = std::max({outlet, temperature, data().maxExitTemperature});
  double& design = data().designTemperature;
  design = specified;
  if (design < operating) {
    pxl_calculate_design_temp(equipFullCode, operating, &design, "DEG F");
  }
  design = std::max(design, floor);
}

// --- Sizing -------------------------------------------------------------------------------------

int CPumpObj::pump_siz() {
  status(67, "Checking process parameters.");
  setIfNotPositive(data().efficiencyPercent, kDefaultEfficiency);
  setIfNotPositive(data().fractionalEfficiency, data().efficiencyPercent / 100.0);
  status(70, "Obtaining liquid specific gravity.");
  setIfNotPositive(data().specificGravity, data().fluidDensity / kWaterDensity);
  setIfNotPositive(data().specificGravity, 1.0);
  status(75, "Obtaining total head for pump.");
  if (!(data().fluidHead > 0.0)) pump_siz_head();
  status(80, "Calculating pump capacity.");
  if (!(data().capacity > 0.0)) {
    const double flow = isStockPump() ? data().totalMassFlow : data().totalVolumeFlow;
    data().capacity = pump_get_final_capacity(flow, data().overdesignFactor);
  }
  status(85, "Pump capacity calculated.");
  status(86, "Checking driver power...");
  if (!(data().driverPower > 0.0)) {
    data().driverPower = pump_get_final_driver_power(data().overdesignFactor);
  }
  status(88, "Completed sizing of pump. ");
  return 1;
}

void CPumpObj::pump_siz_head() {
  status(76, "Calculating head.");
  const double inlet = data().minInletPressure;
  const double exit = data().maxExitPressure;
  if (inlet < exit) {
    tell(calculations, "--------Calc. Pump head = (Pexit_max - Pin_min)*2.31/sp.grav)");
    data().fluidHead = pumpHead(exit, inlet, data().specificGravity);
    return;
  }
  const std::string text = formatText(
      "------Please check inlet and exit pressure conditions.------\n"
      "Exit P(max.) found to be <= Inlet P(min.)conditions. (Cannot estimate pump head)\n"
      "\tMax. Exit pressure = %6.2fPSI\n\tMin. Inlet pressure = %6.2fPSI",
      exit, inlet);
  tell(calculations, text);
  warn(text);
  data().fluidHead = 0.0;
}

double CPumpObj::pump_get_final_capacity(double flow, double factor) {
  if (!(flow > 0.0)) {
    constexpr const char* kText =
        "No inlet flow specified. Cannot estimate pump capacity. Please check inlet stream.";
    tell(calculations, kText);
    warn(kText);
    return 0.0;
  }
  const double capacity = flow * factor;
  tell(calculations, formatText("Calc Pump Capacity(%12.2f cuft/hr) = Vol Flowrate(%12.2f cuft/hr)"
                                "*OverDesignFactor((%4.2f cuft/hr)",
                                capacity, flow, factor));
  return capacity;
}

// A zero power tells the evaluation engine to estimate it.
double CPumpObj::pump_get_final_driver_power(double /*factor*/) {
  tell(notes,
       "Driver Power is not specified by the user, and will be estimated by the Vardex evaluation "
       "engine.");
  return 0.0;
}

void CPumpObj::pump_check_min_max(double* capacity, double* number, double* /*third*/) {
  limitPumpRating(categoryCode, itemCode, *capacity, *number);
  status(87, "Completed pump rating based on VARDEX Cost Engine.");
}

// --- Form ---------------------------------------------------------------------------------------

int CPumpObj::ReturnValues(CStrList& names, CStrList& values) {
  names.RemoveAll();
  values.RemoveAll();
  showStream("Inlet Stream", inlets(), kSeveralInlets, names, values);
  showStream("Outlet Stream", exits(), kSeveralExits, names, values);
  showForm(kFormOut, names, values);
  return 1;
}

int CPumpObj::SetValues(CStrList& names, CStrList& values) {
  if (names.IsEmpty() || values.IsEmpty()) return 0;
  takeStreams("Inlet Stream", "Outlet Stream", names, values);
  takeForm(kFormIn, names, values);
  takeFormNumber(data().capacity, names, values, slotFor("CAPACITY"), capacityUnit(),
                 FormRule::converted);
  return 1;
}

// --- Results ------------------------------------------------------------------------------------

int CPumpObj::SaveParameters() {
  pump_write_results();
  return 1;
}

void CPumpObj::pump_stp_write_design_pressure() {
  writeGaugePressure("CpDesignGaugePressure", data().designPressure);
}

void CPumpObj::pump_stp_write_design_temp() {
  writeResult("CpDesignTemperature", data().designTemperature, When::always, Style::converted,
              "DEG F", "DEG F", "DEG C");
}

int CPumpObj::pump_write_results() {
  if (component == nullptr || component->IsValid() == 0) return 0;
  status(89, "Writing pump results.");
  pump_stp_write_design_pressure();
  pump_stp_write_design_temp();
  write(kResultsBeforeCapacity);
  if (data().capacity > 0.0) {
    writeResult(slotFor("CAPACITY"), data().capacity, When::positive, Style::converted,
                capacityUnit(), capacityUnit(), isStockPump() ? "KG/H" : "M3/H");
  } else {
    component->SetValue("Error",
                        "This item cannot be sized because of incomplete information.\n"
                        "Capacity cannot be calculated. Please check flow rates.",
                        0);
  }
  write(kResultsAfterCapacity);
  status(90, "Completed writing results to the file.");
  status(95, "Closing pump expert sizing module.");
  return 1;
}

int CPumpObj::UpdateConnectivity() {
  rewritePorts(kInlet, inlets(), "INLET", "_in_");
  rewritePorts(kExit, exits(), "OUTLET", "_ex_");
  return 1;
}

}  // namespace sizewright
