#include <gtest/gtest.h>

#include <cmath>

#include "frame/probe_item.h"
#include "support/test_plant.h"

namespace sizewright {
namespace {

// An item P-101 of block B1 with slots of every kind, in the record, the block, a stream and two
// databases.
constexpr const char* kPlant = R"({
  "simulator": 1,
  "streams": {"S1": {"slots": {"ONLY STREAM": [7, "FEET"], "BOTH": [8, "FEET"]}}},
  "blocks": {"B1": {"slots": {"ONLY BLOCK": [5, "M"], "BOTH": [6, "FEET"]}, "inherits": "B0"},
             "B0": {"slots": {"INHERITED": 11}}},
  "items": {"P-101": {"category": "DCP", "block": "B1",
    "component": {"TEXT": "some text", "LINES": ["a", "b"], "NUMBER": 12.9, "ZERO": 0,
                  "LENGTH": [1, "M"], "ZERO LENGTH": [0, "M"], "UNIT": "PSI", "EMPTY": ""}}},
  "databases": {"DB1": {"OBJ": {"ONLY FILE": 3}}, "DB2": {"OBJ": {"ONLY FILE": 4, "SECOND": 5},
                        "OTHER": {"SECOND": 6}}},
  "criteria": {"DCP ": {"Own": 1.5}, "*": {"Length": [1, "M"], "Text": "words", "Nothing": 0}}
})";

class Readers : public testing::Test {
 protected:
  TestPlant plant{kPlant};
  std::unique_ptr<ProbeItem> item = plant.make<ProbeItem>("P-101");

  std::string text(const char* slot, std::string_view objects = "P-101") {
    SlotText out;
    const int found = item->lib_get_value_c("", objects, slot, out.data());
    EXPECT_EQ(found, out.empty() ? 0 : 1);
    return out.c_str();
  }
  double number(const char* slot, std::string_view objects, std::string_view files = "") {
    double out = -1;
    item->lib_get_value_n(files, objects, slot, &out, "");
    return out;
  }
};

TEST_F(Readers, A_text_is_read_as_it_stands_a_list_by_lines_and_a_number_cut_to_a_whole_one) {
  EXPECT_EQ(text("TEXT"), "some text");
  EXPECT_EQ(text("LINES"), "a\nb");
  EXPECT_EQ(text("NUMBER"), "12");
  EXPECT_EQ(text("EMPTY"), "");
  EXPECT_EQ(text("MISSING"), "");
}

TEST_F(Readers, A_number_of_exactly_0_is_not_found_though_it_is_given) {
  double out = 5;
  EXPECT_EQ(item->lib_get_value_n("", "P-101", "ZERO", &out, ""), 0);
  EXPECT_EQ(out, 0.0);
  EXPECT_EQ(item->lib_get_value_n("", "P-101", "NUMBER", &out, ""), 1);
  EXPECT_EQ(out, 12.9);
  out = 5;
  for (const char* none : {"TEXT", "LINES", "MISSING"}) {
    EXPECT_EQ(item->lib_get_value_n("", "P-101", none, &out, ""), 0) << none;
    EXPECT_EQ(out, 5) << none;
  }
}

TEST_F(Readers, Number_and_unit_must_both_be_there) {
  struct Row {
    const char* slot;
    int found;
    double number;
    const char* units;
  };
  for (const Row& row :
       {Row{"LENGTH", 1, 1, "M"}, Row{"NUMBER", 0, 12.9, ""}, Row{"ZERO LENGTH", 0, 0, "M"},
        Row{"UNIT", 1, 14.7, "PSI"}, Row{"MISSING", 0, 14.7, ""}}) {
    double out = 14.7;
    UnitText units;
    EXPECT_EQ(item->lib_get_number_and_units("", "P-101", row.slot, &out, units.data()), row.found)
        << row.slot;
    EXPECT_EQ(out, row.number) << row.slot;
    EXPECT_EQ(units.view(), row.units) << row.slot;
  }
}

TEST_F(Readers, A_number_is_converted_from_its_unit_and_stands_without_one) {
  double out = 0;
  EXPECT_EQ(item->lib_get_and_adjust("", "P-101", "LENGTH", &out, "FEET"), 1);
  EXPECT_DOUBLE_EQ(out, 1 / 0.3048);
  EXPECT_EQ(item->lib_get_and_adjust("", "P-101", "NUMBER", &out, "FEET"), 1);
  EXPECT_EQ(out, 12.9);
  EXPECT_EQ(item->lib_get_and_adjust("", "P-101", "ZERO LENGTH", &out, "FEET"), 0);
  EXPECT_EQ(out, 0.0);
}

TEST_F(Readers, A_text_is_the_unit_of_what_was_there) {
  double out = 14.7;
  EXPECT_EQ(item->lib_get_and_adjust("", "P-101", "UNIT", &out, "PSI"), 1);
  EXPECT_EQ(out, 14.7);
  EXPECT_EQ(item->lib_get_and_adjust("", "P-101", "UNIT", &out, "KPA"), 1);
  EXPECT_NEAR(out, 14.7 * 6.894757293168361, 1e-9);
}

TEST_F(Readers, Look_at_the_item_then_at_streams_then_at_databases) {
  EXPECT_EQ(number("BOTH", "S1\nB1"), 6);  // the block is part of the item
  EXPECT_EQ(number("BOTH", "S1"), 8);
  EXPECT_EQ(number("ONLY STREAM", "P-101\nb1\ns1"), 7);
  EXPECT_EQ(number("ONLY FILE", "OBJ", "DB1\nDB2"), 3);
  EXPECT_EQ(number("ONLY FILE", "OBJ", "DB2\nDB1"), 4);
  EXPECT_EQ(number("SECOND", "OTHER\nOBJ", "DB1\nDB2"), 6);
  EXPECT_EQ(number("SECOND", "nowhere", "DB1\nDB2"), -1);
  EXPECT_EQ(number("INHERITED", "B1"), 11);
}

