#include "sizewright/embedded/plant_database.h"

#include <array>
#include <fstream>
#include <new>
#include <nlohmann/json.hpp>
#include <ostream>
#include <unordered_set>

#include "sizewright/embedded/json_printer.h"
#include "sizewright/embedded/json_reader.h"
#include "sizewright/embedded/plant_file.h"
#include "sizewright/embedded/plant_layout.h"
#include "sizewright/embedded/plant_reader.h"
#include "sizewright/embedded/plant_writer.h"
#include "sizewright/embedded/sqlite_file.h"
#include "sizewright/embedded/temporary_file.h"
#include "sizewright/host/text.h"

namespace sizewright {

using nlohmann::ordered_json;

namespace {

constexpr std::int64_t kApplication = 0x53695772;  // "SiWr"
constexpr std::int64_t kVersion = 1;               // of the tables

constexpr std::string_view kSizeRecords = "SIZE";
constexpr std::string_view kInUse = "in use by another process";

// Rows in the order of the plant file; the key is the position, so that reading follows the file.
constexpr std::string_view kEntriesTable =
    "CREATE TABLE entries(position INTEGER PRIMARY KEY, section TEXT NOT NULL COLLATE NOCASE, "
    "name TEXT NOT NULL COLLATE NOCASE, body TEXT NOT NULL, UNIQUE(section, name))";
constexpr std::string_view kSizedTable =
    "CREATE TABLE sized(name TEXT PRIMARY KEY COLLATE NOCASE) WITHOUT ROWID";

constexpr std::string_view kPut =
    "INSERT INTO entries(section, name, body) VALUES(?, ?, ?) "
    "ON CONFLICT(section, name) DO UPDATE SET body = excluded.body";
constexpr std::string_view kPutNew =
    "INSERT INTO entries(section, name, body) VALUES(?, ?, '{}') ON CONFLICT DO NOTHING";
constexpr std::string_view kRemove = "DELETE FROM entries WHERE section = ? AND name = ?";
constexpr std::string_view kMarkSized = "INSERT INTO sized(name) VALUES(?) ON CONFLICT DO NOTHING";

std::string databaseSection(std::string_view name) {
  return std::string(kDatabasePrefix).append(name);
}

// --- Opening ------------------------------------------------------------------------------------

// A database of somebody else's may hold anything: only tables that are exactly ours are read.
void checkTables(SqliteFile& file) {
  if (file.number("PRAGMA application_id") != kApplication) file.refuse("not a plant database");
  const std::int64_t version = file.number("PRAGMA user_version");
  if (version != kVersion) {
    file.refuse("version " + std::to_string(version) +
                " of the plant database; this program reads version " + std::to_string(kVersion));
  }
  SqliteStatement tables(file,
                         "SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL ORDER BY rowid");
  for (const std::string_view table : {kEntriesTable, kSizedTable}) {
    if (!tables.next() || tables.text(0) != table)
      file.refuse("damaged: tables are not as expected");
  }
  if (tables.next()) file.refuse("damaged: tables are not as expected");
}

// Pages that two places claim, or none, would keep a reader busy for ever.
void checkPages(SqliteFile& file) {
  if (const std::string fault = file.text("PRAGMA quick_check(1)"); fault != "ok") {
    file.refuse("damaged: " + shortened(fault));
  }
}

ordered_json parseBody(SqliteFile& file, std::string_view section, std::string_view name,
                       std::string_view body) {
  try {
    return parseJson(body, section.empty() && isExtra(name));
  } catch (const InputError& fault) {
    file.refuse("damaged: " + joinPath(shortened(section), name) + ": " + fault.what());
  }
}

std::unique_ptr<Plant> readEntries(SqliteFile& file,
                                   std::span<const std::string_view> knownClasses) {
  PlantReader reader(knownClasses);
  SqliteStatement rows(file, "SELECT section, name, body FROM entries ORDER BY position");
  while (rows.next()) {
    const std::string_view section = rows.text(0);
    const std::string_view name = rows.text(1);
    const ordered_json value = parseBody(file, section, name, rows.text(2));
    try {
      reader.take(section, name, value);
    } catch (const InputError& fault) {
      file.refuse(fault.what());
    }
  }
  try {
    return reader.finish();
  } catch (const InputError& fault) {
    file.refuse(fault.what());
  }
}

std::unique_ptr<Plant> readWhole(SqliteFile& file, std::span<const std::string_view> knownClasses) {
  try {
    SqliteTransaction snapshot(file, "BEGIN");
    checkTables(file);
    checkPages(file);
    return readEntries(file, knownClasses);
  } catch (const std::bad_alloc&) {
    file.refuse("not enough memory to read it");
  }
}

// --- Making -------------------------------------------------------------------------------------

void fill(SqliteFile& file, Plant& plant) {
  SqliteTransaction transaction(file, "BEGIN IMMEDIATE");
  file.run(std::string(kEntriesTable).c_str());
  file.run(std::string(kSizedTable).c_str());
  SqliteStatement insert(file, "INSERT INTO entries(section, name, body) VALUES(?, ?, ?)");
  std::string body;
  PlantWriter(plant).write(
      [&](std::string_view section, std::string_view name, const ordered_json& value) {
        body.clear();
        printJson(body, value);
        insert.with(section).with(name).with(body).run();
      });
  transaction.commit();
}

// Whether anybody has the database open: they would go on with the old file, were it replaced.
bool isInUse(const std::filesystem::path& database) {
  if (!isPlantDatabase(database)) return false;
  try {
    SqliteFile file(database, SqliteFile::Use::write);
    file.number("PRAGMA schema_version");
    return !file.claim();
  } catch (const InputError&) {
    return false;  // not to be opened, so nobody uses it
  }
}

}  // namespace

bool isPlantDatabase(const std::filesystem::path& path) {
  static constexpr std::string_view kHeader("SQLite format 3\0", 16);
  std::array<char, kHeader.size()> begin{};
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(path, unknown)) return false;
  std::ifstream file(path, std::ios::binary);
  file.read(begin.data(), begin.size());
  return file.gcount() == static_cast<std::streamsize>(begin.size()) &&
         std::string_view(begin.data(), begin.size()) == kHeader;
}

