#include "sizewright/separation/dust_collector.h"

#include <algorithm>
#include <array>
#include <string>

#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

constexpr double kAirDensity = 0.081;     // PCF
constexpr double kAirTemperature = 87.0;  // DEG F
constexpr double kNoTemperature = -10000.0;
constexpr double kNoAirTemperature = -999.0;
constexpr double kNegligibleEfficiency = 0.01;

using D = DustCollectorData;
using enum From;

constexpr auto kUnitFlow = std::to_array<SourceRow<D>>({
    {&D::flow_per_unit, component, "VOLUMETRIC FLOW RATE", "CFH"},
    {&D::flow_per_unit, simObject, "VOLUMETRIC FLOW RATE", "CFH"},
});
constexpr auto kDimensions = std::to_array<SourceRow<D>>({
    {&D::filter_area, component, "CpSurfaceArea", "SF"},
    {&D::filter_area, component, "SURFACE AREA", "SF"},
    {&D::filter_area, component, "FILTER AREA", "SF"},
    {&D::filter_area, simObject, "CpSurfaceArea", "SF"},
    {&D::filter_area, simObject, "SURFACE AREA", "SF"},
    {&D::filter_area, simObject, "FILTER AREA", "SF"},
    {&D::cyclone_dia, component, "CpCycloneDiameter", "FEET"},
    {&D::cyclone_dia, component, "Diameter", "FEET"},
    {&D::cyclone_dia, simObject, "CpCycloneDiameter", "FEET"},
    {&D::cyclone_dia, simObject, "Diameter", "FEET"},
    {&D::inlet_height, component, "HEIGHT OF GAS INLET (SIM)", "FEET"},
    {&D::inlet_height, simObject, "HEIGHT OF GAS INLET (SIM)", "FEET"},
    {&D::inlet_width, component, "WIDTH OF GAS INLET (SIM)", "FEET"},
    {&D::inlet_width, simObject, "WIDTH OF GAS INLET (SIM)", "FEET"},
    {&D::liquid_velocity, component, "INLET LIQUID VELOCITY (SIM)", "FPS"},
    {&D::liquid_velocity, simObject, "INLET LIQUID VELOCITY (SIM)", "FPS"},
    {&D::cyclone_length, component, "LENGTH OF CYCLONE (SIM)", "FEET"},
    {&D::cyclone_length, simObject, "LENGTH OF CYCLONE (SIM)", "FEET"},
});
constexpr auto kPrecipitatorSources = std::to_array<SourceRow<D>>({
    {&D::efficiency, component, "CpRemovalEfficiencyPercent"},
    {&D::efficiency, simObject, "OVERALL EFFICIENCY"},
    {&D::migration_velocity, component, "CpMigrationVelocity", "FPS"},
    // kept: the block tells the velocity in a slot of another name
    {&D::migration_velocity, simObject, "VOLUME RATIO", "FPS"},
});
constexpr auto kItemCount = std::to_array<SourceRow<D>>({
    {&D::num_items, component, "CpNumberItems"},
    {&D::num_items, simObject, "CpNumberItems"},
});

constexpr auto kExitPorts = std::to_array<PortByFlow>({{"VAPOR MASS FLOW", "VAPOR OUTLET"}});

constexpr ResultRow<D> sized(const char* slot, double D::*field, const char* customary,
                             const char* metric) {
  return {slot, field, When::positive, Style::converted, customary, customary, metric};
}
constexpr auto kDiameterResult =
    std::to_array<ResultRow<D>>({sized("CpCycloneDiameter", &D::cyclone_dia, "FEET", "M")});
constexpr auto kBagResults = std::to_array<ResultRow<D>>({
    sized("CpSurfaceArea", &D::filter_area, "SF", "M2"),
    {"CpAirToClothRatio", &D::air_to_cloth},
});
constexpr auto kPrecipitatorResults = std::to_array<ResultRow<D>>({
    {"CpRemovalEfficiencyPercent", &D::efficiency},
    sized("CpGasFlowrate", &D::total_gas_flow, "CFH", "M3/H"),
    sized("CpMigrationVelocity", &D::migration_velocity, "FPS", "M/S"),
});
constexpr auto kGasResults = std::to_array<ResultRow<D>>({
    sized("CpGasFlowrate", &D::flow_per_unit, "CFH", "M3/H"),
    {"CpNumberItems", &D::num_cyclones, When::aboveOne, Style::count},
    {"CpAirTemperature", &D::air_temp, When::always, Style::converted, "DEG F", "DEG F", "DEG C"},
});
constexpr auto kWidthResult =
    std::to_array<ResultRow<D>>({sized("CpDiameterWidth", &D::cyclone_dia, "FEET", "M")});
