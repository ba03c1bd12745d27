#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "sizewright/embedded/fluid_data.h"
#include "sizewright/embedded/memory_store.h"

namespace sizewright {

/// An item of a plant. Its slots are in the store: the component record in the database VPECOMP,
/// the project's view as a project item, both under the item's name.
struct PlantItem {
  std::string name;
  std::optional<std::string> category;  // mapping category code
  std::optional<std::string> itemCode;  // item type code
  std::optional<std::string> model;     // of the project object, where it is not the default one
  std::vector<std::string> blocks;      // that the item was mapped from
  std::string className;                // of the sizing class, where the category cannot tell
  bool hasProject = true;
};

/// A slot or object of the property database that a plant lays over the bundled one; without a
/// value it is removed.
struct PropertyOverlay {
  std::string object;
  bool removed = false;
  std::vector<std::pair<std::string, std::optional<CvdSlot>>> slots;
};

/// Everything that the embedded host knows of one plant; what a plant file says.
struct Plant {
  std::string name;
  int unitType = 0;  // 0 customary, 1 metric
  std::vector<PlantItem> items;
  MemoryStore store;
  bool recordChanges = false;
  bool useDefaults = true;  // lay the plant's data over the bundled data

  std::optional<DesignRules> designRules;  // absent: the default rules
  bool hasUtilities = false;               // false: the bundled utilities, where used
  /// The plant itself says what VPECOMP "equipment information" holds, for every item.
  bool hasEquipmentInformation = false;
  std::vector<PropertyOverlay> propertyDatabase;
  ChartTable charts;
  FluidTable fluids;
  /// Registered directories; a key without a value is not registered.
  std::vector<std::pair<std::string, std::optional<std::string>>> install;
  /// Members that begin with "x-", kept as JSON texts.
  std::vector<std::pair<std::string, std::string>> extras;

  /// Position of the item of that name, without regard to case; -1 when there is none.
  [[nodiscard]] int findItem(std::string_view itemName) const;
  /// Model text of an item's project object.
  [[nodiscard]] static std::string modelOf(const PlantItem& item);
  /// The records of an item; null when it has none.
  [[nodiscard]] StoredObject* componentOf(const PlantItem& item);
  [[nodiscard]] StoredObject* projectOf(const PlantItem& item);
};

}  // namespace sizewright
