#include "sizewright/separation/dryer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "sizewright/separation/limits.h"
#include "sizewright/separation/solid_streams.h"

namespace sizewright {

namespace {

constexpr double kPi = 3.1415926536;
constexpr double kFourOverPi = 1.273239544731026;
constexpr double kAirDensity = 0.0808;           // PCF
constexpr double kNegligibleSolidFlow = 0.0001;  // LB/H
constexpr double kPanBedFactor = 2.25;
constexpr double kTrayBedFactor = 0.167;
constexpr double kDrumBedFactor = 0.0208;
constexpr double kHoldFactor = 0.75;
constexpr double kFillPercent = 25.0;
constexpr double kLengthToDiameter = 4.0;
constexpr double kRotaryDiameter = 0.33;  // FEET

using D = DryerData;
using enum From;

constexpr auto kEvaporationSources = std::to_array<SourceRow<D>>({
    {&D::evaporationRate, component, "CpEvaporationRate", "LB/H"},
    {&D::evaporationRate, projectObject, "CpEvaporationRate", "LB/H"},
    {&D::evaporationRate, simObject, "Evaporation Rate", "LB/H"},
});

constexpr UnitLimit onlySplitFromOne(double lower, double upper) {
  return {.lower = lower, .upper = upper, .split = SplitWhen::oneUnit};
}
// A spray dryer keeps the rate of all units together.
constexpr UnitLimit kSprayLimit = {
    .lower = 700.0, .upper = 9000.0, .keepsLoad = true, .split = SplitWhen::oneUnit};  // LB/H
constexpr UnitLimit kVacuumLimit = onlySplitFromOne(8.0, 400.0);                       // CF
constexpr UnitLimit kPanLimit = onlySplitFromOne(12.0, 180.0);                         // SF
constexpr UnitLimit kTrayLimit = onlySplitFromOne(40.0, 200.0);
constexpr UnitLimit kSingleDrumLimit = onlySplitFromOne(10.0, 200.0);
constexpr UnitLimit kDrumLimit = onlySplitFromOne(25.0, 400.0);
constexpr UnitLimit kRotaryLimit = onlySplitFromOne(100.0, 2000.0);

constexpr auto kExitPorts = std::to_array<PortByFlow>({
    {"SOLID MASS FLOW", "SOLIDS OUTLET"},
    {"VAPOR MASS FLOW", "TUBE OUTLET"},
});

constexpr ResultRow<D> area(const char* slot) {
  return {slot, &D::surfaceArea, When::always, Style::converted, "SF", "SF", "M2"};
}
constexpr ResultRow<D> massFlow(const char* slot, double D::*field) {
  return {slot, field, When::always, Style::converted, "LB/H", "LB/H", "KG/H"};
}
constexpr auto kSprayResults = std::to_array<ResultRow<D>>({
    massFlow("CpEvaporationRate", &D::evaporationRate),
    massFlow("CpFlowrate", &D::dryVaporFlow),
});
constexpr auto kAirResults = std::to_array<ResultRow<D>>({
    {"CpGasFlowrate", &D::gasFlowrate, When::always, Style::converted, "CFH", "CFH", "M3/H"},
});
constexpr auto kVacuumResults = std::to_array<ResultRow<D>>({
    {"CpDryerCapacity", &D::capacity, When::always, Style::converted, "CF", "CF", "M3"},
});
constexpr auto kTrayStackResults = std::to_array<ResultRow<D>>({area("CpTraySurfaceArea")});
constexpr auto kDrumResults = std::to_array<ResultRow<D>>({area("CpTrayArea")});
constexpr auto kShellResults = std::to_array<ResultRow<D>>({area("CpSurfaceArea")});
constexpr auto kOtherResults = std::to_array<ResultRow<D>>({
    area("CpTrayArea"),
    massFlow("CpFlowrate", &D::dryVaporFlow),
});

// The first row that applies decides; an empty text applies to every category or item.
struct ReportRow {
  std::string_view category;
  std::string_view item;
  std::span<const ResultRow<D>> results;
};
constexpr auto kReports = std::to_array<ReportRow>({
    {"", "SPRAY", kSprayResults},
    {"EAD", "", kAirResults},
    {"", "JAC VACUUM", kVacuumResults},
    {"", "VACUUM", kVacuumResults},
    {"ETDS", "", kTrayStackResults},
    {"EDD", "", kDrumResults},
    {"ERD", "", kShellResults},
    {"ED", "PAN", kShellResults},
    {"", "", kOtherResults},
});

constexpr auto kCountResult = std::to_array<ResultRow<D>>({
    {"CpNumberItems", &D::numberItems, When::aboveOne, Style::count},
});

double squareRoot(double value) {
  return CSizeEquip::compiler_pow_double(value, 0.5);
}

}  // namespace

double dryerCapacity(double solidVolumeFlow, double holdFactor, double fillPercent) {
  return solidVolumeFlow * holdFactor * (100.0 / fillPercent);
}

double panDiameter(double solidVolumeFlow, double bedFactor) {
  return squareRoot(solidVolumeFlow * kFourOverPi * (1 / bedFactor));
}

double trayLength(double solidVolumeFlow, double bedFactor) {
  return squareRoot(solidVolumeFlow / bedFactor);
}

double shellArea(double diameter, double length) {
  return diameter * kPi * length;
}

int CDryObj::Size() {
  GetLastInfo();
  int result = GetStreamInfo();
  if (result != 0) result = dry_stp();
  if (result != 0) result = dry_siz();
  return result;
}

int CDryObj::GetLastInfo() {
  if (itemIs({"SPRAY"})) {
    data().evaporationRate = 0.0;
    read(kEvaporationSources);
  }
  return 1;
}

int CDryObj::GetStreamInfo() {
  checkInlets();
  findStreams(inlets(), kInlet, "Inlet stream", "INLET");
  checkExits();
  findExits(exits(), {"SOLIDS OUTLET", "TUBE OUTLET", "OUTLET"});
  return hasBothStreams();
}

// --- Setup --------------------------------------------------------------------------------------

int CDryObj::dry_stp() {
  dry_stp_get_inlets();
  dry_stp_get_exits();
  const double evaporated = data().inletLiquidFlow - data().exitLiquidFlow;
  setIfNotPositive(data().productFlow, data().solidFlow);
  setIfNotPositive(data().evaporationRate, evaporated > 0.0 ? evaporated : 0.0);
  dry_stp_sizing();
  return 1;
}

void CDryObj::dry_stp_get_inlets() {
  double liquid = 0.0;
  for (auto& [name, stream] : openStreams(inlets())) {
    liquid += readOr(&stream, "LIQUID MASS FLOW", "LB/H", 0.0);
  }
  setIfNotPositive(data().inletLiquidFlow, liquid);
}

void CDryObj::dry_stp_get_exits() {
  double liquid = 0.0;
  double solid = 0.0;
  double solidVolumeSum = 0.0;
  double dryVapor = 0.0;
  for (auto& [name, stream] : openStreams(exits())) {
    double flow = 0.0;
    double volume = 0.0;
    liquid += readOr(&stream, "LIQUID MASS FLOW", "LB/H", 0.0);
    if (simulatorType == kLiquorRatioSimulator) {
      dry_stp_get_stream_solid_flow_rate_for_wingems(stream, flow, volume);
    } else {
      dry_stp_get_stream_solid_flow_info(stream, flow, volume);
    }
    solid += flow;
    solidVolumeSum += volume;
    const double vapor = readOr(&stream, "VAPOR MASS FLOW", "LB/H", 0.0);
    if (!(flow > 0.0) && vapor > 0.0) dryVapor += vapor;
  }
  setIfNotPositive(data().exitLiquidFlow, liquid);
  setIfNotPositive(data().solidFlow, solid);
  setIfNotPositive(data().solidVolumeFlow, solidVolumeSum);
  setIfNotPositive(data().dryVaporFlow, dryVapor);
}

void CDryObj::dry_stp_get_stream_solid_flow_info(CvdStream& stream, double& flow,
                                                 double& volume) const {
  if (!readSolidFlow(*this, stream, flow)) {
    flow = solidFlowByDifference(*this, stream, kNegligibleSolidFlow);
  }
  volume = solidVolume(flow, readSolidDensity(*this, stream));
}

void CDryObj::dry_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream, double& flow,
                                                             double& volume) const {
  flow = solidFlowByLiquorRatio(*this, stream);
  volume = solidVolume(flow, kSolidDensity);
}