TEST_F(Readers, Of_one_object_read_the_same_way) {
  CvdValueObject* const record = item->component.get();
  double out = 0;
  UnitText units;
  SlotText words;
  EXPECT_EQ(item->lib_get_value_c_api(record, "NUMBER", words.data(), "inherit"), 1);
  EXPECT_EQ(words.view(), "12");
  EXPECT_EQ(item->lib_get_value_n_api(record, "NUMBER", &out, "inherit"), 1);
  EXPECT_EQ(item->lib_get_number_and_units_api(record, "LENGTH", &out, units.data()), 1);
  EXPECT_EQ(item->lib_get_and_adjust_api(record, "LENGTH", &out, "MM"), 1);
  EXPECT_DOUBLE_EQ(out, 1000);
}

TEST_F(Readers, Without_a_slot_name_or_an_object_find_nothing) {
  double out = 3;
  UnitText units;
  SlotText words;
  CvdGenericObject invalid(1, "NO SUCH DATABASE", "X");
  for (CvdValueObject* object :
       {static_cast<CvdValueObject*>(nullptr), static_cast<CvdValueObject*>(&invalid)}) {
    EXPECT_EQ(item->lib_get_value_c_api(object, "TEXT", words.data(), ""), 0);
    EXPECT_EQ(item->lib_get_value_n_api(object, "NUMBER", &out, ""), 0);
    EXPECT_EQ(item->lib_get_number_and_units_api(object, "LENGTH", &out, units.data()), 0);
    EXPECT_EQ(item->lib_get_and_adjust_api(object, "LENGTH", &out, "FEET"), 0);
  }
  EXPECT_EQ(item->lib_get_value_c("", "P-101", "", words.data()), 0);
  EXPECT_EQ(item->lib_get_value_n("", "P-101", "", &out, ""), 0);
  EXPECT_EQ(item->lib_get_and_adjust_api(item->component.get(), "", &out, "FEET"), 0);
  EXPECT_EQ(out, 3);
}

TEST_F(Readers, Load_all_slots_of_the_first_file_that_has_the_object) {
  void* names = nullptr;
  void* values = nullptr;
  EXPECT_EQ(item->lib_lo_load_list2_all("NOWHERE\nDB2\nDB1", "OBJ", &names, &values), 1);
  EXPECT_EQ(list2_length(names), 2);
  EXPECT_STREQ(list2_get_item(names, 0, nullptr), "ONLY FILE");
  EXPECT_STREQ(list2_get_item(values, 0, nullptr), "4");
  list2_delete(names);
  list2_delete(values);
  EXPECT_EQ(item->lib_lo_load_list2_all("DB1\nDB2", "none", &names, &values), 0);
  EXPECT_EQ(item->lib_obj_exists("DB1\nDB2", "OTHER"), 1);
  EXPECT_EQ(item->lib_obj_exists("DB1", "OTHER"), 0);
}

TEST_F(Readers, Design_criteria_come_in_the_unit_asked_for) {
  double value = 9;
  EXPECT_EQ(item->GetValueFromDesCriteria("Length", value, "FEET"), 1);
  EXPECT_DOUBLE_EQ(value, 1 / 0.3048);
  EXPECT_EQ(item->GetValueFromDesCriteria("Missing", value, "FEET"), 0);
  CriterionText words;
  EXPECT_EQ(item->GetValueFromDesCriteria("Text", words), 1);
  EXPECT_EQ(words.view(), "words");
  EXPECT_EQ(item->GetValueFromDesCriteria("Missing", words), 0);
}

// --- Text and numbers
// -----------------------------------------------------------------------------

struct PowerCase {
  double x;
  double y;
  double expected;
};
class LibraryPower : public testing::TestWithParam<PowerCase> {};
INSTANTIATE_TEST_SUITE_P(
    EveryBranch, LibraryPower,
    testing::Values(PowerCase{5, 0, 1}, PowerCase{0, 0, 1}, PowerCase{0, -2, 0}, PowerCase{0, 2, 0},
                    PowerCase{1, 7, 1}, PowerCase{1, -7, 1},
                    PowerCase{10, 2, std::exp(2 * 2.302585093)},
                    PowerCase{10, -2, 1 / std::exp(2 * 2.302585093)},
                    PowerCase{8, 0.33, std::exp(0.33 * 2.302585093 * std::log10(8.0))}));

TEST_P(LibraryPower, Is_exact_in_its_own_way) {
  EXPECT_EQ(CSizeEquip::compiler_pow_double(GetParam().x, GetParam().y), GetParam().expected);
}

TEST(LibraryPowers, Of_a_negative_number_are_none) {
  EXPECT_TRUE(std::isnan(CSizeEquip::compiler_pow_double(-2, 2)));
}

TEST(TextHelpers, Cut_and_trim) {
  char text[] = "first line  \nsecond";
  CSizeEquip::TrimString(text);
  EXPECT_STREQ(text, "first line  ");
  char blanks[] = "word   ";
  CSizeEquip::TrimString(blanks);
  EXPECT_STREQ(blanks, "word");
  const char* const words = "one,two";
  const char* cursor = words;
  char out[16];
  EXPECT_EQ(CSizeEquip::lib_func_get_str_upto_char(&cursor, out, ','), words + 4);
  EXPECT_STREQ(out, "one");
  EXPECT_EQ(CSizeEquip::lib_func_get_str_upto_char(&cursor, out, ','), words + 7);
  EXPECT_STREQ(out, "two");
}

}  // namespace
}  // namespace sizewright
