#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include "sizewright/embedded/plant_file.h"

namespace sizewright {

inline constexpr auto kTestClasses =
    std::to_array<std::string_view>({"CMultiTwObj", "CSideHx", "CCoolTwObj"});

inline std::unique_ptr<Plant> plantOf(std::string_view text) {
  return readPlant(text, "plant.json", kTestClasses);
}

inline std::string written(Plant& plant) {
  std::ostringstream out;
  writePlant(plant, out);
  return out.str();
}

/// "name7"
inline std::string numbered(std::string_view name, std::size_t number) {
  return std::string(name).append(std::to_string(number));
}

/// What is said of an input, without its name; empty when nothing is wrong with it.
template <class Action>
std::string faultOf(const std::string& name, Action&& action) {
  try {
    action();
  } catch (const InputError& fault) {
    const std::string text = fault.what();
    return text.starts_with(name + ": ") ? text.substr(name.size() + 2) : "without name: " + text;
  }
  return {};
}

inline std::string plantFault(std::string_view text) {
  return faultOf("plant.json", [text] { plantOf(text); });
}

/// Value of a slot of a database's object, as text: the text, the joined lines, or the number and
/// its unit; "(none)" when it is not there.
inline std::string slotText(Plant& plant, StoredDatabase& database, std::string_view object,
                            std::string_view slot) {
  const StoredObject* found = plant.store.find(database, object);
  const CvdSlot value = found != nullptr ? plant.store.get(*found, slot) : CvdSlot();
  if (!value.IsValid()) return "(none)";
  if (!value.IsNumber()) return value.Text();
  std::ostringstream text;
  text << value.Number();
  if (value.HasUnits()) text << ' ' << value.Units();
  return text.str();
}

inline std::string slotText(Plant& plant, std::string_view database, std::string_view object,
                            std::string_view slot) {
  return slotText(plant, plant.store.database(database), object, slot);
}

/// Makes file permissions count for the super user too, for the length of a block.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() {
    if (isRoot_ && ::seteuid(65534) != 0) std::abort();
  }
  ~AsOrdinaryUser() {
    if (isRoot_ && ::seteuid(0) != 0) std::abort();
  }
  AsOrdinaryUser(const AsOrdinaryUser&) = delete;
  AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

 private:
  bool isRoot_ = ::geteuid() == 0;
};

/// A folder of its own for one test, removed at its end.
class TestFolder {
 public:
  TestFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "sizewright-XXXXXX").string();
    path_ = ::mkdtemp(name.data());
    std::filesystem::permissions(path_, static_cast<std::filesystem::perms>(0755));
  }
  ~TestFolder() {
    std::error_code unknown;
    std::filesystem::remove_all(path_, unknown);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  [[nodiscard]] std::filesystem::path at(std::string_view name) const { return path_ / name; }
  std::filesystem::path write(std::string_view name, std::string_view text) const {
    std::ofstream(at(name), std::ios::binary) << text;
    return at(name);
  }

 private:
  std::filesystem::path path_;
};

/// A plant file that uses every key.
inline constexpr std::string_view kEveryKey = R"({
  "x-editor": {"zoom": 1.5, "a": [null, true], "A": "\u00e4"},
  "sizewright": 1,
  "name": "Toluene plant",
  "units": "metric",
  "simulator": 3,
  "streams": {
    "S1": {"class": 3105, "display": "Feed", "slots": {
      "TEMPERATURE": [77.25, "DEG F"], "FLUID": "Water", "MW": 18, "NOTES": ["one", "two"]}},
    "S2": {}
  },
  "blocks": {
    "B-P101": {"class": 505, "inherits": "BASE", "slots": {"ITEM MODEL": "PUMP"}},
    "BASE": {"slots": {"EFFICIENCY": 70}}
  },
  "items": {
    "P-101": {
      "category": "DCP", "item": "CENTRIF", "model": "Special", "block": ["B-P101", "BASE"],
      "class": "CSideHx",
      "inlets": {"INLET": ["S1", "S9"]}, "exits": {"OUTLET": ["S2"], "VENT": ["S1"]},
      "component": {"CpPumpEfficiencyPercent": 70},
      "project": {"CpAllowResize": "Yes"}
    },
    "P-102": {"project": null},
    "P-103": {}
  },
  "criteria": {"*": {"Minimum Design Pressure": [29.7, "PSI"]}, "DCP CENTRIF": {}},
  "utilities": {"Cooling water": {"Fluid": "Water"}, "Air": {"Enabled": "YES"}},
  "design rules": {
    "pressure": [{"value": -14.5}, {"from": 0, "factor": 1.1, "at least": 25}],
    "temperature": [{"add": 50}]
  },
  "databases": {
    "VPECOMP": {"VARDEX sizer options": {"Source sub type": "NORMAL"}},
    "SIZE": {"P-101": {"DUTY": [5, "BTU/H"]}},
    "MINE": {"CHILD": {"inherits": "PARENT", "a": 1}, "PARENT": {"b": 2}},
    "EMPTY": {}
  },
  "property database": {"Screens": {"0.5": 3.5, "0.75": null}, "Packings": null},
  "charts": {"Caps": {"TS": {"x": [1, 2], "y": [0.1, 1, 10], "z": [[1, 2, 3], [4, 5, 6]]}}},
  "fluids": {"Brine": {"molecular weight": 20.5, "liquid viscosity": [-5, 900], "z": 0.9}},
  "install": {"SystemCacheDir": "D:\\cache", "SourceDir": null, "ClipboardDir": ""},
  "record changes": true,
  "defaults": false
})";

using Names = std::vector<std::string>;

inline Names namesOf(const Plant& plant, const std::vector<StoredObject*>& objects) {
  Names names;
  for (const StoredObject* object : objects) names.push_back(plant.store.text(object->name));
  return names;
}

inline Names slotNamesOf(const Plant& plant, const StoredObject& object) {
  Names names;
  for (const Symbol slot : object.slotNames) names.push_back(plant.store.text(slot));
  return names;
}

}  // namespace sizewright
