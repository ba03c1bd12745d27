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

bool isStandard(std::string_view database) {
  return std::any_of(
      kStandardDatabases.begin(), kStandardDatabases.end(),
      [database](std::string_view name) { return equalsIgnoringCase(name, database); });
}

bool isStreamName(const std::string& name) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  return !name.empty() && name.size() <= kLongestStreamName &&
         std::none_of(name.begin(), name.end(), isControl);
}

}  // namespace

PlantWriter::PlantWriter(Plant& plant) : plant_(plant), store_(plant.store) {
  for (const std::string_view name : kStandardDatabases) names_.intern(name);
}

void PlantWriter::write(const EntrySink& sink) {
  writeHead(sink);
  writeObjects("streams", store_.streams(), &PlantWriter::stream, sink);
  writeObjects("blocks", store_.blocks(), &PlantWriter::block, sink);
  writeItems(sink);
  writeClass("criteria", kDesignCriteria, false, sink);
  if (plant_.hasUtilities) writeClass("utilities", kUtilityStreamEntry, true, sink);
  if (plant_.designRules) sink({}, "design rules", designRulesToJson(*plant_.designRules));
  writeDatabases(sink);
  writeOverlays(sink);
  writeCharts(sink);
  writeFluids(sink);
  writeTail(sink);
}

// --- Slots --------------------------------------------------------------------------------------

const std::string& PlantWriter::spelled(Symbol name) {
  return names_.text(names_.intern(store_.text(name)));
}

void PlantWriter::addSlots(Json& json, const StoredObject& object, std::size_t first) {
  for (std::size_t i = first; i < object.slotNames.size(); ++i) {
    append(json, spelled(object.slotNames[i]), slotToJson(object.slotValues[i]));
  }
}

// The slots of an object from the given one on.
ordered_json PlantWriter::slots(const StoredObject& object, std::size_t first) {
  ordered_json json = ordered_json::object();
  addSlots(json, object, first);
  return json;
}

// --- Component records --------------------------------------------------------------------------

bool PlantWriter::isAt(const StoredObject& record, std::size_t position,
                       std::string_view name) const {
  return position < record.slotNames.size() &&
         equalsIgnoringCase(store_.text(record.slotNames[position]), name);
}

// Whether this slot comes next in the record, with this value; steps over it.
bool PlantWriter::passes(const StoredObject& record, std::size_t& position, std::string_view name,
                         const CvdSlot& value) const {
  if (!isAt(record, position, name) || !(record.slotValues[position] == value)) return false;
  ++position;
  return true;
}

// The streams by tag, when what comes next in the record are the ports that the reader would make
// of them; steps over those.
std::optional<ordered_json> PlantWriter::ports(const StoredObject& record, std::size_t& position,
                                               const PortDirection& direction) {
  if (!isAt(record, position, direction.listSlot)) return std::nullopt;
  const std::vector<std::string>& list = record.slotValues[position].List();
  ordered_json tags = ordered_json::object();
  const std::string* lastTag = nullptr;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const std::size_t place = position + 1 + i;
    const std::string name = portName(direction, i + 1);
    if (list[i] != name || !isAt(record, place, name)) return std::nullopt;
    const std::vector<std::string>& lines = record.slotValues[place].List();
    if (lines.size() != 3 || !isStreamName(lines[0]) || lines[2].empty()) return std::nullopt;
    if (!(record.slotValues[place] == portValue(store_, lines[0], lines[2]))) return std::nullopt;
    // Ports of one tag stand together in the plant file, so they must do so here.
    if (lastTag == nullptr || *lastTag != lines[2]) {
      for (auto tag = tags.begin(); tag != tags.end(); ++tag) {
        if (equalsIgnoringCase(tag.key(), lines[2])) return std::nullopt;
      }
      append(tags, lines[2], ordered_json::array());
    }
    lastTag = &lines[2];
    tags.back().push_back(lines[0]);
  }
  if (list.empty()) return std::nullopt;
  names_.intern(direction.listSlot);
  for (const std::string& port : list) names_.intern(port);
  position += 1 + list.size();
  return tags;
}

// Writes the component record into the item: what the reader makes of the item's other members is
// left out, as long as it comes first and in the reader's order; the rest are slots.
void PlantWriter::addComponent(const PlantItem& item, ordered_json& json) {
  const CvdSlot type = typeValue(item);
  names_.intern(kObjectName);
  if (type.IsValid()) names_.intern(kType);
  const StoredObject* record = plant_.componentOf(item);
  if (record == nullptr) return;

  std::size_t position = 0;
  if (passes(*record, position, kObjectName, CvdSlot::ofText(item.name)) &&
      (!type.IsValid() || passes(*record, position, kType, type))) {
    for (const PortDirection& direction : {kInletPorts, kExitPorts}) {
      if (auto streams = ports(*record, position, direction)) {
        append(json, direction.member, std::move(*streams));
      }
    }
  }
  ordered_json rest = slots(*record, position);
  if (!rest.empty()) append(json, "component", std::move(rest));
}

// --- Entries ------------------------------------------------------------------------------------

ordered_json PlantWriter::item(const PlantItem& item) {
  names_.intern(item.name);
  ordered_json json = ordered_json::object();
  if (item.category) append(json, "category", *item.category);
  if (item.itemCode) append(json, "item", *item.itemCode);
  if (item.model) append(json, "model", *item.model);
  if (item.blocks.size() == 1) append(json, "block", item.blocks.front());
  if (item.blocks.size() > 1) append(json, "block", item.blocks);
  if (!item.className.empty()) append(json, "class", item.className);
  addComponent(item, json);
  const StoredObject* project = plant_.projectOf(item);
  if (project == nullptr) {
    append(json, "project", nullptr);
  } else if (!project->slotNames.empty()) {
    append(json, "project", slots(*project, 0));
  }
  return json;
}

