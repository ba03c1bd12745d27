#include "sizewright/separation/dust_collector.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "sizewright/host/text.h"
#include "sizewright/host/units.h"

namespace sizewright {

namespace {

constexpr double kInletRatio = 2.5;
constexpr double kPulseClothRatio = 10.0;
constexpr double kShakerClothRatio = 2.5;
constexpr double kFlowTolerance = 0.1;
constexpr double kGreatestClothArea = 6000.0;  // SF
constexpr double kMinutesAnHour = 60.0;

using D = DustCollectorData;

// What a liquid separator is told by, on the record and on the block.
struct LiquidRow {
  std::string_view item;
  const char* flowOfRecord;
  const char* flowOfBlock;
  const char* flowUnits;
  double flowDividedBy;                    // to CFH
  const char* diameterOfRecord = nullptr;  // null: none but the common slots
  const char* diameterOfBlock = nullptr;
  const char* lengthOfRecord = nullptr;
  const char* lengthOfBlock = nullptr;
  const char* gravityOfRecord = nullptr;
  const char* gravityOfBlock = nullptr;
  bool wholeCyclones = false;
};
constexpr auto kLiquidItems = std::to_array<LiquidRow>({
    {.item = "WATER CYCL",
     .flowOfRecord = "CpSolidFlowrate",
     .flowOfBlock = "CAPACITY",
     .flowUnits = "LB/H",
     .flowDividedBy = kSeparatorWaterDensity},
    {.item = "OIL WATER",
     .flowOfRecord = "CpLiquidFlowrate",
     .flowOfBlock = "FLOW RATE",
     .flowUnits = "CFH",
     .flowDividedBy = 1.0,
     .diameterOfRecord = "CpDiameterWidth",
     .diameterOfBlock = "DIAMETER OR WIDTH",
     .lengthOfRecord = "CpLength",
     .lengthOfBlock = "Length",
     .gravityOfRecord = "CpOilSpecificGravity",
     .gravityOfBlock = "OIL SPECIFIC GRAVITY",
     .wholeCyclones = true},
    {.item = "PULP STOCK",
     .flowOfRecord = "CpLiquidFlowrate",
     .flowOfBlock = "CAPACITY",
     .flowUnits = "CFH",
     .flowDividedBy = 1.0,
     .diameterOfRecord = "CpCycloneDiameter",
     .diameterOfBlock = "CYCLONE DIAMETER"},
});

const LiquidRow* liquidRow(std::string_view item) {
  for (const LiquidRow& row : kLiquidItems) {
    if (sameWord(item, row.item)) return &row;
  }
  return nullptr;
}

}  // namespace

double cycloneDiameter(double flow, double inletRatio, double velocity) {
  return CSizeEquip::compiler_pow_double((16.0 / inletRatio) * (flow / velocity), 0.5);
}

double cycloneFlow(double diameter, double inletRatio, double velocity) {
  return CSizeEquip::compiler_pow_double(diameter, 2.0) * inletRatio * velocity / 16.0;
}

double clothRatio(double flow, double area) {
  return flow / (area * kMinutesAnHour);
}

double clothArea(double flow, double ratio) {
  return flow / (ratio * kMinutesAnHour);
}

double oilGravity(double held, double density) {
  if (!(density > 0.0)) return held;
  const double gravity = density / kSeparatorWaterDensity;
  return gravity < 1.0 && held > 0.0 ? std::min(held, gravity) : gravity;
}

double efficiencyFraction(double efficiency) {
  return efficiency > 1.0 ? efficiency / 100.0 : efficiency;
}

int CDcObj::dstcoll() {
  if (isLiquidCategory()) {
    dc_liq_cyclone();
  } else if (itemIs({"CYCLONE", "MULT CYCLO"})) {
    dc_cyc_calc_diameter();
  } else if (itemIs({"PULSE SHKR", "CLOTH BAY"})) {
    dc_bag();
  } else if (itemIs({"ELC L VOLT", "ELC H VOLT"})) {
    dc_elec();
  } else if (!itemIs({"WASHERS"})) {
    dc_update_flows();
  }
  return 1;
}

// The user's number of identical items stands for the number of units.
void CDcObj::dc_update_items() {
  double& units = data().num_cyclones;
  if (!(data().num_items > 1.0)) return;
  if (units > 1.0) {
    tell(warnings, "Number of cyclones changed to number of identical items given by user.");
  }
  units = data().num_items;
}

void CDcObj::dc_update_flows() {
  dc_update_items();
  const double given = givenGasFlow();
  if (given > 0.0) {
    data().flow_per_unit = given;
  } else if (data().num_cyclones > 1.0) {
    data().flow_per_unit = data().total_gas_flow / data().num_cyclones;
  }
}

void CDcObj::dc_cyc_calc_diameter() {
  D& cyclone = data();
  if (!(cyclone.inlet_velocity > 0.0)) cyclone.inlet_velocity = kCycloneInletVelocity;
  if (cyclone.inlet_height > 0.0 && cyclone.inlet_width > 0.0) {
    cyclone.inlet_ratio = cyclone.inlet_height / cyclone.inlet_width;
  } else {
    setIfNotPositive(cyclone.inlet_ratio, kInletRatio);
  }
  // kept: the remark tells 150 ft/s whatever velocity is in force
  cyclone.note_text = "The diameter is sized to produce an inlet velocity\nof 150 ft/s.";
  dc_update_items();
  cyclone.flow_per_unit = cyclone.total_gas_flow / cyclone.num_cyclones;
  if (const double given = givenGasFlow(); given > 0.0) {
    const double old = cyclone.flow_per_unit;
    if (std::abs(old - given) / old > kFlowTolerance) {
      cyclone.cyclone_dia = 0.0;
      // kept: the text tells 100 ft/sec, the velocity used is `inlet_velocity`
      tell(warnings, "Cyclone diameter will be recalculated for linear velocity of 100 ft/sec.");
    }
    cyclone.flow_per_unit = given;
  }
  if (!(cyclone.cyclone_dia > 0.0)) {
    cyclone.cyclone_dia = cycloneDiameter(converted(cyclone.flow_per_unit, "CFH", "CFS"),
                                          cyclone.inlet_ratio, cyclone.inlet_velocity);
    if (cyclone.efficiency > 0.0 && cyclone.efficiency < 1.0) {
      cyclone.cyclone_dia /= cyclone.efficiency;
    }
  }
  if (itemIs({"CYCLONE"})) dc_cyc_calc_number();
}

void CDcObj::dc_cyc_calc_number() {
  D& cyclone = data();
  if (!(cyclone.flow_per_unit > 0.0)) {
    const double flow =
        cycloneFlow(cyclone.cyclone_dia, cyclone.inlet_ratio, cyclone.inlet_velocity);
    cyclone.flow_per_unit = converted(flow, "CFS", "CFH");
  }
  const double units = std::ceil(cyclone.total_gas_flow / cyclone.flow_per_unit);
  if (units - cyclone.num_cyclones > 1.0) cyclone.num_cyclones = units;
  if (cyclone.num_cyclones < 1.0) cyclone.num_cyclones = 1.0;
}

void CDcObj::dc_bag() {
  double cells = 0.0;
  readSource(cells, From::component, "CpNumberCells", nullptr);
  readSource(cells, From::component, "NUMBER OF CELLS", nullptr);
  readSource(cells, From::simObject, "NUMBER OF CELLS", nullptr);
  if (!(cells > 1.0)) cells = 1.0;
  if (!(data().num_cyclones > 1.0)) data().num_cyclones = cells;
  const double cleaned = readOr(simObject.get(), "NUMBER OF CELLS BEING CLEANED", nullptr, 0.0);
  double bagArea = firstOf("BAGHOUSE FILTER AREA/BAG", "BAGHOUSE FILTER AREA/BAG", "SF");
  readSource(bagArea, From::simObject, "AREA PER BAG", "SF");
  const double bags = firstOf("NUMBER OF BAGS/CELL", "NUMBER BAGS PER CELL", nullptr);
  const double cellArea = bagArea * (bags > 0.0 ? bags : 1.0);
  dc_bag_calc_area(cellArea * (cells - cleaned));
}

void CDcObj::dc_bag_calc_area(double netArea) {
  D& bags = data();
  bool derived = false;
  if (!(bags.air_to_cloth > 0.0)) {
    const double area = netArea > 0.0 ? netArea : bags.filter_area;
    derived = area > 0.0;
    bags.air_to_cloth = itemIs({"PULSE SHKR"}) ? kPulseClothRatio : kShakerClothRatio;
    if (derived) bags.air_to_cloth = clothRatio(bags.total_gas_flow, area);
  }
  dc_update_flows();
  if (bags.filter_area > 0.0) return;
  const bool byCells = netArea > 0.0 && bags.num_cyclones > 0.0;
  bags.filter_area =
      byCells ? netArea / bags.num_cyclones : clothArea(bags.flow_per_unit, bags.air_to_cloth);
  if (bags.filter_area > 0.0 && bags.efficiency > 0.0 && !derived) {
    bags.filter_area /= bags.efficiency;
  }
}

void CDcObj::dc_bag_calc_inj_area() {
  D& bags = data();
  setIfNotPositive(bags.air_to_cloth, kPulseClothRatio);
  bags.air_to_cloth *= kMinutesAnHour;
  dc_update_flows();
  bags.filter_area = bags.flow_per_unit / bags.air_to_cloth;
  if (bags.filter_area > kGreatestClothArea) {
    bags.num_cyclones *= std::ceil(bags.filter_area / kGreatestClothArea);
    bags.filter_area = kGreatestClothArea;
  }
}

void CDcObj::dc_elec() {
  const double given = givenGasFlow();
  if (given > 0.0) {
    data().flow_per_unit = given;
  } else if (data().num_items > 1.0) {
    data().flow_per_unit = data().total_gas_flow / data().num_items;
  }
}

double CDcObj::givenLiquidFlow() const {
  const LiquidRow* row = liquidRow(itemCode);
  if (row == nullptr) return 0.0;
  const double flow = firstOf(row->flowOfRecord, row->flowOfBlock, row->flowUnits);
  return std::max(flow / row->flowDividedBy, 0.0);
}

void CDcObj::dc_liq_cyclone() {
  D& separator = data();
  if (const LiquidRow* row = liquidRow(itemCode)) {
    const auto given = [this](const char* ofRecord, const char* ofBlock, const char* units) {
      return ofRecord != nullptr ? firstOf(ofRecord, ofBlock, units) : 0.0;
    };
    const double flow = givenLiquidFlow();
    if (flow > 0.0) separator.flow_per_unit = flow;
    setIfNotPositive(separator.cyclone_dia,
                     given(row->diameterOfRecord, row->diameterOfBlock, "FEET"));
    setIfNotPositive(separator.cyclone_length,
                     given(row->lengthOfRecord, row->lengthOfBlock, "FEET"));
    const double gravity = given(row->gravityOfRecord, row->gravityOfBlock, nullptr);
    if (gravity > 0.0) separator.oil_gravity = gravity;
    readCount(separator.num_cyclones, From::component, "CpNumberCyclonesPerManifold");
    readCount(separator.num_cyclones, From::simObject, "NO. CYCLONE/MANIFOLD");
    if (row->wholeCyclones) separator.num_cyclones = std::ceil(separator.num_cyclones);
  }
  if (!(separator.cyclone_dia > 0.0)) {
    constexpr const char* kNoDiameter = "Diameter has to be provided.";
    tell(warnings, kNoDiameter);
    showText(kNoDiameter);
  }
}

}  // namespace sizewright
