#pragma once

#include <string_view>

#include "sizewright/host/fixed_text.h"
#include "sizewright/host/object_store.h"

namespace sizewright {

class CvdStream;

/// Name of a fluid class, such as "Hydrocarbon Gas".
using FluidName = FixedText<128>;

/// Physical properties by fluid class, and the charts of the property database. Every call comes on
/// the thread that the host is attached to; nothing throws. Temperatures in DEG K, pressures in
/// ATM; a phase is "Liquid" or, for any other word, gas. A number that cannot be answered is 0.
class PropertyService {
 public:
  enum class Phase { gas, liquid };

  virtual ~PropertyService() = default;

  /// Specific heat, CAL/G/DEG K.
  [[nodiscard]] virtual double heatCapacity(std::string_view fluid, double temperature,
                                            double pressure, Phase phase) const;
  /// Density, GM/CC.
  [[nodiscard]] virtual double density(std::string_view fluid, double temperature, double pressure,
                                       Phase phase) const;
  /// Viscosity, POISE.
  [[nodiscard]] virtual double viscosity(std::string_view fluid, double temperature,
                                         double pressure, Phase phase) const;
  /// Thermal conductivity, CAL/CM/S/DEG K.
  [[nodiscard]] virtual double conductivity(std::string_view fluid, double temperature,
                                            double pressure, Phase phase) const;
  /// Compressibility factor Z.
  [[nodiscard]] virtual double compressibility(std::string_view fluid, double temperature,
                                               double pressure, Phase phase) const;
  /// Cp/Cv of the gas.
  [[nodiscard]] virtual double heatCapacityRatio(std::string_view fluid, double temperature,
                                                 double pressure) const;
  /// Heat of vaporization, BTU/LB.
  [[nodiscard]] virtual double latentHeat(std::string_view fluid, double temperature,
                                          double pressure) const;
  /// Boiling temperature at the pressure, DEG K.
  [[nodiscard]] virtual double boilingPoint(std::string_view fluid, double pressure) const;
  [[nodiscard]] virtual double molecularWeight(std::string_view fluid) const;
  /// Name of the same fluid as liquid or as gas. False when there is none.
  virtual bool inPhase(std::string_view fluid, Phase phase, FluidName& name) const;
  /// Works out and stores the properties that a stream lacks. False when it cannot.
  virtual bool completeStream(ObjectId stream) const;
  /// Value of a chart of the property database at (x, y); 0 without the chart.
  [[nodiscard]] virtual double chart(std::string_view object, std::string_view variable, double x,
                                     double y) const;
};

// Each returns a value not above 0 on failure; arguments and units as in PropertyService.
double lib_cp_for_phase(std::string_view fluid, double temperature, double pressure,
                        std::string_view phase);
double lib_den_for_phase(std::string_view fluid, double temperature, double pressure,
                         std::string_view phase);
double lib_vis_for_phase(std::string_view fluid, double temperature, double pressure,
                         std::string_view phase);
double lib_cond_for_phase(std::string_view fluid, double temperature, double pressure,
                          std::string_view phase);
double lib_z_for_phase(std::string_view fluid, double temperature, double pressure,
                       std::string_view phase);
double lib_sp_heat_ratio(std::string_view fluid, double temperature, double pressure);
double lib_lat(std::string_view fluid, double temperature, double pressure);
/// Boiling temperature in DEG K at the pressure; the temperature is accepted and ignored.
double lib_phas(std::string_view fluid, double temperature, double pressure);
double lib_mw(std::string_view fluid);
/// Prepares the service; nothing to do, returns 1.
int lib_math_init();

/// Whether the fluid is saturated: within half a degree of its boiling point at the pressure.
/// Returns 1 when the boiling point is known.
int lib_util_is_sat(std::string_view fluid, double temperature, double pressure, int* saturated);
/// Phases ("Gas" or "Liquid") of an unsaturated fluid at inlet and exit. Returns 1 when the boiling
/// points are known.
int lib_util_get_in_out_phase(std::string_view fluid, double inletTemperature, double inletPressure,
                              double exitTemperature, double exitPressure, FluidName& inletPhase,
                              FluidName& exitPhase);
/// Exit phase of a fluid that enters saturated in `inletPhase`: the other phase when the
/// temperature does not change, otherwise the phase at the exit. Returns 1 when it is known.
int lib_util_get_sat_out_phase(std::string_view fluid, double inletTemperature,
                               double inletPressure, double exitTemperature, double exitPressure,
                               std::string_view inletPhase, FluidName& exitPhase);

/// Name of the fluid as gas or as liquid. Returns 1, or 0 and leaves `name`.
int st_prop_obtain_corresponding_gas(std::string_view fluid, FluidName& name);
int st_prop_obtain_corresponding_liquid(std::string_view fluid, FluidName& name);
/// Phase of a stream by its vapor and liquid mass flows: "Gas", "Liquid" or, with both, "Mixed".
/// Returns 1, or 0 for a stream without flow.
int st_prop_get_phase(CvdStream& stream, FluidName& phase);

/// Works out and stores the properties that a stream lacks. Returns 1, or 0 when the host cannot.
int st_prop_get_all_prop_api(CvdStream& stream);

/// Value at x of the chart "object" / "variable" for the parameter y; 0 without the chart.
double poly_get_from_objects(std::string_view object, std::string_view variable, double x,
                             double y);

}  // namespace sizewright
