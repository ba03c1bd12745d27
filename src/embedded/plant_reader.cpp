#include "sizewright/embedded/plant_reader.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "sizewright/embedded/data_json.h"
#include "sizewright/embedded/json_printer.h"
#include "sizewright/host/text.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

constexpr int kVersion = 1;  // of the format

const JsonRule* entryRule(const JsonSchema& schema, std::string_view section) {
  return JsonSchema::member(*JsonSchema::member(schema.root(), section), "*");
}

bool isControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

bool isAscending(const std::vector<double>& numbers) {
  return std::adjacent_find(numbers.begin(), numbers.end(), std::greater_equal<>()) ==
         numbers.end();
}

void checkVersion(const ordered_json& value) {
  if (!value.is_number_unsigned() || value == kVersion) return;
  throw InputError("sizewright", "version " + value.dump() + " of the format; this program reads " +
                                     "version " + std::to_string(kVersion));
}

void checkChart(const std::string& path, const Chart& chart) {
  if (!isAscending(chart.x)) throw InputError(path + "/x", "expected ascending numbers");
  if (!isAscending(chart.y)) throw InputError(path + "/y", "expected ascending numbers");
  if (chart.y.front() <= 0.0) throw InputError(path + "/y", "expected numbers above 0");
  const auto fits = [&chart](const std::vector<double>& row) {
    return row.size() == chart.y.size();
  };
  if (chart.z.size() != chart.x.size() || !std::all_of(chart.z.begin(), chart.z.end(), fits)) {
    throw InputError(path + "/z", "expected " + std::to_string(chart.x.size()) + " lists of " +
                                      std::to_string(chart.y.size()) + " numbers");
  }
}

// The names from the first object to the last; of a long chain its ends.
std::string chainText(const MemoryStore& store, const std::vector<const StoredObject*>& chain) {
  constexpr std::size_t kShown = 4;
  std::string result;
  for (std::size_t i = 0; i < chain.size(); ++i) {
    if (i >= kShown && i + kShown < chain.size()) continue;
    if (i > 0) result += " -> ";
    if (i > kShown && i + kShown == chain.size()) result += "... -> ";
    result += shortened(store.text(chain[i]->name));
  }
  return result;
}

}  // namespace

struct PlantReader::Rules {
  const JsonRule* stream;
  const JsonRule* block;
  const JsonRule* item;
  const JsonRule* criteria;
  const JsonRule* utility;
  const JsonRule* database;
  const JsonRule* object;
  const JsonRule* overlay;
  const JsonRule* charts;
  const JsonRule* fluid;
};

PlantReader::PlantReader(std::span<const std::string_view> knownClasses)
    : knownClasses_(knownClasses),
      schema_("schemas/plant.schema.json"),
      plant_(std::make_unique<Plant>()) {
  const JsonRule* database = entryRule(schema_, kDatabases);
  rules_ = std::make_unique<Rules>(Rules{
      entryRule(schema_, "streams"), entryRule(schema_, "blocks"), entryRule(schema_, "items"),
      entryRule(schema_, "criteria"), entryRule(schema_, "utilities"), database,
      JsonSchema::member(*database, "*"), entryRule(schema_, "property database"),
      entryRule(schema_, "charts"), entryRule(schema_, "fluids")});
  for (const std::string_view name : kStandardDatabases) plant_->store.database(name);
}

PlantReader::~PlantReader() = default;

std::span<const PlantReader::MemberRow> PlantReader::memberRows() {
  static constexpr auto kRows = std::to_array<MemberRow>({
      {"name", &PlantReader::takeName},
      {"units", &PlantReader::takeUnits},
      {"simulator", &PlantReader::takeSimulator},
      {"design rules", &PlantReader::takeDesignRules},
      {"install", &PlantReader::takeInstall},
      {"record changes", &PlantReader::takeRecordChanges},
      {"defaults", &PlantReader::takeDefaults},
  });
  return kRows;
}

std::span<const PlantReader::SectionRow> PlantReader::sectionRows() {
  static constexpr auto kRows = std::to_array<SectionRow>({
      {"streams", &PlantReader::takeStream, [](const Rules& r) { return r.stream; }},
      {"blocks", &PlantReader::takeBlock, [](const Rules& r) { return r.block; }},
      {"items", &PlantReader::takeItem, [](const Rules& r) { return r.item; }},
      {"criteria", &PlantReader::takeCriteria, [](const Rules& r) { return r.criteria; }},
      {"utilities", &PlantReader::takeUtility, [](const Rules& r) { return r.utility; }},
      {kDatabases, &PlantReader::takeDatabase, [](const Rules& r) { return r.database; }},
      {"property database", &PlantReader::takeOverlay, [](const Rules& r) { return r.overlay; }},
      {"charts", &PlantReader::takeCharts, [](const Rules& r) { return r.charts; }},
      {"fluids", &PlantReader::takeFluid, [](const Rules& r) { return r.fluid; }},
  });
  return kRows;
}

