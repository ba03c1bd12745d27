#include <array>
#include <vector>

#include "sizewright/host/list2.h"
#include "sizewright/host/messages.h"
#include "sizewright/separation/filter.h"
#include "sizewright/separation/solid_streams.h"

namespace sizewright {

namespace {

constexpr double kLiquidDensity = 62.4;          // PCF, where a stream tells none
constexpr double kNegligibleSolidFlow = 0.0001;  // LB/H

using D = FilterData;
using enum From;

constexpr auto kSources = std::to_array<SourceRow<D>>({
    {&D::solid_mass_flow, component, "CpFlowrate", "LB/H"},
    {&D::solid_mass_flow, simObject, "CpFlowrate", "LB/H"},
    {&D::basket_capacity, component, "CpCentrifugeCapacity", "CF"},
    {&D::basket_capacity, simObject, "CpCentrifugeCapacity", "CF"},
    {&D::driver_power, component, "CpDriverPower", "HP"},
    {&D::driver_power, simObject, "CpDriverPower", "HP"},
    {&D::driver_power, simObject, "DRIVER POWER", "HP"},
    {&D::driver_power, component, "DRIVER POWER (SIM)", "HP"},
    {&D::driver_power, simObject, "DRIVER POWER (SIM)", "HP"},
    {&D::filter_area, component, "CpSurfaceArea", "SF"},
    {&D::filter_area, simObject, "CpSurfaceArea", "SF"},
    {&D::filter_area, simObject, "FILTER AREA", "SF"},
    {&D::cake_thickness, component, "CpCakeThickness", "FEET"},
    {&D::cake_thickness, simObject, "CpCakeThickness", "FEET"},
    {&D::bowl_extra_length, component, "CpBowlStraightLength", "INCHES"},
    {&D::bowl_extra_length, simObject, "CpBowlStraightLength", "INCHES"},
    {&D::tube_flow, component, "CpTubeFlowrate", "CFH"},
    {&D::tube_flow, simObject, "CpTubeFlowrate", "CFH"},
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

int CFltObj::GetStreamInfo() {
  checkInlets();
  findStreams(inlets(), kInlet, "Inlet stream", "INLET");
  checkExits();
  flt_get_outlet_port_info();
  return list2_length(inlets()) > 0 ? 1 : 0;
}

// Every connected exit, so that none is lost when the ports are rewritten.
void CFltObj::flt_get_outlet_port_info() {
  ensureList(exits());
  if (list2_length(exits()) != 0) return;
  lib_func_obtain_streams_from_connections(kExit, "", &exits());
  findStreams(exits(), kNoDirection, "Exit stream", "");
}

int CFltObj::flt_set() {
  flt_set_block_info();
  status(35, "Obtaining inlet streams...");
  status(40, "Obtained inlet streams.");
  status(41, "Obtaining inlet stream flows..");
  flt_set_inlet_flows();
  status(50, "Completed writing inlet stream connectivity information.");
  status(55, "Obtained solid and liquid flows from inlet streams.");
  status(60, "Obtained simulator data");
  if (!(data().liquid_flow > 0.0)) {
    fail("No inlet liquid flow specified.");
    return 0;
  }
  status(60, "Performing sizing calculations");
  return 1;
}

void CFltObj::flt_set_block_info() {
  read(kSources);
  D& filter = data();
  const bool centrifuge = isCentrifuge();
  const CentrifugeSlots slots = centrifugeSlots(itemCode);
  // The basket of a batch centrifuge gives its depth as the length of a bowl.
  const char* const diameter = centrifuge ? slots.diameter : "CpDiameter";
  const char* const length = centrifuge ? "CpBowlLength" : "CpLength";
  for (const From from : {From::component, From::simObject}) {
    readCount(filter.num_units, from, "CpNumberItems");
    readSource(filter.flt_diameter, from, diameter, "INCHES");
    readSource(filter.flt_length, from, length, "INCHES");
    if (centrifuge && slots.flow != nullptr) {
      readSource(filter.liquid_flow, from, slots.flow, "CFH");
    }
    readSource(filter.liquid_flow, from, "CpLiquidFlowrate", "CFH");
  }
  readSource(filter.flt_diameter, From::simObject, "Diameter", "INCHES");
  readSource(filter.flt_length, From::simObject, "Length", "INCHES");
  for (const From from : {From::component, From::simObject}) {
    CvdValueObject* object = source(from);
    if (object != nullptr) takeFlows(flt_stp_get_reqd_stream_flow(*object));
  }
}

// A sum over the inlets, or what a record tells in the slots of a stream.
void CFltObj::takeFlows(const StreamFlows& flows) {
  const Solids& solid = solidsOf(flows);
  setIfNotPositive(data().liquid_flow, flows.liquidVolume);
  setIfNotPositive(data().solid_mass_flow, solid.mass);
  setIfNotPositive(data().solid_vol_flow, solid.volume);
}

const CFltObj::Solids& CFltObj::solidsOf(const StreamFlows& flows) const {
  return isCentrifuge() && flows.balance.mass > 0.0 ? flows.balance : flows.solid;
}

void CFltObj::flt_set_inlet_flows() {
  StreamFlows sum;
  for (auto& [name, stream] : openStreams(inlets())) {
    const StreamFlows flows = simulatorType == kLiquorRatioSimulator
                                  ? flt_stp_get_stream_flow_rate_for_wingems(stream)
                                  : flt_stp_get_reqd_stream_flow(stream);
    const Solids& solid = solidsOf(flows);
    sum.liquidVolume += flows.liquidVolume;
    sum.solid.mass += solid.mass;
    sum.solid.volume += solid.volume;
  }
  takeFlows(sum);
}

double CFltObj::liquidVolumeOf(CvdValueObject& stream) const {
  return solidVolume(readOr(&stream, "LIQUID MASS FLOW", "LB/H", 0.0),
                     readOr(&stream, "LIQUID MASS DENSITY", "PCF", kLiquidDensity));
}

CFltObj::StreamFlows CFltObj::flt_stp_get_reqd_stream_flow(CvdValueObject& stream) const {
  const double density = readSolidDensity(*this, stream);
  const auto flowOf = [density](double mass) { return Solids{mass, solidVolume(mass, density)}; };
  StreamFlows flows;
  flows.liquidVolume = liquidVolumeOf(stream);
  flows.balance = flowOf(solidFlowByDifference(*this, stream, kNegligibleSolidFlow));
  double mass = 0.0;
  flows.solid = readSolidFlow(*this, stream, mass) ? flowOf(mass) : flows.balance;
  return flows;
}

// These streams tell no balance.
CFltObj::StreamFlows CFltObj::flt_stp_get_stream_flow_rate_for_wingems(
    CvdValueObject& stream) const {
  const double mass = solidFlowByLiquorRatio(*this, stream);
  StreamFlows flows;
  flows.liquidVolume = liquidVolumeOf(stream);
  flows.solid = {mass, solidVolume(mass, kSolidDensity)};
  return flows;
}

}  // namespace sizewright
