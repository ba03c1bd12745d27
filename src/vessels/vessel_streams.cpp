#include <algorithm>
#include <cmath>
#include <string>

#include "sizewright/host/criteria.h"
#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

constexpr double kNoTemperature = -100000.0;  // DEG F
constexpr double kNotSpecified = -999.0;      // DEG F
constexpr double kLiquidDensity = 62.4;       // PCF, where a stream has none
constexpr double kHeavyLiquidDensity = 93.6;  // PCF
constexpr double kVaporDensity = 0.075;       // PCF
constexpr double kSameDensity = 0.05;         // relative difference of what counts as one liquid
constexpr int kMaxExits = 3;

constexpr const char* kVaporOutlet = "VAPOR OUTLET";
constexpr const char* kLiquidOutlet = "LIQUID OUTLET";
constexpr const char* kHeavyLiquidOutlet = "HEAVY LIQUID OUTLET";

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

// Names of a list that stand for streams, without trailing blanks.
std::vector<std::string> streamNames(void* list) {
  std::vector<std::string> names;
  for (int i = 0; i < list2_length(list); ++i) {
    const std::string_view name = withoutTrailingBlanks(list2_get_item(list, i, nullptr));
    if (!name.empty() && !startsWithIgnoringCase(name, "NONE")) names.emplace_back(name);
  }
  return names;
}

double densityOf(double mass, double volume, double missing) {
  return mass > 0.0 && volume > 0.0 ? mass / volume : missing;
}

}  // namespace

/// Highest pressure (PSI) and temperature (DEG F) of the streams of a direction.
struct CVesObj::Conditions {
  double pressure = 0.0;
  double temperature = kNoTemperature;

  void take(const StreamFlows& flows) {
    pressure = std::max(pressure, flows.pressure);
    temperature = std::max(temperature, flows.temperature);
  }
};

// --- Finding the streams ------------------------------------------------------------------------

int CVesObj::GetStreamInfo() {
  checkInlets();
  findStreams(inlets(), kInlet, "Inlet stream", "INLET");
  checkExits();
  findExits(exits(), {kVaporOutlet, kLiquidOutlet, kHeavyLiquidOutlet});
  constexpr const char* kWrongStreams =
      "Stream Selection may be incorrect. Please verify.\n%s \n(Please check process information "
      "loaded and/or PFD to see connected streams)\n\n";
  std::string message;
  if (list2_length(inlets()) == 0) message += formatText(kWrongStreams, "No Inlet streams found.");
  if (const int exitCount = list2_length(exits()); exitCount > kMaxExits) {
    message += formatText(kWrongStreams,
                          formatText("Maximum number of Exit Streams allowed = 3. Number of Exit "
                                     "Streams Available = %d.",
                                     exitCount)
                              .c_str());
  }
  if (message.empty()) return 1;
  tell(errors, message);
  showText("Error(s): " + message);
  return 0;
}

int CVesObj::GetConnectedStreams() {
  void* list = list2_create();
  GetStreams(kInlet, "", "INLET", list);
  for (int i = 0; i < list2_length(list); ++i) {
    AppendStreamToSinkList(list2_get_item(list, i, nullptr));
  }
  list2_delete(list);
  for (const char* tag : {kVaporOutlet, kLiquidOutlet, kHeavyLiquidOutlet}) {
    list = list2_create();
    GetStreams(kExit, "", tag, list);
    if (list2_length(list) > 0) AppendStreamToSourceList(list2_get_item(list, 0, nullptr));
    list2_delete(list);
  }
  return 1;
}

int CVesObj::UpdateConnectivity() {
  rewritePorts(kInlet, inlets(), "INLET", "_in_");
  if (exits() == nullptr) return 1;
  lib_fun_delete_old_ports(vpeCompFile, componentName, kExit);
  return vsstream_write_streams_and_port_function_ex();
}

int CVesObj::vsstream_write_streams_and_port_function_ex() {
  lib_func_append_ports(data().vap_stream, kVaporOutlet, "_vap_ex_", kExit);
  lib_func_append_ports(data().light_liq_stream, kLiquidOutlet, "_ll_ex_", kExit);
  lib_func_append_ports(data().heavy_liq_stream, kHeavyLiquidOutlet, "_hl_ex_", kExit);
  return 1;
}

// --- Reading the streams ------------------------------------------------------------------------

int CVesObj::vsstream() {
  status(30, "Beginning vessel design.");
  status(31, "Obtaining inlet stream(s).");
  status(33, "Obaining flow properties for all inlet stream fluid phases.");
  const Conditions inlet = readInlets();
  status(35, "Obtaining exit stream(s).");
  status(37, "Obaining flow properties for all exit stream fluid phases.");
  const Conditions exit = readExits();
  status(40, "Determining exit flow properties for individual phases.");
  readPhases();
  status(45, "Calculating design temperature and pressure.");
  data().design_from_user = takeUserDesign();
  if (!data().design_from_user) vsstream_get_design_temp_and_pressure(inlet, exit);
  status(48, "Calculating vessel input parameters.");
  if (vessel_input_is_ok() == 0) return 0;
  status(50, "Completed obtaining information from the simulator.");
  return 1;
}

