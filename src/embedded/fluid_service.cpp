#include "sizewright/embedded/fluid_service.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "sizewright/embedded/charts.h"
#include "sizewright/embedded/property_methods.h"
#include "sizewright/host/host.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

using Phase = PropertyService::Phase;

bool isUsable(double argument) {
  return std::isfinite(argument) && argument >= 0.0;
}
bool isAboveZero(double argument) {
  return std::isfinite(argument) && argument > 0.0;
}

double answer(double value) {
  return isAboveZero(value) ? value : 0.0;
}
double answer(const std::optional<double>& value) {
  return answer(value.value_or(0.0));
}

const std::optional<Fit>& ofPhase(const Fluid& fluid, std::optional<Fit> Fluid::*liquid,
                                  std::optional<Fit> Fluid::*gas, Phase phase) {
  return phase == Phase::liquid ? fluid.*liquid : fluid.*gas;
}

// The temperature held between the ends of a fit.
double heldTemperature(const Fit& fit, double temperature) {
  if (!fit.validTemperatures) return temperature;
  const auto [low, high] = std::minmax((*fit.validTemperatures)[0], (*fit.validTemperatures)[1]);
  return std::clamp(temperature, low, high);
}

double line(const std::optional<Fit>& fit, double temperature) {
  if (!fit || !isAboveZero(temperature)) return 0.0;
  return answer(fit->a + fit->b * heldTemperature(*fit, temperature));
}

// --- Constants of a class, given or worked out --------------------------------------------------

// A critical temperature that can be used with the boiling point.
bool hasCriticalTemperature(const Fluid& fluid) {
  return isAboveZero(fluid.criticalTemperature.value_or(0.0)) &&
         *fluid.criticalTemperature > fluid.boilingPoint.value_or(0.0);
}

bool hasCriticalPoint(const Fluid& fluid) {
  return hasCriticalTemperature(fluid) && isAboveZero(fluid.criticalPressure.value_or(0.0));
}

std::optional<double> acentricFactor(const Fluid& fluid) {
  if (fluid.acentricFactor) return fluid.acentricFactor;
  if (!fluid.boilingPoint || !hasCriticalPoint(fluid)) return std::nullopt;
  return acentricFactorOf(*fluid.boilingPoint, *fluid.criticalTemperature, *fluid.criticalPressure);
}

std::optional<VaporPressureCurve> curveOf(const Fluid& fluid) {
  if (!fluid.boilingPoint || !hasCriticalPoint(fluid)) return std::nullopt;
  return vaporPressureCurve(*fluid.boilingPoint, *fluid.criticalTemperature,
                            *fluid.criticalPressure, fluid.acentricFactor);
}

// --- Properties of a class ----------------------------------------------------------------------

double gasCompressibilityOf(const Fluid& fluid, double temperature, double pressure) {
  const std::optional<double> acentric = acentricFactor(fluid);
  if (!acentric || !hasCriticalPoint(fluid)) return 0.0;
  if (temperature < *fluid.criticalTemperature) {
    const std::optional<VaporPressureCurve> curve = curveOf(fluid);
    if (curve) pressure = std::min(pressure, vaporPressure(*curve, temperature));
  }
  return gasCompressibility(temperature / *fluid.criticalTemperature,
                            pressure / *fluid.criticalPressure, *acentric);
}

double liquidDensityOf(const Fluid& fluid, double temperature) {
  const double given = answer(fluid.liquidDensity);
  const std::optional<double> acentric = acentricFactor(fluid);
  if (!fluid.liquidDensityTemperature || !acentric || !hasCriticalTemperature(fluid)) return given;
  return liquidDensityAt(temperature, given, *fluid.liquidDensityTemperature,
                         *fluid.criticalTemperature, *acentric);
}

