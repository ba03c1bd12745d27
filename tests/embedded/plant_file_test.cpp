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

// --- What each key becomes ----------------------------------------------------------------------

TEST(PlantFile, Only_items_is_required) {
  const auto plant = plantOf(R"({"items": {}})");
  EXPECT_EQ(plant->name, "");
  EXPECT_EQ(plant->unitType, 0);
  EXPECT_FALSE(plant->store.caseIsValid(MemoryStore::kCase));
  EXPECT_TRUE(plant->items.empty());
  EXPECT_FALSE(plant->recordChanges);
  EXPECT_TRUE(plant->useDefaults);
  EXPECT_FALSE(plant->designRules.has_value());
  EXPECT_FALSE(plant->hasUtilities);
  EXPECT_FALSE(plant->hasEquipmentInformation);
}

TEST(PlantFile, Standard_databases_exist_without_being_named) {
  const auto plant = plantOf(R"({"items": {}})");
  for (const char* name : {"VPECOMP", "UTILITY", "DESIGN", "VPEPROJ", "VPEPROC", "PROC", "SIZE"}) {
    EXPECT_TRUE(plant->store.databaseExists(MemoryStore::kProject, name)) << name;
  }
  EXPECT_FALSE(plant->store.databaseExists(MemoryStore::kProject, "MINE"));
}

TEST(PlantFile, Plain_members_are_read) {
  const auto plant = plantOf(kEveryKey);
  EXPECT_EQ(plant->name, "Toluene plant");
  EXPECT_EQ(plant->unitType, 1);
  EXPECT_EQ(plant->store.simulatorType(MemoryStore::kCase), 3);
  EXPECT_TRUE(plant->recordChanges);
  EXPECT_FALSE(plant->useDefaults);
}

TEST(PlantFile, Customary_units_and_simulator_0_are_the_defaults) {
  const auto plant = plantOf(R"({"items": {}, "units": "customary", "simulator": 0})");
  EXPECT_EQ(plant->unitType, 0);
  EXPECT_FALSE(plant->store.caseIsValid(MemoryStore::kCase));
}

TEST(PlantFile, A_slot_value_has_four_forms) {
  const auto plant = plantOf(kEveryKey);
  StoredDatabase& streams = plant->store.database(kAddedUtilityStream);
  const StoredObject* stream = plant->store.find(streams, "S1");
  ASSERT_NE(stream, nullptr);
  EXPECT_EQ(plant->store.get(*stream, "TEMPERATURE"), CvdSlot::ofNumber(77.25, "DEG F"));
  EXPECT_EQ(plant->store.get(*stream, "FLUID"), CvdSlot::ofText("Water"));
  EXPECT_EQ(plant->store.get(*stream, "MW"), CvdSlot::ofNumber(18.0));
  EXPECT_EQ(plant->store.get(*stream, "NOTES"), CvdSlot::ofList({"one", "two"}));
}

TEST(PlantFile, A_text_with_line_feeds_and_the_list_of_its_lines_are_the_same_plant) {
  const auto text = plantOf(R"({"items": {"P": {"component": {"N": "one\ntwo"}}}})");
  const auto list = plantOf(R"({"items": {"P": {"component": {"N": ["one", "two"]}}}})");
  EXPECT_EQ(written(*text), written(*list));
}

TEST(PlantFile, A_stream_has_a_class_a_display_name_and_slots) {
  const auto plant = plantOf(R"({"items": {}, "streams": {
      "A": {}, "B": {"class": 3105}, "C": {"class": 3205}, "D": {"class": 3305},
      "E": {"class": 3005, "display": "Feed"}}})");
  MemoryStore& store = plant->store;
  EXPECT_NE(store.find(store.database(3005), "A"), nullptr);
  EXPECT_NE(store.find(store.database(3105), "B"), nullptr);
  EXPECT_NE(store.find(store.database(3205), "C"), nullptr);
  EXPECT_NE(store.find(store.database(3305), "D"), nullptr);
  EXPECT_EQ(store.displayName("E"), "Feed");
  EXPECT_EQ(store.displayName("A"), "");
  EXPECT_EQ(namesOf(*plant, store.streams()), (Names{"A", "B", "C", "D", "E"}));
}

