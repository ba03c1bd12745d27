#include "sizewright/embedded/plant_database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <random>

#include "embedded/plant_texts.h"

namespace sizewright {
namespace {

using Path = std::filesystem::path;

// --- Means --------------------------------------------------------------------------------------

constexpr std::string_view kPumps = R"({
    "streams": {"S1": {}, "S2": {}},
    "items": {"P-1": {"inlets": {"INLET": ["S1"]}, "component": {"a": 1}},
              "P-2": {"exits": {"OUTLET": ["S2"]}}, "P-3": {"project": null}},
    "databases": {"MINE": {"OBJECT": {"b": 2}}}})";

class PlantDatabaseTest : public ::testing::Test {
 protected:
  Path import(std::string_view text = kPumps, std::string_view name = "plant.db") {
    importPlant(folder_.write("plant.json", text), folder_.at(name), kTestClasses);
    return folder_.at(name);
  }
  std::string exported(const Path& path) {
    std::ostringstream out;
    exportPlant(path, out, kTestClasses);
    return out.str();
  }
  // Names of the files in the folder.
  std::vector<std::string> files() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.at(""))) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  TestFolder folder_;
};

std::string openFault(const Path& path) {
  return faultOf(path.string(), [&path] { const PlantDatabase opened(path, kTestClasses); });
}
std::string readFault(const Path& path) {
  return faultOf(path.string(), [&path] { readPlantDatabase(path, kTestClasses); });
}

// Runs SQL on a file behind the back of the program.
std::string runSql(const Path& path, const std::string& sql) {
  sqlite3* connection = nullptr;
  std::string result;
  const auto take = [](void* to, int count, char** values, char**) {
    for (int i = 0; i < count; ++i) {
      static_cast<std::string*>(to)->append(values[i] != nullptr ? values[i] : "null").append("|");
    }
    return 0;
  };
  if (sqlite3_open(path.c_str(), &connection) != SQLITE_OK ||
      sqlite3_exec(connection, sql.c_str(), take, &result, nullptr) != SQLITE_OK) {
    result += std::string("fault: ") + sqlite3_errmsg(connection);
  }
  sqlite3_close(connection);
  return result;
}

