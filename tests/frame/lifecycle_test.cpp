#include <gtest/gtest.h>

#include "frame/probe_item.h"
#include "frame/watched_plant.h"
#include "sizewright/host/list2.h"
#include "sizewright/rotating/pump.h"

namespace sizewright {
namespace {

constexpr std::string_view kPlant = R"({
  "simulator": 1,
  "blocks": {"B1": {}},
  "items": {
    "P-101": {"category": "DCP", "item": "CENTRIF", "block": "B1"},
    "P-102": {"category": "DCP", "item": "CENTRIF", "project": null}
  }
})";

constexpr int kWaitCursor = 32514;
constexpr int kArrowCursor = 32512;

class Lifecycle : public testing::Test {
 protected:
  int opened() { return plant.unitService().opened; }
  int closed() { return plant.unitService().closed; }

  WatchedPlant plant{kPlant};
};

// --- The unit service ---------------------------------------------------------------------------

TEST_F(Lifecycle, The_design_form_does_not_open_the_unit_service_and_its_end_closes_it) {
  auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(opened(), 0);
  EXPECT_EQ(closed(), 0);
  item.reset();
  EXPECT_EQ(opened(), 0);
  EXPECT_EQ(closed(), 1);
}

TEST_F(Lifecycle, The_selection_form_does_not_open_the_unit_service_and_its_end_closes_it) {
  { const ProbeItem item(plant.host().project(), plant.host().simCase(), "B1", "", ""); }
  EXPECT_EQ(opened(), 0);
  EXPECT_EQ(closed(), 1);
}

TEST_F(Lifecycle, An_invalid_object_closes_the_unit_service_too) {
  { const ProbeItem item(0, "", "", "", "", "", nullptr, nullptr, nullptr); }
  EXPECT_EQ(closed(), 1);
}

TEST_F(Lifecycle, A_copy_opens_the_unit_service_once_and_each_object_closes_it) {
  {
    const auto item = plant.make<ProbeItem>("P-101");
    const ProbeItem copy(*item);
    EXPECT_EQ(opened(), 1);
    EXPECT_EQ(closed(), 0);
  }
  EXPECT_EQ(opened(), 1);
  EXPECT_EQ(closed(), 2);
}

TEST_F(Lifecycle, An_object_from_another_class_opens_the_unit_service_once) {
  {
    const auto item = plant.make<ProbeItem>("P-101");
    const CPumpObj pump(static_cast<const CSizeEquip&>(*item));
    EXPECT_EQ(opened(), 1);
  }
  EXPECT_EQ(closed(), 2);
}

TEST_F(Lifecycle, Assignment_leaves_the_unit_service_alone) {
  const auto first = plant.make<ProbeItem>("P-101");
  const auto second = plant.make<ProbeItem>("P-102");
  *second = *first;
  EXPECT_EQ(opened(), 0);
  EXPECT_EQ(closed(), 0);
}

// --- Cursor and clearing ------------------------------------------------------------------------

TEST_F(Lifecycle, Construction_shows_the_wait_cursor_and_destruction_the_arrow) {
  auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(plant.screen().cursors, std::vector<int>{kWaitCursor});
  item.reset();
  EXPECT_EQ(plant.screen().cursors, (std::vector<int>{kWaitCursor, kArrowCursor}));
}

