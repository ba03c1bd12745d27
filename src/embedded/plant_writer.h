#pragma once

#include <nlohmann/json_fwd.hpp>

#include "sizewright/embedded/plant_layout.h"

namespace sizewright {

// A plant as entries: what its reader makes the same plant from. What is as it would be without
// being said is left out.

/// All of a plant, in the order of the plant file. Throws InputError for what a plant file cannot
/// say: two streams, or two blocks, of one name.
void writeEntries(Plant& plant, const EntrySink& sink);

/// The entries of one item, and of a stored object that is not part of an item.
nlohmann::ordered_json itemToJson(Plant& plant, const PlantItem& item);
nlohmann::ordered_json streamToJson(const Plant& plant, const StoredObject& stream);
nlohmann::ordered_json blockToJson(const Plant& plant, const StoredObject& block);
nlohmann::ordered_json objectToJson(const Plant& plant, const StoredObject& object);

}  // namespace sizewright