// Runs something in another process; true when it came to its end, or to a crash.
bool runElsewhere(const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    try {
      action();
    } catch (const std::exception&) {
      ::_exit(1);
    }
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Ends the process without closing anything.
[[noreturn]] void crash() {
  ::_exit(0);
}

// Puts a result into an item, its project object and its SIZE record.
void size(Plant& plant, std::size_t item, double result) {
  MemoryStore& store = plant.store;
  const PlantItem& sized = plant.items[item];
  store.set(*plant.componentOf(sized), "RESULT", CvdSlot::ofNumber(result, "HP"));
  if (StoredObject* project = plant.projectOf(sized)) {
    store.set(*project, "COST", CvdSlot::ofNumber(10 * result));
  }
  store.set(store.add(store.database("SIZE"), sized.name), "RECORD", CvdSlot::ofNumber(result));
}

std::string resultOf(Plant& plant, std::string_view item) {
  return slotText(plant, "VPECOMP", item, "RESULT");
}

std::string bytesOf(const Path& path) {
  return readTextFile(path);
}

// --- Import and export --------------------------------------------------------------------------

TEST_F(PlantDatabaseTest, Import_and_export_lose_nothing) {
  const Path path = import(kEveryKey);
  EXPECT_EQ(exported(path), written(*plantOf(kEveryKey)));
}

TEST_F(PlantDatabaseTest, Empty_sections_and_bare_plants_come_back) {
  for (const char* text : {R"({"items": {}})", R"({"items": {}, "utilities": {}})",
                           R"({"items": {}, "design rules": {}, "x-a": {"A": 1, "a": [[2]]}})",
                           R"({"items": {}, "databases": {"EMPTY": {}}})"}) {
    const Path path = import(text);
    EXPECT_EQ(exported(path), written(*plantOf(text)));
    std::filesystem::remove(path);
  }
}

TEST_F(PlantDatabaseTest, A_database_is_told_from_a_plant_file) {
  EXPECT_TRUE(isPlantDatabase(import()));
  EXPECT_FALSE(isPlantDatabase(folder_.at("plant.json")));
  EXPECT_FALSE(isPlantDatabase(folder_.write("empty", "")));
  EXPECT_FALSE(isPlantDatabase(folder_.at("none")));
  EXPECT_FALSE(isPlantDatabase(folder_.at("")));
}

TEST_F(PlantDatabaseTest, The_file_says_what_it_is) {
  const Path path = import();
  EXPECT_EQ(runSql(path, "PRAGMA application_id; PRAGMA user_version; PRAGMA journal_mode"),
            "1399412594|1|wal|");
  EXPECT_EQ(runSql(path, "SELECT body FROM entries WHERE section = 'items' AND name = 'p-2'"),
            R"({"exits": {"OUTLET": ["S2"]}}|)");
  EXPECT_EQ(runSql(path, "SELECT count(*) FROM sized"), "0|");
}

TEST_F(PlantDatabaseTest, Import_leaves_only_the_database) {
  import();
  EXPECT_EQ(files(), (std::vector<std::string>{"plant.db", "plant.json"}));
}

TEST_F(PlantDatabaseTest, Import_leaves_an_existing_file_alone) {
  const Path target = folder_.write("plant.db", "mine");
  EXPECT_EQ(faultOf(target.string(), [this] { import(); }), "exists already");
  EXPECT_EQ(bytesOf(target), "mine");
  EXPECT_EQ(files(), (std::vector<std::string>{"plant.db", "plant.json"}));
}

TEST_F(PlantDatabaseTest, Import_replaces_an_existing_file_when_asked) {
  const Path path = import();
  const Path other = folder_.write("other.json", R"({"name": "other", "items": {}})");
  importPlant(other, path, kTestClasses, true);
  EXPECT_EQ(readPlantDatabase(path, kTestClasses)->name, "other");
  const Path text = folder_.write("text.db", "mine");
  importPlant(other, text, kTestClasses, true);
  EXPECT_EQ(readPlantDatabase(text, kTestClasses)->name, "other");
}

TEST_F(PlantDatabaseTest, Import_replaces_what_a_crash_left_as_well) {
  const Path path = import();
  ASSERT_TRUE(runElsewhere([&path] {
    PlantDatabase database(path, kTestClasses);
    size(database.plant(), 0, 5);
    database.store(database.plant().items[0]);
    database.commit();
    crash();
  }));
  ASSERT_TRUE(std::filesystem::exists(path.string() + "-wal"));
  importPlant(folder_.at("plant.json"), path, kTestClasses, true);
  EXPECT_EQ(exported(path), written(*plantOf(kPumps)));
}

TEST_F(PlantDatabaseTest, Import_of_a_bad_file_makes_nothing) {
  const Path file = folder_.write("bad.json", R"({"items": {"P": 5}})");
  const Path target = folder_.at("plant.db");
  EXPECT_EQ(faultOf(file.string(), [&] { importPlant(file, target, kTestClasses); }),
            "items/P: expected an object");
  EXPECT_EQ(files(), std::vector<std::string>{"bad.json"});
}

TEST_F(PlantDatabaseTest, Import_of_a_bad_file_leaves_the_old_database) {
  const Path path = import();
  const Path file = folder_.write("bad.json", "{");
  EXPECT_THROW(importPlant(file, path, kTestClasses, true), InputError);
  EXPECT_EQ(exported(path), written(*plantOf(kPumps)));
}

TEST_F(PlantDatabaseTest, Import_to_where_nothing_can_be_written_is_a_fault) {
  const Path file = folder_.write("plant.json", kPumps);
  const Path target = folder_.at("none") / "plant.db";
  EXPECT_EQ(faultOf(target.string(), [&] { importPlant(file, target, kTestClasses); }),
            "cannot be written: No such file or directory");
  const Path directory = folder_.at("");
  EXPECT_EQ(faultOf(directory.string(), [&] { importPlant(file, directory, kTestClasses, true); }),
            "is a directory");
}

// --- Storing ------------------------------------------------------------------------------------

TEST_F(PlantDatabaseTest, Stored_results_are_there_when_it_is_opened_again) {
  const Path path = import();
  std::string before;
  {
    PlantDatabase database(path, kTestClasses);
    size(database.plant(), 0, 5);
    size(database.plant(), 2, 7);
    database.store(database.plant().items[0]);
    database.store(database.plant().items[2]);
    database.commit();
    before = written(database.plant());
  }
  EXPECT_EQ(exported(path), before);
  PlantDatabase database(path, kTestClasses);
  Plant& plant = database.plant();
  EXPECT_EQ(resultOf(plant, "P-1"), "5 HP");
  EXPECT_EQ(slotText(plant, plant.store.database(kProjectItem), "P-1", "COST"), "50");
  EXPECT_EQ(slotText(plant, "SIZE", "P-1", "RECORD"), "5");
  EXPECT_EQ(resultOf(plant, "P-2"), "(none)");
  EXPECT_EQ(resultOf(plant, "P-3"), "7 HP");
  EXPECT_FALSE(plant.items[2].hasProject);
}

TEST_F(PlantDatabaseTest, Results_that_were_not_stored_are_not_there) {
  const Path path = import();
  {
    PlantDatabase database(path, kTestClasses);
    size(database.plant(), 0, 5);
    size(database.plant(), 1, 6);
    database.store(database.plant().items[0]);
    database.commit();
    database.store(database.plant().items[1]);  // never committed
  }
  const auto plant = readPlantDatabase(path, kTestClasses);
  EXPECT_EQ(resultOf(*plant, "P-1"), "5 HP");
  EXPECT_EQ(resultOf(*plant, "P-2"), "(none)");
}

TEST_F(PlantDatabaseTest, Results_are_stored_as_they_were_when_they_were_taken_down) {
  const Path path = import();
  {
    PlantDatabase database(path, kTestClasses);
    size(database.plant(), 0, 5);
    database.store(database.plant().items[0]);
    size(database.plant(), 0, 6);
    database.commit();
  }
  EXPECT_EQ(resultOf(*readPlantDatabase(path, kTestClasses), "P-1"), "5 HP");
}

TEST_F(PlantDatabaseTest, Committed_results_survive_a_crash_and_no_others) {
  const Path path = import();
  ASSERT_TRUE(runElsewhere([&path] {
    PlantDatabase database(path, kTestClasses);
    for (std::size_t item : {0U, 1U}) {
      size(database.plant(), item, 5);
      database.store(database.plant().items[item]);
      if (item == 0) database.commit();
    }
    crash();
  }));
  PlantDatabase database(path, kTestClasses);
  EXPECT_EQ(resultOf(database.plant(), "P-1"), "5 HP");
  EXPECT_EQ(resultOf(database.plant(), "P-2"), "(none)");
  EXPECT_TRUE(database.isSized(database.plant().items[0]));
  EXPECT_FALSE(database.isSized(database.plant().items[1]));
}

TEST_F(PlantDatabaseTest, What_was_sized_is_known_in_a_later_run_until_it_is_cleared) {
  const Path path = import();
  {
    PlantDatabase database(path, kTestClasses);
    const auto& items = database.plant().items;
    database.store(items[1]);
    EXPECT_FALSE(database.isSized(items[1]));
    database.commit();
    EXPECT_TRUE(database.isSized(items[1]));
  }
  {
    PlantDatabase database(path, kTestClasses);
    const auto& items = database.plant().items;
    EXPECT_FALSE(database.isSized(items[0]));
    EXPECT_TRUE(database.isSized(items[1]));
    database.clearSized();
    EXPECT_FALSE(database.isSized(items[1]));
  }
  const PlantDatabase database(path, kTestClasses);
  EXPECT_FALSE(database.isSized(readPlantDatabase(path, kTestClasses)->items[1]));
}

TEST_F(PlantDatabaseTest, Other_objects_that_changed_are_stored_with_the_item) {
  const Path path = import(R"({
      "streams": {"S1": {}}, "blocks": {"B": {}}, "criteria": {"*": {"a": 1}},
      "utilities": {"Air": {}}, "items": {"P-1": {}, "P-2": {}},
      "databases": {"MINE": {"OLD": {"b": 2}, "KEPT": {}}}})");
  std::string before;
  {
    PlantDatabase database(path, kTestClasses);
    Plant& plant = database.plant();
    MemoryStore& store = plant.store;
    const auto change = [&store](StoredObject* object) {
      store.set(*object, "NEW", CvdSlot::ofText("x"));
      return object;
    };
    std::vector<StoredObject*> changed = {
        change(store.streams()[0]),
        change(&store.add(store.database(kAddedUtilityStream), "STEAM")),
        change(store.blocks()[0]),
        change(store.find(store.database(kDesignCriteria), "*")),
        change(store.find(store.database(kUtilityStreamEntry), "Air")),
        change(&store.add(store.database("MINE"), "FRESH")),
        change(&store.add(store.database("ADDED"), "OBJECT")),
        change(plant.componentOf(plant.items[0])),
        change(plant.componentOf(plant.items[1])),
        change(plant.projectOf(plant.items[1])),
    };
    changed.push_back(store.find(store.database("MINE"), "OLD"));
    store.clear(*changed.back());
    database.store(plant.items[0], changed);
    database.commit();
    before = written(plant);
  }
  EXPECT_EQ(exported(path), before);
  const auto plant = readPlantDatabase(path, kTestClasses);
  EXPECT_EQ(slotText(*plant, plant->store.database(3105), "STEAM", "NEW"), "x");
  EXPECT_EQ(slotText(*plant, "ADDED", "OBJECT", "NEW"), "x");
  EXPECT_EQ(slotText(*plant, "VPECOMP", "P-2", "NEW"), "x");
  EXPECT_EQ(slotText(*plant, "MINE", "OLD", "b"), "(none)");
}

