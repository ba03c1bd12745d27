#pragma once

#include "sizewright/vessels/vessel.h"
#include "sizewright/vessels/vessel_correlations.h"
#include "support/item_at_hand.h"

namespace sizewright {

inline constexpr double kFeetPerMetre = 1 / 0.3048;
inline constexpr double kStandardAtmosphere = 14.695948775513;  // PSI

/// A vertical drum V-1 that parts 20,000 LB/H of vapor (0.5 PCF) from 30,000 LB/H of liquid (50
/// PCF) at 50 PSI and 150 DEG F.
inline PlantJson drumPlant() {
  return PlantJson::parse(R"({
    "sizewright": 1, "units": "customary", "simulator": 1,
    "streams": {
      "F": {"slots": {"TEMPERATURE": [150, "DEG F"], "PRESSURE": [50, "PSI"],
                      "LIQUID MASS FLOW": [30000, "LB/H"], "LIQUID MASS DENSITY": [50, "PCF"],
                      "VAPOR MASS FLOW": [20000, "LB/H"], "VAPOR MASS DENSITY": [0.5, "PCF"]}},
      "V": {"slots": {"TEMPERATURE": [150, "DEG F"], "PRESSURE": [48, "PSI"],
                      "VAPOR MASS FLOW": [20000, "LB/H"], "VAPOR MASS DENSITY": [0.5, "PCF"]}},
      "L": {"slots": {"TEMPERATURE": [145, "DEG F"], "PRESSURE": [49, "PSI"],
                      "LIQUID MASS FLOW": [30000, "LB/H"], "LIQUID MASS DENSITY": [50, "PCF"]}},
      "H": {"slots": {"TEMPERATURE": [145, "DEG F"], "PRESSURE": [49, "PSI"],
                      "LIQUID MASS FLOW": [6200, "LB/H"], "LIQUID MASS DENSITY": [62, "PCF"]}}
    },
    "blocks": {"B1": {"class": 405, "slots": {"ITEM MODEL": "FLASH"}}},
    "items": {
      "V-1": {"category": "DVT", "item": "CYLINDER", "model": "DVT CYLINDER", "block": "B1",
              "inlets": {"INLET": ["F"]}, "exits": {"VAPOR OUTLET": ["V"], "LIQUID OUTLET": ["L"]},
              "component": {}, "project": {}}
    },
    "criteria": {"*": {}}
  })");
}

struct VesselAtHand : ItemAtHand<CVesObj> {
  explicit VesselAtHand(const PlantJson& json, int interactive = 0, const char* mode = "")
      : ItemAtHand(json, "V-1", interactive, mode) {}
};

// Parts of a plant under construction.
inline PlantJson& itemOf(PlantJson& plant) {
  return plant["items"]["V-1"];
}
inline PlantJson& recordOf(PlantJson& plant) {
  return itemOf(plant)["component"];
}
inline PlantJson& projectOf(PlantJson& plant) {
  return itemOf(plant)["project"];
}
inline PlantJson& blockOf(PlantJson& plant) {
  return plant["blocks"]["B1"]["slots"];
}
inline PlantJson& slotsOf(PlantJson& plant, const char* stream) {
  return plant["streams"][stream]["slots"];
}
inline PlantJson& criteriaOf(PlantJson& plant) {
  return plant["criteria"]["*"];
}

/// The same plant with an item of another category and item code.
inline PlantJson vesselPlant(const char* category, const char* itemCode) {
  PlantJson plant = drumPlant();
  itemOf(plant)["category"] = category;
  itemOf(plant)["item"] = itemCode;
  return plant;
}

inline bool warned(const CVesObj& vessel, std::string_view text) {
  return holdsLines(vessel.Warnings(), text);
}
inline bool noted(const CVesObj& vessel, std::string_view text) {
  return holdsLines(vessel.Calculations(), text);
}

}  // namespace sizewright
