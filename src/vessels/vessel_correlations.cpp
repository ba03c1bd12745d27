#include "sizewright/vessels/vessel_correlations.h"

#include <cmath>
#include <utility>

#include "sizewright/frame/size_equip.h"

namespace sizewright {

namespace {

constexpr double kPi = 3.1415926536;
constexpr double kQuarterPi = 0.7853981634;
constexpr double kSixthPi = 0.5235987756;
constexpr double kViscosity = 0.05;
constexpr int kRounds = 100;
constexpr double kCloseEnough = 1e-05;

double power(double x, double y) {
  return CSizeEquip::compiler_pow_double(x, y);
}

}  // namespace

double cylinderVolume(double diameter, double height) {
  return power(diameter, 2.0) * kQuarterPi * height;
}
double sphereVolume(double diameter) {
  return power(diameter, 3.0) * kSixthPi;
}
double spheroidVolume(double diameter, double height) {
  return power(height, 2.0) * kSixthPi * diameter;
}
double cylinderHeight(double volume, double squaredDiameter) {
  return volume * 4.0 / kPi * (1.0 / squaredDiameter);
}
double heldVolume(double minutes, double flow) {
  return flow * (minutes / 60.0);
}

double separationFactor(double liquidFlow, double vaporFlow, double vaporDensity,
                        double liquidDensity) {
  return liquidFlow / vaporFlow * power(vaporDensity / liquidDensity, 0.5);
}

double vaporLoadFactor(double separationFactor) {
  const double x = std::log(separationFactor);
  return std::exp(-1.877478097 - 0.8145804597 * x - 0.1870744085 * x * x -
                  0.0145228667 * x * x * x - 0.0010148518 * x * x * x * x);
}

double entrainmentVelocity(double kv, double multiplier, double liquidDensity,
                           double vaporDensity) {
  return kv * multiplier * power((liquidDensity - vaporDensity) / vaporDensity, 0.5) * 3600.0;
}

SettlingVelocity settlingVelocity(double particleDiameter, double vaporDensity,
                                  double liquidDensity) {
  const double gravity = 4.17118 * power(10.0, 8.0);  // FT/H2
  const double difference = liquidDensity - vaporDensity;
  const double k =
      particleDiameter * power(gravity * vaporDensity * difference / power(kViscosity, 2.0), 0.33);
  if (k < 3.0) {
    return {gravity * difference * power(particleDiameter, 2.0) / (18.0 * kViscosity),
            SettlingRegime::viscous};
  }
  const double velocity = 1.74 * power(gravity * particleDiameter * difference / vaporDensity, 0.5);
  return {velocity, k > 70.0 ? SettlingRegime::turbulent : SettlingRegime::intermediate};
}

void evaluate(const Cubic& cubic, double x, double& value, double& slope) {
  const auto& [a3, a2, a1, a0] = cubic;
  const double f = a3 * x * x * x + a2 * x * x + a1 * x + a0;
  const double df = 3.0 * a3 * x * x + 2.0 * a2 * x + a1;
  if (a3 == 0.0) {
    value += f;
    slope += df;
  } else {
    value = f;
    slope = df;
  }
}

CubicRoot findRoot(const Cubic& cubic, double lower, double upper) {
  double f = 0.0;
  double df = 0.0;
  double fLower = 0.0;
  evaluate(cubic, lower, fLower, df);
  double fUpper = 0.0;
  evaluate(cubic, upper, fUpper, df);
  if (!(fLower * fUpper < 0.0)) return {0.0, CubicRoot::Outcome::notBracketed};
  double low = lower;  // where the cubic is negative
  double high = upper;
  if (fLower > 0.0) std::swap(low, high);
  double x = (lower + upper) * 0.5;
  double stepBefore = std::abs(upper - lower);
  double step = stepBefore;
  evaluate(cubic, x, f, df);
  for (int round = 0; round < kRounds; ++round) {
    const double last = x;
    const bool leaves = ((x - high) * df - f) * ((x - low) * df - f) >= 0.0;
    const bool isSlow = std::abs(stepBefore * df) < std::abs(2.0 * f);
    stepBefore = step;
    if (leaves || isSlow) {
      step = (high - low) * 0.5;
      x = low + step;
      if (x == low) return {x};
    } else {
      step = f / df;
      x -= step;
      if (x == last) return {x};
    }
    if (std::abs(step) < kCloseEnough) return {x};
    evaluate(cubic, x, f, df);
    (f < 0.0 ? low : high) = x;
  }
  return {x, CubicRoot::Outcome::exhausted};
}

}  // namespace sizewright
