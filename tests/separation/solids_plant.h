#pragma once

#include "support/item_at_hand.h"

namespace sizewright {

/// A plant of one item X-1 between the streams F (under the given inlet tag) and P (exit tag).
inline PlantJson solidsPlant(const char* category, const char* itemCode, const char* exitTag) {
  PlantJson plant = PlantJson::parse(R"({
    "sizewright": 1, "simulator": 1,
    "streams": {"F": {"slots": {}}, "P": {"slots": {}}},
    "blocks": {"B1": {"class": 405, "slots": {"ITEM MODEL": "BLOCK"}}},
    "items": {"X-1": {"block": "B1", "inlets": {"INLET": ["F"]}, "component": {}, "project": {}}},
    "criteria": {"*": {}}
  })");
  plant["items"]["X-1"]["category"] = category;
  plant["items"]["X-1"]["item"] = itemCode;
  plant["items"]["X-1"]["exits"] = {{exitTag, {"P"}}};
  return plant;
}

inline PlantJson& itemOf(PlantJson& plant) {
  return plant["items"]["X-1"];
}
inline PlantJson& recordOf(PlantJson& plant) {
  return itemOf(plant)["component"];
}
inline PlantJson& blockOf(PlantJson& plant) {
  return plant["blocks"]["B1"]["slots"];
}
inline PlantJson& slotsOf(PlantJson& plant, const char* stream) {
  return plant["streams"][stream]["slots"];
}

/// The object of X-1, alive with its plant.
template <class Equipment>
struct SolidsItem : ItemAtHand<Equipment> {
  explicit SolidsItem(const PlantJson& json, int interactive = 0)
      : ItemAtHand<Equipment>(json, "X-1", interactive) {}
};

/// The object has no form: it takes and shows nothing.
template <class Equipment>
void expectNoForm(const PlantJson& plant) {
  SolidsItem<Equipment> item(plant);
  EXPECT_EQ(item->GetLastInfo(), 0);
  EXPECT_EQ(setForm(*item.object, {{"CpNumberItems", "5"}}), 1);
  EXPECT_EQ(setForm(*item.object, {}), 0);
  EXPECT_TRUE(formOf(*item.object).empty());
}

/// Without one of its ends the object is not sized.
template <class Equipment>
void expectBothEndsNeeded(PlantJson plant) {
  for (const char* end : {"inlets", "exits"}) {
    PlantJson other = plant;
    itemOf(other).erase(end);
    EXPECT_EQ(SolidsItem<Equipment>(other)->Size(), 0) << end;
  }
  EXPECT_EQ(SolidsItem<Equipment>(plant)->Size(), 1);
}

}  // namespace sizewright
