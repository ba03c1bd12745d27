// Diameter of a process vessel: by vapor velocity, liquid volume and slenderness.
#include <string>

#include "sizewright/host/messages.h"
#include "sizewright/host/text.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

constexpr double kPi = 3.1415926536;
constexpr double kQuarterPi = 0.7853981634;
constexpr double kFourOverPi = 1.273239544731026;
constexpr double kSquareRoot = 0.5;
constexpr double kCubeRoot = 0.33;
constexpr double kLargestDiameter = 50.0;  // FEET
constexpr double kLargestBubble = 0.3125;  // FEET
constexpr double kAssumedDensity = 62.4;   // PCF
constexpr double kDefaultKv = 0.227;       // FT/S
constexpr const char* kNoLiquidDensity =
    "Exit liquid flow is not present. Exit light liquid density assumed to be 62.4 lb/cf.";

void status(int percent, const char* text) {
  status_write(percent, 3, text);
}

}  // namespace

double CVesObj::proc_vs_determine_diameter(double capacity, double ratio, double residence,
                                           double minimum, double areaRatio, double multiplier,
                                           double kv, double vaporHeight) {
  status(62, "Estimating diameter based on geometry.");
  if (capacity > 0.0 && data().ves_height > 0.0) {
    const double diameter =
        compiler_pow_double(capacity * 4.0 / (kPi * data().ves_height), kSquareRoot);
    tell(calculations, formatText("proc_vs_determine_diameter: 1st estim. using capacity and "
                                  "height = %5.2f ft",
                                  diameter));
    return diameter;
  }
  const double byVapor = vaporDiameter(ratio, areaRatio, multiplier, kv);
  status(68, "Calculating vessel diameter based on L/D.");
  const double byLiquid = liquidDiameter(capacity, ratio, residence, areaRatio, vaporHeight);
  status(69, "Choosing the maximum value as vessel diameter.");
  tell(calculations, formatText("ves_dia(based on vapor flow) = %5.2f ft; ves_dia(based on L/D and "
                                "Liq.flow) = %5.2f ft; Max chosen.",
                                byVapor, byLiquid));
  double diameter = byVapor > byLiquid ? byVapor : byLiquid;
  if (minimum > diameter) {
    warn(
        formatText("Calculated Vessel Diameter is %5.2f feet. User specified minimum value %5.2f "
                   "feet is used.",
                   diameter, minimum));
    diameter = minimum;
  }
  status(70, "Obtained vessel diameter.");
  return diameter;
}

// --- Vapor --------------------------------------------------------------------------------------

double CVesObj::vaporDiameter(double ratio, double areaRatio, double multiplier, double kv) {
  const VesselData& drum = data();
  status(62, "Estimating maximum vapor flow in the vessel.");
  double massFlow = 0.0;
  double volumeFlow = 0.0;
  double density = 0.0;
  if (drum.total_inlet_vap_vol_flow > 0.0 || drum.total_exit_vap_vol_flow > 0.0) {
    const bool inlet = drum.total_inlet_vap_vol_flow > drum.total_exit_vap_vol_flow;
    massFlow = inlet ? drum.total_inlet_vap_mass_flow : drum.total_exit_vap_mass_flow;
    volumeFlow = inlet ? drum.total_inlet_vap_vol_flow : drum.total_exit_vap_vol_flow;
    density = massFlow / volumeFlow;
  }
  status(64, "Calculating vessel diameter based on vapor flow.");
  if (!(massFlow > 0.0)) return 0.0;
  const double velocity = vaporVelocity(massFlow, volumeFlow, density, multiplier, kv);
  status(67, "Calculating vessel diameter based on vapor velocity.");
  if (!(velocity > 0.0)) {
    warn("Vapor velocity cannot be calculated. Diameter will be based on liquid flow.");
    return 0.0;
  }
  if (categoryIs({"DVT"})) {
    const double area = volumeFlow / velocity / areaRatio;
    return compiler_pow_double(area * 4.0 / kPi, kSquareRoot);
  }
  return compiler_pow_double(volumeFlow / (kQuarterPi * velocity * ratio), kSquareRoot);
}

double CVesObj::vaporVelocity(double massFlow, double volumeFlow, double density, double multiplier,
                              double kv) {
  status(65, "Checking user specified method for estimating design vapor velocity.");
  if (equalsIgnoringCase(data().sep_method, "Liquid Entrainment Method")) {
    status(65, "Calculating vapor velocity based on liquid entrainment method.");
    return proc_vs_determine_vap_vel_liquid_entrainment_method(massFlow, volumeFlow, density,
                                                               multiplier, kv);
  }
  status(65, "Calculating vapor velocity based on liquid bubble disengagement.");
  const double velocity =
      proc_vs_determine_vap_vel_particle_size_separation(density, data().light_liq_density);
  status(66, "Obtaining design factor multiplier for disengagement velocity from design criteria.");
  status(66, "Estimating design vapor velocity.");
  return velocity * data().disengage_factor;
}

