#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/host/slot.h"

namespace sizewright {

/// One object of the host's store: a number that stays good for the life of the host.
enum class ObjectId : std::uint64_t { none = 0 };

/// One end of a stream at an item: a number of the host's.
enum class ConnectorId : std::uint64_t { none = 0 };

/// Class numbers of host objects.
enum ObjectClass : int {
  kSimulatorBlock = 405,
  kPremappedItem = 505,
  kProjectItem = 1705,
  kUtilityStreamEntry = 2005,
  kProcessStream = 3005,
  kAddedUtilityStream = 3105,
  kAddedPremapStream = 3205,
  kUserAddedStream = 3305,
};

/// All the slots of an object, in the object's order.
struct SlotList {
  std::vector<std::string> names;
  std::vector<CvdSlot> values;
};

/// The object store of a host: databases of named objects with named slots, the blocks of the
/// simulator case, the project's items and streams.
///
/// Every call comes on the thread that the host is attached to. Texts are borrowed for the call.
/// Names compare without regard to case. Nothing throws: a call that cannot be served answers
/// false, 0 or `none` and changes nothing. Each call has a default that answers so, and a host
/// overrides what it offers.
class ObjectStore {
 public:
  virtual ~ObjectStore() = default;

  /// Whether the project with this handle is open.
  [[nodiscard]] virtual bool projectIsValid(unsigned project) const;
  /// Whether the simulator case with this handle is open.
  [[nodiscard]] virtual bool caseIsValid(unsigned simCase) const;
  /// Simulator type of the case, 0 for none.
  [[nodiscard]] virtual int simulatorType(unsigned simCase) const;

  [[nodiscard]] virtual bool databaseExists(unsigned project, std::string_view database) const;
  /// Makes an empty database; true when it exists afterwards.
  virtual bool createDatabase(unsigned project, std::string_view database);
  /// Removes a database with its objects; true when it is gone.
  virtual bool deleteDatabase(unsigned project, std::string_view database);
  /// Whether there is a database under this path outside the project.
  [[nodiscard]] virtual bool systemDatabaseExists(std::string_view path) const;

  /// The object of that name in a database. `none` when there is no such database or the name is
  /// empty. An object that is not stored yet has an id too and comes to exist when it is first
  /// written to, or at once with `create`.
  virtual ObjectId object(unsigned project, std::string_view database, std::string_view name,
                          bool create);
  /// The object of that name in a database outside the project; `none` when it is not there.
  virtual ObjectId systemObject(std::string_view path, std::string_view name);
  /// Block or premapped item of a simulator case; `none` when it is not there.
  virtual ObjectId caseObject(unsigned simCase, int classNumber, std::string_view name);
  /// The project's view of an item; `none` when it is not there.
  virtual ObjectId projectObject(unsigned project, std::string_view name);
  /// A stream of one class; `none` when it is not there, unless `create` makes it.
  virtual ObjectId stream(unsigned project, int classNumber, std::string_view name, bool create);
  /// Names of all the project's streams, in the host's order.
  [[nodiscard]] virtual std::vector<std::string> streamNames(unsigned project) const;

  /// Whether the object is stored.
  [[nodiscard]] virtual bool exists(ObjectId object) const;
  /// The slot's value as stored. With `inherit`, a slot that the object lacks is looked for in what
  /// it inherits from. False and `value` untouched when the slot is not found.
  virtual bool read(ObjectId object, std::string_view slot, bool inherit, CvdSlot& value) const;
  /// Stores the slot, replacing what it held; a new slot comes last in the object's order.
  virtual bool write(ObjectId object, std::string_view slot, const CvdSlot& value);
  /// Removes the slot; true when it was there.
  virtual bool erase(ObjectId object, std::string_view slot);
  /// All slots of the object itself, without what it inherits.
  [[nodiscard]] virtual SlotList slots(ObjectId object) const;
  /// Model text of a project item, good until the store changes.
  [[nodiscard]] virtual std::string_view model(ObjectId projectObject) const;
  /// Name of a stream as people know it, good until the store changes; empty when there is none.
  [[nodiscard]] virtual std::string_view displayName(std::string_view stream) const;

  /// Connectors of a stream: 1 at its source, 2 at its sink, 0 at both ends.
  [[nodiscard]] virtual std::vector<ConnectorId> connectors(ObjectId stream, int direction) const;
  /// Takes the stream off the item at this connector.
  virtual bool disconnect(ConnectorId connector);
  /// Deletes the stored state of the connector.
  virtual bool deleteConnector(ConnectorId connector);
  /// Whether the host runs a connection service of its own; disconnections are then handed on whole
  /// to `disconnectStream`.
  [[nodiscard]] virtual bool hasConnectionService() const;
  virtual bool disconnectStream(unsigned project, std::string_view stream, int classNumber,
                                bool atSource, bool atSink);
};

}  // namespace sizewright
