#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/embedded/name_pool.h"
#include "sizewright/embedded/plant_layout.h"

namespace sizewright {

/// A plant as entries: what its reader makes the same plant from. What is as it would be without
/// being said is left out. Views the plant.
class PlantWriter {
 public:
  explicit PlantWriter(Plant& plant);

  /// All of the plant, in the order of the plant file. Throws InputError for what a plant file
  /// cannot say: two streams, or two blocks, of one name.
  void write(const EntrySink& sink);

  // Single entries: an item, and stored objects that are not part of one.
  nlohmann::ordered_json item(const PlantItem& item);
  nlohmann::ordered_json stream(const StoredObject& stream);
  nlohmann::ordered_json block(const StoredObject& block);
  nlohmann::ordered_json object(const StoredObject& object);

 private:
  using Json = nlohmann::ordered_json;
  using ObjectEntry = Json (PlantWriter::*)(const StoredObject& object);

  void writeHead(const EntrySink& sink) const;
  void writeObjects(std::string_view section, const std::vector<StoredObject*>& objects,
                    ObjectEntry entry, const EntrySink& sink);
  void writeItems(const EntrySink& sink);
  void writeClass(std::string_view section, int classNumber, bool evenEmpty, const EntrySink& sink);
  void writeDatabases(const EntrySink& sink);
  void writeOverlays(const EntrySink& sink) const;
  void writeCharts(const EntrySink& sink) const;
  void writeFluids(const EntrySink& sink) const;
  void writeTail(const EntrySink& sink) const;

  const std::string& spelled(Symbol name);
  Json slots(const StoredObject& object, std::size_t first);
  void addSlots(Json& json, const StoredObject& object, std::size_t first);
  void addComponent(const PlantItem& item, Json& json);
  bool passes(const StoredObject& record, std::size_t& position, std::string_view name,
              const CvdSlot& value) const;
  std::optional<Json> ports(const StoredObject& record, std::size_t& position,
                            const PortDirection& direction);
  [[nodiscard]] bool isAt(const StoredObject& record, std::size_t position,
                          std::string_view name) const;

  Plant& plant_;
  MemoryStore& store_;
  /// Names in the spelling that the reader sees first. It may be another one than the store's: an
  /// item keeps its own, and what came first in one file may come later in another.
  NamePool names_;
};

}  // namespace sizewright