double liquidCompressibilityOf(const Fluid& fluid, double temperature, double pressure) {
  const double density = liquidDensityOf(fluid, temperature);
  if (!fluid.molecularWeight || !(density > 0.0)) return 0.0;
  return answer(pressure * *fluid.molecularWeight / (density * kGasConstantVolume * temperature));
}

double compressibilityOf(const Fluid& fluid, double temperature, double pressure, Phase phase) {
  if (fluid.z) return answer(fluid.z);
  if (!isAboveZero(temperature) || !isUsable(pressure)) return 0.0;
  return phase == Phase::liquid ? liquidCompressibilityOf(fluid, temperature, pressure)
                                : gasCompressibilityOf(fluid, temperature, pressure);
}

double boilingPointOf(const Fluid& fluid, double pressure) {
  if (!fluid.boilingPoint) return 0.0;
  if (!hasCriticalTemperature(fluid)) return answer(fluid.boilingPoint);
  if (!isAboveZero(pressure)) return 0.0;
  if (const auto curve = curveOf(fluid)) return boilingTemperature(*curve, pressure);
  if (!fluid.latentHeat || !fluid.molecularWeight) return answer(fluid.boilingPoint);
  // 1 BTU/LB is 1/1.8 CAL/G.
  const double boiling = boilingTemperature(
      *fluid.boilingPoint, *fluid.latentHeat / 1.8 * *fluid.molecularWeight, pressure);
  return boiling > 0.0 ? std::min(boiling, *fluid.criticalTemperature) : *fluid.criticalTemperature;
}

// --- Classes that are one fluid in two phases ---------------------------------------------------

struct PairRow {
  std::string_view gas;
  std::string_view liquid;
};

constexpr auto kPairs = std::to_array<PairRow>({
    {"Steam", "Water"},
    {"Gas", "Liquid"},
    {"Hydrocarbon Gas", "Light Hydrocarbon Liquid"},
    {"Halogenated Gas", "Halogenated Liquid"},
    {"Inorganic Gas", "Inorganic Liquid"},
    {"Miscellaneous Organic Gas", "Miscellaneous Organic Liquid"},
});

std::string_view companionOf(std::string_view fluid, Phase phase) {
  for (const PairRow& row : kPairs) {
    if (phase == Phase::gas && sameWord(fluid, row.liquid)) return row.gas;
    if (phase == Phase::liquid && sameWord(fluid, row.gas)) return row.liquid;
  }
  return {};
}

// --- Streams ------------------------------------------------------------------------------------

using Method = double (PropertyService::*)(std::string_view, double, double, Phase) const;

struct StreamRow {
  const char* slot;
  Method method;
  Phase phase;
  const char* unit;  // of the method
  const char* customaryUnit;
  const char* metricUnit;
};

constexpr auto kStreamRows = std::to_array<StreamRow>({
    {"VAPOR MASS DENSITY", &PropertyService::density, Phase::gas, "GM/CC", "PCF", "KG/M3"},
    {"VAPOR VISCOSITY", &PropertyService::viscosity, Phase::gas, "POISE", "CPOISE", "MPA-S"},
    {"VAPOR SPECIFIC HEAT CAPACITY", &PropertyService::heatCapacity, Phase::gas, "CAL/G/DEG K",
     "BTU/LB/DEG F", "KJ/KG/DEG K"},
    {"VAPOR CONDUCTIVITY", &PropertyService::conductivity, Phase::gas, "CAL/CM/S/DEG K",
     "BTU/H/FT/DEG F", "W/M/DEG K"},
    {"LIQUID MASS DENSITY", &PropertyService::density, Phase::liquid, "GM/CC", "PCF", "KG/M3"},
    {"LIQUID VISCOSITY", &PropertyService::viscosity, Phase::liquid, "POISE", "CPOISE", "MPA-S"},
    {"LIQUID SPECIFIC HEAT CAPACITY", &PropertyService::heatCapacity, Phase::liquid, "CAL/G/DEG K",
     "BTU/LB/DEG F", "KJ/KG/DEG K"},
    {"LIQUID CONDUCTIVITY", &PropertyService::conductivity, Phase::liquid, "CAL/CM/S/DEG K",
     "BTU/H/FT/DEG F", "W/M/DEG K"},
});