void importPlant(const std::filesystem::path& plantFile, const std::filesystem::path& database,
                 std::span<const std::string_view> knownClasses, bool overwrite) {
  std::error_code unknown;
  if (std::filesystem::is_directory(database, unknown)) {
    throw InputError(database.string(), "is a directory");
  }
  const bool isThere = std::filesystem::exists(database, unknown);
  if (isThere && !overwrite) throw InputError(database.string(), "exists already");
  const std::unique_ptr<Plant> plant = readPlantFile(plantFile, knownClasses);
  if (isThere && isInUse(database)) throw InputError(database.string(), kInUse);

  TemporaryFile temporary(database);
  try {
    SqliteFile file(temporary.path(), SqliteFile::Use::create);
    file.run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
    file.run(("PRAGMA application_id = " + std::to_string(kApplication)).c_str());
    file.run(("PRAGMA user_version = " + std::to_string(kVersion)).c_str());
    fill(file, *plant);
    file.run("PRAGMA journal_mode = WAL");
  } catch (const InputError& fault) {
    // The user knows the file by its final name.
    const std::string_view text = fault.what();
    const std::string& name = temporary.path();
    if (!text.starts_with(name)) throw;
    throw InputError(database.string() + std::string(text.substr(name.size())));
  }
  temporary.keep();
}

std::unique_ptr<Plant> readPlantDatabase(const std::filesystem::path& database,
                                         std::span<const std::string_view> knownClasses) {
  SqliteFile file(database, SqliteFile::Use::read);
  return readWhole(file, knownClasses);
}

void exportPlant(const std::filesystem::path& database, std::ostream& out,
                 std::span<const std::string_view> knownClasses) {
  writePlant(*readPlantDatabase(database, knownClasses), out);
}

// --- Storing ------------------------------------------------------------------------------------

PlantDatabase::PlantDatabase(const std::filesystem::path& path,
                             std::span<const std::string_view> knownClasses)
    : file_(std::make_unique<SqliteFile>(path, SqliteFile::Use::write)) {
  checkTables(*file_);
  if (file_->text("PRAGMA journal_mode = WAL") != "wal") file_->refuse(kInUse);
  file_->run("PRAGMA synchronous = FULL");
  if (!file_->claim()) file_->refuse(kInUse);
  plant_ = readWhole(*file_, knownClasses);
  SqliteStatement sized(*file_, "SELECT name FROM sized");
  while (sized.next()) sized_.intern(sized.text(0));
}

PlantDatabase::~PlantDatabase() = default;

void PlantDatabase::store(const PlantItem& item, std::span<StoredObject* const> changed) {
  takeDownItem(item);
  MemoryStore& store = plant_->store;
  if (StoredDatabase* records = store.findDatabase(kSizeRecords)) {
    if (const StoredObject* record = store.find(*records, item.name)) {
      takeDown(databaseSection(kSizeRecords), *record, PlantWriter(*plant_).object(*record));
    } else {
      rows_.push_back({databaseSection(kSizeRecords), item.name, {}});
    }
  }
  for (const StoredObject* object : changed) takeDownObject(item, *object);
  newlySized_.push_back(item.name);
}

