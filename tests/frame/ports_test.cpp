#include <gtest/gtest.h>

#include "frame/probe_item.h"
#include "support/test_plant.h"

namespace sizewright {
namespace {

std::string plantText(bool recordsChanges) {
  return std::string(R"({"record changes": )") + (recordsChanges ? "true" : "false") + R"(,
    "streams": {"S1": {}, "S2": {}, "S3": {"class": 3305}},
    "items": {"P-101": {"category": "DCP", "inlets": {"INLET": ["S1", "S2", "S1"]},
                        "exits": {"OUTLET": ["S3"]}},
              "P-102": {"category": "DCP", "inlets": {"INLET": ["S3"]}}}})";
}

class Ports : public testing::Test {
 protected:
  TestPlant plant{plantText(true)};
  std::unique_ptr<ProbeItem> item = plant.make<ProbeItem>("P-101");

  static void* listOf(std::initializer_list<const char*> names) {
    void* list = list2_create();
    for (const char* name : names) list2_append_to_end(list, name);
    return list;
  }
  void addPorts(std::initializer_list<const char*> names) {
    void* list = listOf(names);
    item->lib_func_add_new_ports("", "", "", list, "TAG", "_in_", 1);
    list2_delete(list);
  }
  bool recorded(const char* list, const char* stream) {
    return plant.stored("VPEPROJ", list, stream).IsValid();
  }
  std::string text(const char* slot) { return plant.text("P-101", slot); }
};

TEST_F(Ports, Are_numbered_from_1_without_the_streams_that_are_none) {
  item->lib_fun_delete_old_ports("VPECOMP", "P-101", 1);
  addPorts({"none", "S1  ", "", "nowhere"});
  EXPECT_EQ(text("__STREAMS__IN"), "_in__1\n_in__2");
  EXPECT_EQ(text("_in__1"), "S1\nPROCESS\nTAG");
  EXPECT_EQ(text("_in__2"), "nowhere\n\nTAG");
}

TEST_F(Ports, Of_an_empty_list_are_not_written) {
  addPorts({});
  EXPECT_EQ(text("__STREAMS__IN"), "_in_1\n_in_2\n_in_3");
}

TEST_F(Ports, Are_appended_from_number_0_up) {
  item->lib_func_append_ports("S2", "DRAIN", "_ex_", 2);
  item->lib_func_append_ports("S1", "DRAIN", "_ex_", 2);
  item->lib_func_append_ports("", "DRAIN", "_ex_", 2);
  EXPECT_EQ(text("__STREAMS__EX"), "_ex_1\n_ex__0\n_ex__1");
  EXPECT_EQ(text("_ex__0"), "S2\nPROCESS\nDRAIN");
  EXPECT_EQ(text("_ex__1"), "S1\nPROCESS\nDRAIN");
  void* list = listOf({"S2", "", "S3"});
  item->lib_func_append_ports("", "", "", list, "SIDE", "_s_", 2);
  list2_delete(list);
  EXPECT_EQ(text("_s__0"), "S2\nPROCESS\nSIDE");
  EXPECT_EQ(text("_s__1"), "S3\nUSER ADDED PROCESS\nSIDE");
}

TEST_F(Ports, Go_with_their_connector_slot) {
  item->lib_fun_delete_old_ports("VPECOMP", "P-101", 1);
  EXPECT_FALSE(plant.has("P-101", "__STREAMS__IN"));
  EXPECT_FALSE(plant.has("P-101", "_in_1"));
  EXPECT_TRUE(plant.has("P-101", "_ex_1"));
  EXPECT_EQ(item->lib_func_delete_connectors("NO DATABASE", "P-101", 1), 0);
}

TEST_F(Ports, Are_read_line_by_line) {
  FixedText<256> stream;
  FixedText<256> type;
  FixedText<256> tag;
  item->lib_func_get_conn_str_prop("VPECOMP", "P-101", "_ex_1", stream.data(), type.data(),
                                   tag.data());
  EXPECT_EQ(stream.view(), "S3");
  EXPECT_EQ(type.view(), "USER ADDED PROCESS");
  EXPECT_EQ(tag.view(), "OUTLET");
  item->lib_func_get_conn_str_prop("NO DATABASE", "P-101", "_in_1", stream.data(), type.data(),
                                   tag.data());
  EXPECT_EQ(stream.view(), "S3");  // untouched
}

TEST_F(Ports, Tell_the_streams_of_a_tag_each_once) {
  void* list = nullptr;
  EXPECT_EQ(item->lib_func_obtain_streams_from_connections(1, "inlet", &list), 2);
  EXPECT_STREQ(list2_get_item(list, 0, nullptr), "S1");
  EXPECT_STREQ(list2_get_item(list, 1, nullptr), "S2");
  list2_delete(list);
  list = nullptr;
  EXPECT_EQ(item->lib_func_obtain_streams_from_connections(2, "", &list), 1);  // any tag
  list2_delete(list);
}

