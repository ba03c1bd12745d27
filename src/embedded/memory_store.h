#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "sizewright/embedded/name_pool.h"
#include "sizewright/host/object_store.h"

namespace sizewright {

struct StoredDatabase;

/// An object of the store, with its slots in the order in which they came. Objects stay at their
/// place for the life of the store.
struct StoredObject {
  StoredDatabase* database = nullptr;
  Symbol name = Symbol::none;
  StoredObject* parent = nullptr;  // what it inherits from
  bool stored = false;             // false: opened by name, but never written to
  std::vector<Symbol> slotNames;
  std::vector<CvdSlot> slotValues;
  std::unique_ptr<std::unordered_map<Symbol, std::size_t>> index;  // of the slots, once many
  std::string text;  // model of a project item, display name of a stream
};

/// Objects by name, and those that are stored in the order in which they came.
struct StoredDatabase {
  Symbol name = Symbol::none;  // none for a class of streams, blocks or the like
  int classNumber = 0;         // 0 for a database known by its name
  std::unordered_map<Symbol, StoredObject*> objects;
  std::vector<StoredObject*> order;
};

/// Databases beside those of the classes of host objects that hold objects of one kind.
enum : int { kDesignCriteria = 1, kPropertyObjects = 2 };

/// One slot that a run added, changed or removed.
struct SlotChange {
  StoredObject* object = nullptr;
  Symbol slot = Symbol::none;
  CvdSlot before;  // invalid when the slot was not there
};

/// The embedded host's objects, in memory: databases known by name, and one for each class of
/// streams, blocks, project items, utilities and criteria. Names compare without regard to case;
/// the first spelling stays. Reading a slot allocates nothing. Belongs to one thread at a time.
class MemoryStore : public ObjectStore {
 public:
  /// Handles of the one project and its simulator case.
  static constexpr unsigned kProject = 1;
  static constexpr unsigned kCase = 1;
  /// How many objects a slot is looked for in, along what an object inherits from.
  static constexpr int kInheritanceDepth = 64;

  // --- Filling and inspecting. None of this counts as a change of a run. ---

  /// The database of that name, made when it is not there.
  StoredDatabase& database(std::string_view name);
  /// The database of a class of objects.
  StoredDatabase& database(int classNumber);
  /// Null when there is none of that name.
  [[nodiscard]] StoredDatabase* findDatabase(std::string_view name);
  /// The databases known by name, in the order in which they were made.
  [[nodiscard]] const std::vector<StoredDatabase*>& namedDatabases() const { return named_; }
  /// The object of that name, stored from now on.
  StoredObject& add(StoredDatabase& database, std::string_view name);
  /// The stored object of that name; null when there is none.
  [[nodiscard]] StoredObject* find(StoredDatabase& database, std::string_view name) const;
  /// Streams of all classes, and blocks of both, in the order in which they came.
  [[nodiscard]] const std::vector<StoredObject*>& streams() const { return streams_; }
  [[nodiscard]] const std::vector<StoredObject*>& blocks() const { return blocks_; }
  void set(StoredObject& object, std::string_view slot, CvdSlot value);
  /// True when the slot was there.
  bool remove(StoredObject& object, std::string_view slot);
  /// The object's own slot; an invalid value when it has none of that name.
  [[nodiscard]] CvdSlot get(const StoredObject& object, std::string_view slot) const;
  /// Takes all the slots off an object and counts it as not stored.
  void clear(StoredObject& object);
  [[nodiscard]] const std::string& text(Symbol symbol) const { return names_.text(symbol); }

  /// Lets a database answer under a path outside the project. In paths, case and the kind of slash
  /// do not matter.
  void mount(std::string_view path, StoredDatabase& database);
  /// Simulator type of the case; 0 for no case at all.
  void setSimulator(int type) { simulator_ = type; }

  /// Starts recording changes, forgetting earlier ones.
  void recordChanges();
  /// The slots that changed since then, each once, in the order of their first change, with the
  /// value they had. Slots that ended as they were are left out.
  [[nodiscard]] std::vector<SlotChange> changes() const;

  // --- What the library calls; writes and removals are recorded. ---
  [[nodiscard]] bool projectIsValid(unsigned project) const override;
  [[nodiscard]] bool caseIsValid(unsigned simCase) const override;
  [[nodiscard]] int simulatorType(unsigned simCase) const override;
  [[nodiscard]] bool databaseExists(unsigned project, std::string_view name) const override;
  bool createDatabase(unsigned project, std::string_view name) override;
  bool deleteDatabase(unsigned project, std::string_view name) override;
  [[nodiscard]] bool systemDatabaseExists(std::string_view path) const override;
  ObjectId object(unsigned project, std::string_view databaseName, std::string_view name,
                  bool create) override;
  ObjectId systemObject(std::string_view path, std::string_view name) override;
  ObjectId caseObject(unsigned simCase, int classNumber, std::string_view name) override;
  ObjectId projectObject(unsigned project, std::string_view name) override;
  ObjectId stream(unsigned project, int classNumber, std::string_view name, bool create) override;
  [[nodiscard]] std::vector<std::string> streamNames(unsigned project) const override;
  [[nodiscard]] bool exists(ObjectId object) const override;
  bool read(ObjectId object, std::string_view slot, bool inherit, CvdSlot& value) const override;
  /// Refuses a number that is not finite: no file can hold it.
  bool write(ObjectId object, std::string_view slot, const CvdSlot& value) override;
  bool erase(ObjectId object, std::string_view slot) override;
  [[nodiscard]] SlotList slots(ObjectId object) const override;
  [[nodiscard]] std::string_view model(ObjectId projectObject) const override;
  [[nodiscard]] std::string_view displayName(std::string_view stream) const override;
  [[nodiscard]] std::vector<ConnectorId> connectors(ObjectId stream, int direction) const override;
  bool disconnect(ConnectorId connector) override;
  bool deleteConnector(ConnectorId connector) override;

  /// The id under which the library knows an object, and back.
  static ObjectId idOf(const StoredObject* object);
  static StoredObject* objectOf(ObjectId id);

 private:
  struct Connector {
    StoredObject* record;   // of the item
    std::string_view list;  // its connector slot
    std::string port;
  };

  [[nodiscard]] StoredDatabase* classDatabase(int classNumber) const;
  StoredObject* open(StoredDatabase* database, std::string_view name);
  ObjectId openStored(StoredDatabase* database, std::string_view name, bool create);
  void enlist(StoredObject& object);
  [[nodiscard]] const CvdSlot* slotOf(const StoredObject& object, Symbol slot) const;
  [[nodiscard]] static std::size_t position(const StoredObject& object, Symbol slot);
  void put(StoredObject& object, Symbol slot, CvdSlot value);
  bool take(StoredObject& object, Symbol slot);
  void note(StoredObject& object, Symbol slot);

  NamePool names_;
  std::deque<StoredObject> objects_;
  std::deque<StoredDatabase> databases_;
  std::unordered_map<Symbol, StoredDatabase*> byName_;
  std::unordered_map<int, StoredDatabase*> byClass_;
  std::unordered_map<Symbol, StoredDatabase*> mounts_;  // by path
  std::vector<StoredDatabase*> named_;
  std::vector<StoredObject*> streams_;
  std::vector<StoredObject*> blocks_;
  mutable std::vector<Connector> connectors_;
  int simulator_ = 0;
  bool recording_ = false;
  std::vector<SlotChange> journal_;
};

}  // namespace sizewright