TEST_F(PlantDatabaseTest, A_database_that_a_run_removed_is_gone) {
  const Path path = import();
  {
    PlantDatabase database(path, kTestClasses);
    Plant& plant = database.plant();
    StoredObject* object = plant.store.find(plant.store.database("MINE"), "OBJECT");
    plant.store.deleteDatabase(MemoryStore::kProject, "MINE");
    database.store(plant.items[0], std::vector<StoredObject*>{object});
    database.commit();
  }
  const auto plant = readPlantDatabase(path, kTestClasses);
  EXPECT_FALSE(plant->store.databaseExists(MemoryStore::kProject, "MINE"));
}

TEST_F(PlantDatabaseTest, What_belongs_to_the_host_is_not_stored) {
  const Path path = import();
  const std::string before = exported(path);
  {
    PlantDatabase database(path, kTestClasses);
    MemoryStore& store = database.plant().store;
    StoredObject* changed[] = {
        &store.add(store.database(kUtilityStreamEntry), "Bundled"),
        &store.add(store.database(kPropertyObjects), "Bundled"),
        &store.add(store.database("VPECOMP"), "equipment information"),
    };
    database.store(database.plant().items[0], changed);
    database.commit();
  }
  EXPECT_EQ(exported(path), before);
}

// --- One writer, many readers -------------------------------------------------------------------