// What the project or the block tells of the trays stands in for what was there, absent or not.
void CDryObj::dry_stp_sizing() {
  if (projectObject == nullptr) return;
  const auto given = [this](const char* ofProject, const char* ofBlock, const char* units) {
    return readOr(projectObject.get(), ofProject, units,
                  readOr(simObject.get(), ofBlock, units, 0.0));
  };
  data().surfaceArea = given("CpTrayArea", "Tray Area", "SF");
  data().length = given("Tray Length", "Tray Length", "FEET");
}

// --- Sizing -------------------------------------------------------------------------------------

int CDryObj::dry_siz() {
  data().numberItems = std::max(data().numberItems, 1.0);
  if (categoryIs({"EAD"})) {
    data().gasFlowrate = data().airMassFlow / kAirDensity;  // kept: no stream fills the air flow
  } else if (itemIs({"SPRAY"})) {
    const bool one = data().numberItems == 1.0;
    if (one) applyLimit(kSprayLimit, data().evaporationRate, data().numberItems);
  } else if (itemIs({"JAC VACUUM", "VACUUM"})) {
    dry_cal_capacity();
  } else {
    dry_cal_surface_area();
  }
  return 1;
}

void CDryObj::setCapacityFactors() {
  setIfNotPositive(data().holdFactor, kHoldFactor);
  setIfNotPositive(data().fillPercent, kFillPercent);
}

