#include <gtest/gtest.h>

#include "sizewright/host/host.h"
#include "sizewright/host/slot.h"
#include "sizewright/host/string_list.h"

namespace sizewright {
namespace {

TEST(Slot, The_empty_value_is_not_valid_and_answers_nothing) {
  const CvdSlot slot(nullptr, nullptr);
  EXPECT_FALSE(slot.IsValid());
  EXPECT_FALSE(slot.IsText() || slot.IsList() || slot.IsNumber() || slot.HasUnits());
  EXPECT_STREQ(slot.Text(), "");
  EXPECT_EQ(slot.Number(), 0.0);
  EXPECT_TRUE(slot.List().empty());
}

TEST(Slot, A_text_of_several_lines_and_the_list_of_its_lines_are_the_same_value) {
  const CvdSlot text = CvdSlot::ofText("S1\nPROCESS\nINLET");
  const CvdSlot list = CvdSlot::ofList({"S1", "PROCESS", "INLET"});
  EXPECT_TRUE(text == list);
  EXPECT_TRUE(text.IsList());
  EXPECT_STREQ(list.Text(), "S1\nPROCESS\nINLET");
  ASSERT_EQ(text.List().size(), 3U);
  EXPECT_EQ(text.List()[1], "PROCESS");
}

TEST(Slot, A_list_of_one_line_is_a_text) {
  const CvdSlot slot = CvdSlot::ofList({"S1"});
  EXPECT_TRUE(slot.IsText());
  EXPECT_TRUE(slot == CvdSlot::ofText("S1"));
  ASSERT_EQ(slot.List().size(), 1U);
}

TEST(Slot, A_line_that_holds_a_line_feed_is_two_lines) {
  EXPECT_EQ(CvdSlot::ofList({"a\nb", "c"}).List().size(), 3U);
}

TEST(Slot, A_number_may_have_a_unit) {
  const CvdSlot slot = CvdSlot::ofNumber(12.5, "PSI");
  EXPECT_TRUE(slot.IsNumber() && slot.HasUnits());
  EXPECT_EQ(slot.Number(), 12.5);
  EXPECT_STREQ(slot.Units(), "PSI");
  EXPECT_STREQ(slot.Text(), "");
  EXPECT_FALSE(CvdSlot::ofNumber(12.5).HasUnits());
  EXPECT_FALSE(slot == CvdSlot::ofNumber(12.5));
}

TEST(Slot, A_copy_stays_good_when_the_source_is_cleared) {
  CvdSlot slot = CvdSlot::ofText("kept");
  const CvdSlot copy = slot;
  slot.Clear();
  EXPECT_FALSE(slot.IsValid());
  EXPECT_STREQ(copy.Text(), "kept");
}

TEST(StringList, A_text_is_cut_at_the_separator) {
  CStrList list;
  list.AddTextList("a\nb\n\nc", 10);
  EXPECT_EQ(list.GetLength(), 4);
  EXPECT_STREQ(list.GetTextAt(2), "");
  EXPECT_STREQ(list.GetTextAt(3), "c");
  list.AddTextList("", 10);
  EXPECT_EQ(list.GetLength(), 4);
}

TEST(StringList, The_joined_text_has_the_length_that_is_told) {
  const CStrList list = {"ab", "", "c"};
  EXPECT_EQ(list.GetTextList(10), "ab\n\nc");
  EXPECT_EQ(list.GetTextListLen(), 5);
  EXPECT_EQ(CStrList().GetTextListLen(), 0);
}

TEST(StringList, Entries_carry_data_and_members_are_found_without_regard_to_case) {
  CStrList list = {"S1", "S2"};
  list.SetData(1, 3005);
  EXPECT_EQ(list.GetData(0), 0U);
  EXPECT_EQ(list.GetData(1), 3005U);
  EXPECT_EQ(list.IsMember("s2"), 2);
  EXPECT_EQ(list.IsMember("S3"), 0);
  CStrList all = {"S0"};
  all.Append(list);
  EXPECT_EQ(all.GetData(2), 3005U);
}

TEST(StringList, Positions_outside_the_list_answer_nothing) {
  CStrList list = {"S1"};
  EXPECT_STREQ(list.GetTextAt(1), "");
  EXPECT_STREQ(list.GetTextAt(-1), "");
  EXPECT_EQ(list.GetData(7), 0U);
  list.SetData(7, 1);
  EXPECT_EQ(list.GetLength(), 1);
}

TEST(StringList, A_pair_of_lists_gives_the_value_of_a_label) {
  const CStrList names = {"DUTY", "Fluid"};
  const CStrList values = {"5\nBTU/H", "Steam"};
  CvdString value("kept");
  EXPECT_EQ(CvdStrListPair(names, values).GetValue("none", value), 0);
  EXPECT_STREQ(value.Text(), "kept");
  EXPECT_EQ(CvdStrListPair(names, values).GetValue("fluid", value), 1);
  EXPECT_STREQ(value.Text(), "Steam");
  value += "!";
  EXPECT_STREQ(value.Text(), "Steam!");
}

// --- list2 --------------------------------------------------------------------------------------

class FaultListener : public UserInterface {
 public:
  void diagnostic(std::string_view) override { ++faults; }
  int faults = 0;
};

class ListHost : public Host {
 public:
  UserInterface& user() override { return listener; }
  FaultListener listener;
};

class List2 : public testing::Test {
 protected:
  ListHost host;
  HostScope scope{host};
};

TEST_F(List2, Entries_come_back_in_order) {
  void* list = list2_create();
  EXPECT_EQ(list2_append_to_end(list, "S1"), 1);
  EXPECT_EQ(list2_append_to_end(list, "S2"), 1);
  int length = 0;
  EXPECT_STREQ(list2_get_item(list, 1, &length), "S2");
  EXPECT_EQ(length, 2);
  EXPECT_EQ(list2_get_item(list, 2, &length), nullptr);
  EXPECT_EQ(list2_get_item(list, -1, &length), nullptr);
  EXPECT_EQ(list2_length(list), 2);
  EXPECT_EQ(list2_member(list, "s2"), 2);
  list2_delete(list);
}

TEST_F(List2, Deleting_null_or_a_deleted_list_does_nothing) {
  list2_delete(nullptr);
  void* list = list2_create();
  list2_delete(list);
  list2_delete(list);
  EXPECT_EQ(host.lists().live(), 0U);
  EXPECT_EQ(host.listener.faults, 0);
}

TEST_F(List2, A_stale_handle_never_reaches_the_list_that_took_its_place) {
  void* stale = list2_create();
  list2_delete(stale);
  void* fresh = list2_create();
  list2_append_to_end(fresh, "S1");
  EXPECT_NE(stale, fresh);
  EXPECT_EQ(list2_length(stale), 0);
  EXPECT_EQ(list2_append_to_end(stale, "S2"), 0);
  EXPECT_EQ(host.listener.faults, 2);
  EXPECT_EQ(list2_length(fresh), 1);
  list2_delete(fresh);
}

TEST_F(List2, A_pointer_that_is_no_handle_finds_nothing) {
  int number = 0;
  EXPECT_EQ(list2_length(&number), 0);
  EXPECT_EQ(list2_length(nullptr), 0);
  EXPECT_EQ(list2_to_list(nullptr), nullptr);
}

TEST_F(List2, Reclaiming_deletes_what_was_abandoned_and_counts_it) {
  void* a = list2_create();
  list2_create();
  list2_create();
  list2_delete(a);
  EXPECT_EQ(host.lists().reclaim(), 2U);
  EXPECT_EQ(host.lists().live(), 0U);
  EXPECT_EQ(host.lists().reclaim(), 0U);
}

TEST_F(List2, A_copy_replaces_what_the_target_held) {
  void* from = list2_create();
  void* to = list2_create();
  list2_append_to_end(from, "S1");
  list2_append_to_end(to, "old");
  EXPECT_EQ(list2_copy_s(from, to), 1);
  EXPECT_EQ(list2_length(to), 1);
  EXPECT_STREQ(list2_get_item(to, 0, nullptr), "S1");
  EXPECT_EQ(list2_copy_s(nullptr, to), 0);
  list2_delete(from);
  list2_delete(to);
}

TEST_F(List2, Labels_find_their_numbers_and_units) {
  void* names = list2_create();
  void* values = list2_create();
  list2_add_slot_value(names, values, "CpFluidHead", "120\nFEET");
  list2_add_slot_value(names, values, "Fluid", "Steam");
  double number = 0.0;
  char units[64] = "";
  EXPECT_EQ(list2_get_slot_value_n(names, values, "cpfluidhead", &number, units), 1);
  EXPECT_EQ(number, 120.0);
  EXPECT_STREQ(units, "FEET");
  EXPECT_EQ(list2_get_slot_value_n(names, values, "Fluid", &number, units), 0);
  EXPECT_EQ(list2_get_slot_value(names, values, "none", nullptr), nullptr);
  list2_delete(names);
  list2_delete(values);
}

TEST_F(List2, The_flat_text_of_a_list_has_a_line_an_entry) {
  void* list = list2_create();
  list2_append_to_end(list, "_in_1");
  list2_append_to_end(list, "_in_2");
  char* text = list2_to_list(list);
  EXPECT_STREQ(text, "_in_1\n_in_2");
  list_free(text);
  list_free(nullptr);
  list2_delete(list);
}

TEST(List2WithoutHost, Lists_work_without_a_host) {
  void* list = list2_create();
  list2_append_to_end(list, "S1");
  EXPECT_EQ(list2_length(list), 1);
  list2_delete(list);
  EXPECT_EQ(list2_length(list), 0);
}

}  // namespace
}  // namespace sizewright
