#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include "sizewright/embedded/plant.h"
#include "sizewright/embedded/plant_database.h"

namespace sizewright {

/// A plant that the user named: a plant file, or a plant database.
std::unique_ptr<Plant> readAnyPlant(const std::filesystem::path& path);

/// The item of that name. Throws InputError when the plant has none.
const PlantItem& itemNamed(const Plant& plant, std::string_view name);

/// The items to size: those that are named, in the order of the plant, or all of them.
std::vector<const PlantItem*> itemsNamed(const Plant& plant, std::span<const std::string> names);

}  // namespace sizewright