TEST_F(Lifecycle, Initialising_clears_texts_numbers_and_records) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->warningSlotCount = 3;
  item->szInitialize();
  EXPECT_EQ(item->isValid, 0);
  EXPECT_EQ(item->interactive, 1);
  EXPECT_EQ(item->noDialogs, 0);
  EXPECT_EQ(item->unitType, 0);
  EXPECT_EQ(item->simulatorType, 0);
  EXPECT_EQ(item->warningSlotCount, 0);
  EXPECT_EQ(item->projectId, 0U);
  EXPECT_EQ(item->project, nullptr);
  EXPECT_EQ(item->simCase, nullptr);
  EXPECT_EQ(item->component, nullptr);
  EXPECT_EQ(item->simObject, nullptr);
  EXPECT_EQ(item->projectObject, nullptr);
  EXPECT_TRUE(item->componentName.empty());
  EXPECT_TRUE(item->categoryCode.empty());
  EXPECT_TRUE(item->itemCode.empty());
  EXPECT_TRUE(item->simBlockName.empty());
  EXPECT_TRUE(item->vpeCompFile.empty());
  EXPECT_TRUE(item->pxpropFile.empty());
  EXPECT_TRUE(item->sizeFile.empty());
  EXPECT_TRUE(item->equipFullCode.empty());
}

TEST_F(Lifecycle, Initialising_empties_the_message_lists) {
  const auto item = plant.make<ProbeItem>("P-101");
  for (CStrList* list : {&item->warnings, &item->errors, &item->calculations, &item->notes}) {
    list->Append("text");
  }
  item->szInitialize();
  for (const CStrList* list : {&item->warnings, &item->errors, &item->calculations, &item->notes}) {
    EXPECT_TRUE(list->IsEmpty());
  }
}

// kept: only the four message lists are emptied
TEST_F(Lifecycle, Initialising_leaves_the_lists_of_streams_to_disconnect) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->sourceList.Append("S1");
  item->sinkList.Append("S2");
  item->szInitialize();
  EXPECT_EQ(item->sourceList.GetLength(), 1);
  EXPECT_EQ(item->sinkList.GetLength(), 1);
}

TEST_F(Lifecycle, Terminating_drops_the_three_records_and_may_be_repeated) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->szTerminate();
  EXPECT_EQ(item->component, nullptr);
  EXPECT_EQ(item->simObject, nullptr);
  EXPECT_EQ(item->projectObject, nullptr);
  item->szTerminate();
  EXPECT_EQ(item->component, nullptr);
}

// --- Base behaviour -----------------------------------------------------------------------------

TEST_F(Lifecycle, Commit_saves_connects_and_files_messages_in_that_order) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->warnings.Append("look here");
  EXPECT_EQ(item->Commit(), 1);
  EXPECT_EQ(item->calls, (std::vector<std::string>{"SaveParameters", "UpdateConnectivity"}));
  EXPECT_STREQ(plant.project("P-101", "Sizing Warning(s)").Text(), "look here");
}

TEST_F(Lifecycle, Commit_ignores_the_results_of_saving_and_connecting) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->saveResult = 0;
  item->connectivityResult = 0;
  EXPECT_EQ(item->Commit(), 1);
  EXPECT_EQ(item->calls.size(), 2U);
}

TEST_F(Lifecycle, Commit_without_project_object_still_saves_and_connects_and_gives_0) {
  const auto item = plant.make<ProbeItem>("P-102");
  EXPECT_EQ(item->Commit(), 0);
  EXPECT_EQ(item->calls.size(), 2U);
}

TEST_F(Lifecycle, The_base_finds_no_streams) {
  EXPECT_EQ(plant.make<ProbeItem>("P-101")->GetStreamInfo(), 0);
}

TEST_F(Lifecycle, The_hooks_of_the_rating_deck_give_1) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->hxthrx_get_results(), 1);
  EXPECT_EQ(item->hxthrx_info_geo_ok(nullptr, "", ""), 1);
  EXPECT_EQ(item->hxthrx_info_proc_ok(nullptr, ""), 1);
  EXPECT_EQ(item->hxthrx_info_stre_ok(nullptr, ""), 1);
  EXPECT_TRUE(plant.screen().prints.empty());
}

TEST_F(Lifecycle, The_general_hook_of_the_rating_deck_says_that_no_class_has_it) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->hxthrx_info_general_ok(nullptr, "", ""), 1);
  EXPECT_EQ(plant.screen().prints,
            std::vector<std::string>{"hxthrx_info_general_ok1: CSizeEquip called"});
}

