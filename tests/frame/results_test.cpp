#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "frame/probe_item.h"
#include "support/test_plant.h"

namespace sizewright {
namespace {

constexpr const char* kPlant = R"({"items": {
  "P-101": {"category": "DCP", "component": {"CpFluidHead": [10, "FEET"], "Title": "t",
            "CpRemarks1": "r", "CpRemarks2": "r", "CpItemDescription": "d", "CpUserTag": "u",
            "CpQuotedCost": 5, "Blank": ""}},
  "P-102": {"category": "DCP", "project": null}}})";

class Results : public testing::Test {
 protected:
  TestPlant plant{kPlant};
  std::unique_ptr<ProbeItem> item = plant.make<ProbeItem>("P-101");

  std::string sized(const char* slot) { return plant.sizeRecord("P-101", slot).Text(); }
  bool hasSized(const char* slot) { return plant.sizeRecord("P-101", slot).IsValid(); }
};

TEST_F(Results, Messages_are_one_text_a_list_on_the_project_object) {
  item->tell(item->warnings, "a\nb");
  item->tell(item->warnings, "c");
  item->tell(item->notes, "n");
  EXPECT_EQ(item->AddWarningAndError(), 1);
  EXPECT_STREQ(plant.project("P-101", "Sizing Warning(s)").Text(), "a\nb\nc");
  EXPECT_STREQ(plant.project("P-101", "Sizing Note(s)").Text(), "n");
  EXPECT_FALSE(plant.project("P-101", "Sizing Error(s)").IsValid());
  EXPECT_FALSE(plant.project("P-101", "Sizing Calculation(s)").IsValid());
}

TEST(ResultsWithoutProject, Have_no_place_for_messages) {
  TestPlant plant(kPlant);
  const auto item = plant.make<ProbeItem>("P-102");
  item->tell(item->warnings, "a");
  EXPECT_EQ(item->AddWarningAndError(), 0);
  EXPECT_EQ(item->Commit(), 0);
}

TEST_F(Results, Are_filed_with_numbered_messages_and_without_private_slots) {
  item->tell(item->warnings, "a\nb\nc");
  item->tell(item->notes, "n");
  EXPECT_EQ(item->UpdateSizeInfo(), 1);
  EXPECT_EQ(plant.sizeRecord("P-101", "CpFluidHead").Number(), 10);
  EXPECT_EQ(sized("Warning(s) 0"), "a");
  EXPECT_EQ(sized("Warning(s) 1"), "b");
  EXPECT_EQ(sized("Warning(s) 2"), "c");
  EXPECT_EQ(sized("Sizing Note(s) 0"), "n");
  EXPECT_FALSE(hasSized("Warning(s) 3"));
  for (const char* absent : {"object name", "Title", "CpRemarks1", "CpRemarks2",
                             "CpItemDescription", "CpUserTag", "CpQuotedCost", "Blank"}) {
    EXPECT_FALSE(hasSized(absent)) << absent;
  }
}

TEST_F(Results, File_errors_in_the_place_of_calculations) {
  item->tell(item->calculations, "c1\nc2");
  item->UpdateSizeInfo();
  EXPECT_FALSE(hasSized("Sizing Calculation(s) 0"));
  item->tell(item->errors, "e1");
  item->UpdateSizeInfo();
  EXPECT_EQ(sized("Error(s) 0"), "e1");
  EXPECT_EQ(sized("Sizing Calculation(s) 0"), "e1");  // kept: the entries are those of the errors
  EXPECT_FALSE(hasSized("Sizing Calculation(s) 1"));
}

TEST_F(Results, Without_a_results_database_are_not_filed) {
  CvdODB(plant.host().project()->UserInstance(), "SIZE", 0).Delete();
  EXPECT_EQ(item->UpdateSizeInfo(), 0);
}

TEST_F(Results, A_text_is_stored_or_shown_by_mode) {
  EXPECT_EQ(item->lib_func_write_msg("", "", "Slot", "text", 0), 1);
  EXPECT_EQ(plant.text("P-101", "Slot"), "text");
  EXPECT_EQ(item->lib_func_write_msg("", "", "Other", "shown 100%s", 1), 1);
  EXPECT_EQ(plant.dialogTexts(), std::vector<std::string>{"shown 100%s"});
  EXPECT_EQ(item->lib_func_write_msg("", "", "Other", "text", 2), 1);
  EXPECT_FALSE(plant.has("P-101", "Other"));
}

TEST_F(Results, Are_reported_to_a_file_from_the_last_row_up) {
  const std::string path = testing::TempDir() + "sizewright_report.txt";
  std::filesystem::remove(path);
  void* names = list2_create();
  void* values = list2_create();
  for (const auto& [name, value] :
       {std::pair("Head", "12\nFEET"), std::pair("None", ""), std::pair("Count", "3")}) {
    list2_append_to_end(names, name);
    list2_append_to_end(values, value);
  }
  CSizeEquip::WriteToFile(path.c_str(), names, values);
  list2_append_to_end(names, "one more");
  CSizeEquip::WriteToFile(path.c_str(), names, values);  // of unequal length: nothing is written
  list2_delete(names);
  list2_delete(values);
  std::stringstream written;
  written << std::ifstream(path).rdbuf();
  const auto padded = [](std::string text, std::size_t width) {
    return text + std::string(width - text.size(), ' ');
  };
  EXPECT_EQ(written.str(), "  " + padded("Count", 48) + padded("3", 20) + "\n  " +
                               padded("Head", 48) + padded("12", 20) + "FEET\n");
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace sizewright
