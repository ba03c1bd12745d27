#pragma once

#include "sizewright/host/host.h"

namespace sizewright {

// Wrappers that pass every call on. A test or an application derives from one of them and overrides
// the calls it wants to watch, change or let fail. The wrapped object must outlive the wrapper.

class ForwardingObjectStore : public ObjectStore {
 public:
  explicit ForwardingObjectStore(ObjectStore& target) : target_(target) {}

  [[nodiscard]] bool projectIsValid(unsigned project) const override {
    return target_.projectIsValid(project);
  }
  [[nodiscard]] bool caseIsValid(unsigned simCase) const override {
    return target_.caseIsValid(simCase);
  }
  [[nodiscard]] int simulatorType(unsigned simCase) const override {
    return target_.simulatorType(simCase);
  }
  [[nodiscard]] bool databaseExists(unsigned project, std::string_view database) const override {
    return target_.databaseExists(project, database);
  }
  bool createDatabase(unsigned project, std::string_view database) override {
    return target_.createDatabase(project, database);
  }
  bool deleteDatabase(unsigned project, std::string_view database) override {
    return target_.deleteDatabase(project, database);
  }
  [[nodiscard]] bool systemDatabaseExists(std::string_view path) const override {
    return target_.systemDatabaseExists(path);
  }
  ObjectId object(unsigned project, std::string_view database, std::string_view name,
                  bool create) override {
    return target_.object(project, database, name, create);
  }
  ObjectId systemObject(std::string_view path, std::string_view name) override {
    return target_.systemObject(path, name);
  }
  ObjectId caseObject(unsigned simCase, int classNumber, std::string_view name) override {
    return target_.caseObject(simCase, classNumber, name);
  }
  ObjectId projectObject(unsigned project, std::string_view name) override {
    return target_.projectObject(project, name);
  }
  ObjectId stream(unsigned project, int classNumber, std::string_view name, bool create) override {
    return target_.stream(project, classNumber, name, create);
  }
  [[nodiscard]] std::vector<std::string> streamNames(unsigned project) const override {
    return target_.streamNames(project);
  }
  [[nodiscard]] bool exists(ObjectId object) const override { return target_.exists(object); }
  bool read(ObjectId object, std::string_view slot, bool inherit, CvdSlot& value) const override {
    return target_.read(object, slot, inherit, value);
  }
  bool write(ObjectId object, std::string_view slot, const CvdSlot& value) override {
    return target_.write(object, slot, value);
  }
  bool erase(ObjectId object, std::string_view slot) override {
    return target_.erase(object, slot);
  }
  [[nodiscard]] SlotList slots(ObjectId object) const override { return target_.slots(object); }
  [[nodiscard]] std::string_view model(ObjectId projectObject) const override {
    return target_.model(projectObject);
  }
  [[nodiscard]] std::string_view displayName(std::string_view stream) const override {
    return target_.displayName(stream);
  }
  [[nodiscard]] std::vector<ConnectorId> connectors(ObjectId stream, int direction) const override {
    return target_.connectors(stream, direction);
  }
  bool disconnect(ConnectorId connector) override { return target_.disconnect(connector); }
  bool deleteConnector(ConnectorId connector) override {
    return target_.deleteConnector(connector);
  }
  [[nodiscard]] bool hasConnectionService() const override {
    return target_.hasConnectionService();
  }
  bool disconnectStream(unsigned project, std::string_view stream, int classNumber, bool atSource,
                        bool atSink) override {
    return target_.disconnectStream(project, stream, classNumber, atSource, atSink);
  }

 private:
  ObjectStore& target_;
};

class ForwardingUnitService : public UnitService {
 public:
  explicit ForwardingUnitService(UnitService& target) : target_(target) {}

  void open() override { target_.open(); }
  void close() override { target_.close(); }
  [[nodiscard]] int unitType() const override { return target_.unitType(); }
  bool convert(std::string_view from, std::string_view to, double& value) const override {
    return target_.convert(from, to, value);
  }
  [[nodiscard]] double roundUpByHalf(double value) const override {
    return target_.roundUpByHalf(value);
  }
  [[nodiscard]] double round(double value) const override { return target_.round(value); }

 private:
  UnitService& target_;
};

class ForwardingCriteriaService : public CriteriaService {
 public:
  explicit ForwardingCriteriaService(CriteriaService& target) : target_(target) {}

  bool number(std::string_view model, std::string_view name, std::string_view units,
              double& value) const override {
    return target_.number(model, name, units, value);
  }
  bool text(std::string_view model, std::string_view name, CriterionText& value) const override {
    return target_.text(model, name, value);
  }
  bool designPressure(std::string_view model, double operating, std::string_view units,
                      double& design) const override {
    return target_.designPressure(model, operating, units, design);
  }
  bool designTemperature(std::string_view model, double operating, std::string_view units,
                         double& design) const override {
    return target_.designTemperature(model, operating, units, design);
  }

 private:
  CriteriaService& target_;
};

class ForwardingPropertyService : public PropertyService {
 public:
  explicit ForwardingPropertyService(PropertyService& target) : target_(target) {}