TEST_F(PlantDatabaseTest, A_database_is_open_for_storing_once) {
  const Path path = import();
  {
    const PlantDatabase first(path, kTestClasses);
    EXPECT_EQ(openFault(path), "in use by another process");
    EXPECT_FALSE(runElsewhere([&path] { const PlantDatabase second(path, kTestClasses); }));
    EXPECT_EQ(openFault(path), "in use by another process");
  }
  EXPECT_EQ(openFault(path), "");
}

TEST_F(PlantDatabaseTest, A_database_stays_closed_to_others_after_a_commit) {
  const Path path = import();
  PlantDatabase database(path, kTestClasses);
  database.store(database.plant().items[0]);
  database.commit();
  EXPECT_FALSE(runElsewhere([&path] { const PlantDatabase second(path, kTestClasses); }));
}

TEST_F(PlantDatabaseTest, A_reader_sees_what_was_last_committed) {
  const Path path = import();
  PlantDatabase database(path, kTestClasses);
  size(database.plant(), 0, 5);
  database.store(database.plant().items[0]);
  EXPECT_EQ(resultOf(*readPlantDatabase(path, kTestClasses), "P-1"), "(none)");
  database.commit();
  EXPECT_EQ(resultOf(*readPlantDatabase(path, kTestClasses), "P-1"), "5 HP");
  EXPECT_TRUE(runElsewhere([&path] { readPlantDatabase(path, kTestClasses); }));
  database.store(database.plant().items[1]);
  database.commit();  // the reader is no hindrance
}