void PlantDatabase::takeDown(std::string section, const StoredObject& object,
                             const ordered_json& body) {
  Row& row = rows_.emplace_back();
  row.section = std::move(section);
  row.name = plant_->store.text(object.name);
  if (object.stored) printJson(row.body, body);
}

void PlantDatabase::takeDownItem(const PlantItem& item) {
  Row& row = rows_.emplace_back();
  row.section = "items";
  row.name = item.name;
  printJson(row.body, PlantWriter(*plant_).item(item));
}

void PlantDatabase::takeDownObject(const PlantItem& item, const StoredObject& object) {
  const std::string& name = plant_->store.text(object.name);
  switch (object.database->classNumber) {
    case 0:
      return takeDownNamed(item, plant_->store.text(object.database->name), object);
    case kSimulatorBlock:
    case kPremappedItem:
      return takeDown("blocks", object, PlantWriter(*plant_).block(object));
    case kProcessStream:
    case kAddedUtilityStream:
    case kAddedPremapStream:
    case kUserAddedStream:
      return takeDown("streams", object, PlantWriter(*plant_).stream(object));
    case kDesignCriteria:
      return takeDown("criteria", object, PlantWriter(*plant_).object(object));
    case kUtilityStreamEntry:
      // Bundled utilities are not the plant's own: one of them in the file would replace them all.
      if (plant_->hasUtilities) takeDown("utilities", object, PlantWriter(*plant_).object(object));
      return;
    case kProjectItem: {
      const int number = equalsIgnoringCase(name, item.name) ? -1 : plant_->findItem(name);
      if (number >= 0) takeDownItem(plant_->items[static_cast<std::size_t>(number)]);
      return;
    }
    default:
      return;  // bundled data
  }
}

// An object of a database known by its name: a component record is part of its item.
void PlantDatabase::takeDownNamed(const PlantItem& item, std::string_view database,
                                  const StoredObject& object) {
  const std::string& name = plant_->store.text(object.name);
  if (equalsIgnoringCase(database, kComponents)) {
    if (equalsIgnoringCase(name, item.name)) return;  // taken down already
    const int number = plant_->findItem(name);
    if (number >= 0) return takeDownItem(plant_->items[static_cast<std::size_t>(number)]);
    if (equalsIgnoringCase(name, kEquipmentInformation) && !plant_->hasEquipmentInformation) return;
  }
  // By name: a run may have removed the database and made it anew.
  StoredDatabase* found = plant_->store.findDatabase(database);
  if (found == nullptr) rows_.push_back({std::string(kDatabases), std::string(database), {}});
  const StoredObject* now = found != nullptr ? plant_->store.find(*found, name) : nullptr;
  if (now == nullptr) {
    rows_.push_back({databaseSection(database), name, {}});
  } else {
    takeDown(databaseSection(database), *now, PlantWriter(*plant_).object(*now));
  }
}

void PlantDatabase::commit() {
  if (rows_.empty() && newlySized_.empty()) return;
  SqliteTransaction transaction(*file_, "BEGIN IMMEDIATE");
  SqliteStatement put(*file_, kPut);
  SqliteStatement putNew(*file_, kPutNew);
  SqliteStatement remove(*file_, kRemove);
  SqliteStatement mark(*file_, kMarkSized);
  std::unordered_set<std::string_view> databases;  // that are there for sure
  for (const Row& row : rows_) {
    if (row.body.empty()) {
      databases.clear();
      remove.with(row.section).with(row.name).run();
      continue;
    }
    const std::string_view section = row.section;
    if (section.starts_with(kDatabasePrefix) && databases.insert(section).second) {
      putNew.with("").with(kDatabases).run();
      putNew.with(kDatabases).with(section.substr(kDatabasePrefix.size())).run();
    }
    put.with(section).with(row.name).with(row.body).run();
  }
  for (const std::string& name : newlySized_) mark.with(name).run();
  transaction.commit();

  for (const std::string& name : newlySized_) sized_.intern(name);
  rows_.clear();
  newlySized_.clear();
}

bool PlantDatabase::isSized(const PlantItem& item) const {
  return sized_.find(item.name) != Symbol::none;
}

void PlantDatabase::clearSized() {
  SqliteTransaction transaction(*file_, "BEGIN IMMEDIATE");
  file_->run("DELETE FROM sized");
  transaction.commit();
  sized_ = NamePool();
}

void PlantDatabase::limitPages(std::int64_t pages) {
  file_->run(("PRAGMA max_page_count = " + std::to_string(pages)).c_str());
}

}  // namespace sizewright
