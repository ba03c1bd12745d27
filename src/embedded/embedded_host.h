#pragma once

#include <memory>

#include "sizewright/embedded/message_log.h"
#include "sizewright/embedded/plant.h"
#include "sizewright/host/host.h"
#include "sizewright/host/objects.h"

namespace sizewright {

/// The default host: a plant in memory, with the bundled units, properties, correlation tables,
/// utilities and design rules. Serves one thread at a time.
class EmbeddedHost : public Host {
 public:
  /// Takes the plant as its project; the plant must outlive the host. Lays the plant's data over
  /// the bundled ones, where it uses them.
  explicit EmbeddedHost(Plant& plant);
  ~EmbeddedHost() override;

  ObjectStore& store() override;
  UnitService& units() override;
  CriteriaService& criteria() override;
  PropertyService& properties() override;
  UtilityService& utilities() override;
  UserInterface& user() override { return log_; }
  Installation& installation() override;

  Plant& plant() { return plant_; }
  MessageLog& log() { return log_; }
  CvdProject* project() { return &project_; }
  /// Null for a plant without simulator case.
  CvdSimCase* simCase();

  /// Makes an item the one that the component database describes, and forgets messages, changes
  /// and lists of the item before. Returns how many lists that item left behind.
  std::size_t select(const PlantItem& item);

 private:
  struct Services;
  void describe(const PlantItem& item);

  Plant& plant_;
  MessageLog log_;
  CvdProject project_{MemoryStore::kProject};
  CvdSimCase case_{MemoryStore::kCase};
  std::unique_ptr<Services> services_;
  bool describesItems_;  // false: the plant brought an "equipment information" of its own
};

}  // namespace sizewright