TEST_F(PlantDatabaseTest, A_database_in_use_is_not_replaced) {
  const Path path = import();
  const PlantDatabase database(path, kTestClasses);
  EXPECT_EQ(faultOf(path.string(),
                    [&] { importPlant(folder_.at("plant.json"), path, kTestClasses, true); }),
            "in use by another process");
  EXPECT_EQ(exported(path), written(*plantOf(kPumps)));
}

// --- Files that are not as they should be -------------------------------------------------------

TEST_F(PlantDatabaseTest, A_file_that_is_no_plant_database_is_refused) {
  const auto expect = [](const Path& path, const char* fault) {
    EXPECT_EQ(openFault(path), fault);
    EXPECT_EQ(readFault(path), fault);
  };
  expect(folder_.at("none.db"), "no such file");
  expect(folder_.at(""), "is a directory");
  expect("/dev/null", "not a plant database");
  expect(folder_.write("empty.db", ""), "not a plant database");
  expect(folder_.write("text.db", std::string(5000, 'x')), "not a plant database");
  expect(folder_.write("header.db", std::string("SQLite format 3\0", 16)), "not a plant database");
  runSql(folder_.at("other.db"), "CREATE TABLE entries(section, name, body)");
  expect(folder_.at("other.db"), "not a plant database");
  EXPECT_EQ(runSql(folder_.at("other.db"), "SELECT count(*) FROM entries"), "0|");
}

TEST_F(PlantDatabaseTest, A_newer_version_is_refused) {
  const Path path = import();
  runSql(path, "PRAGMA user_version = 2");
  const char* fault = "version 2 of the plant database; this program reads version 1";
  EXPECT_EQ(openFault(path), fault);
  EXPECT_EQ(readFault(path), fault);
}

TEST_F(PlantDatabaseTest, Tables_that_are_not_ours_are_not_read) {
  const char* changes[] = {
      "DROP TABLE sized",
      "CREATE TABLE more(a)",
      "CREATE TRIGGER t AFTER INSERT ON entries BEGIN DELETE FROM entries; END",
      "CREATE INDEX i ON entries(body)",
      "DROP TABLE entries; CREATE VIEW entries AS WITH RECURSIVE n(position) AS "
      "(SELECT 1 UNION ALL SELECT position + 1 FROM n) "
      "SELECT position, 'items' section, position name, '{}' body FROM n",
  };
  for (const char* change : changes) {
    const Path path = import();
    ASSERT_EQ(runSql(path, change), "");
    EXPECT_EQ(openFault(path), "damaged: tables are not as expected") << change;
    EXPECT_EQ(readFault(path), "damaged: tables are not as expected") << change;
    std::filesystem::remove(path);
  }
}

