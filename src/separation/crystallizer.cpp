#include "sizewright/separation/crystallizer.h"

#include <algorithm>
#include <array>

#include "sizewright/separation/limits.h"
#include "sizewright/separation/solid_streams.h"

namespace sizewright {

namespace {

constexpr double kProductSize = 0.833;  // MM
constexpr double kGrowthRate = 0.36;    // MM/H
constexpr double kLength = 30.0;        // FEET

constexpr UnitLimit kBatchLimit = {
    .lower = 115.0, .upper = 1095.0, .split = SplitWhen::oneUnit};                  // CF
constexpr UnitLimit kOsloLimit = {.upper = 572000.0, .split = SplitWhen::oneUnit};  // LB/H

using D = CrystallizerData;
using enum From;

constexpr auto kVolumeSources = std::to_array<SourceRow<D>>({
    {&D::liquidVolume, component, "CpLiquidVolume", "CF"},
    {&D::liquidVolume, simObject, "CAPACITY", "CF"},
    {&D::liquidVolume, component, "CAPACITY (SIM)", "CF"},
    {&D::liquidVolume, simObject, "CAPACITY (SIM)", "CF"},
});
constexpr auto kProductSources = std::to_array<SourceRow<D>>({
    {&D::productSize, component, "PRODUCT SIZE", "MM"},
    {&D::productSize, simObject, "PRODUCT SIZE", "MM"},
});
constexpr auto kLengthSources = std::to_array<SourceRow<D>>({
    {&D::length, component, "CpLength", "FEET"},
    {&D::length, simObject, "Length", "FEET"},
});
constexpr auto kRateSources = std::to_array<SourceRow<D>>({
    {&D::crystalRate, component, "CpCrystallizerRate", "LB/H"},
    {&D::crystalRate, simObject, "Rate", "LB/H"},
    {&D::crystalRate, component, "RATE (SIM)", "LB/H"},
    {&D::crystalRate, simObject, "RATE (SIM)", "LB/H"},
});

constexpr auto kCount = std::to_array<ResultRow<D>>({
    {"CpNumberItems", &D::numberItems, When::always, Style::count},
});
constexpr auto kBatchResults = std::to_array<ResultRow<D>>({
    {"CpLiquidVolume", &D::liquidVolume, When::always, Style::converted, "CF", "CF", "M3"},
});
constexpr auto kMechanicalResults = std::to_array<ResultRow<D>>({
    {"CpLength", &D::length, When::always, Style::converted, "FEET", "FEET", "M"},
});
constexpr auto kOtherResults = std::to_array<ResultRow<D>>({
    {"CpCrystallizerRate", &D::crystalRate, When::always, Style::converted, "LB/H", "LB/H", "KG/H"},
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

double crystalHoldTime(double productSize, double growthRate) {
  return productSize / (growthRate * 3.0);
}

int CCryObj::Size() {
  int result = GetStreamInfo();
  if (result != 0) result = cry_stp();
  if (result != 0) result = crys_siz();
  return result;
}

int CCryObj::GetStreamInfo() {
  return findBothStreams("INLET", "OUTLET");
}

// --- Setup --------------------------------------------------------------------------------------

int CCryObj::cry_stp() {
  status(35, "Checking outlets...");
  status(40, "Obtaining process parameters. Please wait...");
  status(45, "Obtaining exit streams.");
  status(47, "Obtained exit stream names.");
  status(50, "Checking exit stream information. ");
  double flowSum = 0.0;
  double volumeSum = 0.0;
  double flow = 0.0;  // kept: from exit to exit
  for (auto& [name, stream] : openStreams(exits())) {
    double volume = 0.0;
    if (simulatorType == kLiquorRatioSimulator) {
      cry_stp_get_stream_solid_flow_rate_for_wingems(stream, flow, volume);
    } else {
      cry_stp_get_stream_solid_info(stream, flow, volume);
    }
    flowSum += flow;
    volumeSum += volume;
  }
  setIfNotPositive(data().crystalRate, flowSum);
  setIfNotPositive(data().solidVolumeFlow, volumeSum);
  status(55, "Obtained solid flow rate from exit streams.");
  status(55, "Beginning sizing calculations...");
  return 1;
}

// kept: a solid flow that the stream gives is replaced by the difference of its flows, and without
// one the figure of the exit before stands
void CCryObj::cry_stp_get_stream_solid_info(CvdStream& stream, double& flow, double& volume) const {
  double given = 0.0;
  if (readSolidFlow(*this, stream, given)) flow = solidFlowByDifference(*this, stream);
  volume = solidVolume(flow, readSolidDensity(*this, stream));
}

void CCryObj::cry_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream, double& flow,
                                                             double& volume) const {
  flow = solidFlowByLiquorRatio(*this, stream);
  volume = solidVolume(flow, kSolidDensity);
}

// --- Sizing -------------------------------------------------------------------------------------

int CCryObj::crys_siz() {
  data().numberItems = std::max(data().numberItems, 1.0);
  if (itemIs({"BATCH VAC"})) {
    crys_bat();
  } else if (itemIs({"MECHANICAL"})) {
    crys_mec();
  } else if (itemIs({"OSLO"})) {
    crys_osl();
  }
  return 1;
}

void CCryObj::crys_bat() {
  read(kVolumeSources);
  if (!(data().liquidVolume > 0.0)) {
    read(kProductSources);
    setIfNotPositive(data().productSize, kProductSize);
    setIfNotPositive(data().growthRate, kGrowthRate);
    setIfNotPositive(data().holdTime, crystalHoldTime(data().productSize, data().growthRate));
    if (data().solidVolumeFlow > 0.0) {
      data().liquidVolume = data().solidVolumeFlow * data().holdTime;
    }
  }
  applyLimit(kBatchLimit, data().liquidVolume, data().numberItems);
}

// kept: solids of the exits outrank a rate given on the item
void CCryObj::crys_osl() {
  read(kRateSources);
  applyLimit(kOsloLimit, data().crystalRate, data().numberItems);
}

void CCryObj::crys_mec() {
  read(kLengthSources);
  setIfNotPositive(data().length, kLength);
}

// --- Results ------------------------------------------------------------------------------------

int CCryObj::SaveParameters() {
  crys_rep();
  return 1;
}

void CCryObj::crys_rep() {
  report([this] { crys_rep_write_parameters(); });
}

void CCryObj::crys_rep_write_parameters() {
  write(kCount);
  if (itemIs({"BATCH VAC"})) {
    write(kBatchResults);
  } else if (itemIs({"MECHANICAL"})) {
    write(kMechanicalResults);
  } else {
    write(kOtherResults);
  }
}

int CCryObj::UpdateConnectivity() {
  return rewriteBothPorts("INLET", "OUTLET");
}

}  // namespace sizewright
