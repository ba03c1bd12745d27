#pragma once

#include "sizewright/separation/dryer.h"
#include "support/item_at_hand.h"

namespace sizewright {

/// A dryer D-1 of the given category and item from FEED (1,000 LB/H of liquid) to CAKE (200 LB/H of
/// liquid, 4,680 LB/H of solids of 46.8 PCF: 100 CFH) and FUMES (700 LB/H of vapor), all of them
/// connected.
inline PlantJson dryerPlant(const char* category, const char* item) {
  PlantJson plant = PlantJson::parse(R"({
    "sizewright": 1, "units": "customary", "simulator": 1,
    "streams": {
      "FEED": {"slots": {"LIQUID MASS FLOW": [1000, "LB/H"]}},
      "CAKE": {"slots": {"LIQUID MASS FLOW": [200, "LB/H"], "SOLID MASS FLOW": [4680, "LB/H"],
                         "SOLID MASS DENSITY": [46.8, "PCF"]}},
      "FUMES": {"slots": {"VAPOR MASS FLOW": [700, "LB/H"]}}
    },
    "blocks": {"B1": {"class": 405, "slots": {}}},
    "items": {
      "D-1": {"model": "DRYER", "block": "B1", "inlets": {"INLET": ["FEED"]},
              "exits": {"SOLIDS OUTLET": ["CAKE"], "OUTLET": ["FUMES"]},
              "component": {}, "project": {}}
    }
  })");
  plant["items"]["D-1"]["category"] = category;
  plant["items"]["D-1"]["item"] = item;
  return plant;
}

/// A dryer that a test can set values on.
class DryerUnderTest : public CDryObj {
 public:
  using CDryObj::CDryObj;
  using CDryObj::data;
};

/// The dryer D-1 of a plant, alive with it.
struct DryerAtHand : ItemAtHand<DryerUnderTest> {
  explicit DryerAtHand(const PlantJson& json, int interactive = 0)
      : ItemAtHand(json, "D-1", interactive) {}
};

// Parts of a plant under construction.
inline PlantJson& slotsOf(PlantJson& plant, const char* stream) {
  return plant["streams"][stream]["slots"];
}
inline PlantJson& itemOf(PlantJson& plant) {
  return plant["items"]["D-1"];
}
inline PlantJson& blockOf(PlantJson& plant) {
  return plant["blocks"]["B1"]["slots"];
}
/// Gives the cake a solid volume flow in CFH, by a density of 1 PCF.
inline void setSolidVolume(PlantJson& plant, double volume) {
  slotsOf(plant, "CAKE")["SOLID MASS FLOW"] = {volume, "LB/H"};
  slotsOf(plant, "CAKE")["SOLID MASS DENSITY"] = {1, "PCF"};
}

}  // namespace sizewright
