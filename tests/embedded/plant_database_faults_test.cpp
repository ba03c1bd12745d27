#include "embedded/plant_database_fixture.h"

namespace sizewright {
namespace {

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
