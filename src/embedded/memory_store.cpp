#include "sizewright/embedded/memory_store.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

#include "sizewright/host/host.h"
#include "sizewright/host/text.h"

namespace sizewright {

namespace {

constexpr std::size_t kIndexedFrom = 32;  // slots of an object
constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

constexpr std::array<int, 4> kStreamClasses = {kUserAddedStream, kAddedUtilityStream,
                                               kProcessStream, kAddedPremapStream};

constexpr std::string_view kComponentDatabase = "VPECOMP";
constexpr std::string_view kInletPorts = "__STREAMS__IN";
constexpr std::string_view kExitPorts = "__STREAMS__EX";

bool isStreamClass(int classNumber) {
  return std::find(kStreamClasses.begin(), kStreamClasses.end(), classNumber) !=
         kStreamClasses.end();
}
bool isBlockClass(int classNumber) {
  return classNumber == kSimulatorBlock || classNumber == kPremappedItem;
}

std::string samePath(std::string_view path) {
  std::string result(path);
  std::replace(result.begin(), result.end(), '\\', '/');
  return result;
}

}  // namespace

ObjectId MemoryStore::idOf(const StoredObject* object) {
  return static_cast<ObjectId>(reinterpret_cast<std::uintptr_t>(object));
}

StoredObject* MemoryStore::objectOf(ObjectId id) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): ids are made from these pointers only
  return reinterpret_cast<StoredObject*>(static_cast<std::uintptr_t>(id));
}

// --- Filling and inspecting ---------------------------------------------------------------------

StoredDatabase& MemoryStore::database(std::string_view name) {
  StoredDatabase*& found = byName_[names_.intern(name)];
  if (found == nullptr) {
    found = &databases_.emplace_back();
    found->name = names_.intern(name);
    named_.push_back(found);
  }
  return *found;
}

StoredDatabase& MemoryStore::database(int classNumber) {
  StoredDatabase*& found = byClass_[classNumber];
  if (found == nullptr) {
    found = &databases_.emplace_back();
    found->classNumber = classNumber;
  }
  return *found;
}

StoredDatabase* MemoryStore::findDatabase(std::string_view name) {
  const auto found = byName_.find(names_.find(name));
  return found != byName_.end() ? found->second : nullptr;
}

StoredDatabase* MemoryStore::classDatabase(int classNumber) const {
  const auto found = byClass_.find(classNumber);
  return found != byClass_.end() ? found->second : nullptr;
}

// The object of that name, whether stored or not.
StoredObject* MemoryStore::open(StoredDatabase* database, std::string_view name) {
  if (database == nullptr || name.empty()) return nullptr;
  StoredObject*& found = database->objects[names_.intern(name)];
  if (found == nullptr) {
    found = &objects_.emplace_back();
    found->database = database;
    found->name = names_.intern(name);
  }
  return found;
}

void MemoryStore::enlist(StoredObject& object) {
  if (object.stored) return;
  object.stored = true;
  object.database->order.push_back(&object);
  if (isStreamClass(object.database->classNumber)) streams_.push_back(&object);
  if (isBlockClass(object.database->classNumber)) blocks_.push_back(&object);
}

StoredObject& MemoryStore::add(StoredDatabase& database, std::string_view name) {
  StoredObject& object = *open(&database, name);
  enlist(object);
  return object;
}

StoredObject* MemoryStore::find(StoredDatabase& database, std::string_view name) const {
  const auto found = database.objects.find(names_.find(name));
  return found != database.objects.end() && found->second->stored ? found->second : nullptr;
}

void MemoryStore::set(StoredObject& object, std::string_view slot, CvdSlot value) {
  put(object, names_.intern(slot), std::move(value));
}

bool MemoryStore::remove(StoredObject& object, std::string_view slot) {
  return take(object, names_.find(slot));
}

CvdSlot MemoryStore::get(const StoredObject& object, std::string_view slot) const {
  const CvdSlot* value = slotOf(object, names_.find(slot));
  return value != nullptr ? *value : CvdSlot();
}

void MemoryStore::clear(StoredObject& object) {
  object.slotNames.clear();
  object.slotValues.clear();
  object.index.reset();
  if (!object.stored) return;
  object.stored = false;
  std::erase(object.database->order, &object);
  std::erase(streams_, &object);
  std::erase(blocks_, &object);
}

void MemoryStore::mount(std::string_view path, StoredDatabase& database) {
  mounts_[names_.intern(samePath(path))] = &database;
}

// --- Slots of an object -------------------------------------------------------------------------

std::size_t MemoryStore::position(const StoredObject& object, Symbol slot) {
  if (slot == Symbol::none) return kNowhere;
  if (object.index != nullptr) {
    const auto found = object.index->find(slot);
    return found != object.index->end() ? found->second : kNowhere;
  }
  const auto found = std::find(object.slotNames.begin(), object.slotNames.end(), slot);
  return found != object.slotNames.end()
             ? static_cast<std::size_t>(found - object.slotNames.begin())
             : kNowhere;
}

