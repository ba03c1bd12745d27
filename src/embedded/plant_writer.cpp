#include "sizewright/embedded/plant_writer.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <unordered_set>
#include <utility>

#include "sizewright/embedded/data_json.h"
#include "sizewright/embedded/input_error.h"
#include "sizewright/host/text.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

// Appends a member that the object does not have yet; a search for it takes long in large objects.
void append(ordered_json& object, std::string_view name, ordered_json value) {
  object.get_ref<ordered_json::object_t&>().emplace_back(std::string(name), std::move(value));
}

// The slots of an object from the given one on.
ordered_json slotsFrom(const MemoryStore& store, const StoredObject& object, std::size_t first) {
  ordered_json slots = ordered_json::object();
  slots.get_ref<ordered_json::object_t&>().reserve(object.slotNames.size());
  for (std::size_t i = first; i < object.slotNames.size(); ++i) {
    append(slots, store.text(object.slotNames[i]), slotToJson(object.slotValues[i]));
  }
  return slots;
}

// --- Component records --------------------------------------------------------------------------

/// Follows a component record slot by slot, as far as it is what the reader makes by itself.
class RecordCursor {
 public:
  RecordCursor(MemoryStore& store, const StoredObject& record) : store_(store), record_(record) {}

  [[nodiscard]] std::size_t position() const { return position_; }

  /// Whether the next slot has this name; steps over it when it has this value as well.
  bool pass(std::string_view name, const CvdSlot& value) {
    if (!isAt(position_, name) || !(record_.slotValues[position_] == value)) return false;
    ++position_;
    return true;
  }

  /// Steps over the ports of a direction, when that is what comes next; the streams by tag.
  std::optional<ordered_json> passPorts(const PortDirection& direction);

 private:
  [[nodiscard]] bool isAt(std::size_t position, std::string_view name) const {
    return position < record_.slotNames.size() &&
           equalsIgnoringCase(store_.text(record_.slotNames[position]), name);
  }

  MemoryStore& store_;
  const StoredObject& record_;
  std::size_t position_ = 0;
};

bool isStreamName(const std::string& name) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  return !name.empty() && name.size() <= kLongestStreamName &&
         std::none_of(name.begin(), name.end(), isControl);
}

std::optional<ordered_json> RecordCursor::passPorts(const PortDirection& direction) {
  if (!isAt(position_, direction.listSlot)) return std::nullopt;
  const std::vector<std::string> list = record_.slotValues[position_].List();
  ordered_json tags = ordered_json::object();
  const std::string* lastTag = nullptr;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const std::string name = portName(direction, i + 1);
    if (list[i] != name || !isAt(position_ + 1 + i, name)) return std::nullopt;
    const CvdSlot& port = record_.slotValues[position_ + 1 + i];
    const std::vector<std::string>& lines = port.List();
    if (lines.size() != 3 || !isStreamName(lines[0]) || lines[2].empty()) return std::nullopt;
    if (!(port == portValue(store_, lines[0], lines[2]))) return std::nullopt;
    // Ports of one tag stand together in the plant file, so they must do so here.
    if (tags.empty() || *lastTag != lines[2]) {
      for (auto tag = tags.begin(); tag != tags.end(); ++tag) {
        if (equalsIgnoringCase(tag.key(), lines[2])) return std::nullopt;
      }
      append(tags, lines[2], ordered_json::array());
    }
    lastTag = &lines[2];
    tags.back().push_back(lines[0]);
  }
  if (list.empty()) return std::nullopt;
  position_ += 1 + list.size();
  return tags;
}

// Writes the component record into the item: what the reader makes of the item's other members is
// left out, the rest are slots.
void addComponent(Plant& plant, const PlantItem& item, ordered_json& json) {
  const StoredObject* record = plant.componentOf(item);
  if (record == nullptr) return;
  RecordCursor cursor(plant.store, *record);
  const CvdSlot type = typeValue(item);
  std::optional<ordered_json> inlets;
  std::optional<ordered_json> exits;
  if (cursor.pass(kObjectName, CvdSlot::ofText(item.name)) &&
      (!type.IsValid() || cursor.pass(kType, type))) {
    inlets = cursor.passPorts(kInletPorts);
    exits = cursor.passPorts(kExitPorts);
  }
  if (inlets) append(json, kInletPorts.member, std::move(*inlets));
  if (exits) append(json, kExitPorts.member, std::move(*exits));
  ordered_json slots = slotsFrom(plant.store, *record, cursor.position());
  if (!slots.empty()) append(json, "component", std::move(slots));
}