TEST(PlantFile, A_block_has_a_class_and_may_inherit) {
  const auto plant = plantOf(kEveryKey);
  MemoryStore& store = plant->store;
  const ObjectId block = store.caseObject(MemoryStore::kCase, 505, "B-P101");
  ASSERT_NE(block, ObjectId::none);
  EXPECT_NE(store.caseObject(MemoryStore::kCase, 405, "BASE"), ObjectId::none);
  CvdSlot value;
  EXPECT_FALSE(store.read(block, "EFFICIENCY", false, value));
  ASSERT_TRUE(store.read(block, "EFFICIENCY", true, value));
  EXPECT_EQ(value.Number(), 70.0);
}

TEST(PlantFile, An_item_keeps_its_keys) {
  const auto plant = plantOf(kEveryKey);
  ASSERT_EQ(plant->items.size(), 3U);
  const PlantItem& item = plant->items[0];
  EXPECT_EQ(item.name, "P-101");
  EXPECT_EQ(item.category, "DCP");
  EXPECT_EQ(item.itemCode, "CENTRIF");
  EXPECT_EQ(item.model, "Special");
  EXPECT_EQ(item.blocks, (Names{"B-P101", "BASE"}));
  EXPECT_EQ(item.className, "CSideHx");
  EXPECT_TRUE(item.hasProject);
  EXPECT_EQ(plant->projectOf(item)->text, "Special");
  EXPECT_EQ(slotText(*plant, "VPECOMP", "P-101", "CpPumpEfficiencyPercent"), "70");
  EXPECT_EQ(slotText(*plant, plant->store.database(1705), "P-101", "CpAllowResize"), "Yes");

  const PlantItem& bare = plant->items[2];
  EXPECT_FALSE(bare.category.has_value());
  EXPECT_FALSE(bare.itemCode.has_value());
  EXPECT_TRUE(bare.blocks.empty());
  EXPECT_EQ(bare.className, "");
}

TEST(PlantFile, The_model_is_category_and_item_unless_it_is_given) {
  const auto plant = plantOf(R"({"items": {
      "A": {"category": "DCP", "item": "CENTRIF"},
      "B": {"category": "DCP", "item": "CENTRIF", "model": "DCP CENTRIF"},
      "C": {"category": "DCP", "item": "CENTRIF", "model": "Other"}}})");
  EXPECT_EQ(plant->projectOf(plant->items[0])->text, "DCP CENTRIF");
  EXPECT_FALSE(plant->items[1].model.has_value());
  EXPECT_EQ(plant->projectOf(plant->items[2])->text, "Other");
}

TEST(PlantFile, A_null_project_means_no_project_object) {
  const auto plant = plantOf(kEveryKey);
  EXPECT_FALSE(plant->items[1].hasProject);
  EXPECT_EQ(plant->projectOf(plant->items[1]), nullptr);
  EXPECT_EQ(plant->store.projectObject(MemoryStore::kProject, "P-102"), ObjectId::none);
  EXPECT_NE(plant->store.projectObject(MemoryStore::kProject, "P-103"), ObjectId::none);
}

