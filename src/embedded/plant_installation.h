#pragma once

#include "sizewright/embedded/plant.h"
#include "sizewright/host/installation.h"

namespace sizewright {

/// Installation of the embedded host: the directories that a plant registers over the default ones.
/// Starts no programs.
class PlantInstallation : public Installation {
 public:
  /// Views the plant, which must outlive it.
  explicit PlantInstallation(const Plant& plant) : plant_(plant) {}

  bool directory(std::string_view key, std::string& path) const override;
  /// The marker of change recording is a file whose name ends in ".aee"; other files are those of
  /// the file system.
  [[nodiscard]] bool fileExists(std::string_view path) const override;
  [[nodiscard]] std::string projectDirectory() const override;
  [[nodiscard]] std::string currentDirectory() const override;

 private:
  const Plant& plant_;
};

}  // namespace sizewright