// --- Sections -----------------------------------------------------------------------------------

/// Passes the entries of one section on, after the entry that says that the section is there.
class Section {
 public:
  Section(const EntrySink& sink, std::string_view name) : sink_(sink), name_(name) {}

  void open() {
    if (!isOpen_) sink_({}, name_, ordered_json::object());
    isOpen_ = true;
  }
  void add(std::string_view name, const ordered_json& value) {
    open();
    sink_(name_, name, value);
  }

 private:
  const EntrySink& sink_;
  std::string_view name_;
  bool isOpen_ = false;
};

using ObjectToJson = ordered_json (*)(const Plant& plant, const StoredObject& object);

// Streams, or blocks, of all classes.
void writeObjects(Plant& plant, std::string_view section, const std::vector<StoredObject*>& objects,
                  ObjectToJson toJson, const EntrySink& sink) {
  Section entries(sink, section);
  std::unordered_set<Symbol> names;
  for (const StoredObject* object : objects) {
    const std::string& name = plant.store.text(object->name);
    if (!names.insert(object->name).second) {
      throw InputError(joinPath(section, name), "two classes have one of this name");
    }
    entries.add(name, toJson(plant, *object));
  }
}

// Objects of one class, with their slots.
void writeClass(Plant& plant, std::string_view section, int classNumber, bool isThere,
                const EntrySink& sink) {
  Section entries(sink, section);
  if (isThere) entries.open();
  for (const StoredObject* object : plant.store.database(classNumber).order) {
    entries.add(plant.store.text(object->name), slotsFrom(plant.store, *object, 0));
  }
}

void writeItems(Plant& plant, const EntrySink& sink) {
  Section entries(sink, "items");
  entries.open();
  for (const PlantItem& item : plant.items) entries.add(item.name, itemToJson(plant, item));
}

bool isStandard(std::string_view database) {
  return std::any_of(
      kStandardDatabases.begin(), kStandardDatabases.end(),
      [database](std::string_view name) { return equalsIgnoringCase(name, database); });
}

void writeDatabases(Plant& plant, const EntrySink& sink) {
  MemoryStore& store = plant.store;
  std::unordered_set<Symbol> components;  // of items
  for (const PlantItem& item : plant.items) {
    if (const StoredObject* record = plant.componentOf(item)) components.insert(record->name);
  }
  const auto isWritten = [&](const StoredObject& object, bool inComponents) {
    if (!inComponents) return true;
    if (components.contains(object.name)) return false;
    return plant.hasEquipmentInformation ||
           !equalsIgnoringCase(store.text(object.name), kEquipmentInformation);
  };
  Section databases(sink, kDatabases);
  for (const StoredDatabase* database : store.namedDatabases()) {
    const std::string& name = store.text(database->name);
    const std::string section = std::string(kDatabasePrefix) + name;
    bool isOpen = !isStandard(name);
    if (isOpen) databases.add(name, ordered_json::object());
    for (const StoredObject* object : database->order) {
      if (!isWritten(*object, equalsIgnoringCase(name, kComponents))) continue;
      if (!std::exchange(isOpen, true)) databases.add(name, ordered_json::object());
      sink(section, store.text(object->name), objectToJson(plant, *object));
    }
  }
}

void writeOverlays(const Plant& plant, const EntrySink& sink) {
  Section entries(sink, "property database");
  for (const PropertyOverlay& overlay : plant.propertyDatabase) {
    ordered_json json = overlay.removed ? ordered_json() : ordered_json::object();
    for (const auto& [slot, value] : overlay.slots) {
      append(json, slot, value ? slotToJson(*value) : ordered_json());
    }
    entries.add(overlay.object, json);
  }
}

void writeCharts(const Plant& plant, const EntrySink& sink) {
  Section entries(sink, "charts");
  for (const auto& [object, variables] : plant.charts) {
    ordered_json json = ordered_json::object();
    for (const auto& [variable, chart] : variables) append(json, variable, chartToJson(chart));
    entries.add(object, json);
  }
}

