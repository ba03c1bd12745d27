#include "embedded/plant_database_fixture.h"

namespace sizewright {
namespace {

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

}  // namespace
}  // namespace sizewright
