#include "sizewright/embedded/registry.h"

#include <algorithm>
#include <array>

#include "sizewright/fired/cooling_tower.h"
#include "sizewright/host/text.h"
#include "sizewright/rotating/compressor.h"
#include "sizewright/rotating/pump.h"
#include "sizewright/rotating/turbine.h"
#include "sizewright/separation/crusher.h"
#include "sizewright/separation/crystallizer.h"
#include "sizewright/separation/dryer.h"
#include "sizewright/separation/dust_collector.h"
#include "sizewright/separation/filter.h"
#include "sizewright/separation/plain_item.h"
#include "sizewright/separation/screen.h"
#include "sizewright/vessels/vessel.h"

namespace sizewright {

namespace {

template <class Equipment>
std::unique_ptr<CSizeEquip> makeDesign(const DesignForm& form) {
  return std::make_unique<Equipment>(form.interactive, form.first.c_str(), form.projectFile.c_str(),
                                     form.third.c_str(), form.sizeFile.c_str(), form.mode.c_str(),
                                     nullptr, form.project, form.simCase);
}

template <class Equipment>
std::unique_ptr<CSizeEquip> makeSelection(const SelectionForm& form) {
  return std::make_unique<Equipment>(form.project, form.simCase, form.block.c_str(), "", "");
}

template <class Equipment>
int initialize(CSizeEquip& object) {
  return dynamic_cast<Equipment&>(object).Initialize();
}

template <class Equipment>
constexpr EquipmentClass entry(std::string_view name) {
  return {name, makeDesign<Equipment>, makeSelection<Equipment>, initialize<Equipment>};
}

constexpr auto kAvailable = std::to_array<EquipmentClass>({
    entry<CPumpObj>("CPumpObj"),
    entry<CCompObj>("CCompObj"),
    entry<CTurbObj>("CTurbObj"),
    entry<CVesObj>("CVesObj"),
    entry<CCoolTwObj>("CCoolTwObj"),
    entry<CCrshObj>("CCrshObj"),
    entry<CCryObj>("CCryObj"),
    entry<CDcObj>("CDcObj"),
    entry<CDryObj>("CDryObj"),
    entry<CFltObj>("CFltObj"),
    entry<CScObj>("CScObj"),
    entry<CQObj>("CQObj"),
});

struct FamilyRow {
  EQ_CAT_TYPE family;
  std::string_view className;
};

constexpr auto kFamilies = std::to_array<FamilyRow>({
    {EQ_CAT_NONE, "CQObj"},
    {EQ_CAT_COMPRESSOR, "CCompObj"},
    {EQ_CAT_CRUSHER, "CCrshObj"},
    {EQ_CAT_CRYSTALLIZER, "CCryObj"},
    {EQ_CAT_DUST_COLLECTOR, "CDcObj"},
    {EQ_CAT_DRYER, "CDryObj"},
    {EQ_CAT_FILTER, "CFltObj"},
    {EQ_CAT_FURNACE, "CFurObj"},
    {EQ_CAT_HEAT_EXCHANGER, "CHxObj"},
    {EQ_CAT_PLATE_FIN, "CHxPlateFinObj"},
    {EQ_CAT_PUMP, "CPumpObj"},
    {EQ_CAT_SCREEN, "CScObj"},
    {EQ_CAT_TURBINE, "CTurbObj"},
    {EQ_CAT_TOWER, "CTwObj"},
    {EQ_CAT_VESSEL, "CVesObj"},
    {EQ_CAT_MIXER, "CQObj"},
    {EQ_CAT_SIMPLE, "CQObj"},
});

constexpr auto kClassNames = std::to_array<std::string_view>({
    "CPumpObj",
    "CCompObj",
    "CTurbObj",
    "CVesObj",
    "CTwObj",
    "CMultiTwObj",
    "CHxObj",
    "CSideHx",
    "CHxPlateFinObj",
    "CFurObj",
    "CCoolTwObj",
    "CCrshObj",
    "CCryObj",
    "CDcObj",
    "CDryObj",
    "CFltObj",
    "CScObj",
    "CQObj",
});

}  // namespace

std::span<const std::string_view> equipmentClassNames() {
  return kClassNames;
}

std::string_view equipmentClassName(std::string_view wanted, std::string_view categoryCode,
                                    std::string_view itemModel) {
  for (const std::string_view name : kClassNames) {
    if (sameWord(wanted, name)) return name;
  }
  const EQ_CAT_TYPE family = equipmentCategory(categoryCode, itemModel);
  return std::find_if(kFamilies.begin(), kFamilies.end(),
                      [family](const FamilyRow& row) { return row.family == family; })
      ->className;
}

const EquipmentClass* findEquipmentClass(std::string_view name) {
  const auto* const found =
      std::find_if(kAvailable.begin(), kAvailable.end(),
                   [name](const EquipmentClass& row) { return row.name == name; });
  return found != kAvailable.end() ? &*found : nullptr;
}

}  // namespace sizewright
