#include <gtest/gtest.h>

#include <algorithm>

#include "frame/probe_item.h"
#include "frame/watched_plant.h"

namespace sizewright {
namespace {

constexpr std::string_view kPlant = R"({
  "simulator": 7,
  "blocks": {"B1": {"slots": {"ITEM MODEL": "PUMP"}}},
  "items": {
    "P-101": {"category": "DCP", "item": "CENTRIF", "model": "DCP CENTRIF", "block": "B1"},
    "P-102": {"category": "DCP"},
    "P-103": {"item": "CENTRIF"},
    "P-104": {"category": "DCP", "item": "CENTRIF", "project": null},
    "P-105": {"category": "DCP", "item": "CENTRIF", "model": "DCP CENTRIF   "},
    "P-106": {"category": "DCP", "item": "CENTRIF", "component": {"object name": ""}}
  }
})";

class Initialisation : public testing::Test {
 protected:
  // The object of an item in the design form, with every argument.
  std::unique_ptr<ProbeItem> design(int interactive = 0, const char* projectFile = "",
                                    const char* sizeFile = "", void* window = nullptr) {
    plant.select("P-101");
    return std::make_unique<ProbeItem>(interactive, "first", projectFile, "third", sizeFile, "mode",
                                       window, plant.host().project(), plant.host().simCase());
  }
  void expectFailure(const ProbeItem& item, const std::string& message) {
    EXPECT_EQ(item.isValid, 0);
    ASSERT_EQ(plant.screen().prints.size(), 1U);
    EXPECT_EQ(plant.screen().prints.front(), message);
    EXPECT_TRUE(plant.screen().boxes.empty());
  }

  WatchedPlant plant{kPlant};
};

// --- A run without fault ------------------------------------------------------------------------

TEST_F(Initialisation, Progress_names_every_step_in_order) {
  plant.make<ProbeItem>("P-101");
  const std::vector<std::string> steps = {
      "Initializing all the variables",
      "Setting program arguments.",
      "Assigning program arguments.",
      "Setting project database.",
      "Obtaining simulator information.",
      "Setting property database.",
      "Setting remaining project database.",
      "Checking the project units of measure.",
      "Obtaining equipment information.",
      "Obtaining simulator block name.",
      "Obtaining VARDEX component information.",
      "Obtaining mapping category code.",
      "Obtaining mapping item code.",
      "Obtaining base simulator block information.",
      "Obtaining project component name.",
      "Obtaining unit operation model.",
      "Completed initializing the sizing variables. Beginning design.",
  };
  std::vector<std::string> reported;
  for (const WatchedUser::Line& line : plant.screen().lines) reported.push_back(line.text);
  EXPECT_EQ(reported, steps);
}

TEST_F(Initialisation, Every_step_is_reported_at_30_percent_and_level_3) {
  plant.make<ProbeItem>("P-101");
  for (const WatchedUser::Line& line : plant.screen().lines) {
    EXPECT_EQ(line.percent, 30) << line.text;
    EXPECT_EQ(line.level, 3) << line.text;
  }
}

TEST_F(Initialisation, A_good_item_is_valid_and_nothing_is_shown) {
  const auto item = plant.make<ProbeItem>("P-101", 1);
  EXPECT_EQ(item->IsValid(), 1);
  EXPECT_TRUE(plant.dialogTexts().empty());
}

TEST_F(Initialisation, The_item_is_identified) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->componentName.view(), "P-101");
  EXPECT_EQ(item->categoryCode.view(), "DCP");
  EXPECT_EQ(item->itemCode.view(), "CENTRIF");
  EXPECT_EQ(item->projectComponentName.view(), "P-101");
  EXPECT_EQ(item->equipFullCode.view(), "DCP CENTRIF");
  EXPECT_EQ(item->simBlockName.view(), "B1");
  EXPECT_EQ(item->itemModel.view(), "PUMP");
}

TEST_F(Initialisation, The_item_holds_its_three_records) {
  const auto item = plant.make<ProbeItem>("P-101");
  ASSERT_TRUE(item->component && item->simObject && item->projectObject);
  EXPECT_EQ(item->component->IsValid(), 1);
  EXPECT_EQ(item->simObject->IsValid(), 1);
  EXPECT_EQ(item->projectObject->Model(), "DCP CENTRIF");
}