TEST(PlantFile, Connections_become_ports_in_the_order_written) {
  const auto plant = plantOf(kEveryKey);
  const StoredObject& record = *plant->componentOf(plant->items[0]);
  EXPECT_EQ(slotNamesOf(*plant, record),
            (Names{"object name", "Type", "__STREAMS__IN", "_in_1", "_in_2", "__STREAMS__EX",
                   "_ex_1", "_ex_2", "CpPumpEfficiencyPercent"}));
  const auto list = [&](const char* slot) { return plant->store.get(record, slot).List(); };
  EXPECT_EQ(list("object name"), (Names{"P-101"}));
  EXPECT_EQ(list("Type"), (Names{"B-P101", "BASE"}));
  EXPECT_EQ(list("__STREAMS__IN"), (Names{"_in_1", "_in_2"}));
  EXPECT_EQ(list("_in_1"), (Names{"S1", "VPE ADDED UTILITY", "INLET"}));
  EXPECT_EQ(list("_in_2"), (Names{"S9", "", "INLET"}));  // no such stream
  EXPECT_EQ(list("__STREAMS__EX"), (Names{"_ex_1", "_ex_2"}));
  EXPECT_EQ(list("_ex_1"), (Names{"S2", "PROCESS", "OUTLET"}));
  EXPECT_EQ(list("_ex_2"), (Names{"S1", "VPE ADDED UTILITY", "VENT"}));
}

TEST(PlantFile, The_type_text_of_a_port_tells_the_class_of_its_stream) {
  const auto plant = plantOf(R"({
      "items": {"P": {"inlets": {"I": ["A", "B", "C", "D"]}}},
      "streams": {"A": {"class": 3305}, "B": {"class": 3105}, "C": {"class": 3005},
                  "D": {"class": 3205}}})");
  const StoredObject& record = *plant->componentOf(plant->items[0]);
  const auto type = [&](const char* port) { return plant->store.get(record, port).List()[1]; };
  EXPECT_EQ(type("_in_1"), "USER ADDED PROCESS");
  EXPECT_EQ(type("_in_2"), "VPE ADDED UTILITY");
  EXPECT_EQ(type("_in_3"), "PROCESS");
  EXPECT_EQ(type("_in_4"), "VPE ADDED PREMAP");
}

TEST(PlantFile, Slots_of_the_component_replace_what_the_connections_made) {
  const auto plant = plantOf(R"({
      "items": {"P": {"inlets": {"I": ["A"]}, "block": "B",
                      "component": {"_IN_1": ["A", "", "I"], "Type": "Own", "object name": "Q"}}},
      "blocks": {"B": {}}, "streams": {"A": {}}})");
  const StoredObject& record = *plant->componentOf(plant->items[0]);
  EXPECT_EQ(plant->store.get(record, "_in_1").List(), (Names{"A", "", "I"}));
  EXPECT_EQ(plant->store.get(record, "Type"), CvdSlot::ofText("Own"));
  EXPECT_EQ(plant->store.get(record, "object name"), CvdSlot::ofText("Q"));
}

TEST(PlantFile, An_item_without_block_has_no_type) {
  const auto plant = plantOf(R"({"items": {"P": {}, "Q": {"block": []}}})");
  EXPECT_EQ(slotNamesOf(*plant, *plant->componentOf(plant->items[0])), Names{"object name"});
  EXPECT_EQ(slotNamesOf(*plant, *plant->componentOf(plant->items[1])), Names{"object name"});
}

TEST(PlantFile, Criteria_and_utilities_are_kept_in_order) {
  const auto plant = plantOf(kEveryKey);
  MemoryStore& store = plant->store;
  EXPECT_EQ(namesOf(*plant, store.database(kDesignCriteria).order), (Names{"*", "DCP CENTRIF"}));
  EXPECT_EQ(slotText(*plant, store.database(kDesignCriteria), "*", "minimum design pressure"),
            "29.7 PSI");
  EXPECT_TRUE(plant->hasUtilities);
  EXPECT_EQ(namesOf(*plant, store.database(kUtilityStreamEntry).order),
            (Names{"Cooling water", "Air"}));
}

TEST(PlantFile, Utilities_without_any_still_replace_the_bundled_ones) {
  const auto plant = plantOf(R"({"items": {}, "utilities": {}})");
  EXPECT_TRUE(plant->hasUtilities);
  EXPECT_TRUE(plantOf(written(*plant))->hasUtilities);
}

