#pragma once

#include <optional>

namespace sizewright {

// Correlations of physical properties: numbers in, numbers out. Temperatures in DEG K, pressures in
// ATM; Tr = T/Tc, Pr = P/Pc. None of them throws; each answers 0 where its formula has no meaning.

/// Gas constant, CAL/MOL/DEG K (international calorie).
inline constexpr double kGasConstantCalorie = 1.98588;
/// Gas constant, CC ATM/MOL/DEG K.
inline constexpr double kGasConstantVolume = 82.057366;

/// Compressibility factor of a gas.
///
/// Lee and Kesler, AIChE J. 21 (1975) 510: Z = Z0 + (w / 0.3978) (Zr - Z0), where Z0 (simple fluid)
/// and Zr (n-octane) come from one modified Benedict-Webb-Rubin equation with two sets of
/// constants. Range: Tr 0.3 to 4, Pr 0 to 10; within 2 % for nonpolar gases away from the critical
/// point; hydrogen near its boiling point is up to 10 % off. A lower Tr counts as 0.3. Where the
/// equation has no gas root the last one before it serves.
double gasCompressibility(double reducedTemperature, double reducedPressure, double acentricFactor);

/// Acentric factor from the normal boiling point.
///
/// Lee and Kesler (1975): w = (-ln Pc - f0(Tbr)) / f1(Tbr), Pc in ATM, with the functions of their
/// vapor pressure equation. Range: Tbr 0.4 to 0.9.
double acentricFactorOf(double boilingPoint, double criticalTemperature, double criticalPressure);

/// Vapor pressure of a liquid: Riedel, Chem. Ing. Tech. 26 (1954) 83,
/// ln Pr = a ln Tr + q psi(Tr), psi = -35 + 36/Tr + 42 ln Tr - Tr^6.
struct VaporPressureCurve {
  double criticalTemperature = 0.0;
  double criticalPressure = 0.0;
  double a = 0.0;
  double q = 0.0;
};

/// The curve through the normal boiling point and the critical point.
///
/// Riedel's third constant is q = K (3.758 - a), K = 0.0838. An acentric factor gives one point
/// more, Pr = 10^-(1 + w) at Tr = 0.7, and q is moved towards the one that meets it: fully when
/// that point is far from the boiling point, not at all when they coincide and it says nothing.
/// Water then boils within 0.4 DEG K of the steam tables from 0.1 to 100 bar, against 2.5 without.
///
/// Nothing when the boiling point is not below the critical temperature, the critical pressure not
/// above 1 ATM, or no rising curve comes out.
std::optional<VaporPressureCurve> vaporPressureCurve(double boilingPoint,
                                                     double criticalTemperature,
                                                     double criticalPressure,
                                                     std::optional<double> acentricFactor);

/// Vapor pressure, ATM; from the critical temperature up the critical pressure.
double vaporPressure(const VaporPressureCurve& curve, double temperature);

/// Temperature at which that pressure is the vapor pressure; from the critical pressure up the
/// critical temperature. 0 for a pressure that is not above 0.
double boilingTemperature(const VaporPressureCurve& curve, double pressure);

/// The same by Clausius and Clapeyron, from a constant heat of vaporization in CAL/MOL and an ideal
/// vapor: 1/T = 1/Tb - R ln P / H. Range: within some ATM of 1 ATM.
double boilingTemperature(double boilingPoint, double molarLatentHeat, double pressure);

/// Heat of vaporization at a temperature, in the unit of the one at the boiling point.
///
/// Watson, Ind. Eng. Chem. 35 (1943) 398: H = Hb ((1 - Tr) / (1 - Tbr))^0.38. 0 from the critical
/// temperature up.
double latentHeatAt(double temperature, double atBoilingPoint, double boilingPoint,
                    double criticalTemperature);

/// Cp/Cv of an ideal gas: Cp / (Cp - R/M), Cp in CAL/G/DEG K. Real gases are higher, by some
/// percent at 10 ATM.
double idealHeatCapacityRatio(double heatCapacity, double molecularWeight);

/// Gas density, GM/CC: P M / (Z R T).
double gasDensity(double temperature, double pressure, double molecularWeight,
                  double compressibility);

/// Density of a saturated liquid, from that at one temperature and in its unit.
///
/// Yamada and Gunn, J. Chem. Eng. Data 18 (1973) 234, a Rackett equation:
/// V = V1 (0.29056 - 0.08775 w)^((1 - Tr)^(2/7) - (1 - T1r)^(2/7)). Range: nonpolar liquids to Tr
/// 0.99, within 1 to 2 %. Beyond the critical temperature the density at it serves.
double liquidDensityAt(double temperature, double density, double densityTemperature,
                       double criticalTemperature, double acentricFactor);

}  // namespace sizewright
