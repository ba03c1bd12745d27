#include "sizewright/rotating/gas_machine.h"

#include <array>
#include <limits>

#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

constexpr double kNoInletTemperature = -10000.0;  // DEG F, below any stream's
constexpr double kNoExitTemperature = 10000.0;    // DEG F, above any stream's
constexpr double kMissingVaporDensity = 0.075;    // PCF
constexpr double kDefaultOverdesign = 1.1;
constexpr const char* kDefaultFluid = "Inorganic Gas";
constexpr const char* kNoDriver = "NONE";

using D = GasMachineData;
using enum From;

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

// Sources outside the record, by priority.
constexpr auto kPowerSources = std::to_array<SourceRow<D>>({
    {&D::driverPower, component, "CpDriverPower", "HP"},
    {&D::driverPower, component, "DRIVER POWER (SIM)", "HP"},
    {&D::driverPower, simObject, "DRIVER POWER", "HP"},
    {&D::driverPower, simObject, "DRIVER POWER (SIM)", "HP"},
});
constexpr auto kGasSources = std::to_array<SourceRow<D>>({
    {&D::inletCompressibility, component, "CpCompressibilityFactorInlet"},
    {&D::inletCompressibility, simObject, "INLET COMPR. FACTOR"},
    {&D::inletCompressibility, simObject, "INLET COMPRESSIBILITY FACTOR (SIM)"},
    {&D::exitCompressibility, component, "CpCompressibilityFactorOutlet"},
    {&D::exitCompressibility, simObject, "OUTLET COMPR. FACTOR"},
    {&D::exitCompressibility, simObject, "OUTLET COMPRESSIBILITY FACTOR (SIM)"},
    {&D::specificHeatRatio, component, "CpSpecificHeatRatio"},
    {&D::specificHeatRatio, simObject, "Specific heat ratio"},
    {&D::specificHeatRatio, simObject, "INLET HEAT CAPACITY RATIO (SIM)"},
});

constexpr const char* kExpanderPressures =
    "Minimum inlet pressure found to be lesser than the maximum exit pressure.\n"
    "Maximum exit P = %8.3f PSI;\n"
    "Minimum inlet P = %8.3f PSI;\n"
    "Expander cannot be sized with these inputs.\n"
    "Please check/modify the corresponding stream(s) information and size again.";
constexpr const char* kCompressorPressures =
    "Maximum exit pressure found to be lesser than the minimum inlet pressure.\n"
    "Maximum exit P = %8.3f PSI;\n"
    "Minimum inlet P = %8.3f PSI;\n"
    "Compressor cannot be sized with these inputs.\n"
    "Please check/modify the corresponding stream(s) information and size again.";

}  // namespace

struct GasMachine::StreamSummary {
  bool liquid = false;
  bool solid = false;
  MeanOfPositive compressibility;
  MeanOfPositive specificHeatRatio;
};

bool GasMachine::isExpander() const {
  return variant().expanders && startsWithIgnoringCase(categoryCode, "DTUR") &&
         startsWithIgnoringCase(itemCode, "TURBOEXP");
}

void GasMachine::warnAndPrint(std::string_view text, std::string_view shown) {
  tell(warnings, text);
  showText(shown);
}

int GasMachine::Size() {
  int result = 1;
  if (firstRun() != 0) {
    GetDesCriteriaInfo();
    result = GetStreamInfo();
  }
  if (result != 0) result = comp_stp();
  if (result != 0) comp_siz();
  return result;
}

int GasMachine::GetLastInfo() {
  comp_stp_get_vpecomp_info();
  if (GetProjObjectInfo() != 0) comp_stp_get_block_info();
  comp_stp_get_proc_info();
  GetDesCriteriaInfo();
  GetStreamInfo();
  firstRun() = 0;
  return 1;
}

void GasMachine::GetDesCriteriaInfo() {
  double& factor = data().overdesignFactor;
  if (!(factor > 0.0) && GetValueFromDesCriteria("Compressor Overdesign Factor", factor, "") == 0) {
    factor = kDefaultOverdesign;
  }
  CriterionText& driver = data().driverType;
  if (driver.empty()) {
    SlotText text;
    lib_get_value_c_api(projectObject.get(), "CpDriverType", text.data(), "inherit");
    driver = text.view();
  }
  if (driver.empty() && GetValueFromDesCriteria("Driver Type", driver) == 0) {
    driver = std::string_view(kNoDriver);
  }
}

int GasMachine::GetStreamInfo() {
  checkInlets();
  findStreams(inlets(), kInlet, "Inlet stream", "INLET");
  checkExits();
  findExits(exits(), {"OUTLET", "DRAIN"});
  return list2_length(inlets()) > 0 ? 1 : 0;
}

