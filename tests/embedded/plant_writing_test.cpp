#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <nlohmann/json.hpp>

#include "embedded/plant_texts.h"
#include "sizewright/embedded/embedded_files.h"
#include "sizewright/embedded/item_run.h"
#include "sizewright/embedded/json_check.h"
#include "sizewright/embedded/json_reader.h"
#include "sizewright/embedded/registry.h"

namespace sizewright {
namespace {

// --- Writing ------------------------------------------------------------------------------------

TEST(PlantWriting, Only_what_differs_from_the_defaults_is_written) {
  EXPECT_EQ(written(*plantOf(R"({"items": {}, "units": "customary", "simulator": 0, "name": "",
                                 "record changes": false, "defaults": true, "install": {},
                                 "streams": {}, "blocks": {}, "criteria": {}, "charts": {},
                                 "fluids": {}, "property database": {},
                                 "databases": {"SIZE": {}}})")),
            "{\n  \"sizewright\": 1,\n  \"items\": {}\n}\n");
}

TEST(PlantWriting, The_text_is_laid_out_for_people) {
  const auto plant = plantOf(R"({"simulator": 1,
      "streams": {"S1": {"class": 3005, "display": "Feed", "slots": {"TEMPERATURE": [77, "DEG F"],
        "FLOW": 0.1}}, "S2": {}},
      "blocks": {"B": {"class": 405}},
      "items": {"P-1": {"category": "DCP", "item": "CENTRIF", "model": "DCP CENTRIF",
        "block": "B", "inlets": {"INLET": ["S1", "S2"]}, "component": {"a": 70},
        "project": {"list": ["x", "y"], "number": 1e300}}},
      "criteria": {"*": {"P": [29.7, "PSI"]}},
      "design rules": {"pressure": [{"value": -1}, {"from": 0, "add": 2}]},
      "databases": {"SIZE": {"P-1": {"a": 1, "c": 2}}, "MINE": {}}})");
  EXPECT_EQ(written(*plant), R"({
  "sizewright": 1,
  "simulator": 1,
  "streams": {
    "S1": {
      "display": "Feed",
      "slots": {
        "TEMPERATURE": [77, "DEG F"],
        "FLOW": 0.1
      }
    },
    "S2": {}
  },
  "blocks": {
    "B": {}
  },
  "items": {
    "P-1": {
      "category": "DCP",
      "item": "CENTRIF",
      "block": "B",
      "inlets": {"INLET": ["S1", "S2"]},
      "component": {"a": 70},
      "project": {
        "list": ["x", "y"],
        "number": 1e+300
      }
    }
  },
  "criteria": {
    "*": {"P": [29.7, "PSI"]}
  },
  "design rules": {
    "pressure": [{"value": -1}, {"from": 0, "add": 2}],
    "temperature": []
  },
  "databases": {
    "SIZE": {
      "P-1": {
        "a": 1,
        "c": 2
      }
    },
    "MINE": {}
  }
}
)");
}

TEST(PlantWriting, What_is_written_reads_back_as_the_same_plant) {
  const auto plant = plantOf(kEveryKey);
  const std::string text = written(*plant);
  const auto again = plantOf(text);
  EXPECT_EQ(written(*again), text);
  // Independent of the writer: a few values of each section.
  EXPECT_EQ(again->name, "Toluene plant");
  EXPECT_EQ(again->unitType, 1);
  EXPECT_EQ(again->store.simulatorType(MemoryStore::kCase), 3);
  EXPECT_EQ(again->store.displayName("S1"), "Feed");
  EXPECT_EQ(again->items[0].blocks, (Names{"B-P101", "BASE"}));
  EXPECT_EQ(again->items[0].model, "Special");
  EXPECT_FALSE(again->items[1].hasProject);
  EXPECT_EQ(slotText(*again, "VPECOMP", "P-101", "_in_2"), "S9\n\nINLET");
  EXPECT_EQ(slotText(*again, "SIZE", "P-101", "DUTY"), "5 BTU/H");
  EXPECT_TRUE(again->store.databaseExists(MemoryStore::kProject, "EMPTY"));
  EXPECT_TRUE(again->propertyDatabase[1].removed);
  EXPECT_EQ(again->charts.at("Caps").at("TS").z[0][1], 2.0);
  EXPECT_EQ(again->fluids.at("Brine").liquidViscosity->b, 900.0);
  EXPECT_FALSE(again->install[1].second.has_value());
  EXPECT_TRUE(again->recordChanges);
  EXPECT_FALSE(again->useDefaults);
  EXPECT_EQ(again->extras, plant->extras);
}

