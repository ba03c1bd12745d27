#include <gtest/gtest.h>

#include "frame/probe_item.h"
#include "frame/watched_plant.h"

namespace sizewright {
namespace {

// The simulator block that a design-form item was mapped from, told by the slot "Type" of its
// component record.

std::string plantOf(const std::string& component, int simulator = 1) {
  return R"({"simulator": )" + std::to_string(simulator) + R"(,
    "blocks": {
      "P-101": {"class": 405, "slots": {"ITEM MODEL": "OWN NAME"}},
      "B1": {"class": 405, "slots": {"ITEM MODEL": "FIRST"}},
      "B2": {"class": 405, "slots": {"ITEM MODEL": "SECOND"}},
      "12": {"class": 405, "slots": {"ITEM MODEL": "NUMBERED"}},
      "PM1": {"class": 505, "slots": {"ITEM MODEL": "PREMAPPED"}},
      "B1-tower": {"class": 505, "slots": {"ITEM MODEL": "PREMAPPED", "Type": "B2"}}
    },
    "items": {"P-101": {"category": "DCP", "component": )" +
         component + "}}}";
}

struct TypeRow {
  const char* component;
  const char* block;
  const char* model;
};

class BlockOfItem : public testing::TestWithParam<TypeRow> {};

TEST_P(BlockOfItem, Is_the_first_that_the_record_names) {
  WatchedPlant plant(plantOf(GetParam().component));
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->simBlockName.view(), GetParam().block);
  EXPECT_EQ(item->itemModel.view(), GetParam().model);
  EXPECT_EQ(item->SetBaseObject(), *GetParam().model != '\0' ? 1 : 0);
  EXPECT_EQ(item->simObject != nullptr, *GetParam().model != '\0');
}

INSTANTIATE_TEST_SUITE_P(Types, BlockOfItem,
                         testing::Values(TypeRow{"{}", "P-101", "OWN NAME"},
                                         TypeRow{R"({"Type": "B1"})", "B1", "FIRST"},
                                         TypeRow{R"({"Type": ["B2", "B1"]})", "B2", "SECOND"},
                                         TypeRow{R"({"Type": 12})", "12", "NUMBERED"},
                                         TypeRow{R"({"Type": 12.9})", "12", "NUMBERED"},
                                         TypeRow{R"({"Type": [12.9, "PSI"]})", "12", "NUMBERED"},
                                         TypeRow{R"({"Type": ""})", "P-101", "OWN NAME"},
                                         TypeRow{R"({"Type": ["", "B1"]})", "P-101", "OWN NAME"},
                                         TypeRow{R"({"Type": "NOWHERE"})", "NOWHERE", ""},
                                         TypeRow{R"({"Type": "PM1"})", "PM1", "PREMAPPED"},
                                         TypeRow{R"({"Type": "B1-tower"})", "B2", "SECOND"}));

TEST(BaseObject, The_block_may_be_named_by_what_the_record_inherits_from) {
  WatchedPlant plant(R"({"simulator": 1, "blocks": {"B1": {}}, "items": {"P-101": {"block": "B1"}},
    "databases": {"VPECOMP": {
      "equipment information": {"component name": "COPY", "category code": "DCP"},
      "COPY": {"inherits": "P-101"}}}})");
  EXPECT_EQ(plant.make<ProbeItem>("P-101")->simBlockName.view(), "B1");
}

TEST(BaseObject, An_item_mapped_from_several_blocks_takes_the_first) {
  WatchedPlant plant(R"({"simulator": 1, "blocks": {"B1": {}, "B2": {}},
    "items": {"P-101": {"category": "DCP", "block": ["B2", "B1"]}}})");
  EXPECT_EQ(plant.make<ProbeItem>("P-101")->simBlockName.view(), "B2");
}

TEST(BaseObject, Without_a_case_the_name_is_kept_and_there_is_no_block) {
  WatchedPlant plant(plantOf(R"({"Type": "B1"})", 0));
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->simBlockName.view(), "B1");
  EXPECT_EQ(item->SetBaseObject(), 0);
  EXPECT_EQ(item->simObject, nullptr);
}

TEST(BaseObject, Asking_again_follows_the_record) {
  WatchedPlant plant(plantOf(R"({"Type": "B1"})"));
  const auto item = plant.make<ProbeItem>("P-101");
  ASSERT_EQ(item->component->SetValue("Type", "B2", 0), 1);
  EXPECT_EQ(item->SetBaseObject(), 1);
  EXPECT_EQ(item->simBlockName.view(), "B2");
}

TEST(BaseObject, A_block_that_is_gone_is_dropped) {
  WatchedPlant plant(plantOf(R"({"Type": "B1"})"));
  const auto item = plant.make<ProbeItem>("P-101");
  ASSERT_EQ(item->component->SetValue("Type", "NOWHERE", 0), 1);
  EXPECT_EQ(item->SetBaseObject(), 0);
  EXPECT_EQ(item->simObject, nullptr);
}

TEST(BaseObject, A_list_of_10000_blocks_gives_its_first) {
  std::string names = "\"B1\"";
  for (int i = 0; i < 9999; ++i) names += ",\"B2\"";
  WatchedPlant plant(plantOf(R"({"Type": [)" + names + "]}"));
  EXPECT_EQ(plant.make<ProbeItem>("P-101")->simBlockName.view(), "B1");
}

TEST(BaseObject, A_block_name_of_5000_characters_is_cut) {
  WatchedPlant plant(plantOf(R"({"Type": ")" + std::string(5000, 'b') + "\"}"));
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->isValid, 1);
  EXPECT_EQ(item->simBlockName.view(), std::string(127, 'b'));
  EXPECT_EQ(item->simObject, nullptr);
}

}  // namespace
}  // namespace sizewright