// kept: the totals are not cleared, so that a second run adds the inlets again
CVesObj::Conditions CVesObj::readInlets() {
  Conditions conditions;
  for (const std::string& name : streamNames(inlets())) {
    StreamFlows flows;
    vsstream_get_stream_flow_properties(name, flows);
    data().total_inlet_vap_mass_flow += flows.vaporMass;
    data().total_inlet_liq_mass_flow += flows.liquidMass;
    data().total_inlet_liq_vol_flow += flows.liquidVolume;
    data().total_inlet_vap_vol_flow += flows.vaporVolume;
    conditions.take(flows);
  }
  return conditions;
}

CVesObj::Conditions CVesObj::readExits() {
  Conditions conditions;
  struct Liquid {
    std::string name;
    double density = 0.0;
  };
  std::vector<Liquid> liquids;
  for (const std::string& name : streamNames(exits())) {
    StreamFlows flows;
    vsstream_get_stream_flow_properties(name, flows);
    conditions.take(flows);
    if (flows.vaporMass > 0.0 && flows.vaporMass > flows.liquidMass) {
      data().vap_stream = name;
    } else {
      liquids.push_back({name, densityOf(flows.liquidMass, flows.liquidVolume, 0.0)});
    }
  }
  liquids.resize(2);  // a third one is ignored
  vsstream_assign_liquid_streams(liquids[0].density, liquids[0].name, liquids[1].density,
                                 liquids[1].name);
  return conditions;
}

void CVesObj::vsstream_get_stream_flow_properties(std::string_view name, StreamFlows& flows) const {
  std::optional<CvdStream> stream = openStream(name);
  if (!stream) return;
  flows.temperature = readOr(&*stream, "TEMPERATURE", "DEG F", 77.0);
  flows.pressure = readOr(&*stream, "PRESSURE", "PSI", 15.0);
  flows.liquidMass = readOr(&*stream, "LIQUID MASS FLOW", "LB/H", 0.0);
  flows.vaporMass = readOr(&*stream, "VAPOR MASS FLOW", "LB/H", 0.0);
  const auto density = [&](const char* slot, double missing) {
    const double value = readOr(&*stream, slot, "PCF", missing);
    return value > 0.0 ? value : missing;
  };
  if (flows.liquidMass > 0.0) {
    flows.liquidVolume = flows.liquidMass / density("LIQUID MASS DENSITY", kLiquidDensity);
  }
  if (flows.vaporMass > 0.0) {
    flows.vaporVolume = flows.vaporMass / density("VAPOR MASS DENSITY", kVaporDensity);
  }
}

void CVesObj::vsstream_assign_liquid_streams(double density1, std::string_view name1,
                                             double density2, std::string_view name2) {
  const bool known1 = density1 > 0.0;
  const bool known2 = density2 > 0.0;
  // Of two equal densities the second stream is the light one.
  const bool secondIsLight = known2 && (!known1 || density2 <= density1);
  data().light_liq_stream = secondIsLight ? name2 : name1;
  data().heavy_liq_stream = secondIsLight ? name1 : name2;
  const double light = secondIsLight ? density2 : density1;
  const double heavy = secondIsLight ? density1 : density2;
  if (known1 != known2) data().heavy_liq_stream.clear();
  tell(calculations,
       "***Assigning heavy and light liquid streams: (estimated based on densities)***");
  tell(calculations,
       formatText("Light liquid stream = %s (den= %5.4f)\nHeavy liquid stream = %s(den= %5.4f)",
                  data().light_liq_stream.c_str(), light, data().heavy_liq_stream.c_str(), heavy));
}

void CVesObj::readPhases() {
  VesselData& vessel = data();
  const auto flowsOf = [this](const FixedText<256>& name) {
    StreamFlows flows;
    vsstream_get_stream_flow_properties(name, flows);
    return flows;
  };
  if (!vessel.vap_stream.empty()) {
    const StreamFlows flows = flowsOf(vessel.vap_stream);
    vessel.total_exit_vap_mass_flow = flows.vaporMass;
    vessel.total_exit_vap_vol_flow = flows.vaporVolume;
  }
  if (!vessel.light_liq_stream.empty()) {
    const StreamFlows flows = flowsOf(vessel.light_liq_stream);
    vessel.total_exit_light_liq_mass_flow = flows.liquidMass;
    vessel.total_exit_light_liq_vol_flow = flows.liquidVolume;
    vessel.light_liq_density = densityOf(flows.liquidMass, flows.liquidVolume, kLiquidDensity);
  }
  if (!vessel.heavy_liq_stream.empty()) {
    const StreamFlows flows = flowsOf(vessel.heavy_liq_stream);
    vessel.total_exit_heavy_liq_mass_flow = flows.liquidMass;
    vessel.total_exit_heavy_liq_vol_flow = flows.liquidVolume;
    vessel.heavy_liq_density = densityOf(flows.liquidMass, flows.liquidVolume, kHeavyLiquidDensity);
  }
}

// --- Design conditions --------------------------------------------------------------------------

