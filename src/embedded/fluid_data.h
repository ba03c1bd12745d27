#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "sizewright/host/text.h"

namespace sizewright {

/// Names that compare without regard to case.
struct NameLess {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return stricmpwos(a, b) < 0; }
};

/// Two coefficients of a property equation, and the temperatures (DEG K) between which it was
/// fitted; outside of them the nearer end serves.
struct Fit {
  double a = 0.0;
  double b = 0.0;
  std::optional<std::array<double, 2>> validTemperatures;
};

/// Property data of a fluid class. What is absent cannot be answered.
struct Fluid {
  std::optional<double> molecularWeight;
  std::optional<double> boilingPoint;         // DEG K at 1 ATM
  std::optional<double> criticalTemperature;  // DEG K
  std::optional<double> criticalPressure;     // ATM
  std::optional<double> acentricFactor;
  std::optional<double> latentHeat;                // BTU/LB at the boiling point
  std::optional<double> liquidDensity;             // GM/CC
  std::optional<double> liquidDensityTemperature;  // DEG K at which that holds
  std::optional<Fit> liquidHeatCapacity;           // A + B T, CAL/G/DEG K
  std::optional<Fit> gasHeatCapacity;              // A + B T, CAL/G/DEG K
  std::optional<Fit> liquidViscosity;              // exp(A + B/T), POISE
  std::optional<Fit> gasViscosity;                 // A T^B, POISE
  std::optional<Fit> liquidConductivity;           // A + B T, CAL/CM/S/DEG K
  std::optional<Fit> gasConductivity;              // A + B T, CAL/CM/S/DEG K
  std::optional<double> z;                         // used as it stands
  std::optional<double> heatCapacityRatio;         // used as it stands
};
using FluidTable = std::map<std::string, Fluid, NameLess>;

/// A chart: z[i][j] at x[i], y[j].
struct Chart {
  std::vector<double> x;
  std::vector<double> y;
  std::vector<std::vector<double>> z;
};
/// Charts by object and variable.
using ChartTable = std::map<std::string, std::map<std::string, Chart, NameLess>, NameLess>;

/// A row of a design rule: it serves operating values from `from` up. `value` is the design value
/// outright; otherwise it is the larger of operating x factor + add and operating + atLeast.
struct DesignRule {
  std::optional<double> from;
  std::optional<double> value;
  double factor = 1.0;
  double add = 0.0;
  double atLeast = 0.0;
};

/// Rules behind design pressure (PSIG) and temperature (DEG F).
struct DesignRules {
  std::vector<DesignRule> pressure;
  std::vector<DesignRule> temperature;
};

}  // namespace sizewright
