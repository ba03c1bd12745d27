#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "sizewright/host/fixed_text.h"
#include "sizewright/host/object_store.h"
#include "sizewright/host/slot.h"
#include "sizewright/host/string_list.h"
#include "sizewright/host/units.h"

namespace sizewright {

// Handles to objects of the attached host's store. A handle is a number and costs nothing to copy;
// it owns nothing in the store. An invalid handle answers 0 to every call.

/// Size of the buffers that take a slot's text, terminator included; longer texts are cut.
inline constexpr std::size_t kSlotText = 512;
using SlotText = FixedText<kSlotText>;

/// A project of the host.
class CvdProject {
 public:
  explicit CvdProject(unsigned instance) : instance_(instance) {}
  [[nodiscard]] int IsValid() const;
  /// The handle that every database of the project is opened with.
  [[nodiscard]] unsigned UserInstance() const { return instance_; }

 private:
  unsigned instance_;
};

/// Simulator type of a case; 0 is no simulator. Other numbers are the host's.
using VD_SIMULATOR_TYPE = int;

/// A simulator case of the host.
class CvdSimCase {
 public:
  explicit CvdSimCase(unsigned instance) : instance_(instance) {}
  [[nodiscard]] int IsValid() const;
  [[nodiscard]] VD_SIMULATOR_TYPE SimType() const;
  [[nodiscard]] unsigned Instance() const { return instance_; }

 private:
  unsigned instance_;
};

/// A database of the project by name, or one outside the project by path.
class CvdODB {
 public:
  /// With `create` 1 a missing database is made.
  CvdODB(unsigned project, std::string_view name, int create);
  [[nodiscard]] int IsValid() const;
  [[nodiscard]] int Exists() const;
  int Create();
  /// Removes the database with its objects.
  int Delete();
  /// Nothing to release; returns 1.
  int Close(int flag);

 private:
  unsigned project_;
  std::string name_;
};

/// A database outside the project, by path.
class CvdSysODB {
 public:
  CvdSysODB(unsigned project, std::string_view path, int create);
  [[nodiscard]] int IsValid() const;
  [[nodiscard]] int Exists() const;

 private:
  std::string path_;
};

/// Base of all handles: a stored object or none.
class CvdBase {
 public:
  /// Whether the handle is usable.
  [[nodiscard]] int IsValid() const { return id_ != ObjectId::none ? 1 : 0; }
  /// Whether the object is stored.
  [[nodiscard]] int Exists() const;
  [[nodiscard]] ObjectId Id() const { return id_; }

 protected:
  CvdBase() = default;
  explicit CvdBase(ObjectId id) : id_(id) {}

 private:
  ObjectId id_ = ObjectId::none;
};

/// An object with named slots. The reading calls return 1 when the slot is found and otherwise 0
/// with their outputs untouched; texts write at most kSlotText characters and units at most
/// UnitText::kCapacity.
class CvdValueObject : public CvdBase {
 public:
  explicit CvdValueObject(ObjectId id) : CvdBase(id) {}

  // The object's own slots only.
  int GetValue(std::string_view slot, CvdSlot& value) const;
  int GetValue(std::string_view slot, char* text) const;
  /// The number as stored; `units` gets its unit text and may be null. A slot that holds no number
  /// is not found.
  int GetValue(std::string_view slot, double& number, char* units) const;

  // Also the slots of what the object inherits from. `from` is accepted and may be null.
  int GetValueWithInheritance(std::string_view slot, CvdSlot& value, int* from) const;
  int GetValueWithInheritance(std::string_view slot, char* text, int* from) const;
  int GetValueWithInheritance(std::string_view slot, double& number, char* units, int* from) const;

  // Stores a slot; the flag is accepted and ignored. Returns 1 when stored.
  int SetValue(std::string_view slot, std::string_view text, int flag);
  int SetValue(std::string_view slot, const CStrList& list, int flag);
  int SetValue(std::string_view slot, const CvdSlot& value, int flag);
  int SetValue(std::string_view slot, double number, std::string_view units, int flag);

  /// Removes slots; returns 1 when at least one was there.
  int DeleteSlots(std::string_view slot);
  int DeleteSlots(const CStrList& slots);

  /// Copies all the object's own slots out. Returns 1 for a valid object.
  int LoadAllSlots(SlotList& slots) const;
  /// Stores all the slots of the list; with `replace` 1 the object's other slots are removed.
  /// Returns 1 when all were stored.
  int UnLoadAllSlots(const SlotList& slots, int replace);
};

/// A named object of a project database. It is valid when the database exists and the name is not
/// empty; it may not be stored yet, and is stored by `create` 1 or the first write.
class CvdGenericObject : public CvdValueObject {
 public:
  CvdGenericObject(unsigned project, std::string_view database, std::string_view name,
                   int create = 0);
  CvdGenericObject(const CvdProject& project, std::string_view database, std::string_view name,
                   int create = 0);
};

/// A named object of a database outside the project.
class CvdSysGenericObject : public CvdValueObject {
 public:
  CvdSysGenericObject(unsigned project, std::string_view path, std::string_view name);
};

/// A block (class 405) or premapped item (class 505) of a simulator case.
class CvdSimCaseObject : public CvdValueObject {
 public:
  CvdSimCaseObject(std::string_view name, int classNumber, const CvdSimCase& simCase, int flag);
};

/// The project's view of an item (class 1705).
class CvdProjectObject : public CvdValueObject {
 public:
  CvdProjectObject(std::string_view name, int classNumber, const CvdProject& project, int flag);
  /// The model text, good until the store changes.
  [[nodiscard]] std::string_view Model() const;
};

/// One end of a stream at an item.
class CvdConnector {
 public:
  explicit CvdConnector(ConnectorId id) : id_(id) {}
  int Disconnect(const CvdProject& project);
  /// Deletes the connector's stored state.
  int Delete();

 private:
  ConnectorId id_;
};

/// Entry of a stream's list of connectors.
class CvdConnectorNode {
 public:
  explicit CvdConnectorNode(ConnectorId id) : id_(id) {}
  [[nodiscard]] CvdConnector InstantiateConnector(const CvdProject& project) const;

 private:
  ConnectorId id_;
};

/// One stream of one class (3005, 3105, 3205 or 3305).
class CvdStream : public CvdValueObject {
 public:
  /// With `create` 1 a missing stream is made.
  CvdStream(std::string_view name, int classNumber, const CvdProject& project, int create);
  [[nodiscard]] int ClassId() const { return IsValid() != 0 ? classNumber_ : 0; }
  /// Connectors: 1 at the source, 2 at the sink, 0 at both ends.
  [[nodiscard]] std::vector<CvdConnectorNode> GetConnectors(int direction) const;

 private:
  int classNumber_;
};

/// 1 when the host runs a connection service of its own.
int VdapipGetISCWrap();
/// Hands a whole disconnection to that service. Returns 1 on success.
int DisconnectStreamWrap(const CvdProject& project, std::string_view stream,
                         unsigned long classNumber, int atSource, int atSink);

/// Loads all slots of an object into two new lists, values as texts: a number in its shortest form,
/// its unit on a second line. `database` is the name of a project database or the path of one
/// outside the project. Returns 1, or 0 with both handles null.
int lo_load_list2_all(unsigned project, std::string_view database, std::string_view object,
                      void** names, void** values);
/// Removes the entries with a blank name or value.
void lo_load_list2_trim(void** names, void** values);
void lo_load_list2_trim(SlotList& slots);

}  // namespace sizewright
