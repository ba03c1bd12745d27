#include "sizewright/separation/crusher.h"

#include <array>

#include "sizewright/host/units.h"
#include "sizewright/separation/solid_streams.h"

namespace sizewright {

namespace {

constexpr double kWorkIndex = 13.81;
constexpr double kReduction = 4.0;     // feed size over outlet size
constexpr double kLengthOfMill = 1.5;  // over its diameter

using D = CrusherData;
using enum From;

constexpr auto kPowerSources = std::to_array<SourceRow<D>>({
    {&D::driverPower, component, "CpDriverPower", "HP"},
    {&D::driverPower, simObject, "DRIVER POWER", "HP"},
    {&D::driverPower, component, "DRIVER POWER (SIM)", "HP"},
    {&D::driverPower, simObject, "DRIVER POWER (SIM)", "HP"},
});
constexpr auto kProductSource = std::to_array<SourceRow<D>>({
    {&D::productSize, simObject, ">80% OUTLET DIAMETER", "FEET"},
});

constexpr auto kResults = std::to_array<ResultRow<D>>({
    {"CpCrusherFlowrate", &D::solidFlow, When::always, Style::converted, "LB/H", "LB/H", "KG/H"},
    {"CpMantleDiameter", &D::outletDiameter, When::positive, Style::converted, "FEET", "FEET", "M"},
    {"CpProductSize", &D::productSize, When::always, Style::converted, "FEET", "FEET", "M"},
    {"CpDriverPower", &D::driverPower, When::always, Style::converted, "HP", "HP", "KW"},
});
constexpr auto kMillResults = std::to_array<ResultRow<D>>({
    {"CpInsideLength", &D::insideLength, When::always, Style::converted, "FEET", "FEET", "M"},
    {"CpDiameterInside", &D::outletDiameter, When::always, Style::converted, "FEET", "FEET", "M"},
});

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

double grindingPower(double tonsPerMinute, double workIndex, double productSize, double feedSize) {
  const auto inverseRoot = [](double size) {
    return 1.0 / CSizeEquip::compiler_pow_double(size, 0.5);
  };
  return tonsPerMinute * 1.46 * workIndex * (inverseRoot(productSize) - inverseRoot(feedSize));
}

bool CCrshObj::isMill() const {
  return itemIs({"BALL MILL", "ROD MILL"});
}

int CCrshObj::Size() {
  int result = GetStreamInfo();
  if (result != 0) result = cr_setup();
  if (result != 0) result = cr_siz();
  return result;
}

int CCrshObj::GetStreamInfo() {
  return findBothStreams("INLET", "OUTLET");
}

// --- Setup --------------------------------------------------------------------------------------

int CCrshObj::cr_setup() {
  status(35, "Obtaining process parameters. Please wait...");
  status(35, "Checking outlets...");
  status(35, "Obtained simulator data");
  status(45, "Checking output stream information. Obtaining solid mass flow.");
  double solid = 0.0;
  for (auto& [name, stream] : openStreams(exits())) {
    solid += simulatorType == kLiquorRatioSimulator
                 ? cr_stp_get_stream_solid_flow_rate_for_wingems(stream)
                 : cr_stp_get_stream_solid_flow_rate(stream);
  }
  setIfNotPositive(data().solidFlow, solid);
  status(45, "Obtaining neccessary design information.");
  cr_stp_get_block_info();
  status(45, "Obtained process information.");
  read(kProductSource);
  return 1;
}

double CCrshObj::cr_stp_get_stream_solid_flow_rate(CvdStream& stream) const {
  double flow = 0.0;
  return readSolidFlow(*this, stream, flow) ? flow : solidFlowByDifference(*this, stream);
}

double CCrshObj::cr_stp_get_stream_solid_flow_rate_for_wingems(CvdStream& stream) const {
  return solidFlowByLiquorRatio(*this, stream);
}

double CCrshObj::readOutletDiameter() const {
  double diameter = 0.0;
  const auto take = [&](From from, const char* slot) { readSource(diameter, from, slot, "FEET"); };
  if (itemIs({"CONE", "GYRATORY"})) take(From::component, "CpMantleDiameter");
  if (isMill()) {
    take(From::component, "CpDiameterInside");
    take(From::simObject, "MILL DIAMETER");
  }
  take(From::component, "OUTLET DIAMETER");
  take(From::component, "CpDiameterInside");
  return diameter;
}

void CCrshObj::cr_stp_get_block_info() {
  read(kPowerSources);
  if (!(data().outletDiameter > 0.0)) {
    const double diameter = readOutletDiameter();
    if (isMill() && !(diameter > 0.0)) {
      // kept: the two texts differ
      tell(warnings, "Mill diameter not specified.\n Some parameters may not be calculated.");
      showText("Outlet diameter not specified.\n Some parameters may not be calculated.");
    } else if (diameter >= 0.0) {
      data().outletDiameter = diameter;
    }
  }
  if (isMill() && data().outletDiameter > 0.0) {
    data().insideLength = kLengthOfMill * data().outletDiameter;
  }
}

// --- Sizing -------------------------------------------------------------------------------------

int CCrshObj::cr_siz() {
  if (data().driverPower > 0.0) return 1;
  data().flowTPH = converted(data().solidFlow, "LB/H", "TPH");
  data().flowPerMinute = data().flowTPH / 60.0;
  data().workIndex = kWorkIndex;
  if (!(data().outletDiameter > 0.0)) {
    tell(warnings, "Outlet diameter not available.");
    return 1;
  }
  data().feedDiameter = data().outletDiameter * kReduction;
  data().driverPower = grindingPower(data().flowPerMinute, data().workIndex, data().outletDiameter,
                                     data().feedDiameter);
  return 1;
}

// --- Results ------------------------------------------------------------------------------------

int CCrshObj::SaveParameters() {
  cr_rep_write_parameters();
  return 1;
}

void CCrshObj::cr_rep_write_parameters() {
  write(kResults);
  if (isMill()) write(kMillResults);
}

int CCrshObj::UpdateConnectivity() {
  return rewriteBothPorts("INLET", "OUTLET");
}

}  // namespace sizewright
