#pragma once

namespace sizewright {

// Volumes in CF of diameter and height in FEET.

double cylinderVolume(double diameter, double height);
double sphereVolume(double diameter);
/// Ellipsoid of revolution with the height as its two equal axes.
double spheroidVolume(double diameter, double height);
/// Height of a cylinder of that volume and square of the diameter, heads not counted.
double cylinderHeight(double volume, double squaredDiameter);
/// Volume of a flow (CF/H) over a time in minutes.
double heldVolume(double minutes, double flow);

/// Separation factor of Watkins: liquid over vapor mass flow, times the root of vapor over liquid
/// density.
double separationFactor(double liquidFlow, double vaporFlow, double vaporDensity,
                        double liquidDensity);
/// Vapor load factor Kv (FT/S) of a drum by its separation factor, which is positive: the fourth
/// degree polynomial in ln F, fitted to Watkins' curve (R. N. Watkins, Hydrocarbon Processing,
/// 1967) for 0.006 to 6.
double vaporLoadFactor(double separationFactor);
/// Velocity (FT/H) at which vapor leaves the liquid behind: the law of Souders and Brown.
double entrainmentVelocity(double kv, double multiplier, double liquidDensity, double vaporDensity);

/// How bubbles or drops of a size settle.
enum class SettlingRegime { viscous, intermediate, turbulent };
struct SettlingVelocity {
  double velocity = 0.0;  // FT/H
  SettlingRegime regime = SettlingRegime::intermediate;
};
/// Terminal velocity of particles (diameter in FEET, densities in PCF): Stokes' law below K = 3,
/// Newton's law above 70 and, as no other is fitted, in between. Not a number when the liquid is
/// the lighter one.
SettlingVelocity settlingVelocity(double particleDiameter, double vaporDensity,
                                  double liquidDensity);

/// a3 x^3 + a2 x^2 + a1 x + a0.
struct Cubic {
  double a3 = 0.0;
  double a2 = 0.0;
  double a1 = 0.0;
  double a0 = 0.0;
};
struct CubicRoot {
  enum class Outcome { found, notBracketed, exhausted };
  double x = 0.0;
  Outcome outcome = Outcome::found;
};
/// Root between two bounds at which the cubic has opposite signs: Newton's steps, halved where they
/// would leave the bracket or converge slowly. 0 when the bounds do not bracket a root, the last
/// estimate after 100 rounds.
CubicRoot findRoot(const Cubic& cubic, double lower, double upper);
/// Value and slope at x. kept: with a3 of 0 both are added to what the outputs hold.
void evaluate(const Cubic& cubic, double x, double& value, double& slope);

}  // namespace sizewright