const CvdSlot* MemoryStore::slotOf(const StoredObject& object, Symbol slot) const {
  const std::size_t place = position(object, slot);
  return place != kNowhere ? &object.slotValues[place] : nullptr;
}

void MemoryStore::put(StoredObject& object, Symbol slot, CvdSlot value) {
  const std::size_t place = position(object, slot);
  if (place != kNowhere) {
    object.slotValues[place] = std::move(value);
    return;
  }
  object.slotNames.push_back(slot);
  object.slotValues.push_back(std::move(value));
  const std::size_t count = object.slotNames.size();
  if (object.index != nullptr) {
    object.index->emplace(slot, count - 1);
  } else if (count >= kIndexedFrom) {
    object.index = std::make_unique<std::unordered_map<Symbol, std::size_t>>();
    for (std::size_t i = 0; i < count; ++i) object.index->emplace(object.slotNames[i], i);
  }
}

bool MemoryStore::take(StoredObject& object, Symbol slot) {
  const std::size_t place = position(object, slot);
  if (place == kNowhere) return false;
  const auto offset = static_cast<std::ptrdiff_t>(place);
  object.slotNames.erase(object.slotNames.begin() + offset);
  object.slotValues.erase(object.slotValues.begin() + offset);
  if (object.index != nullptr) {
    object.index->erase(slot);
    for (auto& [name, index] : *object.index) {
      if (index > place) --index;
    }
  }
  return true;
}

// --- Changes ------------------------------------------------------------------------------------

void MemoryStore::recordChanges() {
  recording_ = true;
  journal_.clear();
}

void MemoryStore::note(StoredObject& object, Symbol slot) {
  if (!recording_) return;
  const CvdSlot* value = slotOf(object, slot);
  journal_.push_back({&object, slot, value != nullptr ? *value : CvdSlot()});
}

std::vector<SlotChange> MemoryStore::changes() const {
  std::map<std::pair<const StoredObject*, Symbol>, bool> seen;
  std::vector<SlotChange> result;
  for (const SlotChange& change : journal_) {
    if (!seen.emplace(std::pair(change.object, change.slot), true).second) continue;
    const CvdSlot* now = slotOf(*change.object, change.slot);
    const CvdSlot after = now != nullptr ? *now : CvdSlot();
    if (!(after == change.before)) result.push_back(change);
  }
  return result;
}

// --- ObjectStore --------------------------------------------------------------------------------

bool MemoryStore::projectIsValid(unsigned project) const {
  return project == kProject;
}
bool MemoryStore::caseIsValid(unsigned simCase) const {
  return simCase == kCase && simulator_ != 0;
}
int MemoryStore::simulatorType(unsigned simCase) const {
  return caseIsValid(simCase) ? simulator_ : 0;
}

bool MemoryStore::databaseExists(unsigned project, std::string_view name) const {
  return project == kProject && byName_.contains(names_.find(name));
}

bool MemoryStore::createDatabase(unsigned project, std::string_view name) {
  if (project != kProject || name.empty()) return false;
  database(name);
  return true;
}

bool MemoryStore::deleteDatabase(unsigned project, std::string_view name) {
  StoredDatabase* found = project == kProject ? findDatabase(name) : nullptr;
  if (found == nullptr) return true;
  for (StoredObject* object : std::vector<StoredObject*>(found->order)) {
    for (const Symbol slot : object->slotNames) note(*object, slot);
    clear(*object);
  }
  byName_.erase(found->name);
  std::erase(named_, found);
  return true;
}

bool MemoryStore::systemDatabaseExists(std::string_view path) const {
  return mounts_.contains(names_.find(samePath(path)));
}

ObjectId MemoryStore::object(unsigned project, std::string_view databaseName, std::string_view name,
                             bool create) {
  if (project != kProject) return ObjectId::none;
  StoredObject* found = open(findDatabase(databaseName), name);
  if (found != nullptr && create) enlist(*found);
  return idOf(found);
}

ObjectId MemoryStore::systemObject(std::string_view path, std::string_view name) {
  const auto mount = mounts_.find(names_.find(samePath(path)));
  return mount != mounts_.end() ? openStored(mount->second, name, false) : ObjectId::none;
}

ObjectId MemoryStore::openStored(StoredDatabase* database, std::string_view name, bool create) {
  if (database == nullptr || name.empty()) return ObjectId::none;
  return idOf(create ? &add(*database, name) : find(*database, name));
}

ObjectId MemoryStore::caseObject(unsigned simCase, int classNumber, std::string_view name) {
  if (!caseIsValid(simCase) || !isBlockClass(classNumber)) return ObjectId::none;
  return openStored(classDatabase(classNumber), name, false);
}

ObjectId MemoryStore::projectObject(unsigned project, std::string_view name) {
  if (project != kProject) return ObjectId::none;
  return openStored(classDatabase(kProjectItem), name, false);
}

