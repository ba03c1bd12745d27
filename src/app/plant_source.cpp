#include "sizewright/app/plant_source.h"

#include <algorithm>

#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/registry.h"

namespace sizewright {

std::unique_ptr<Plant> readAnyPlant(const std::filesystem::path& path) {
  return isPlantDatabase(path) ? readPlantDatabase(path, equipmentClassNames())
                               : readPlantFile(path, equipmentClassNames());
}

const PlantItem& itemNamed(const Plant& plant, std::string_view name) {
  const int position = plant.findItem(name);
  if (position < 0) throw InputError(joinPath("items", name), "there is no item of this name");
  return plant.items[static_cast<std::size_t>(position)];
}

std::vector<const PlantItem*> itemsNamed(const Plant& plant, std::span<const std::string> names) {
  std::vector<const PlantItem*> wanted;
  for (const std::string& name : names) wanted.push_back(&itemNamed(plant, name));
  std::vector<const PlantItem*> items;
  for (const PlantItem& item : plant.items) {
    if (names.empty() || std::find(wanted.begin(), wanted.end(), &item) != wanted.end()) {
      items.push_back(&item);
    }
  }
  return items;
}

}  // namespace sizewright
