#include "sizewright/separation/screen.h"

#include <algorithm>
#include <array>

#include "sizewright/host/units.h"
#include "sizewright/separation/limits.h"
#include "sizewright/separation/solid_streams.h"

namespace sizewright {

namespace {

constexpr double kFourOverPi = 1.273239544731026;
constexpr double kOpening = 1.0;           // INCHES
constexpr double kMaterialCapacity = 3.0;  // TPH/SF
constexpr double kAreaWithoutCapacity = 1.5;
constexpr double kLeastDiameter = 18.0;     // INCHES
constexpr double kGreatestDiameter = 60.0;  // INCHES
constexpr double kNarrowUpTo = 120.0;       // SF
constexpr double kNarrow = 5.0;             // FEET
constexpr double kWide = 8.0;               // FEET
constexpr double kLeastLength = 6.0;        // FEET
constexpr double kLeastWidth = 3.0;         // FEET
constexpr double kDeckArea = 80.0;          // SF
constexpr double kLeastArea = 10.0;         // SF
constexpr int kGreatestItems = 50;
constexpr double kGreatestDecksTold = 3.0;

using D = ScreenData;
using enum From;

// kept: the divisor of the units and the area of one differ
constexpr UnitLimit kCircularLimit = {.upper = 18.0, .loweredTo = 16.0};  // SF
constexpr UnitLimit kRectangleLimit = {.upper = 192.0};                   // SF

constexpr auto kSources = std::to_array<SourceRow<D>>({
    {&D::surfaceArea, component, "CpSurfaceArea", "SF"},
    {&D::surfaceArea, simObject, "Area", "SF"},
    {&D::screenDiameter, component, "CpScreenDiameter", "INCHES"},
    {&D::screenDiameter, simObject, "Diameter", "INCHES"},
    {&D::screenLength, component, "CpLength", "FEET"},
    {&D::screenLength, simObject, "Length", "FEET"},
    {&D::screenWidth, component, "CpWidth", "FEET"},
    {&D::screenWidth, simObject, "WIDTH", "FEET"},
    {&D::solidFlow, component, "CpFlowrate", "LB/H"},
    {&D::solidFlow, simObject, "Rate", "LB/H"},
});

struct CountRow {
  double D::*field;
  From from;
  const char* slot;
};
constexpr auto kCounts = std::to_array<CountRow>({
    {&D::numberItems, component, "CpNumberItems"},
    {&D::numberItems, simObject, "CpNumberItems"},
    {&D::numberDecks, component, "CpNumberDecks"},
    {&D::numberDecks, component, "NUMBER OF DECKS"},
    {&D::numberDecks, simObject, "NUMBER OF DECKS"},
});

struct OpeningRow {
  double opening;  // INCHES
  std::string_view key;
};
constexpr auto kOpenings = std::to_array<OpeningRow>({
    {0.375, "0.375"},
    {0.5, "0.5"},
    {0.75, "0.75"},
    {0.875, "0.875"},
    {1.0, "1."},
    {1.125, "1.125"},
    {1.25, "1.25"},
    {1.5, "1.5"},
    {1.75, "1.75"},
    {2.0, "2."},
    {2.5, "2.5"},
});
constexpr std::string_view kGreatestOpening = "3.";

constexpr ResultRow<D> sized(const char* slot, double D::*field, const char* unit,
                             const char* metric) {
  return {slot, field, When::always, Style::converted, unit, unit, metric};
}
constexpr auto kItemsResult = std::to_array<ResultRow<D>>({
    {"CpNumberItems", &D::numberItems, When::always, Style::count},
});
constexpr auto kCircularResults = std::to_array<ResultRow<D>>({
    sized("CpScreenDiameter", &D::screenDiameter, "INCHES", "MM"),
});
constexpr auto kRectangleResults = std::to_array<ResultRow<D>>({
    sized("CpLength", &D::screenLength, "FEET", "MM"),
    sized("CpWidth", &D::screenWidth, "FEET", "MM"),
});
constexpr auto kAreaResult = std::to_array<ResultRow<D>>({
    sized("CpSurfaceArea", &D::surfaceArea, "SF", "M2"),
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

std::string_view screenOpeningKey(double opening) {
  const auto* const row =
      std::find_if(kOpenings.begin(), kOpenings.end(),
                   [opening](const OpeningRow& next) { return next.opening >= opening; });
  return row != kOpenings.end() ? row->key : kGreatestOpening;
}

double stackedCapacity(double capacity, double decks) {
  if (decks >= 3.0) return capacity * 2.7;
  return decks == 2.0 ? capacity * 1.9 : capacity;
}

double screenArea(double solidFlow, double capacity) {
  return capacity > 0.0 ? solidFlow / capacity : kAreaWithoutCapacity;
}

void limitCircularArea(double& area, double& units) {
  applyLimit(kCircularLimit, area, units);
}

double screenDiameter(double area) {
  const double feet = CSizeEquip::compiler_pow_double(area * kFourOverPi, 0.5);
  return std::clamp(feet * 12.0, kLeastDiameter, kGreatestDiameter);
}

void setScreenSides(double area, double& length, double& width) {
  if (length > 0.0) {
    width = area / length;
  } else if (width > 0.0) {
    length = area / width;
  } else if (area > 0.0) {
    width = area <= kNarrowUpTo ? kNarrow : kWide;
    length = area / width;
  }
  length = std::max(length, kLeastLength);
  width = std::max(width, kLeastWidth);
}

void findDecks(double& area, double& decks, double& units) {
  if (area <= kDeckArea) {
    area = std::max(area, kLeastArea);
    decks = 1.0;
    return;
  }
  if (decks <= 1.0) decks = 1.0;
  // kept: more decks than the given ones are never tried, and those only on one item
  for (int items = 1; items <= kGreatestItems; ++items) {
    units = items;
    if (units * decks * kDeckArea >= area) {
      area = units * decks * kDeckArea;
      return;
    }
    decks = 1.0;
  }
}

int CScObj::Size() {
  GetDesCriteriaInfo();
  int result = GetStreamInfo();
  if (result != 0) result = sc_setup();
  if (result != 0) result = sc_siz();
  return result;
}

void CScObj::GetDesCriteriaInfo() {
  CriterionText& material = data().feedMaterial;
  if (material.empty() &&
      GetValueFromDesCriteria("Vibrating screen feed material", material) == 0) {
    material = "Sand and Gravel";
  }
  double& opening = data().screenOpening;
  if (opening > 0.0) return;
  GetValueFromDesCriteria("Screen opening size", opening, "INCHES");
  setIfNotPositive(opening, kOpening);
}

int CScObj::GetStreamInfo() {
  return findBothStreams("INLET", "SOLIDS OUTLET");
}

// --- Setup --------------------------------------------------------------------------------------

int CScObj::sc_setup() {
  sc_setup_get_solid_flow();
  sc_setup_block_info();
  status(45, "Obtained simulator data");
  status(45, "Performing design calculations");
  if (!(data().solidFlow > 0.0)) {
    data().solidFlow = 0.0;  // a negative one would give a negative area
    fail("No inlet solid flow specified.");
  }
  return 1;
}

void CScObj::sc_setup_get_solid_flow() {
  status(35, "Obtaining process parameters. Please wait...");
  status(40, "Obtained inlet stream information.");
  status(40, "Checking input information. Obtaining solid mass flow.");
  double flow = 0.0;
  for (auto& [name, stream] : openStreams(inlets())) {
    flow += simulatorType == kLiquorRatioSimulator
                ? sc_stp_get_stream_solid_flow_rate_for_wingems(stream)
                : sc_stp_get_stream_solid_flow_rate_for_orlan(stream);
  }
  setIfNotPositive(data().solidFlow, flow);
}

double CScObj::sc_stp_get_stream_solid_flow_rate_for_orlan(CvdStream& stream) const {
  double flow = 0.0;
  return readSolidFlow(*this, stream, flow) ? flow : solidFlowByFraction(*this, stream);
}

double CScObj::sc_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream) const {
  return solidFlowByLiquorRatio(*this, stream);
}

void CScObj::sc_setup_block_info() {
  for (const auto& [field, from, slot] : kCounts) readCount(data().*field, from, slot);
  read(kSources);
  sc_setup_opening();
  sc_setup_material_capacity();
}

void CScObj::sc_setup_opening() {
  double& opening = data().screenOpening;
  if (opening != kOpening || simulatorType != kLiquorRatioSimulator) return;
  // kept: 1 stands in before the reads, so the block is only asked when the record holds a number
  // that is not positive
  double given = kOpening;
  lib_get_and_adjust_api(component.get(), "Screen opening size", &given, "INCHES");
  if (!(given > 0.0)) {
    lib_get_and_adjust_api(simObject.get(), "Screen opening size", &given, "INCHES");
  }
  if (given > 0.0) opening = given;
}

void CScObj::sc_setup_material_capacity() {
  double& capacity = data().materialCapacity;
  if (capacity > 0.0) return;
  if (CvdSysODB(projectId, pxpropFile, 0).Exists() != 0) {
    CvdSysGenericObject material(projectId, pxpropFile, data().feedMaterial);
    capacity = readOr(&material, screenOpeningKey(data().screenOpening), nullptr, 0.0);
  }
  setIfNotPositive(capacity, kMaterialCapacity);
}

// --- Sizing -------------------------------------------------------------------------------------

int CScObj::sc_siz() {
  status(67, "Calculating screen area.");
  data().solidFlowTPH = converted(data().solidFlow, "LB/H", "TPH");
  sc_siz_area();
  if (data().surfaceArea > 0.0) data().surfaceArea *= data().numberItems;
  if (itemIs({"CIRCULAR"})) {
    sc_calculate_diameter();
  } else if (itemIs({"RECTANGLE"})) {
    sc_calculate_length_width();
  } else {
    sc_calculate_area_and_no_of_decks();
  }
  status(88, "Completed sizing calculations.");
  return 1;
}

void CScObj::sc_siz_area() {
  if (data().surfaceArea > 0.0) return;
  const double capacity = data().materialCapacity;
  setIfNotPositive(data().deckCapacity,
                   isShaped() ? stackedCapacity(capacity, data().numberDecks) : capacity);
  data().surfaceArea = screenArea(data().solidFlowTPH, data().deckCapacity);
}

void CScObj::sc_calculate_diameter() {
  if (data().screenDiameter > 0.0) return;
  limitCircularArea(data().surfaceArea, data().numberItems);
  data().screenDiameter = screenDiameter(data().surfaceArea);
}

void CScObj::sc_calculate_length_width() {
  applyLimit(kRectangleLimit, data().surfaceArea, data().numberItems);
  setScreenSides(data().surfaceArea, data().screenLength, data().screenWidth);
}

void CScObj::sc_calculate_area_and_no_of_decks() {
  findDecks(data().surfaceArea, data().numberDecks, data().numberItems);
}

// --- Results ------------------------------------------------------------------------------------

int CScObj::SaveParameters() {
  status(89, "Writing results.");
  sc_rep_write_parameters();
  status(95, "Completed sizing of VPE component");
  return 1;
}

void CScObj::sc_rep_write_parameters() {
  write(kItemsResult);
  if (itemIs({"CIRCULAR"})) write(kCircularResults);
  if (itemIs({"RECTANGLE"})) write(kRectangleResults);
  const double decks = data().numberDecks;
  writeResult("CpNumberDecks", isShaped() ? std::min(decks, kGreatestDecksTold) : decks,
              When::always, Style::count, nullptr, nullptr, nullptr);
  write(kAreaResult);
}

int CScObj::UpdateConnectivity() {
  return rewriteBothPorts("INLET", "OUTLET");  // kept: exits are looked for as "SOLIDS OUTLET"
}

}  // namespace sizewright