constexpr auto kLengthResult =
    std::to_array<ResultRow<D>>({sized("CpLength", &D::cyclone_length, "FEET", "M")});
constexpr auto kManifoldResult =
    std::to_array<ResultRow<D>>({{"CpNumberCyclonesPerManifold", &D::num_cyclones}});
constexpr auto kLiquidFlowResult =
    std::to_array<ResultRow<D>>({sized("CpLiquidFlowrate", &D::flow_per_unit, "CFH", "M3/H")});
constexpr auto kGravityResult =
    std::to_array<ResultRow<D>>({{"CpOilSpecificGravity", &D::oil_gravity}});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

int CDcObj::Size() {
  GetDesCriteriaInfo();
  int result = GetStreamInfo();
  if (result != 0) result = dc_setup();
  if (result != 0) result = dstcoll();
  return result;
}

void CDcObj::GetDesCriteriaInfo() {
  double& velocity = data().inlet_velocity;
  if (!(velocity > 0.0) &&
      GetValueFromDesCriteria("Cyclone Inlet Linear Velocity", velocity, "FPS") == 0) {
    velocity = kCycloneInletVelocity;
  }
  double& temperature = data().air_temp;
  if (temperature == 0.0 &&
      GetValueFromDesCriteria("Air Cooler Inlet Temperature", temperature, "DEG F") == 0) {
    temperature = kAirTemperature;
  }
}

int CDcObj::GetStreamInfo() {
  checkInlets();
  findStreams(inlets(), kInlet, "Inlet stream", "INLET");
  checkExits();
  // kept: outlets are asked for twice, which finds nothing new
  findExits(exits(), {"OUTLET", "OUTLET", "VAPOR OUTLET"});
  return hasBothStreams();
}

// --- Setup --------------------------------------------------------------------------------------

int CDcObj::dc_setup() {
  data().name = componentName.view();
  read(kItemCount);
  setIfNotPositive(data().num_items, 1.0);
  if (itemIs({"ELC H VOLT"})) return dc_stp_esp();

  double& units = data().num_cyclones;
  readCount(units, From::component, "NUMBER OF CYCLONE");
  readCount(units, From::simObject, "NUMBER OF CYCLONE");
  if (!(units > 1.0)) units = 1.0;
  dc_setup_texts();
  dc_setup_air_temp();
  read(kUnitFlow);
  if (isLiquidCategory()) setIfNotPositive(data().flow_per_unit, givenLiquidFlow());
  read(kDimensions);
  dc_setup_efficiency();
  setIfNotPositive(data().total_gas_flow, data().flow_per_unit * units);
  const int result = dcstream(isLiquidCategory() ? 0.0 : givenGasFlow() * units);
  if (result != 0) data().flow_per_unit = data().total_gas_flow / units;
  return result;
}

void CDcObj::dc_setup_texts() {
  const auto take = [this](CriterionText& field, From from, const char* slot) {
    SlotText text;
    if (field.empty() && lib_get_value_c_api(source(from), slot, text.data(), "inherit") != 0) {
      field = text;
    }
  };
  for (const From from : {From::component, From::simObject}) {
    take(data().material, from, "CpMaterial");
    take(data().material, from, "mat'l of construction");
    take(data().gas_name, from, "gas");
  }
  if (data().gas_name.empty()) data().gas_name = "Air";
}

void CDcObj::dc_setup_air_temp() {
  double& temperature = data().air_temp;
  // kept: the default of the criterion counts as not given
  if (temperature != 0.0 && temperature != kAirTemperature) return;
  const double given =
      readComponentOrBlock("CpAirTemperature", "air temperature", "DEG F", kNoAirTemperature);
  if (given > kNoAirTemperature) temperature = given;
}

void CDcObj::dc_setup_efficiency() {
  double& efficiency = data().efficiency;
  efficiency = firstOf("EFFICIENCY OF CYCLONE (SIM)", "EFFICIENCY OF CYCLONE (SIM)", nullptr);
  efficiency = efficiency != 0.0 ? efficiencyFraction(efficiency) : 1.0;
  if (efficiency > kNegligibleEfficiency) return;
  const double other = firstOf("EFFICIENCY (SIM)", "EFFICIENCY (SIM)", nullptr);
  if (other != 0.0) efficiency = efficiencyFraction(other);
}

int CDcObj::dc_stp_esp() {
  read(kPrecipitatorSources);
  setIfNotPositive(data().efficiency, 1.0);
  return dcstream(0.0);
}

// The record's number or, where it has none, the block's; 0 when there is neither.
double CDcObj::firstOf(const char* ofRecord, const char* ofBlock, const char* units) const {
  double value = 0.0;
  readSource(value, From::component, ofRecord, units);
  readSource(value, From::simObject, ofBlock, units);
  return value;
}