TEST_F(Initialisation, Project_case_and_window_are_kept) {
  int window = 0;
  const auto item = design(1, "", "", &window);
  EXPECT_EQ(item->project, plant.host().project());
  EXPECT_EQ(item->simCase, plant.host().simCase());
  EXPECT_EQ(item->projectId, plant.host().project()->UserInstance());
  EXPECT_EQ(item->parentWindow, &window);
  EXPECT_EQ(item->simulatorType, 7);
}

TEST_F(Initialisation, The_five_texts_are_kept) {
  const auto item = design(0, "VPECOMP", "RESULTS");
  EXPECT_EQ(item->argFirst.view(), "first");
  EXPECT_EQ(item->argProjectFile.view(), "VPECOMP");
  EXPECT_EQ(item->argThird.view(), "third");
  EXPECT_EQ(item->argSizeFile.view(), "RESULTS");
  EXPECT_EQ(item->argMode.view(), "mode");
}

TEST_F(Initialisation, Texts_of_5000_characters_are_cut_to_their_buffers) {
  plant.select("P-101");
  const std::string text(5000, 'x');
  const ProbeItem item(0, text.c_str(), "", text.c_str(), text.c_str(), text.c_str(), nullptr,
                       plant.host().project(), plant.host().simCase());
  EXPECT_EQ(item.isValid, 1);
  for (const std::string_view kept :
       {item.argFirst.view(), item.argThird.view(), item.argSizeFile.view(), item.argMode.view()}) {
    EXPECT_EQ(kept, std::string(99, 'x'));
  }
}

TEST_F(Initialisation, Dialogs_are_off_when_the_integer_argument_is_0) {
  const auto item = design(0);
  EXPECT_EQ(item->interactive, 0);
  EXPECT_EQ(item->noDialogs, 1);
}

TEST_F(Initialisation, Dialogs_are_on_for_any_other_integer_argument) {
  for (const int interactive : {1, 5, -1}) {
    const auto item = design(interactive);
    EXPECT_EQ(item->interactive, interactive);
    EXPECT_EQ(item->noDialogs, 0);
  }
}

TEST_F(Initialisation, A_customary_project_has_unit_type_0) {
  EXPECT_EQ(design()->unitType, 0);
}

TEST(InitialisationUnits, A_metric_project_has_another_unit_type) {
  WatchedPlant plant(R"({"units": "metric", "items": {"P-101": {"category": "DCP"}}})");
  EXPECT_NE(plant.make<ProbeItem>("P-101")->unitType, 0);
}

TEST_F(Initialisation, A_case_that_is_not_given_means_no_simulator) {
  plant.select("P-101");
  const ProbeItem item(0, "", "", "", "", "", nullptr, plant.host().project(), nullptr);
  EXPECT_EQ(item.isValid, 1);
  EXPECT_EQ(item.simulatorType, 0);
  EXPECT_EQ(item.simObject, nullptr);
  EXPECT_TRUE(item.itemModel.empty());
}

TEST_F(Initialisation, A_case_that_is_not_open_means_no_simulator) {
  plant.select("P-101");
  CvdSimCase closed(99);
  const ProbeItem item(0, "", "", "", "", "", nullptr, plant.host().project(), &closed);
  EXPECT_EQ(item.isValid, 1);
  EXPECT_EQ(item.simulatorType, 0);
  EXPECT_EQ(item.simObject, nullptr);
}

TEST_F(Initialisation, The_message_lists_start_empty) {
  const auto item = design();
  for (const CStrList* list : {&item->warnings, &item->errors, &item->calculations, &item->notes,
                               &item->sourceList, &item->sinkList}) {
    EXPECT_TRUE(list->IsEmpty());
  }
}

// --- What may be missing ------------------------------------------------------------------------

TEST_F(Initialisation, A_missing_item_code_leaves_it_empty_and_goes_on) {
  const auto item = plant.make<ProbeItem>("P-102");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_TRUE(item->itemCode.empty());
  EXPECT_TRUE(plant.dialogTexts().empty());
}