TEST(PlantWriting, Odd_names_and_texts_come_back) {
  const std::string text = written(*plantOf(R"({"items": {"P/\"1\" \u00e4": {"component": {
      "tab\t": "a\u0001b", "inherits": "no object", "\u0000": "\u0000", "empty": ["", "", ""]}}}})"));
  const auto plant = plantOf(text);
  EXPECT_EQ(written(*plant), text);
  EXPECT_EQ(plant->items[0].name, "P/\"1\" \xC3\xA4");
  EXPECT_EQ(slotText(*plant, "VPECOMP", plant->items[0].name, "tab\t"),
            "a\x01"
            "b");
}

TEST(PlantWriting, Numbers_read_back_as_the_same_double) {
  const double numbers[] = {
      0.1,     1.0 / 3.0,         -0.0, 5e-324, 1.7976931348623157e308, 1e21, 123456789012345678.0,
      -2.5e-7, 4503599627370497.5};
  const auto plant = plantOf(R"({"items": {"P": {}}})");
  StoredObject& record = *plant->componentOf(plant->items[0]);
  for (std::size_t i = 0; i < std::size(numbers); ++i) {
    plant->store.set(record, numbered("n", i), CvdSlot::ofNumber(numbers[i], "U"));
  }
  const auto again = plantOf(written(*plant));
  const StoredObject& read = *again->componentOf(again->items[0]);
  for (std::size_t i = 0; i < std::size(numbers); ++i) {
    const double number = again->store.get(read, numbered("n", i)).Number();
    EXPECT_EQ(number, numbers[i]);
    EXPECT_EQ(std::signbit(number), std::signbit(numbers[i])) << numbers[i];
  }
}

TEST(PlantWriting, Bytes_that_are_no_utf8_are_replaced) {
  const auto plant = plantOf(R"({"items": {"P": {}}})");
  plant->store.set(*plant->componentOf(plant->items[0]), "cut", CvdSlot::ofText("half \xC3"));
  const auto again = plantOf(written(*plant));
  EXPECT_EQ(slotText(*again, "VPECOMP", "P", "cut"), "half \xEF\xBF\xBD");
}

TEST(PlantWriting, The_host_s_equipment_information_is_left_out) {
  const auto plant = plantOf(R"({"items": {"P": {}}})");
  plant->store.set(plant->store.add(plant->store.database("VPECOMP"), "equipment information"),
                   "component name", CvdSlot::ofText("P"));
  EXPECT_EQ(written(*plant), written(*plantOf(R"({"items": {"P": {}}})")));
}

TEST(PlantWriting, Bundled_utilities_are_left_out) {
  const auto plant = plantOf(R"({"items": {}})");
  plant->store.add(plant->store.database(kUtilityStreamEntry), "Steam");
  EXPECT_EQ(written(*plant).find("Steam"), std::string::npos);
}

TEST(PlantWriting, Two_streams_of_one_name_cannot_be_written) {
  const auto plant = plantOf(R"({"items": {}, "streams": {"S1": {}}})");
  plant->store.add(plant->store.database(3105), "s1");
  std::ostringstream out;
  try {
    writePlant(*plant, out);
    FAIL() << "no fault";
  } catch (const InputError& fault) {
    EXPECT_STREQ(fault.what(), "streams/S1: two classes have one of this name");
  }
}