void PlantReader::take(std::string_view section, std::string_view name, const Json& value) {
  section_ = shortened(section);
  if (name.empty()) throw InputError(section_, "empty name");
  if (!isNew(section, name)) throw InputError(path(name), "duplicate key");
  if (section.empty()) return takeMember(name, value);
  if (section.starts_with(kDatabasePrefix)) {
    schema_.check(*rules_->object, value, path(name));
    return takeObject(section.substr(kDatabasePrefix.size()), name, value);
  }
  for (const SectionRow& row : sectionRows()) {
    if (row.name != section) continue;
    schema_.check(*row.rule(*rules_), value, path(name));
    return (this->*row.take)(name, value);
  }
  throw InputError(section_, "unknown key");
}

std::string PlantReader::path(std::string_view name) const {
  return joinPath(section_, name);
}

bool PlantReader::isNew(std::string_view section, std::string_view name) {
  const auto first = static_cast<std::uint64_t>(names_.intern(section));
  const auto second = static_cast<std::uint64_t>(names_.intern(name));
  return seen_.insert(first << 32U | second).second;
}

void PlantReader::checkName(std::string_view path, std::string_view name,
                            std::size_t longest) const {
  if (name.size() > longest) {
    throw InputError(path, "name longer than " + std::to_string(longest) + " bytes");
  }
  if (std::any_of(name.begin(), name.end(), isControl)) {
    throw InputError(path, "control character in a name");
  }
}

void PlantReader::setSlots(StoredObject& object, const Json& slots) {
  for (auto slot = slots.begin(); slot != slots.end(); ++slot) {
    plant_->store.set(object, slot.key(), slotFromJson(*slot));
  }
}

// --- Members of the plant file itself -----------------------------------------------------------

void PlantReader::takeMember(std::string_view name, const Json& value) {
  if (isExtra(name)) return takeExtra(name, value);
  const JsonRule* rule = JsonSchema::member(schema_.root(), name);
  if (rule == nullptr) throw InputError(path(name), "unknown key");
  if (name == "sizewright") checkVersion(value);
  schema_.check(*rule, value, path(name));
  if (name == "items") hasItems_ = true;
  if (name == "utilities") plant_->hasUtilities = true;

  if (isSection(name)) {
    for (auto entry = value.begin(); entry != value.end(); ++entry) take(name, entry.key(), *entry);
    return;
  }
  for (const MemberRow& row : memberRows()) {
    if (row.name == name) return (this->*row.take)(value);
  }
}

void PlantReader::takeExtra(std::string_view name, const Json& value) {
  std::string text;
  printJson(text, value);
  plant_->extras.emplace_back(name, std::move(text));
}

void PlantReader::takeName(const Json& value) {
  plant_->name = value.get_ref<const std::string&>();
}

void PlantReader::takeUnits(const Json& value) {
  plant_->unitType = value == "metric" ? 1 : 0;
}

void PlantReader::takeSimulator(const Json& value) {
  plant_->store.setSimulator(value.get<int>());
}

void PlantReader::takeDesignRules(const Json& value) {
  plant_->designRules = designRulesFromJson(value);
}

void PlantReader::takeInstall(const Json& value) {
  for (auto row = value.begin(); row != value.end(); ++row) {
    std::optional<std::string> directory;
    if (!row->is_null()) directory = row->get<std::string>();
    plant_->install.emplace_back(row.key(), std::move(directory));
  }
}

void PlantReader::takeRecordChanges(const Json& value) {
  plant_->recordChanges = value.get<bool>();
}

void PlantReader::takeDefaults(const Json& value) {
  plant_->useDefaults = value.get<bool>();
}

// --- Entries of sections ------------------------------------------------------------------------

void PlantReader::takeStream(std::string_view name, const Json& value) {
  checkName(path(name), name, kLongestStreamName);
  const int classNumber = value.value("class", static_cast<int>(kProcessStream));
  StoredObject& stream = plant_->store.add(plant_->store.database(classNumber), name);
  stream.text = value.value("display", std::string());
  if (const auto slots = value.find("slots"); slots != value.end()) setSlots(stream, *slots);
}

void PlantReader::takeBlock(std::string_view name, const Json& value) {
  checkName(path(name), name, kLongestName);
  const int classNumber = value.value("class", static_cast<int>(kSimulatorBlock));
  StoredObject& block = plant_->store.add(plant_->store.database(classNumber), name);
  if (const auto parent = value.find(kInherits); parent != value.end()) {
    inherit(block, *parent, path(name));
  }
  if (const auto slots = value.find("slots"); slots != value.end()) setSlots(block, *slots);
}