double CDcObj::givenGasFlow() const {
  return std::max(firstOf("CpGasFlowrate", "FLOW RATE", "CFH"), 0.0);
}

// --- Streams ------------------------------------------------------------------------------------

// The streams of a list, but for names that begin with "NONE".
std::vector<NamedStream> CDcObj::namedStreams(void* list) const {
  std::vector<NamedStream> streams;
  for (int i = 0; i < list2_length(list); ++i) {
    const std::string name(withoutTrailingBlanks(list2_get_item(list, i, nullptr)));
    if (name.empty() || startsWithIgnoringCase(name, "NONE")) continue;
    if (const auto stream = openStream(name)) streams.push_back({name, *stream});
  }
  return streams;
}

// `flowOtherwise` (CFH) is what counts where the streams carry no flow.
int CDcObj::dcstream(double flowOtherwise) {
  status(30, "Obtaining process parameters. Please wait...");
  status(35, "Obtaining inlet streams.");
  status(45, "Obtaining total vapor volumetric flow.");
  status(45, "Obtaining inlet temperature.");
  Greatest temperature(kNoTemperature);
  const bool vapor = isGasCategory();
  double flow = 0.0;
  for (auto& [name, stream] : namedStreams(inlets())) {
    const double mass =
        readOr(&stream, vapor ? "VAPOR MASS FLOW" : "LIQUID MASS FLOW", "LB/H", 0.0);
    const double density = readOr(&stream, vapor ? "VAPOR MASS DENSITY" : "LIQUID MASS DENSITY",
                                  "PCF", vapor ? kAirDensity : kSeparatorWaterDensity);
    if (mass > 0.0 && density > 0.0) flow += mass / density;
    temperature.take(readSentinel(&stream, "TEMPERATURE", "DEG F", kNoTemperature));
  }
  status(50, "Completed writing inlet stream connectivity information.");
  status(50, "Obtained overall vapor flow.");
  status(50, "Obtaining exit liquid conditions");
  dcstream_exits();
  status(55, "Beginning sizing calculations...");
  status(55, "Checking input information.");
  if (!(data().total_gas_flow > 0.0)) {
    if (!(flow > 0.0)) flow = flowOtherwise;
    if (!(flow > 0.0)) {
      fail("No inlet vapor flow specified.");
      return 0;
    }
    data().total_gas_flow = flow;
  }
  if (temperature.found()) {
    data().air_temp = temperature.value();
    tell(warnings,
         formatText("Max Inlet Stream's Temp.(%f) used as Air Temperature", temperature.value()));
  }
  return 1;
}

void CDcObj::dcstream_exits() {
  double gravity = 0.0;
  for (auto& [name, stream] : namedStreams(exits())) {
    gravity = oilGravity(gravity, readOr(&stream, "LIQUID MASS DENSITY", "PCF", 0.0));
  }
  setIfNotPositive(data().oil_gravity, gravity);
}

// --- Results ------------------------------------------------------------------------------------

int CDcObj::SaveParameters() {
  dstcoll2();
  return 1;
}

void CDcObj::dstcoll2() {
  status(75, "Preparing the design report. Please Wait ...");
  status(78, "Created design report file.");
  status(79, "Writing preliminary information.");
  status(80, "Writing design parameters");
  dstcoll2_write_parameters();
  status(95, "Completed sizing of VPE component");
}

void CDcObj::dstcoll2_write_parameters() {
  if (isGasCategory()) {
    dstcoll2_edc_report();
  } else {
    dstcoll2_ese_report();
  }
}

void CDcObj::dstcoll2_edc_report() {
  write(kDiameterResult);
  if (itemIs({"CLOTH BAY", "PULSE SHKR"})) write(kBagResults);
  if (itemIs({"ELC H VOLT"})) write(kPrecipitatorResults);
  write(kGasResults);
}

void CDcObj::dstcoll2_ese_report() {
  const bool solids = itemIs({"WATER CYCL"});
  if (solids || itemIs({"PULP STOCK"})) write(kDiameterResult);
  if (itemIs({"OIL WATER"})) write(kWidthResult);
  write(kLengthResult);
  if (data().num_cyclones >= 1.0) write(kManifoldResult);
  if (solids) {
    writeResult("CpSolidFlowrate", data().flow_per_unit * kSeparatorWaterDensity, When::positive,
                Style::converted, "LB/H", "LB/H", "KG/H");
  } else {
    write(kLiquidFlowResult);
  }
  if (itemIs({"OIL WATER"})) write(kGravityResult);
}

int CDcObj::UpdateConnectivity() {
  rewritePorts(kInlet, inlets(), "INLET", "_in_");
  rewriteExitPorts(exits(), kExitPorts);
  return 1;
}

}  // namespace sizewright