// --- After a run --------------------------------------------------------------------------------

constexpr std::string_view kConnected = R"({
    "streams": {"S1": {}, "S2": {}, "S3": {}},
    "blocks": {"B": {}},
    "items": {"P": {"block": "B", "inlets": {"I": ["S1", "S2"]}, "exits": {"O": ["S3"]},
                    "component": {"a": 1}}}})";

// Changes the plant's one component record as a run would, and returns how it is then written.
std::string writtenAfter(const std::function<void(MemoryStore&, StoredObject&)>& change) {
  const auto plant = plantOf(kConnected);
  StoredObject& record = *plant->componentOf(plant->items[0]);
  change(plant->store, record);
  const std::string text = written(*plant);
  const auto again = plantOf(text);
  const StoredObject& read = *again->componentOf(again->items[0]);
  EXPECT_EQ(written(*again), text);
  EXPECT_EQ(slotNamesOf(*again, read), slotNamesOf(*plant, record));
  for (const std::string& slot : slotNamesOf(*plant, record)) {
    EXPECT_EQ(again->store.get(read, slot), plant->store.get(record, slot)) << slot;
  }
  return text;
}

bool contains(const std::string& text, std::string_view part) {
  return text.find(part) != std::string::npos;
}

TEST(PlantAfterRun, Unchanged_ports_are_written_as_connections) {
  const std::string text = writtenAfter([](MemoryStore&, StoredObject&) {});
  EXPECT_TRUE(contains(text, R"("inlets": {"I": ["S1", "S2"]})"));
  EXPECT_TRUE(contains(text, R"("exits": {"O": ["S3"]})"));
  EXPECT_FALSE(contains(text, "__STREAMS__"));
  EXPECT_FALSE(contains(text, "object name"));
  EXPECT_FALSE(contains(text, "Type"));
}

TEST(PlantAfterRun, New_slots_are_written_in_their_order) {
  writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.set(record, "CpFluidHead", CvdSlot::ofNumber(120, "FEET"));
    store.set(record, "Result", CvdSlot::ofText("x"));
    store.set(record, "a", CvdSlot::ofNumber(2));
  });
}

TEST(PlantAfterRun, A_port_of_another_type_is_written_as_a_slot) {
  const std::string text = writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.set(record, "_in_2", CvdSlot::ofList({"S2", "SOMETHING ELSE", "I"}));
  });
  EXPECT_FALSE(contains(text, "inlets"));
  EXPECT_TRUE(contains(text, R"("__STREAMS__IN": ["_in_1", "_in_2"])"));
}

TEST(PlantAfterRun, A_port_more_is_written_as_a_slot) {
  writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.set(record, "__STREAMS__IN", CvdSlot::ofList({"_in_1", "_in_2", "_in_3"}));
    store.set(record, "_in_3", CvdSlot::ofList({"S3", "PROCESS", "I"}));
  });
}

TEST(PlantAfterRun, Removed_ports_are_not_written) {
  const std::string text = writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.remove(record, "_in_1");
    store.remove(record, "_in_2");
    store.remove(record, "__STREAMS__IN");
  });
  EXPECT_FALSE(contains(text, "inlets"));
  EXPECT_TRUE(contains(text, "exits"));
}

TEST(PlantAfterRun, Ports_of_several_tags_are_written_by_tag) {
  const std::string text = writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.set(record, "_in_2", CvdSlot::ofList({"S2", "PROCESS", "J"}));
  });
  EXPECT_TRUE(contains(text, R"("I": ["S1"],)"));
  EXPECT_TRUE(contains(text, R"("J": ["S2"])"));
}

TEST(PlantAfterRun, Ports_whose_tags_come_again_are_written_as_slots) {
  const auto plant = plantOf(R"({"streams": {"S": {}}, "items": {"P": {
      "inlets": {"I": ["S"], "J": ["S"], "K": ["S"]}}}})");
  for (const char* tag : {"I", "i"}) {
    StoredObject& record = *plant->componentOf(plant->items[0]);
    plant->store.set(record, "_in_3", CvdSlot::ofList({"S", "PROCESS", tag}));
    const std::string text = written(*plant);
    EXPECT_FALSE(contains(text, "inlets")) << text;
    EXPECT_EQ(written(*plantOf(text)), text);
  }
}