TEST_F(PlantDatabaseTest, A_fault_in_an_entry_is_told_with_its_place) {
  const std::pair<const char*, const char*> cases[] = {
      {"UPDATE entries SET body = '{\"componen' WHERE name = 'P-1'",
       "damaged: items/P-1: line 1, column 11: not JSON: invalid string: missing closing quote"},
      {"UPDATE entries SET body = '' WHERE name = 'P-1'",
       "damaged: items/P-1: line 1, column 1: not JSON: unexpected end of input; expected '[', "
       "'{', or a literal"},
      {"UPDATE entries SET body = x'FF' WHERE name = 'P-1'",
       "damaged: items/P-1: line 1, column 1: not JSON: invalid literal"},
      {"UPDATE entries SET body = '{\"component\": 5}' WHERE name = 'P-1'",
       "items/P-1/component: expected an object"},
      {"UPDATE entries SET section = 'item' WHERE name = 'P-1'", "item: unknown key"},
      {"UPDATE entries SET section = 'i' || char(10) || 's' WHERE name = 'P-1'",
       "i?s: unknown key"},
      {"UPDATE entries SET name = '' WHERE name = 'P-1'", "items: empty name"},
      {"UPDATE entries SET name = 'p-1' WHERE name = 'P-1'", ""},
      {"DELETE FROM entries WHERE section = '' AND name = 'items'", "missing key \"items\""},
      {"UPDATE entries SET body = '{\"P-1\": {}}' WHERE section = '' AND name = 'items'",
       "items/P-1: duplicate key"},
  };
  for (const auto& [sql, fault] : cases) {
    const Path path = import();
    ASSERT_EQ(runSql(path, sql), "");
    EXPECT_EQ(openFault(path), fault) << sql;
    EXPECT_EQ(readFault(path), fault) << sql;
    std::filesystem::remove(path);
  }
}

TEST_F(PlantDatabaseTest, A_file_that_may_not_be_written_can_be_exported) {
  const Path path = import();
  const std::string expected = exported(path);
  std::filesystem::permissions(path, static_cast<std::filesystem::perms>(0444));
  std::filesystem::permissions(folder_.at(""), static_cast<std::filesystem::perms>(0555));
  const AsOrdinaryUser ordinary;
  EXPECT_EQ(openFault(path), "cannot be written");
  EXPECT_EQ(exported(path), expected);
}

TEST_F(PlantDatabaseTest, A_file_that_may_not_be_read_is_refused) {
  const Path path = import();
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const AsOrdinaryUser ordinary;
  EXPECT_EQ(openFault(path), "cannot be opened");
  EXPECT_EQ(readFault(path), "cannot be opened");
}

// --- No space -----------------------------------------------------------------------------------

TEST_F(PlantDatabaseTest, A_group_that_finds_no_space_is_stored_not_at_all) {
  const Path path = import();
  {
    PlantDatabase database(path, kTestClasses);
    Plant& plant = database.plant();
    size(plant, 0, 5);
    database.store(plant.items[0]);
    database.commit();

    size(plant, 1, 6);
    size(plant, 2, 7);
    plant.store.set(*plant.componentOf(plant.items[2]), "LONG",
                    CvdSlot::ofText(std::string(1000000, 'x')));
    database.store(plant.items[1]);
    database.store(plant.items[2]);
    database.limitPages(20);
    EXPECT_EQ(faultOf(path.string(), [&database] { database.commit(); }),
              "no space left to store it in");
    EXPECT_FALSE(database.isSized(plant.items[1]));
    EXPECT_EQ(resultOf(*readPlantDatabase(path, kTestClasses), "P-2"), "(none)");

    database.limitPages(1000000);
    database.commit();
    EXPECT_TRUE(database.isSized(plant.items[1]));
  }
  const auto plant = readPlantDatabase(path, kTestClasses);
  EXPECT_EQ(resultOf(*plant, "P-1"), "5 HP");
  EXPECT_EQ(resultOf(*plant, "P-2"), "6 HP");
  EXPECT_EQ(resultOf(*plant, "P-3"), "7 HP");
}

// --- Damage -------------------------------------------------------------------------------------

// Whatever the bytes are: a plant, into which results can be stored, or one line of fault.
void expectPlantOrFault(const Path& path) {
  const auto expectLine = [&path](const InputError& fault) {
    const std::string_view message = fault.what();
    EXPECT_TRUE(message.starts_with(path.string() + ": ")) << message;
    EXPECT_EQ(message.find('\n'), std::string::npos) << message;
    EXPECT_LT(message.size(), 1000U);
  };
  try {
    written(*readPlantDatabase(path, kTestClasses));
  } catch (const InputError& fault) {
    expectLine(fault);
  }
  try {
    PlantDatabase database(path, kTestClasses);
    if (database.plant().items.empty()) return;
    size(database.plant(), 0, 5);
    database.store(database.plant().items[0]);
    database.commit();
  } catch (const InputError& fault) {
    expectLine(fault);
  }
}