TEST(PlantFile, Design_rules_are_rows) {
  const auto plant = plantOf(kEveryKey);
  ASSERT_TRUE(plant->designRules.has_value());
  ASSERT_EQ(plant->designRules->pressure.size(), 2U);
  EXPECT_EQ(plant->designRules->pressure[0].value, -14.5);
  EXPECT_EQ(plant->designRules->pressure[1].from, 0.0);
  EXPECT_EQ(plant->designRules->pressure[1].factor, 1.1);
  EXPECT_EQ(plant->designRules->pressure[1].atLeast, 25.0);
  ASSERT_EQ(plant->designRules->temperature.size(), 1U);
  EXPECT_EQ(plant->designRules->temperature[0].add, 50.0);
}

TEST(PlantFile, Design_rules_without_rows_are_not_the_default_rules) {
  const auto plant = plantOf(R"({"items": {}, "design rules": {}})");
  ASSERT_TRUE(plant->designRules.has_value());
  EXPECT_TRUE(plant->designRules->pressure.empty());
  EXPECT_TRUE(plantOf(written(*plant))->designRules.has_value());
}

TEST(PlantFile, Databases_hold_further_objects) {
  const auto plant = plantOf(kEveryKey);
  MemoryStore& store = plant->store;
  EXPECT_EQ(slotText(*plant, "VPECOMP", "VARDEX sizer options", "Source sub type"), "NORMAL");
  EXPECT_EQ(slotText(*plant, "SIZE", "P-101", "DUTY"), "5 BTU/H");
  EXPECT_TRUE(store.databaseExists(MemoryStore::kProject, "EMPTY"));
  const ObjectId child = store.object(MemoryStore::kProject, "MINE", "CHILD", false);
  CvdSlot value;
  ASSERT_TRUE(store.read(child, "b", true, value));
  EXPECT_EQ(value.Number(), 2.0);
  EXPECT_FALSE(store.read(child, "inherits", true, value));
}

TEST(PlantFile, Equipment_information_of_the_file_is_marked_as_its_own) {
  const auto plant =
      plantOf(R"({"items": {}, "databases": {"vpecomp": {"Equipment Information": {"a": 1}}}})");
  EXPECT_TRUE(plant->hasEquipmentInformation);
  EXPECT_TRUE(plantOf(written(*plant))->hasEquipmentInformation);
}

TEST(PlantFile, The_property_database_lays_over_objects_and_slots_or_removes_them) {
  const auto plant = plantOf(kEveryKey);
  ASSERT_EQ(plant->propertyDatabase.size(), 2U);
  const PropertyOverlay& screens = plant->propertyDatabase[0];
  EXPECT_EQ(screens.object, "Screens");
  EXPECT_FALSE(screens.removed);
  ASSERT_EQ(screens.slots.size(), 2U);
  EXPECT_EQ(screens.slots[0].first, "0.5");
  EXPECT_EQ(screens.slots[0].second, CvdSlot::ofNumber(3.5));
  EXPECT_EQ(screens.slots[1].first, "0.75");
  EXPECT_FALSE(screens.slots[1].second.has_value());
  EXPECT_EQ(plant->propertyDatabase[1].object, "Packings");
  EXPECT_TRUE(plant->propertyDatabase[1].removed);
}

TEST(PlantFile, Charts_and_fluids_are_read) {
  const auto plant = plantOf(kEveryKey);
  const Chart& chart = plant->charts.at("caps").at("ts");
  EXPECT_EQ(chart.x, (std::vector<double>{1, 2}));
  EXPECT_EQ(chart.y, (std::vector<double>{0.1, 1, 10}));
  EXPECT_EQ(chart.z[1][2], 6.0);
  const Fluid& fluid = plant->fluids.at("BRINE");
  EXPECT_EQ(fluid.molecularWeight, 20.5);
  EXPECT_EQ(fluid.z, 0.9);
  ASSERT_TRUE(fluid.liquidViscosity.has_value());
  EXPECT_EQ(fluid.liquidViscosity->a, -5.0);
  EXPECT_EQ(fluid.liquidViscosity->b, 900.0);
  EXPECT_FALSE(fluid.gasViscosity.has_value());
}