// A stream in the attached host's store.
class StreamSlots {
 public:
  explicit StreamSlots(ObjectId stream) : host_(currentHost()), stream_(stream) {}

  [[nodiscard]] CvdSlot read(std::string_view slot) const {
    CvdSlot value;
    host_.store().read(stream_, slot, true, value);
    return value;
  }
  [[nodiscard]] bool isPositive(std::string_view slot) const { return read(slot).Number() > 0.0; }
  // The number in `unit`; one without a unit is taken to be in `plainUnit`. False without one.
  bool number(std::string_view slot, std::string_view plainUnit, std::string_view unit,
              double& value) const {
    const CvdSlot stored = read(slot);
    if (!stored.IsNumber()) return false;
    double number = stored.Number();
    const std::string_view from = stored.HasUnits() ? stored.Units() : plainUnit;
    if (!host_.units().convert(from, unit, number)) return false;
    value = number;
    return true;
  }
  // Stores a value above 0 that the stream lacks, in the project's unit.
  void add(std::string_view slot, double value, std::string_view unit,
           std::string_view customaryUnit, std::string_view metricUnit) {
    if (!(value > 0.0) || isPositive(slot)) return;
    const std::string_view to = host_.units().unitType() == 0 ? customaryUnit : metricUnit;
    if (!to.empty() && !host_.units().convert(unit, to, value)) return;
    host_.store().write(stream_, slot, CvdSlot::ofNumber(value, to));
  }

 private:
  Host& host_;
  ObjectId stream_;
};

}  // namespace

FluidService::FluidService(FluidTable fluids, ChartTable charts)
    : fluids_(std::move(fluids)), charts_(std::move(charts)) {}

const Fluid* FluidService::find(std::string_view name) const {
  auto found = fluids_.find(name);
  if (found == fluids_.end()) {
    FluidName compound("Compound - ");
    const std::size_t prefix = compound.view().size();
    name = withoutBlanksAround(name);
    if (name.empty() || prefix + name.size() >= FluidName::kCapacity) return nullptr;
    std::copy(name.begin(), name.end(), compound.data() + prefix);
    found = fluids_.find(compound.view());
  }
  return found != fluids_.end() ? &found->second : nullptr;
}

double FluidService::heatCapacity(std::string_view fluid, double temperature, double /*pressure*/,
                                  Phase phase) const {
  const Fluid* const data = find(fluid);
  if (data == nullptr) return 0.0;
  return line(ofPhase(*data, &Fluid::liquidHeatCapacity, &Fluid::gasHeatCapacity, phase),
              temperature);
}

double FluidService::density(std::string_view fluid, double temperature, double pressure,
                             Phase phase) const {
  const Fluid* const data = find(fluid);
  if (data == nullptr || !isAboveZero(temperature)) return 0.0;
  if (phase == Phase::liquid) return liquidDensityOf(*data, temperature);
  if (!isAboveZero(pressure)) return 0.0;
  return answer(gasDensity(temperature, pressure, data->molecularWeight.value_or(0.0),
                           compressibilityOf(*data, temperature, pressure, Phase::gas)));
}

double FluidService::viscosity(std::string_view fluid, double temperature, double /*pressure*/,
                               Phase phase) const {
  const Fluid* const data = find(fluid);
  if (data == nullptr || !isAboveZero(temperature)) return 0.0;
  const std::optional<Fit>& fit =
      ofPhase(*data, &Fluid::liquidViscosity, &Fluid::gasViscosity, phase);
  if (!fit) return 0.0;
  const double held = heldTemperature(*fit, temperature);
  return answer(phase == Phase::liquid ? std::exp(fit->a + fit->b / held)
                                       : fit->a * std::pow(held, fit->b));
}