ObjectId MemoryStore::stream(unsigned project, int classNumber, std::string_view name,
                             bool create) {
  if (project != kProject || !isStreamClass(classNumber)) return ObjectId::none;
  return openStored(create ? &database(classNumber) : classDatabase(classNumber), name, create);
}

std::vector<std::string> MemoryStore::streamNames(unsigned project) const {
  std::vector<std::string> result;
  if (project != kProject) return result;
  for (const StoredObject* stream : streams_) result.push_back(text(stream->name));
  return result;
}

bool MemoryStore::exists(ObjectId object) const {
  const StoredObject* found = objectOf(object);
  return found != nullptr && found->stored;
}

bool MemoryStore::read(ObjectId object, std::string_view slot, bool inherit, CvdSlot& value) const {
  const StoredObject* from = objectOf(object);
  const Symbol symbol = names_.find(slot);
  if (symbol == Symbol::none) return false;
  for (int depth = 0; from != nullptr && depth < kInheritanceDepth; ++depth) {
    if (const CvdSlot* found = slotOf(*from, symbol); found != nullptr) {
      value = *found;
      return true;
    }
    from = inherit ? from->parent : nullptr;
  }
  return false;
}

bool MemoryStore::write(ObjectId object, std::string_view slot, const CvdSlot& value) {
  StoredObject* target = objectOf(object);
  if (target == nullptr || slot.empty() || !value.IsValid()) return false;
  if (!std::isfinite(value.Number())) {
    currentHost().user().diagnostic("A number that is not finite was not stored in \"" +
                                    std::string(slot) + "\".");
    return false;
  }
  enlist(*target);
  const Symbol symbol = names_.intern(slot);
  note(*target, symbol);
  put(*target, symbol, value);
  return true;
}

bool MemoryStore::erase(ObjectId object, std::string_view slot) {
  StoredObject* target = objectOf(object);
  const Symbol symbol = names_.find(slot);
  if (target == nullptr || position(*target, symbol) == kNowhere) return false;
  note(*target, symbol);
  return take(*target, symbol);
}

SlotList MemoryStore::slots(ObjectId object) const {
  SlotList result;
  const StoredObject* found = objectOf(object);
  if (found == nullptr) return result;
  result.names.reserve(found->slotNames.size());
  for (const Symbol name : found->slotNames) result.names.push_back(text(name));
  result.values = found->slotValues;
  return result;
}

std::string_view MemoryStore::model(ObjectId projectObject) const {
  const StoredObject* found = objectOf(projectObject);
  return found != nullptr ? std::string_view(found->text) : std::string_view{};
}

std::string_view MemoryStore::displayName(std::string_view stream) const {
  for (const int classNumber : kStreamClasses) {
    StoredDatabase* database = classDatabase(classNumber);
    const StoredObject* found = database != nullptr ? find(*database, stream) : nullptr;
    if (found != nullptr) return found->text;
  }
  return {};
}

// --- Connectors ---------------------------------------------------------------------------------

std::vector<ConnectorId> MemoryStore::connectors(ObjectId stream, int direction) const {
  std::vector<ConnectorId> result;
  const StoredObject* wanted = objectOf(stream);
  const auto components = byName_.find(names_.find(kComponentDatabase));
  if (wanted == nullptr || components == byName_.end()) return result;

  const auto collect = [&](std::string_view list) {
    for (StoredObject* record : components->second->order) {
      const CvdSlot ports = get(*record, list);
      for (const std::string& port : ports.List()) {
        const CvdSlot value = get(*record, port);
        if (value.List().empty() || !equalsIgnoringCase(value.List().front(), text(wanted->name))) {
          continue;
        }
        connectors_.push_back({record, list, port});
        result.push_back(static_cast<ConnectorId>(connectors_.size()));
      }
    }
  };
  // A stream's source is the item that it leaves, its sink the item that it enters.
  if (direction == 0 || direction == 1) collect(kExitPorts);
  if (direction == 0 || direction == 2) collect(kInletPorts);
  return result;
}

bool MemoryStore::disconnect(ConnectorId connector) {
  const auto number = static_cast<std::size_t>(connector);
  if (number == 0 || number > connectors_.size()) return false;
  const Connector& end = connectors_[number - 1];
  std::vector<std::string> ports = get(*end.record, end.list).List();
  std::erase_if(ports,
                [&end](const std::string& port) { return equalsIgnoringCase(port, end.port); });
  erase(idOf(end.record), end.port);
  if (ports.empty()) return erase(idOf(end.record), end.list);
  return write(idOf(end.record), end.list, CvdSlot::ofList(std::move(ports)));
}

bool MemoryStore::deleteConnector(ConnectorId connector) {
  const auto number = static_cast<std::size_t>(connector);
  return number > 0 && number <= connectors_.size();  // nothing is left after `disconnect`
}

}  // namespace sizewright