// --- Sources ------------------------------------------------------------------------------------

void GasMachine::readTemperature(double& field, From from, const char* slot) const {
  if (field == 0.0) field = readOr(source(from), slot, "DEG F", 0.0);
}

void GasMachine::readRecord(From from) {
  const auto rows = std::to_array<SourceRow<D>>({
      {&D::capacity, from, slotOf("ACTUAL CAPACITY"), "CFH"},
      {&D::driverPower, from, variant().powerSlot, "HP"},
      {&D::specificHeatRatio, from, "CpSpecificHeatRatio"},
      {&D::inletCompressibility, from, "CpCompressibilityFactorInlet", nullptr, Lookup::own},
      {&D::inletCompressibility, from, "INLET COMPR. FACTOR"},
      {&D::exitCompressibility, from, "CpCompressibilityFactorOutlet", nullptr, Lookup::own},
      {&D::exitCompressibility, from, "OUTLET COMPR. FACTOR"},
      {&D::designInletPressure, from, "CpDesignGaugePressureInlet", "PSIA"},
      {&D::designExitPressure, from, "CpDesignGaugePressureOutlet", "PSIA"},
  });
  read(rows);
  readTemperature(data().designInletTemperature, from, "CpDesignTemperatureInlet");
  readTemperature(data().designExitTemperature, from, "CpDesignTemperatureOutlet");
}

void GasMachine::comp_stp_get_vpecomp_info() {
  readRecord(From::component);
}

void GasMachine::comp_stp_get_block_info() {
  readRecord(From::projectObject);
}

void GasMachine::comp_stp_get_proc_info() {
  read(kPowerSources);
  if (isExpander()) return;  // no gas data are looked for beyond its record
  read(kGasSources);
  if (variant().intercooler) {
    readTemperature(data().intercoolerTemperature, From::simObject,
                    "INTERCOOLER TEMPERATURE (SIM)");
  }
}

// --- Setup --------------------------------------------------------------------------------------

int GasMachine::comp_stp() {
  status(30, "Obtaining process information.");
  const double inletMean = comp_stp_get_inlets();
  const double exitMean = comp_stp_get_exits();
  comp_stp_get_specific_heat_ratio(inletMean, exitMean);
  return comp_stp_check_pressures();
}

// False for a stream that is left out.
bool GasMachine::takeStream(CvdValueObject& stream, StreamSummary& summary) const {
  if (variant().streamAverages) {
    SlotText type;
    lib_get_value_c_api(&stream, "Stream Type", type.data(), "inherit");
    if (equalsIgnoringCase(type, "HEAT") || equalsIgnoringCase(type, "WORK")) return false;
    double factor = readOr(&stream, "Z_TOTAL (SIM)", nullptr, 0.0);
    if (!(factor > 0.0)) factor = readOr(&stream, "Z_VAPOR (SIM)", nullptr, 0.0);
    summary.compressibility.take(factor);
    summary.specificHeatRatio.take(readOr(&stream, "Specific heat ratio", nullptr, 0.0));
  }
  summary.liquid = readOr(&stream, "LIQUID MASS FLOW", "LB/H", 0.0) > 0.0 || summary.liquid;
  summary.solid = readOr(&stream, "SOLID MASS FLOW", "LB/H", 0.0) > 0.0 || summary.solid;
  return true;
}

