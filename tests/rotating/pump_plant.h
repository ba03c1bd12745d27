#pragma once

#include "sizewright/rotating/pump.h"
#include "support/item_at_hand.h"

namespace sizewright {

inline constexpr double kStandardAtmosphere = 14.695948775513;  // PSI
inline constexpr double kWater = 62.43;                         // PCF

/// A pump P-101 of the item code CENTRIF from S1 (10,000 LB/H of 50 PCF, 20 PSI) to S2 (120 PSI).
inline PlantJson pumpPlant() {
  return PlantJson::parse(R"({
    "sizewright": 1, "units": "customary", "simulator": 1,
    "streams": {
      "S1": {"slots": {"TEMPERATURE": [100, "DEG F"], "PRESSURE": [20, "PSI"],
                       "LIQUID MASS FLOW": [10000, "LB/H"], "LIQUID MASS DENSITY": [50, "PCF"],
                       "TOTAL MASS FLOW": [10000, "LB/H"],
                       "LIQUID VISCOSITY": [0.5, "CPOISE"], "MOLECULAR WEIGHT": 92}},
      "S2": {"slots": {"TEMPERATURE": [110, "DEG F"], "PRESSURE": [120, "PSI"]}}
    },
    "blocks": {"B1": {"class": 405, "slots": {"ITEM MODEL": "PUMP"}}},
    "items": {
      "P-101": {"category": "DCP", "item": "CENTRIF", "model": "DCP CENTRIF", "block": "B1",
                "inlets": {"INLET": ["S1"]}, "exits": {"OUTLET": ["S2"]},
                "component": {}, "project": {}}
    },
    "criteria": {"*": {}}
  })");
}

/// The pump P-101 of a plant, alive with it.
struct PumpAtHand : ItemAtHand<CPumpObj> {
  explicit PumpAtHand(const PlantJson& json, int interactive = 0, const char* mode = "")
      : ItemAtHand(json, "P-101", interactive, mode) {}
};

// Parts of a plant under construction.
inline PlantJson& slotsOf(PlantJson& plant, const char* stream) {
  return plant["streams"][stream]["slots"];
}
inline PlantJson& itemOf(PlantJson& plant) {
  return plant["items"]["P-101"];
}
inline PlantJson& blockOf(PlantJson& plant) {
  return plant["blocks"]["B1"]["slots"];
}

}  // namespace sizewright
