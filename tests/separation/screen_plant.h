#pragma once

#include "separation/solids_plant.h"
#include "sizewright/separation/screen.h"

namespace sizewright {

using Screen = SolidsItem<CScObj>;

constexpr double kTon = 2000;  // LB

/// A screen between F (60 TPH of solids) and P, of a material that the property database does not
/// hold: 3 TPH/SF.
inline PlantJson screenPlant(const char* item) {
  PlantJson plant = solidsPlant("EVS", item, "SOLIDS OUTLET");
  slotsOf(plant, "F")["SOLID MASS FLOW"] = {60 * kTon, "LB/H"};
  plant["criteria"]["*"]["Vibrating screen feed material"] = "Nothing Known";
  return plant;
}

/// The same of a given area in SF.
inline PlantJson screenOf(const char* item, double area) {
  PlantJson plant = screenPlant(item);
  recordOf(plant)["CpSurfaceArea"] = {area, "SF"};
  return plant;
}

}  // namespace sizewright
