#pragma once

#include "sizewright/separation/dust_collector.h"
#include "support/item_at_hand.h"

namespace sizewright {

/// A collector DC-1 of the given category and item from RAW to CLEAN and DUST. RAW carries 540,000
/// CFH (150 CFS) of vapor and 1,000 CFH of liquid at 300 DEG F.
inline PlantJson collectorPlant(const char* category, const char* item) {
  PlantJson plant = PlantJson::parse(R"({
    "sizewright": 1, "units": "customary", "simulator": 1,
    "streams": {
      "RAW": {"slots": {"VAPOR MASS FLOW": [54000, "LB/H"], "VAPOR MASS DENSITY": [0.1, "PCF"],
                        "LIQUID MASS FLOW": [50000, "LB/H"], "LIQUID MASS DENSITY": [50, "PCF"],
                        "TEMPERATURE": [300, "DEG F"]}},
      "CLEAN": {"slots": {"VAPOR MASS FLOW": [54000, "LB/H"]}},
      "DUST": {"slots": {}}
    },
    "blocks": {"B1": {"class": 405, "slots": {}}},
    "items": {
      "DC-1": {"model": "COLLECTOR", "block": "B1", "inlets": {"INLET": ["RAW"]},
               "exits": {"OUTLET": ["CLEAN", "DUST"]}, "component": {}, "project": {}}
    },
    "criteria": {"*": {}}
  })");
  plant["items"]["DC-1"]["category"] = category;
  plant["items"]["DC-1"]["item"] = item;
  return plant;
}

/// A collector that a test can set values on.
class CollectorUnderTest : public CDcObj {
 public:
  using CDcObj::CDcObj;
  using CDcObj::data;
  using CDcObj::dc_bag_calc_inj_area;
};

/// The collector DC-1 of a plant, alive with it.
struct CollectorAtHand : ItemAtHand<CollectorUnderTest> {
  explicit CollectorAtHand(const PlantJson& json, int interactive = 0)
      : ItemAtHand(json, "DC-1", interactive) {}

  /// The warnings but for the one that tells the air temperature.
  [[nodiscard]] std::vector<std::string> warnings() const {
    std::vector<std::string> texts;
    const CStrList& list = object->Warnings();
    for (int i = 0; i < list.GetLength(); ++i) {
      const std::string text = list.GetTextAt(i);
      if (text.find("Max Inlet Stream's Temp.") == std::string::npos) texts.push_back(text);
    }
    return texts;
  }
};

// Parts of a plant under construction.
inline PlantJson& slotsOf(PlantJson& plant, const char* stream) {
  return plant["streams"][stream]["slots"];
}
inline PlantJson& itemOf(PlantJson& plant) {
  return plant["items"]["DC-1"];
}
inline PlantJson& recordOf(PlantJson& plant) {
  return itemOf(plant)["component"];
}
inline PlantJson& blockOf(PlantJson& plant) {
  return plant["blocks"]["B1"]["slots"];
}

}  // namespace sizewright