// Returns the mean Cp/Cv of the inlets.
double GasMachine::comp_stp_get_inlets() {
  status(35, "Obtaining inlet stream information.");
  if (variant().warnsOfSeveralInlets && list2_length(inlets()) > 1) {
    warnAndPrint(
        "Multiple Inlet Streams found.Sizing will use the inlet stream with max flow rate",
        "Multiple Inlet Streams found.Sizing will use the inlet stream with max flow rate. Please "
        "check the flow rate");
  }
  if (variant().streamAverages) {
    status(40, "Obtaining compressibility factors and heat capacity ratios of the inlets.");
  }
  StreamSummary summary;
  Greatest volumeFlow(0.0);
  Least pressure(0.0);
  Least temperature(kNoInletTemperature);
  MeanOfPositive molecularWeight;
  for (auto& [name, stream] : openStreams(inlets())) {
    if (!takeStream(stream, summary)) continue;
    const double massFlow = readOr(&stream, "VAPOR MASS FLOW", "LB/H", 0.0);
    const double density = readOr(&stream, "VAPOR MASS DENSITY", "PCF", kMissingVaporDensity);
    if (massFlow > 0.0 && density > 0.0) volumeFlow.take(massFlow / density);
    pressure.take(readOr(&stream, "PRESSURE", "PSI", 0.0));
    temperature.take(readSentinel(&stream, "TEMPERATURE", "DEG F", kNoInletTemperature));
    molecularWeight.take(readOr(&stream, "MOLECULAR WEIGHT", nullptr, 0.0));
  }
  if (summary.liquid) {
    warnAndPrint("Inlet stream(s) may contain liquid phase. Please check inlet stream(s)",
                 "Inlet streams(s) may contain liquid phase. Please check inlet stream(s)");
  }
  if (summary.solid) {
    warnAndPrint("Inlet stream(s) may contain solid phase. Please check inlet stream(s)");
  }
  setIfNotPositive(data().inletVolumeFlow, volumeFlow.value());
  if (data().minInletTemperature == 0.0) comp_stp_assign_min_temp(temperature.value());
  if (!(data().minInletPressure > 0.0)) comp_stp_assign_min_press(pressure.value());
  setIfNotPositive(data().molecularWeight, molecularWeight.value());
  setIfNotPositive(data().inletCompressibility, summary.compressibility.value());
  return summary.specificHeatRatio.value();
}

// Returns the mean Cp/Cv of the exits.
double GasMachine::comp_stp_get_exits() {
  status(50, "Obtaining exit stream information.");
  if (variant().streamAverages) {
    status(55, "Obtaining compressibility factors and heat capacity ratios of the exits.");
  }
  StreamSummary summary;
  FluidName fluid;
  Greatest pressure(0.0);
  Greatest temperature(std::numeric_limits<double>::lowest());
  for (auto& [name, stream] : openStreams(exits())) {
    if (!takeStream(stream, summary)) continue;
    SlotText text;
    const bool named =
        lib_get_value_c_api(&stream, "PRIMARY FLUID COMPONENT", text.data(), "inherit") != 0;
    fluid = named ? text.view() : std::string_view(kDefaultFluid);
    pressure.take(readOr(&stream, "PRESSURE", "PSI", 0.0));
    const double value = readSentinel(&stream, "TEMPERATURE", "DEG F", kNoExitTemperature);
    if (value < kNoExitTemperature) temperature.take(value);
  }
  if (summary.liquid) {
    warnAndPrint("Exit stream(s) may contain liquid phase. Please check exit stream(s)");
  }
  if (summary.solid) {
    warnAndPrint("Exit stream(s) may contain solid phase. Please check exit stream(s)");
  }
  if (!(data().maxExitPressure > 0.0)) comp_stp_assign_max_press(pressure.value());
  if (data().maxExitTemperature == 0.0) comp_stp_assign_max_temp(temperature.value());
  if (data().fluidType.empty()) data().fluidType = fluid;
  setIfNotPositive(data().exitCompressibility, summary.compressibility.value());
  return summary.specificHeatRatio.value();
}

void GasMachine::comp_stp_get_specific_heat_ratio(double inletMean, double exitMean) {
  status(61, "Obtaining specific heat ratio.");
  double& ratio = data().specificHeatRatio;
  if (ratio > 0.0) return;
  const bool both = inletMean > 0.0 && exitMean > 0.0;
  ratio = both ? (inletMean + exitMean) / 2.0 : inletMean + exitMean;  // a missing mean is 0
  if (ratio > 0.0) return;
  ratio = comp_stp_calculate_specific_heat_ratio(data().fluidType.c_str(),
                                                 data().maxExitTemperature, data().maxExitPressure);
}

double GasMachine::comp_stp_calculate_specific_heat_ratio(const char* fluid, double temperature,
                                                          double pressure) {
  return lib_sp_heat_ratio(fluid, converted(temperature, "DEG F", "DEG K"),
                           converted(pressure, "PSI", "ATM"));
}

// Equal pressures leave no work to either machine.
int GasMachine::comp_stp_check_pressures() {
  const double inlet = data().minInletPressure;
  const double exit = data().maxExitPressure;
  if (isExpander() && !(exit < inlet)) {
    const std::string text = formatText(kExpanderPressures, exit, inlet);
    tell(errors, text);
    showBox(text, kStopBox);
    return 0;
  }
  if (!isExpander() && !(inlet < exit)) {
    fail(formatText(kCompressorPressures, exit, inlet));
    return 0;
  }
  status(65, "Obtained all stream information. Beginning equipment design");
  return 1;
}

// --- Operating and design conditions ------------------------------------------------------------

void GasMachine::comp_stp_assign_capacity(double /*streamValue*/) {}