void CDryObj::dry_cal_capacity() {
  setCapacityFactors();
  // kept: a capacity that is there is worked out anew, and split no more once there are several
  data().capacity = dryerCapacity(data().solidVolumeFlow, data().holdFactor, data().fillPercent);
  applyLimit(kVacuumLimit, data().capacity, data().numberItems);
}

void CDryObj::dry_cal_surface_area() {
  const bool trays = categoryIs({"ED", "ETDS"});
  if (trays && itemIs({"PAN"})) {
    dry_cal_pan();
  } else if (trays) {
    dry_cal_tray();
  } else if (categoryIs({"EDD"})) {
    dry_cal_drum();
  } else {
    dry_cal_rotary();
  }
}

// A given area of a pan or tray dryer is neither raised nor split.

void CDryObj::dry_cal_pan() {
  setIfNotPositive(data().bedFactor, kPanBedFactor);
  setIfNotPositive(data().diameter, panDiameter(data().solidVolumeFlow, data().bedFactor));
  if (data().surfaceArea > 0.0) return;
  data().surfaceArea = shellArea(data().diameter, data().bedFactor);
  applyLimit(kPanLimit, data().surfaceArea, data().numberItems);
}

void CDryObj::dry_cal_tray() {
  setIfNotPositive(data().bedFactor, kTrayBedFactor);
  setIfNotPositive(data().length, trayLength(data().solidVolumeFlow, data().bedFactor));
  if (data().surfaceArea > 0.0) return;
  data().surfaceArea = compiler_pow_double(data().length, 2.0);
  applyLimit(kTrayLimit, data().surfaceArea, data().numberItems);
}

void CDryObj::dry_cal_drum() {
  setIfNotPositive(data().bedFactor, kDrumBedFactor);
  setIfNotPositive(data().surfaceArea, data().solidVolumeFlow / data().bedFactor);
  const bool single = itemIs({"SINGLE ATM", "SINGLE VAC"});
  applyLimit(single ? kSingleDrumLimit : kDrumLimit, data().surfaceArea, data().numberItems);
}

void CDryObj::dry_cal_rotary() {
  setCapacityFactors();
  setIfNotPositive(data().capacity,
                   dryerCapacity(data().solidVolumeFlow, data().holdFactor, data().fillPercent));
  setIfNotPositive(data().lengthToDiameter, kLengthToDiameter);
  setIfNotPositive(data().diameter, kRotaryDiameter);
  data().length = data().lengthToDiameter * data().diameter;
  data().surfaceArea = shellArea(data().diameter, data().length);
  if (itemIs({"DIRECT", "INDIRECT"})) {
    applyLimit(kRotaryLimit, data().surfaceArea, data().numberItems);
  }
}

// --- Results ------------------------------------------------------------------------------------

int CDryObj::SaveParameters() {
  dry_rep();
  return 1;
}

void CDryObj::dry_rep() {
  report([this] { dry_rep_write_parameters(); });
}

void CDryObj::dry_rep_write_parameters() {
  const auto applies = [this](const ReportRow& row) {
    return (row.category.empty() || categoryIs({row.category})) &&
           (row.item.empty() || itemIs({row.item}));
  };
  write(std::find_if(kReports.begin(), kReports.end(), applies)->results);
  write(kCountResult);
}

int CDryObj::UpdateConnectivity() {
  rewritePorts(kInlet, inlets(), "INLET", "_in_");
  rewriteExitPorts(exits(), kExitPorts);
  return 1;
}

}  // namespace sizewright