TEST(PlantFile, Every_property_of_a_fluid_class_may_be_given) {
  const auto plant = plantOf(R"({"items": {}, "fluids": {"F": {
      "molecular weight": 1, "boiling point": 2, "critical temperature": 3, "critical pressure": 4,
      "acentric factor": 5, "latent heat": 6, "liquid density": 7,
      "liquid heat capacity": [8, 9], "gas heat capacity": [10, 11],
      "liquid viscosity": [12, 13], "gas viscosity": [14, 15],
      "liquid conductivity": [16, 17], "gas conductivity": [18, 19],
      "z": 20, "heat capacity ratio": 21}}})");
  const Fluid& fluid = plant->fluids.at("F");
  const std::optional<double> constants[] = {
      fluid.molecularWeight, fluid.boilingPoint, fluid.criticalTemperature, fluid.criticalPressure,
      fluid.acentricFactor,  fluid.latentHeat,   fluid.liquidDensity};
  for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(constants[i], static_cast<double>(i + 1)) << i;
  const std::optional<Fit> fits[] = {fluid.liquidHeatCapacity, fluid.gasHeatCapacity,
                                     fluid.liquidViscosity,    fluid.gasViscosity,
                                     fluid.liquidConductivity, fluid.gasConductivity};
  for (std::size_t i = 0; i < 6; ++i) {
    ASSERT_TRUE(fits[i].has_value()) << i;
    EXPECT_EQ(fits[i]->a, static_cast<double>(8 + 2 * i)) << i;
    EXPECT_EQ(fits[i]->b, static_cast<double>(9 + 2 * i)) << i;
  }
  EXPECT_EQ(fluid.z, 20.0);
  EXPECT_EQ(fluid.heatCapacityRatio, 21.0);
}

TEST(PlantFile, Directories_are_registered_or_explicitly_not) {
  const auto plant = plantOf(kEveryKey);
  ASSERT_EQ(plant->install.size(), 3U);
  EXPECT_EQ(plant->install[0].first, "SystemCacheDir");
  EXPECT_EQ(plant->install[0].second, "D:\\cache");
  EXPECT_EQ(plant->install[1].first, "SourceDir");
  EXPECT_FALSE(plant->install[1].second.has_value());
  EXPECT_EQ(plant->install[2].second, "");
}

TEST(PlantFile, Members_that_begin_with_x_are_kept_and_ignored) {
  const auto plant = plantOf(kEveryKey);
  ASSERT_EQ(plant->extras.size(), 1U);
  EXPECT_EQ(plant->extras[0].first, "x-editor");
  EXPECT_EQ(nlohmann::json::parse(plant->extras[0].second),
            nlohmann::json::parse(R"({"zoom": 1.5, "a": [null, true], "A": "\u00e4"})"));
}

// --- Order, case, references --------------------------------------------------------------------

TEST(PlantFile, Names_compare_without_regard_to_case_and_keep_their_first_spelling) {
  const auto plant = plantOf(R"({
      "streams": {"Feed": {"slots": {"Temperature": 1}}, "S2": {"slots": {"TEMPERATURE": 2}}},
      "items": {"P-1": {"inlets": {"I": ["FEED"]}, "block": "b1"}},
      "blocks": {"B1": {}}})");
  EXPECT_EQ(plant->findItem("p-1"), 0);
  EXPECT_EQ(slotText(*plant, plant->store.database(3005), "feed", "temperature"), "1");
  EXPECT_EQ(slotText(*plant, "vpecomp", "p-1", "_IN_1"), "FEED\nPROCESS\nI");
  const StoredObject& second = *plant->store.streams()[1];
  EXPECT_EQ(slotNamesOf(*plant, second), Names{"Temperature"});
}

