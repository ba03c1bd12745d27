#include "sizewright/embedded/plant_installation.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "sizewright/host/text.h"

namespace sizewright {

namespace {

struct DirectoryRow {
  std::string_view key;
  std::string_view path;
};

// Names under which the host knows its own data; nothing is looked for in the file system.
constexpr auto kDirectories = std::to_array<DirectoryRow>({
    {"SystemCacheDir", "sizewright"},
    {"SourceDir", "sizewright"},
    {"ClipboardDir", "sizewright"},
});

}  // namespace

bool PlantInstallation::directory(std::string_view key, std::string& path) const {
  for (const auto& [registered, value] : plant_.install) {
    if (!equalsIgnoringCase(registered, key)) continue;
    if (value) path = *value;
    return value.has_value();
  }
  for (const DirectoryRow& row : kDirectories) {
    if (!equalsIgnoringCase(row.key, key)) continue;
    path = row.path;
    return true;
  }
  return false;
}

bool PlantInstallation::fileExists(std::string_view path) const {
  if (path.ends_with(".aee")) return plant_.recordChanges;
  std::error_code fault;
  return std::filesystem::exists(std::filesystem::path(path), fault);
}

std::string PlantInstallation::currentDirectory() const {
  std::error_code fault;
  return std::filesystem::current_path(fault).string();
}

std::string PlantInstallation::projectDirectory() const {
  return currentDirectory();
}

}  // namespace sizewright