TEST(PlantAfterRun, A_changed_name_or_type_is_written_as_a_slot) {
  const std::string text = writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.set(record, "Type", CvdSlot::ofText("Other"));
  });
  EXPECT_TRUE(contains(text, R"("Type": "Other")"));
  writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.set(record, "object name", CvdSlot::ofText("Q"));
  });
}

TEST(PlantAfterRun, A_port_to_a_stream_that_the_run_made_has_its_type) {
  writtenAfter([](MemoryStore& store, StoredObject& record) {
    store.add(store.database(kAddedUtilityStream), "STEAM");
    store.set(record, "_ex_1", CvdSlot::ofList({"STEAM", "VPE ADDED UTILITY", "O"}));
  });
}

TEST(PlantAfterRun, Streams_and_objects_of_the_run_come_back) {
  const auto plant = plantOf(kConnected);
  MemoryStore& store = plant->store;
  store.stream(MemoryStore::kProject, kAddedUtilityStream, "STEAM", true);
  store.createDatabase(MemoryStore::kProject, "NEW");
  const ObjectId object = store.object(MemoryStore::kProject, "SIZE", "P", true);
  store.write(object, "HEAD", CvdSlot::ofNumber(120, "FEET"));
  const auto again = plantOf(written(*plant));
  EXPECT_EQ(namesOf(*again, again->store.streams()), (Names{"S1", "S2", "S3", "STEAM"}));
  EXPECT_TRUE(again->store.databaseExists(MemoryStore::kProject, "NEW"));
  EXPECT_EQ(slotText(*again, "SIZE", "P", "HEAD"), "120 FEET");
}

TEST(PlantAfterRun, A_sized_pump_comes_back) {
  const auto plant = readPlant(R"({"simulator": 1,
      "streams": {
        "S1": {"display": "Feed", "slots": {"TEMPERATURE": [77, "DEG F"], "PRESSURE": [20, "PSI"],
          "LIQUID MASS FLOW": [22000, "LB/H"], "LIQUID DENSITY": [54, "PCF"]}},
        "S2": {"slots": {"TEMPERATURE": [77, "DEG F"], "PRESSURE": [90, "PSI"],
          "LIQUID MASS FLOW": [22000, "LB/H"], "LIQUID DENSITY": [54, "PCF"]}}},
      "blocks": {"B-P101": {"slots": {"ITEM MODEL": "PUMP"}}},
      "items": {"P-101": {"category": "DCP", "item": "CENTRIF", "block": "B-P101",
        "inlets": {"INLET": ["S1"]}, "exits": {"OUTLET": ["S2"]},
        "component": {"CpPumpEfficiencyPercent": 70}}}})",
                               "plant.json", equipmentClassNames());
  {
    EmbeddedHost host(*plant);
    ItemRun run(host, plant->items[0]);
    ASSERT_TRUE(run.size());
  }
  const std::string text = written(*plant);
  const auto again = readPlant(text, "plant.json", equipmentClassNames());
  EXPECT_EQ(written(*again), text);
  const StoredObject& before = *plant->componentOf(plant->items[0]);
  const StoredObject& after = *again->componentOf(again->items[0]);
  EXPECT_EQ(slotNamesOf(*again, after), slotNamesOf(*plant, before));
  EXPECT_GT(again->store.find(again->store.database("SIZE"), "P-101")->slotNames.size(), 5U);
  for (const std::string& slot : slotNamesOf(*plant, before)) {
    EXPECT_EQ(again->store.get(after, slot), plant->store.get(before, slot)) << slot;
  }
  EXPECT_FALSE(contains(text, "equipment information"));
}

}  // namespace
}  // namespace sizewright