// True when the project forbids resizing and gives both conditions.
bool CVesObj::takeUserDesign() {
  if (allowsResize()) return false;
  CvdProjectObject* const record = projectObject.get();
  const double pressure = readOr(record, "CpDesignGaugePressure", "PSI", 0.0);
  if (pressure == 0.0) return false;
  data().design_press = pressure;
  const double temperature = readOr(record, "CpDesignTemperature", "DEG F", 0.0);
  if (temperature == 0.0) return false;
  data().design_temp = temperature;
  return true;
}

void CVesObj::vsstream_get_design_temp_and_pressure(const Conditions& inlet,
                                                    const Conditions& exit) {
  VesselData& vessel = data();
  double minimumTemperature = 0.0;
  double minimumPressure = 0.0;
  GetValueFromDesCriteria("Minimum Design Temperature", minimumTemperature, "DEG F");
  GetValueFromDesCriteria("Minimum Design Pressure", minimumPressure, "PSI");

  setIfNotPositive(vessel.oper_press, std::max(inlet.pressure, exit.pressure));
  double userPressure = 0.0;
  readSource(userPressure, From::component, "GAUGE PRESSURE", "PSI");
  readSource(userPressure, From::simObject, "GAUGE PRESSURE", "PSI");
  const double pressure = std::max(vessel.oper_press, userPressure);
  if (!(vessel.design_press > 0.0)) {
    if (pressure > vessel.design_press) {
      pxl_calculate_design_press(equipFullCode, pressure, &vessel.design_press, "PSI");
    }
    vessel.design_press = std::max(vessel.design_press, minimumPressure);
  }

  setIfNotPositive(vessel.oper_temp, std::max(inlet.temperature, exit.temperature));
  double userTemperature = kNoTemperature;
  if (component != nullptr) {
    userTemperature =
        readComponentOrBlock("CpDesignTemperature", "Design temperature", "DEG F", kNotSpecified);
  }
  const double temperature = std::max(vessel.oper_temp, userTemperature);
  if (!(vessel.design_temp > 0.0)) {
    if (temperature > userTemperature) {
      pxl_calculate_design_temp(equipFullCode, temperature, &vessel.design_temp, "DEG F");
    } else {
      vessel.design_temp = userTemperature;  // kept: it does not pass through the design rule
    }
    vessel.design_temp = std::max(vessel.design_temp, minimumTemperature);
  }
}

// --- Input check --------------------------------------------------------------------------------

int CVesObj::refuse(const char* text) {
  fail(text);
  return 0;
}

int CVesObj::vessel_input_is_ok() {
  VesselData& vessel = data();
  if (vessel.total_inlet_vap_mass_flow == 0.0 && vessel.total_inlet_liq_mass_flow == 0.0) {
    return refuse("This item cannot be sized. Inlet flows are not present.");
  }
  if (vessel.vap_stream.empty() && vessel.light_liq_stream.empty()) {
    vessel.total_exit_vap_mass_flow = vessel.total_inlet_vap_mass_flow;
    vessel.total_exit_vap_vol_flow = vessel.total_inlet_vap_vol_flow;
    vessel.total_exit_light_liq_mass_flow = vessel.total_inlet_liq_mass_flow;
    vessel.total_exit_light_liq_vol_flow = vessel.total_inlet_liq_vol_flow;
    if (vessel.total_exit_light_liq_vol_flow > 0.0) {
      vessel.light_liq_density =
          vessel.total_exit_light_liq_mass_flow / vessel.total_exit_light_liq_vol_flow;
    }
    vessel.total_exit_heavy_liq_mass_flow = 0.0;
    vessel.total_exit_heavy_liq_vol_flow = 0.0;
    vessel.heavy_liq_density = 0.0;
    constexpr const char* kInletFlows = "Vessel capacity will be based on inlet flows only.";
    tell(warnings, kInletFlows);
    showText(kInletFlows);
  }
  if (vessel.total_inlet_vap_mass_flow > 0.0 && vessel.total_inlet_vap_vol_flow == 0.0) {
    return refuse("This item cannot be sized. Error in estimating inlet vapor flows.");
  }
  if (vessel.total_exit_vap_mass_flow > 0.0 && vessel.total_exit_vap_vol_flow == 0.0) {
    return refuse("This item cannot be sized. Error in estimating exit vapor flows.");
  }
  if (vessel.total_exit_light_liq_mass_flow > 0.0 && vessel.light_liq_density == 0.0) {
    return refuse("This item cannot be sized.\n Error in estimating exit light liquid density.");
  }
  if (vessel.total_exit_heavy_liq_mass_flow > 0.0 && vessel.heavy_liq_density == 0.0) {
    return refuse("This item cannot be sized.\n Error in estimating exit heavy liquid density.");
  }
  const double light = vessel.light_liq_density;
  const double heavy = vessel.heavy_liq_density;
  if (heavy == light || std::abs((heavy - light) / light) < kSameDensity) {
    vessel.total_exit_heavy_liq_mass_flow = 0.0;
    vessel.total_exit_heavy_liq_vol_flow = 0.0;
  }
  return 1;
}

}  // namespace sizewright
