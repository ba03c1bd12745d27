#include "sizewright/embedded/embedded_host.h"

#include <array>
#include <string>

#include "sizewright/embedded/bundled_data.h"
#include "sizewright/embedded/design_criteria.h"
#include "sizewright/embedded/fluid_service.h"
#include "sizewright/embedded/plant_installation.h"
#include "sizewright/embedded/unit_table.h"
#include "sizewright/embedded/utility_file.h"

namespace sizewright {

namespace {

constexpr std::string_view kEquipmentInformation = "equipment information";

// Databases that every project has.
constexpr auto kProjectDatabases = std::to_array<std::string_view>(
    {"VPECOMP", "UTILITY", "DESIGN", "VPEPROJ", "VPEPROC", "PROC", "SIZE"});

template <class Value>
void layOver(std::optional<Value>& value, const std::optional<Value>& given) {
  if (given) value = given;
}

void layOver(Fluid& fluid, const Fluid& given) {
  layOver(fluid.molecularWeight, given.molecularWeight);
  layOver(fluid.boilingPoint, given.boilingPoint);
  layOver(fluid.criticalTemperature, given.criticalTemperature);
  layOver(fluid.criticalPressure, given.criticalPressure);
  layOver(fluid.acentricFactor, given.acentricFactor);
  layOver(fluid.latentHeat, given.latentHeat);
  layOver(fluid.liquidDensity, given.liquidDensity);
  layOver(fluid.liquidDensityTemperature, given.liquidDensityTemperature);
  layOver(fluid.liquidHeatCapacity, given.liquidHeatCapacity);
  layOver(fluid.gasHeatCapacity, given.gasHeatCapacity);
  layOver(fluid.liquidViscosity, given.liquidViscosity);
  layOver(fluid.gasViscosity, given.gasViscosity);
  layOver(fluid.liquidConductivity, given.liquidConductivity);
  layOver(fluid.gasConductivity, given.gasConductivity);
  layOver(fluid.z, given.z);
  layOver(fluid.heatCapacityRatio, given.heatCapacityRatio);
}

FluidTable fluidsOf(const Plant& plant) {
  FluidTable fluids = plant.useDefaults ? bundledData().fluids : FluidTable{};
  for (const auto& [name, fluid] : plant.fluids) layOver(fluids[name], fluid);
  return fluids;
}

ChartTable chartsOf(const Plant& plant) {
  ChartTable charts = plant.useDefaults ? bundledData().charts : ChartTable{};
  for (const auto& [object, variables] : plant.charts) {
    for (const auto& [variable, chart] : variables)
      charts[object].insert_or_assign(variable, chart);
  }
  return charts;
}

DesignRules rulesOf(const Plant& plant) {
  if (plant.designRules) return *plant.designRules;
  return plant.useDefaults ? bundledData().designRules : DesignRules{};
}

void setAll(MemoryStore& store, StoredDatabase& database, const DataObject& object) {
  StoredObject& stored = store.add(database, object.name);
  for (const auto& [slot, value] : object.slots) store.set(stored, slot, value);
}

// Lays the plant's objects over the bundled ones.
void fillPropertyDatabase(Plant& plant, std::string_view directory) {
  MemoryStore& store = plant.store;
  StoredDatabase& database = store.database(kPropertyObjects);
  if (plant.useDefaults) {
    for (const DataObject& object : bundledData().objects) setAll(store, database, object);
  }
  for (const PropertyOverlay& overlay : plant.propertyDatabase) {
    StoredObject& object = store.add(database, overlay.object);
    for (const auto& [slot, value] : overlay.slots) {
      if (value) {
        store.set(object, slot, *value);
      } else {
        store.remove(object, slot);
      }
    }
    if (overlay.removed) store.clear(object);
  }
  store.mount(std::string(directory) + "/pxprop", database);
}

void fillUtilities(Plant& plant) {
  if (plant.hasUtilities || !plant.useDefaults) return;
  for (const DataObject& utility : bundledData().utilities) {
    setAll(plant.store, plant.store.database(kUtilityStreamEntry), utility);
  }
}

}  // namespace

struct EmbeddedHost::Services {
  explicit Services(Plant& plant)
      : units(plant.unitType),
        rules(rulesOf(plant)),
        criteria(plant.store, rules, units),
        properties(fluidsOf(plant), chartsOf(plant)),
        utilities(plant.store),
        installation(plant) {}

  UnitTable units;
  DesignRules rules;
  DesignCriteria criteria;
  FluidService properties;
  UtilityFile utilities;
  PlantInstallation installation;
};

EmbeddedHost::EmbeddedHost(Plant& plant)
    : plant_(plant), services_(std::make_unique<Services>(plant)) {
  MemoryStore& store = plant_.store;
  for (const std::string_view name : kProjectDatabases) store.database(name);
  std::string directory;
  if (services_->installation.directory("SystemCacheDir", directory)) {
    fillPropertyDatabase(plant_, directory);
  }
  fillUtilities(plant_);
  describesItems_ = store.find(store.database("VPECOMP"), kEquipmentInformation) == nullptr;
}

EmbeddedHost::~EmbeddedHost() = default;

ObjectStore& EmbeddedHost::store() {
  return plant_.store;
}
UnitService& EmbeddedHost::units() {
  return services_->units;
}
CriteriaService& EmbeddedHost::criteria() {
  return services_->criteria;
}
PropertyService& EmbeddedHost::properties() {
  return services_->properties;
}
UtilityService& EmbeddedHost::utilities() {
  return services_->utilities;
}
Installation& EmbeddedHost::installation() {
  return services_->installation;
}

CvdSimCase* EmbeddedHost::simCase() {
  return plant_.store.caseIsValid(MemoryStore::kCase) ? &case_ : nullptr;
}

void EmbeddedHost::describe(const PlantItem& item) {
  MemoryStore& store = plant_.store;
  StoredObject& equipment = store.add(store.database("VPECOMP"), kEquipmentInformation);
  const auto say = [&](std::string_view slot, const std::optional<std::string>& text) {
    if (text) {
      store.set(equipment, slot, CvdSlot::ofText(*text));
    } else {
      store.remove(equipment, slot);
    }
  };
  say("component name", item.name);
  say("category code", item.category);
  say("item type code", item.itemCode);
}

std::size_t EmbeddedHost::select(const PlantItem& item) {
  const std::size_t abandoned = lists().reclaim();
  log_.clear();
  if (describesItems_) describe(item);
  plant_.store.recordChanges();
  return abandoned;
}

}  // namespace sizewright