double CVesObj::proc_vs_determine_vap_vel_liquid_entrainment_method(double massFlow,
                                                                    double /*volumeFlow*/,
                                                                    double density,
                                                                    double multiplier, double kv) {
  if (kv == 0.0) kv = correlatedKv(massFlow, density);
  if (!(kv > 0.0)) kv = kDefaultKv;
  return entrainmentVelocity(kv, multiplier, data().light_liq_density, density);
}

double CVesObj::correlatedKv(double massFlow, double density) {
  VesselData& drum = data();
  if (drum.light_liq_density == 0.0) {
    drum.light_liq_density = kAssumedDensity;
    warn(kNoLiquidDensity);
  }
  double factor = separationFactor(drum.total_exit_light_liq_mass_flow, massFlow, density,
                                   drum.light_liq_density);
  if (factor < 0.006) {
    factor = 0.006;
    warn(
        "Separation factor(less than 0.006) is outside the range. Defaulted to 0.006. Kv value "
        "maybe incorrect.");
  }
  if (factor > 6.0) {
    factor = 6.0;
    warn(
        "Separation factor(greater than 6) is outside the range. Defaulted to 6. Kv value maybe "
        "incorrect.");
  }
  return vaporLoadFactor(factor);
}

double CVesObj::proc_vs_determine_vap_vel_particle_size_separation(double density,
                                                                   double liquidDensity) {
  if (liquidDensity == 0.0) {
    data().light_liq_density = kAssumedDensity;
    const std::string text = std::string(kNoLiquidDensity) + "(Dry Drum condition).";
    tell(warnings, kNoLiquidDensity);
    tell(calculations, text);
    showBox(text, kWarningBox);
    // kept: the velocity is still sought with the zero density, and not found
  }
  if (data().particle_dia > kLargestBubble) {
    warn(
        "Bubble diameter is outside the range. Terminal settling velocity calculated may be "
        "incorrect.");
  }
  const SettlingVelocity settling = settlingVelocity(data().particle_dia, density, liquidDensity);
  if (settling.regime == SettlingRegime::intermediate) {
    warn("Reynolds number predicts flow is in intermediate region. Please check stream flows.");
  }
  return settling.velocity;
}

// --- Liquid -------------------------------------------------------------------------------------

double CVesObj::liquidDiameter(double capacity, double ratio, double residence, double areaRatio,
                               double vaporHeight) {
  if (!isHorizontal()) {
    const double volume = proc_ves_determine_liq_vol(residence, liquidFlowOrNote());
    return volume > 0.0 ? proc_vs_calc_dia_from_liq_vol(capacity, volume, ratio, vaporHeight) : 0.0;
  }
  if (!(capacity > 0.0)) {
    capacity = proc_ves_determine_liq_vol(residence, liquidFlowOrNote()) / (1.0 - areaRatio);
  }
  const double length = data().ves_height;
  return length > 0.0 ? compiler_pow_double(capacity * kFourOverPi * (1.0 / length), kSquareRoot)
                      : compiler_pow_double(capacity * 4.0 / (kPi * ratio), kCubeRoot);
}

double CVesObj::proc_vs_calc_dia_from_liq_vol(double capacity, double liquidVolume, double ratio,
                                              double vaporHeight) {
  if (capacity > 0.0) {
    return proc_vs_cal_root_3rd_order_polynoimial_by_mnr(0.0, kLargestDiameter, kQuarterPi * ratio,
                                                         0.0, 0.0, -capacity);
  }
  if (data().ves_height > 0.0) {
    const double liquidHeight = data().ves_height - vaporHeight;
    return liquidHeight > 0.0
               ? compiler_pow_double(liquidVolume * kFourOverPi * (1.0 / liquidHeight), kSquareRoot)
               : 0.0;
  }
  return proc_vs_cal_root_3rd_order_polynoimial_by_mnr(
      0.0, kLargestDiameter, kQuarterPi * ratio, -kQuarterPi * vaporHeight, 0.0, -liquidVolume);
}

double CVesObj::proc_vs_cal_root_3rd_order_polynoimial_by_mnr(double lower, double upper, double a3,
                                                              double a2, double a1, double a0) {
  const CubicRoot root = findRoot({a3, a2, a1, a0}, lower, upper);
  if (root.outcome == CubicRoot::Outcome::notBracketed) {
    warn("Diameter is outside range 0 to 1000 feet.");  // kept: the callers' range ends at 50
  }
  if (root.outcome == CubicRoot::Outcome::exhausted) warn("Maximum iteration exceeded.");
  return root.x;
}

}  // namespace sizewright
