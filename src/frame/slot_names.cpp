#include <array>
#include <cstring>

#include "sizewright/frame/size_equip.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

constexpr std::string_view kGasFlow = "CpActualGasFlowrateInlet";

// How a row tests the category code. Searching regards case; equality ignores it where it says so.
enum class Category { any, contains, equals, isExactly };

struct SlotNameRow {
  std::string_view generic;
  Category test;
  std::string_view category;
  std::string_view item;  // empty for any item
  std::string_view slot;
};

using enum Category;

// The first row of a quantity that fits decides.
constexpr auto kSlotNames = std::to_array<SlotNameRow>({
    {"DUTY", contains, "FU", "", "CpDuty"},
    {"DUTY", contains, "TW", "", "CpDuty"},
    {"DUTY", contains, "RB", "", "CpDuty"},
    {"DUTY", any, "", "", "DUTY"},

    {"Viscosity", contains, "GP", "", "CpViscosityCS"},
    {"Viscosity", any, "", "", "CpFluidViscosity"},

    {"Diameter", contains, "VT", "CHEST CYL", "CpDiameterInside"},
    {"Diameter", any, "", "", "CpVesselDiameter"},

    {"Exit pressure -gauge", contains, "FN", "CENTRIF", "CpFanOutletGaugePressure"},
    {"Exit pressure -gauge", any, "", "", "CpDesignGaugePressureOutlet"},
    {"CpDesignGaugePressureOutlet", contains, "FN", "CENTRIF", "CpFanOutletGaugePressure"},
    {"CpDesignGaugePressureOutlet", any, "", "", "CpDesignGaugePressureOutlet"},

    {"vessel t-t height", contains, "VT", "STORAGE", "CpVesselHeight"},
    {"vessel t-t height", contains, "VT", "SPHEROID", "CpVesselHeight"},
    {"vessel t-t height", contains, "HT", "", "CpTangentTangentLength"},
    {"vessel t-t height", contains, "VT", "", "CpTangentTangentHeight"},
    {"vessel t-t height", equals, "DAT", "OFF MACH", "CpVesselHeight"},
    {"vessel t-t height", equals, "DAT", "MACH PULP", "CpVesselHeight"},
    {"vessel t-t height", any, "", "", "CpTangentTangentHeight"},

    {"CpDriverPower", equals, "DTUR", "TURBOEXP", "CpPowerOutput"},
    {"CpDriverPower", any, "", "", "CpDriverPower"},

    {"CAPACITY", equals, "EGC", "", kGasFlow},
    {"CAPACITY", equals, "DGC", "", kGasFlow},
    {"CAPACITY", equals, "DTUR", "", kGasFlow},
    {"CAPACITY", equals, "EAC", "", kGasFlow},
    {"CAPACITY", isExactly, "EFN", "", "CpActualGasFlowrate"},
    {"CAPACITY", contains, "VP", "", "CpActualGasFlowrate"},
    {"CAPACITY", any, "", "HD STOCK", "CpStockFlowrateAD"},
    {"CAPACITY", contains, "CP", "", "CpLiquidFlowrate"},
    {"CAPACITY", contains, "GP", "", "CpLiquidFlowrate"},
    {"CAPACITY", contains, "DP", "", "CpLiquidFlowrate"},
    {"CAPACITY", contains, "EP", "", "CpLiquidFlowrate"},
});

struct SameQuantity {
  std::string_view name;
  std::string_view as;
};
constexpr auto kOtherNames = std::to_array<SameQuantity>({
    {"vessel t-t length", "vessel t-t height"},
    {"DRIVER POWER", "CpDriverPower"},
    {"ACTUAL CAPACITY", "CAPACITY"},
});

std::string_view commonName(std::string_view generic) {
  for (const SameQuantity& row : kOtherNames) {
    if (row.name == generic) return row.as;
  }
  return generic;
}

bool fits(const SlotNameRow& row, std::string_view category, std::string_view item) {
  if (!row.item.empty() && !sameWord(item, row.item)) return false;
  switch (row.test) {
    case contains:
      return category.find(row.category) != std::string_view::npos;
    case equals:
      return equalsIgnoringCase(category, row.category);
    case isExactly:
      return category == row.category;
    case any:
      break;
  }
  return true;
}

}  // namespace

int CSizeEquip::GetNewSlotNameField(std::string_view generic, char* out) const {
  const std::string_view wanted = commonName(generic);
  // Unknown quantities read and write the gas flow.
  std::string_view slot = kGasFlow;
  int known = 0;
  for (const SlotNameRow& row : kSlotNames) {
    if (row.generic != wanted || !fits(row, categoryCode, itemCode)) continue;
    slot = row.slot;
    known = 1;
    break;
  }
  std::memcpy(out, slot.data(), slot.size());
  out[slot.size()] = '\0';
  return known;
}

FixedText<64> CSizeEquip::slotFor(std::string_view quantity) const {
  FixedText<64> slot;
  GetNewSlotNameField(quantity, slot.data());
  return slot;
}

FixedText<64> CSizeEquip::resolved(const SlotName& name) const {
  return name.generic ? slotFor(name.text) : FixedText<64>(name.text);
}

}  // namespace sizewright