TEST_F(Initialisation, Without_simulator_block_there_is_no_model) {
  const auto item = plant.make<ProbeItem>("P-102");
  EXPECT_EQ(item->simObject, nullptr);
  EXPECT_TRUE(item->itemModel.empty());
}

TEST_F(Initialisation, Without_project_object_there_is_no_model_text) {
  const auto item = plant.make<ProbeItem>("P-104");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->projectComponentName.view(), "P-104");
  EXPECT_EQ(item->projectObject, nullptr);
  EXPECT_TRUE(item->equipFullCode.empty());
}

TEST_F(Initialisation, An_empty_object_name_means_no_project_object) {
  const auto item = plant.make<ProbeItem>("P-106");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_TRUE(item->projectComponentName.empty());
  EXPECT_EQ(item->projectObject, nullptr);
}

TEST_F(Initialisation, The_model_text_loses_its_trailing_blanks) {
  const auto item = plant.make<ProbeItem>("P-105");
  EXPECT_EQ(item->equipFullCode.view(), "DCP CENTRIF");
  char code[128] = "x";
  EXPECT_EQ(item->getVdEquipFullCode(code), 1);
  EXPECT_STREQ(code, "DCP CENTRIF");
}

// --- A clean start ------------------------------------------------------------------------------

constexpr std::string_view kMessageSlots[] = {"Sizing Error(s)", "Sizing Warning(s)",
                                              "Sizing Note(s)", "Sizing Calculation(s)"};

TEST(CleanStart, Messages_of_an_earlier_run_go_from_both_records_and_other_slots_stay) {
  WatchedPlant plant(R"json({"items": {"P-101": {"category": "DCP",
    "component": {"Sizing Error(s)": "a", "Sizing Warning(s)": "b", "Sizing Note(s)": ["c", "d"],
                  "Sizing Calculation(s)": "e", "Error": "stays"},
    "project": {"Sizing Error(s)": "a", "Sizing Warning(s)": "b", "Sizing Note(s)": ["c", "d"],
                "Sizing Calculation(s)": "e", "Title": "stays"}}}})json");
  plant.make<ProbeItem>("P-101");
  for (const std::string_view slot : kMessageSlots) {
    EXPECT_FALSE(plant.has("P-101", slot)) << slot;
    EXPECT_FALSE(plant.project("P-101", slot).IsValid()) << slot;
  }
  EXPECT_EQ(plant.text("P-101", "Error"), "stays");
  EXPECT_STREQ(plant.project("P-101", "Title").Text(), "stays");
}

TEST(CleanStart, Messages_go_from_the_record_of_an_item_without_project_object) {
  WatchedPlant plant(R"json({"items": {"P-101": {"category": "DCP", "project": null,
    "component": {"Sizing Warning(s)": "b"}}}})json");
  plant.make<ProbeItem>("P-101");
  EXPECT_FALSE(plant.has("P-101", "Sizing Warning(s)"));
}

// --- Faults of project and installation ---------------------------------------------------------

TEST_F(Initialisation, A_null_project_is_refused_and_the_object_can_be_deleted) {
  plant.select("P-101");
  {
    const ProbeItem item(0, "first", "OTHER", "", "", "", nullptr, nullptr, plant.host().simCase());
    expectFailure(item, "Current Project is not valid");
    EXPECT_EQ(item.component, nullptr);
    EXPECT_EQ(item.simObject, nullptr);
    EXPECT_EQ(item.projectObject, nullptr);
  }
  EXPECT_EQ(plant.lastProgress(), "Assigning program arguments.");
}

TEST_F(Initialisation, A_project_that_is_not_open_leaves_what_was_set_before) {
  plant.select("P-101");
  CvdProject closed(99);
  const ProbeItem item(3, "first", "OTHER", "third", "SIZES", "mode", nullptr, &closed,
                       plant.host().simCase());
  expectFailure(item, "Current Project is not valid");
  EXPECT_EQ(item.argProjectFile.view(), "OTHER");
  EXPECT_EQ(item.interactive, 3);
  EXPECT_EQ(item.project, &closed);
  EXPECT_EQ(item.projectId, 0U);
  EXPECT_TRUE(item.vpeCompFile.empty());
}