double FluidService::conductivity(std::string_view fluid, double temperature, double /*pressure*/,
                                  Phase phase) const {
  const Fluid* const data = find(fluid);
  if (data == nullptr) return 0.0;
  return line(ofPhase(*data, &Fluid::liquidConductivity, &Fluid::gasConductivity, phase),
              temperature);
}

double FluidService::compressibility(std::string_view fluid, double temperature, double pressure,
                                     Phase phase) const {
  const Fluid* const data = find(fluid);
  return data != nullptr ? compressibilityOf(*data, temperature, pressure, phase) : 0.0;
}

double FluidService::heatCapacityRatio(std::string_view fluid, double temperature,
                                       double /*pressure*/) const {
  const Fluid* const data = find(fluid);
  if (data == nullptr) return 0.0;
  if (data->heatCapacityRatio) return answer(data->heatCapacityRatio);
  return idealHeatCapacityRatio(line(data->gasHeatCapacity, temperature),
                                data->molecularWeight.value_or(0.0));
}

double FluidService::latentHeat(std::string_view fluid, double temperature,
                                double /*pressure*/) const {
  const Fluid* const data = find(fluid);
  if (data == nullptr || !data->latentHeat) return 0.0;
  if (!data->boilingPoint || !hasCriticalTemperature(*data)) return answer(data->latentHeat);
  return answer(latentHeatAt(temperature, *data->latentHeat, *data->boilingPoint,
                             *data->criticalTemperature));
}

double FluidService::boilingPoint(std::string_view fluid, double pressure) const {
  const Fluid* const data = find(fluid);
  return data != nullptr ? boilingPointOf(*data, pressure) : 0.0;
}

double FluidService::molecularWeight(std::string_view fluid) const {
  const Fluid* const data = find(fluid);
  return data != nullptr ? answer(data->molecularWeight) : 0.0;
}

bool FluidService::inPhase(std::string_view fluid, Phase phase, FluidName& name) const {
  const std::string_view companion = companionOf(fluid, phase);
  if (!companion.empty() && find(companion) != nullptr) {
    name = companion;
    return true;
  }
  if (find(fluid) == nullptr) return false;
  name = withoutBlanksAround(fluid);
  return true;
}

bool FluidService::completeStream(ObjectId stream) const {
  StreamSlots slots(stream);
  const CvdSlot component = slots.read("PRIMARY FLUID COMPONENT");
  const std::string_view fluid = component.Text();
  const bool vapor = slots.isPositive("VAPOR MASS FLOW");
  const bool liquid = slots.isPositive("LIQUID MASS FLOW");
  double temperature = 0.0;
  if (find(fluid) == nullptr || (!vapor && !liquid)) return false;
  if (!slots.number("TEMPERATURE", "DEG F", "DEG K", temperature)) return false;
  double pressure = 0.0;
  slots.number("PRESSURE", "PSI", "ATM", pressure);

  slots.add("MOLECULAR WEIGHT", molecularWeight(fluid), {}, {}, {});
  for (const StreamRow& row : kStreamRows) {
    if (!(row.phase == Phase::gas ? vapor : liquid)) continue;
    slots.add(row.slot, (this->*row.method)(fluid, temperature, pressure, row.phase), row.unit,
              row.customaryUnit, row.metricUnit);
  }
  if (vapor) {
    slots.add("Specific heat ratio", heatCapacityRatio(fluid, temperature, pressure), {}, {}, {});
  }
  return true;
}

double FluidService::chart(std::string_view object, std::string_view variable, double x,
                           double y) const {
  const auto variables = charts_.find(object);
  if (variables == charts_.end()) return 0.0;
  const auto found = variables->second.find(variable);
  return found != variables->second.end() ? chartValue(found->second, x, y) : 0.0;
}

}  // namespace sizewright
