#include <gtest/gtest.h>

#include "frame/probe_item.h"
#include "frame/watched_plant.h"

namespace sizewright {
namespace {

constexpr std::string_view kPlant = R"({
  "simulator": 4,
  "blocks": {
    "B1": {"class": 405, "slots": {"ITEM MODEL": "DSTWU"}},
    "B2": {"class": 405},
    "PM1": {"class": 505, "slots": {"ITEM MODEL": "RADFRAC", "Type": "B1"}},
    "T1-tower": {"class": 505, "slots": {"ITEM MODEL": "PREMAPPED", "Type": "B1"}},
    "T1-Tower-2": {"class": 505, "slots": {"ITEM MODEL": "CAPITAL", "Type": "B1"}},
    "T2-tower": {"class": 505, "slots": {"Type": "NOWHERE"}},
    "T3-tower": {"class": 505},
    "B3-tower": {"class": 405, "slots": {"ITEM MODEL": "BLOCK", "Type": "B1"}}
  },
  "items": {"P-101": {"category": "DCP"}}
})";

class SelectionForm : public testing::Test {
 protected:
  std::unique_ptr<ProbeItem> select(const char* block) {
    return std::make_unique<ProbeItem>(plant.host().project(), plant.host().simCase(), block, "x",
                                       "y");
  }

  WatchedPlant plant{kPlant};
};

// --- A look without fault -----------------------------------------------------------------------

TEST_F(SelectionForm, Progress_names_every_step_in_order) {
  select("B1");
  const std::vector<std::string> steps = {
      "Initializing all the variables",
      "Assigning program arguments.",
      "Obtaining simulator information.",
      "Setting property database.",
      "Checking the project units of measure.",
      "Obtaining unit operation model.",
      "Completed initializing the sizing variables. Beginning selection.",
  };
  std::vector<std::string> reported;
  for (const WatchedUser::Line& line : plant.screen().lines) {
    reported.push_back(line.text);
    EXPECT_EQ(line.percent, 30) << line.text;
    EXPECT_EQ(line.level, 3) << line.text;
  }
  EXPECT_EQ(reported, steps);
}

TEST_F(SelectionForm, A_block_is_opened_and_gives_its_name_to_the_item) {
  const auto item = select("B1");
  EXPECT_EQ(item->IsValid(), 1);
  ASSERT_TRUE(item->simObject);
  EXPECT_EQ(item->simObject->IsValid(), 1);
  EXPECT_EQ(item->simBlockName.view(), "B1");
  EXPECT_EQ(item->componentName.view(), "B1");
  EXPECT_EQ(item->itemModel.view(), "DSTWU");
}

TEST_F(SelectionForm, A_block_without_model_is_good_too) {
  const auto item = select("B2");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_TRUE(item->itemModel.empty());
}

TEST_F(SelectionForm, It_has_no_component_record_and_no_codes) {
  const auto item = select("B1");
  EXPECT_EQ(item->component, nullptr);
  EXPECT_EQ(item->projectObject, nullptr);
  EXPECT_TRUE(item->categoryCode.empty());
  EXPECT_TRUE(item->itemCode.empty());
  EXPECT_EQ(item->GetEquipCatType(), EQ_CAT_NONE);
}

TEST_F(SelectionForm, It_runs_without_dialogs_and_window) {
  const auto item = select("B1");
  EXPECT_EQ(item->interactive, 0);
  EXPECT_EQ(item->noDialogs, 1);
  EXPECT_EQ(item->parentWindow, nullptr);
}

TEST_F(SelectionForm, Simulator_units_and_property_database_are_known) {
  const auto item = select("B1");
  EXPECT_EQ(item->simulatorType, 4);
  EXPECT_EQ(item->unitType, 0);
  EXPECT_TRUE(item->pxpropFile.view().ends_with("\\pxprop"));
}

TEST_F(SelectionForm, The_roles_have_their_standard_names) {
  const auto item = select("B1");
  EXPECT_EQ(item->utilFile.view(), "UTILITY");
  EXPECT_EQ(item->designFile.view(), "DESIGN");
  EXPECT_EQ(item->vpeProjFile.view(), "VPEPROJ");
  EXPECT_EQ(item->vpeProcFile.view(), "VPEPROC");
  EXPECT_EQ(item->procFile.view(), "PROC");
  EXPECT_EQ(item->sizeFile.view(), "SIZE");
}

TEST_F(SelectionForm, The_databases_of_the_roles_are_not_looked_at) {
  plant.objects().missingDatabases = {"UTILITY", "DESIGN", "VPEPROJ", "VPEPROC",
                                      "PROC",    "SIZE",   "VPECOMP"};
  EXPECT_EQ(select("B1")->isValid, 1);
  EXPECT_TRUE(plant.objects().created.empty());
}

TEST(SelectionRoles, The_sizer_options_are_not_looked_at) {
  WatchedPlant plant(R"({"simulator": 1, "blocks": {"B1": {}}, "items": {},
    "databases": {"VPECOMP": {"VARDEX sizer options": {"design criteria file": "OTHER"}}}})");
  const ProbeItem item(plant.host().project(), plant.host().simCase(), "B1", "", "");
  EXPECT_EQ(item.designFile.view(), "DESIGN");
}

// --- Premapped items ----------------------------------------------------------------------------