TEST_F(Initialisation, A_missing_component_database_is_reported) {
  plant.objects().missingDatabases = {"VPECOMP"};
  const auto item = design();
  expectFailure(*item, "Could not find <VPECOMP> database. Please recreate project.");
  EXPECT_EQ(plant.lastProgress(), "Setting project database.");
  EXPECT_EQ(item->projectId, plant.host().project()->UserInstance());
  EXPECT_EQ(item->vpeCompFile.view(), "VPECOMP");
  EXPECT_EQ(item->simulatorType, 0);
  EXPECT_TRUE(item->pxpropFile.empty());
}

TEST_F(Initialisation, A_missing_component_database_is_reported_by_the_name_that_was_given) {
  const auto item = design(0, "OTHERCOMP");
  expectFailure(*item, "Could not find <OTHERCOMP> database. Please recreate project.");
}

TEST(InitialisationFault, A_system_directory_that_is_not_registered_is_reported) {
  WatchedPlant plant(
      R"({"simulator": 7, "install": {"SystemCacheDir": null}, "items": {"P-101": {"category": "DCP"}}})");
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(plant.screen().prints,
            std::vector<std::string>{"Cannot obtain SYSTEM directory. Installation error."});
  EXPECT_EQ(plant.lastProgress(), "Setting property database.");
  EXPECT_EQ(item->simulatorType, 7);
  EXPECT_TRUE(item->pxpropFile.empty());
  EXPECT_TRUE(item->utilFile.empty());
}

TEST_F(Initialisation, A_missing_property_database_is_reported) {
  plant.objects().propertyDatabaseIsMissing = true;
  const auto item = design();
  expectFailure(*item, "Cannot obtain PXPROP database. Installation error.");
  EXPECT_EQ(plant.lastProgress(), "Setting property database.");
  EXPECT_EQ(item->simulatorType, 7);
  EXPECT_TRUE(item->pxpropFile.view().ends_with("\\pxprop"));
  EXPECT_TRUE(item->utilFile.empty());
}

class MissingProjectDatabase : public Initialisation,
                               public testing::WithParamInterface<const char*> {};

TEST_P(MissingProjectDatabase, Is_reported_by_name) {
  plant.objects().missingDatabases = {GetParam()};
  const auto item = design();
  expectFailure(*item,
                std::string("Could not find <") + GetParam() + ">. Please recreate project.");
  EXPECT_EQ(plant.lastProgress(), "Setting remaining project database.");
  EXPECT_EQ(item->utilFile.view(), "UTILITY");
  EXPECT_FALSE(item->pxpropFile.empty());
  EXPECT_EQ(item->noDialogs, 0);
  EXPECT_TRUE(item->componentName.empty());
}

INSTANTIATE_TEST_SUITE_P(Roles, MissingProjectDatabase,
                         testing::Values("UTILITY", "DESIGN", "PROC"));

TEST_F(Initialisation, Of_several_missing_databases_the_utility_one_is_reported) {
  plant.objects().missingDatabases = {"PROC", "DESIGN", "UTILITY"};
  const auto item = design();
  expectFailure(*item, "Could not find <UTILITY>. Please recreate project.");
}

TEST_F(Initialisation, A_missing_simulation_database_does_not_matter_without_simulator) {
  plant.objects().missingDatabases = {"PROC"};
  plant.select("P-101");
  const ProbeItem item(0, "", "", "", "", "", nullptr, plant.host().project(), nullptr);
  EXPECT_EQ(item.isValid, 1);
  EXPECT_TRUE(plant.screen().prints.empty());
}

TEST_F(Initialisation, A_missing_project_information_database_is_made) {
  plant.objects().missingDatabases = {"VPEPROJ"};
  EXPECT_EQ(design()->isValid, 1);
  EXPECT_FALSE(plant.objects().created.empty());
  for (const std::string& name : plant.objects().created) EXPECT_EQ(name, "VPEPROJ");
  EXPECT_TRUE(plant.screen().prints.empty());
}

TEST_F(Initialisation, A_missing_map_database_does_not_stop_it_and_is_not_made) {
  plant.objects().missingDatabases = {"VPEPROC"};
  EXPECT_EQ(design()->isValid, 1);
  EXPECT_TRUE(plant.objects().created.empty());
  EXPECT_TRUE(plant.screen().prints.empty());
}

