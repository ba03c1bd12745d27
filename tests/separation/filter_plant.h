#pragma once

#include "separation/solids_plant.h"
#include "sizewright/separation/filter.h"

namespace sizewright {

using Filter = SolidsItem<CFltObj>;

/// A filter or centrifuge that a test can set values on.
class FilterUnderTest : public CFltObj {
 public:
  using CFltObj::CFltObj;
  using CFltObj::data;
};
using SetFilter = SolidsItem<FilterUnderTest>;

constexpr double kCfhInGpm = 60 * 231.0 / 1728.0;
constexpr double kQuarterPi = 0.7853981634;

/// A filter, or in the category "ECT" a centrifuge, that takes 1,000 CFH of liquid and 10 CFH (936
/// LB/H) of solids from F and leads to P.
inline PlantJson filterPlant(const char* item, const char* category = "EF") {
  PlantJson plant = solidsPlant(category, item, "OUTLET");
  slotsOf(plant, "F") = {{"LIQUID MASS FLOW", {50000, "LB/H"}},
                         {"LIQUID MASS DENSITY", {50, "PCF"}},
                         {"SOLID MASS FLOW", {936, "LB/H"}}};
  return plant;
}

/// The same with a liquid flow in GPM and a solid flow in LB/H.
inline PlantJson centrifugePlant(const char* item, double liquid, double solids = 936) {
  PlantJson plant = filterPlant(item, "ECT");
  slotsOf(plant, "F")["LIQUID MASS FLOW"] = {liquid * kCfhInGpm * 50, "LB/H"};
  slotsOf(plant, "F")["SOLID MASS FLOW"] = {solids, "LB/H"};
  return plant;
}

}  // namespace sizewright