TEST(PlantFile, An_item_keeps_its_own_spelling) {
  const auto plant = plantOf(R"({
      "databases": {"SIZE": {"p-1": {"OBJECT NAME": 1}}}, "criteria": {"P-1": {"TYPE": 1}},
      "streams": {"p-1": {}}, "blocks": {"b": {"slots": {"b": 1}}},
      "items": {"P-1": {"block": "B", "component": {"size": 5}}}})");
  EXPECT_EQ(plant->items[0].name, "P-1");
  EXPECT_EQ(slotText(*plant, "VPECOMP", "P-1", "object name"), "P-1");
  const std::string text = written(*plant);
  const auto again = plantOf(text);
  EXPECT_EQ(again->items[0].name, "P-1");
  EXPECT_EQ(written(*again), text);
}

TEST(PlantFile, Sections_may_come_in_any_order) {
  const auto first = plantOf(R"({
      "streams": {"A": {"class": 3305}}, "blocks": {"B": {"inherits": "C"}, "C": {}},
      "items": {"P": {"block": "B", "inlets": {"I": ["A"]}}},
      "databases": {"D": {"O": {"inherits": "Q"}, "Q": {}}}})");
  const auto second = plantOf(R"({
      "databases": {"D": {"O": {"inherits": "Q"}, "Q": {}}},
      "items": {"P": {"block": "B", "inlets": {"I": ["A"]}}},
      "blocks": {"B": {"inherits": "C"}, "C": {}}, "streams": {"A": {"class": 3305}}})");
  EXPECT_EQ(written(*first), written(*second));
  EXPECT_EQ(slotText(*second, "VPECOMP", "P", "_in_1"), "A\nUSER ADDED PROCESS\nI");
}

TEST(PlantFile, Order_of_names_is_kept) {
  const auto plant = plantOf(R"({"items": {"Z": {"component": {"z1": 1, "y": 2, "a1": 3, "m": 4}},
                                           "A": {}, "M": {}}})");
  EXPECT_EQ(plant->items[0].name, "Z");
  EXPECT_EQ(plant->items[1].name, "A");
  EXPECT_EQ(plant->items[2].name, "M");
  EXPECT_EQ(slotNamesOf(*plant, *plant->componentOf(plant->items[0])),
            (Names{"object name", "z1", "y", "a1", "m"}));
}

TEST(PlantFile, Many_slots_of_one_object_keep_order_and_values) {
  std::string text = R"({"items": {"P": {"component": {)";
  for (int i = 0; i < 5000; ++i) {
    text += (i > 0 ? ", \"s" : "\"s") + std::to_string(i) + "\": " + std::to_string(i);
  }
  const auto plant = plantOf(text + "}}}}");
  const StoredObject& record = *plant->componentOf(plant->items[0]);
  ASSERT_EQ(record.slotNames.size(), 5001U);
  EXPECT_EQ(plant->store.text(record.slotNames[5000]), "s4999");
  EXPECT_EQ(plant->store.get(record, "S2500").Number(), 2500.0);
}

TEST(PlantFile, A_chain_of_as_many_objects_as_the_store_looks_through_is_read) {
  std::string text = R"({"items": {}, "databases": {"D": {"o0": {"deep": 1})";
  for (int i = 1; i < MemoryStore::kInheritanceDepth; ++i) {
    text += ", \"o" + std::to_string(i) + R"(": {"inherits": "o)" + std::to_string(i - 1) + "\"}";
  }
  const auto plant = plantOf(text + "}}}");
  const ObjectId last = plant->store.object(MemoryStore::kProject, "D", "o63", false);
  CvdSlot value;
  EXPECT_TRUE(plant->store.read(last, "deep", true, value));
}

}  // namespace
}  // namespace sizewright
