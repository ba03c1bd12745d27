#include "sizewright/embedded/plant_layout.h"

namespace sizewright {

namespace {

struct StreamClass {
  int number;
  std::string_view text;
};

constexpr auto kStreamClasses = std::to_array<StreamClass>({
    {kUserAddedStream, "USER ADDED PROCESS"},
    {kAddedUtilityStream, "VPE ADDED UTILITY"},
    {kProcessStream, "PROCESS"},
    {kAddedPremapStream, "VPE ADDED PREMAP"},
});

}  // namespace

StoredObject* findStream(MemoryStore& store, std::string_view name) {
  for (const StreamClass& row : kStreamClasses) {
    if (StoredObject* found = store.find(store.database(row.number), name)) return found;
  }
  return nullptr;
}

StoredObject* findBlock(MemoryStore& store, std::string_view name) {
  StoredObject* found = store.find(store.database(kSimulatorBlock), name);
  return found != nullptr ? found : store.find(store.database(kPremappedItem), name);
}

std::string portName(const PortDirection& direction, std::size_t position) {
  return std::string(direction.prefix) + std::to_string(position);
}

CvdSlot portValue(MemoryStore& store, const std::string& stream, const std::string& tag) {
  std::string type;
  for (const StreamClass& row : kStreamClasses) {
    if (store.find(store.database(row.number), stream) != nullptr) {
      type = row.text;
      break;
    }
  }
  return CvdSlot::ofList({stream, std::move(type), tag});
}

CvdSlot typeValue(const PlantItem& item) {
  return item.blocks.empty() ? CvdSlot() : CvdSlot::ofList(item.blocks);
}

}  // namespace sizewright