void PlantReader::takeCriteria(std::string_view name, const Json& value) {
  setSlots(plant_->store.add(plant_->store.database(kDesignCriteria), name), value);
}

void PlantReader::takeUtility(std::string_view name, const Json& value) {
  setSlots(plant_->store.add(plant_->store.database(kUtilityStreamEntry), name), value);
}

void PlantReader::takeDatabase(std::string_view name, const Json& value) {
  plant_->store.database(name);
  const std::string section = std::string(kDatabasePrefix).append(name);
  for (auto object = value.begin(); object != value.end(); ++object) {
    take(section, object.key(), *object);
  }
}

void PlantReader::takeObject(std::string_view database, std::string_view name, const Json& value) {
  StoredDatabase& target = plant_->store.database(database);
  if (equalsIgnoringCase(database, kComponents)) {
    if (plant_->store.find(target, name) != nullptr) {
      throw InputError(path(name), "the item of this name keeps these slots as its \"component\"");
    }
    if (equalsIgnoringCase(name, kEquipmentInformation)) plant_->hasEquipmentInformation = true;
  }
  StoredObject& object = plant_->store.add(target, name);
  for (auto slot = value.begin(); slot != value.end(); ++slot) {
    if (slot.key() == kInherits) {
      inherit(object, *slot, path(name));
    } else if (equalsIgnoringCase(slot.key(), kInherits)) {
      throw InputError(joinPath(path(name), slot.key()), "no name for a slot here");
    } else {
      plant_->store.set(object, slot.key(), slotFromJson(*slot));
    }
  }
}

void PlantReader::takeOverlay(std::string_view name, const Json& value) {
  PropertyOverlay& overlay = plant_->propertyDatabase.emplace_back();
  overlay.object = name;
  overlay.removed = value.is_null();
  for (auto slot = value.begin(); slot != value.end(); ++slot) {
    std::optional<CvdSlot> content;
    if (!slot->is_null()) content = slotFromJson(*slot);
    overlay.slots.emplace_back(slot.key(), std::move(content));
  }
}

void PlantReader::takeCharts(std::string_view name, const Json& value) {
  const auto [object, isNewObject] = plant_->charts.try_emplace(std::string(name));
  if (!isNewObject) throw InputError(path(name), "duplicate key");
  for (auto variable = value.begin(); variable != value.end(); ++variable) {
    const std::string place = joinPath(path(name), variable.key());
    Chart chart = chartFromJson(*variable);
    checkChart(place, chart);
    if (!object->second.emplace(variable.key(), std::move(chart)).second) {
      throw InputError(place, "duplicate key");
    }
  }
}

void PlantReader::takeFluid(std::string_view name, const Json& value) {
  if (!plant_->fluids.emplace(name, fluidFromJson(value)).second) {
    throw InputError(path(name), "duplicate key");
  }
}

// --- Items --------------------------------------------------------------------------------------

void PlantReader::takeItem(std::string_view name, const Json& value) {
  const std::string place = path(name);
  checkName(place, name, kLongestName);
  if (equalsIgnoringCase(name, kEquipmentInformation)) throw InputError(place, "reserved name");

  PlantItem& item = plant_->items.emplace_back();
  item.name = name;
  const auto text = [&value](std::string_view key) -> std::optional<std::string> {
    const auto found = value.find(key);
    if (found == value.end()) return std::nullopt;
    return found->get<std::string>();
  };
  item.category = text("category");
  item.itemCode = text("item");
  if (auto model = text("model"); model && *model != Plant::modelOf(item)) item.model = model;
  item.className = text("class").value_or("");
  if (value.contains("class") && std::find(knownClasses_.begin(), knownClasses_.end(),
                                           item.className) == knownClasses_.end()) {
    throw InputError(place + "/class",
                     "no sizing class is named \"" + shortened(item.className) + '"');
  }
  if (const auto blocks = value.find("block"); blocks != value.end()) {
    if (blocks->is_string()) item.blocks = {blocks->get<std::string>()};
    if (blocks->is_array()) item.blocks = blocks->get<std::vector<std::string>>();
  }
  addComponent(item, value, place);

  const auto project = value.find("project");
  item.hasProject = project == value.end() || !project->is_null();
  if (!item.hasProject) return;
  StoredObject& object = plant_->store.add(plant_->store.database(kProjectItem), name);
  object.text = Plant::modelOf(item);
  if (project != value.end()) setSlots(object, *project);
}

