#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "support/test_plant.h"

namespace sizewright {

using PlantJson = nlohmann::ordered_json;

/// The object of one item of a plant, alive with it.
template <class Equipment>
struct ItemAtHand {
  using Progress = std::vector<std::pair<int, std::string>>;

  ItemAtHand(const PlantJson& json, const char* item, int interactive)
      : plant(json.dump()), name(item), object(plant.make<Equipment>(item, interactive)) {}

  Equipment* operator->() { return object.get(); }
  [[nodiscard]] const auto& values() const { return object->values(); }
  double number(std::string_view slot) { return plant.number(name, slot); }
  std::string units(std::string_view slot) { return plant.units(name, slot); }
  std::string text(std::string_view slot) { return plant.text(name, slot); }
  bool has(std::string_view slot) { return plant.has(name, slot); }

  /// Progress that an operation on the object reports.
  template <class Operation>
  Progress progressOf(Operation operation) {
    const auto before = static_cast<std::ptrdiff_t>(plant.progress().size());
    operation(*object);
    const Progress all = plant.progress();
    return Progress(all.begin() + before, all.end());
  }

  TestPlant plant;
  std::string name;
  std::unique_ptr<Equipment> object;
};

}  // namespace sizewright
