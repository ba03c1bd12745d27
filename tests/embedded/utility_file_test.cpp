#include <gtest/gtest.h>

#include "sizewright/embedded/memory_store.h"
#include "sizewright/embedded/utility_file.h"

namespace sizewright {
namespace {

using Names = std::vector<std::string>;

class UtilityFileTest : public testing::Test {
 protected:
  void add(std::string_view name) { store.add(store.database(kUtilityStreamEntry), name); }

  MemoryStore store;
  UtilityFile file{store};
};

TEST_F(UtilityFileTest, An_empty_file_is_valid) {
  EXPECT_TRUE(file.isValid());
  EXPECT_TRUE(file.entries().empty());
  EXPECT_EQ(file.entry("Steam"), ObjectId::none);
}

TEST_F(UtilityFileTest, Entries_keep_the_order_of_the_file) {
  for (const char* name : {"Steam @400PSI", "Cooling water", "Air", "steam @100PSI"}) add(name);
  EXPECT_EQ(file.entries(), (Names{"Steam @400PSI", "Cooling water", "Air", "steam @100PSI"}));
}

TEST_F(UtilityFileTest, An_entry_is_found_without_regard_to_case_and_holds_its_slots) {
  add("Cooling water");
  StoredObject* const object = store.find(store.database(kUtilityStreamEntry), "Cooling water");
  store.set(*object, "Fluid", CvdSlot::ofText("Water"));
  const ObjectId entry = file.entry("COOLING WATER");
  ASSERT_NE(entry, ObjectId::none);
  CvdSlot fluid;
  EXPECT_TRUE(store.read(entry, "Fluid", false, fluid));
  EXPECT_STREQ(fluid.Text(), "Water");
}

TEST_F(UtilityFileTest, A_new_entry_comes_last_and_can_be_written) {
  add("Cooling water");
  const ObjectId entry = file.addEntry("Brine");
  ASSERT_NE(entry, ObjectId::none);
  EXPECT_TRUE(store.write(entry, "Fluid", CvdSlot::ofText("Inorganic Liquid")));
  EXPECT_TRUE(file.commit());
  EXPECT_EQ(file.entries(), (Names{"Cooling water", "Brine"}));
  EXPECT_EQ(file.entry("brine"), entry);
}

TEST_F(UtilityFileTest, Adding_an_entry_that_is_there_finds_it) {
  add("Cooling water");
  EXPECT_EQ(file.addEntry("cooling WATER"), file.entry("Cooling water"));
  EXPECT_EQ(file.entries().size(), 1U);
}

TEST_F(UtilityFileTest, An_entry_needs_a_name) {
  EXPECT_EQ(file.addEntry(""), ObjectId::none);
  EXPECT_TRUE(file.entries().empty());
}

TEST_F(UtilityFileTest, A_stream_is_named_as_wanted_without_the_blanks_around) {
  EXPECT_EQ(file.streamName("  Cooling tower water Inlet \t"), "Cooling tower water Inlet");
  EXPECT_EQ(file.streamName("   "), "");
  EXPECT_EQ(file.streamName(""), "");
}

TEST_F(UtilityFileTest, A_long_stream_name_is_cut_at_120_bytes) {
  EXPECT_EQ(file.streamName(std::string(120, 'a')), std::string(120, 'a'));
  EXPECT_EQ(file.streamName(std::string(500, 'a')), std::string(120, 'a'));
  // Neither a blank nor part of a character is left at the cut.
  EXPECT_EQ(file.streamName(std::string(119, 'a') + " b"), std::string(119, 'a'));
  EXPECT_EQ(file.streamName(std::string(119, 'a') + "\xC3\xA4"), std::string(119, 'a'));
}

}  // namespace
}  // namespace sizewright