// kept: the second test looks at the first database again
TEST_F(Initialisation, A_project_information_database_that_cannot_be_made_is_reported_as_map_one) {
  plant.objects().missingDatabases = {"VPEPROJ"};
  plant.objects().refusesNewDatabases = true;
  const auto item = design();
  expectFailure(*item, "Could not find <VPEPROC>. Please recreate project.");
}

TEST_F(Initialisation, A_missing_results_database_does_not_stop_it) {
  plant.objects().missingDatabases = {"SIZE"};
  EXPECT_EQ(design()->isValid, 1);
  EXPECT_TRUE(plant.objects().created.empty());
}

// --- Faults of the item -------------------------------------------------------------------------

class ItemFault : public testing::Test {
 protected:
  // The object made from an "equipment information" of the test's own.
  std::unique_ptr<ProbeItem> make(const std::string& equipment) {
    plant.emplace(
        R"({"items": {"P-101": {}}, "databases": {"VPECOMP": {"equipment information": )" +
        equipment + "}}}");
    return plant->make<ProbeItem>("P-101");
  }
  std::optional<WatchedPlant> plant;
};

TEST_F(Initialisation, Without_equipment_information_it_ends_silently) {
  plant.select("P-101");
  MemoryStore& store = plant.plant().store;
  StoredDatabase& records = store.database("VPECOMP");
  store.clear(*store.find(records, "equipment information"));
  const ProbeItem item(0, "", "", "", "", "", nullptr, plant.host().project(),
                       plant.host().simCase());
  EXPECT_EQ(item.isValid, 0);
  EXPECT_EQ(plant.lastProgress(), "Obtaining equipment information.");
  EXPECT_TRUE(plant.screen().prints.empty());
  EXPECT_EQ(item.noDialogs, 1);
  EXPECT_EQ(item.sizeFile.view(), "SIZE");
  EXPECT_EQ(item.component, nullptr);
}

TEST_F(ItemFault, Without_component_name_it_ends_silently) {
  const auto item = make(R"({"category code": "DCP"})");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(plant->lastProgress(), "Obtaining simulator block name.");
  EXPECT_TRUE(plant->screen().prints.empty());
  EXPECT_EQ(item->component, nullptr);
  EXPECT_TRUE(item->categoryCode.empty());
}

TEST_F(ItemFault, An_empty_component_name_has_no_record) {
  const auto item = make(R"({"component name": "", "category code": "DCP"})");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_TRUE(item->categoryCode.empty());
}

TEST_F(ItemFault, Without_category_code_it_ends_silently_and_keeps_name_and_record) {
  const auto item = make(R"({"component name": "P-101", "item type code": "CENTRIF"})");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(plant->lastProgress(), "Obtaining mapping category code.");
  EXPECT_TRUE(plant->screen().prints.empty());
  EXPECT_EQ(item->componentName.view(), "P-101");
  ASSERT_TRUE(item->component);
  EXPECT_EQ(item->component->IsValid(), 1);
  EXPECT_TRUE(item->itemCode.empty());
  EXPECT_EQ(item->projectObject, nullptr);
}

TEST_F(ItemFault, Names_of_5000_characters_are_cut_to_their_buffers) {
  const std::string name(5000, 'n');
  const auto item = make(R"({"component name": ")" + name + R"(", "category code": ")" + name +
                         R"(", "item type code": ")" + name + "\"}");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->componentName.view(), name.substr(0, 127));
  EXPECT_EQ(item->categoryCode.view(), name.substr(0, 127));
  EXPECT_EQ(item->itemCode.view(), name.substr(0, 127));
}

TEST_F(ItemFault, Names_and_codes_may_come_from_what_is_inherited_by_the_record_only) {
  // The record's "object name" is looked for in what the record inherits from.
  plant.emplace(R"({"items": {"P-101": {}}, "databases": {"VPECOMP": {
    "equipment information": {"component name": "COPY", "category code": "DCP"},
    "COPY": {"inherits": "P-101"}}}})");
  const auto item = plant->make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->componentName.view(), "COPY");
  EXPECT_EQ(item->projectComponentName.view(), "P-101");
  EXPECT_TRUE(item->projectObject);
}

}  // namespace
}  // namespace sizewright