void writeFluids(const Plant& plant, const EntrySink& sink) {
  Section entries(sink, "fluids");
  for (const auto& [name, fluid] : plant.fluids) entries.add(name, fluidToJson(fluid));
}

void writeHead(const Plant& plant, const EntrySink& sink) {
  sink({}, "sizewright", 1);
  if (!plant.name.empty()) sink({}, "name", plant.name);
  if (plant.unitType == 1) sink({}, "units", "metric");
  if (const int type = plant.store.simulatorType(MemoryStore::kCase); type != 0) {
    sink({}, "simulator", type);
  }
}

void writeTail(const Plant& plant, const EntrySink& sink) {
  if (!plant.install.empty()) {
    ordered_json json = ordered_json::object();
    for (const auto& [key, directory] : plant.install) {
      append(json, key, directory ? ordered_json(*directory) : ordered_json());
    }
    sink({}, "install", json);
  }
  if (plant.recordChanges) sink({}, "record changes", true);
  if (!plant.useDefaults) sink({}, "defaults", false);
  for (const auto& [key, text] : plant.extras) sink({}, key, ordered_json::parse(text));
}

}  // namespace

ordered_json itemToJson(Plant& plant, const PlantItem& item) {
  ordered_json json = ordered_json::object();
  if (item.category) append(json, "category", *item.category);
  if (item.itemCode) append(json, "item", *item.itemCode);
  if (item.model) append(json, "model", *item.model);
  if (item.blocks.size() == 1) append(json, "block", item.blocks.front());
  if (item.blocks.size() > 1) append(json, "block", item.blocks);
  if (!item.className.empty()) append(json, "class", item.className);
  addComponent(plant, item, json);
  const StoredObject* project = plant.projectOf(item);
  if (project == nullptr) {
    append(json, "project", nullptr);
  } else if (!project->slotNames.empty()) {
    append(json, "project", slotsFrom(plant.store, *project, 0));
  }
  return json;
}

ordered_json streamToJson(const Plant& plant, const StoredObject& stream) {
  ordered_json json = ordered_json::object();
  const int classNumber = stream.database->classNumber;
  if (classNumber != kProcessStream) append(json, "class", classNumber);
  if (!stream.text.empty()) append(json, "display", stream.text);
  if (!stream.slotNames.empty()) append(json, "slots", slotsFrom(plant.store, stream, 0));
  return json;
}

ordered_json blockToJson(const Plant& plant, const StoredObject& block) {
  ordered_json json = ordered_json::object();
  const int classNumber = block.database->classNumber;
  if (classNumber != kSimulatorBlock) append(json, "class", classNumber);
  if (block.parent != nullptr) append(json, kInherits, plant.store.text(block.parent->name));
  if (!block.slotNames.empty()) append(json, "slots", slotsFrom(plant.store, block, 0));
  return json;
}

ordered_json objectToJson(const Plant& plant, const StoredObject& object) {
  ordered_json json = ordered_json::object();
  if (object.parent != nullptr) append(json, kInherits, plant.store.text(object.parent->name));
  for (std::size_t i = 0; i < object.slotNames.size(); ++i) {
    append(json, plant.store.text(object.slotNames[i]), slotToJson(object.slotValues[i]));
  }
  return json;
}

void writeEntries(Plant& plant, const EntrySink& sink) {
  MemoryStore& store = plant.store;
  writeHead(plant, sink);
  writeObjects(plant, "streams", store.streams(), streamToJson, sink);
  writeObjects(plant, "blocks", store.blocks(), blockToJson, sink);
  writeItems(plant, sink);
  writeClass(plant, "criteria", kDesignCriteria, false, sink);
  if (plant.hasUtilities) writeClass(plant, "utilities", kUtilityStreamEntry, true, sink);
  if (plant.designRules) sink({}, "design rules", designRulesToJson(*plant.designRules));
  writeDatabases(plant, sink);
  writeOverlays(plant, sink);
  writeCharts(plant, sink);
  writeFluids(plant, sink);
  writeTail(plant, sink);
}

}  // namespace sizewright
