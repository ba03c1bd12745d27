#include "sizewright/embedded/property_methods.h"

#include <algorithm>
#include <cmath>

namespace sizewright {

namespace {

// --- Lee-Kesler equation of state ---------------------------------------------------------------

struct FluidConstants {
  double b1, b2, b3, b4;
  double c1, c2, c3, c4;
  double d1, d2;
  double beta, gamma;
};

constexpr FluidConstants kSimpleFluid = {0.1181193,  0.265728,   0.154790, 0.030323,
                                         0.0236744,  0.0186984,  0.0,      0.042724,
                                         1.55488e-5, 6.23689e-5, 0.65392,  0.060167};
constexpr FluidConstants kReferenceFluid = {0.2026579, 0.331511,   0.027655, 0.203488,
                                            0.0313385, 0.0503618,  0.016901, 0.041577,
                                            4.8736e-5, 7.40336e-6, 1.226,    0.03754};
constexpr double kReferenceAcentricFactor = 0.3978;

// The equation at one reduced temperature, over the reduced density r = R Tc / (Pc V):
// Z = 1 + B r + C r^2 + D r^5 + E r^2 (beta + gamma r^2) exp(-gamma r^2), Pr = Tr r Z.
class Isotherm {
 public:
  Isotherm(const FluidConstants& k, double t)
      : t_(t),
        b_(k.b1 - k.b2 / t - k.b3 / (t * t) - k.b4 / (t * t * t)),
        c_(k.c1 - k.c2 / t + k.c3 / (t * t * t)),
        d_(k.d1 + k.d2 / t),
        e_(k.c4 / (t * t * t)),
        beta_(k.beta),
        gamma_(k.gamma) {}

  [[nodiscard]] double compressibility(double r) const {
    const double r2 = r * r;
    return 1.0 + b_ * r + c_ * r2 + d_ * r2 * r2 * r +
           e_ * r2 * (beta_ + gamma_ * r2) * std::exp(-gamma_ * r2);
  }
  [[nodiscard]] double pressure(double r) const { return t_ * r * compressibility(r); }
  // d Pr / d r
  [[nodiscard]] double slope(double r) const {
    const double r2 = r * r;
    const double power =
        3.0 * beta_ + 5.0 * gamma_ * r2 - 2.0 * gamma_ * r2 * (beta_ + gamma_ * r2);
    return t_ * (1.0 + 2.0 * b_ * r + 3.0 * c_ * r2 + 6.0 * d_ * r2 * r2 * r +
                 e_ * r2 * power * std::exp(-gamma_ * r2));
  }

