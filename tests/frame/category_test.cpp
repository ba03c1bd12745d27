#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>

#include "frame/probe_item.h"
#include "frame/watched_plant.h"

namespace sizewright {
namespace {

struct CategoryRow {
  const char* category;
  const char* itemModel;
  int family;
};

constexpr CategoryRow kCategories[] = {
    {"DGC", "", 1},     {"EGC", "", 1},   {"EAC", "", 1},  {"DTUR", "", 1}, {"EFN", "", 1},
    {"ECR", "", 2},     {"EM", "", 2},    {"ECRY", "", 3}, {"EDC", "", 4},  {"DSE", "", 4},
    {"ESE", "", 4},     {"DDC", "", 4},   {"ED", "", 5},   {"EDD", "", 5},  {"ETDS", "", 5},
    {"EAD", "", 5},     {"ERD", "", 5},   {"ECT", "", 6},  {"EF", "", 6},   {"DF", "", 6},
    {"EFU", "", 7},     {"DHE", "", 8},   {"EHE", "", 8},  {"DRB", "", 8},  {"EE", "", 8},
    {"WFE", "", 8},     {"C", "LNG", 9},  {"DCP", "", 10}, {"ECP", "", 10}, {"EGP", "", 10},
    {"EP", "", 10},     {"EVP", "", 10},  {"DP", "", 10},  {"EVS", "", 11}, {"ETUR", "", 12},
    {"DTW", "", 13},    {"DDDT", "", 13}, {"DVT", "", 14}, {"DHT", "", 14}, {"EVT", "", 14},
    {"DAT", "", 14},    {"EAT", "", 14},  {"DMX", "", 15}, {"C", "", 16},   {"C", "MHEATX", 9},
    {"C", "HEATX", 16},
};

// What is told of a row when it fails.
std::string rowName(const CategoryRow& row) {
  return std::string("category \"") + row.category + "\", model \"" + row.itemModel + '"';
}

TEST(Category, Every_category_code_has_its_family) {
  for (const CategoryRow& row : kCategories) {
    EXPECT_EQ(equipmentCategory(row.category, row.itemModel), row.family) << rowName(row);
  }
}

TEST(Category, Letters_of_any_case_name_the_same_family) {
  for (const CategoryRow& row : kCategories) {
    std::string code = row.category;
    std::transform(code.begin(), code.end(), code.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    EXPECT_EQ(equipmentCategory(code, row.itemModel), row.family) << rowName(row);
  }
}

TEST(Category, Blanks_behind_the_code_do_not_matter) {
  for (const CategoryRow& row : kCategories) {
    EXPECT_EQ(equipmentCategory(std::string(row.category) + "    ", row.itemModel), row.family)
        << rowName(row);
  }
}

TEST(Category, An_unknown_code_has_no_family) {
  for (const char* code : {"", "    ", "X", "DC", "DCPX", "CX", "D", "EMX", "VT", "HE", "QQQQ"}) {
    EXPECT_EQ(equipmentCategory(code, ""), EQ_CAT_NONE) << '"' << code << '"';
  }
}

TEST(Category, A_code_of_four_characters_is_compared_on_those_four_only) {
  EXPECT_EQ(equipmentCategory("DTURX", ""), EQ_CAT_COMPRESSOR);
  EXPECT_EQ(equipmentCategory("DDDT and more", ""), EQ_CAT_TOWER);
  EXPECT_EQ(equipmentCategory("ETDS2", ""), EQ_CAT_DRYER);
}

TEST(Category, A_plate_fin_model_is_told_without_regard_to_case) {
  EXPECT_EQ(equipmentCategory("C", "mheatx"), EQ_CAT_PLATE_FIN);
  EXPECT_EQ(equipmentCategory("c", "lng"), EQ_CAT_PLATE_FIN);
}

TEST(Category, The_block_model_counts_within_category_C_only) {
  EXPECT_EQ(equipmentCategory("DHE", "LNG"), EQ_CAT_HEAT_EXCHANGER);
  EXPECT_EQ(equipmentCategory("DMX", "MHEATX"), EQ_CAT_MIXER);
}

// --- Identity of an object ----------------------------------------------------------------------

constexpr std::string_view kPlant = R"({
  "simulator": 1,
  "blocks": {"B1": {"slots": {"ITEM MODEL": "mheatx"}}},
  "items": {
    "E-101": {"category": "DHE", "item": "PLATE FIN"},
    "C-101": {"category": "C", "item": "PLATE FIN", "block": "B1"},
    "P-101": {"category": "DCP", "item": "CENTRIF"}
  }
})";

class Identity : public testing::Test {
 protected:
  WatchedPlant plant{kPlant};
};

TEST_F(Identity, A_plate_fin_item_of_an_exchanger_category_counts_as_heat_exchanger) {
  EXPECT_EQ(plant.make<ProbeItem>("E-101")->GetEquipCatType(), 8);
}

TEST_F(Identity, A_category_C_item_on_a_multistream_exchanger_block_is_a_plate_fin) {
  EXPECT_EQ(plant.make<ProbeItem>("C-101")->GetEquipCatType(), 9);
}

TEST_F(Identity, The_codes_are_copied_out) {
  const auto item = plant.make<ProbeItem>("P-101");
  char category[128] = "x";
  char code[128] = "x";
  item->GetCategoryCode(category);
  item->GetItemCode(code);
  EXPECT_STREQ(category, "DCP");
  EXPECT_STREQ(code, "CENTRIF");
}

TEST_F(Identity, A_new_category_changes_the_family) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->SetCategoryCode("DTW"), 1);
  EXPECT_EQ(item->GetEquipCatType(), EQ_CAT_TOWER);
}