  [[nodiscard]] double heatCapacity(std::string_view fluid, double temperature, double pressure,
                                    Phase phase) const override {
    return target_.heatCapacity(fluid, temperature, pressure, phase);
  }
  [[nodiscard]] double density(std::string_view fluid, double temperature, double pressure,
                               Phase phase) const override {
    return target_.density(fluid, temperature, pressure, phase);
  }
  [[nodiscard]] double viscosity(std::string_view fluid, double temperature, double pressure,
                                 Phase phase) const override {
    return target_.viscosity(fluid, temperature, pressure, phase);
  }
  [[nodiscard]] double conductivity(std::string_view fluid, double temperature, double pressure,
                                    Phase phase) const override {
    return target_.conductivity(fluid, temperature, pressure, phase);
  }
  [[nodiscard]] double compressibility(std::string_view fluid, double temperature, double pressure,
                                       Phase phase) const override {
    return target_.compressibility(fluid, temperature, pressure, phase);
  }
  [[nodiscard]] double heatCapacityRatio(std::string_view fluid, double temperature,
                                         double pressure) const override {
    return target_.heatCapacityRatio(fluid, temperature, pressure);
  }
  [[nodiscard]] double latentHeat(std::string_view fluid, double temperature,
                                  double pressure) const override {
    return target_.latentHeat(fluid, temperature, pressure);
  }
  [[nodiscard]] double boilingPoint(std::string_view fluid, double pressure) const override {
    return target_.boilingPoint(fluid, pressure);
  }
  [[nodiscard]] double molecularWeight(std::string_view fluid) const override {
    return target_.molecularWeight(fluid);
  }
  bool inPhase(std::string_view fluid, Phase phase, FluidName& name) const override {
    return target_.inPhase(fluid, phase, name);
  }
  bool completeStream(ObjectId stream) const override { return target_.completeStream(stream); }
  [[nodiscard]] double chart(std::string_view object, std::string_view variable, double x,
                             double y) const override {
    return target_.chart(object, variable, x, y);
  }

 private:
  PropertyService& target_;
};

class ForwardingUtilityService : public UtilityService {
 public:
  explicit ForwardingUtilityService(UtilityService& target) : target_(target) {}

  [[nodiscard]] bool isValid() const override { return target_.isValid(); }
  [[nodiscard]] std::vector<std::string> entries() const override { return target_.entries(); }
  ObjectId entry(std::string_view name) const override { return target_.entry(name); }
  ObjectId addEntry(std::string_view name) override { return target_.addEntry(name); }
  bool commit() override { return target_.commit(); }
  [[nodiscard]] std::string streamName(std::string_view wanted) const override {
    return target_.streamName(wanted);
  }

 private:
  UtilityService& target_;
};

class ForwardingUserInterface : public UserInterface {
 public:
  explicit ForwardingUserInterface(UserInterface& target) : target_(target) {}

  void print(std::string_view text) override { target_.print(text); }
  void box(void* owner, std::string_view text, std::string_view title, int flags) override {
    target_.box(owner, text, title, flags);
  }
  void status(int percent, int level, std::string_view text) override {
    target_.status(percent, level, text);
  }
  void cursor(int number) override { target_.cursor(number); }
  void diagnostic(std::string_view text) override { target_.diagnostic(text); }

 private:
  UserInterface& target_;
};

class ForwardingInstallation : public Installation {
 public:
  explicit ForwardingInstallation(Installation& target) : target_(target) {}

  bool directory(std::string_view key, std::string& path) const override {
    return target_.directory(key, path);
  }
  bool profile(std::string_view section, std::string_view key, std::string& value) const override {
    return target_.profile(section, key, value);
  }
  [[nodiscard]] bool fileExists(std::string_view path) const override {
    return target_.fileExists(path);
  }
  [[nodiscard]] std::string projectDirectory() const override { return target_.projectDirectory(); }
  [[nodiscard]] std::string currentDirectory() const override { return target_.currentDirectory(); }
  bool launch(std::string_view executable, std::string_view commandLine) const override {
    return target_.launch(executable, commandLine);
  }
  bool ratingProgramPath(std::string_view program, std::string& path) const override {
    return target_.ratingProgramPath(program, path);
  }
  bool plateFinVersion(std::string& version) const override {
    return target_.plateFinVersion(version);
  }
  [[nodiscard]] bool ratingProgramAvailable(std::string_view program) const override {
    return target_.ratingProgramAvailable(program);
  }
  bool loadResultText(std::string_view layout, std::string_view file, std::string_view database,
                      std::string_view section) override {
    return target_.loadResultText(layout, file, database, section);
  }

 private:
  Installation& target_;
};

class ForwardingRatingService : public RatingService {
 public:
  explicit ForwardingRatingService(RatingService& target) : target_(target) {}

  [[nodiscard]] std::optional<RatingResults> results(Program program,
                                                     std::string_view file) const override {
    return target_.results(program, file);
  }
  bool sizeAirCooler(CStrList& names, CStrList& values, CStrList& warnings, CStrList& errors,
                     bool mayShowMessages) override {
    return target_.sizeAirCooler(names, values, warnings, errors, mayShowMessages);
  }

 private:
  RatingService& target_;
};

/// A host that passes every service on to another one. Override a service to put a wrapper in its
/// place.
class ForwardingHost : public Host {
 public:
  explicit ForwardingHost(Host& target) : target_(target) {}

  ObjectStore& store() override { return target_.store(); }
  UnitService& units() override { return target_.units(); }
  CriteriaService& criteria() override { return target_.criteria(); }
  PropertyService& properties() override { return target_.properties(); }
  UtilityService& utilities() override { return target_.utilities(); }
  UserInterface& user() override { return target_.user(); }
  Installation& installation() override { return target_.installation(); }
  RatingService& rating() override { return target_.rating(); }

 private:
  Host& target_;
};

}  // namespace sizewright
