#pragma once

#include "sizewright/embedded/plant_database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <random>

#include "embedded/plant_texts.h"

namespace sizewright {
using Path = std::filesystem::path;

// --- Means --------------------------------------------------------------------------------------

inline constexpr std::string_view kPumps = R"({
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

inline std::string openFault(const Path& path) {
  return faultOf(path.string(), [&path] { const PlantDatabase opened(path, kTestClasses); });
}
inline std::string readFault(const Path& path) {
  return faultOf(path.string(), [&path] { readPlantDatabase(path, kTestClasses); });
}

// Runs SQL on a file behind the back of the program.
inline std::string runSql(const Path& path, const std::string& sql) {
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
inline bool runElsewhere(const std::function<void()>& action) {
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
[[noreturn]] inline void crash() {
  ::_exit(0);
}

// Puts a result into an item, its project object and its SIZE record.
inline void size(Plant& plant, std::size_t item, double result) {
  MemoryStore& store = plant.store;
  const PlantItem& sized = plant.items[item];
  store.set(*plant.componentOf(sized), "RESULT", CvdSlot::ofNumber(result, "HP"));
  if (StoredObject* project = plant.projectOf(sized)) {
    store.set(*project, "COST", CvdSlot::ofNumber(10 * result));
  }
  store.set(store.add(store.database("SIZE"), sized.name), "RECORD", CvdSlot::ofNumber(result));
}

inline std::string resultOf(Plant& plant, std::string_view item) {
  return slotText(plant, "VPECOMP", item, "RESULT");
}

inline std::string bytesOf(const Path& path) {
  return readTextFile(path);
}

}  // namespace sizewright