TEST_F(Identity, An_empty_category_is_refused_and_the_old_one_stays) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->SetCategoryCode(""), 0);
  EXPECT_EQ(item->categoryCode.view(), "DCP");
}

TEST_F(Identity, An_empty_item_code_is_refused_and_the_old_one_stays) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->SetItemCode(""), 0);
  EXPECT_EQ(item->itemCode.view(), "CENTRIF");
}

TEST_F(Identity, A_shorter_item_code_leaves_nothing_of_the_longer_one_before) {
  const auto item = plant.make<ProbeItem>("P-101");
  EXPECT_EQ(item->SetItemCode("A"), 1);
  char code[128];
  item->GetItemCode(code);
  EXPECT_STREQ(code, "A");
  const char* const buffer = item->itemCode.c_str();
  EXPECT_TRUE(std::all_of(buffer + 1, buffer + 128, [](char c) { return c == '\0'; }));
}

TEST_F(Identity, Codes_of_5000_characters_are_cut_to_their_buffer) {
  const auto item = plant.make<ProbeItem>("P-101");
  const std::string longCode(5000, 'D');
  EXPECT_EQ(item->SetItemCode(longCode.c_str()), 1);
  EXPECT_EQ(item->SetCategoryCode(longCode.c_str()), 1);
  char code[128];
  item->GetItemCode(code);
  EXPECT_EQ(std::string(code), std::string(127, 'D'));
  item->GetCategoryCode(code);
  EXPECT_EQ(std::string(code), std::string(127, 'D'));
  EXPECT_EQ(item->GetEquipCatType(), EQ_CAT_NONE);
}

TEST_F(Identity, The_file_names_are_copied_out) {
  const auto item = plant.make<ProbeItem>("P-101");
  char name[512];
  item->GetUtilFile(name);
  EXPECT_STREQ(name, "UTILITY");
  item->GetProcFile(name);
  EXPECT_STREQ(name, "PROC");
  item->GetVpeCompFile(name);
  EXPECT_STREQ(name, "VPECOMP");
  item->GetVpeProjFile(name);
  EXPECT_STREQ(name, "VPEPROJ");
}

TEST_F(Identity, Block_name_and_model_and_simulator_are_told) {
  const auto item = plant.make<ProbeItem>("C-101");
  EXPECT_STREQ(item->GetSimBlockName(), "B1");
  EXPECT_STREQ(item->GetItemModel(), "mheatx");
  EXPECT_EQ(item->GetSimCounter(), 1);
}

// --- Class numbers of host objects --------------------------------------------------------------

TEST(ClassNumbers, Every_kind_of_host_object_has_its_number) {
  EXPECT_EQ(kSimulatorBlock, 405);
  EXPECT_EQ(kPremappedItem, 505);
  EXPECT_EQ(kProjectItem, 1705);
  EXPECT_EQ(kProcessStream, 3005);
  EXPECT_EQ(kAddedUtilityStream, 3105);
  EXPECT_EQ(kAddedPremapStream, 3205);
  EXPECT_EQ(kUserAddedStream, 3305);
}

// --- Calling context ----------------------------------------------------------------------------

TEST_F(Identity, Block_information_is_read_unless_the_context_is_a_spreadsheet) {
  EXPECT_EQ(plant.make<ProbeItem>("P-101", 0, "")->GetProjObjectInfo(), 1);
  EXPECT_EQ(plant.make<ProbeItem>("P-101", 0, "Interactive")->GetProjObjectInfo(), 1);
  EXPECT_EQ(plant.make<ProbeItem>("P-101", 0, "Spreadsheet")->GetProjObjectInfo(), 0);
  EXPECT_EQ(plant.make<ProbeItem>("P-101", 0, "SPREADSHEET")->GetProjObjectInfo(), 0);
}

}  // namespace
}  // namespace sizewright