TEST_F(SelectionForm, A_premapped_item_is_opened_as_such) {
  const auto item = select("PM1");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->simBlockName.view(), "PM1");
  EXPECT_EQ(item->itemModel.view(), "RADFRAC");
}

TEST_F(SelectionForm, A_premapped_tower_leads_to_the_block_that_it_names) {
  const auto item = select("T1-tower");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->simBlockName.view(), "B1");
  EXPECT_EQ(item->componentName.view(), "B1");
  EXPECT_EQ(item->itemModel.view(), "DSTWU");
}

TEST_F(SelectionForm, A_premapped_name_with_a_capital_T_is_no_tower) {
  const auto item = select("T1-Tower-2");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->simBlockName.view(), "T1-Tower-2");
  EXPECT_EQ(item->itemModel.view(), "CAPITAL");
}

TEST_F(SelectionForm, A_tower_of_a_block_that_is_not_there_is_refused_silently) {
  const auto item = select("T2-tower");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(item->simBlockName.view(), "NOWHERE");
  EXPECT_EQ(item->simObject, nullptr);
  EXPECT_TRUE(plant.dialogTexts().empty());
}

TEST_F(SelectionForm, A_tower_that_names_no_block_is_refused_silently) {
  const auto item = select("T3-tower");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_TRUE(item->simBlockName.empty());
  EXPECT_TRUE(plant.dialogTexts().empty());
}

TEST_F(SelectionForm, A_plain_block_whose_name_sounds_like_a_tower_is_a_block) {
  const auto item = select("B3-tower");
  EXPECT_EQ(item->simBlockName.view(), "B3-tower");
  EXPECT_EQ(item->itemModel.view(), "BLOCK");
}

struct PremapRow {
  const char* name;
  int isPremapped;
  int isTower;
};

TEST_F(SelectionForm, Premapped_items_and_towers_are_told_apart) {
  const auto item = select("B1");
  const PremapRow rows[] = {{"PM1", 1, 0},      {"pm1", 1, 0},        {"T1-tower", 1, 1},
                            {"T3-tower", 1, 1}, {"T1-Tower-2", 1, 0}, {"B3-tower", 0, 0},
                            {"B1", 0, 0},       {"NOWHERE", 0, 0},    {"X-tower", 0, 0},
                            {"", 0, 0}};
  for (const PremapRow& row : rows) {
    EXPECT_EQ(item->IsPremapType(row.name), row.isPremapped) << row.name;
    EXPECT_EQ(item->IsPremapTower(row.name), row.isTower) << row.name;
  }
}

TEST_F(SelectionForm, Nothing_is_premapped_without_a_case) {
  plant.TestPlant::select("P-101");
  const ProbeItem item(0, "", "", "", "", "", nullptr, plant.host().project(), nullptr);
  EXPECT_EQ(item.IsPremapType("PM1"), 0);
  EXPECT_EQ(item.IsPremapTower("T1-tower"), 0);
}

// --- Faults -------------------------------------------------------------------------------------

TEST_F(SelectionForm, An_unknown_block_is_refused_silently) {
  const auto item = select("NOWHERE");
  EXPECT_EQ(item->IsValid(), 0);
  EXPECT_EQ(item->simObject, nullptr);
  EXPECT_EQ(item->simBlockName.view(), "NOWHERE");
  EXPECT_TRUE(plant.dialogTexts().empty());
  EXPECT_EQ(plant.lastProgress(), "Assigning program arguments.");
}

TEST_F(SelectionForm, An_empty_block_name_is_refused_silently) {
  EXPECT_EQ(select("")->isValid, 0);
  EXPECT_TRUE(plant.dialogTexts().empty());
}

TEST_F(SelectionForm, Without_a_case_there_is_no_block_and_it_ends_silently) {
  const ProbeItem item(plant.host().project(), nullptr, "B1", "", "");
  EXPECT_EQ(item.isValid, 0);
  EXPECT_TRUE(plant.dialogTexts().empty());
}

TEST_F(SelectionForm, A_null_project_is_reported_once_the_block_is_there) {
  const ProbeItem item(nullptr, plant.host().simCase(), "B1", "", "");
  EXPECT_EQ(item.isValid, 0);
  EXPECT_EQ(plant.screen().prints, std::vector<std::string>{"Current Project is not valid"});
  EXPECT_EQ(item.componentName.view(), "B1");
  EXPECT_EQ(item.simulatorType, 0);
}

TEST_F(SelectionForm, A_project_that_is_not_open_is_reported) {
  CvdProject closed(99);
  const ProbeItem item(&closed, plant.host().simCase(), "B1", "", "");
  EXPECT_EQ(item.isValid, 0);
  EXPECT_EQ(plant.screen().prints, std::vector<std::string>{"Current Project is not valid"});
}

TEST_F(SelectionForm, A_missing_property_database_is_reported) {
  plant.objects().propertyDatabaseIsMissing = true;
  const auto item = select("B1");
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(plant.screen().prints,
            std::vector<std::string>{"Cannot obtain PXPROP database. Installation error."});
  EXPECT_EQ(plant.lastProgress(), "Setting property database.");
  EXPECT_TRUE(item->utilFile.empty());
}

TEST_F(SelectionForm, A_block_name_of_5000_characters_is_cut_and_refused) {
  const auto item = select(std::string(5000, 'b').c_str());
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(item->simBlockName.view(), std::string(127, 'b'));
}

}  // namespace
}  // namespace sizewright