// --- Fresh state --------------------------------------------------------------------------------

TEST_F(Lifecycle, A_fresh_object_has_its_default_data_no_lists_and_its_first_run_ahead) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->values().first, 0.0);
  EXPECT_EQ(item->values().count, 2.0);
  EXPECT_EQ(item->inlets(), nullptr);
  EXPECT_EQ(item->exits(), nullptr);
  EXPECT_EQ(item->firstRun(), 1);
}

TEST_F(Lifecycle, Initialize_restores_the_fresh_state) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->data() = {1.0, 2.0, 3.0};
  item->inlets() = list2_create();
  item->exits() = list2_create();
  item->firstRun() = 0;
  EXPECT_EQ(item->Initialize(), 1);
  EXPECT_EQ(item->values().first, 0.0);
  EXPECT_EQ(item->values().count, 2.0);
  EXPECT_EQ(item->inlets(), nullptr);
  EXPECT_EQ(item->exits(), nullptr);
  EXPECT_EQ(item->firstRun(), 1);
  EXPECT_EQ(plant.lists().live(), 0U);
}

TEST_F(Lifecycle, Initialize_leaves_the_items_identity) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->Initialize();
  EXPECT_EQ(item->IsValid(), 1);
  EXPECT_EQ(item->componentName.view(), "P-101");
}

TEST_F(Lifecycle, Destruction_deletes_the_stream_lists) {
  auto item = plant.make<ProbeItem>("P-101");
  item->inlets() = list2_create();
  item->exits() = list2_create();
  item.reset();
  EXPECT_EQ(plant.lists().live(), 0U);
}

// --- From another class -------------------------------------------------------------------------

TEST_F(Lifecycle, An_object_from_another_class_repeats_the_design_initialisation) {
  int window = 0;
  plant.select("P-101");
  const CPumpObj pump(1, "a", "VPECOMP", "c", "SIZES", "Spreadsheet", &window,
                      plant.host().project(), plant.host().simCase());
  const ProbeItem item{static_cast<const CSizeEquip&>(pump)};
  EXPECT_EQ(item.isValid, 1);
  EXPECT_EQ(item.interactive, 1);
  EXPECT_EQ(item.argFirst.view(), "a");
  EXPECT_EQ(item.argProjectFile.view(), "VPECOMP");
  EXPECT_EQ(item.argThird.view(), "c");
  EXPECT_EQ(item.argSizeFile.view(), "SIZES");
  EXPECT_EQ(item.argMode.view(), "Spreadsheet");
  EXPECT_EQ(item.parentWindow, &window);
  EXPECT_EQ(item.project, plant.host().project());
  EXPECT_EQ(item.simCase, plant.host().simCase());
  EXPECT_EQ(item.componentName.view(), "P-101");
  EXPECT_EQ(item.simBlockName.view(), "B1");
}

TEST_F(Lifecycle, An_object_from_another_class_has_records_and_data_of_its_own) {
  const auto first = plant.make<ProbeItem>("P-101");
  first->warnings.Append("of the first");
  const CPumpObj pump(static_cast<const CSizeEquip&>(*first));
  const ProbeItem item{static_cast<const CSizeEquip&>(pump)};
  EXPECT_NE(item.component, first->component);
  EXPECT_TRUE(item.warnings.IsEmpty());
  EXPECT_EQ(item.values().first, 0.0);
}

TEST_F(Lifecycle, An_object_from_another_class_is_of_the_item_that_is_described_by_then) {
  const auto first = plant.make<ProbeItem>("P-101");
  plant.select("P-102");
  const CPumpObj pump(static_cast<const CSizeEquip&>(*first));
  const ProbeItem item{static_cast<const CSizeEquip&>(pump)};
  EXPECT_EQ(item.componentName.view(), "P-102");
}

