#include "sizewright/embedded/plant.h"

#include "sizewright/host/text.h"

namespace sizewright {

int Plant::findItem(std::string_view itemName) const {
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (equalsIgnoringCase(items[i].name, itemName)) return static_cast<int>(i);
  }
  return -1;
}

std::string Plant::modelOf(const PlantItem& item) {
  return item.model.value_or(item.category.value_or("") + " " + item.itemCode.value_or(""));
}

StoredObject* Plant::componentOf(const PlantItem& item) {
  return store.find(store.database("VPECOMP"), item.name);
}

StoredObject* Plant::projectOf(const PlantItem& item) {
  return item.hasProject ? store.find(store.database(kProjectItem), item.name) : nullptr;
}

}  // namespace sizewright