void PlantReader::addComponent(const PlantItem& item, const Json& value, const std::string& path) {
  MemoryStore& store = plant_->store;
  StoredDatabase& components = store.database(kComponents);
  if (store.find(components, item.name) != nullptr) {
    throw InputError(joinPath("databases/VPECOMP", item.name),
                     "the item of this name keeps these slots as its \"component\"");
  }
  StoredObject& record = store.add(components, item.name);
  store.set(record, kObjectName, CvdSlot::ofText(item.name));
  if (CvdSlot type = typeValue(item); type.IsValid()) store.set(record, kType, std::move(type));
  addPorts(record, kInletPorts, value, path);
  addPorts(record, kExitPorts, value, path);
  if (const auto slots = value.find("component"); slots != value.end()) setSlots(record, *slots);
}

void PlantReader::addPorts(StoredObject& record, const PortDirection& direction, const Json& item,
                           const std::string& path) {
  const auto connections = item.find(direction.member);
  if (connections == item.end()) return;
  struct Port {
    std::string name;
    std::string stream;
    std::string tag;
  };
  std::vector<Port> ports;
  std::vector<std::string> list;
  for (auto tag = connections->begin(); tag != connections->end(); ++tag) {
    for (const Json& stream : *tag) {
      const auto& name = stream.get_ref<const std::string&>();
      checkName(joinPath(joinPath(path, direction.member), tag.key()), name, kLongestStreamName);
      ports.push_back({portName(direction, ports.size() + 1), name, tag.key()});
      list.push_back(ports.back().name);
    }
  }
  if (ports.empty()) return;

  const auto component = item.find("component");
  const auto isReplaced = [&](const std::string& slot) {
    if (component == item.end()) return false;
    for (auto own = component->begin(); own != component->end(); ++own) {
      if (equalsIgnoringCase(own.key(), slot)) return true;
    }
    return false;
  };
  MemoryStore& store = plant_->store;
  store.set(record, direction.listSlot, CvdSlot::ofList(std::move(list)));
  for (const Port& port : ports) {
    store.set(record, port.name, portValue(store, port.stream, port.tag));
    if (findStream(store, port.stream) == nullptr && !isReplaced(port.name)) {
      openPorts_.push_back({&record, port.name, port.stream, port.tag});
    }
  }
}

void PlantReader::inherit(StoredObject& object, const Json& target, const std::string& path) {
  openParents_.push_back({&object, target.get<std::string>(), joinPath(path, kInherits)});
}

// --- What entries say of each other -------------------------------------------------------------

std::unique_ptr<Plant> PlantReader::finish() {
  if (!hasItems_) throw InputError("missing key \"items\"");
  settlePorts();
  settleBlocks();
  settleParents();
  return std::move(plant_);
}

void PlantReader::settlePorts() {
  MemoryStore& store = plant_->store;
  for (const OpenPort& port : openPorts_) {
    if (findStream(store, port.stream) == nullptr) continue;
    store.set(*port.record, port.port, portValue(store, port.stream, port.tag));
  }
}

void PlantReader::settleBlocks() {
  for (const PlantItem& item : plant_->items) {
    for (const std::string& block : item.blocks) {
      if (findBlock(plant_->store, block) != nullptr) continue;
      throw InputError(joinPath("items", item.name) + "/block",
                       "no block is named \"" + shortened(block) + '"');
    }
  }
}

void PlantReader::settleParents() {
  MemoryStore& store = plant_->store;
  for (const OpenParent& open : openParents_) {
    StoredDatabase& database = *open.object->database;
    StoredObject* parent = database.classNumber != 0 ? findBlock(store, open.target)
                                                     : store.find(database, open.target);
    if (parent == nullptr) {
      throw InputError(open.path,
                       std::string(database.classNumber != 0 ? "no block" : "no object") +
                           " is named \"" + shortened(open.target) + '"');
    }
    open.object->parent = parent;
  }
  for (const OpenParent& open : openParents_) checkChain(*open.object, open.path);
}

// What an object inherits from must end, within as many objects as the store looks through.
void PlantReader::checkChain(const StoredObject& object, const std::string& path) const {
  std::vector<const StoredObject*> chain = {&object};
  while (const StoredObject* next = chain.back()->parent) {
    const bool isCycle = std::find(chain.begin(), chain.end(), next) != chain.end();
    chain.push_back(next);
    if (isCycle) throw InputError(path, "cycle: " + chainText(plant_->store, chain));
    if (chain.size() > static_cast<std::size_t>(MemoryStore::kInheritanceDepth)) {
      throw InputError(path, "a chain of more than " +
                                 std::to_string(MemoryStore::kInheritanceDepth) + " objects");
    }
  }
}

}  // namespace sizewright