TEST_F(Lifecycle, An_object_from_an_invalid_one_is_invalid) {
  const CPumpObj pump(0, "", "", "", "", "", nullptr, nullptr, nullptr);
  const ProbeItem item{static_cast<const CSizeEquip&>(pump)};
  EXPECT_EQ(item.isValid, 0);
}

TEST_F(Lifecycle, A_copy_of_a_selection_is_a_design_of_the_item_described) {
  plant.select("P-101");
  const ProbeItem selection(plant.host().project(), plant.host().simCase(), "B1", "", "");
  const ProbeItem copy(selection);
  EXPECT_EQ(copy.isValid, 1);
  EXPECT_EQ(copy.componentName.view(), "P-101");
  EXPECT_EQ(copy.categoryCode.view(), "DCP");
  EXPECT_EQ(copy.interactive, 0);
}

// --- Copies -------------------------------------------------------------------------------------

TEST_F(Lifecycle, A_copy_shares_the_data_block) {
  const auto item = plant.make<ProbeItem>("P-101");
  ProbeItem copy(*item);
  copy.data().first = 5.0;
  EXPECT_EQ(item->values().first, 5.0);
  EXPECT_EQ(&item->values(), &copy.values());
}

TEST_F(Lifecycle, A_copy_shares_the_stream_lists) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->inlets() = list2_create();
  ProbeItem copy(*item);
  EXPECT_EQ(copy.inlets(), item->inlets());
  list2_append_to_end(copy.inlets(), "S1");
  EXPECT_EQ(list2_length(item->inlets()), 1);
}

TEST_F(Lifecycle, A_copy_takes_over_the_first_run_flag) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->firstRun() = 0;
  ProbeItem copy(*item);
  EXPECT_EQ(copy.firstRun(), 0);
}

TEST_F(Lifecycle, A_copy_has_records_of_its_own_and_no_messages) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->warnings.Append("of the source");
  const ProbeItem copy(*item);
  EXPECT_EQ(copy.isValid, 1);
  EXPECT_NE(copy.component, item->component);
  EXPECT_NE(copy.simObject, item->simObject);
  EXPECT_NE(copy.projectObject, item->projectObject);
  EXPECT_TRUE(copy.warnings.IsEmpty());
}

TEST_F(Lifecycle, A_copy_outlives_its_source_with_data_and_lists) {
  auto item = plant.make<ProbeItem>("P-101");
  item->data().first = 5.0;
  item->inlets() = list2_create();
  ProbeItem copy(*item);
  item.reset();
  EXPECT_EQ(copy.values().first, 5.0);
  EXPECT_EQ(list2_append_to_end(copy.inlets(), "S1"), 1);
}

TEST_F(Lifecycle, The_lists_go_with_the_last_of_the_objects_that_share_them) {
  {
    auto item = plant.make<ProbeItem>("P-101");
    item->inlets() = list2_create();
    const ProbeItem copy(*item);
    item.reset();
    EXPECT_EQ(plant.lists().live(), 1U);
  }
  EXPECT_EQ(plant.lists().live(), 0U);
}

// --- Assignment ---------------------------------------------------------------------------------

TEST_F(Lifecycle, Assignment_copies_every_member_and_shares_the_records) {
  const auto from = plant.make<ProbeItem>("P-101", 1, "Spreadsheet");
  const auto to = plant.make<ProbeItem>("P-102");
  *to = *from;
  EXPECT_EQ(to->componentName.view(), "P-101");
  EXPECT_EQ(to->itemCode.view(), "CENTRIF");
  EXPECT_EQ(to->argMode.view(), "Spreadsheet");
  EXPECT_EQ(to->interactive, 1);
  EXPECT_EQ(to->noDialogs, 0);
  EXPECT_EQ(to->simBlockName.view(), "B1");
  EXPECT_EQ(to->component, from->component);
  EXPECT_EQ(to->simObject, from->simObject);
  EXPECT_EQ(to->projectObject, from->projectObject);
}

