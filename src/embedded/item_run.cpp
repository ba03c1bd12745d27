#include "sizewright/embedded/item_run.h"

#include "sizewright/embedded/input_error.h"

namespace sizewright {

namespace {

// Model of the simulator block that the item was mapped from.
std::string itemModelOf(EmbeddedHost& host, const PlantItem& item) {
  if (item.blocks.empty()) return {};
  for (const int classNumber : {kSimulatorBlock, kPremappedItem}) {
    MemoryStore& store = host.plant().store;
    const StoredObject* block = store.find(store.database(classNumber), item.blocks.front());
    CvdSlot model;
    if (block != nullptr && store.read(MemoryStore::idOf(block), "ITEM MODEL", true, model)) {
      return model.Text();
    }
  }
  return {};
}

std::unique_ptr<CSizeEquip> make(EmbeddedHost& host, const EquipmentClass& equipment,
                                 const RunForm& form) {
  if (form.selection) {
    return equipment.selection({host.project(), host.simCase(), form.block});
  }
  const auto& [first, projectFile, third, sizeFile, mode] = form.arguments;
  return equipment.design({form.interactive, first, projectFile, third, sizeFile, mode,
                           host.project(), host.simCase()});
}

}  // namespace

ItemRun::ItemRun(EmbeddedHost& host, const PlantItem& item, const RunForm& form)
    : scope_(host),
      className_(
          equipmentClassName(item.className, item.category.value_or(""), itemModelOf(host, item))),
      equipment_(findEquipmentClass(className_)) {
  if (equipment_ == nullptr) {
    throw InputError("items/" + item.name + ": the equipment class " + std::string(className_) +
                     " is not available yet");
  }
  host.select(item);
  object_ = make(host, *equipment_, form);
}

bool ItemRun::size() {
  if (object_->IsValid() == 0) return false;
  const bool sized = object_->Size() != 0;
  object_->Commit();
  object_->UpdateSizeInfo();
  return sized;
}

}  // namespace sizewright
