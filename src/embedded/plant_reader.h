#pragma once

#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "sizewright/embedded/json_check.h"
#include "sizewright/embedded/plant_layout.h"

namespace sizewright {

/// Makes a plant from its entries, in whatever order they come. Every call throws InputError at an
/// entry that is not as it should be; the reader is of no more use then.
class PlantReader {
 public:
  /// `knownClasses`: names of sizing classes that items may ask for; views, used until `finish`.
  explicit PlantReader(std::span<const std::string_view> knownClasses);
  ~PlantReader();

  void take(std::string_view section, std::string_view name, const nlohmann::ordered_json& value);
  /// Settles what entries say of each other.
  std::unique_ptr<Plant> finish();

 private:
  using Json = nlohmann::ordered_json;
  struct Rules;
  // The handlers of entries: the plain ones, and those of entries whose name is given.
  struct MemberRow {
    std::string_view name;
    void (PlantReader::*take)(const Json& value);
  };
  struct SectionRow {
    std::string_view name;
    void (PlantReader::*take)(std::string_view name, const Json& value);
    const JsonRule* (*rule)(const Rules& rules);
  };
  static std::span<const MemberRow> memberRows();
  static std::span<const SectionRow> sectionRows();

  void takeMember(std::string_view name, const Json& value);
  void takeExtra(std::string_view name, const Json& value);
  void takeName(const Json& value);
  void takeUnits(const Json& value);
  void takeSimulator(const Json& value);
  void takeDesignRules(const Json& value);
  void takeInstall(const Json& value);
  void takeRecordChanges(const Json& value);
  void takeDefaults(const Json& value);

  void takeStream(std::string_view name, const Json& value);
  void takeBlock(std::string_view name, const Json& value);
  void takeItem(std::string_view name, const Json& value);
  void takeCriteria(std::string_view name, const Json& value);
  void takeUtility(std::string_view name, const Json& value);
  void takeDatabase(std::string_view name, const Json& value);
  void takeOverlay(std::string_view name, const Json& value);
  void takeCharts(std::string_view name, const Json& value);
  void takeFluid(std::string_view name, const Json& value);
  void takeObject(std::string_view database, std::string_view name, const Json& value);

  [[nodiscard]] std::string path(std::string_view name) const;
  void checkName(std::string_view path, std::string_view name, std::size_t longest) const;
  bool isNew(std::string_view section, std::string_view name);
  void setSlots(StoredObject& object, const Json& slots);
  void inherit(StoredObject& object, const Json& target, const std::string& path);
  void addComponent(const PlantItem& item, const Json& value, const std::string& path);
  void addPorts(StoredObject& record, const PortDirection& direction, const Json& item,
                const std::string& path);

  void settlePorts();
  void settleBlocks();
  void settleParents();
  void checkChain(const StoredObject& object, const std::string& path) const;

  struct OpenPort {  // to a stream that was not known when the port came
    StoredObject* record;
    std::string port;
    std::string stream;
    std::string tag;
  };
  struct OpenParent {
    StoredObject* object;
    std::string target;
    std::string path;
  };

  std::span<const std::string_view> knownClasses_;
  JsonSchema schema_;
  std::unique_ptr<Rules> rules_;
  std::unique_ptr<Plant> plant_;
  std::string section_;  // of the entry at hand, for messages
  bool hasItems_ = false;
  NamePool names_;
  std::unordered_set<std::uint64_t> seen_;  // entries, by section and name
  std::vector<OpenPort> openPorts_;
  std::vector<OpenParent> openParents_;
};

}  // namespace sizewright