ordered_json PlantWriter::stream(const StoredObject& stream) {
  ordered_json json = ordered_json::object();
  const int classNumber = stream.database->classNumber;
  if (classNumber != kProcessStream) append(json, "class", classNumber);
  if (!stream.text.empty()) append(json, "display", stream.text);
  if (!stream.slotNames.empty()) append(json, "slots", slots(stream, 0));
  return json;
}

ordered_json PlantWriter::block(const StoredObject& block) {
  ordered_json json = ordered_json::object();
  const int classNumber = block.database->classNumber;
  if (classNumber != kSimulatorBlock) append(json, "class", classNumber);
  if (block.parent != nullptr) append(json, kInherits, spelled(block.parent->name));
  if (!block.slotNames.empty()) append(json, "slots", slots(block, 0));
  return json;
}

ordered_json PlantWriter::object(const StoredObject& object) {
  ordered_json json = ordered_json::object();
  if (object.parent != nullptr) append(json, kInherits, spelled(object.parent->name));
  addSlots(json, object, 0);
  return json;
}

// --- Sections -----------------------------------------------------------------------------------

void PlantWriter::writeHead(const EntrySink& sink) const {
  sink({}, "sizewright", 1);
  if (!plant_.name.empty()) sink({}, "name", plant_.name);
  if (plant_.unitType == 1) sink({}, "units", "metric");
  if (const int type = store_.simulatorType(MemoryStore::kCase); type != 0) {
    sink({}, "simulator", type);
  }
}

// Streams, or blocks, of all classes.
void PlantWriter::writeObjects(std::string_view section, const std::vector<StoredObject*>& objects,
                               ObjectEntry entry, const EntrySink& sink) {
  Section entries(sink, section);
  std::unordered_set<Symbol> seen;
  for (const StoredObject* object : objects) {
    const std::string& name = spelled(object->name);
    if (!seen.insert(object->name).second) {
      throw InputError(joinPath(section, name), "two classes have one of this name");
    }
    entries.add(name, (this->*entry)(*object));
  }
}

void PlantWriter::writeItems(const EntrySink& sink) {
  Section entries(sink, "items");
  entries.open();
  for (const PlantItem& each : plant_.items) entries.add(each.name, item(each));
}

// Objects of one class, with their slots.
void PlantWriter::writeClass(std::string_view section, int classNumber, bool evenEmpty,
                             const EntrySink& sink) {
  Section entries(sink, section);
  if (evenEmpty) entries.open();
  for (const StoredObject* each : store_.database(classNumber).order) {
    const std::string& name = spelled(each->name);
    entries.add(name, slots(*each, 0));
  }
}

void PlantWriter::writeDatabases(const EntrySink& sink) {
  std::unordered_set<const StoredObject*> leftOut;  // what is part of items, or the host's
  for (const PlantItem& each : plant_.items) leftOut.insert(plant_.componentOf(each));
  if (!plant_.hasEquipmentInformation) {
    leftOut.insert(store_.find(store_.database(kComponents), kEquipmentInformation));
  }
  Section databases(sink, kDatabases);
  for (const StoredDatabase* database : store_.namedDatabases()) {
    const std::string& name = spelled(database->name);
    const std::string section = std::string(kDatabasePrefix) + name;
    bool isOpen = !isStandard(name);
    if (isOpen) databases.add(name, ordered_json::object());
    for (const StoredObject* each : database->order) {
      if (leftOut.contains(each)) continue;
      if (!std::exchange(isOpen, true)) databases.add(name, ordered_json::object());
      const std::string& objectName = spelled(each->name);
      sink(section, objectName, object(*each));
    }
  }
}

void PlantWriter::writeOverlays(const EntrySink& sink) const {
  Section entries(sink, "property database");
  for (const PropertyOverlay& overlay : plant_.propertyDatabase) {
    ordered_json json = overlay.removed ? ordered_json() : ordered_json::object();
    for (const auto& [slot, value] : overlay.slots) {
      append(json, slot, value ? slotToJson(*value) : ordered_json());
    }
    entries.add(overlay.object, json);
  }
}

void PlantWriter::writeCharts(const EntrySink& sink) const {
  Section entries(sink, "charts");
  for (const auto& [object, variables] : plant_.charts) {
    ordered_json json = ordered_json::object();
    for (const auto& [variable, chart] : variables) append(json, variable, chartToJson(chart));
    entries.add(object, json);
  }
}

void PlantWriter::writeFluids(const EntrySink& sink) const {
  Section entries(sink, "fluids");
  for (const auto& [name, fluid] : plant_.fluids) entries.add(name, fluidToJson(fluid));
}

void PlantWriter::writeTail(const EntrySink& sink) const {
  if (!plant_.install.empty()) {
    ordered_json json = ordered_json::object();
    for (const auto& [key, directory] : plant_.install) {
      append(json, key, directory ? ordered_json(*directory) : ordered_json());
    }
    sink({}, "install", json);
  }
  if (plant_.recordChanges) sink({}, "record changes", true);
  if (!plant_.useDefaults) sink({}, "defaults", false);
  for (const auto& [key, text] : plant_.extras) sink({}, key, ordered_json::parse(text));
}

}  // namespace sizewright
