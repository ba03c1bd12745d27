#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sizewright/embedded/input_error.h"
#include "sizewright/embedded/plant.h"

namespace sizewright {

class SqliteFile;

// A plant database is an SQLite file that holds a plant file cut into rows. Whatever is wrong with
// one is thrown as InputError: "path: fault".

/// Whether a file is a database rather than a plant file, by how it begins. To be asked before the
/// database is opened: closing a file lets go of the locks that the process has on it.
bool isPlantDatabase(const std::filesystem::path& path);

/// Makes a plant database of a plant file, whole or not at all. An existing file is left alone
/// unless `overwrite`.
void importPlant(const std::filesystem::path& plantFile, const std::filesystem::path& database,
                 std::span<const std::string_view> knownClasses, bool overwrite = false);

/// Reads the plant as it was last stored, which works while somebody else stores into it.
std::unique_ptr<Plant> readPlantDatabase(const std::filesystem::path& database,
                                         std::span<const std::string_view> knownClasses);

/// Writes it as a plant file.
void exportPlant(const std::filesystem::path& database, std::ostream& out,
                 std::span<const std::string_view> knownClasses);

/// A plant database open for storing results: for this process alone, until it is destroyed.
/// Belongs to one thread at a time.
class PlantDatabase {
 public:
  PlantDatabase(const std::filesystem::path& path, std::span<const std::string_view> knownClasses);
  ~PlantDatabase();

  /// The plant, as read when the database was opened.
  [[nodiscard]] Plant& plant() { return *plant_; }

  /// Takes down an item as it stands now, with its SIZE record and whatever else changed with it,
  /// and counts it as sized. Nothing is stored until `commit`.
  void store(const PlantItem& item, std::span<StoredObject* const> changed = {});
  /// Stores what was taken down since the last commit: all of it, durably, or nothing. After a
  /// fault it may be tried again.
  void commit();

  /// Whether the item's results were stored, in this run or in an earlier one.
  [[nodiscard]] bool isSized(const PlantItem& item) const;
  /// Forgets, in the file too, which items were sized.
  void clearSized();

  /// Lets the file grow to so many pages and no more.
  void limitPages(std::int64_t pages);

 private:
  struct Row {
    std::string section;
    std::string name;
    std::string body;  // empty: the entry is no more
  };

  void takeDown(std::string section, const StoredObject& object,
                const nlohmann::ordered_json& body);
  void takeDownItem(const PlantItem& item);
  void takeDownObject(const PlantItem& item, const StoredObject& object);
  void takeDownNamed(const PlantItem& item, std::string_view database, const StoredObject& object);

  std::unique_ptr<SqliteFile> file_;
  std::unique_ptr<Plant> plant_;
  NamePool sized_;
  std::vector<Row> rows_;  // taken down
  std::vector<std::string> newlySized_;
};

}  // namespace sizewright