void GasMachine::comp_stp_assign_min_press(double streamValue) {
  assignPressure({&D::minInletPressure, &D::designInletPressure, "Inlet pressure-gauge",
                  "CpDesignGaugePressureInlet"},
                 streamValue);
}

void GasMachine::comp_stp_assign_max_press(double streamValue) {
  assignPressure({&D::maxExitPressure, &D::designExitPressure, "Exit pressure -gauge",
                  "CpDesignGaugePressureOutlet"},
                 streamValue);
}

void GasMachine::comp_stp_assign_min_temp(double streamValue) {
  assignTemperature({&D::minInletTemperature, &D::designInletTemperature, "Inlet temperature",
                     "CpDesignTemperatureInlet"},
                    streamValue);
}

void GasMachine::comp_stp_assign_max_temp(double streamValue) {
  assignTemperature({&D::maxExitTemperature, &D::designExitTemperature, "EXIT TEMPERATURE",
                     "CpDesignTemperatureOutlet"},
                    streamValue);
}

void GasMachine::assignPressure(const End& end, double streamValue) {
  double& operating = data().*end.operating;
  double& design = data().*end.design;
  const double ofBlock = readOr(simObject.get(), end.blockSlot, "PSI", 0.0);
  operating = ofBlock > 0.0 ? ofBlock : streamValue;
  if (!allowsResize()) {
    const double fixed = readOr(projectObject.get(), end.designSlot, "PSI", 0.0);
    if (fixed != 0.0) {
      design = fixed;
      return;
    }
  }
  const double ofRecord = readOr(component.get(), end.designSlot, "PSIA", 0.0);
  if (ofRecord > 0.0) {
    design = ofRecord;
  } else if (operating > 0.0) {
    pxl_calculate_design_press(equipFullCode, operating, &design, "PSI");
  }
}

void GasMachine::assignTemperature(const End& end, double streamValue) {
  double& operating = data().*end.operating;
  double& design = data().*end.design;
  const auto specified = [&](CvdValueObject* object, const char* slot) {
    return readSentinel(object, slot, "DEG F", kNoInletTemperature);
  };
  const double ofBlock = specified(simObject.get(), end.blockSlot);
  operating = ofBlock > kNoInletTemperature ? ofBlock : streamValue;
  if (!allowsResize()) {
    const double fixed = specified(projectObject.get(), end.designSlot);
    if (fixed != kNoInletTemperature) {
      design = fixed;
      return;
    }
  }
  const double ofRecord = specified(component.get(), end.designSlot);
  if (ofRecord > kNoInletTemperature) {
    design = ofRecord;
  } else if (operating != 0.0) {
    pxl_calculate_design_temp(equipFullCode, operating, &design, "DEG F");
  }
}

// --- Sizing -------------------------------------------------------------------------------------

void GasMachine::comp_siz() {
  comp_siz_check_driver();
  status(67, "Obtaining inlet compression factor.");
  fillCompressibility(data().inletCompressibility, data().minInletTemperature,
                      data().minInletPressure);
  status(70, "Obtaining exit compression factor.");
  fillCompressibility(data().exitCompressibility, data().maxExitTemperature,
                      data().maxExitPressure);
  status(75, "Obtaining Capacity...");
  if (!(data().capacity > 0.0) && data().inletVolumeFlow > 0.0) {
    data().capacity = data().inletVolumeFlow * data().overdesignFactor;
  }
  if (!(data().capacity > 0.0)) {
    warnAndPrint("Volumetric flow cannot be calculated. Please check inlet and exit stream(s)");
  }
  status(80, "Checking driver power value.");
  status(80, "Checking equipment minimum and maximum requirements.");
}

void GasMachine::comp_siz_check_driver() {
  status(65, "Checking user inputs for design parameters.");
  CriterionText& driver = data().driverType;
  if (driver.empty()) return;
  if (categoryIs({"EAC"}) || itemIs({"RECIP GAS"})) {
    driver.clear();
  } else if (itemIs({"RECIP MOTR"}) && sameWord(driver, "GAS ENGINE")) {
    warnAndPrint("Driver type in design criteria cannot be used. No driver provided");
    driver = std::string_view(kNoDriver);
  }
}

void GasMachine::fillCompressibility(double& factor, double temperature, double pressure) const {
  const FluidName& fluid = values().fluidType;
  if (factor > 0.0 || fluid.empty()) return;
  factor = lib_z_for_phase(fluid, converted(temperature, "DEG F", "DEG K"),
                           converted(pressure, "PSI", "ATM"), "gas");
  setIfNotPositive(factor, 1.0);
}

}  // namespace sizewright
