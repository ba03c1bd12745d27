#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "sizewright/embedded/embedded_host.h"
#include "sizewright/embedded/registry.h"
#include "sizewright/frame/size_equip.h"

namespace sizewright {

/// How an item's sizing object is made.
struct RunForm {
  bool selection = false;  // the selection form, on `block`
  std::string block;
  int interactive = 0;
  std::array<std::string, 5> arguments;  // of the design form
};

/// One item's sizing object on a host, which is attached to the thread for the life of the run.
class ItemRun {
 public:
  /// Selects the item on the host and makes its object. Throws InputError when the item's class is
  /// not available yet.
  ItemRun(EmbeddedHost& host, const PlantItem& item, const RunForm& form = {});

  CSizeEquip& object() { return *object_; }
  [[nodiscard]] std::string_view className() const { return className_; }

  /// Restores the object's fresh state.
  int initialize() { return equipment_->initialize(*object_); }
  /// Sizes, commits and files the item. True when it was sized.
  bool size();

 private:
  HostScope scope_;
  std::string_view className_;
  const EquipmentClass* equipment_;
  std::unique_ptr<CSizeEquip> object_;
};

}  // namespace sizewright