TEST_F(Ports, Lists_of_names_come_from_texts_lists_and_numbers) {
  void* list = list2_create();
  EXPECT_EQ(item->lib_func_get_connector_list(1, list), 1);
  EXPECT_EQ(list2_length(list), 3);
  item->component->SetValue("__STREAMS__EX", 12.7, "", 0);
  EXPECT_EQ(item->lib_func_get_connector_list(2, list), 1);
  EXPECT_STREQ(list2_get_item(list, 3, nullptr), "12");
  item->component->DeleteSlots("__STREAMS__EX");
  void* none = list2_create();
  EXPECT_EQ(item->lib_func_get_connector_list(2, none), 0);
  EXPECT_EQ(item->lib_func_write_connector_list(none, 2), 0);
  list2_delete(list);
  list2_delete(none);
}

// --- Changes
// --------------------------------------------------------------------------------------

TEST_F(Ports, Record_the_streams_that_changed) {
  addPorts({"S2"});
  EXPECT_TRUE(recorded("_STR_MOD_LIST_", "S2"));
  EXPECT_FALSE(recorded("_STR_MOD_LIST_", "S1"));
  item->lib_fun_delete_old_ports("VPECOMP", "P-101", 2);
  EXPECT_TRUE(recorded("_STR_MOD_LIST_", "S3"));
}

TEST_F(Ports, Changes_have_a_list_by_kind) {
  EXPECT_EQ(item->AddStreamToList("S1", 1), 1);
  EXPECT_EQ(item->AddStreamToList("S2", 3), 1);
  EXPECT_EQ(item->AddStreamToList("S2", 4), 0);
  EXPECT_TRUE(recorded("_STR_ADD_LIST_", "S1"));
  EXPECT_TRUE(recorded("_STR_DEL_LIST_", "S2"));
}

TEST(PortsWithoutRecords, Are_written_all_the_same) {
  TestPlant plant(plantText(false));
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->AddStreamToList("S1", 2), 0);
  item->lib_func_append_ports("S2", "DRAIN", "_ex_", 2);
  EXPECT_EQ(plant.text("P-101", "_ex__0"), "S2\nPROCESS\nDRAIN");
  EXPECT_FALSE(plant.stored("VPEPROJ", "_STR_MOD_LIST_", "S2").IsValid());
}

// --- Disconnection
// --------------------------------------------------------------------------------

TEST_F(Ports, The_item_is_sink_of_its_inlet_and_source_of_its_exit) {
  EXPECT_EQ(item->GetConnectedStreams(), 1);
  EXPECT_EQ(item->sinkList.texts(), std::vector<std::string>{"S1"});
  EXPECT_EQ(item->sinkList.GetData(0), 3005u);
  EXPECT_EQ(item->sourceList.texts(), std::vector<std::string>{"S3"});
  EXPECT_EQ(item->sourceList.GetData(0), 3305u);
}

TEST_F(Ports, Streams_are_noted_once_and_only_when_they_exist) {
  EXPECT_EQ(item->AppendStreamToSourceList("S1"), 1);
  EXPECT_EQ(item->AppendStreamToSourceList("s1"), 0);
  EXPECT_EQ(item->AppendStreamToSourceList(""), 0);
  EXPECT_EQ(item->AppendStreamToSinkList("nowhere"), 0);
}

TEST_F(Ports, Streams_are_cut_loose_at_one_end_or_both) {
  EXPECT_EQ(item->DisconnectOneStream("S3", 3305, 0, 0), 0);
  EXPECT_EQ(item->DisconnectOneStream("nowhere", 3005, 1, 1), 0);
  EXPECT_EQ(item->DisconnectOneStream("S3", 3305, 1, 0), 1);  // at its source, P-101
  EXPECT_FALSE(plant.has("P-101", "_ex_1"));
  EXPECT_TRUE(plant.has("P-102", "_in_1"));
  EXPECT_EQ(item->DisconnectOneStream("S3", 3305, 1, 1), 1);
  EXPECT_FALSE(plant.has("P-102", "_in_1"));
}

TEST_F(Ports, Noted_streams_are_cut_loose_together) {
  item->GetConnectedStreams();
  item->DisconnectStreams();
  EXPECT_FALSE(plant.has("P-101", "_ex_1"));
  EXPECT_TRUE(plant.has("P-102", "_in_1"));
  EXPECT_EQ(text("__STREAMS__IN"), "_in_2");  // S1 stood twice
}

}  // namespace
}  // namespace sizewright
