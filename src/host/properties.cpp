#include "sizewright/host/properties.h"

#include <cmath>

#include "sizewright/host/host.h"
#include "sizewright/host/objects.h"
#include "sizewright/host/text.h"

namespace sizewright {

using Phase = PropertyService::Phase;

double PropertyService::heatCapacity(std::string_view, double, double, Phase) const {
  return 0.0;
}
double PropertyService::density(std::string_view, double, double, Phase) const {
  return 0.0;
}
double PropertyService::viscosity(std::string_view, double, double, Phase) const {
  return 0.0;
}
double PropertyService::conductivity(std::string_view, double, double, Phase) const {
  return 0.0;
}
double PropertyService::compressibility(std::string_view, double, double, Phase) const {
  return 0.0;
}
double PropertyService::heatCapacityRatio(std::string_view, double, double) const {
  return 0.0;
}
double PropertyService::latentHeat(std::string_view, double, double) const {
  return 0.0;
}
double PropertyService::boilingPoint(std::string_view, double) const {
  return 0.0;
}
double PropertyService::molecularWeight(std::string_view) const {
  return 0.0;
}
bool PropertyService::inPhase(std::string_view, Phase, FluidName&) const {
  return false;
}
bool PropertyService::completeStream(ObjectId) const {
  return false;
}
double PropertyService::chart(std::string_view, std::string_view, double, double) const {
  return 0.0;
}

namespace {

constexpr double kSaturationBand = 0.5;  // DEG K

const PropertyService& service() {
  return currentHost().properties();
}

Phase phaseOf(std::string_view word) {
  return sameWord(word, "Liquid") ? Phase::liquid : Phase::gas;
}

constexpr std::string_view wordOf(bool gas) {
  return gas ? "Gas" : "Liquid";
}

}  // namespace

double lib_cp_for_phase(std::string_view fluid, double temperature, double pressure,
                        std::string_view phase) {
  return service().heatCapacity(fluid, temperature, pressure, phaseOf(phase));
}
double lib_den_for_phase(std::string_view fluid, double temperature, double pressure,
                         std::string_view phase) {
  return service().density(fluid, temperature, pressure, phaseOf(phase));
}
double lib_vis_for_phase(std::string_view fluid, double temperature, double pressure,
                         std::string_view phase) {
  return service().viscosity(fluid, temperature, pressure, phaseOf(phase));
}
double lib_cond_for_phase(std::string_view fluid, double temperature, double pressure,
                          std::string_view phase) {
  return service().conductivity(fluid, temperature, pressure, phaseOf(phase));
}
double lib_z_for_phase(std::string_view fluid, double temperature, double pressure,
                       std::string_view phase) {
  return service().compressibility(fluid, temperature, pressure, phaseOf(phase));
}
double lib_sp_heat_ratio(std::string_view fluid, double temperature, double pressure) {
  return service().heatCapacityRatio(fluid, temperature, pressure);
}
double lib_lat(std::string_view fluid, double temperature, double pressure) {
  return service().latentHeat(fluid, temperature, pressure);
}
double lib_phas(std::string_view fluid, double /*temperature*/, double pressure) {
  return service().boilingPoint(fluid, pressure);
}
double lib_mw(std::string_view fluid) {
  return service().molecularWeight(fluid);
}
int lib_math_init() {
  return 1;
}

int lib_util_is_sat(std::string_view fluid, double temperature, double pressure, int* saturated) {
  const double boiling = service().boilingPoint(fluid, pressure);
  if (!(boiling > 0.0)) return 0;
  *saturated = std::fabs(temperature - boiling) <= kSaturationBand ? 1 : 0;
  return 1;
}

int lib_util_get_in_out_phase(std::string_view fluid, double inletTemperature, double inletPressure,
                              double exitTemperature, double exitPressure, FluidName& inletPhase,
                              FluidName& exitPhase) {
  const double inletBoiling = service().boilingPoint(fluid, inletPressure);
  const double exitBoiling = service().boilingPoint(fluid, exitPressure);
  if (!(inletBoiling > 0.0) || !(exitBoiling > 0.0)) return 0;
  inletPhase = wordOf(inletTemperature > inletBoiling);
  exitPhase = wordOf(exitTemperature > exitBoiling);
  return 1;
}

int lib_util_get_sat_out_phase(std::string_view fluid, double inletTemperature,
                               double /*inletPressure*/, double exitTemperature,
                               double exitPressure, std::string_view inletPhase,
                               FluidName& exitPhase) {
  if (std::fabs(inletTemperature - exitTemperature) <= kSaturationBand) {
    exitPhase = wordOf(phaseOf(inletPhase) == Phase::liquid);
    return 1;
  }
  const double boiling = service().boilingPoint(fluid, exitPressure);
  if (!(boiling > 0.0)) return 0;
  exitPhase = wordOf(exitTemperature > boiling);
  return 1;
}

int st_prop_obtain_corresponding_gas(std::string_view fluid, FluidName& name) {
  return service().inPhase(fluid, Phase::gas, name) ? 1 : 0;
}

int st_prop_obtain_corresponding_liquid(std::string_view fluid, FluidName& name) {
  return service().inPhase(fluid, Phase::liquid, name) ? 1 : 0;
}

int st_prop_get_phase(CvdStream& stream, FluidName& phase) {
  const auto flows = [&stream](const char* slot) {
    CvdSlot value;
    return stream.GetValueWithInheritance(slot, value, nullptr) != 0 && value.Number() > 0.0;
  };
  const bool vapor = flows("VAPOR MASS FLOW");
  const bool liquid = flows("LIQUID MASS FLOW");
  if (!vapor && !liquid) return 0;
  phase = vapor && liquid ? std::string_view("Mixed") : wordOf(vapor);
  return 1;
}

int st_prop_get_all_prop_api(CvdStream& stream) {
  return service().completeStream(stream.Id()) ? 1 : 0;
}

double poly_get_from_objects(std::string_view object, std::string_view variable, double x,
                             double y) {
  return service().chart(object, variable, x, y);
}

}  // namespace sizewright
