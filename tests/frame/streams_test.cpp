#include <gtest/gtest.h>

#include "frame/probe_item.h"
#include "support/test_plant.h"

namespace sizewright {
namespace {

constexpr const char* kPlant = R"({
  "simulator": 1,
  "streams": {"P": {"class": 3005, "slots": {"TOTAL MASS FLOW": [100, "LB/H"], "X": 3}},
              "U": {"class": 3105, "slots": {"TOTAL MASS FLOW": [100, "LB/H"]}},
              "M": {"class": 3205, "slots": {"TOTAL MASS FLOW": [50, "KG/H"]}},
              "A": {"class": 3305, "slots": {"TOTAL MASS FLOW": 1000}},
              "Z": {"slots": {}}},
  "blocks": {"B1": {"slots": {"Of block": ["U", "M"]}}},
  "items": {"P-101": {"category": "DCP", "block": "B1",
    "inlets": {"INLET": ["P", "U", "P"], "SIDE": ["M"]}, "exits": {"OUTLET": ["A"]},
    "component": {"Named": "Z", "Listed": ["Z", "A"], "Counted": 12.9, "Measured": [5, "FEET"]}}}
})";

class Streams : public testing::Test {
 protected:
  TestPlant plant{kPlant};
  std::unique_ptr<ProbeItem> item = plant.make<ProbeItem>("P-101");

  static std::vector<std::string> take(void* list) {
    std::vector<std::string> names;
    for (int i = 0; i < list2_length(list); ++i) {
      names.emplace_back(list2_get_item(list, i, nullptr));
    }
    list2_delete(list);
    return names;
  }
  std::vector<std::string> found(int direction, const char* slot, const char* tag, int result) {
    void* list = list2_create();
    void* const own = list;
    EXPECT_EQ(item->GetStreams(direction, slot, tag, list), result);
    if (list != own) list2_delete(own);
    return take(list);
  }
};

using Names = std::vector<std::string>;

TEST_F(Streams, Have_a_type_by_class) {
  struct Row {
    const char* name;
    const char* type;
    int number;
  };
  for (const Row& row :
       {Row{"P", "PROCESS", 3005}, Row{"u", "VPE ADDED UTILITY", 3105},
        Row{"M", "VPE ADDED PREMAP", 3205}, Row{"A", "USER ADDED PROCESS", 3305}}) {
    UnitText type;
    int number = 0;
    EXPECT_EQ(item->lib_stream_type(row.name, type.data(), number), 1) << row.name;
    EXPECT_EQ(type.view(), row.type);
    EXPECT_EQ(number, row.number);
    EXPECT_EQ(item->GetStreamID(row.name), row.number);
  }
  EXPECT_EQ(item->GetStreamID("nowhere"), 0);
}

TEST_F(Streams, That_are_unknown_keep_what_the_caller_says) {
  UnitText type;
  int number = 0;
  EXPECT_EQ(item->lib_stream_type("nowhere", type.data(), number), 0);
  number = 3005;
  EXPECT_EQ(item->lib_stream_type("nowhere", type.data(), number), 0);
  type = "PROCESS";
  EXPECT_EQ(item->lib_stream_type("nowhere", type.data(), number), 1);
  EXPECT_EQ(type.view(), "PROCESS");
  EXPECT_EQ(number, 3005);
}

TEST_F(Streams, Give_slots_in_their_own_classes_only) {
  CvdSlot value;
  EXPECT_EQ(item->lib_get_stream_val("P", 3005, "X", value), 1);
  EXPECT_EQ(value.Number(), 3);
  EXPECT_EQ(item->lib_get_stream_val("P", 3105, "X", value), 0);
  EXPECT_EQ(item->lib_get_stream_val("B1", 405, "Of block", value), 0);
  EXPECT_EQ(item->lib_get_stream_val("P", 3005, "missing", value), 0);
}

TEST_F(Streams, Come_from_connections_before_slots_each_once) {
  EXPECT_EQ(found(1, "Named", "INLET", 2), (Names{"P", "U"}));
  EXPECT_EQ(found(1, "Named", "inlet", 2), (Names{"P", "U"}));
  EXPECT_EQ(found(1, "Named", "NO SUCH TAG", 1), (Names{"Z"}));
  EXPECT_EQ(found(2, "Named", "OUTLET", 1), (Names{"A"}));
  EXPECT_EQ(found(1, "", "NO SUCH TAG", 0), Names{});
}

TEST_F(Streams, Of_no_direction_come_from_slots) {
  EXPECT_EQ(found(-1, "Listed", "INLET", 1), (Names{"Z", "A"}));
  EXPECT_EQ(found(-1, "Of block", "", 1), (Names{"U", "M"}));
  EXPECT_EQ(found(0, "Counted", "", 1), (Names{"12"}));
  EXPECT_EQ(found(0, "Measured", "", 1), (Names{"5", "FEET"}));
  EXPECT_EQ(found(0, "missing", "", 0), Names{});
}

TEST_F(Streams, Are_appended_to_a_string_list) {
  CStrList list{"first"};
  EXPECT_EQ(item->GetStreams(1, "", "INLET", list), 2);  // as many as there are
  EXPECT_EQ(list.texts(), (Names{"first", "P", "U"}));
  EXPECT_EQ(item->GetStreams(1, "", "none", list), 0);
  EXPECT_EQ(list.GetLength(), 3);
}

TEST_F(Streams, Are_told_by_direction) {
  EXPECT_EQ(item->lib_func_IsStreamInList(1, "m  "), 1);
  EXPECT_EQ(item->lib_func_IsStreamInList(2, "A"), 1);
  EXPECT_EQ(item->lib_func_IsStreamInList(2, "M"), 0);
}

struct GreatestCase {
  Names names;
  const char* greatest;
};
class GreatestFlow : public testing::TestWithParam<GreatestCase> {};
INSTANTIATE_TEST_SUITE_P(EveryBranch, GreatestFlow,
                         testing::Values(GreatestCase{{"P", "U"}, "P"},
                                         GreatestCase{{"M", "P"}, "M"},
                                         GreatestCase{{"nowhere", "U"}, "U"},
                                         GreatestCase{{"Z"}, ""}, GreatestCase{{"A", "P"}, "A"}));

TEST_P(GreatestFlow, Is_that_of_the_first_stream_of_the_greatest) {
  TestPlant plant(kPlant);
  const auto item = plant.make<ProbeItem>("P-101");
  void* list = list2_create();
  for (const std::string& name : GetParam().names) list2_append_to_end(list, name);
  FixedText<256> out("before");
  item->lib_GetStreamWithMax_total_mass_flow(list, out.data());
  list2_delete(list);
  EXPECT_EQ(out.view(), GetParam().greatest);
}

TEST_F(Streams, Of_an_empty_list_leave_the_text_alone) {
  void* list = list2_create();
  FixedText<256> out("before");
  item->lib_GetStreamWithMax_total_mass_flow(list, out.data());
  EXPECT_EQ(out.view(), "before");
  list2_delete(list);
}

}  // namespace
}  // namespace sizewright