std::string manyPumps() {
  std::string text = R"({"items": {"P-0": {})";
  for (int i = 1; i < 100; ++i) {
    text += ", \"P-" + std::to_string(i) + R"(": {"component": {"a": [1, "PSI"], "b": "text"}})";
  }
  return text + "}}";
}

TEST_F(PlantDatabaseTest, Changed_bytes_give_a_plant_or_a_fault) {
  const std::string good = bytesOf(import(manyPumps()));
  const Path path = folder_.at("changed.db");
  std::mt19937 random(20240612);
  const auto below = [&random](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
  };
  for (int round = 0; round < 300; ++round) {
    std::string bytes = good;
    const std::size_t area = round % 3 == 0 ? 200 : bytes.size();  // the header, or anywhere
    for (std::size_t changes = 1 + below(8); changes > 0; --changes) {
      bytes[below(area)] = static_cast<char>(below(256));
    }
    folder_.write("changed.db", bytes);
    expectPlantOrFault(path);
    for (const char* rest : {"-wal", "-shm", "-journal"}) {
      std::filesystem::remove(path.string() + rest);
    }
  }
}

TEST_F(PlantDatabaseTest, A_file_that_ends_early_is_a_fault) {
  const std::string good = bytesOf(import(manyPumps()));
  ASSERT_GE(good.size(), 5U * 4096U);
  const Path path = folder_.at("short.db");
  for (std::size_t length = 16; length < good.size(); length += 1001) {
    folder_.write("short.db", good.substr(0, length));
    EXPECT_NE(readFault(path), "") << length;
    EXPECT_NE(openFault(path), "") << length;
  }
}

// A database and its log as a crash leaves them, after two commits.
class AfterCrash : public PlantDatabaseTest {
 protected:
  void SetUp() override {
    path_ = import();
    ASSERT_TRUE(runElsewhere([this] {
      PlantDatabase database(path_, kTestClasses);
      for (std::size_t item : {0U, 1U}) {
        size(database.plant(), item, 5);
        database.store(database.plant().items[item]);
        database.commit();
      }
      crash();
    }));
    file_ = bytesOf(path_);
    log_ = bytesOf(path_.string() + "-wal");
  }

  // Puts the files back, with this log.
  void restore(std::string_view log) {
    folder_.write("plant.db", file_);
    folder_.write("plant.db-wal", log);
    std::filesystem::remove(path_.string() + "-shm");
  }

  Path path_;
  std::string file_;
  std::string log_;
};

TEST_F(AfterCrash, A_log_that_ends_early_holds_whole_commits_only) {
  bool hadNone = false;
  bool hadFirst = false;
  for (std::size_t length = 0; length <= log_.size(); length += 500) {
    restore(log_.substr(0, length));
    const auto plant = readPlantDatabase(path_, kTestClasses);
    const bool first = resultOf(*plant, "P-1") == "5 HP";
    const bool second = resultOf(*plant, "P-2") == "5 HP";
    EXPECT_TRUE(first || !second) << length;
    EXPECT_EQ(slotText(*plant, "SIZE", "P-1", "RECORD"), first ? "5" : "(none)") << length;
    EXPECT_EQ(slotText(*plant, "SIZE", "P-2", "RECORD"), second ? "5" : "(none)") << length;
    hadNone = hadNone || !first;
    hadFirst = hadFirst || (first && !second);
  }
  EXPECT_TRUE(hadNone);
  EXPECT_TRUE(hadFirst);
  restore(log_);
  EXPECT_EQ(resultOf(*readPlantDatabase(path_, kTestClasses), "P-2"), "5 HP");
}

TEST_F(AfterCrash, A_log_with_changed_bytes_gives_a_plant_or_a_fault) {
  std::mt19937 random(20240613);
  for (int round = 0; round < 100; ++round) {
    std::string log = log_;
    std::uniform_int_distribution<std::size_t> place(0, log.size() - 1);
    for (int changes = 0; changes < 3; ++changes)
      log[place(random)] ^= static_cast<char>(round | 1);
    restore(log);
    expectPlantOrFault(path_);
  }
}

}  // namespace
}  // namespace sizewright
