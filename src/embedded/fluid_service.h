#pragma once

#include <string_view>

#include "sizewright/embedded/fluid_data.h"
#include "sizewright/host/properties.h"

namespace sizewright {

/// Physical properties from the data of fluid classes, and charts.
///
/// A fluid is named without regard to case and surrounding blanks; a name that is not found is
/// tried with "Compound - " before it. Whatever the data of a class do not give, and whatever does
/// not come out as a finite number above 0, is answered with 0; temperatures and pressures that are
/// not finite, or below 0, are as good as missing.
///
/// How properties depend on their arguments:
///  - heat capacities, viscosities and conductivities by the class's fits, at any pressure; beyond
///    the temperatures of a fit its nearer end serves;
///  - compressibility of the gas by Lee and Kesler, of the liquid from its density; a gas below the
///    critical temperature counts as at its vapor pressure when it is above it;
///  - gas density from the compressibility; liquid density by the rule of Yamada and Gunn from the
///    temperature at which it is given, or constant when that is not given;
///  - Cp/Cv as of an ideal gas; latent heat by Watson; boiling point by Riedel's equation through
///    the normal boiling and critical points, or by Clausius and Clapeyron without a critical
///    pressure. Without a critical temperature (or one that is not above the boiling point) the
///    latent heat is constant and the boiling point fixed.
class FluidService : public PropertyService {
 public:
  FluidService(FluidTable fluids, ChartTable charts);

  [[nodiscard]] double heatCapacity(std::string_view fluid, double temperature, double pressure,
                                    Phase phase) const override;
  [[nodiscard]] double density(std::string_view fluid, double temperature, double pressure,
                               Phase phase) const override;
  [[nodiscard]] double viscosity(std::string_view fluid, double temperature, double pressure,
                                 Phase phase) const override;
  [[nodiscard]] double conductivity(std::string_view fluid, double temperature, double pressure,
                                    Phase phase) const override;
  /// The class's constant, where it has one; 1 at no pressure.
  [[nodiscard]] double compressibility(std::string_view fluid, double temperature, double pressure,
                                       Phase phase) const override;
  /// The class's constant, where it has one.
  [[nodiscard]] double heatCapacityRatio(std::string_view fluid, double temperature,
                                         double pressure) const override;
  [[nodiscard]] double latentHeat(std::string_view fluid, double temperature,
                                  double pressure) const override;
  /// From the critical pressure up the critical temperature.
  [[nodiscard]] double boilingPoint(std::string_view fluid, double pressure) const override;
  [[nodiscard]] double molecularWeight(std::string_view fluid) const override;
  /// The class that stands for the same fluid in that phase, such as "Steam" for "Water"; a known
  /// fluid without such a class stands for both phases. False for an unknown fluid.
  bool inPhase(std::string_view fluid, Phase phase, FluidName& name) const override;
  /// Reads fluid, temperature, pressure and the mass flows of vapor and liquid from the stream in
  /// the attached host's store, and writes the molecular weight and, for each phase that flows,
  /// density, viscosity, heat capacity and conductivity where the stream has none above 0; also the
  /// heat capacity ratio of a vapor. Values are in the units of the project. False, with nothing
  /// written, when the fluid is unknown, the temperature missing or nothing flows.
  bool completeStream(ObjectId stream) const override;
  [[nodiscard]] double chart(std::string_view object, std::string_view variable, double x,
                             double y) const override;

 private:
  [[nodiscard]] const Fluid* find(std::string_view name) const;

  FluidTable fluids_;
  ChartTable charts_;
};

}  // namespace sizewright
