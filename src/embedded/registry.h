#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "sizewright/frame/size_equip.h"

namespace sizewright {

/// Arguments of a sizing object in the design form.
struct DesignForm {
  int interactive = 0;
  std::string first;
  std::string projectFile;
  std::string third;
  std::string sizeFile;
  std::string mode;
  CvdProject* project = nullptr;
  CvdSimCase* simCase = nullptr;
};

/// Arguments of a sizing object in the selection form.
struct SelectionForm {
  CvdProject* project = nullptr;
  CvdSimCase* simCase = nullptr;
  std::string block;
};

/// An equipment class that the program can make.
struct EquipmentClass {
  std::string_view name;
  std::unique_ptr<CSizeEquip> (*design)(const DesignForm&);
  std::unique_ptr<CSizeEquip> (*selection)(const SelectionForm&);
  /// Restores the fresh state of an object of this class.
  int (*initialize)(CSizeEquip& object);
};

/// Names of all equipment classes, those that are not available yet included.
std::span<const std::string_view> equipmentClassNames();

/// Name of the class that sizes an item: the one it asks for by name, otherwise the class of its
/// family.
std::string_view equipmentClassName(std::string_view wanted, std::string_view categoryCode,
                                    std::string_view itemModel);

/// The class of that name; null when it is not available yet.
const EquipmentClass* findEquipmentClass(std::string_view name);

}  // namespace sizewright
