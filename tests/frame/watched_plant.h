#pragma once

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/host/forwarding_host.h"
#include "support/test_plant.h"

namespace sizewright {

/// A store whose calls fail where a test says so, and that keeps count of some of them.
class WatchedStore : public ForwardingObjectStore {
 public:
  using ForwardingObjectStore::ForwardingObjectStore;

  std::set<std::string> missingDatabases;  // not there until they are created
  bool refusesNewDatabases = false;
  bool propertyDatabaseIsMissing = false;
  std::function<bool(std::string_view slot)> refusesToWrite;
  std::function<void()> beforeWrite;
  bool runsConnectionService = false;

  std::vector<std::string> created;                // databases
  std::vector<std::string> written;                // slots
  mutable std::vector<int> connectorDirections;    // asked for
  std::vector<std::string> disconnectedByService;  // streams

  bool databaseExists(unsigned project, std::string_view database) const override {
    return !isMissing(database) && ForwardingObjectStore::databaseExists(project, database);
  }
  bool createDatabase(unsigned project, std::string_view database) override {
    if (refusesNewDatabases) return false;
    created.emplace_back(database);
    missingDatabases.erase(std::string(database));
    return ForwardingObjectStore::createDatabase(project, database);
  }
  bool systemDatabaseExists(std::string_view path) const override {
    return !propertyDatabaseIsMissing && ForwardingObjectStore::systemDatabaseExists(path);
  }
  ObjectId object(unsigned project, std::string_view database, std::string_view name,
                  bool create) override {
    if (isMissing(database)) return ObjectId::none;
    return ForwardingObjectStore::object(project, database, name, create);
  }
  bool write(ObjectId object, std::string_view slot, const CvdSlot& value) override {
    if (beforeWrite) beforeWrite();
    if (refusesToWrite && refusesToWrite(slot)) return false;
    written.emplace_back(slot);
    return ForwardingObjectStore::write(object, slot, value);
  }
  std::vector<ConnectorId> connectors(ObjectId stream, int direction) const override {
    connectorDirections.push_back(direction);
    return ForwardingObjectStore::connectors(stream, direction);
  }
  bool hasConnectionService() const override { return runsConnectionService; }
  bool disconnectStream(unsigned, std::string_view stream, int classNumber, bool atSource,
                        bool atSink) override {
    disconnectedByService.push_back(std::string(stream) + ' ' + std::to_string(classNumber) +
                                    (atSource ? " source" : "") + (atSink ? " sink" : ""));
    return true;
  }

 private:
  bool isMissing(std::string_view database) const {
    return missingDatabases.contains(std::string(database));
  }
};

/// Keeps everything that the user is shown.
class WatchedUser : public ForwardingUserInterface {
 public:
  using ForwardingUserInterface::ForwardingUserInterface;

  struct Line {
    int percent;
    int level;
    std::string text;
  };
  struct Box {
    void* owner;
    std::string text;
    std::string title;
    int flags;
  };

  std::vector<Line> lines;
  std::vector<Box> boxes;
  std::vector<std::string> prints;
  std::vector<int> cursors;

  void print(std::string_view text) override {
    prints.emplace_back(text);
    ForwardingUserInterface::print(text);
  }
  void box(void* owner, std::string_view text, std::string_view title, int flags) override {
    boxes.push_back({owner, std::string(text), std::string(title), flags});
    ForwardingUserInterface::box(owner, text, title, flags);
  }
  void status(int percent, int level, std::string_view text) override {
    lines.push_back({percent, level, std::string(text)});
    ForwardingUserInterface::status(percent, level, text);
  }
  void cursor(int number) override { cursors.push_back(number); }
};

/// Counts the openings and closings of the unit service.
class WatchedUnits : public ForwardingUnitService {
 public:
  using ForwardingUnitService::ForwardingUnitService;

  int opened = 0;
  int closed = 0;

  void open() override { ++opened; }
  void close() override { ++closed; }
};

/// Keeps the names of the files that are looked for.
class WatchedInstallation : public ForwardingInstallation {
 public:
  using ForwardingInstallation::ForwardingInstallation;

  mutable std::vector<std::string> lookedFor;

  bool fileExists(std::string_view path) const override {
    lookedFor.emplace_back(path);
    return ForwardingInstallation::fileExists(path);
  }
};

/// The embedded host of a plant behind watched services.
class WatchedHost : public Host {
 public:
  explicit WatchedHost(EmbeddedHost& target)
      : objects(target.store()),
        screen(target.user()),
        unitService(target.units()),
        place(target.installation()),
        target_(target) {}

  ObjectStore& store() override { return objects; }
  UnitService& units() override { return unitService; }
  CriteriaService& criteria() override { return target_.criteria(); }
  PropertyService& properties() override { return target_.properties(); }
  UtilityService& utilities() override { return target_.utilities(); }
  UserInterface& user() override { return screen; }
  Installation& installation() override { return place; }

  WatchedStore objects;
  WatchedUser screen;
  WatchedUnits unitService;
  WatchedInstallation place;

 private:
  EmbeddedHost& target_;
};

/// A test plant on a watched host, attached to the thread for the life of the object.
class WatchedPlant : public TestPlant {
 public:
  explicit WatchedPlant(std::string_view json)
      : TestPlant(json), watched_(host()), scope_(watched_) {}

  WatchedStore& objects() { return watched_.objects; }
  WatchedUser& screen() { return watched_.screen; }
  WatchedUnits& unitService() { return watched_.unitService; }
  WatchedInstallation& place() { return watched_.place; }
  ListPool& lists() { return watched_.lists(); }

  /// Text of the last line of progress; empty before the first.
  [[nodiscard]] std::string lastProgress() const {
    return watched_.screen.lines.empty() ? "" : watched_.screen.lines.back().text;
  }

 private:
  WatchedHost watched_;
  HostScope scope_;
};

}  // namespace sizewright
