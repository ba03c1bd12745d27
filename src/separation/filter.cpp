#include "sizewright/separation/filter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "sizewright/host/text.h"
#include "sizewright/host/units.h"
#include "sizewright/separation/limits.h"

namespace sizewright {

namespace {

constexpr double kPi = 3.1415926536;
constexpr double kQuarterPi = 0.7853981634;
constexpr double kCakeThickness = 0.0833;  // FEET
constexpr double kSameArea = 0.1;          // SF

constexpr UnitLimit kCartridgeLimit = {.lower = 241.0, .raisedTo = 241.1, .upper = 9624.0};  // CFH
constexpr UnitLimit kPlateFrameLimit = {.lower = 10.0, .upper = 50.0};

struct AreaRow {
  std::string_view item;
  UnitLimit limit;             // SF
  bool unlessOfBlock = false;  // an area that the simulator block tells is left alone
};
constexpr UnitLimit kRotaryLimit = {.lower = 100.0, .upper = 2000.0, .splitAtUpper = true};
constexpr auto kAreas = std::to_array<AreaRow>({
    {"LEAF DRY", {.lower = 50.0, .upper = 600.0}},
    {"LEAF WET", {.lower = 50.0, .upper = 600.0}},
    {"ROTY DISK", kRotaryLimit, true},
    {"ROTY DRUM", kRotaryLimit, true},
    {"SEWAGE", {.lower = 100.0, .upper = 600.0}},
    {"SPARKLER", {.lower = 8.0, .upper = 110.0}},
});

using D = FilterData;

constexpr ResultRow<D> sized(const char* slot, double D::*field, const char* internal,
                             const char* customary, const char* metric) {
  return {slot, field, When::positive, Style::converted, internal, customary, metric};
}
constexpr auto kFlowResults = std::to_array<ResultRow<D>>({
    sized("CpFlowrate", &D::solid_mass_flow, "LB/H", "LB/H", "KG/H"),
    sized("CpCentrifugeCapacity", &D::basket_capacity, "CF", "CF", "M3"),
    sized("CpDriverPower", &D::driver_power, "HP", "HP", "KW"),
});
constexpr auto kSizeResults = std::to_array<ResultRow<D>>({
    sized("CpSurfaceArea", &D::filter_area, "SF", "SF", "M2"),
    {"CpNumberItems", &D::num_units, When::aboveOne, Style::count},
});

constexpr auto kExitPorts = std::to_array<PortByFlow>({{"SOLID MASS FLOW", "SOLIDS OUTLET"}});

}  // namespace

double plateFrameVolume(double solidFlow) {
  return solidFlow * 0.25;
}

double plateFrameVolume(double diameter, double length) {
  const double inner = diameter - 0.06;
  return length * kQuarterPi * (diameter * diameter - inner * inner);
}

double cakeArea(double solidVolumeFlow, double cakeThickness) {
  return (solidVolumeFlow / 0.033) * cakeThickness;
}

double drumArea(double diameter, double length) {
  return diameter * kPi * length;
}

void limitFilterArea(std::string_view item, double blockArea, double& area, double& units) {
  for (const AreaRow& row : kAreas) {
    if (!sameWord(item, row.item)) continue;
    const bool ofBlock = !(std::abs(blockArea - area) > kSameArea);
    if (!row.unlessOfBlock || !ofBlock) applyLimit(row.limit, area, units);
    return;
  }
}

int CFltObj::Size() {
  int result = GetStreamInfo();
  if (result != 0) result = flt_set();
  if (result != 0) result = flt_siz();
  return result;
}

int CFltObj::flt_siz() {
  status_write(67, 3, "Sizing one unit.");
  if (!(data().num_units > 1.0)) data().num_units = 1.0;
  if (isCentrifuge()) {
    flt_cent_siz();
  } else {
    flt_calculate_area_or_volume();
  }
  status_write(88, 3, "Completed sizing calculations.");
  return 1;
}

void CFltObj::flt_calculate_area_or_volume() {
  FilterData& filter = data();
  if (itemIs({"CARTRIDGE"})) {
    applyLimit(kCartridgeLimit, filter.liquid_flow, filter.num_units);
    return;
  }
  if (itemIs({"TUBULAR"}) && filter.tube_flow > 0.0) filter.liquid_flow = filter.tube_flow;
  if (itemIs({"PLATE FRAM"})) {
    const bool sized = filter.flt_diameter > 0.0 && filter.flt_length > 0.0;
    filter.filter_volume = sized ? plateFrameVolume(filter.flt_diameter, filter.flt_length)
                                 : plateFrameVolume(filter.solid_mass_flow);
    applyLimit(kPlateFrameLimit, filter.filter_volume, filter.num_units);
  }
  flt_calculate_area();
  const double blockArea = readOr(simObject.get(), "FILTER AREA", "SF", 0.0);
  limitFilterArea(itemCode, blockArea, filter.filter_area, filter.num_units);
}

void CFltObj::flt_calculate_area() {
  FilterData& filter = data();
  if (filter.flt_diameter > 0.0 && filter.flt_length > 0.0) {
    const double diameter = converted(filter.flt_diameter, "INCHES", "FEET");
    const double length = converted(filter.flt_length, "INCHES", "FEET");
    setIfNotPositive(filter.filter_area, drumArea(diameter, length));
    return;
  }
  setIfNotPositive(filter.cake_thickness, kCakeThickness);
  setIfNotPositive(filter.filter_area, cakeArea(filter.solid_vol_flow, filter.cake_thickness));
}

// --- Results ------------------------------------------------------------------------------------

int CFltObj::SaveParameters() {
  flt_rep();
  return 1;
}

void CFltObj::flt_rep() {
  report([this] { flt_rep_write_parameters(); });
}

void CFltObj::flt_rep_write_parameters() {
  write(kFlowResults);
  if (isCentrifuge()) flt_rep_write_centrifuge();
  writeResult("CpLiquidFlowrate", data().liquid_flow, When::positive, Style::converted,
              liquidFlowUnit(), "CFH", "M3/H");
  write(kSizeResults);
}

void CFltObj::flt_rep_write_centrifuge() {
  const auto writeSize = [this](const char* slot, double size, const char* internal,
                                const char* customary, const char* metric) {
    if (slot == nullptr) return;
    writeResult(slot, size, When::positive, Style::converted, internal, customary, metric);
  };
  const CentrifugeSlots slots = centrifugeSlots(itemCode);
  writeSize(slots.diameter, data().flt_diameter, "INCHES", "INCHES", "MM");
  writeSize(slots.length, data().flt_length, "INCHES", "INCHES", "MM");
  writeSize(slots.flow, data().liquid_flow, liquidFlowUnit(), "GPM", "L/S");
}

const char* CFltObj::liquidFlowUnit() const {
  return values().liquidFlowInGpm ? "GPM" : "CFH";
}

int CFltObj::UpdateConnectivity() {
  rewritePorts(kInlet, inlets(), "INLET", "_in_");
  rewriteExitPorts(exits(), kExitPorts);
  return 1;
}

}  // namespace sizewright