TEST_F(Lifecycle, Assignment_copies_the_six_lists) {
  const auto from = plant.make<ProbeItem>("P-101");
  const auto to = plant.make<ProbeItem>("P-102");
  from->warnings.Append("w");
  from->errors.Append("e");
  from->calculations.Append("c");
  from->notes.Append("n");
  from->sourceList.Append("S1");
  from->sinkList.Append("S2");
  to->warnings.Append("gone");
  *to = *from;
  EXPECT_EQ(to->warnings.texts(), std::vector<std::string>{"w"});
  EXPECT_EQ(to->errors.texts(), std::vector<std::string>{"e"});
  EXPECT_EQ(to->calculations.texts(), std::vector<std::string>{"c"});
  EXPECT_EQ(to->notes.texts(), std::vector<std::string>{"n"});
  EXPECT_EQ(to->sourceList.texts(), std::vector<std::string>{"S1"});
  EXPECT_EQ(to->sinkList.texts(), std::vector<std::string>{"S2"});
}

TEST_F(Lifecycle, Assigned_objects_may_both_be_deleted) {
  auto from = plant.make<ProbeItem>("P-101");
  auto to = plant.make<ProbeItem>("P-102");
  *to = *from;
  from.reset();
  EXPECT_EQ(to->component->IsValid(), 1);
  to.reset();
  EXPECT_EQ(closed(), 2);
}

TEST_F(Lifecycle, Assigning_an_object_to_itself_changes_nothing) {
  const auto item = plant.make<ProbeItem>("P-101");
  item->warnings.Append("w");
  ProbeItem& same = *item;
  *item = same;
  EXPECT_EQ(item->componentName.view(), "P-101");
  EXPECT_EQ(item->warnings.GetLength(), 1);
  EXPECT_TRUE(item->component);
}

// --- Streams given by the caller ----------------------------------------------------------------

TEST_F(Lifecycle, Streams_that_are_set_are_copied_and_can_be_had_back) {
  const auto item = plant.make<ProbeItem>("P-101");
  void* given = list2_create();
  list2_append_to_end(given, "S1");
  EXPECT_EQ(item->SetInletStreams(given), 1);
  list2_append_to_end(given, "S2");
  void* back = list2_create();
  list2_append_to_end(back, "old");
  item->GetInletStreams(back);
  ASSERT_EQ(list2_length(back), 1);
  EXPECT_STREQ(list2_get_item(back, 0, nullptr), "S1");
  list2_delete(given);
  list2_delete(back);
}

TEST_F(Lifecycle, Exit_streams_are_kept_apart_from_inlet_streams) {
  const auto item = plant.make<ProbeItem>("P-101");
  void* given = list2_create();
  list2_append_to_end(given, "S9");
  EXPECT_EQ(item->SetExitStreams(given), 1);
  EXPECT_EQ(item->inlets(), nullptr);
  void* back = list2_create();
  item->GetExitStreams(back);
  EXPECT_EQ(list2_length(back), 1);
  list2_delete(given);
  list2_delete(back);
}

TEST_F(Lifecycle, Streams_are_copied_out_only_when_both_lists_exist) {
  const auto item = plant.make<ProbeItem>("P-101");
  void* back = list2_create();
  list2_append_to_end(back, "old");
  item->GetInletStreams(back);
  EXPECT_EQ(list2_length(back), 1);
  item->inlets() = list2_create();
  item->GetInletStreams(nullptr);
  list2_delete(back);
}

TEST_F(Lifecycle, Setting_streams_again_leaves_no_list_behind) {
  const auto item = plant.make<ProbeItem>("P-101");
  void* given = list2_create();
  item->SetInletStreams(given);
  item->SetInletStreams(given);
  EXPECT_EQ(plant.lists().live(), 2U);
  list2_delete(given);
}

}  // namespace
}  // namespace sizewright
