#pragma once

#include <nlohmann/json_fwd.hpp>
#include <vector>

#include "sizewright/app/drive.h"
#include "sizewright/embedded/embedded_host.h"

namespace sizewright {

/// Everything that a run of an item did, as one JSON document: its steps, its messages, what it
/// showed, its records as they stand, and what else it changed in the store.
nlohmann::ordered_json reportOf(EmbeddedHost& host, const PlantItem& item, ItemRun& run,
                                const RunForm& form, const std::vector<StepResult>& steps);

/// The objects that the run changed, each once.
std::vector<StoredObject*> changedObjects(const MemoryStore& store);

}  // namespace sizewright