 private:
  double t_, b_, c_, d_, e_, beta_, gamma_;
};

// Z of the lowest density that gives the pressure. Newton steps from zero density, short enough to
// miss no hump of the isotherm, and halving once the root lies between two densities.
double gasRoot(const Isotherm& isotherm, double pressure) {
  constexpr int kSteps = 500;
  constexpr double kLongest = 0.1;
  constexpr double kClose = 1e-12;
  double low = 0.0;
  double high = HUGE_VAL;
  double density = 0.0;
  for (int i = 0; i < kSteps; ++i) {
    const double excess = isotherm.pressure(density) - pressure;
    (excess < 0.0 ? low : high) = density;
    const double slope = isotherm.slope(density);
    if (!(slope > 0.0) && high == HUGE_VAL) break;  // the top of the gas branch
    double next = slope > 0.0 ? density + std::min(-excess / slope, kLongest) : HUGE_VAL;
    if (!(next > low && next < high)) next = high < HUGE_VAL ? 0.5 * (low + high) : low + kLongest;
    if (std::fabs(next - density) <= kClose * next) break;
    density = next;
  }
  return isotherm.compressibility(density);
}

// --- Vapor pressure -----------------------------------------------------------------------------

double sixthPower(double t) {
  const double cube = t * t * t;
  return cube * cube;
}

double riedelFunction(double t) {
  return -35.0 + 36.0 / t + 42.0 * std::log(t) - sixthPower(t);
}

constexpr double kAcentricTemperature = 0.7;  // reduced, of the definition of the acentric factor

// Riedel's third constant for a curve whose a = (lnPb - q psiB) / lnTb passes the boiling point:
// `standard` is his own; the acentric factor asks for rate x q = target.
double fittedConstant(double standard, double rate, double target) {
  // Spread of the acentric factors (0.003) over that of the constants (0.03).
  constexpr double kSpread = 0.23;
  return standard + rate * (target - rate * standard) / (rate * rate + kSpread * kSpread);
}

double positiveOrZero(double value) {
  return std::isfinite(value) && value > 0.0 ? value : 0.0;
}

}  // namespace

double gasCompressibility(double reducedTemperature, double reducedPressure,
                          double acentricFactor) {
  constexpr double kLowest = 0.3;
  if (!(reducedTemperature > 0.0) || !(reducedPressure >= 0.0)) return 0.0;
  const double t = std::max(reducedTemperature, kLowest);
  const double simple = gasRoot(Isotherm(kSimpleFluid, t), reducedPressure);
  const double reference = gasRoot(Isotherm(kReferenceFluid, t), reducedPressure);
  return positiveOrZero(simple + acentricFactor / kReferenceAcentricFactor * (reference - simple));
}

double acentricFactorOf(double boilingPoint, double criticalTemperature, double criticalPressure) {
  const double t = boilingPoint / criticalTemperature;
  if (!(t > 0.0 && t < 1.0) || !(criticalPressure > 1.0)) return 0.0;
  const double t6 = sixthPower(t);
  const double f0 = 5.92714 - 6.09648 / t - 1.28862 * std::log(t) + 0.169347 * t6;
  const double f1 = 15.2518 - 15.6875 / t - 13.4721 * std::log(t) + 0.43577 * t6;
  const double factor = (-std::log(criticalPressure) - f0) / f1;
  return std::isfinite(factor) ? factor : 0.0;
}

std::optional<VaporPressureCurve> vaporPressureCurve(double boilingPoint,
                                                     double criticalTemperature,
                                                     double criticalPressure,
                                                     std::optional<double> acentricFactor) {
  constexpr double kRiedel = 0.0838;
  constexpr double kRiedelSlope = 3.758;
  const double t = boilingPoint / criticalTemperature;
  if (!(t > 0.0 && t < 1.0) || !(criticalPressure > 1.0)) return std::nullopt;
  const double lnT = std::log(t);
  const double lnP = -std::log(criticalPressure);
  const double psi = riedelFunction(t);

  // a lnT + q psi = lnP, with q = K (3.758 - a)
  const double standardA = (kRiedelSlope * kRiedel * psi - lnP) / (kRiedel * psi - lnT);
  double q = kRiedel * (kRiedelSlope - standardA);
  if (acentricFactor) {
    const double share = std::log(kAcentricTemperature) / lnT;
    const double rate = riedelFunction(kAcentricTemperature) - share * psi;
    const double target = -std::log(10.0) * (1.0 + *acentricFactor) - share * lnP;
    const double fitted = fittedConstant(q, rate, target);
    const double fittedA = (lnP - fitted * psi) / lnT;
    if (fitted < 0.0 && fittedA > 0.0) q = fitted;
  }
  const double a = (lnP - q * psi) / lnT;
  // With q below 0 and a above 0 both terms rise with temperature.
  if (!(q < 0.0 && a > 0.0) || !std::isfinite(q)) return std::nullopt;
  return VaporPressureCurve{criticalTemperature, criticalPressure, a, q};
}

double vaporPressure(const VaporPressureCurve& curve, double temperature) {
  if (!(temperature > 0.0)) return 0.0;
  const double t = std::min(temperature / curve.criticalTemperature, 1.0);
  return positiveOrZero(curve.criticalPressure *
                        std::exp(curve.a * std::log(t) + curve.q * riedelFunction(t)));
}

double boilingTemperature(const VaporPressureCurve& curve, double pressure) {
  constexpr double kLowest = 0.05;  // reduced; far below any melting point
  constexpr int kHalvings = 60;
  if (!(pressure > 0.0)) return 0.0;
  if (pressure >= curve.criticalPressure) return curve.criticalTemperature;
  const double target = std::log(pressure / curve.criticalPressure);
  double low = kLowest;
  double high = 1.0;
  for (int i = 0; i < kHalvings; ++i) {
    const double middle = 0.5 * (low + high);
    const double reached = curve.a * std::log(middle) + curve.q * riedelFunction(middle);
    (reached < target ? low : high) = middle;
  }
  return 0.5 * (low + high) * curve.criticalTemperature;
}

double boilingTemperature(double boilingPoint, double molarLatentHeat, double pressure) {
  if (!(pressure > 0.0) || !(boilingPoint > 0.0) || !(molarLatentHeat > 0.0)) return 0.0;
  return positiveOrZero(
      1.0 / (1.0 / boilingPoint - kGasConstantCalorie * std::log(pressure) / molarLatentHeat));
}

double latentHeatAt(double temperature, double atBoilingPoint, double boilingPoint,
                    double criticalTemperature) {
  constexpr double kExponent = 0.38;
  const double left = 1.0 - temperature / criticalTemperature;
  const double leftAtBoiling = 1.0 - boilingPoint / criticalTemperature;
  if (!(temperature > 0.0) || !(left > 0.0) || !(leftAtBoiling > 0.0)) return 0.0;
  return positiveOrZero(atBoilingPoint * std::pow(left / leftAtBoiling, kExponent));
}

double idealHeatCapacityRatio(double heatCapacity, double molecularWeight) {
  if (!(heatCapacity > 0.0) || !(molecularWeight > 0.0)) return 0.0;
  return positiveOrZero(heatCapacity / (heatCapacity - kGasConstantCalorie / molecularWeight));
}

double gasDensity(double temperature, double pressure, double molecularWeight,
                  double compressibility) {
  if (!(temperature > 0.0) || !(compressibility > 0.0)) return 0.0;
  return positiveOrZero(pressure * molecularWeight /
                        (compressibility * kGasConstantVolume * temperature));
}

double liquidDensityAt(double temperature, double density, double densityTemperature,
                       double criticalTemperature, double acentricFactor) {
  const double base = 0.29056 - 0.08775 * acentricFactor;
  if (!(temperature > 0.0) || !(densityTemperature > 0.0) || !(criticalTemperature > 0.0))
    return 0.0;
  if (!(base > 0.0)) return 0.0;
  const auto power = [criticalTemperature](double at) {
    return std::pow(std::max(1.0 - at / criticalTemperature, 0.0), 2.0 / 7.0);
  };
  return positiveOrZero(density * std::pow(base, power(densityTemperature) - power(temperature)));
}

}  // namespace sizewright
